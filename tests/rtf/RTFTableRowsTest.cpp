#include "ZEBReportDocument.h"

#include "rtf/ParserProbe.h"
#include "rtf/RecordingHandler.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

using zebtest::RTFReading;

const CDocumentProperties& Doc(const RTFReading& reading, std::size_t run) {
  return reading.Runs().at(run).m_State.DocProps;
}

const CCharacterProperties& Chars(const RTFReading& reading, std::size_t run) {
  return reading.Runs().at(run).m_State.CharProps;
}

/// The number of cells of each row at a run.
std::vector<std::size_t> CellCounts(const CDocumentProperties& props) {
  std::vector<std::size_t> counts;
  for (const CRTFTableRow* row : props.Rows) counts.push_back(row->Cells.size());
  return counts;
}

using Counts = std::vector<std::size_t>;

class RTFTableRowsTest : public ::testing::Test {
 protected:
  static constexpr const char* kTwoCells = R"(\trowd\cellx100\cellx250\intbl )";
};

// Rows and cells.

TEST_F(RTFTableRowsTest, CellIsOneRun) {
  const RTFReading reading(R"({\trowd\cellx9\intbl a\b b\i c\b0 d\f1 e\cell\row})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Outline(), L"[abcde]P[]T");
}

TEST_F(RTFTableRowsTest, GroupsInACellCloseNoRun) {
  const RTFReading reading(R"({\trowd\cellx9\intbl{a}{\b b}\cell\row})");
  EXPECT_EQ(reading.Outline(), L"[ab]P");
}

TEST_F(RTFTableRowsTest, SuperscriptEndInACellClosesNoRun) {
  const RTFReading reading(R"({\trowd\cellx9\intbl\super a\nosupersub b\cell\row})");
  EXPECT_EQ(reading.Outline(), L"[ab]P[]T");
}

TEST_F(RTFTableRowsTest, LineInACellClosesRun) {
  const RTFReading reading(R"({\trowd\cellx9\intbl a\line b\cell\row})");
  EXPECT_EQ(reading.Outline(), L"[a]L[b]P[]T");
}

TEST_F(RTFTableRowsTest, ParagraphInACellIsALineFeed) {
  const RTFReading reading(R"({\trowd\cellx9\intbl a\par b\cell\row})");
  EXPECT_EQ(reading.Outline(), L"[a\nb]P[]T");
}

TEST_F(RTFTableRowsTest, ParagraphBehindTheRowLeavesTheTable) {
  const RTFReading reading(R"({\trowd\cellx9\intbl a\cell\row\par b\par})");
  EXPECT_EQ(reading.Outline(), L"[a]P[\nb]P");
  EXPECT_EQ(reading.Runs()[1].m_State.ParProps.InTable, 0);
}

TEST_F(RTFTableRowsTest, ParagraphResetEndsTheTable) {
  const RTFReading reading(R"({\trowd\cellx9\intbl a\cell\row\pard b\par})");
  ASSERT_EQ(reading.Outline(), L"[a]P[]T[b]P");
  EXPECT_EQ(reading.Runs()[1].m_State.ParProps.InTable, 1);
  EXPECT_EQ(reading.Runs()[2].m_State.ParProps.InTable, 0);
}

TEST_F(RTFTableRowsTest, ParagraphResetTakesTheTextOfTheCellAlong) {
  const RTFReading reading(R"({\trowd\cellx9\intbl a\pard b})");
  EXPECT_EQ(reading.Outline(), L"[a]T[b]");
}

TEST_F(RTFTableRowsTest, PositionsCountUp) {
  const RTFReading reading(std::string("{") + kTwoCells +
                           R"(a\cell b\cell\row\trowd\cellx70\intbl c\cell\row})");
  ASSERT_EQ(reading.Outline(), L"[a]P[b]P[c]P[]T");
  EXPECT_EQ(Doc(reading, 0).RowIndex, 0);
  EXPECT_EQ(Doc(reading, 0).CellIndex, 0);
  EXPECT_EQ(Doc(reading, 1).RowIndex, 0);
  EXPECT_EQ(Doc(reading, 1).CellIndex, 1);
  EXPECT_EQ(Doc(reading, 2).RowIndex, 1);
  EXPECT_EQ(Doc(reading, 2).CellIndex, 0);
}

/// Looks at rows and cells while the table is there.
class LookingHandler final : public CContextChangedHandler {
 public:
  void OnContextChanged(const wchar_t* text, CRTFContext* context) override {
    const CDocumentProperties& props = context->State->DocProps;
    m_Counts.push_back(CellCounts(props));
    m_Rows.emplace_back();
    for (const CRTFTableRow* row : props.Rows) {
      m_Rows.back().push_back(*row);
      for (const CRTFTableCell* cell : row->Cells) m_Cells[m_Texts.size()].push_back(*cell);
    }
    m_CurrentCell.push_back(props.CurrentCell);
    m_CurrentRow.push_back(props.CurrentRow);
    m_Texts.emplace_back(text);
  }

  std::vector<std::wstring> m_Texts;
  std::vector<Counts> m_Counts;
  std::vector<std::vector<CRTFTableRow>> m_Rows;
  std::map<std::size_t, std::vector<CRTFTableCell>> m_Cells;  // of all rows, by run
  std::vector<const CRTFTableCell*> m_CurrentCell;
  std::vector<const CRTFTableRow*> m_CurrentRow;
};

/// Reads with a LookingHandler.
class Look {
 public:
  explicit Look(std::string data)
      : m_Data(std::move(data)),
        m_Parser(reinterpret_cast<unsigned char*>(m_Data.data()), static_cast<int>(m_Data.size()), &m_Handler,
                 nullptr) {
    EXPECT_EQ(m_Parser.RtfParse(), 0);
  }

  const LookingHandler& Seen() const { return m_Handler; }
  const CRTFTableCell& Cell(std::size_t run, std::size_t index) const {
    return m_Handler.m_Cells.at(run).at(index);
  }

 private:
  std::string m_Data;
  LookingHandler m_Handler;
  CRTFParser m_Parser;
};

TEST_F(RTFTableRowsTest, DescriptionMakesRowsAndCells) {
  const Look look(R"({\trowd\cellx100\cellx250\intbl a\cell b\cell\row\trowd\cellx70\intbl c\cell\row})");
  EXPECT_EQ(look.Seen().m_Counts[0], Counts{2});
  EXPECT_EQ(look.Cell(0, 0).RightEdge, 100);
  EXPECT_EQ(look.Cell(0, 1).RightEdge, 250);
  EXPECT_EQ(look.Seen().m_Counts[2], (Counts{2, 1}));
  EXPECT_EQ(look.Cell(2, 2).RightEdge, 70);
}

TEST_F(RTFTableRowsTest, NewCellStartsAsACopyOfTheLastOne) {
  const Look look(
      R"({\trowd\clbrdrt\brdrw1\clbrdrb\brdrw2\clbrdrl\brdrw3\clbrdrr\brdrw4\clvertalc\cellx100\clvertalb\cellx200)"
      R"(\intbl a\cell})");
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(look.Cell(0, i).BorderTop, 1);
    EXPECT_EQ(look.Cell(0, i).BorderBottom, 2);
    EXPECT_EQ(look.Cell(0, i).BorderLeft, 3);
    EXPECT_EQ(look.Cell(0, i).BorderRight, 4);
  }
  EXPECT_EQ(look.Cell(0, 0).VerticalAlign, 1);
  EXPECT_EQ(look.Cell(0, 0).RightEdge, 100);
  EXPECT_EQ(look.Cell(0, 1).VerticalAlign, 2);
  EXPECT_EQ(look.Cell(0, 1).RightEdge, 200);
}

