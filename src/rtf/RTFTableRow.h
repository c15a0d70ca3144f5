#pragma once

#include "platform/Export.h"

#include <vector>

// Rows and cells of a table as a document describes them. They belong to the parser, until it is destroyed.
// Lengths are twips.

/// A cell of a table's row. A new cell starts as a copy of the one before it.
class ZEB_EXPORT CRTFTableCell {
 public:
  int BorderTop = 0;
  int BorderBottom = 0;
  int BorderLeft = 0;
  int BorderRight = 0;
  /// Distance from the left margin.
  int RightEdge = 0;
  /// 0 top, 1 centre, 2 bottom.
  int VerticalAlign = 0;
};

/// A row of a table.
class ZEB_EXPORT CRTFTableRow {
 public:
  std::vector<CRTFTableCell*> Cells;  // observers, owned by the parser
  int BorderTop = 0;
  int BorderBottom = 0;
  int BorderLeft = 0;
  int BorderRight = 0;
};
