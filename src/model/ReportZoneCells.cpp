#include "model/FormulaValueHolder.h"
#include "model/ReportZone.h"
#include "model/TableCell.h"
#include "placement/OrderedElementList.h"

#include <algorithm>
#include <cstddef>

namespace {

/// Order of cells by table, row and column; a null entry stands behind all cells.
bool CellLess(const CTableCell* left, const CTableCell* right) {
  if (left == nullptr || right == nullptr) {
    return left != nullptr && right == nullptr;
  }
  return *left < *right;
}

bool SamePlace(const CTableCell& left, const CTableCell& right) {
  return left.GetTableID() == right.GetTableID() && left.GetRowIndex() == right.GetRowIndex() &&
         left.GetColIndex() == right.GetColIndex();
}

}  // namespace

void CReportZone::AddTableCell(CTableCell* cell) {
  m_rgpTableCells.push_back(cell);
  m_bTableCellsSorted = false;
}

int CReportZone::GetTableCellCount() const { return static_cast<int>(m_rgpTableCells.size()); }

CTableCell* CReportZone::GetTableCellAt(int index) {
  if (!m_bTableCellsSorted) {
    SortTableCells();
  }
  return m_rgpTableCells[static_cast<std::size_t>(index)];
}

// A stable sort of the reversed list is what inserting the cells one by one, each in front of its equals, gives.
// Fixed behaviour: equal cells turn round at every sort.
void CReportZone::SortTableCells() {
  std::reverse(m_rgpTableCells.begin(), m_rgpTableCells.end());
  std::stable_sort(m_rgpTableCells.begin(), m_rgpTableCells.end(), CellLess);
  m_bTableCellsSorted = true;
}

int CReportZone::GetTableCellIndex(CTableCell* cell) {
  if (!m_bTableCellsSorted) {
    SortTableCells();
  }
  const auto isSame = [cell](const CTableCell* other) {
    return other != nullptr && SamePlace(*other, *cell);
  };
  auto found = std::lower_bound(m_rgpTableCells.begin(), m_rgpTableCells.end(), cell, CellLess);
  if (found == m_rgpTableCells.end() || !isSame(*found)) {
    // Cells that were given other numbers since the sort may stand out of order.
    found = std::find_if(m_rgpTableCells.begin(), m_rgpTableCells.end(), isSame);
  }
  return found == m_rgpTableCells.end() ? -1 : static_cast<int>(found - m_rgpTableCells.begin());
}

int CReportZone::FindTableCellPos(const CTableCell* cell) {
  for (int i = GetOrderedElementCount() - 1; i >= 0; --i) {
    const auto* other = dynamic_cast<const CTableCell*>(GetOrderedElementAt(i));
    if (other != nullptr && other->GetTableID() == cell->GetTableID() &&
        (other->GetRowIndex() < cell->GetRowIndex() || other->GetColIndex() < cell->GetColIndex())) {
      return i;
    }
  }
  return -1;
}

void CReportZone::FillValueHoldersInTableCells() {
  m_rgpValueHoldersInTableCells.clear();
  m_rgpFormulaValueHoldersInTableCells.clear();
  for (int i = 0; i < GetTableCellCount(); ++i) {
    const CTableCell* cell = GetTableCellAt(i);
    if (cell == nullptr) {
      continue;
    }
    for (int j = 0; j < cell->GetCellElementCount(); ++j) {
      CPlaceable* element = cell->GetCellElementAt(j);
      if (auto* formula = dynamic_cast<CFormulaValueHolder*>(element)) {
        m_rgpFormulaValueHoldersInTableCells.push_back(formula);
      } else if (auto* valueHolder = dynamic_cast<CValueHolder*>(element)) {
        m_rgpValueHoldersInTableCells.push_back(valueHolder);
      }
    }
  }
}