TEST_F(RTFTableRowsTest, NewCellCarriesTheEdgeOver) {
  // The second cell is described by a border alone.
  const Look look(R"({\trowd\cellx100\clbrdrt\intbl a\cell})");
  EXPECT_EQ(look.Seen().m_Counts[0], Counts{2});
  EXPECT_EQ(look.Cell(0, 1).RightEdge, 100);
}

TEST_F(RTFTableRowsTest, RowBordersGoToTheRow) {
  const Look look(
      R"({\trowd\trbrdrt\brdrw1\trbrdrb\brdrw2\trbrdrl\brdrw3\trbrdrr\brdrw4\cellx9\intbl a\cell})");
  const CRTFTableRow& row = look.Seen().m_Rows[0].at(0);
  EXPECT_EQ(row.BorderTop, 1);
  EXPECT_EQ(row.BorderBottom, 2);
  EXPECT_EQ(row.BorderLeft, 3);
  EXPECT_EQ(row.BorderRight, 4);
  EXPECT_EQ(look.Cell(0, 0).BorderTop, 0);
}

TEST_F(RTFTableRowsTest, RowBorderKeywordsMakeARow) {
  const Look look(R"({\trbrdrt\brdrw7\cellx9\intbl a\cell})");
  EXPECT_EQ(look.Seen().m_Counts[0], Counts{1});
  EXPECT_EQ(look.Seen().m_Rows[0].at(0).BorderTop, 7);
}

