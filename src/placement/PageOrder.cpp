#include "model/LayoutPage.h"

#include "placement/OrderRules.h"
#include "placement/OrderedElementList.h"
#include "placement/PageOrderCalculation.h"
#include "placement/Predecessors.h"

namespace {

int PlaceDirectlyBehind(const zeb::OrderedElementList& /*order*/, int referenceIndex) {
  return referenceIndex + 1;
}

}  // namespace

void CLayoutPage::CalculateOrderedElements() {
  // Fixed behaviour: nothing resets the mark, so that objects added later never appear.
  if (m_bOrderCalculated) return;
  m_pOrderedElements->Clear();
  ClearPredecessors();
  zeb::PageOrderCalculation calculation(*this, m_mapPredecessors);
  const bool sortable = calculation.Run(GetLayoutContentCount());
  // A failure leaves the order as far as it has come.
  m_pOrderedElements->Assign(calculation.Elements());
  if (!sortable) zeb::ThrowNotSortable();
  m_bOrderCalculated = true;
}

void CLayoutPage::AddRelationsToOrderVector(CPlaceable* element) {
  zeb::OrderedElementList& order = *m_pOrderedElements;
  // Each round looks at one object and goes on to its reference. An object is never in front of its reference when
  // the next round begins, so the walk moves to the front of the order and ends.
  while (element != nullptr) {
    CPlaceable* reference = zeb::TieOf(*element).reference;
    if (reference == nullptr) {
      if (order.Find(element) < 0) order.Append(element);
      return;
    }
    if (reference == m_pPaperObject) {
      if (order.Find(element) < 0) order.Insert(0, element);
      return;
    }
    zeb::AddPredecessor(m_mapPredecessors, reference, element);
    if (!zeb::PutTied(order, element, reference, PlaceDirectlyBehind)) zeb::ThrowNotSortable();
    if (element == reference) return;
    element = reference;
  }
}

int CLayoutPage::FindOrderedElement(const CPlaceable* element) { return m_pOrderedElements->Find(element); }

CPlaceable* CLayoutPage::GetOrderedElementAt(int index) { return m_pOrderedElements->At(index); }

int CLayoutPage::GetOrderedElementCount() { return m_pOrderedElements->Size(); }

CPredecessors* CLayoutPage::GetPredecessorsAt(CPlaceable* object) const {
  const auto found = m_mapPredecessors.find(object);
  return found == m_mapPredecessors.end() ? nullptr : found->second;
}

void CLayoutPage::ClearPredecessors() {
  for (const auto& [object, predecessors] : m_mapPredecessors) delete predecessors;
  m_mapPredecessors.clear();
}
