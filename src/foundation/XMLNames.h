#pragma once

#include "foundation/Arena.h"

#include <array>
#include <cstdint>
#include <map>
#include <string_view>

namespace zeb {

class XMLTree;

/// The name of elements, once per document.
struct XMLName {
  std::string_view Utf8;
  std::wstring_view Wide;  // terminated
  XMLTree* Tree;           // observer: the document that the name and its elements belong to
  bool HoldsBinary;        // whether it is the name of binary content
};

/// The names of a document, in an arena.
///
/// A sorted map, so that no choice of names makes the search slow; in front of it, a small table finds the few hundred
/// names that a file really uses.
class XMLNames {
 public:
  XMLNames(Arena& arena, XMLTree& tree) : m_Arena(arena), m_Tree(tree) {}

  const XMLName& Find(std::string_view name);
  const XMLName& Find(std::wstring_view name);

 private:
  static constexpr std::size_t kRecent = 1024;

  const XMLName& FindInMap(std::string_view name);

  Arena& m_Arena;                                            // observer
  XMLTree& m_Tree;                                           // observer
  std::map<std::string_view, const XMLName*> m_rgpNames;     // in the arena
  std::array<const XMLName*, kRecent> m_rgpRecent = {};      // in the arena; by the hash of UTF-8
  std::array<const XMLName*, kRecent> m_rgpRecentWide = {};  // in the arena; by the hash of wide characters
};

}  // namespace zeb