TEST_F(RTFTableRowsTest, CellKeywordsMakeARow) {
  for (const char* keyword : {"cellx5", "clbrdrt", "clbrdrb", "clbrdrl", "clbrdrr", "clvertalt"}) {
    const Look look(std::string("{\\") + keyword + R"(\intbl a\cell})");
    EXPECT_EQ(look.Seen().m_Counts[0], Counts{1}) << keyword;
  }
}

TEST_F(RTFTableRowsTest, BorderWidthWithoutASideOrARowDoesNothing) {
  const Look look(R"({\brdrw7\trowd\brdrw8\clvertalt\brdrw9\cellx1\intbl a\cell})");
  const CRTFTableRow& row = look.Seen().m_Rows[0].at(0);
  EXPECT_EQ(row.BorderTop + row.BorderBottom + row.BorderLeft + row.BorderRight, 0);
  const CRTFTableCell& cell = look.Cell(0, 0);
  EXPECT_EQ(cell.BorderTop + cell.BorderBottom + cell.BorderLeft + cell.BorderRight, 0);
}

TEST_F(RTFTableRowsTest, FixedBorderWidthGoesToTheCellWhileThereIsOne) {
  const Look look(R"({\trowd\clbrdrt\brdrw5\trbrdrl\brdrw6\cellx9\brdrw7\intbl a\cell})");
  EXPECT_EQ(look.Cell(0, 0).BorderTop, 6);
  EXPECT_EQ(look.Cell(0, 0).BorderLeft, 0);
  const CRTFTableRow& row = look.Seen().m_Rows[0].at(0);
  EXPECT_EQ(row.BorderTop, 0);
  EXPECT_EQ(row.BorderLeft, 7);
}

TEST_F(RTFTableRowsTest, IgnoredBorderKeywordsAreNoFailure) {
  const Look look(R"({\trowd\trbrdrh\brdrw7\trbrdrv\brdrs\brdrw8\cellx1\intbl a\cell})");
  const CRTFTableRow& row = look.Seen().m_Rows[0].at(0);
  EXPECT_EQ(row.BorderTop + row.BorderBottom + row.BorderLeft + row.BorderRight, 0);
}

TEST_F(RTFTableRowsTest, AlignmentOfACellBeingFilledChanges) {
  const Look look(R"({\trowd\cellx1\cellx2\intbl\clvertalb a\cell\clvertalc b\cell})");
  EXPECT_EQ(look.Cell(0, 0).VerticalAlign, 2);
  EXPECT_EQ(look.Cell(0, 1).VerticalAlign, 0);
  EXPECT_EQ(look.Cell(1, 1).VerticalAlign, 1);
}

