#pragma once

#include "placement/HeightGroupIndex.h"
#include "placement/ObjectNumbers.h"
#include "placement/OrderRules.h"
#include "placement/TiedHeights.h"
#include "placement/TiedOrder.h"

#include <vector>

class CReportZone;
class CTableCell;

namespace zeb {

/// The cell of a zone in front of which an object stands by the rule of tables.
struct TableRule {
  bool holds = false;
  CTableCell* next = nullptr;  // observer
};

/// The rule of tables holds for every cell but the first (row 0, column 0) and the zone's last one.
TableRule TableRuleOf(CReportZone& zone, CPlaceable* element);

/// Calculates the order and the height groups of a zone: the result of CReportZone::AddRelationsToOrderVector for
/// each of the zone's objects, in time nearly proportional to their number.
///
/// Why that is the same result. An object is put into the order when it is looked at, or as the reference of one
/// that is looked at, and is then looked at next. So between two walks everything that is listed has been looked
/// at, and so has all that it leads to. Therefore:
/// - An object that is listed before its walk moves nothing: nor does what it leads to. Looking at a pair again
///   whose order was right finds it right, because putting objects in never changes the order of those that are
///   there; a pair that cannot be sorted ended the walk before and ends it again at the same place.
/// - A walk that lists its first two objects puts them at the end of the order, and each further reference directly
///   in front of the object before it. So a reference that was listed before the walk stands in front of all of
///   them, which is right, and one that this very walk has listed stands behind: that is the circle.
/// Joining heights alone has an effect when a road is followed again; TiedHeights does that.
class ZoneOrderCalculation {
 public:
  ZoneOrderCalculation(CReportZone& zone, HeightGroupIndex::Groups& groups, HeightGroupIndex& index)
      : m_rZone(zone), m_Heights(groups, index, m_Numbers) {}

  /// Puts all objects of the zone in order.
  /// @param endAtCircle whether ties that run in a circle end the calculation
  /// @return false if such a circle has ended it
  bool Run(bool endAtCircle);
  /// The order as far as it has come.
  std::vector<CPlaceable*> Elements() const { return m_Order.Elements(m_Numbers); }

 private:
  using Number = ObjectNumbers::Number;

  /// A relation, with the number of its object; kNone without a relation.
  struct NumberedTie : Tie {
    Number number = ObjectNumbers::kNone;
  };

  bool WalkFrom(CPlaceable* object);
  bool WalkAlong(Number element, NumberedTie tie);
  void FollowListed(Number element, const NumberedTie& tie);
  void PutCell(const TableRule& rule, Number element, Number reference);
  void JoinAtCell(Number element, const NumberedTie& tie);
  NumberedTie NumberedTieOf(const CPlaceable& object);

  CReportZone& m_rZone;
  ObjectNumbers m_Numbers;
  TiedOrder m_Order;
  TiedHeights m_Heights;
  std::vector<Number>
      m_Walks;  // for each object that a walk along references went on from: that walk, from 1
  Number m_Walk = 0;
  bool m_bEndAtCircle = false;
};

}  // namespace zeb
