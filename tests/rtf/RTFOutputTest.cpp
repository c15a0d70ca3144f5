#include "ZEBReportDocument.h"

#include "rtf/RecordingHandler.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using zebtest::RTFReading;
using zebtest::RTFRun;

/// What a parser without a handler gathers.
std::wstring TextWithoutHandler(std::string_view data, int expected = CRTFParser::rtfOK) {
  std::vector<unsigned char> bytes(data.begin(), data.end());
  CRTFParser parser(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
  EXPECT_EQ(parser.RtfParse(), expected);
  return parser.GetTextContent();
}

TEST(RTFOutputTest, GroupEndClosesRunWithoutFlags) {
  const RTFReading reading(R"({\rtf1 abc})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Outline(), L"[abc]");
}

TEST(RTFOutputTest, ParagraphEndClosesRun) {
  const RTFReading reading(R"({\rtf1 a\par b})");
  EXPECT_EQ(reading.Outline(), L"[a]P[b]");
}

TEST(RTFOutputTest, LineClosesRun) {
  const RTFReading reading(R"({\rtf1 a\line b})");
  EXPECT_EQ(reading.Outline(), L"[a]L[b]");
}

TEST(RTFOutputTest, EmptyParagraphIsReported) {
  const RTFReading reading(R"({\rtf1\par\par})");
  EXPECT_EQ(reading.Outline(), L"[]P[]P");
}

TEST(RTFOutputTest, NestedGroupClosesRunBehindIt) {
  const RTFReading reading(R"({a{b}c})");
  EXPECT_EQ(reading.Outline(), L"[ab][c]");
}

TEST(RTFOutputTest, GroupWithoutTextIsNotReported) {
  const RTFReading reading(R"({\rtf1{\b}{}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Outline(), L"");
}

TEST(RTFOutputTest, ChangeClosesRunBeforeItTakesEffect) {
  const RTFReading reading(R"({\rtf1 a\b b})");
  ASSERT_EQ(reading.Outline(), L"[a][b]");
  EXPECT_EQ(reading.Runs()[0].m_State.CharProps.Bold, 0);
  EXPECT_EQ(reading.Runs()[1].m_State.CharProps.Bold, 1);
}

TEST(RTFOutputTest, SameValueClosesNoRun) {
  const RTFReading reading(R"({\rtf1 \b\b x\b y})");
  ASSERT_EQ(reading.Outline(), L"[xy]");
  EXPECT_EQ(reading.Runs()[0].m_State.CharProps.Bold, 1);
}

TEST(RTFOutputTest, EveryFormattingKeywordClosesRun) {
  for (const char* keyword : {"b", "i", "ul", "super", "up", "sub", "dn", "fs30", "f3", "cf1", "cb1"}) {
    const RTFReading reading(std::string("{a\\") + keyword + " b}");
    EXPECT_EQ(reading.Outline(), L"[a][b]") << keyword;
  }
}

TEST(RTFOutputTest, ParagraphAndDocumentKeywordsCloseNoRun) {
  for (const char* keyword :
       {"qc",    "li10",    "ri10",      "fi10",     "tx10",     "tqr",       "cols2",  "paperw1",
        "deff1", "uc2",     "chshdng1",  "chcfpat1", "chcbpat1", "shading1",  "cfpat1", "cbpat1",
        "pard",  "sbkpage", "fcharset1", "plain",    "ulnone",   "nosupersub"}) {
    const RTFReading reading(std::string("{a\\") + keyword + " b}");
    EXPECT_EQ(reading.Outline(), L"[ab]") << keyword;
  }
}

TEST(RTFOutputTest, EndOfSuperscriptAndSubscriptClosesRun) {
  const RTFReading super(R"({\super a\nosupersub b})");
  ASSERT_EQ(super.Outline(), L"[a][b]");
  EXPECT_EQ(super.Runs()[0].m_State.CharProps.Superscript, 1);
  EXPECT_EQ(super.Runs()[1].m_State.CharProps.Superscript, 0);
  const RTFReading sub(R"({\sub a\nosupersub b})");
  ASSERT_EQ(sub.Outline(), L"[a][b]");
  EXPECT_EQ(sub.Runs()[0].m_State.CharProps.Subscript, 1);
  EXPECT_EQ(sub.Runs()[1].m_State.CharProps.Subscript, 0);
}

TEST(RTFOutputTest, TextBehindTheLastGroupStaysUnreported) {
  const RTFReading reading(R"({a}b)");
  EXPECT_EQ(reading.Outline(), L"[a]");
  EXPECT_EQ(reading.Parser().GetTextContent(), L"b");
}

TEST(RTFOutputTest, ReportedTextIsGoneFromTheParser) {
  const RTFReading reading(R"({abc})");
  EXPECT_EQ(reading.Parser().GetTextContent(), L"");
}

TEST(RTFOutputTest, TextWithoutHandlerHasLineFeedsForRuns) {
  EXPECT_EQ(TextWithoutHandler(R"({\rtf1 abc})"), L"abc\n");
  EXPECT_EQ(TextWithoutHandler(R"({a\par b\b c\line d})"), L"a\nb\nc\nd\n");
  EXPECT_EQ(TextWithoutHandler(R"({{{}}})"), L"\n\n\n");
  EXPECT_EQ(TextWithoutHandler(""), L"");
}

TEST(RTFOutputTest, FixedTextWithoutHandlerHasLineFeedsForTablesOfTheHeader) {
  EXPECT_EQ(TextWithoutHandler(R"({{\fonttbl{\f0 A;}}{\colortbl;}{\info{\author x}}b})"), L"\n\n\n\n\nb\n");
  // Destinations with a buffer of their own take the line feed along.
  EXPECT_EQ(TextWithoutHandler(R"({{\listtext 1.}{\*\pn}{\*\bkmkstart m}b})"), L"b\n");
}

TEST(RTFOutputTest, TextWithoutHandlerStaysBehindFailure) {
  EXPECT_EQ(TextWithoutHandler("{abc", CRTFParser::rtfUnmatchedBrace), L"abc");
}

TEST(RTFOutputTest, BookmarksAndPicturesNeedNoHandler) {
  EXPECT_EQ(TextWithoutHandler(R"({a{\*\bkmkstart x}{\*\bkmkend x}})"), L"a\n");
  EXPECT_EQ(TextWithoutHandler(R"({{\*\shppict{\pict ffd8}}})"), L"\n\n\n\n");
}

// The record.

TEST(RTFOutputTest, RecordHoldsAllFivePropertyObjects) {
  const RTFReading reading(R"({\rtf1\paperw100\b\qc\cols3\f7 x})");
  ASSERT_EQ(reading.Runs().size(), 1U);
  const CRTFState& state = reading.Runs()[0].m_State;
  EXPECT_EQ(state.CharProps.Bold, 1);
  EXPECT_EQ(state.ParProps.Justification, 2);
  EXPECT_EQ(state.SecProps.Columns, 3);
  EXPECT_EQ(state.DocProps.PaperWidth, 100);
  EXPECT_EQ(state.DocProps.RtfVersion, 1);
  EXPECT_EQ(state.FontProps.FontId, 7);
}

TEST(RTFOutputTest, FontAndColoursOfUnknownNumbersAreNull) {
  const RTFReading reading(R"({\f9\cf9\cb9 x})");
  ASSERT_EQ(reading.Runs().size(), 1U);
  const CRTFContext& context = reading.Runs()[0].m_Context;
  EXPECT_EQ(context.Font, nullptr);
  EXPECT_EQ(context.ForeColor, nullptr);
  EXPECT_EQ(context.BackColor, nullptr);
  EXPECT_EQ(context.Reserved, nullptr);
  EXPECT_EQ(context.List, nullptr);
  EXPECT_EQ(context.Level, nullptr);
}

TEST(RTFOutputTest, FontIsThatOfItsNumber) {
  const RTFReading reading(R"({{\fonttbl{\f0 Arial;}{\f5 Courier;}}\f5 x})");
  ASSERT_EQ(reading.Outline(), L"[x]");
  EXPECT_EQ(reading.Runs()[0].m_Context.Font, reading.Parser().GetFontAtID(5));
  EXPECT_STREQ(reading.Runs()[0].m_Context.Font->GetFontFaceName(), L"Courier");
}

constexpr const char* kColours = R"({{\colortbl;\red1;\red2;\red3;\red4;})";

/// The red part of a colour, which tells the entries apart; -1 for none.
int Red(const CRTFColor* colour) { return colour == nullptr ? -1 : colour->GetRed(); }

TEST(RTFOutputTest, ForeColorOfCharactersGoesFirst) {
  const auto fore = [](const std::string& keywords) {
    const RTFReading reading(kColours + keywords + " x}");
    return Red(reading.Runs().at(0).m_Context.ForeColor);
  };
  EXPECT_EQ(fore(R"(\chcfpat1\cfpat2\cf3)"), 1);
  EXPECT_EQ(fore(R"(\cfpat2\cf3)"), 2);
  EXPECT_EQ(fore(R"(\cf3)"), 3);
  EXPECT_EQ(fore(""), 0);
  EXPECT_EQ(fore(R"(\chcfpat0\cfpat0\cf4)"), 4);
}

TEST(RTFOutputTest, BackColorOfCharactersGoesFirst) {
  const auto back = [](const std::string& keywords) {
    const RTFReading reading(kColours + keywords + " x}");
    return Red(reading.Runs().at(0).m_Context.BackColor);
  };
  EXPECT_EQ(back(R"(\chcbpat1\cbpat2\cb3)"), 1);
  EXPECT_EQ(back(R"(\cbpat2\cb3)"), 2);
  EXPECT_EQ(back(R"(\cb3)"), 3);
  EXPECT_EQ(back(""), 0);
}

TEST(RTFOutputTest, FixedColourNumbersAboveASignedByteCountAsNone) {
  // 200 is -56 as a signed byte, and so no colour of the characters.
  const RTFReading reading(std::string(kColours) + R"(\chcfpat200\cfpat2 x})");
  EXPECT_EQ(reading.Runs().at(0).m_State.CharProps.CharForeColor, -56);
  EXPECT_EQ(Red(reading.Runs().at(0).m_Context.ForeColor), 2);
}

TEST(RTFOutputTest, RecordHoldsListAndLevel) {
  const RTFReading reading(R"({{\listtable{\list\listid7{\listlevel\levelnfc23}{\listlevel\levelnfc4}}})"
                           R"({\listoverridetable{\listoverride\listid7\ls1}}{\ls1\ilvl1 x}y})");
  ASSERT_EQ(reading.Result(), 0);
  ASSERT_EQ(reading.Outline(), L"[x][y]");
  const CRTFContext& context = reading.Runs()[0].m_Context;
  ASSERT_NE(context.List, nullptr);
  EXPECT_EQ(context.List->GetListId(), 7);
  ASSERT_NE(context.Level, nullptr);
  EXPECT_EQ(context.Level->GetLevelnfc(), 4);
  EXPECT_EQ(context.Level, context.List->GetListLevelEntryAt(1));
}

/// Spoils the record that it gets.
class SpoilingHandler final : public zebtest::RecordingHandler {
 public:
  void OnContextChanged(const wchar_t* text, CRTFContext* context) override {
    RecordingHandler::OnContextChanged(text, context);
    context->State->CharProps.Bold = 99;
    context->State->DocProps.Rows.clear();
    context->State->DocProps.CurrentCell = nullptr;
    context->Font = nullptr;
  }
};

TEST(RTFOutputTest, RecordIsACopy) {
  std::string data = R"({\trowd\cellx10\cellx20\intbl a\cell b\cell\row\pard{c}})";
  SpoilingHandler handler;
  CRTFParser parser(reinterpret_cast<unsigned char*>(data.data()), static_cast<int>(data.size()), &handler,
                    nullptr);
  EXPECT_EQ(parser.RtfParse(), 0);
  ASSERT_EQ(handler.Outline(), L"[a]P[b]P[]T[c]");
  for (const RTFRun& run : handler.m_Runs) {
    EXPECT_EQ(run.m_State.CharProps.Bold, 0);
    EXPECT_EQ(run.m_State.DocProps.Rows.size(), 1U);
  }
  EXPECT_NE(handler.m_Runs[1].m_State.DocProps.CurrentCell, nullptr);
}

/// Spoils in the first record what a parser does not read.
class FirstRecordSpoiler final : public zebtest::RecordingHandler {
 public:
  void OnContextChanged(const wchar_t* text, CRTFContext* context) override {
    RecordingHandler::OnContextChanged(text, context);
    if (m_Runs.size() > 1) return;
    CRTFState& state = *context->State;
    state.Next = &m_State;
    state.Destination = CRTFParser::rdsSkip;
    state.InternalState = CRTFParser::risHex;
    state.List = &m_List;
    state.Level = &m_Level;
    state.ParProps.Tabs[0].Position = 77;
    if (!state.DocProps.Rows.empty()) state.DocProps.Rows[0] = nullptr;
  }

 private:
  CRTFState m_State;
  CRTFListTableEntry m_List;
  CRTFListLevelEntry m_Level;
};

TEST(RTFOutputTest, RecordIsFreshAtEveryCall) {
  std::string data = R"({\trowd\cellx10\trowd\cellx20\cellx30\intbl a\cell b\cell\row})";
  FirstRecordSpoiler handler;
  CRTFParser parser(reinterpret_cast<unsigned char*>(data.data()), static_cast<int>(data.size()), &handler,
                    nullptr);
  EXPECT_EQ(parser.RtfParse(), 0);
  ASSERT_EQ(handler.Outline(), L"[a]P[b]P[]T");
  const CRTFState& first = handler.m_Runs[0].m_State;
  const CRTFState& second = handler.m_Runs[1].m_State;
  ASSERT_EQ(second.DocProps.Rows.size(), 2U);
  EXPECT_NE(second.DocProps.Rows[0], nullptr);
  EXPECT_EQ(second.DocProps.Rows, first.DocProps.Rows);
  EXPECT_EQ(second.Next, nullptr);
  EXPECT_EQ(second.Destination, CRTFParser::rdsNorm);
  EXPECT_EQ(second.InternalState, CRTFParser::risNorm);
  EXPECT_EQ(second.List, nullptr);
  EXPECT_EQ(second.Level, nullptr);
  EXPECT_EQ(std::as_const(second).ParProps.Tabs[0].Position, 0);
}

/// A handler that spoils the first row of its first record, and then gets one of so many rows.
const CRTFTableRow* FirstRowOfTheSecondRecord(int rows) {
  std::string data = "{";
  for (int row = 0; row < rows; ++row) data += R"(\trowd\cellx10)";
  data += R"(\intbl a\cell b\cell})";
  FirstRecordSpoiler handler;
  CRTFParser parser(reinterpret_cast<unsigned char*>(data.data()), static_cast<int>(data.size()), &handler,
                    nullptr);
  EXPECT_EQ(parser.RtfParse(), 0);
  EXPECT_EQ(handler.m_Runs.at(1).m_State.DocProps.Rows.size(), static_cast<std::size_t>(rows));
  return handler.m_Runs.at(1).m_State.DocProps.Rows.at(0);
}

TEST(RTFOutputTest, RowsOfLongTablesAreCarriedOn) {
  EXPECT_NE(FirstRowOfTheSecondRecord(64), nullptr);
  EXPECT_EQ(FirstRowOfTheSecondRecord(65), nullptr);
}

// Tabs.

TEST(RTFOutputTest, TabStopsKeepTheKindInFront) {
  const RTFReading reading(R"({\tx100\tqr\tx200\tx300\tqc\tx400\tqdec\tx500 x})");
  const CParagraphProperties& props = reading.Runs().at(0).m_State.ParProps;
  ASSERT_EQ(props.TabCount, 5);
  const int expected[][2] = {{100, 0}, {200, 1}, {300, 1}, {400, 2}, {500, 3}};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(props.Tabs[i].Position, expected[i][0]);
    EXPECT_EQ(props.Tabs[i].Kind, expected[i][1]);
  }
}

TEST(RTFOutputTest, ParagraphResetTakesTabStopsAndTheirKind) {
  const RTFReading reading(R"({\tqr\tx100\pard\tx200 x})");
  const CParagraphProperties& props = reading.Runs().at(0).m_State.ParProps;
  ASSERT_EQ(props.TabCount, 1);
  EXPECT_EQ(props.Tabs[0].Position, 200);
  EXPECT_EQ(props.Tabs[0].Kind, 0);
}

std::string TabStops(int count) {
  std::string data = "{";
  for (int i = 1; i <= count; ++i) data += "\\tx" + std::to_string(i);
  return data + " x}";
}

TEST(RTFOutputTest, HundredTabStopsFit) {
  const RTFReading reading(TabStops(100));
  const CParagraphProperties& props = reading.Runs().at(0).m_State.ParProps;
  EXPECT_EQ(props.TabCount, 100);
  EXPECT_EQ(props.Tabs[99].Position, 100);
}

TEST(RTFOutputTest, TabStopBeyondHundredIsDropped) {
  const RTFReading reading(TabStops(101));
  const CParagraphProperties& props = reading.Runs().at(0).m_State.ParProps;
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(props.TabCount, 100);
  EXPECT_EQ(props.Tabs[99].Position, 100);
}

// Bookmarks.

TEST(RTFOutputTest, BookmarksAreReportedByName) {
  const RTFReading reading(R"({a{\*\bkmkstart First}b{\*\bkmkend First}c})");
  EXPECT_EQ(reading.Outline(), L"[a][b][c]");
  const std::vector<std::pair<std::wstring, bool>> expected = {{L"First", true}, {L"First", false}};
  EXPECT_EQ(reading.Bookmarks(), expected);
}

TEST(RTFOutputTest, BookmarkNamesDoNotRunTogether) {
  const RTFReading reading(R"({{\bkmkstart a}{\bkmkstart b}{\bkmkend}})");
  const std::vector<std::pair<std::wstring, bool>> expected = {{L"a", true}, {L"b", true}, {L"", false}};
  EXPECT_EQ(reading.Bookmarks(), expected);
}

}  // namespace
