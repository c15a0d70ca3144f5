#include "foundation/XMLNode.h"

#include "foundation/ReadingTrace.h"
#include "foundation/XMLTree.h"

#include <string_view>

namespace zebxmln {

using zeb::ReadingTrace;
using zeb::XMLTree;

namespace {

std::wstring_view TextOrEmpty(const wchar_t* text) { return text == nullptr ? std::wstring_view() : text; }

/// Tells who listens to the reading that somebody looks into the element.
void NoteLook(const CXMLNode& element) {
  if (ReadingTrace* trace = ReadingTrace::Active()) trace->NoteLook(element);
}

}  // namespace

CXMLNode::CXMLNode() : m_ppChildren(nullptr) {}

CXMLNode::~CXMLNode() = default;

const wchar_t* CXMLNode::GetNodeName() { return XMLTree::NameOf(*this).Wide.data(); }

CXMLNode** CXMLNode::GetChildNodes() {
  NoteLook(*this);
  return XMLTree::ChildrenOf(*this);
}

CXMLNode* CXMLNode::GetFirstChildNode() { return *GetChildNodes(); }

CXMLNode* CXMLNode::AddChildNode(const wchar_t* name, int) {
  CXMLNode* child = XMLTree::Of(*this).MakeNode(name);
  XMLTree::AddChild(*this, child);
  return child;
}

CXMLBinNode* CXMLNode::CreateBinNode() {
  if (auto* present = dynamic_cast<CXMLBinNode*>(GetFirstChildNode())) return present;
  return dynamic_cast<CXMLBinNode*>(AddChildNode(L"BinaryData", 0));
}

void CXMLNode::SetNodeAttribute(const wchar_t* name, const wchar_t* value) {
  XMLTree::SetAttribute(*this, TextOrEmpty(name), TextOrEmpty(value));
}

const wchar_t* CXMLNode::GetNodeText() {
  if (ReadingTrace* trace = ReadingTrace::Active()) trace->NoteText(*this);
  return XMLTree::WideTextOf(*this);
}

void CXMLNode::SetNodeText(const wchar_t* text) { XMLTree::SetText(*this, TextOrEmpty(text)); }

CXMLBinNode::CXMLBinNode() = default;

void CXMLBinNode::SetBinaryData(const void* data, int length) { XMLTree::SetBinary(*this, data, length); }

void CXMLBinNode::GetBinaryData(void** data, int* length) {
  NoteLook(*this);
  XMLTree::GetBinary(*this, data, length);
}

}  // namespace zebxmln