TEST_F(RTFTableRowsTest, DescriptionOfARowBeingFilledIsPassedOver) {
  const Look look(R"({\trowd\cellx1\intbl a\trowd\cellx2\trbrdrt\brdrw5\clbrdrt\brdrw6\intbl\cell\row})");
  EXPECT_EQ(look.Seen().m_Texts[0], L"a");
  EXPECT_EQ(look.Seen().m_Counts[0], Counts{1});
  EXPECT_EQ(look.Cell(0, 0).RightEdge, 1);
  EXPECT_EQ(look.Cell(0, 0).BorderTop, 0);
  EXPECT_EQ(look.Seen().m_Rows[0].at(0).BorderTop, 0);
}

TEST_F(RTFTableRowsTest, FillingWithoutDescriptionMakesARowAndACell) {
  const Look look(R"({\intbl a\cell})");
  EXPECT_EQ(look.Seen().m_Counts[0], Counts{1});
  EXPECT_EQ(look.Seen().m_CurrentRow[0] == nullptr, false);
  EXPECT_EQ(look.Seen().m_CurrentCell[0] == nullptr, false);
}

TEST_F(RTFTableRowsTest, FillingWithoutDescriptionStartsAtTheFirstPlace) {
  const RTFReading reading(R"({\intbl a\cell})");
  EXPECT_EQ(Doc(reading, 0).RowIndex, 0);
  EXPECT_EQ(Doc(reading, 0).CellIndex, 0);
}

TEST_F(RTFTableRowsTest, RowDescribedOnceIsFilledAgain) {
  const RTFReading reading(std::string("{") + kTwoCells + R"(a\cell b\cell\row\intbl c\cell d\cell\row})");
  ASSERT_EQ(reading.Outline(), L"[a]P[b]P[c]P[d]P[]T");
  EXPECT_EQ(Doc(reading, 2).RowIndex, 0);
  EXPECT_EQ(Doc(reading, 2).CellIndex, 0);
  EXPECT_EQ(Doc(reading, 3).CellIndex, 1);
  EXPECT_EQ(Doc(reading, 3).Rows.size(), 1U);
}

TEST_F(RTFTableRowsTest, CellBehindTheLastOneHasNoPlace) {
  const RTFReading reading(R"({\trowd\cellx1\intbl a\cell b\cell c\cell\row})");
  ASSERT_EQ(reading.Outline(), L"[a]P[b]P[c]P[]T");
  EXPECT_EQ(Doc(reading, 1).CellIndex, -1);
  EXPECT_EQ(Doc(reading, 1).CurrentCell, nullptr);
  // The count starts again behind it.
  EXPECT_EQ(Doc(reading, 2).CellIndex, 0);
}

TEST_F(RTFTableRowsTest, CellWithoutATableEndsAParagraph) {
  const RTFReading reading(R"({a\cell b\row c})");
  EXPECT_EQ(reading.Result(), 0);
  ASSERT_EQ(reading.Outline(), L"[a]P[bc]");
  EXPECT_EQ(Doc(reading, 1).CellIndex, -1);
  EXPECT_EQ(Doc(reading, 1).RowIndex, -1);
}

TEST_F(RTFTableRowsTest, FixedRowBehindAGroupOfCellsGoesOnWithTheirFirstCell) {
  // The end of a group brings back the cell that was being filled, and a new row does not put it away.
  const Look look(R"({\trowd\cellx1\cellx2\intbl{a\cell b\cell}{\row}\trowd\cellx5\cellx6\intbl c\cell})");
  ASSERT_EQ(look.Seen().m_Texts, (std::vector<std::wstring>{L"a", L"b", L"c"}));
  EXPECT_EQ(look.Seen().m_Counts[2], (Counts{2, 1}));
  EXPECT_EQ(look.Cell(2, 0).RightEdge, 5);
  EXPECT_EQ(look.Cell(2, 2).RightEdge, 6);
}

