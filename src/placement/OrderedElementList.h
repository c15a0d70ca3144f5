#pragma once

#include "placement/PointerIndex.h"

#include <vector>

class CPlaceable;

namespace zeb {

/// The order of a zone or a page: objects, each listed once, none of them owned. What a zone or a page holds of
/// it is never null. Counting and looking at a place take constant time.
class OrderedElementList {
 public:
  int Size() const { return static_cast<int>(m_Elements.size()); }
  /// The object at the index, which is not checked.
  CPlaceable* At(int index) const { return m_Elements[static_cast<std::size_t>(index)]; }
  /// The object's index, -1 if it is not listed. While single objects are put in, it is searched one by one.
  int Find(const CPlaceable* element) const;
  const std::vector<CPlaceable*>& Elements() const { return m_Elements; }

  void Clear();
  void Append(CPlaceable* element);
  /// Inserts the object in front of the one at the index, from 0 to Size(). Takes time in proportion to the size.
  void Insert(int index, CPlaceable* element);
  /// Takes a whole order, in which no object stands twice. From now on objects are found in constant time.
  void Assign(std::vector<CPlaceable*> elements);

 private:
  std::vector<CPlaceable*> m_Elements;  // observer
  mutable PointerIndex m_Index;         // made by the first Find of an assigned order
  bool m_bAssigned = false;
};

}  // namespace zeb
