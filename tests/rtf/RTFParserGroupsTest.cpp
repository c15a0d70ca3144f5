#include "rtf/ParserProbe.h"
#include "rtf/RTFFont.h"
#include "rtf/RTFListLevelEntry.h"
#include "rtf/RTFListTableEntry.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFState.h"
#include "rtf/RTFStyleSheet.h"
#include "rtf/RecordingHandler.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Parser = CRTFParser;
using zebtest::ParserProbe;
using zebtest::RTFReading;

TEST(RTFParserGroups, PushSavesAllAndPopRestoresIt) {
  ParserProbe probe;
  probe.m_CharProps.Bold = 1;
  probe.m_ParProps.LeftIndent = 2;
  probe.m_SecProps.Columns = 3;
  probe.m_DocProps.PaperWidth = 4;
  probe.m_FontProps.FontId = 5;
  probe.m_ris = Parser::risHex;
  EXPECT_EQ(probe.PushRtfState(), Parser::rtfOK);
  ASSERT_NE(probe.m_pStack, nullptr);
  EXPECT_EQ(probe.m_pStack->Next, nullptr);
  EXPECT_EQ(probe.m_pStack->CharProps.Bold, 1);
  EXPECT_EQ(probe.m_pStack->ParProps.LeftIndent, 2);
  EXPECT_EQ(probe.m_pStack->SecProps.Columns, 3);
  EXPECT_EQ(probe.m_pStack->DocProps.PaperWidth, 4);
  EXPECT_EQ(probe.m_pStack->FontProps.FontId, 5);
  EXPECT_EQ(probe.m_pStack->Destination, Parser::rdsNorm);
  EXPECT_EQ(probe.m_pStack->InternalState, Parser::risHex);
  EXPECT_EQ(probe.m_ris, Parser::risNorm);
  EXPECT_EQ(probe.m_cGroup, 1);

  probe.m_CharProps.Bold = 0;
  probe.m_ParProps.LeftIndent = 0;
  probe.m_SecProps.Columns = 0;
  probe.m_DocProps.PaperWidth = 0;
  probe.m_FontProps.FontId = 0;
  EXPECT_EQ(probe.PopRtfState(), Parser::rtfOK);
  EXPECT_EQ(probe.m_CharProps.Bold, 1);
  EXPECT_EQ(probe.m_ParProps.LeftIndent, 2);
  EXPECT_EQ(probe.m_SecProps.Columns, 3);
  EXPECT_EQ(probe.m_DocProps.PaperWidth, 4);
  EXPECT_EQ(probe.m_FontProps.FontId, 5);
  EXPECT_EQ(probe.m_ris, Parser::risHex);
  EXPECT_EQ(probe.m_cGroup, 0);
  EXPECT_EQ(probe.m_pStack, nullptr);
}

TEST(RTFParserGroups, PopWithoutGroupUnderflows) {
  ParserProbe probe;
  EXPECT_EQ(probe.PopRtfState(), Parser::rtfStackUnderflow);
}

/// The runs and bookmarks of a document in the order of their calls: `[run]`, `<start`, `>end`.
std::wstring CallsOf(std::string data) {
  class Calls : public CContextChangedHandler {
   public:
    void OnContextChanged(const wchar_t* text, CRTFContext*) override {
      m_strAll += L'[' + (text + std::wstring(L"]"));
    }
    void OnBookmark(std::wstring name, bool start) override { m_strAll += (start ? L'<' : L'>') + name; }
    std::wstring m_strAll;
  };
  Calls calls;
  Parser parser(reinterpret_cast<unsigned char*>(data.data()), static_cast<int>(data.size()), &calls,
                nullptr);
  EXPECT_EQ(parser.RtfParse(), Parser::rtfOK);
  return calls.m_strAll;
}

TEST(RTFParserGroups, RunEndsBeforeItsGroupIsFinished) {
  EXPECT_EQ(CallsOf("{a{\\*\\bkmkstart m}b{\\*\\bkmkend n}c}"), L"[a]<m[b]>n[c]");
}