TEST_F(RTFTableRowsTest, FixedCellsThatAreGroupsHaveTheSameIndex) {
  const RTFReading reading(R"({\trowd\cellx1\cellx2\intbl{a\cell}{b\cell}\row})");
  ASSERT_EQ(reading.Outline(), L"[a]P[b]P");
  EXPECT_EQ(Doc(reading, 0).CellIndex, 0);
  EXPECT_EQ(Doc(reading, 1).CellIndex, 0);
}

TEST_F(RTFTableRowsTest, LeftEdgeAndHeaderOfRowsAreKept) {
  const RTFReading reading(R"({\trowd\trleft-108\trhdr\cellx1\intbl a\cell})");
  EXPECT_EQ(Doc(reading, 0).RowLeft, 108);  // the sign of a number has no effect
  EXPECT_EQ(Doc(reading, 0).RowHeader, 1);
}

TEST_F(RTFTableRowsTest, FillingWithoutAPositionStartsAtTheFirstRowThatIsThere) {
  CRTFTableCell cell;
  CRTFTableRow first;
  first.Cells.push_back(&cell);
  CRTFTableRow second;
  zebtest::ParserProbe probe;
  probe.m_DocProps.Rows = {&first, &second};
  probe.m_DocProps.CurrentRow = &second;
  EXPECT_EQ(probe.ApplyPropChange(CRTFParser::ipropInTable, 1), 0);
  EXPECT_EQ(probe.m_DocProps.RowIndex, 0);
  EXPECT_EQ(probe.m_DocProps.CurrentRow, &first);
  EXPECT_EQ(probe.m_DocProps.CellIndex, 0);
  EXPECT_EQ(probe.m_DocProps.CurrentCell, &cell);
}

// The end of a table.

TEST_F(RTFTableRowsTest, GroupThatLeavesTheTableEndsIt) {
  const RTFReading reading(R"({x{\trowd\cellx1\intbl a\cell\row}b})");
  ASSERT_EQ(reading.Outline(), L"[xa]P[]T[b]");
  // The record of the end has the formatting of the group around the table.
  EXPECT_EQ(reading.Runs()[1].m_State.ParProps.InTable, 0);
  EXPECT_EQ(Doc(reading, 1).Rows.size(), 0U);
  EXPECT_EQ(Doc(reading, 1).RowIndex, -1);
  EXPECT_EQ(Doc(reading, 2).Rows.size(), 0U);
}

TEST_F(RTFTableRowsTest, FixedGroupInACellTakesTheEndOfTheTableFromTheGroupAroundIt) {
  // A group that closes leaves its paragraph settings, the table among them, as those to restore at the next end.
  const RTFReading reading(R"({\trowd\cellx1\intbl{a}\cell\row})");
  EXPECT_EQ(reading.Outline(), L"[a]P");
  const RTFReading around(R"({{\trowd\cellx1\intbl{a}\cell\row}b\cell})");
  ASSERT_EQ(around.Outline(), L"[a]P[b]P");
  EXPECT_EQ(around.Runs()[1].m_State.ParProps.InTable, 1);
}

TEST_F(RTFTableRowsTest, RowsOfATableThatHasEndedAreGone) {
  const Look look(R"({\trowd\cellx1{\intbl a\cell\row}\trowd\cellx2\cellx3\intbl b\cell})");
  ASSERT_EQ(look.Seen().m_Texts, (std::vector<std::wstring>{L"a", L"", L"b", L""}));
  EXPECT_EQ(look.Seen().m_Counts[0], Counts{1});
  // The row belonged to the outer group: it is there when the end is reported, and freed then.
  EXPECT_EQ(look.Seen().m_Counts[1], Counts{1});
  EXPECT_EQ(look.Seen().m_Counts[2], Counts{2});
}

