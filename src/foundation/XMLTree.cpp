#include "foundation/XMLTree.h"

#include "foundation/Base64.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <optional>

namespace zeb {

using zebxmln::CXMLBinNode;
using zebxmln::CXMLNode;

namespace {

/// The room, with that for the closing null, of an array that grew to `count` children.
std::size_t GrownCapacity(std::size_t count) { return std::max<std::size_t>(4, std::bit_ceil(count + 1)); }

/// The number of children or characters of one element.
unsigned int CheckedCount(std::size_t count) {
  if (count > std::numeric_limits<unsigned int>::max() / 2) throw std::bad_alloc();
  return static_cast<unsigned int>(count);
}

CXMLNode** NoChildren() {
  static CXMLNode* s_pClosing = nullptr;
  return &s_pClosing;
}

}  // namespace

XMLTree::Node* XMLTree::MakeNode(const XMLName& name, const XMLPosition& position) {
  Node* node = name.HoldsBinary ? ::new (m_Arena.Allocate(sizeof(CXMLBinNode), alignof(CXMLBinNode)))
                                      CXMLBinNode
                                : ::new (m_Arena.Allocate(sizeof(CXMLNode), alignof(CXMLNode))) CXMLNode;
  node->m_pName = &name;
  node->m_uiLine = position.Line;
  node->m_uiColumn = position.Column;
  return node;
}

bool XMLTree::HasChildren(const Node& node) {
  return node.m_Content == Node::Content::Children || node.m_Content == Node::Content::GrownChildren;
}

XMLTree::Node** XMLTree::ChildrenOf(const Node& node) {
  return HasChildren(node) ? node.m_ppChildren : NoChildren();
}

void XMLTree::AddChild(Node& parent, Node* child) {
  const std::size_t count = HasChildren(parent) ? parent.m_uiCount : 0;
  const bool hasRoom = parent.m_Content == Node::Content::GrownChildren && count + 2 <= GrownCapacity(count);
  if (!hasRoom) {
    Node** grown = Of(parent).m_Arena.AllocateArray<Node*>(GrownCapacity(count + 1));
    std::copy_n(ChildrenOf(parent), count, grown);
    parent.m_ppChildren = grown;
    parent.m_Content = Node::Content::GrownChildren;
  }
  parent.m_ppChildren[count + 1] = nullptr;
  parent.m_ppChildren[count] = child;
  parent.m_uiCount = CheckedCount(count + 1);
}

void XMLTree::SetChildren(Node& parent, std::span<Node* const> children) {
  if (children.empty()) return;
  Node** array = Of(parent).m_Arena.AllocateArray<Node*>(children.size() + 1);
  *std::copy(children.begin(), children.end(), array) = nullptr;
  parent.m_uiCount = CheckedCount(children.size());
  parent.m_ppChildren = array;
  parent.m_Content = Node::Content::Children;
}

const wchar_t* XMLTree::WideTextOf(Node& node) {
  if (node.m_Content == Node::Content::WideText) return node.m_pWide;
  if (node.m_Content != Node::Content::Utf8Text) return L"";
  const std::string_view utf8(node.m_pUtf8, node.m_uiCount);
  Arena& arena = Of(node).m_Arena;
  wchar_t* wide = arena.AllocateArray<wchar_t>(utf8.size() + 1);
  const std::size_t count = DecodeUtf8(utf8, wide);
  wide[count] = L'\0';
  arena.Shrink(wide, (utf8.size() + 1) * sizeof(wchar_t), (utf8.size() - count) * sizeof(wchar_t));
  node.m_pWide = wide;
  node.m_uiCount = CheckedCount(count);
  node.m_Content = Node::Content::WideText;
  return wide;
}

std::string_view XMLTree::Utf8TextOf(const Node& node, std::string& storage) {
  if (node.m_Content == Node::Content::Utf8Text) return {node.m_pUtf8, node.m_uiCount};
  if (node.m_Content != Node::Content::WideText) return {};
  storage = WideToUtf8({node.m_pWide, node.m_uiCount});
  return storage;
}

void XMLTree::CopyText(const Node& node, std::wstring& text) {
  if (node.m_Content == Node::Content::WideText) {
    text.assign(node.m_pWide, node.m_uiCount);
  } else if (node.m_Content == Node::Content::Utf8Text) {
    text = Utf8ToWide({node.m_pUtf8, node.m_uiCount});
  } else {
    text.clear();
  }
}

bool XMLTree::CopyShortText(const Node& node, std::span<wchar_t> text) {
  const bool isText = node.m_Content == Node::Content::Utf8Text || node.m_Content == Node::Content::WideText;
  const std::size_t count = isText ? node.m_uiCount : 0;
  if (count >= text.size()) return false;
  std::size_t written = 0;
  if (node.m_Content == Node::Content::WideText) {
    written = std::wstring_view(node.m_pWide, count).copy(text.data(), count);
  } else if (isText) {
    written = DecodeUtf8({node.m_pUtf8, count}, text.data());
  }
  text[written] = L'\0';
  return true;
}

void XMLTree::SetText(Node& node, std::wstring_view text) {
  // Nearly all texts are short and plain, the numbers above all.
  std::array<char, 64> plain;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled as far as it is read
  const auto isPlain = [](wchar_t character) { return static_cast<std::uint32_t>(character) < 0x80; };
  if (text.size() <= plain.size() && std::all_of(text.begin(), text.end(), isPlain)) {
    std::transform(text.begin(), text.end(), plain.begin(),
                   [](wchar_t character) { return static_cast<char>(character); });
    SetUtf8Text(node, {plain.data(), text.size()});
  } else if (SurvivesUtf8(text)) {
    SetUtf8Text(node, WideToUtf8(text));
  } else if (!HasChildren(node)) {
    ForgetBinary(node);
    node.m_pWide = Of(node).m_Arena.CopyText(text);
    node.m_uiCount = CheckedCount(text.size());
    node.m_Content = Node::Content::WideText;
  }
}

void XMLTree::SetUtf8Text(Node& node, std::string_view utf8) {
  if (HasChildren(node)) return;
  ForgetBinary(node);
  node.m_Content = Node::Content::None;
  if (utf8.empty()) return;
  char* copy = Of(node).m_Arena.AllocateArray<char>(utf8.size());
  utf8.copy(copy, utf8.size());
  node.m_pUtf8 = copy;
  node.m_uiCount = CheckedCount(utf8.size());
  node.m_Content = Node::Content::Utf8Text;
}

void XMLTree::SetAttribute(Node& node, std::wstring_view name, std::wstring_view value) {
  std::vector<XMLAttribute>& attributes = Of(node).m_rgAttributes[&node];
  node.m_bHasAttributes = true;
  std::string utf8Name = WideToUtf8(name);
  std::string utf8Value = WideToUtf8(value);
  const auto known = std::find_if(attributes.begin(), attributes.end(),
                                  [&](const XMLAttribute& attribute) { return attribute.Name == utf8Name; });
  if (known != attributes.end()) {
    known->Value = std::move(utf8Value);
  } else {
    attributes.push_back({std::move(utf8Name), std::move(utf8Value)});
  }
}

std::span<const XMLAttribute> XMLTree::AttributesOf(const Node& node) {
  if (!node.m_bHasAttributes) return {};
  return Of(node).m_rgAttributes.at(&node);
}

void XMLTree::ForgetBinary(Node& node) {
  if (NameOf(node).HoldsBinary) static_cast<CXMLBinNode&>(node).m_bDecoded = false;
}

void XMLTree::SetBinary(CXMLBinNode& node, const void* data, int length) {
  const std::size_t size = data == nullptr || length < 0 ? 0 : static_cast<std::size_t>(length);
  SetUtf8Text(node, EncodeBase64({static_cast<const std::byte*>(data), size}));
}

void XMLTree::GetBinary(CXMLBinNode& node, void** data, int* length) {
  if (!node.m_bDecoded) {
    std::string storage;
    const std::optional<std::vector<std::byte>> bytes = DecodeBase64(Utf8TextOf(node, storage));
    node.m_pData = nullptr;
    node.m_iLength = 0;
    if (bytes && !bytes->empty() && bytes->size() <= std::numeric_limits<int>::max()) {
      auto* copy = Of(node).m_Arena.AllocateArray<std::byte>(bytes->size());
      std::copy(bytes->begin(), bytes->end(), copy);
      node.m_pData = copy;
      node.m_iLength = static_cast<int>(bytes->size());
    }
    node.m_bDecoded = true;
  }
  if (data != nullptr) *data = node.m_pData;
  if (length != nullptr) *length = node.m_iLength;
}

}  // namespace zeb
