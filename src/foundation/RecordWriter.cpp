#include "foundation/RecordWriter.h"

#include "foundation/ValueConversion.h"
#include "foundation/XMLTree.h"

#include <array>

namespace zeb {

using zebxmln::CXMLNode;

namespace {

CXMLNode* AddElement(CXMLNode& parent, ElementName name) {
  CXMLNode* element = XMLTree::Of(parent).MakeNode(name);
  XMLTree::AddChild(parent, element);
  return element;
}

}  // namespace

RecordWriter::RecordWriter(CXMLNode* record) : m_pNode(record) {}

RecordWriter::RecordWriter(CXMLNode* parent, ElementName name) : m_pNode(AddElement(*parent, name)) {}

CXMLNode* RecordWriter::Node() const { return m_pNode; }

CXMLNode* RecordWriter::Add(ElementName name) { return AddElement(*m_pNode, name); }

void RecordWriter::Write(ElementName name, const std::wstring& value) { Write(name, value.c_str()); }

void RecordWriter::Write(ElementName name, const wchar_t* value) { Add(name)->SetNodeText(value); }

void RecordWriter::Write(ElementName name, int value) {
  std::array<wchar_t, 64> text = {};
  IntToString(value, text.data());
  Write(name, text.data());
}

void RecordWriter::Write(ElementName name, float value) {
  std::array<wchar_t, 400> text = {};
  FloatToString(value, text.data());
  Write(name, text.data());
}

void RecordWriter::Write(ElementName name, bool value) {
  std::array<wchar_t, 64> text = {};
  BoolToString(value, text.data());
  Write(name, text.data());
}

void RecordWriter::WriteUnless(ElementName name, int value, int defaultValue) {
  if (value != defaultValue) Write(name, value);
}

void RecordWriter::WriteUnless(ElementName name, float value, float defaultValue) {
  if (value != defaultValue) Write(name, value);
}

void RecordWriter::WriteUnless(ElementName name, bool value, bool defaultValue) {
  if (value != defaultValue) Write(name, value);
}

void RecordWriter::WriteUnlessEmpty(ElementName name, const std::wstring& value) {
  if (!value.empty()) Write(name, value);
}

}  // namespace zeb