TEST_F(RTFTableRowsTest, SavedGroupsKnowNothingOfAFreedTable) {
  // The row is in the outermost group, whose end must not find it again.
  const RTFReading reading(R"({\trowd\cellx1{{\intbl a\cell\row}b}c})");
  EXPECT_EQ(reading.Result(), 0);
  ASSERT_EQ(reading.Outline(), L"[a]P[]T[b][c]");
  EXPECT_EQ(Doc(reading, 2).Rows.size(), 0U);
  EXPECT_EQ(Doc(reading, 2).CurrentRow, nullptr);
  EXPECT_EQ(Doc(reading, 3).Rows.size(), 0U);
  EXPECT_EQ(Doc(reading, 3).CurrentRow, nullptr);
}

TEST_F(RTFTableRowsTest, RowsOutliveTheirTable) {
  // Records that a handler has copied may still name them.
  const RTFReading reading(R"({{\trowd\trbrdrt\brdrw3\cellx77\intbl a\cell\row}b})");
  ASSERT_EQ(reading.Outline(), L"[a]P[]T[b]");
  EXPECT_EQ(Doc(reading, 0).Rows.at(0)->BorderTop, 3);
  EXPECT_EQ(Doc(reading, 0).CurrentCell->RightEdge, 77);
}

TEST_F(RTFTableRowsTest, EndOfTheTableLeavesThePosition) {
  const RTFReading reading(R"({\trowd\cellx1{\intbl a\cell\row}b})");
  ASSERT_EQ(reading.Outline(), L"[a]P[]T[b]");
  EXPECT_EQ(Doc(reading, 0).Rows.at(0)->Cells.size(), 0U);
  EXPECT_EQ(Doc(reading, 2).RowIndex, 0);
  EXPECT_EQ(Doc(reading, 2).CellIndex, -1);
}

TEST_F(RTFTableRowsTest, RowsOfAGroupGoWithIt) {
  const Look look(R"({\trowd\cellx1{\trowd\cellx2}\intbl a\cell})");
  EXPECT_EQ(look.Seen().m_Counts[0], Counts{1});
  EXPECT_EQ(look.Cell(0, 0).RightEdge, 1);
}

TEST_F(RTFTableRowsTest, RowsOfAFlatTableStayBehindIt) {
  const Look look(R"({\trowd\cellx1\intbl a\cell\row\pard b\par\trowd\cellx2\cellx3\intbl c\cell})");
  ASSERT_EQ(look.Seen().m_Texts, (std::vector<std::wstring>{L"a", L"", L"b", L"c", L""}));
  EXPECT_EQ(look.Seen().m_Counts[2], Counts{1});
  EXPECT_EQ(look.Seen().m_Counts[3], (Counts{1, 2}));
}

TEST_F(RTFTableRowsTest, FixedRowGoesOnOutsideOfTheTableBehindAParagraphReset) {
  // A second \intbl has no effect before the row's end.
  const RTFReading reading(std::string("{") + kTwoCells + R"(a\cell\pard\intbl b\cell\row\pard c})");
  ASSERT_EQ(reading.Outline(), L"[a]P[]T[b]P[c]");
  EXPECT_EQ(reading.Runs()[2].m_State.ParProps.InTable, 0);
  EXPECT_EQ(Doc(reading, 2).CellIndex, 1);
}

// The formatting of cells.

TEST_F(RTFTableRowsTest, FixedPlainTextNotesNoFormatting) {
  const RTFReading reading(R"({\f2\fs30\b\i\super\trowd\cellx1\intbl a\cell\row})");
  EXPECT_EQ(Chars(reading, 0).CellFontId, 0);
  EXPECT_EQ(Chars(reading, 0).FontSize, 0);
  EXPECT_EQ(Chars(reading, 0).Bold, 0);
  EXPECT_EQ(Chars(reading, 0).Italic, 0);
  EXPECT_EQ(Chars(reading, 0).Superscript, 0);
  EXPECT_EQ(Chars(reading, 0).Subscript, 0);
}

