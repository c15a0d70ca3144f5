#include "rtf/RTFParser.h"
#include "rtf/RTFStore.h"

#include <memory>

// Rows and cells of tables: first their description, then their filling.

namespace {

enum BorderSide : int { sideTop = 1, sideBottom = 2, sideLeft = 3, sideRight = 4 };

/// Sets one border width of a row or a cell. A side that none was named for changes nothing.
template <typename Bordered>
void SetBorder(Bordered& bordered, int side, int width) {
  switch (side) {
    case sideTop:
      bordered.BorderTop = width;
      break;
    case sideBottom:
      bordered.BorderBottom = width;
      break;
    case sideLeft:
      bordered.BorderLeft = width;
      break;
    case sideRight:
      bordered.BorderRight = width;
      break;
    default:
      break;
  }
}

/// The cell of that index, null if the row is null or has none.
CRTFTableCell* CellAt(const CRTFTableRow* row, int index) {
  if (row == nullptr || index < 0 || static_cast<std::size_t>(index) >= row->Cells.size()) return nullptr;
  return row->Cells[static_cast<std::size_t>(index)];
}

}  // namespace

void CRTFParser::NewRow() {
  CRTFTableRow* const row = m_pStore->m_Rows.emplace_back(std::make_unique<CRTFTableRow>()).get();
  m_DocProps.RowIndex = static_cast<int>(m_DocProps.Rows.size());
  m_DocProps.Rows.push_back(row);
  m_DocProps.CurrentRow = row;
  m_DocProps.CellIndex = -1;
}

void CRTFParser::NewCell() {
  if (m_DocProps.CurrentRow == nullptr) NewRow();
  std::vector<CRTFTableCell*>& cells = m_DocProps.CurrentRow->Cells;
  auto cell =
      cells.empty() ? std::make_unique<CRTFTableCell>() : std::make_unique<CRTFTableCell>(*cells.back());
  m_DocProps.CurrentCell = m_pStore->m_Cells.emplace_back(std::move(cell)).get();
  cells.push_back(m_DocProps.CurrentCell);
}

void CRTFParser::FillCells() {
  m_ParProps.InTable = 1;
  if (m_DocProps.RowIndex == -1) {
    if (m_DocProps.Rows.empty()) NewRow();
    m_DocProps.CurrentRow = m_DocProps.Rows.front();
    m_DocProps.RowIndex = 0;
  }
  if (m_DocProps.CellIndex == -1) {
    m_DocProps.CurrentCell = CellAt(m_DocProps.CurrentRow, 0);
    if (m_DocProps.CurrentCell == nullptr) NewCell();
    m_DocProps.CellIndex = 0;
  }
  m_InRow = true;
}

void CRTFParser::EndCell() {
  ContextHasChanged(true, false, false);
  ++m_DocProps.CellIndex;
  m_DocProps.CurrentCell = CellAt(m_DocProps.CurrentRow, m_DocProps.CellIndex);
  if (m_DocProps.CurrentCell == nullptr) m_DocProps.CellIndex = -1;
}

void CRTFParser::EndRow() {
  m_DocProps.CellIndex = -1;
  m_DocProps.CurrentCell = nullptr;
  m_InRow = false;
}

void CRTFParser::AlignCell(int align) {
  if (!m_InRow && m_DocProps.CurrentCell == nullptr) NewCell();
  if (m_DocProps.CurrentCell != nullptr) m_DocProps.CurrentCell->VerticalAlign = align;
}

void CRTFParser::SetBorderWidth(int width) {
  if (m_DocProps.CurrentCell != nullptr) {
    SetBorder(*m_DocProps.CurrentCell, m_DocProps.CellBorderSide, width);
  } else if (m_DocProps.CurrentRow != nullptr) {
    SetBorder(*m_DocProps.CurrentRow, m_DocProps.RowBorderSide, width);
  }
}

void CRTFParser::DescribeRow(IPROP prop, int value) {
  switch (prop) {
    case ipropRowDefaults:
      NewRow();
      break;
    case ipropRowBorderTop:
    case ipropRowBorderBottom:
    case ipropRowBorderLeft:
    case ipropRowBorderRight:
      if (m_DocProps.CurrentRow == nullptr) NewRow();
      m_DocProps.RowBorderSide = prop - ipropRowBorderTop + sideTop;
      break;
    case ipropCellBorderTop:
    case ipropCellBorderBottom:
    case ipropCellBorderLeft:
    case ipropCellBorderRight:
      if (m_DocProps.CurrentCell == nullptr) NewCell();
      m_DocProps.CellBorderSide = prop - ipropCellBorderTop + sideTop;
      break;
    case ipropBorderWidth:
      SetBorderWidth(value);
      break;
    case ipropCellX:
      if (m_DocProps.CurrentCell == nullptr) NewCell();
      m_DocProps.CurrentCell->RightEdge = value;
      m_DocProps.CurrentCell = nullptr;
      break;
    case ipropInTable:
      FillCells();
      break;
    default:
      break;
  }
}

int CRTFParser::ParseTableProperty(IPROP prop, int value) {
  switch (prop) {
    case ipropCell:
      EndCell();
      break;
    case ipropRow:
      EndRow();
      break;
    case ipropCellAlignTop:
    case ipropCellAlignCenter:
    case ipropCellAlignBottom:
      AlignCell(prop - ipropCellAlignTop);
      break;
    default:
      // A row that is being filled is described already.
      if (!m_InRow) DescribeRow(prop, value);
      break;
  }
  return rtfOK;
}

void CRTFParser::FreeTableData() {
  for (CRTFTableRow* row : m_DocProps.Rows) row->Cells.clear();
  m_DocProps.Rows.clear();
  m_DocProps.CurrentRow = nullptr;
  m_DocProps.CurrentCell = nullptr;
  ++m_pStore->m_iFreedTables;
}
