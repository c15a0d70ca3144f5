#pragma once

#include "foundation/Arena.h"
#include "foundation/XMLNames.h"
#include "foundation/XMLNode.h"

#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zeb {

/// Where a start tag stands in its file, both from 1; 0 for an element that was not read from a file.
struct XMLPosition {
  unsigned int Line = 0;
  unsigned int Column = 0;
};

/// An attribute that is to be written.
struct XMLAttribute {
  std::string Name;   // UTF-8
  std::string Value;  // UTF-8, not escaped
};

/// What is behind a CXMLDocument: the elements, their names and their texts, all in one arena, so that the end of a
/// document is the end of a few blocks however deep it is nested. The static operations are those of any element.
///
/// A text stays the UTF-8 that was read (or that can stand for what was set) until someone asks for it as wide
/// characters. An array of children that was read has its very size; one that grew has room for a power of two.
class XMLTree {
 public:
  using Node = zebxmln::CXMLNode;

  XMLTree() : m_Names(m_Arena, *this) {}
  XMLTree(const XMLTree&) = delete;
  XMLTree& operator=(const XMLTree&) = delete;

  Node* Root() const { return m_pRoot; }
  void SetRoot(Node* root) { m_pRoot = root; }

  const XMLName& FindName(std::string_view name) { return m_Names.Find(name); }
  const XMLName& FindName(std::wstring_view name) { return m_Names.Find(name); }
  /// A new element without a parent.
  Node* MakeNode(const XMLName& name, const XMLPosition& position);
  Node* MakeNode(std::wstring_view name) { return MakeNode(FindName(name), {}); }

  static XMLTree& Of(const Node& node) { return *node.m_pName->Tree; }
  static const XMLName& NameOf(const Node& node) { return *node.m_pName; }
  static XMLPosition PositionOf(const Node& node) { return {node.m_uiLine, node.m_uiColumn}; }

  static bool HasChildren(const Node& node);
  /// Closed by a null pointer; never null.
  static Node** ChildrenOf(const Node& node);
  static void AddChild(Node& parent, Node* child);
  /// Sets all children of an element that has none.
  static void SetChildren(Node& parent, std::span<Node* const> children);

  static const wchar_t* WideTextOf(Node& node);
  /// The text as UTF-8.
  /// @param storage holds it if the element does not
  static std::string_view Utf8TextOf(const Node& node, std::string& storage);
  /// Copies the text without keeping wide characters in the document.
  static void CopyText(const Node& node, std::wstring& text);
  /// Copies a text that is short enough, terminated.
  /// @return whether it was; `text` is of no use otherwise
  static bool CopyShortText(const Node& node, std::span<wchar_t> text);
  static void SetText(Node& node, std::wstring_view text);
  /// @param utf8 well-formed
  static void SetUtf8Text(Node& node, std::string_view utf8);

  static void SetAttribute(Node& node, std::wstring_view name, std::wstring_view value);
  static std::span<const XMLAttribute> AttributesOf(const Node& node);

  static void SetBinary(zebxmln::CXMLBinNode& node, const void* data, int length);
  static void GetBinary(zebxmln::CXMLBinNode& node, void** data, int* length);

 private:
  /// A new text makes the decoded bytes of the old one void.
  static void ForgetBinary(Node& node);

  Arena m_Arena;
  XMLNames m_Names;
  std::unordered_map<const Node*, std::vector<XMLAttribute>> m_rgAttributes;
  Node* m_pRoot = nullptr;  // observer: in the arena
};

}  // namespace zeb
