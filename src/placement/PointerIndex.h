#pragma once

#include <unordered_map>
#include <vector>

class CPlaceable;

namespace zeb {

/// Places of objects in a list that holds no object twice, by object. Covers the foremost entries of the list, as
/// many as it has entries itself; what stands behind them is searched one by one.
using PointerIndex = std::unordered_map<const CPlaceable*, int>;

/// The object's place in the list, -1 if it is not listed.
int FindPointer(const std::vector<CPlaceable*>& list, const PointerIndex& index, const CPlaceable* object);

/// Takes the whole list into the index, once the part that is searched one by one has grown long.
/// Short lists do without.
void ExtendPointerIndex(const std::vector<CPlaceable*>& list, PointerIndex& index);

}  // namespace zeb
