#pragma once

#include "ZEBReportDocument.h"

#include <cstddef>
#include <optional>
#include <string>

namespace zebreport {

/// Where in a table a run of text stands.
struct TablePlace {
  const CRTFTableRow* row = nullptr;  ///< null if none is described
  int column = -1;
  int width = 0;                        ///< of the cell in twips, 0 if it is not known
  const CRTFTableCell* cell = nullptr;  ///< as it is described, null if it is not
};

/// The edges of a row's cells.
struct TableEdges {
  /// Whether both rows have their edges at the same places.
  bool operator==(const TableEdges& other) const;
  /// From the first edge to the last one in twips, 0 if it is not known.
  int Width() const;

  const CRTFTableRow* row = nullptr;
  std::size_t count = 0;  ///< cells of the row
  int left = 0;
};

/// What a run of text means for the tables and paragraphs of a document.
struct TableStep {
  bool ignored = false;    ///< says that a table ends and nothing else
  bool endsTable = false;  ///< the table before it has ended
  bool startsTable = false;
  bool startsRow = false;  ///< of a table that has one already
  bool startsCell = false;
  bool newEdges = false;            ///< the row that starts has other edges than the one before
  int tableWidth = 0;               ///< of the row that starts in twips, 0 if it is not known
  bool startsParagraph = false;     ///< in a cell or outside of tables
  std::optional<TablePlace> place;  ///< nothing outside of tables
};

/// Finds out which runs of a document stand in which cell. A run says in its state which row and cell are filled.
/// - Where a row's description is filled more than once, its cells start again.
/// - Where each cell is a group of its own, their count does not go on: the cell that ends makes room for the next one
///   until the row is full.
/// - A reset of the paragraph inside of a row says that the table ends; the row goes on until it is full. So do the cells
///   behind it, although their runs are in no table.
class TableWalk {
 public:
  TableStep Next(const std::wstring& text, const CRTFContext& context);

 private:
  /// All but the beginnings of paragraphs.
  TableStep FindStep(const std::wstring& text, const CRTFContext& context);
  /// @param isReset whether a reset of the paragraph says so, and not the end of a group
  void NoteTableEnd(bool isReset);
  /// Whether a run that is in no table stands in a row for all that.
  bool RowGoesOn(const CDocumentProperties& props) const;
  void FindPlace(const CDocumentProperties& props, TableStep& step) const;
  /// Whether a place is in another row than the last one.
  bool StartsRow(const TablePlace& place) const;

  bool m_inTable = false;
  std::optional<TablePlace> m_last;  // of the last run in the table
  int m_counted = -1;                // the column that the state of that run said
  bool m_cellEnded = false;          // with that run
  TableEdges m_edges;                // of the row that started last
  bool m_paragraphEnded = true;      // with the last run
  bool m_rowBegun = false;           // its first cell began with a reset of the paragraph
};

}  // namespace zebreport
