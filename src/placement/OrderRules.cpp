#include "placement/OrderRules.h"

#include "foundation/ErrorKeys.h"
#include "foundation/KXExceptionHandler.h"
#include "model/Placeable.h"
#include "placement/PlaceableRelation.h"

namespace zeb {

Tie TieOf(const CPlaceable& object) {
  const CPlaceableRelation* relation = object.GetPlaceableRelation();
  if (relation == nullptr || relation->GetRelationObject() == nullptr) return {};
  return {relation->GetRelationObject(), relation->GetAdjustHeight()};
}

bool PutTied(OrderedElementList& order, CPlaceable* element, CPlaceable* reference, PlaceBehind placeBehind) {
  const int index = order.Find(element);
  const int referenceIndex = order.Find(reference);
  if (index < 0 && referenceIndex < 0) {
    order.Append(reference);
    // An object that is tied to itself is listed once.
    if (element != reference) order.Append(element);
  } else if (referenceIndex < 0) {
    order.Insert(index, reference);
  } else if (index < 0) {
    order.Insert(placeBehind(order, referenceIndex), element);
  }
  return index < 0 || referenceIndex < 0 || index >= referenceIndex;
}

void ThrowNotSortable() {
  CKXExceptionHandler::GetInstance().ThrowException(ErrorKeys::OrderVectorNotSortable);
}

}  // namespace zeb
