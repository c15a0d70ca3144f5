#include "foundation/RecordReader.h"

#include "foundation/ValueConversion.h"
#include "foundation/XMLTree.h"

#include <array>

namespace zeb {

using zebxmln::CXMLNode;

namespace {

/// Converts the text of an element, if there is one. Numbers are short: most need no wide text in the document.
template <class Value>
bool ReadNumber(CXMLNode* element, Value (*convert)(const wchar_t*), Value& value) {
  if (element == nullptr) return false;
  std::array<wchar_t, 64> text;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the copy
  value = convert(XMLTree::CopyShortText(*element, text) ? text.data() : element->GetNodeText());
  return true;
}

}  // namespace

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

bool RecordReader::Read(ElementName name, int& value) { return ReadNumber(Take(name), &StringToInt, value); }

bool RecordReader::Read(ElementName name, float& value) {
  return ReadNumber(Take(name), &StringToFloat, value);
}

bool RecordReader::Read(ElementName name, bool& value) {
  return ReadNumber(Take(name), &StringToBool, value);
}

}  // namespace zeb
