#include "RtfTable.h"

#include <algorithm>

namespace zebreport {

namespace {

/// The row that is being filled, null if there is none.
const CRTFTableRow* RowOf(const CDocumentProperties& props) {
  const bool hasRow = props.RowIndex >= 0 && static_cast<std::size_t>(props.RowIndex) < props.Rows.size();
  return hasRow ? props.Rows[static_cast<std::size_t>(props.RowIndex)] : nullptr;
}

TablePlace PlaceAt(const CDocumentProperties& props, int column) {
  TablePlace place{RowOf(props), column};
  if (place.row == nullptr || column < 0) return place;
  const std::vector<CRTFTableCell*>& cells = place.row->Cells;
  const auto index = static_cast<std::size_t>(column);
  if (index >= cells.size()) return place;
  place.cell = cells[index];
  const int left = column == 0 ? props.RowLeft : cells[index - 1]->RightEdge;
  place.width = place.cell->RightEdge > left ? place.cell->RightEdge - left : 0;
  return place;
}

TableEdges EdgesOf(const CDocumentProperties& props) {
  const CRTFTableRow* const row = RowOf(props);
  return {row, row == nullptr ? 0 : row->Cells.size(), props.RowLeft};
}

/// Whether there is no cell behind that place.
bool IsRowFull(const TablePlace& place) {
  const std::size_t count = place.row == nullptr ? 0 : place.row->Cells.size();
  return place.column < 0 || static_cast<std::size_t>(place.column) + 1 >= count;
}

}  // namespace

bool TableEdges::operator==(const TableEdges& other) const {
  if (count != other.count || left != other.left) return false;
  // A row that is filled again need not be compared with itself. Cells may have been freed with their table.
  if (row == other.row || count == 0) return true;
  if (row->Cells.size() != count || other.row->Cells.size() != count) return false;
  return std::equal(
      row->Cells.begin(), row->Cells.end(), other.row->Cells.begin(),
      [](const CRTFTableCell* one, const CRTFTableCell* two) { return one->RightEdge == two->RightEdge; });
}

int TableEdges::Width() const {
  if (row == nullptr || row->Cells.empty()) return 0;
  return std::max(row->Cells.back()->RightEdge - left, 0);
}

TableStep TableWalk::Next(const std::wstring& text, const CRTFContext& context) {
  const bool paragraphEnded = m_paragraphEnded;
  TableStep step = FindStep(text, context);
  if (step.ignored) return step;
  if (step.startsTable || step.startsRow) {
    const TableEdges edges = EdgesOf(context.State->DocProps);
    step.newEdges = step.startsRow && edges != m_edges;
    step.tableWidth = edges.Width();
    m_edges = edges;
  }
  step.startsParagraph = paragraphEnded || step.startsCell || step.endsTable;
  m_paragraphEnded = context.ParagraphEnd != 0;
  return step;
}

TableStep TableWalk::FindStep(const std::wstring& text, const CRTFContext& context) {
  const CRTFState& state = *context.State;
  TableStep step;
  step.ignored = context.TableEnd != 0 && text.empty() && context.Picture == nullptr;
  if (step.ignored) {
    NoteTableEnd(state.ParProps.InTable != 0);
    return step;
  }
  if (state.ParProps.InTable == 0 && (state.DocProps.CellIndex < 0 || !RowGoesOn(state.DocProps))) {
    step.endsTable = m_inTable;
    *this = TableWalk();
    return step;
  }
  FindPlace(state.DocProps, step);
  m_inTable = true;
  m_last = step.place;
  m_counted = state.DocProps.CellIndex;
  m_cellEnded = context.ParagraphEnd != 0 && state.ParProps.InTable != 0;
  return step;
}

void TableWalk::NoteTableEnd(bool isReset) {
  if (!isReset) m_last.reset();
  m_rowBegun = isReset && !m_last.has_value();
}

bool TableWalk::RowGoesOn(const CDocumentProperties& props) const {
  if (!m_last.has_value()) return m_rowBegun;
  return RowOf(props) != m_last->row || !m_cellEnded || !IsRowFull(*m_last);
}

void TableWalk::FindPlace(const CDocumentProperties& props, TableStep& step) const {
  TablePlace place = PlaceAt(props, props.CellIndex);
  step.startsTable = !m_inTable;
  step.startsRow = m_inTable && (!m_last.has_value() || StartsRow(place));
  step.startsCell = true;
  if (m_last.has_value() && !step.startsRow) {
    const bool sameIndex = place.column == m_counted;
    if (sameIndex && !m_cellEnded) {
      step.startsCell = false;
      place = *m_last;
    } else if (sameIndex || place.column < 0) {
      place = PlaceAt(props, m_last->column + 1);
    }
  }
  step.place = place;
}

bool TableWalk::StartsRow(const TablePlace& place) const {
  if (place.row != m_last->row) return true;
  if (place.column >= 0 && place.column < m_counted) return true;
  return place.column == m_counted && m_cellEnded && IsRowFull(*m_last);
}

}  // namespace zebreport
