#include "foundation/RecordReader.h"

#include "foundation/ReadingTrace.h"
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

RecordWalk* BeginWalk(const CXMLNode& record) {
  ReadingTrace* trace = ReadingTrace::Active();
  return trace == nullptr ? nullptr : trace->BeginWalk(record);
}

}  // namespace

RecordReader::RecordReader(CXMLNode* record)
    : m_ppCursor(record->GetChildNodes()), m_pWalk(BeginWalk(*record)) {}

bool RecordReader::AtEnd() const { return *m_ppCursor == nullptr; }

bool RecordReader::Is(ElementName name) const {
  const bool isThere = !AtEnd() && XMLTree::NameOf(**m_ppCursor).Wide == name;
  if (m_pWalk != nullptr) m_pWalk->Ask(name, m_ppCursor, isThere);
  return isThere;
}

bool RecordReader::Requires(ElementName name) const {
  const bool isThere = Is(name);
  if (m_pWalk != nullptr && !isThere) m_pWalk->Miss(name, m_ppCursor);
  return isThere;
}

CXMLNode* RecordReader::Current() const { return *m_ppCursor; }

void RecordReader::Next() {
  if (AtEnd()) return;
  if (m_pWalk != nullptr) m_pWalk->Pass(m_ppCursor);
  ++m_ppCursor;
}

CXMLNode* RecordReader::Take(ElementName name) {
  if (!Is(name)) return nullptr;
  if (m_pWalk != nullptr) m_pWalk->Take(name, **m_ppCursor);
  return *m_ppCursor++;
}

CXMLNode* RecordReader::TakeText(ElementName name) {
  CXMLNode* element = Take(name);
  if (m_pWalk != nullptr && element != nullptr) ReadingTrace::Active()->NoteText(*element);
  return element;
}

void RecordReader::StepOver(ElementName name) { Take(name); }

bool RecordReader::Read(ElementName name, std::wstring& value) {
  const CXMLNode* element = TakeText(name);
  if (element != nullptr) XMLTree::CopyText(*element, value);
  return element != nullptr;
}

bool RecordReader::Read(ElementName name, int& value) {
  return ReadNumber(TakeText(name), &StringToInt, value);
}

bool RecordReader::Read(ElementName name, float& value) {
  return ReadNumber(TakeText(name), &StringToFloat, value);
}

bool RecordReader::Read(ElementName name, bool& value) {
  return ReadNumber(TakeText(name), &StringToBool, value);
}

}  // namespace zeb
