#pragma once

#include "placement/OrderedElementList.h"

class CPlaceable;

namespace zeb {

/// What ordering sees of an object's relation. A relation whose object is null is none.
struct Tie {
  CPlaceable* reference = nullptr;  // observer
  bool adjustHeight = false;
};

Tie TieOf(const CPlaceable& object);

/// Gives the place of a new object whose reference is listed.
using PlaceBehind = int (*)(const OrderedElementList& order, int referenceIndex);

/// Puts an object and its reference into the order, as far as they are not listed, so that the object stands
/// behind its reference.
/// @return false if both are listed and the object stands in front of its reference
bool PutTied(OrderedElementList& order, CPlaceable* element, CPlaceable* reference, PlaceBehind placeBehind);

/// Raises "OrderVectorNotSortable".
void ThrowNotSortable();

}  // namespace zeb
