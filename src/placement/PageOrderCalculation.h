#pragma once

#include "placement/ObjectNumbers.h"
#include "placement/OrderRules.h"
#include "placement/TiedOrder.h"

#include <map>
#include <vector>

class CLayoutPage;
class CPredecessors;

namespace zeb {

using PredecessorMap = std::map<CPlaceable*, CPredecessors*>;

/// Records that the element is tied to the reference.
void AddPredecessor(PredecessorMap& predecessors, CPlaceable* reference, CPlaceable* element);

/// Calculates the order and the predecessors of a page: the result of CLayoutPage::AddRelationsToOrderVector for
/// each of the page's objects, in time nearly proportional to their number.
///
/// It is the same result for the reasons told at ZoneOrderCalculation; a predecessor that is recorded already is
/// not recorded again, so that looking at an object for a second time changes nothing at all.
class PageOrderCalculation {
 public:
  PageOrderCalculation(const CLayoutPage& page, PredecessorMap& predecessors)
      : m_rPage(page), m_rPredecessors(predecessors) {}

  /// Puts the first objects of the page in order.
  /// @return false if ties that run in a circle have ended the calculation
  bool Run(int contentCount);
  /// The order as far as it has come.
  std::vector<CPlaceable*> Elements() const { return m_Order.Elements(m_Numbers); }

 private:
  using Number = ObjectNumbers::Number;

  bool WalkFrom(CPlaceable* object);
  bool WalkAlong(CPlaceable* object, Number element, CPlaceable* reference);

  const CLayoutPage& m_rPage;
  PredecessorMap& m_rPredecessors;  // the page's
  ObjectNumbers m_Numbers;
  TiedOrder m_Order;
  std::vector<Number>
      m_Walks;  // for each object that a walk along references went on from: that walk, from 1
  Number m_Walk = 0;
};

}  // namespace zeb
