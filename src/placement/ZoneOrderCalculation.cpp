#include "placement/ZoneOrderCalculation.h"

#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/ReportZone.h"
#include "model/TableCell.h"
#include "model/ValueHolder.h"

namespace zeb {

TableRule TableRuleOf(CReportZone& zone, CPlaceable* element) {
  auto* cell = dynamic_cast<CTableCell*>(element);
  if (cell == nullptr) return {};
  const bool isFirst = cell->GetRowIndex() < 1 && cell->GetColIndex() < 1;
  if (isFirst) return {};
  const int index = zone.GetTableCellIndex(cell);
  if (index < 0 || index + 1 >= zone.GetTableCellCount()) return {};
  return {true, zone.GetTableCellAt(index + 1)};
}

bool ZoneOrderCalculation::Run(bool endAtCircle) {
  m_bEndAtCircle = endAtCircle;
  const int texts = m_rZone.GetTextElementCount();
  const int valueHolders = m_rZone.GetValueHolderCount();
  const int pictures = m_rZone.GetPictureElementCount();
  const int rectangles = m_rZone.GetRectangleElementCount();
  const int lines = m_rZone.GetLineElementCount();
  const int cells = m_rZone.GetTableCellCount();
  std::size_t count = 0;
  for (const int part : {texts, valueHolders, pictures, rectangles, lines, cells})
    count += static_cast<std::size_t>(part);
  m_Numbers.Reserve(count);
  m_Order.Reserve(count);
  m_Heights.Reserve(count);

  bool sortable = true;
  for (int i = 0; sortable && i < texts; ++i) sortable = WalkFrom(m_rZone.GetTextElementAt(i));
  for (int i = 0; sortable && i < valueHolders; ++i) sortable = WalkFrom(m_rZone.GetValueHolderAt(i));
  for (int i = 0; sortable && i < pictures; ++i) sortable = WalkFrom(m_rZone.GetPictureElementAt(i));
  for (int i = 0; sortable && i < rectangles; ++i) sortable = WalkFrom(m_rZone.GetRectangleElementAt(i));
  for (int i = 0; sortable && i < lines; ++i) sortable = WalkFrom(m_rZone.GetLineElementAt(i));
  for (int i = 0; sortable && i < cells; ++i) {
    CTableCell* cell = m_rZone.GetTableCellAt(i);
    if (cell == nullptr) continue;
    sortable = WalkFrom(cell);
    const int elements = cell->GetCellElementCount();
    for (int k = 0; sortable && k < elements; ++k) sortable = WalkFrom(cell->GetCellElementAt(k));
  }
  return sortable;
}

bool ZoneOrderCalculation::WalkFrom(CPlaceable* object) {
  if (object == nullptr) return true;
  const Number element = m_Numbers.Of(object);
  if (m_Order.IsListed(element)) {
    m_Heights.FollowAgain(element);
    return true;
  }

  const NumberedTie tie = NumberedTieOf(*object);
  if (tie.reference == nullptr) {
    m_Order.Append(element, tie.number);
    return true;
  }
  if (const TableRule rule = TableRuleOf(m_rZone, object); rule.holds) {
    PutCell(rule, element, tie.number);
    JoinAtCell(element, tie);
    return true;
  }
  if (tie.reference->IsZoneObject()) {
    m_Order.PutFirst(element, tie.number);
    return true;
  }
  if (m_Order.IsListed(tie.number)) {
    if (tie.adjustHeight) m_Heights.Join(element, tie.number);
    m_Order.PutBehindSiblings(element, tie.number);
    FollowListed(element, tie);
    return true;
  }
  ++m_Walk;
  m_Order.Append(element, tie.number);
  return WalkAlong(element, tie);
}

// Lists what the object leads to, each reference in front of the object before it. The object stands in the order
// already, and neither the rule of tables nor a zone stops at it.
bool ZoneOrderCalculation::WalkAlong(Number element, NumberedTie tie) {
  for (;;) {
    EntryOf(m_Walks, element) = m_Walk;
    if (tie.adjustHeight) m_Heights.Join(element, tie.number);
    const bool tiedToItself = tie.number == element;
    if (tiedToItself) return true;
    if (m_Order.IsListed(tie.number)) {
      const bool isCircle = EntryOf(m_Walks, tie.number) == m_Walk;
      if (!isCircle) {
        FollowListed(element, tie);
        return true;
      }
      if (tie.adjustHeight) m_Heights.EndWithJoining(element, tie.number);
      return !m_bEndAtCircle;
    }

    CPlaceable* object = tie.reference;
    const NumberedTie next = NumberedTieOf(*object);
    m_Order.PutInFrontOf(element, tie.number, next.number);
    m_Heights.GoOn(element, tie.number, tie.adjustHeight);
    element = tie.number;
    tie = next;

    if (tie.reference == nullptr) return true;
    if (TableRuleOf(m_rZone, object).holds) {
      JoinAtCell(element, tie);
      return true;
    }
    if (tie.reference->IsZoneObject()) return true;
  }
}

void ZoneOrderCalculation::FollowListed(Number element, const NumberedTie& tie) {
  m_Heights.GoOn(element, tie.number, tie.adjustHeight);
  m_Heights.FollowAgain(tie.number);
}

void ZoneOrderCalculation::PutCell(const TableRule& rule, Number element, Number reference) {
  if (rule.next != nullptr) {
    const Number next = m_Numbers.Of(rule.next);
    if (m_Order.IsListed(next)) {
      m_Order.PutInFrontOf(next, element, reference);
      return;
    }
  }
  m_Order.Append(element, reference);
}

void ZoneOrderCalculation::JoinAtCell(Number element, const NumberedTie& tie) {
  if (!tie.adjustHeight || tie.reference->IsZoneObject()) return;
  m_Heights.Join(element, tie.number);
  m_Heights.EndWithJoining(element, tie.number);
}

ZoneOrderCalculation::NumberedTie ZoneOrderCalculation::NumberedTieOf(const CPlaceable& object) {
  const Tie tie = TieOf(object);
  if (tie.reference == nullptr) return {};
  return {tie, m_Numbers.Of(tie.reference)};
}

}  // namespace zeb
