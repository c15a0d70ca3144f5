#include "ZEBReportDocument.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <type_traits>

namespace {

TEST(RTFPropertiesTest, CharactersStartWithTwelvePointsAndNothingElse) {
  const CCharacterProperties props;
  EXPECT_EQ(props.Bold, 0);
  EXPECT_EQ(props.Underline, 0);
  EXPECT_EQ(props.Italic, 0);
  EXPECT_EQ(props.Superscript, 0);
  EXPECT_EQ(props.Subscript, 0);
  EXPECT_EQ(props.FontSize, 24);
  EXPECT_EQ(props.CellFontId, 0);
  EXPECT_EQ(props.UnicodeSkip, 0);
  EXPECT_EQ(props.JpegBlip, 0);
  EXPECT_EQ(props.EmfBlip, 0);
  EXPECT_EQ(props.PngBlip, 0);
  EXPECT_EQ(props.CharShading, 0);
  EXPECT_EQ(props.CharForeColor, 0);
  EXPECT_EQ(props.CharBackColor, 0);
  EXPECT_EQ(props.PicWidth, 0);
  EXPECT_EQ(props.PicHeight, 0);
  EXPECT_EQ(props.PicWidthGoal, 0);
  EXPECT_EQ(props.PicHeightGoal, 0);
  EXPECT_EQ(props.PicScaleX, 0);
  EXPECT_EQ(props.PicScaleY, 0);
  EXPECT_EQ(props.PnText, 0);
}

TEST(RTFPropertiesTest, ParagraphsStartEmpty) {
  const CParagraphProperties props;
  EXPECT_EQ(props.LeftIndent, 0);
  EXPECT_EQ(props.RightIndent, 0);
  EXPECT_EQ(props.FirstIndent, 0);
  EXPECT_EQ(props.Justification, 0);
  EXPECT_EQ(props.TabCount, 0);
  EXPECT_EQ(props.TabKind, 0);
  EXPECT_EQ(props.InTable, 0);
  EXPECT_EQ(props.Shading, 0);
  EXPECT_EQ(props.ForeColor, 0);
  EXPECT_EQ(props.BackColor, 0);
  EXPECT_EQ(props.PnBullet, 0);
  EXPECT_EQ(props.PnDecimal, 0);
  EXPECT_EQ(props.Tabs.size(), 100);
  EXPECT_EQ(std::distance(props.Tabs.begin(), props.Tabs.end()), 100);
  for (const CRTFTabStop& stop : props.Tabs) {
    EXPECT_EQ(stop.Position, 0);
    EXPECT_EQ(stop.Kind, 0);
  }
}

TEST(RTFPropertiesTest, SectionsAndFontsStartWithZero) {
  const CSectionProperties section;
  EXPECT_EQ(section.Columns, 0);
  EXPECT_EQ(section.SectionBreak, 0);
  EXPECT_EQ(section.PageNumberX, 0);
  EXPECT_EQ(section.PageNumberY, 0);
  EXPECT_EQ(section.PageNumberFormat, 0);
  const CFontProperties font;
  EXPECT_EQ(font.FontId, 0);
  EXPECT_EQ(font.CharSet, 0);
  EXPECT_EQ(font.ForeColorIndex, 0);
  EXPECT_EQ(font.BackColorIndex, 0);
}

TEST(RTFPropertiesTest, DocumentsStartWithoutFontAndTable) {
  const CDocumentProperties props;
  EXPECT_EQ(props.PaperWidth, 0);
  EXPECT_EQ(props.PaperHeight, 0);
  EXPECT_EQ(props.MarginLeft, 0);
  EXPECT_EQ(props.MarginTop, 0);
  EXPECT_EQ(props.MarginRight, 0);
  EXPECT_EQ(props.MarginBottom, 0);
  EXPECT_EQ(props.PageNumberStart, 0);
  EXPECT_EQ(props.FacingPages, 0);
  EXPECT_EQ(props.Landscape, 0);
  EXPECT_EQ(props.DefaultFont, -1);
  EXPECT_EQ(props.RtfVersion, 0);
  EXPECT_EQ(props.DefaultTab, 720);
  EXPECT_EQ(props.RowLeft, 0);
  EXPECT_EQ(props.RowHeader, 0);
  EXPECT_TRUE(props.Rows.empty());
  EXPECT_EQ(props.CurrentRow, nullptr);
  EXPECT_EQ(props.CurrentCell, nullptr);
  EXPECT_EQ(props.RowBorderSide, 0);
  EXPECT_EQ(props.CellBorderSide, 0);
  EXPECT_EQ(props.RowIndex, -1);
  EXPECT_EQ(props.CellIndex, -1);
  EXPECT_EQ(props.AnsiCodePage, 0);
}

TEST(RTFPropertiesTest, RowsAndCellsStartWithoutBorders) {
  const CRTFTableCell cell;
  EXPECT_EQ(cell.BorderTop, 0);
  EXPECT_EQ(cell.BorderBottom, 0);
  EXPECT_EQ(cell.BorderLeft, 0);
  EXPECT_EQ(cell.BorderRight, 0);
  EXPECT_EQ(cell.RightEdge, 0);
  EXPECT_EQ(cell.VerticalAlign, 0);
  const CRTFTableRow row;
  EXPECT_TRUE(row.Cells.empty());
  EXPECT_EQ(row.BorderTop, 0);
  EXPECT_EQ(row.BorderBottom, 0);
  EXPECT_EQ(row.BorderLeft, 0);
  EXPECT_EQ(row.BorderRight, 0);
}

TEST(RTFPropertiesTest, ColoursOfShadesAreSigned) {
  static_assert(std::is_same_v<decltype(CCharacterProperties::CharShading), signed char>);
  static_assert(std::is_same_v<decltype(CCharacterProperties::CharForeColor), signed char>);
  static_assert(std::is_same_v<decltype(CCharacterProperties::CharBackColor), signed char>);
  static_assert(std::is_same_v<decltype(CParagraphProperties::Shading), signed char>);
  static_assert(std::is_same_v<decltype(CParagraphProperties::ForeColor), signed char>);
  static_assert(std::is_same_v<decltype(CParagraphProperties::BackColor), signed char>);
  static_assert(std::is_same_v<decltype(CCharacterProperties::Bold), unsigned char>);
  static_assert(std::is_same_v<decltype(CParagraphProperties::Justification), unsigned char>);
}

TEST(RTFPropertiesTest, CopyOfTabStopsIsItsOwn) {
  CParagraphProperties source;
  source.Tabs[0].Position = 720;
  source.Tabs[99].Kind = 3;
  CParagraphProperties copy = source;
  copy.Tabs[0].Position = 1440;
  EXPECT_EQ(source.Tabs[0].Position, 720);
  EXPECT_EQ(copy.Tabs[0].Position, 1440);
  EXPECT_EQ(copy.Tabs[99].Kind, 3);

  source.Tabs[1].Position = 5;
  const CParagraphProperties& shown = copy;
  EXPECT_EQ(shown.Tabs[1].Position, 0);
}

TEST(RTFPropertiesTest, WritingToOneEmptyParagraphLeavesOthersEmpty) {
  const CParagraphProperties other;
  CParagraphProperties props;
  props.Tabs[5].Position = 1;
  EXPECT_EQ(other.Tabs[5].Position, 0);
  EXPECT_EQ(props.Tabs[5].Position, 1);
}

TEST(RTFPropertiesTest, ContextStartsEmpty) {
  const CRTFContext context;
  EXPECT_EQ(context.State, nullptr);
  EXPECT_EQ(context.Font, nullptr);
  EXPECT_EQ(context.Reserved, nullptr);
  EXPECT_EQ(context.ForeColor, nullptr);
  EXPECT_EQ(context.BackColor, nullptr);
  EXPECT_EQ(context.ParagraphEnd, 0);
  EXPECT_EQ(context.LineBreak, 0);
  EXPECT_EQ(context.TableEnd, 0);
  EXPECT_EQ(context.Picture, nullptr);
  EXPECT_EQ(context.List, nullptr);
  EXPECT_EQ(context.Level, nullptr);
}

TEST(RTFPropertiesTest, FieldsOfRecordsStandInTheirOrder) {
  static_assert(offsetof(CRTFContext, State) == 0);
  static_assert(offsetof(CRTFContext, State) < offsetof(CRTFContext, Font));
  static_assert(offsetof(CRTFContext, Font) < offsetof(CRTFContext, Reserved));
  static_assert(offsetof(CRTFContext, Reserved) < offsetof(CRTFContext, ForeColor));
  static_assert(offsetof(CRTFContext, ForeColor) < offsetof(CRTFContext, BackColor));
  static_assert(offsetof(CRTFContext, BackColor) < offsetof(CRTFContext, ParagraphEnd));
  static_assert(offsetof(CRTFContext, ParagraphEnd) < offsetof(CRTFContext, LineBreak));
  static_assert(offsetof(CRTFContext, LineBreak) < offsetof(CRTFContext, TableEnd));
  static_assert(offsetof(CRTFContext, TableEnd) < offsetof(CRTFContext, Picture));
  static_assert(offsetof(CRTFContext, Picture) < offsetof(CRTFContext, List));
  static_assert(offsetof(CRTFContext, List) < offsetof(CRTFContext, Level));

  static_assert(offsetof(CRTFTableRow, Cells) == 0);
  static_assert(offsetof(CRTFTableRow, Cells) < offsetof(CRTFTableRow, BorderTop));
  static_assert(offsetof(CRTFTableRow, BorderTop) < offsetof(CRTFTableRow, BorderBottom));
  static_assert(offsetof(CRTFTableRow, BorderBottom) < offsetof(CRTFTableRow, BorderLeft));
  static_assert(offsetof(CRTFTableRow, BorderLeft) < offsetof(CRTFTableRow, BorderRight));

  static_assert(offsetof(CRTFTableCell, BorderTop) == 0);
  static_assert(offsetof(CRTFTableCell, BorderTop) < offsetof(CRTFTableCell, BorderBottom));
  static_assert(offsetof(CRTFTableCell, BorderBottom) < offsetof(CRTFTableCell, BorderLeft));
  static_assert(offsetof(CRTFTableCell, BorderLeft) < offsetof(CRTFTableCell, BorderRight));
  static_assert(offsetof(CRTFTableCell, BorderRight) < offsetof(CRTFTableCell, RightEdge));
  static_assert(offsetof(CRTFTableCell, RightEdge) < offsetof(CRTFTableCell, VerticalAlign));
}

class SilentHandler final : public CContextChangedHandler {
 public:
  void OnContextChanged(const wchar_t* /*text*/, CRTFContext* /*context*/) override {}
};

TEST(RTFPropertiesTest, HandlerNeedNotTakeBookmarks) {
  SilentHandler handler;
  SilentHandler copy(handler);
  copy = handler;
  copy.OnBookmark(L"x", true);
}

}  // namespace