TEST(RTFParserGroups, GroupInATableIsFinishedBeforeTheRunEnds) {
  EXPECT_EQ(CallsOf("{\\intbl a{\\*\\bkmkstart m}b\\cell}"), L"<m[ab]");
}

TEST(RTFParserGroups, FormattingEndsWithItsGroup) {
  RTFReading reading("{a{\\b\\i b}c}");
  ASSERT_EQ(reading.Outline(), L"[a][b][c]");
  EXPECT_EQ(reading.Runs()[0].m_State.CharProps.Bold, 0);
  EXPECT_EQ(reading.Runs()[1].m_State.CharProps.Bold, 1);
  EXPECT_EQ(reading.Runs()[1].m_State.CharProps.Italic, 1);
  EXPECT_EQ(reading.Runs()[2].m_State.CharProps.Bold, 0);
}

TEST(RTFParserGroups, FixedParagraphPropertiesOutliveTheGroupThatEncloses) {
  // The inner group's end writes the indent of 5 into what the outer group saved.
  ParserProbe probe("{\\li5{\\b x}}\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_ParProps.LeftIndent, 5);

  ParserProbe nested("{\\li5{\\li6{\\li7 x}}}\n");
  EXPECT_EQ(nested.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(nested.m_ParProps.LeftIndent, 6);

  // Without a nested group the settings end with their own.
  ParserProbe alone("{\\li5 x}\n");
  EXPECT_EQ(alone.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(alone.m_ParProps.LeftIndent, 0);
}

TEST(RTFParserGroups, FixedPardResetsTheSavedIndents) {
  ParserProbe probe("\\li1\\ri2\\fi3\\qc{\\pard x}\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_ParProps.LeftIndent, 0);
  EXPECT_EQ(probe.m_ParProps.RightIndent, 0);
  EXPECT_EQ(probe.m_ParProps.FirstIndent, 0);
  EXPECT_EQ(probe.m_ParProps.Justification, 2);
}

TEST(RTFParserGroups, PardInAGroupLeavesTheTableOfTheGroupAround) {
  ParserProbe probe("{\\intbl{\\pard x}\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfUnmatchedBrace);
  EXPECT_EQ(probe.m_ParProps.InTable, 1);
}

TEST(RTFParserGroups, GroupsInsideOfAnEntryArePartOfIt) {
  const RTFReading fonts("{\\fonttbl{\\f0 A{B}C;}}");
  EXPECT_EQ(fonts.Result(), Parser::rtfOK);
  ASSERT_NE(fonts.Parser().GetFontAtID(0), nullptr);
  EXPECT_STREQ(fonts.Parser().GetFontAtID(0)->GetFontFaceName(), L"ABC");

  const RTFReading styles("{\\stylesheet{\\s1 A{\\b B}C;}}");
  EXPECT_EQ(styles.Result(), Parser::rtfOK);
  ASSERT_NE(styles.Parser().GetStyleSheetAtID(1), nullptr);
  EXPECT_STREQ(styles.Parser().GetStyleSheetAtID(1)->GetStyleSheetName(), L"ABC");
  EXPECT_EQ(styles.Parser().GetStyleSheetAtID(1)->GetCharProps().Bold, 0);

  const RTFReading bookmark("{{\\bkmkstart a{b}c}}");
  EXPECT_EQ(bookmark.Result(), Parser::rtfOK);
  ASSERT_EQ(bookmark.Bookmarks().size(), 1U);
  EXPECT_EQ(bookmark.Bookmarks()[0].first, L"abc");
  EXPECT_TRUE(bookmark.Bookmarks()[0].second);
}

TEST(RTFParserGroups, GroupsOfFontTableAndStyleSheetAreEntries) {
  ParserProbe fonts("{\\fonttbl{");
  EXPECT_EQ(fonts.RtfParse(), Parser::rtfUnmatchedBrace);
  EXPECT_EQ(fonts.m_rds, Parser::rdsFontEntry);
  ParserProbe styles("{\\stylesheet{");
  EXPECT_EQ(styles.RtfParse(), Parser::rtfUnmatchedBrace);
  EXPECT_EQ(styles.m_rds, Parser::rdsStyleEntry);
}

TEST(RTFParserGroups, ListAndLevelEndWithTheirGroup) {
  CRTFListTableEntry list;
  CRTFListLevelEntry level;
  for (const Parser::RDS dest : {Parser::rdsNorm, Parser::rdsLevelText}) {
    ParserProbe probe;
    probe.m_rds = dest;
    EXPECT_EQ(probe.PushRtfState(), Parser::rtfOK);
    probe.m_pCurList = &list;
    probe.m_pCurLevel = &level;
    EXPECT_EQ(probe.PopRtfState(), Parser::rtfOK);
    EXPECT_EQ(probe.m_pCurList, nullptr);
    EXPECT_EQ(probe.m_pCurLevel, nullptr);
  }
}

TEST(RTFParserGroups, ListAndLevelStayInTheTablesOfLists) {
  CRTFListTableEntry list;
  CRTFListLevelEntry level;
  for (const Parser::RDS dest : {Parser::rdsListTable, Parser::rdsListLevel, Parser::rdsListOverrideTable}) {
    ParserProbe probe;
    probe.m_rds = dest;
    EXPECT_EQ(probe.PushRtfState(), Parser::rtfOK);
    EXPECT_EQ(probe.m_pStack->List, nullptr);
    probe.m_pCurList = &list;
    probe.m_pCurLevel = &level;
    EXPECT_EQ(probe.PopRtfState(), Parser::rtfOK);
    EXPECT_EQ(probe.m_pCurList, &list);
    EXPECT_EQ(probe.m_pCurLevel, &level);
    probe.m_pCurList = nullptr;
    probe.m_pCurLevel = nullptr;
  }
}

TEST(RTFParserGroups, RowsAddedInAGroupEndWithIt) {
  ParserProbe probe("\\trowd{\\trowd\\trowd{\\trowd");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfUnmatchedBrace);
  EXPECT_EQ(probe.m_DocProps.Rows.size(), 4U);
  EXPECT_EQ(probe.PopRtfState(), Parser::rtfOK);
  EXPECT_EQ(probe.m_DocProps.Rows.size(), 3U);
  EXPECT_EQ(probe.PopRtfState(), Parser::rtfOK);
  EXPECT_EQ(probe.m_DocProps.Rows.size(), 1U);
  EXPECT_EQ(probe.m_DocProps.CurrentRow, probe.m_DocProps.Rows[0]);
}

TEST(RTFParserGroups, TableEndsWithTheGroupThatOpenedIt) {
  RTFReading reading("{{\\trowd\\cellx100\\intbl a\\cell\\row}b}");
  EXPECT_EQ(reading.Outline(), L"[a]P[]T[b]");
}

TEST(RTFParserGroups, FixedTextOfATableCutByItsGroupHasTheFormattingBehindIt) {
  // The record of the table's end follows the restoring, and takes the text along.
  RTFReading reading("{{\\intbl\\b\\ul x}y}");
  ASSERT_EQ(reading.Outline(), L"[x]T[y]");
  EXPECT_EQ(reading.Runs()[0].m_State.CharProps.Bold, 0);
  EXPECT_EQ(reading.Runs()[0].m_State.CharProps.Underline, 0);
  EXPECT_EQ(reading.Runs()[0].m_State.ParProps.InTable, 0);
}

TEST(RTFParserGroups, FreedTableIsGoneFromAllSavedStates) {
  ParserProbe probe("{\\trowd\\cellx100{{\\intbl a\\cell\\row}");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfUnmatchedBrace);
  EXPECT_TRUE(probe.m_DocProps.Rows.empty());
  EXPECT_EQ(probe.PopRtfState(), Parser::rtfOK);
  EXPECT_TRUE(probe.m_DocProps.Rows.empty());
  EXPECT_EQ(probe.m_DocProps.CurrentRow, nullptr);
  EXPECT_EQ(probe.m_DocProps.CurrentCell, nullptr);
}

/// A document of that many groups in each other.
std::string Nested(int depth, const std::string& before, const std::string& inside) {
  std::string data;
  for (int i = 0; i < depth; ++i) data += before + '{';
  data += inside;
  data.append(static_cast<std::size_t>(depth), '}');
  return data;
}

TEST(RTFParserGroups, DeepNestingIsNoAttack) {
  RTFReading reading(Nested(1000000, "", "x"));
  EXPECT_EQ(reading.Result(), Parser::rtfOK);
  EXPECT_EQ(reading.Text(), L"x");
  EXPECT_EQ(RTFReading(std::string(1000000, '{')).Result(), Parser::rtfUnmatchedBrace);
  EXPECT_EQ(RTFReading(std::string(1000000, '}')).Result(), Parser::rtfStackUnderflow);
}

TEST(RTFParserGroups, DeepNestingWithChangesIsNoAttack) {
  const std::string data = Nested(100000, "\\b\\li5{\\b0", "x") + std::string(100000, '}');
  RTFReading reading(data);
  EXPECT_EQ(reading.Result(), Parser::rtfOK);
  EXPECT_EQ(reading.Text(), L"x");
}

TEST(RTFParserGroups, DeepGroupsRestoreAsShallowOnes) {
  for (const int depth : {1, 255, 256, 257, 300}) {
    ParserProbe probe(Nested(depth, "", "\\fs40\\qc{\\b x}\\i y"));
    EXPECT_EQ(probe.RtfParse(), Parser::rtfOK) << depth;
    ASSERT_EQ(probe.Handler().Outline(), L"[x][y]") << depth;
    EXPECT_EQ(probe.Handler().m_Runs[0].m_State.CharProps.Bold, 1);
    EXPECT_EQ(probe.Handler().m_Runs[1].m_State.CharProps.Bold, 0);
    EXPECT_EQ(probe.Handler().m_Runs[1].m_State.CharProps.Italic, 1);
    EXPECT_EQ(probe.m_CharProps.Italic, 0);
    EXPECT_EQ(probe.m_CharProps.FontSize, 24);
    EXPECT_EQ(probe.m_ParProps.Justification, 2);
    EXPECT_EQ(probe.m_cGroup, 0);
    EXPECT_EQ(probe.m_pStack, nullptr);
  }
}

TEST(RTFParserGroups, PardInADeepGroupTouchesThatGroupOnly) {
  ParserProbe probe("\\li9\\qc" + std::string(400, '{') + "\\pard");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfUnmatchedBrace);
  ASSERT_NE(probe.m_pStack, nullptr);
  EXPECT_EQ(probe.m_pStack->ParProps.LeftIndent, 0);
  ASSERT_NE(probe.m_pStack->Next, nullptr);
  EXPECT_EQ(probe.m_pStack->Next->ParProps.LeftIndent, 9);
}

TEST(RTFParserGroups, ManyTablesInDeepGroupsAreNoAttack) {
  std::string data(50000, '{');
  for (int i = 0; i < 20000; ++i) data += "{\\intbl}";
  data.append(50000, '}');
  EXPECT_EQ(RTFReading(data).Result(), Parser::rtfOK);
}

TEST(RTFParserGroups, ManyRowsInManyGroupsAreNoAttack) {
  // Takes the runs and keeps none: each would hold a list of all rows.
  class Forgetful : public CContextChangedHandler {
   public:
    void OnContextChanged(const wchar_t*, CRTFContext*) override { ++m_iRuns; }
    int m_iRuns = 0;
  };
  std::string data = "{";
  for (int i = 0; i < 50000; ++i) data += "\\trowd";
  for (int i = 0; i < 20000; ++i) data += "{\\trowd x}";
  data += '}';
  Forgetful handler;
  Parser parser(reinterpret_cast<unsigned char*>(data.data()), static_cast<int>(data.size()), &handler,
                nullptr);
  EXPECT_EQ(parser.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(handler.m_iRuns, 20000);
}

}  // namespace
