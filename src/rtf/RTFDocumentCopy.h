#pragma once

#include "rtf/RTFProperties.h"

namespace zeb {

/// Copies all but the rows, which `to` keeps: a table may be long, and this is done at every run and every group.
inline void CopyWithoutRows(const CDocumentProperties& from, CDocumentProperties& to) {
  to.PaperWidth = from.PaperWidth;
  to.PaperHeight = from.PaperHeight;
  to.MarginLeft = from.MarginLeft;
  to.MarginTop = from.MarginTop;
  to.MarginRight = from.MarginRight;
  to.MarginBottom = from.MarginBottom;
  to.PageNumberStart = from.PageNumberStart;
  to.FacingPages = from.FacingPages;
  to.Landscape = from.Landscape;
  to.DefaultFont = from.DefaultFont;
  to.RtfVersion = from.RtfVersion;
  to.DefaultTab = from.DefaultTab;
  to.RowLeft = from.RowLeft;
  to.RowHeader = from.RowHeader;
  to.CurrentRow = from.CurrentRow;
  to.CurrentCell = from.CurrentCell;
  to.RowBorderSide = from.RowBorderSide;
  to.CellBorderSide = from.CellBorderSide;
  to.RowIndex = from.RowIndex;
  to.CellIndex = from.CellIndex;
  to.AnsiCodePage = from.AnsiCodePage;
}

}  // namespace zeb
