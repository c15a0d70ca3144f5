#include "placement/OrderedElementList.h"

#include <utility>

namespace zeb {

int OrderedElementList::Find(const CPlaceable* element) const {
  ExtendPointerIndex(m_Elements, m_Index);
  return FindPointer(m_Elements, m_Index, element);
}

void OrderedElementList::Clear() {
  m_Elements.clear();
  m_Index.clear();
}

void OrderedElementList::Append(CPlaceable* element) { m_Elements.push_back(element); }

void OrderedElementList::Insert(int index, CPlaceable* element) {
  m_Elements.insert(m_Elements.begin() + index, element);
  m_Index.clear();
}

void OrderedElementList::Assign(std::vector<CPlaceable*> elements) {
  m_Elements = std::move(elements);
  m_Index.clear();
}

}  // namespace zeb
