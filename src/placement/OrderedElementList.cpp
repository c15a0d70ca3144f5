#include "placement/OrderedElementList.h"

#include <utility>

namespace zeb {

int OrderedElementList::Find(const CPlaceable* element) const {
  if (m_bAssigned) ExtendPointerIndex(m_Elements, m_Index);
  return FindPointer(m_Elements, m_Index, element);
}

void OrderedElementList::Clear() { Assign({}); }

void OrderedElementList::Append(CPlaceable* element) { Insert(Size(), element); }

void OrderedElementList::Insert(int index, CPlaceable* element) {
  m_Elements.insert(m_Elements.begin() + index, element);
  m_Index.clear();
  m_bAssigned = false;
}

void OrderedElementList::Assign(std::vector<CPlaceable*> elements) {
  m_Elements = std::move(elements);
  m_Index.clear();
  m_bAssigned = true;
}

}  // namespace zeb
