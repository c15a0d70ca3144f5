#include "placement/TiedOrder.h"

namespace zeb {

void TiedOrder::Append(Number object, Number tiedTo) { Put(m_Last, kNone, object, tiedTo); }

void TiedOrder::PutFirst(Number object, Number tiedTo) { Put(kNone, m_First, object, tiedTo); }

void TiedOrder::PutInFrontOf(Number listed, Number object, Number tiedTo) {
  Put(m_Entries[listed].previous, listed, object, tiedTo);
}

void TiedOrder::PutBehind(Number listed, Number object, Number tiedTo) {
  Put(listed, m_Entries[listed].next, object, tiedTo);
}

void TiedOrder::PutBehindSiblings(Number object, Number tiedTo) {
  const Number lastSibling = m_Entries[tiedTo].lastSibling;
  const Number end = lastSibling == kNone ? tiedTo : lastSibling;
  const Number stranger = m_Entries[end].next;
  // An object without a relation ends the search where it stands.
  const bool passedOver = stranger != kNone && m_Entries[stranger].tiedTo != kNone;
  PutBehind(passedOver ? stranger : end, object, tiedTo);
}

std::vector<CPlaceable*> TiedOrder::Elements(const ObjectNumbers& numbers) const {
  std::vector<CPlaceable*> elements;
  elements.reserve(m_Count);
  for (Number object = m_First; object != kNone; object = m_Entries[object].next) {
    elements.push_back(numbers.Object(object));
  }
  return elements;
}

void TiedOrder::Put(Number previous, Number next, Number object, Number tiedTo) {
  Entry& entry = EntryOf(m_Entries, object);
  entry.previous = previous;
  entry.next = next;
  entry.tiedTo = tiedTo;
  entry.listed = true;
  ++m_Count;

  if (next != kNone && m_Entries[next].rowOf != kNone && m_Entries[next].rowOf != tiedTo) BreakRowAt(next);
  (previous == kNone ? m_First : m_Entries[previous].next) = object;
  (next == kNone ? m_Last : m_Entries[next].previous) = object;
  EnterRow(object);
  GatherRow(object);
}

void TiedOrder::EnterRow(Number object) {
  Entry& entry = m_Entries[object];
  if (entry.previous == kNone || entry.tiedTo == kNone) return;
  if (entry.previous != entry.tiedTo && m_Entries[entry.previous].rowOf != entry.tiedTo) return;
  entry.rowOf = entry.tiedTo;
  const bool atEnd = entry.next == kNone || m_Entries[entry.next].rowOf != entry.tiedTo;
  if (atEnd) m_Entries[entry.tiedTo].lastSibling = object;
}

// Takes the sibling and those behind it out of their row.
void TiedOrder::BreakRowAt(Number sibling) {
  const Number owner = m_Entries[sibling].rowOf;
  const Number previous = m_Entries[sibling].previous;
  for (Number left = sibling; left != kNone && m_Entries[left].rowOf == owner; left = m_Entries[left].next) {
    m_Entries[left].rowOf = kNone;
  }
  m_Entries[owner].lastSibling = previous == owner ? kNone : previous;
}

// Makes the row of a new object from those behind it that were listed before what they are tied to.
void TiedOrder::GatherRow(Number object) {
  Number sibling = m_Entries[object].next;
  while (sibling != kNone && m_Entries[sibling].tiedTo == object) {
    m_Entries[sibling].rowOf = object;
    m_Entries[object].lastSibling = sibling;
    sibling = m_Entries[sibling].next;
  }
}

}  // namespace zeb
