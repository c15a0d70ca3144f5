#include "rtf/ParserProbe.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFState.h"
#include "rtf/RTFStyleSheet.h"
#include "rtf/RecordingHandler.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using Parser = CRTFParser;
using zebtest::ParserProbe;
using zebtest::RTFReading;

int ResultOf(const std::string& data) { return RTFReading(data).Result(); }

/// The character properties behind a piece of text.
CCharacterProperties CharactersBehind(const std::string& data) {
  ParserProbe probe(data + "\n");
  probe.RtfParse();
  return probe.m_CharProps;
}

TEST(RTFParserProperties, SwitchesTakeTheirParameter) {
  EXPECT_EQ(CharactersBehind("\\b").Bold, 1);
  EXPECT_EQ(CharactersBehind("\\b\\b0").Bold, 0);
  EXPECT_EQ(CharactersBehind("\\ul5").Underline, 5);
  EXPECT_EQ(CharactersBehind("\\ul\\ulnone").Underline, 0);
  EXPECT_EQ(CharactersBehind("\\ul\\ulnone5").Underline, 0);
  EXPECT_EQ(CharactersBehind("\\b-3").Bold, 3);
}

TEST(RTFParserProperties, FixedPlainAndSectdLeaveTheFormatting) {
  EXPECT_EQ(CharactersBehind("\\b\\plain").Bold, 1);
  ParserProbe probe("\\cols3\\sectd\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_SecProps.Columns, 3);
}

TEST(RTFParserProperties, FixedDeftabIsAlways720) {
  ParserProbe probe("\\deftab360 \n");
  probe.m_DocProps.DefaultTab = 1;
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_DocProps.DefaultTab, 720);
}

