#pragma once

#include "foundation/KXException.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace zebfuzz {

/// One file that is written over and over.
inline const zebtest::TempDir& Folder() {
  static const zebtest::TempDir folder;
  return folder;
}

/// Loads a text by way of a file; false if it is refused.
template <class Object>
bool LoadText(Object& object, void (Object::*load)(const wchar_t*), std::string_view text) {
  zebtest::WriteFile(Folder().File("in.xml"), text);
  try {
    (object.*load)(Folder().WideFile("in.xml").c_str());
    return true;
  } catch (const CKXXMLException&) {
    return false;
  }
}

template <class Object>
std::string SavedText(Object& object, void (Object::*save)(const wchar_t*)) {
  (object.*save)(Folder().WideFile("out.xml").c_str());
  return zebtest::ReadFile(Folder().File("out.xml"));
}

/// Loads any bytes as a catalogue file. They are refused, or what is saved of them can be loaded, and after one more
/// round nothing changes any more: the first one may lose what the old generation held under names of the new one.
template <class Object>
void LoadAndSettle(const std::uint8_t* data, std::size_t size, void (Object::*load)(const wchar_t*),
                   void (Object::*save)(const wchar_t*)) {
  Object first;
  if (!LoadText(first, load, std::string(data, data + size))) return;
  Object second;
  if (!LoadText(second, load, SavedText(first, save))) std::abort();
  const std::string settled = SavedText(second, save);
  Object third;
  if (!LoadText(third, load, settled) || SavedText(third, save) != settled) std::abort();
}

}  // namespace zebfuzz
