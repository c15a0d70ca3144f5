#include "NaiveOrder.h"

#include "model/TableCell.h"
#include "placement/PlaceableRelation.h"

#include <algorithm>

namespace {

int IndexIn(const std::vector<CPlaceable*>& list, const CPlaceable* object) {
  const auto found = std::find(list.begin(), list.end(), object);
  return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

void InsertAt(std::vector<CPlaceable*>& list, int index, CPlaceable* object) {
  list.insert(list.begin() + index, object);
}

bool HasRelation(const CPlaceable* object) {
  return object->GetPlaceableRelation() != nullptr &&
         object->GetPlaceableRelation()->GetRelationObject() != nullptr;
}

bool SamePlace(const CTableCell& left, const CTableCell& right) {
  return left.GetTableID() == right.GetTableID() && left.GetRowIndex() == right.GetRowIndex() &&
         left.GetColIndex() == right.GetColIndex();
}

}  // namespace

NaiveZoneOrder::NaiveZoneOrder(const std::vector<CTableCell*>& cells) {
  for (CTableCell* cell : cells) {
    std::size_t place = 0;
    while (place < m_Cells.size() && *m_Cells[place] < *cell) ++place;
    m_Cells.insert(m_Cells.begin() + static_cast<std::ptrdiff_t>(place), cell);
  }
}

bool NaiveZoneOrder::AddAll(const std::vector<CPlaceable*>& elements, bool throwIfNotSortable) {
  for (CPlaceable* element : elements) {
    if (!AddRelations(element, throwIfNotSortable)) return false;
  }
  for (CTableCell* cell : m_Cells) {
    if (!AddRelations(cell, throwIfNotSortable)) return false;
    for (int i = 0; i < cell->GetCellElementCount(); ++i) {
      if (!AddRelations(cell->GetCellElementAt(i), throwIfNotSortable)) return false;
    }
  }
  return true;
}

bool NaiveZoneOrder::AddRelations(CPlaceable* element, bool throwIfNotSortable) {
  if (element == nullptr) return true;
  const int idx = IndexIn(order, element);
  if (!HasRelation(element)) {
    if (idx == -1) order.push_back(element);
    return true;
  }
  CPlaceable* ref = element->GetPlaceableRelation()->GetRelationObject();
  const bool adjustHeight = element->GetPlaceableRelation()->GetAdjustHeight();

  const auto* cell = dynamic_cast<CTableCell*>(element);
  if (cell != nullptr && !(cell->GetRowIndex() < 1 && cell->GetColIndex() < 1)) {
    int cellIndex = -1;
    for (std::size_t i = 0; i < m_Cells.size() && cellIndex == -1; ++i) {
      if (SamePlace(*m_Cells[i], *cell)) cellIndex = static_cast<int>(i);
    }
    if (cellIndex >= 0 && cellIndex + 1 < static_cast<int>(m_Cells.size())) {
      const int nextIdx = IndexIn(order, m_Cells[static_cast<std::size_t>(cellIndex) + 1]);
      if (nextIdx < 0) {
        if (idx == -1) order.push_back(element);
      } else if (idx == -1) {
        InsertAt(order, nextIdx, element);
      }
      if (!ref->IsZoneObject() && adjustHeight) AddHeightElements(element, ref);
      return true;
    }
  }

  if (ref->IsZoneObject()) {
    if (idx == -1) InsertAt(order, 0, element);
    return true;
  }
  if (adjustHeight) AddHeightElements(element, ref);
  if (ref == element) {
    if (idx == -1) order.push_back(element);
    return true;
  }

  const int refIdx = IndexIn(order, ref);
  if (idx == -1 && refIdx == -1) {
    order.push_back(ref);
    order.push_back(element);
  } else if (refIdx == -1) {
    InsertAt(order, idx, ref);
  } else if (idx == -1) {
    std::size_t pos = static_cast<std::size_t>(refIdx) + 1;
    while (pos < order.size()) {
      if (!HasRelation(order[pos])) break;
      const bool stop = order[pos]->GetPlaceableRelation()->GetRelationObject() != ref;
      ++pos;
      if (stop) break;
    }
    InsertAt(order, static_cast<int>(pos), element);
  } else if (idx < refIdx) {
    return !throwIfNotSortable;
  }
  return AddRelations(ref, throwIfNotSortable);
}

void NaiveZoneOrder::AddHeightElements(CPlaceable* element, CPlaceable* reference) {
  for (std::vector<CPlaceable*>& group : groups) {
    const bool hasElement = IndexIn(group, element) >= 0;
    const bool hasReference = IndexIn(group, reference) >= 0;
    if (hasElement && !hasReference) group.push_back(reference);
    if (hasReference && !hasElement) group.push_back(element);
    if (hasElement || hasReference) return;
  }
  groups.push_back({element});
  if (reference != element) groups.back().push_back(reference);
}

bool NaivePageOrder::AddAll(const std::vector<CPlaceable*>& elements) {
  return std::all_of(elements.begin(), elements.end(),
                     [this](CPlaceable* element) { return AddRelations(element); });
}

bool NaivePageOrder::AddRelations(CPlaceable* element) {
  if (element == nullptr) return true;
  const int idx = IndexIn(order, element);
  if (!HasRelation(element)) {
    if (idx == -1) order.push_back(element);
    return true;
  }
  CPlaceable* ref = element->GetPlaceableRelation()->GetRelationObject();
  if (ref == m_pPaperObject) {
    if (idx == -1) InsertAt(order, 0, element);
    return true;
  }
  if (IndexIn(predecessors[ref], element) == -1) predecessors[ref].push_back(element);
  if (ref == element) {
    if (idx == -1) order.push_back(element);
    return true;
  }

  const int refIdx = IndexIn(order, ref);
  if (idx == -1 && refIdx == -1) {
    order.push_back(ref);
    order.push_back(element);
  } else if (refIdx == -1) {
    InsertAt(order, idx, ref);
  } else if (idx == -1) {
    InsertAt(order, refIdx + 1, element);
  } else if (idx < refIdx) {
    return false;
  }
  return AddRelations(ref);
}