TEST(RTFParserProperties, FixedPgnstartIsAlways1) {
  ParserProbe probe("\\pgnstart9 \n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_DocProps.PageNumberStart, 1);
}

TEST(RTFParserProperties, RowsWithoutKeywordReset) {
  ParserProbe probe;
  probe.m_CharProps.Bold = 1;
  probe.m_CharProps.FontSize = 90;
  probe.m_SecProps.Columns = 3;
  EXPECT_EQ(probe.ApplyPropChange(Parser::ipropPlain, 0), Parser::rtfOK);
  EXPECT_EQ(probe.m_CharProps.Bold, 0);
  EXPECT_EQ(probe.m_CharProps.FontSize, 24);
  EXPECT_EQ(probe.m_SecProps.Columns, 3);
  EXPECT_EQ(probe.ApplyPropChange(Parser::ipropSectd, 0), Parser::rtfOK);
  EXPECT_EQ(probe.m_SecProps.Columns, 0);
}

TEST(RTFParserProperties, NothingChangesInASkippedGroup) {
  ParserProbe probe;
  probe.m_rds = Parser::rdsSkip;
  for (int prop = 0; prop < 106; ++prop) {
    EXPECT_EQ(probe.ApplyPropChange(static_cast<Parser::IPROP>(prop), 1), Parser::rtfOK) << prop;
  }
  EXPECT_TRUE(probe.m_CharProps == CCharacterProperties());
  EXPECT_TRUE(probe.m_ParProps == CParagraphProperties());
  EXPECT_TRUE(probe.m_SecProps == CSectionProperties());
  EXPECT_TRUE(probe.m_DocProps == CDocumentProperties());
  EXPECT_TRUE(probe.m_FontProps == CFontProperties());
}

TEST(RTFParserProperties, ElevenPropertiesCloseARun) {
  const std::set<int> closing = {0, 1, 2, 3, 4, 5, 30, 32, 38, 39, 40};
  ParserProbe probe;
  for (int prop = 0; prop < 106; ++prop) {
    EXPECT_EQ(probe.PropCanChangeContext(static_cast<Parser::IPROP>(prop)), closing.count(prop) == 1) << prop;
  }
  probe.m_rds = Parser::rdsFontEntry;
  EXPECT_FALSE(probe.PropCanChangeContext(Parser::ipropFontId));
  EXPECT_TRUE(probe.PropCanChangeContext(Parser::ipropStyle));
  probe.m_rds = Parser::rdsStyleSheet;
  EXPECT_TRUE(probe.PropCanChangeContext(Parser::ipropFontId));
  EXPECT_FALSE(probe.PropCanChangeContext(Parser::ipropStyle));
  EXPECT_FALSE(probe.PropCanChangeContext(static_cast<Parser::IPROP>(106)));
}

TEST(RTFParserProperties, RunEndsBeforeItsPropertyChanges) {
  RTFReading reading("{a\\b b}");
  ASSERT_EQ(reading.Outline(), L"[a][b]");
  EXPECT_EQ(reading.Runs()[0].m_State.CharProps.Bold, 0);
  EXPECT_EQ(reading.Runs()[1].m_State.CharProps.Bold, 1);
}

TEST(RTFParserProperties, EachFormattingPropertyEndsARun) {
  for (const char* keyword : {"b", "i", "ul", "super", "sub", "fs30", "f7", "cf1", "cb1"}) {
    EXPECT_EQ(RTFReading(std::string("{a\\") + keyword + " b}").Outline(), L"[a][b]") << keyword;
    EXPECT_EQ(RTFReading(std::string("{\\") + keyword + " a\\" + keyword + " b}").Outline(), L"[ab]")
        << keyword;
  }
  for (const char* keyword :
       {"li5", "qc", "cols2", "paperw9", "uc2", "fcharset2", "chcfpat1", "pard", "tx5"}) {
    EXPECT_EQ(RTFReading(std::string("{a\\") + keyword + " b}").Outline(), L"[ab]") << keyword;
  }
}

TEST(RTFParserProperties, FixedByteIsComparedWithTheWholeValue) {
  // 298 is stored as 42, so that the second 298 is a change again.
  EXPECT_EQ(RTFReading("{\\fs298 a\\fs298 b}").Outline(), L"[a][b]");
  RTFReading reading("{\\fs298 a}");
  EXPECT_EQ(reading.Runs().at(0).m_State.CharProps.FontSize, 42);
}

TEST(RTFParserProperties, NoPropertyEndsARunInATable) {
  RTFReading reading("{\\intbl a\\b b\\fs30 c\\cf1 d\\super e\\nosupersub f\\cell}");
  EXPECT_EQ(reading.Outline(), L"[abcdef]P[]T");
}

TEST(RTFParserProperties, NosupersubClearsBothInATable) {
  ParserProbe probe("\\intbl\\super\\sub\\nosupersub\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_CharProps.Superscript, 0);
  EXPECT_EQ(probe.m_CharProps.Subscript, 0);
}

TEST(RTFParserProperties, NosupersubEndsARunIfOneIsOn) {
  EXPECT_EQ(RTFReading("{\\super a\\nosupersub b}").Outline(), L"[a][b]");
  EXPECT_EQ(RTFReading("{\\sub a\\nosupersub b}").Outline(), L"[a][b]");
  EXPECT_EQ(RTFReading("{a\\nosupersub b}").Outline(), L"[ab]");
  const CCharacterProperties both = CharactersBehind("\\super\\sub\\nosupersub");
  EXPECT_EQ(both.Superscript, 0);
  EXPECT_EQ(both.Subscript, 0);
}

TEST(RTFParserProperties, EveryValueButZeroIsOn) {
  EXPECT_EQ(RTFReading("{\\super5 a\\nosupersub b}").Outline(), L"[a][b]");
  EXPECT_EQ(RTFReading("{\\sub255 a\\nosupersub b}").Outline(), L"[a][b]");
  EXPECT_EQ(RTFReading("{\\super0 a\\nosupersub b}").Outline(), L"[ab]");
  EXPECT_EQ(CharactersBehind("\\super5\\sub255\\nosupersub").Superscript, 0);
  EXPECT_EQ(CharactersBehind("\\super5\\sub255\\nosupersub").Subscript, 0);
}

TEST(RTFParserProperties, FixedParameterOf256ClearsASwitch) {
  // Only the low byte is stored, which is zero.
  EXPECT_EQ(CharactersBehind("\\b\\b256").Bold, 0);
}

TEST(RTFParserProperties, LineEndsARunWithALineBreak) {
  EXPECT_EQ(RTFReading("{a\\line b\\line}").Outline(), L"[a]L[b]L");
}

TEST(RTFParserProperties, PardResetsTheParagraph) {
  ParserProbe probe("\\li5\\qc\\tx9\\tqr\\shading3\\pard\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_TRUE(probe.m_ParProps == CParagraphProperties());
}

TEST(RTFParserProperties, PardEndsATable) {
  EXPECT_EQ(RTFReading("{\\intbl a\\pard b}").Outline(), L"[a]T[b]");
}

TEST(RTFParserProperties, FixedPartsOfAColorOutsideOfTheTableEndTheReading) {
  EXPECT_EQ(ResultOf("{\\red255}"), Parser::rtfBadTable);
  EXPECT_EQ(ResultOf("{\\green1}"), Parser::rtfBadTable);
  EXPECT_EQ(ResultOf("{\\blue}"), Parser::rtfBadTable);
  EXPECT_EQ(ResultOf("{\\info\\red255}"), Parser::rtfOK);
}

TEST(RTFParserProperties, FixedListoverridestartatEndsTheReading) {
  EXPECT_EQ(ResultOf("{\\listoverridestartat}"), Parser::rtfBadTable);
  EXPECT_EQ(ResultOf("{\\listoverridetable{\\listoverridestartat1}}"), Parser::rtfBadTable);
  EXPECT_EQ(ResultOf("{{\\info\\listoverridestartat}}"), Parser::rtfOK);
}

TEST(RTFParserProperties, IgnoredKeywordsChangeNothing) {
  for (const char* keyword : {"trbrdrh", "trbrdrv", "brdrs", "listname", "listoverrideformat"}) {
    RTFReading reading(std::string("{a\\") + keyword + "5 b}");
    EXPECT_EQ(reading.Result(), Parser::rtfOK) << keyword;
    EXPECT_EQ(reading.Outline(), L"[ab]") << keyword;
  }
}

TEST(RTFParserProperties, PropertiesThatAreStoredAreNotSpecial) {
  std::set<int> special = {5, 24, 27, 28, 35, 36, 37, 38, 45, 47, 48, 72, 73};
  for (int prop = 51; prop <= 68; ++prop) special.insert(prop);
  for (int prop = 74; prop <= 91; ++prop) special.insert(prop);
  for (int prop = 0; prop < 106; ++prop) {
    // The three parts of a colour are special, but in the colour table only; 92 is refused everywhere.
    ParserProbe probe;
    probe.m_rds = Parser::rdsListText;
    EXPECT_EQ(probe.ParseSpecialProperty(static_cast<Parser::IPROP>(prop), 0),
              special.count(prop) == 1 ? Parser::rtfOK : Parser::rtfBadTable)
        << prop;
  }
}

TEST(RTFParserProperties, StyleReplacesFourObjectsAndKeepsTheTable) {
  ParserProbe probe("{\\stylesheet{\\s3\\b\\li7\\cols2\\f4 Head;}}\\fs30\\paperw9\\intbl\\s3\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  ASSERT_NE(probe.m_pCurStyle, nullptr);
  EXPECT_EQ(probe.m_pCurStyle, probe.GetStyleSheetAtID(3));
  EXPECT_EQ(probe.m_CharProps.Bold, 1);
  EXPECT_EQ(probe.m_CharProps.FontSize, 24);
  EXPECT_EQ(probe.m_ParProps.LeftIndent, 7);
  EXPECT_EQ(probe.m_ParProps.InTable, 1);
  EXPECT_EQ(probe.m_SecProps.Columns, 2);
  EXPECT_EQ(probe.m_FontProps.FontId, 4);
  EXPECT_EQ(probe.m_DocProps.PaperWidth, 9);
}

TEST(RTFParserProperties, StyleOfATableMakesNoTable) {
  ParserProbe probe("{\\stylesheet{\\s3\\intbl X;}}\\s3\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  ASSERT_NE(probe.GetStyleSheetAtID(3), nullptr);
  EXPECT_EQ(probe.GetStyleSheetAtID(3)->GetParProps().InTable, 1);
  EXPECT_EQ(probe.m_ParProps.InTable, 0);
}

TEST(RTFParserProperties, UnknownStyleChangesNothing) {
  ParserProbe probe("\\b\\s9\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_pCurStyle, nullptr);
  EXPECT_EQ(probe.m_CharProps.Bold, 1);
}

TEST(RTFParserProperties, StyleClosesNoRunByItself) {
  EXPECT_EQ(RTFReading("{{\\stylesheet{\\s3\\b Head;}}a\\s3 b}").Outline(), L"[ab]");
}

}  // namespace