TEST_F(RTFTableRowsTest, TabQuoteAndLineFeedNoteFormatting) {
  for (const char* noting : {R"(\tab)", R"(\ldblquote)", R"(\rdblquote)", R"(\par)", R"(\bin1 x)"}) {
    const RTFReading reading(std::string(R"({\trowd\cellx1\intbl a\f2\fs30\b\i\super\sub)") + noting +
                             R"(\f3\b0 b\cell\row})");
    ASSERT_GE(reading.Runs().size(), 1U) << noting;
    EXPECT_EQ(Chars(reading, 0).CellFontId, 2) << noting;
    EXPECT_EQ(Chars(reading, 0).FontSize, 30) << noting;
    EXPECT_EQ(Chars(reading, 0).Bold, 1) << noting;
    EXPECT_EQ(Chars(reading, 0).Italic, 1) << noting;
    EXPECT_EQ(Chars(reading, 0).Superscript, 1) << noting;
    EXPECT_EQ(Chars(reading, 0).Subscript, 1) << noting;
    // The rest is what is in force at the end of the cell.
    EXPECT_EQ(reading.Runs()[0].m_State.FontProps.FontId, 3) << noting;
  }
}

TEST_F(RTFTableRowsTest, ListTextNotesNoFormatting) {
  const RTFReading reading(R"({\trowd\cellx1\intbl{\listtext\fs30\b\tab}a\cell\row})");
  EXPECT_EQ(Chars(reading, 0).FontSize, 0);
  EXPECT_EQ(Chars(reading, 0).Bold, 0);
}

TEST_F(RTFTableRowsTest, UnderlineOfACellIsTheCurrentOne) {
  const RTFReading reading(R"({\trowd\cellx1\intbl\tab a\ul\cell\row})");
  EXPECT_EQ(Chars(reading, 0).Underline, 1);
}

TEST_F(RTFTableRowsTest, FontOfACellIsTheNotedOne) {
  const RTFReading reading(
      R"({{\fonttbl{\f0 Zero;}{\f2 Two;}{\f3 Three;}}\trowd\cellx1\cellx2\intbl\f2\tab\f3 a\cell\row})");
  ASSERT_EQ(reading.Outline(), L"[\ta]P[]T");
  EXPECT_STREQ(reading.Runs()[0].m_Context.Font->GetFontFaceName(), L"Two");
}

TEST_F(RTFTableRowsTest, NotedFormattingLastsFromCellToCell) {
  const RTFReading reading(std::string("{") + kTwoCells + R"(\f5\b\tab a\cell\f6\b0 b\cell\row})");
  EXPECT_EQ(Chars(reading, 1).CellFontId, 5);
  EXPECT_EQ(Chars(reading, 1).Bold, 1);
}

TEST_F(RTFTableRowsTest, NothingIsNotedOutsideOfTables) {
  const RTFReading reading(R"({\f5\b\tab\trowd\cellx1\intbl a\cell\row})");
  EXPECT_EQ(Chars(reading, 0).CellFontId, 0);
  EXPECT_EQ(Chars(reading, 0).Bold, 0);
}

TEST_F(RTFTableRowsTest, CellFontIsFilledInTablesAlone) {
  const RTFReading reading(R"({\trowd\cellx1\intbl\f5\tab\cell\row\pard\f6 b})");
  ASSERT_EQ(reading.Outline(), L"[\t]P[]T[b]");
  EXPECT_EQ(Chars(reading, 0).CellFontId, 5);
  EXPECT_EQ(Chars(reading, 2).CellFontId, 0);
}

TEST_F(RTFTableRowsTest, ParagraphBehindTheRowNotesNothing) {
  const RTFReading reading(R"({\trowd\cellx1\intbl a\cell\row\b\par\intbl b\cell})");
  ASSERT_EQ(reading.Outline(), L"[a]P[\nb]P[]T");
  EXPECT_EQ(Chars(reading, 1).Bold, 0);
}

}  // namespace
