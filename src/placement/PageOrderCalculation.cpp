#include "placement/PageOrderCalculation.h"

#include "model/LayoutPage.h"
#include "placement/Predecessors.h"

namespace zeb {

void AddPredecessor(PredecessorMap& predecessors, CPlaceable* reference, CPlaceable* element) {
  CPredecessors*& entry = predecessors[reference];
  if (entry == nullptr) entry = new CPredecessors;
  entry->AddPredecessor(element);
}

bool PageOrderCalculation::Run(int contentCount) {
  m_Numbers.Reserve(static_cast<std::size_t>(contentCount));
  m_Order.Reserve(static_cast<std::size_t>(contentCount));
  bool sortable = true;
  for (int i = 0; sortable && i < contentCount; ++i) sortable = WalkFrom(m_rPage.GetLayoutContentAt(i));
  return sortable;
}

bool PageOrderCalculation::WalkFrom(CPlaceable* object) {
  if (object == nullptr) return true;
  const Number element = m_Numbers.Of(object);
  if (m_Order.IsListed(element)) return true;

  CPlaceable* reference = TieOf(*object).reference;
  if (reference == nullptr) {
    m_Order.Append(element, TiedOrder::kNone);
    return true;
  }
  if (reference == m_rPage.GetPaperObject()) {
    m_Order.PutFirst(element, TiedOrder::kNone);
    return true;
  }
  const Number referenceNumber = m_Numbers.Of(reference);
  if (m_Order.IsListed(referenceNumber)) {
    AddPredecessor(m_rPredecessors, reference, object);
    m_Order.PutBehind(referenceNumber, element, TiedOrder::kNone);
    return true;
  }
  ++m_Walk;
  m_Order.Append(element, TiedOrder::kNone);
  return WalkAlong(object, element, reference);
}

// Lists what the object leads to, each reference in front of the object before it. The object stands in the order
// already and is not tied to the paper.
bool PageOrderCalculation::WalkAlong(CPlaceable* object, Number element, CPlaceable* reference) {
  while (reference != nullptr && reference != m_rPage.GetPaperObject()) {
    EntryOf(m_Walks, element) = m_Walk;
    AddPredecessor(m_rPredecessors, reference, object);
    const bool tiedToItself = reference == object;
    if (tiedToItself) return true;

    const Number referenceNumber = m_Numbers.Of(reference);
    if (m_Order.IsListed(referenceNumber)) {
      const bool isCircle = EntryOf(m_Walks, referenceNumber) == m_Walk;
      return !isCircle;
    }
    m_Order.PutInFrontOf(element, referenceNumber, TiedOrder::kNone);
    object = reference;
    element = referenceNumber;
    reference = TieOf(*object).reference;
  }
  return true;
}

}  // namespace zeb
