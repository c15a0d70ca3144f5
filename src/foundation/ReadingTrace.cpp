#include "foundation/ReadingTrace.h"

#include "foundation/XMLTree.h"

#include <exception>
#include <new>
#include <string>
#include <utility>

namespace zeb {

using zebxmln::CXMLNode;

RecordWalk::RecordWalk(ReadingNotes& notes, const CXMLNode& record)
    : m_Notes(notes), m_Record(notes.Records[&record]), m_uiNumber(++m_Record.Walks) {}

void RecordWalk::Ask(ElementName name, CXMLNode** place, bool isThere) {
  AskedName& asked = m_Record.Asked[name];
  if (asked.FirstPlace == nullptr) asked.FirstPlace = place;
  asked.LastPlace = place;
  asked.LastAsk = ++m_Record.Events;
  asked.LastAskWalk = m_uiNumber;
  if (!isThere) return;
  m_Found = name;
  m_ppFoundPlace = place;
}

void RecordWalk::Take(ElementName name, const CXMLNode& element) {
  AskedName& asked = m_Record.Asked[name];
  asked.LastTaking = ++m_Record.Events;
  asked.LastTakingWalk = m_uiNumber;
  m_Notes.Elements[&element].TakenAt = asked.LastTaking;
}

void RecordWalk::Pass(CXMLNode** place) {
  if (m_ppFoundPlace == place) {
    Take(m_Found, **place);
  } else {
    m_Notes.Elements[*place].PassedAt = ++m_Record.Events;
  }
}

void RecordWalk::Miss(ElementName name, CXMLNode** place) {
  m_Record.Missing = name;
  m_Record.MissingPlace = place;
}

ReadingTrace* ReadingTrace::s_pActive = nullptr;

ReadingTrace::ReadingTrace() : m_iExceptions(std::uncaught_exceptions()) { s_pActive = this; }

ReadingTrace::~ReadingTrace() { s_pActive = nullptr; }

const std::vector<ReadingFinding>& ReadingTrace::Findings() const {
  if (m_bOutOfMemory) throw std::bad_alloc();
  return m_rgFindings;
}

void ReadingTrace::BeginDocument(const CXMLNode* root) {
  if (!std::exchange(m_bHasBegun, true)) m_pRoot = root;
}

void ReadingTrace::EndDocument(const CXMLNode* root) noexcept {
  if (root == nullptr || root != m_pRoot) return;
  try {
    // A document that ends while an exception is on its way was not read to its end.
    m_rgFindings = FindUnread(*root, m_Notes, std::uncaught_exceptions() == m_iExceptions);
  } catch (const std::bad_alloc&) {
    m_bOutOfMemory = true;
  }
  // Later documents may have elements at the same addresses.
  m_pRoot = nullptr;
  m_pRead = nullptr;
  m_Notes = {};
}

bool ReadingTrace::IsListenedTo(const CXMLNode& node) const {
  return m_pRoot != nullptr && &XMLTree::Of(node) == &XMLTree::Of(*m_pRoot);
}

RecordWalk* ReadingTrace::BeginWalk(const CXMLNode& record) {
  return IsListenedTo(record) ? &m_rgWalks.emplace_back(m_Notes, record) : nullptr;
}

void ReadingTrace::NoteLook(const CXMLNode& element) {
  if (IsListenedTo(element)) m_Notes.Elements[&element].IsLookedInto = true;
}

void ReadingTrace::NoteText(const CXMLNode& element) {
  if (!IsListenedTo(element)) return;
  ReadElement& read = m_Notes.Elements[&element];
  read.IsLookedInto = true;
  read.IsText = true;
  m_pRead = &element;
}

void ReadingTrace::NoteRefusedRecord(const CXMLNode& record, ElementName identifier, std::optional<int> id) {
  if (!IsListenedTo(record)) return;
  m_Notes.Elements[&record].IsRefused = true;
  const std::wstring name(XMLTree::NameOf(record).Wide);
  const std::wstring text =
      id ? L"nothing in front of it refers to a " + name + L" with the identifier " + std::to_wstring(*id)
         : L"it does not begin with its identifier, " + std::wstring(identifier);
  AddIdentifierNote(&record, {ReadingFault::IdentifierWithoutObject, text, std::nullopt});
}

void ReadingTrace::NoteLoadedRecord(const CXMLNode& record, int id) {
  if (!IsListenedTo(record)) return;
  const auto [first, isNew] = m_Notes.LoadedRecords.emplace(id, &record);
  if (isNew) return;
  if (m_Notes.DefinedFormulas.contains(id)) return;  // saved once for each list that names it
  const XMLPosition place = XMLTree::PositionOf(*first->second);
  AddIdentifierNote(&record, {ReadingFault::SecondOccurrence,
                              std::wstring(XMLTree::NameOf(*first->second).Wide) + L" in line " +
                                  std::to_wstring(place.Line) + L" has the identifier " +
                                  std::to_wstring(id) + L" too, and both are read into one object",
                              std::nullopt});
}

void ReadingTrace::NoteReference(int id) {
  AddIdentifierNote(m_pRead, {ReadingFault::IdentifierWithoutObject,
                              L"no record that is read has the identifier " + std::to_wstring(id), id});
}

void ReadingTrace::NoteWrongReference(int id) {
  AddIdentifierNote(
      m_pRead,
      {ReadingFault::IdentifierWithoutObject,
       L"the identifier " + std::to_wstring(id) + L" is that of an object of another kind", std::nullopt});
}

void ReadingTrace::NoteSecondReference(int id) {
  AddIdentifierNote(
      m_pRead,
      {ReadingFault::SecondOccurrence,
       L"the object with the identifier " + std::to_wstring(id) + L" is in a list already", std::nullopt});
}

void ReadingTrace::AddIdentifierNote(const CXMLNode* element, IdentifierNote note) {
  if (element != nullptr) m_Notes.Identifiers.emplace(element, std::move(note));
}

}  // namespace zeb
