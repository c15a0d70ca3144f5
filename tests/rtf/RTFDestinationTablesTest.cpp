#include "rtf/RTFColor.h"
#include "rtf/RTFFont.h"
#include "rtf/RTFListLevelEntry.h"
#include "rtf/RTFListTableEntry.h"
#include "rtf/RTFStyleSheet.h"
#include "rtf/RecordingHandler.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

// Fonts, styles and colours of a document. That each is freed once is for the memory checkers to see.
namespace {

using zebtest::RTFReading;

const CRTFFont* Font(const RTFReading& reading, int id) { return reading.Parser().GetFontAtID(id); }

std::wstring FontName(const RTFReading& reading, int id) {
  const CRTFFont* const font = Font(reading, id);
  return font == nullptr ? L"none" : font->GetFontFaceName();
}

/// Red, green, blue.
std::tuple<int, int, int> Parts(const RTFReading& reading, int id) {
  const CRTFColor* const color = reading.Parser().GetColorAtID(id);
  if (color == nullptr) return {-1, -1, -1};
  return {color->GetRed(), color->GetGreen(), color->GetBlue()};
}

using RGB = std::tuple<int, int, int>;
const RGB kNone = {-1, -1, -1};

TEST(RTFDestinationTables, KnowsNothingAtTheStart) {
  const RTFReading reading("");
  EXPECT_EQ(reading.Parser().GetFontAtID(0), nullptr);
  EXPECT_EQ(reading.Parser().GetColorAtID(0), nullptr);
  EXPECT_EQ(reading.Parser().GetStyleSheetAtID(0), nullptr);
}

TEST(RTFDestinationTables, ReadsFonts) {
  const RTFReading reading(R"({\fonttbl{\f0 Arial;}{\f1 Courier}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(FontName(reading, 0), L"Arial");
  EXPECT_EQ(FontName(reading, 1), L"Courier");
  EXPECT_EQ(Font(reading, 2), nullptr);
  EXPECT_EQ(Font(reading, -1), nullptr);
}

TEST(RTFDestinationTables, GivesAFontItsCharSet) {
  const RTFReading reading(R"({\fonttbl{\f3\fswiss\fprq2\fcharset204 Arial Cyr;}{\f2\fcharset2 Symbol;}})");
  ASSERT_NE(Font(reading, 3), nullptr);
  EXPECT_EQ(Font(reading, 3)->GetFontCharSet(), 204);
  EXPECT_EQ(FontName(reading, 3), L"Arial Cyr");
  EXPECT_EQ(Font(reading, 3)->GetFontFamily(), 0);
  EXPECT_EQ(Font(reading, 3)->GetFontPitch(), 0);
  EXPECT_EQ(Font(reading, 2)->GetFontCharSet(), 2);
}

TEST(RTFDestinationTables, TheFirstFontOfANumberStays) {
  const RTFReading reading(
      R"({\fonttbl{\f0\fcharset1 First;}{\f0\fcharset2 Second;}{\f1 Third;}{\f0 Fourth;}})");
  EXPECT_EQ(FontName(reading, 0), L"First");
  EXPECT_EQ(Font(reading, 0)->GetFontCharSet(), 1);
  EXPECT_EQ(FontName(reading, 1), L"Third");
}

TEST(RTFDestinationTables, CutsOneSemicolonOffAFontName) {
  const RTFReading reading(R"({\fonttbl{\f0 a;;}{\f1 b;c}{\f2 ;}{\f3}})");
  EXPECT_EQ(FontName(reading, 0), L"a;");
  EXPECT_EQ(FontName(reading, 1), L"b;c");
  EXPECT_EQ(FontName(reading, 2), L"");
  EXPECT_EQ(FontName(reading, 3), L"");
}

TEST(RTFDestinationTables, SkipsUnknownGroupsInsideAFont) {
  const RTFReading reading(R"({\fonttbl{\f0\froman{\*\panose 020206}Times{\*\falt Tms};}})");
  EXPECT_EQ(FontName(reading, 0), L"Times");
}

TEST(RTFDestinationTables, FontPropertiesEndWithTheirEntry) {
  const RTFReading reading(R"({\rtf1{\fonttbl{\f5\fcharset2 X;}{Y;}}a})");
  EXPECT_EQ(FontName(reading, 5), L"X");
  EXPECT_EQ(FontName(reading, 0), L"Y");
  EXPECT_EQ(Font(reading, 0)->GetFontCharSet(), 0);
  EXPECT_EQ(reading.Runs()[0].m_State.FontProps.FontId, 0);
  EXPECT_EQ(reading.Runs()[0].m_Context.Font, Font(reading, 0));
}

// Real files also have font tables without a group per font: no entry comes of that.
TEST(RTFDestinationTables, FixedAFontWithoutAGroupIsNone) {
  const RTFReading reading(R"({\fonttbl\f0\froman Times;})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Font(reading, 0), nullptr);
}

// A second font table inside an entry: the outer group ends with the inner font as its current one.
TEST(RTFDestinationTables, TakesNestedFontTables) {
  const RTFReading reading(R"({\fonttbl{\f1 a{\pict\fonttbl{\f2 b;}}\f3 c;}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Font(reading, 1), nullptr);
  ASSERT_NE(Font(reading, 2), nullptr);
  EXPECT_EQ(Font(reading, 2), Font(reading, 3));
}

TEST(RTFDestinationTables, TakesANestedFontThatComesTooLate) {
  const RTFReading reading(R"({\fonttbl{\f1 a;}{\f2 b{\pict\fonttbl{\f1 c;}}d;}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(FontName(reading, 1), L"a");
  EXPECT_EQ(Font(reading, 2), nullptr);
}

TEST(RTFDestinationTables, ReadsStyles) {
  const RTFReading reading(
      R"({\rtf1{\stylesheet{\s0 Normal;}{\s1\b\li720\cols2\f3 heading 1;}{\*\cs10\i Emphasis;}}})");
  EXPECT_EQ(reading.Result(), 0);
  const CRTFStyleSheet* const normal = reading.Parser().GetStyleSheetAtID(0);
  ASSERT_NE(normal, nullptr);
  EXPECT_STREQ(normal->GetStyleSheetName(), L"Normal");
  EXPECT_EQ(normal->GetCharProps().Bold, 0);
  const CRTFStyleSheet* const heading = reading.Parser().GetStyleSheetAtID(1);
  ASSERT_NE(heading, nullptr);
  EXPECT_EQ(heading->GetStyleSheetIndex(), 1);
  EXPECT_STREQ(heading->GetStyleSheetName(), L"heading 1");
  EXPECT_EQ(heading->GetCharProps().Bold, 1);
  EXPECT_EQ(heading->GetParProps().LeftIndent, 720);
  EXPECT_EQ(heading->GetSecProps().Columns, 2);
  EXPECT_EQ(heading->GetFontProps().FontId, 3);
  EXPECT_EQ(reading.Parser().GetStyleSheetAtID(10), nullptr);
}

TEST(RTFDestinationTables, AStyleWithoutANumberIsZero) {
  const RTFReading reading(R"({\stylesheet{Normal;}{\s0 Other;}})");
  EXPECT_STREQ(reading.Parser().GetStyleSheetAtID(0)->GetStyleSheetName(), L"Normal");
}

TEST(RTFDestinationTables, TheFirstStyleOfANumberStays) {
  const RTFReading reading(R"({\stylesheet{\s4\b first;}{\s4\i second;}{\s5 third;}})");
  EXPECT_STREQ(reading.Parser().GetStyleSheetAtID(4)->GetStyleSheetName(), L"first");
  EXPECT_EQ(reading.Parser().GetStyleSheetAtID(4)->GetCharProps().Italic, 0);
  EXPECT_STREQ(reading.Parser().GetStyleSheetAtID(5)->GetStyleSheetName(), L"third");
}

TEST(RTFDestinationTables, AStyleOfItsOwnMovesToItsLastNumber) {
  const RTFReading reading(R"({\stylesheet{\s4\s6 a;}})");
  EXPECT_EQ(reading.Parser().GetStyleSheetAtID(4), nullptr);
  EXPECT_NE(reading.Parser().GetStyleSheetAtID(6), nullptr);
}

TEST(RTFDestinationTables, TakesNestedStyleSheets) {
  const RTFReading reading(R"({\stylesheet{\s1 a{\pict\stylesheet{\s2 b;}}\s3 c;}{\s9 d;}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Parser().GetStyleSheetAtID(1), nullptr);
  ASSERT_NE(reading.Parser().GetStyleSheetAtID(2), nullptr);
  EXPECT_EQ(reading.Parser().GetStyleSheetAtID(2), reading.Parser().GetStyleSheetAtID(3));
  EXPECT_EQ(reading.Parser().GetStyleSheetAtID(2)->GetStyleSheetIndex(), 3);
}

// A reference to a missing style while another one is being read leaves that one without its current object.
TEST(RTFDestinationTables, TakesALostStyle) {
  const RTFReading reading(R"({\stylesheet{\s1 a{\pict\s99}b;}{\s2 c;}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Parser().GetStyleSheetAtID(1), nullptr);
  EXPECT_STREQ(reading.Parser().GetStyleSheetAtID(2)->GetStyleSheetName(), L"c");
}

TEST(RTFDestinationTables, ReadsColors) {
  const RTFReading reading(R"({\colortbl;\red255\green0\blue0;})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Parts(reading, 0), RGB(0, 0, 0));
  EXPECT_EQ(Parts(reading, 1), RGB(255, 0, 0));
  EXPECT_EQ(Parts(reading, 2), kNone);
  EXPECT_EQ(Parts(reading, -1), kNone);
}

TEST(RTFDestinationTables, NumbersColorsInTheirOrder) {
  const RTFReading reading(R"({\colortbl\red1\green2\blue3;\green4;\blue5 anything;\red6})");
  EXPECT_EQ(Parts(reading, 0), RGB(1, 2, 3));
  EXPECT_EQ(Parts(reading, 1), RGB(0, 4, 0));
  EXPECT_EQ(Parts(reading, 2), RGB(0, 0, 5));
  EXPECT_EQ(Parts(reading, 3), kNone);
  EXPECT_EQ(reading.Outline(), L"");
}

TEST(RTFDestinationTables, ASecondColorTableGoesOnCounting) {
  const RTFReading reading(R"({\rtf1{\colortbl\red1;}{\colortbl\red2;}})");
  EXPECT_EQ(Parts(reading, 0), RGB(1, 0, 0));
  EXPECT_EQ(Parts(reading, 1), RGB(2, 0, 0));
}

TEST(RTFDestinationTables, KeepsTheLowByteOfAColorsPart) {
  EXPECT_EQ(Parts(RTFReading(R"({\colortbl\red256\green257\blue-3;})"), 0), RGB(0, 1, 3));
}

TEST(RTFDestinationTables, TakesAHexSemicolon) {
  EXPECT_EQ(Parts(RTFReading(R"({\colortbl\red1\'3b\red2;})"), 1), RGB(2, 0, 0));
}

TEST(RTFDestinationTables, TakesNestedColorTables) {
  const RTFReading reading(R"({\colortbl\red1{\pict{\colortbl\red2;}};\red3;})");
  EXPECT_EQ(Parts(reading, 0), RGB(2, 0, 0));
  EXPECT_EQ(Parts(reading, 1), RGB(0, 0, 0));
  EXPECT_EQ(Parts(reading, 2), RGB(3, 0, 0));
}

TEST(RTFDestinationTables, GoesOnWithANewColorBehindANestedTable) {
  const RTFReading reading(R"({\colortbl\red1{\pict{\colortbl\red2}}\green3;})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Parts(reading, 0), RGB(0, 3, 0));
  EXPECT_EQ(Parts(reading, 1), kNone);
}

TEST(RTFDestinationTables, ARawSemicolonEndsAColor) {
  const RTFReading reading(R"({\colortbl\red1\bin1 ;\red2;})");
  EXPECT_EQ(Parts(reading, 0), RGB(1, 0, 0));
  EXPECT_EQ(Parts(reading, 1), RGB(2, 0, 0));
}

TEST(RTFDestinationTables, ColorsClearTheNameBuffer) {
  const RTFReading reading(R"({\rtf1{\*\listtable{\list{\listlevel}\listid7}})"
                           R"({\*\listoverridetable{\listoverride\listid7\ls1}})"
                           R"({\ls1\ilvl0{\listtext 1{\colortbl;}2}x}})");
  EXPECT_EQ(reading.Result(), 0);
  ASSERT_EQ(reading.Outline(), L"[x]");
  EXPECT_STREQ(reading.Runs()[0].m_Context.Level->GetListText(), L"2\t");
}

TEST(RTFDestinationTables, ADocumentCutOffFreesWhatIsPending) {
  for (const char* const cut : {R"({\fonttbl{\f0 Ari)", R"({\stylesheet{\s1 a)", R"({\colortbl\red1)",
                                R"({\fonttbl{\fonttbl{\f0)", R"({\colortbl\colortbl\colortbl)"}) {
    EXPECT_EQ(RTFReading(cut).Result(), 3) << cut;
  }
}

// As many fonts as numbers of 16 bits, and the same again: work grows with the number of entries alone.
TEST(RTFDestinationTables, TakesFontTablesOfAnySize) {
  std::string text = "{\\rtf1{\\fonttbl";
  for (int round = 0; round < 2; ++round) {
    for (int id = 0; id < 32761; ++id) text += "{\\f" + std::to_string(id) + " X;}";
  }
  const RTFReading reading(text + "}}");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(FontName(reading, 32760), L"X");
  EXPECT_EQ(Font(reading, 32761), nullptr);
}

TEST(RTFDestinationTables, TakesStyleSheetsOfAnySize) {
  std::string text = "{\\rtf1{\\stylesheet";
  for (int id = 0; id < 20000; ++id) text += "{\\s" + std::to_string(id) + ";}{;}";
  const RTFReading reading(text + "}}");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_NE(reading.Parser().GetStyleSheetAtID(19999), nullptr);
}

}  // namespace
