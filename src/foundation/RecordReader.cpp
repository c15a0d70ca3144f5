#include "foundation/RecordReader.h"

#include "foundation/ValueConversion.h"
#include "foundation/XMLTree.h"

namespace zeb {

using zebxmln::CXMLNode;

RecordReader::RecordReader(CXMLNode* record) : m_ppCursor(record->GetChildNodes()) {}

bool RecordReader::AtEnd() const { return *m_ppCursor == nullptr; }

bool RecordReader::Is(ElementName name) const {
  return !AtEnd() && XMLTree::NameOf(**m_ppCursor).Wide == name;
}

CXMLNode* RecordReader::Current() const { return *m_ppCursor; }

void RecordReader::Next() {
  if (!AtEnd()) ++m_ppCursor;
}

CXMLNode* RecordReader::Take(ElementName name) { return Is(name) ? *m_ppCursor++ : nullptr; }

void RecordReader::StepOver(ElementName name) { Take(name); }

bool RecordReader::Read(ElementName name, std::wstring& value) {
  const CXMLNode* element = Take(name);
  if (element != nullptr) XMLTree::CopyText(*element, value);
  return element != nullptr;
}

bool RecordReader::Read(ElementName name, int& value) {
  CXMLNode* element = Take(name);
  if (element != nullptr) value = StringToInt(element->GetNodeText());
  return element != nullptr;
}

bool RecordReader::Read(ElementName name, float& value) {
  CXMLNode* element = Take(name);
  if (element != nullptr) value = StringToFloat(element->GetNodeText());
  return element != nullptr;
}

bool RecordReader::Read(ElementName name, bool& value) {
  CXMLNode* element = Take(name);
  if (element != nullptr) value = StringToBool(element->GetNodeText());
  return element != nullptr;
}

}  // namespace zeb
