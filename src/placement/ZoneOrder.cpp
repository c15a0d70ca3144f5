#include "model/ReportZone.h"

#include "model/TableCell.h"
#include "placement/OrderRules.h"
#include "placement/OrderedElementList.h"
#include "placement/ZoneOrderCalculation.h"

namespace {

// The place behind the reference, behind the objects that share it, and behind one more object.
int PlaceBehindSiblings(const zeb::OrderedElementList& order, int referenceIndex) {
  const CPlaceable* reference = order.At(referenceIndex);
  int place = referenceIndex + 1;
  while (place < order.Size()) {
    const CPlaceable* shared = zeb::TieOf(*order.At(place)).reference;
    // An object without a relation ends the search where it stands.
    if (shared == nullptr) break;
    ++place;
    // Fixed behaviour: the first object with another reference is passed over, not stopped at.
    if (shared != reference) break;
  }
  return place;
}

void PutCell(zeb::OrderedElementList& order, CPlaceable* cell, const CTableCell* next) {
  if (order.Find(cell) >= 0) return;
  const int nextIndex = next != nullptr ? order.Find(next) : -1;
  order.Insert(nextIndex < 0 ? order.Size() : nextIndex, cell);
}

}  // namespace

void CReportZone::CalculateOrderedElements(bool throwIfNotSortable) {
  // Fixed behaviour: nothing resets the mark, so that objects added later never appear.
  if (m_bOrderCalculated) return;
  m_pOrderedElements->Clear();
  ClearHeightElements();
  zeb::ZoneOrderCalculation calculation(*this, m_rgpHeightElements, *m_pHeightGroupIndex);
  const bool sortable = calculation.Run(throwIfNotSortable);
  // A failure leaves the order as far as it has come.
  m_pOrderedElements->Assign(calculation.Elements());
  if (!sortable) zeb::ThrowNotSortable();
  m_bOrderCalculated = true;
}

void CReportZone::AddRelationsToOrderVector(CPlaceable* element, bool throwIfNotSortable) {
  zeb::OrderedElementList& order = *m_pOrderedElements;
  // Each round looks at one object and goes on to its reference. An object is never in front of its reference when
  // the next round begins, so the walk moves to the front of the order and ends.
  while (element != nullptr) {
    const zeb::Tie tie = zeb::TieOf(*element);
    if (tie.reference == nullptr) {
      if (order.Find(element) < 0) order.Append(element);
      return;
    }
    const bool tiedToZone = tie.reference->IsZoneObject();
    const zeb::TableRule rule = zeb::TableRuleOf(*this, element);
    if (tiedToZone && !rule.holds) {
      if (order.Find(element) < 0) order.Insert(0, element);
      return;
    }
    if (rule.holds) PutCell(order, element, rule.next);
    if (tie.adjustHeight && !tiedToZone) AddHeightElements(element, tie.reference);
    if (rule.holds) return;

    if (!zeb::PutTied(order, element, tie.reference, PlaceBehindSiblings)) {
      if (throwIfNotSortable) zeb::ThrowNotSortable();
      return;
    }
    if (element == tie.reference) return;
    element = tie.reference;
  }
}

int CReportZone::FindOrderedElement(const CPlaceable* element) { return m_pOrderedElements->Find(element); }

CPlaceable* CReportZone::GetOrderedElementAt(int index) { return m_pOrderedElements->At(index); }

int CReportZone::GetOrderedElementCount() { return m_pOrderedElements->Size(); }
