#include "rtf/RTFCharSets.h"
#include "rtf/RTFColor.h"
#include "rtf/RTFFont.h"
#include "rtf/RecordingHandler.h"
#include "support/ScopedEnvironment.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>

// From bytes to characters. The expected characters of code pages are those of Python's codecs of the same pages.
namespace {

using zebtest::RTFReading;
using zebtest::ScopedEnvironment;

/// The text of a document whose font 0 has the character set.
std::wstring TextIn(int charSet, const std::string& body) {
  const RTFReading reading("{\\rtf1{\\fonttbl{\\f0\\fcharset" + std::to_string(charSet) + " X;}}\\f0 " +
                           body + "}");
  EXPECT_EQ(reading.Result(), 0);
  return reading.Text();
}

std::wstring Western(const std::string& body) { return TextIn(0, body); }

TEST(RTFDecoding, EveryCharSetHasItsCodePage) {
  constexpr int kPages[][2] = {
      {0, 1252},   {1, 0},      {2, 42},     {77, 10000}, {78, 10001}, {79, 10003}, {80, 10008}, {81, 10002},
      {83, 10005}, {84, 10004}, {85, 10006}, {86, 10081}, {87, 10021}, {88, 10029}, {89, 10007}, {128, 932},
      {129, 949},  {130, 1361}, {134, 936},  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
      {186, 1257}, {204, 1251}, {222, 874},  {238, 1250}, {254, 437},  {255, 850},
  };
  for (int charSet = -1; charSet <= 300; ++charSet) {
    int expected = 950;
    for (const auto& row : kPages) {
      if (row[0] == charSet) expected = row[1];
    }
    EXPECT_EQ(zeb::CodePageOfCharSet(charSet), expected) << charSet;
  }
}

TEST(RTFDecoding, EveryCharSetDecodesItsBytes) {
  struct Row {
    int charSet;
    const char* bytes;
    const wchar_t* text;
  };
  constexpr Row kRows[] = {
      {0, R"(\'80\'e4)", L"\x20AC\xE4"},    {2, R"(\'b7\'41)", L"\xF0B7\xF041"},
      {77, R"(\'80\'db)", L"\xC4\x20AC"},   {78, R"(\'82\'a0)", L"\x3042"},
      {79, R"(\'b0\'a1)", L"\xAC00"},       {80, R"(\'c4\'e3)", L"\x4F60"},
      {81, R"(\'a4\'a4)", L"\x4E2D"},       {83, R"(\'e0\'fa)", L"\x5D0\x5EA"},
      {84, R"(\'c7\'ac)", L"\x627\x60C"},   {85, R"(\'b5\'e1)", L"\x392\x3B1"},
      {86, R"(\'da\'de)", L"\x11E\x15E"},   {87, R"(\'a1\'df)", L"\xE01\xE3F"},
      {88, R"(\'81\'8b)", L"\x100\x10D"},   {89, R"(\'80\'df)", L"\x410\x44F"},
      {128, R"(\'93\'fa)", L"\x65E5"},      {129, R"(\'c7\'d1)", L"\xD55C"},
      {130, R"(\'d0\'65)", L"\xD55C"},      {134, R"(\'b0\'a1)", L"\x554A"},
      {161, R"(\'c1\'fe)", L"\x391\x3CE"},  {162, R"(\'f0\'dd)", L"\x11F\x130"},
      {163, R"(\'f0\'fe)", L"\x111\x20AB"}, {177, R"(\'e0\'a4)", L"\x5D0\x20AA"},
      {178, R"(\'c7\'ed)", L"\x627\x64A"},  {186, R"(\'e0\'de)", L"\x105\x17D"},
      {204, R"(\'c0\'ff)", L"\x410\x44F"},  {222, R"(\'a1\'df)", L"\xE01\xE3F"},
      {238, R"(\'b9\'e8)", L"\x105\x10D"},  {254, R"(\'80\'db)", L"\xC7\x2588"},
      {255, R"(\'80\'d5)", L"\xC7\x131"},   {136, R"(\'a4\'40)", L"\x4E00"},
      {3, R"(\'a4\'40)", L"\x4E00"},        {1000, R"(\'a4\'40)", L"\x4E00"},
  };
  for (const Row& row : kRows) EXPECT_EQ(TextIn(row.charSet, row.bytes), row.text) << row.charSet;
}

TEST(RTFDecoding, DecodesAPlainByteByTheFontsCharSet) {
  EXPECT_EQ(Western("\xE4"), L"\xE4");
  EXPECT_EQ(Western("a\x80z"), L"a\x20ACz");
  EXPECT_EQ(TextIn(204, "\xC0\xFF"), L"\x410\x44F");
}

TEST(RTFDecoding, TakesTheSystemsPageForCharSetOne) {
  const ScopedEnvironment language("LC_ALL", "ru_RU.UTF-8");
  EXPECT_EQ(TextIn(1, "\xC0"), L"\x410");
}

TEST(RTFDecoding, TakesTheSystemsPageWithoutAFont) {
  const ScopedEnvironment language("LC_ALL", "ru_RU.UTF-8");
  EXPECT_EQ(RTFReading("{\\rtf1 \xC0}").Text(), L"\x410");
  EXPECT_EQ(RTFReading("{\\rtf1{\\fonttbl{\\f0\\fcharset0 X;}}\\f7 \xC0}").Text(), L"\x410");
}

TEST(RTFDecoding, ChangesTheCodePageWithTheFont) {
  const RTFReading reading(
      R"({\rtf1{\fonttbl{\f0\fcharset0 X;}{\f1\fcharset204 Y;}}\f0 \'e4\f1 \'e4{\f0 \'e4}\'e4})");
  EXPECT_EQ(reading.Text(), L"\xE4\x434\xE4\x434");
}

TEST(RTFDecoding, DoesNotSelectTheCodePageByAnsicpg) {
  EXPECT_EQ(RTFReading(R"({\rtf1\ansicpg1251{\fonttbl{\f0\fcharset0 X;}}\f0 \'e4})").Text(), L"\xE4");
}

TEST(RTFDecoding, FlushesAHexByteBeforeWhatFollows) {
  EXPECT_EQ(Western(R"(\'e4x)"), L"\xE4x");
  EXPECT_EQ(Western(R"(\'e4\tab x)"), L"\xE4\tx");
  EXPECT_EQ(Western(R"(\'e4{x})"), L"\xE4x");
  EXPECT_EQ(Western(R"({x\'e4}y)"), L"x\xE4y");
  EXPECT_EQ(Western(R"(\'e4\'f6\'fc)"), L"\xE4\xF6\xFC");
}

// Hex bytes in a row are pairs from the first one on, wherever the characters of a double-byte page begin.
TEST(RTFDecoding, FixedPairsHexBytesByTheirOrder) {
  EXPECT_EQ(TextIn(134, R"(\'b0\'a1\'c4\'e3)"), L"\x554A\x4F60");
  EXPECT_EQ(TextIn(134, R"(\'41\'b0\'a1)"), L"A\xB0\xA1");
}

TEST(RTFDecoding, FixedPlainBytesMakeNoPairs) {
  EXPECT_EQ(TextIn(134, "\xB0\xA1"), L"\xB0\xA1");
  EXPECT_EQ(TextIn(128, R"(\'83A)"),
            L"\x83"
            L"A");
}

TEST(RTFDecoding, LetsBytesThatDoNotConvertStandForThemselves) {
  EXPECT_EQ(TextIn(128, R"(\'83x)"), L"\x83x");
  EXPECT_EQ(TextIn(128, R"(\'83\'20)"), L"\x83 ");
  EXPECT_EQ(TextIn(161, R"(\'d2x)"), L"\xD2x");
  EXPECT_EQ(TextIn(161, R"(\'d2\'c1)"), L"\xD2\x391");
  EXPECT_EQ(TextIn(128, R"(\'b1\'83)"), L"\xFF71\x83");
}

TEST(RTFDecoding, TakesHalfWidthPairsAsTwoCharacters) {
  EXPECT_EQ(TextIn(128, R"(\'b1\'b2)"), L"\xFF71\xFF72");
}

// Hex bytes that follow each other directly are read at once. Line ends between their characters change nothing but
// that.
TEST(RTFDecoding, HexBytesInARowReadAsSingleOnes) {
  struct Row {
    const char* body;
    const wchar_t* text;
  };
  constexpr Row kRows[] = {
      {R"(\'b0\'a1\'c4\'e3)", L"\x554A\x4F60"},
      {R"(\'b0\'a1\'c4x)", L"\x554A\xC4x"},
      {R"(\'b0{\'a1}\'c4\'e3)", L"\xB0\xA1\x4F60"},
      {R"({\'b0\'a1\'c4}\'e3)", L"\x554A\xC4\xE3"},
      {R"(\'b0\tab\'a1)", L"\xB0\t\xA1"},
      {R"(\'b0\bin1 x\'a1)", L"\xB0x\xA1"},
      {R"(\uc2\u252\'61\'62\'b0\'a1)", L"\xFC\x554A"},
      {R"(\uc1\u252\'b0\'a1\'c4)", L"\xFC\x2227"},
      {R"(\uc3\u252\'b0\'a1)", L"\xFC"},
      {R"(\'00\'b0\'a1\'41\'00)", L"\x554A\x41"},
      {R"({\*\unknown\'41\'42}\'43)", L"\x43"},
      {R"(\'b0\'a10)", L"\x554A\x30"},
  };
  for (const Row& row : kRows) {
    std::string single;
    for (const char* at = row.body; *at != '\0'; ++at)
      single += *at == '\'' ? std::string("'\r\n") : std::string(1, *at);
    EXPECT_EQ(TextIn(134, row.body), row.text) << row.body;
    EXPECT_EQ(TextIn(134, single), row.text) << row.body;
  }
}

TEST(RTFDecoding, LineEndsDoNotPartPairs) {
  EXPECT_EQ(TextIn(134, "\\'b0\r\n\\'a1"), L"\x554A");
  EXPECT_EQ(TextIn(134, "\\'b0\r\n\\'a1\\'c4\n\\'e3"), L"\x554A\x4F60");
  EXPECT_EQ(TextIn(134, "\\'b0\\'a\n1\\'c4\\'e\r3"), L"\x554A\x4F60");
}

TEST(RTFDecoding, ABlankPartsPairs) {
  EXPECT_EQ(TextIn(134, R"(\'b0 \'a1)"),
            L"\xB0"
            L" \xA1");
}

TEST(RTFDecoding, FixedAWaitingDigitGoesBeforeThoseOfTheNextHexByte) {
  EXPECT_EQ(Western(R"({\'4}\'123)"), L"A23");
  EXPECT_EQ(TextIn(134, R"({\'b}\'0\'a1)"), L"\x554A");
  EXPECT_EQ(Western(R"(\'4\'42)"), L"D2");
  EXPECT_EQ(Western(R"(\'\'4142)"), L"A42");
}

TEST(RTFDecoding, FixedAHexByteTakesTheStarsEffect) {
  EXPECT_EQ(Western(R"({\*\'41\unknown x})"), L"Ax");
  EXPECT_EQ(Western(R"({\*\'41\'42\unknown x})"), L"ABx");
}

TEST(RTFDecoding, HexBytesInARowEndWithTheData) {
  const auto reading = [](const std::string& body) {
    return RTFReading("{\\fonttbl{\\f0\\fcharset134 X;}}\\f0 " + body);
  };
  EXPECT_EQ(reading(R"(\'b0\'a1)").Parser().GetTextContent(), L"\x554A");
  EXPECT_EQ(reading(R"(\'b0\'a1\'c4)").Parser().GetTextContent(), L"\x554A\xC4");
  EXPECT_EQ(reading(R"(\'b0\'a1\'c)").Parser().GetTextContent(), L"\x554A");
  EXPECT_EQ(reading(R"(\'b0\'a1\')").Parser().GetTextContent(), L"\x554A");
  EXPECT_EQ(reading(R"(\'b0\'a1\)").Result(), CRTFParser::rtfEndOfData);
  EXPECT_EQ(reading(R"(\'b0\'a1\'cg)").Result(), CRTFParser::rtfInvalidHex);
  EXPECT_EQ(reading(R"(\'b0\'a1\'cg)").Parser().GetTextContent(), L"\x554A");
}

TEST(RTFDecoding, PutsNoZeroCharacterIntoTheText) {
  EXPECT_EQ(Western(R"(a\'00b)"), L"ab");
  EXPECT_EQ(Western(R"(\'41\'00b)"), L"Ab");
  EXPECT_EQ(Western(R"(a\u0?b)"), L"ab");
  EXPECT_EQ(Western(R"(a\u65536?b)"), L"ab");
}

TEST(RTFDecoding, UnicodeTakesItsReplacement) {
  EXPECT_EQ(Western(R"(\uc1\u252?x)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\uc1\u252ux)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\uc2\u252ab)"), L"\xFC");
  EXPECT_EQ(Western(R"(\uc2\u252abx)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\uc2\u252\'61\'62x)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\uc2\u252\'61 x)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\uc3\u252?abx)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\u252 ax)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\u9786\'3f\u9787\'3f)"), L"\x263A\x263B");
}

TEST(RTFDecoding, FixedUc0CountsAsOne) {
  EXPECT_EQ(Western(R"(\uc0\u252xy)"), L"\xFCy");
  EXPECT_EQ(Western(R"(\u252xy)"), L"\xFCy");
}

TEST(RTFDecoding, FixedUnicodeSwallowsQuestionMarksAndASemicolon) {
  EXPECT_EQ(Western(R"(\u252;)"), L"\xFC");
  EXPECT_EQ(Western(R"(\u252;x)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\u252???x)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\u252?;?x)"), L"\xFCx");
  EXPECT_EQ(Western(R"(\uc3\u252;abc)"),
            L"\xFC"
            L"abc");
  EXPECT_EQ(Western(R"(\u252;;x)"), L"\xFC;x");
  EXPECT_EQ(Western(R"(\u252?;;?x)"), L"\xFC;?x");
}

TEST(RTFDecoding, FixedANegativeNumberIsPositive) {
  EXPECT_EQ(Western(R"(\u-4000?)"), L"\xFA0");
  EXPECT_EQ(Western(R"(\u4000?)"), L"\xFA0");
}

TEST(RTFDecoding, TakesTheLow16BitsOfACode) {
  EXPECT_EQ(Western(R"(\u65601?x)"), L"Ax");
  EXPECT_EQ(Western(R"(\u131105?)"), L"!");
  EXPECT_EQ(Western(R"(\u55357?\u56832?)"),
            std::wstring({static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)}));
}

TEST(RTFDecoding, KeywordsNeitherCountAsReplacementNorEndIt) {
  const RTFReading reading(R"({\rtf1\uc2\u252\b a\i bx})");
  EXPECT_EQ(reading.Outline(), L"[\xFC][x]");
  EXPECT_EQ(reading.Runs()[1].m_State.CharProps.Bold, 1);
}

TEST(RTFDecoding, ScopesTheReplacementsLengthByGroups) {
  EXPECT_EQ(Western(R"({\uc3 }\u252xy)"), L"\xFCy");
  EXPECT_EQ(Western(R"({\uc3\u252abc}\u252ab)"),
            L"\xFC\xFC"
            L"b");
}

TEST(RTFDecoding, UnicodeDoesNothingInASkippedGroup) {
  EXPECT_EQ(Western(R"({\*\unknown \u252}xy)"), L"xy");
  EXPECT_EQ(Western(R"({\*\unknown \u252?;}xy)"), L"xy");
}

TEST(RTFDecoding, FixedUnicodeInTheLevelsOfTablesIsText) {
  EXPECT_EQ(RTFReading(R"({\rtf1{\fonttbl\u65?{\f0 X;}}b})").Outline(), L"[A][b]");
  EXPECT_EQ(RTFReading(R"({\rtf1{\stylesheet\u65?{X;}}b})").Outline(), L"[A][b]");
  EXPECT_EQ(RTFReading(R"({\rtf1{\*\listtable\u65?}b})").Outline(), L"[A][b]");
  EXPECT_EQ(RTFReading(R"({\rtf1{\*\listoverridetable\u65?}b})").Outline(), L"[A][b]");
  EXPECT_EQ(RTFReading(R"({\rtf1{\pntext\u65?x}b})").Outline(), L"[A][b]");
}

TEST(RTFDecoding, UnicodeInAColorTableIsDropped) {
  const RTFReading reading(R"({\rtf1{\colortbl\red1\u59?\u65 x;}b})");
  EXPECT_EQ(reading.Outline(), L"[b]");
  ASSERT_NE(reading.Parser().GetColorAtID(0), nullptr);
  EXPECT_EQ(reading.Parser().GetColorAtID(0)->GetRed(), 1);
  EXPECT_EQ(reading.Parser().GetColorAtID(1), nullptr);
}

// Text of old list numbers is dropped, and so are its \u characters, except in \pntext: they go where text goes.
TEST(RTFDecoding, UnicodeInOldListNumbersIsNoText) {
  EXPECT_EQ(RTFReading(R"({\rtf1{\*\pn\u65?a{\pntxtb\u66?(}{\pntxta\u67?)}}b})").Outline(), L"[b]");
  EXPECT_EQ(RTFReading(R"({\rtf1{\pntxtb\u65?(}{\pntxta\u66?)}b})").Outline(), L"[b]");
}

// The font that a name belongs to is in no table yet while the name is read.
TEST(RTFDecoding, FixedFontNamesAreDecodedByTheSystemsPage) {
  const auto name = [] {
    const RTFReading reading(R"({\fonttbl{\f0\fcharset238 \'c0;}})");
    return std::wstring(reading.Parser().GetFontAtID(0)->GetFontFaceName());
  };
  {
    const ScopedEnvironment language("LC_ALL", "ru_RU.UTF-8");
    EXPECT_EQ(name(), L"\x410");
  }
  const ScopedEnvironment language("LC_ALL", "C");
  EXPECT_EQ(name(), L"\xC0");
}

TEST(RTFDecoding, UnicodeMakesNames) {
  const RTFReading reading(
      R"({\rtf1{\fonttbl{\f0 \u65?rial\u252?;}}{\*\bkmkstart \u65?b\'63}{\*\bkmkend \u65?}})");
  EXPECT_STREQ(reading.Parser().GetFontAtID(0)->GetFontFaceName(), L"Arial\xFC");
  ASSERT_EQ(reading.Bookmarks().size(), 2U);
  EXPECT_EQ(reading.Bookmarks()[0].first, L"Abc");
  EXPECT_EQ(reading.Bookmarks()[1].first, L"A");
}

TEST(RTFDecoding, WidensRawBytesAndKeywordCharactersByTheirValue) {
  EXPECT_EQ(TextIn(204, "\\bin1 \xC0\xC0"), L"\xC0\x410");
  EXPECT_EQ(TextIn(2, R"(\tab\ldblquote\rdblquote\\\{\})"), L"\t\"\"\\{}");
}

/// Opens what a subclass may call.
class OpenParser : public CRTFParser {
 public:
  explicit OpenParser(CContextChangedHandler* handler = nullptr) : CRTFParser(nullptr, 0, handler, nullptr) {}

  using CRTFParser::m_BookmarkBuffer;
  using CRTFParser::m_cbBin;
  using CRTFParser::m_CellBold;
  using CRTFParser::m_CellFont;
  using CRTFParser::m_CellFontSize;
  using CRTFParser::m_CellItalic;
  using CRTFParser::m_CellSub;
  using CRTFParser::m_CellSuper;
  using CRTFParser::m_CharProps;
  using CRTFParser::m_FontProps;
  using CRTFParser::m_NameBuffer;
  using CRTFParser::m_ParProps;
  using CRTFParser::m_PnAfter;
  using CRTFParser::m_PnBefore;
  using CRTFParser::m_rds;
  using CRTFParser::m_ris;
  using CRTFParser::m_TextBuffer;
  using CRTFParser::ParseChar;
  using CRTFParser::ParseMultiByteCharacter;
  using CRTFParser::ParseUnicodeChar;
  using CRTFParser::PrintChar;
  using CRTFParser::PrintUnicodeChar;

  /// Which buffers have the character: N name, B bookmark, b before, a after, T text.
  std::string Buffers() const {
    std::string names;
    if (!m_NameBuffer.empty()) names += 'N';
    if (!m_BookmarkBuffer.empty()) names += 'B';
    if (!m_PnBefore.empty()) names += 'b';
    if (!m_PnAfter.empty()) names += 'a';
    if (!m_TextBuffer.empty()) names += 'T';
    return names;
  }
};

struct DestinationRow {
  CRTFParser::RDS destination;
  const char* parseChar;
  const char* parseUnicodeChar;
  const char* printUnicodeChar;
  const char* printChar;
};

// rdsPicture drops the character here, since no wrapper announced the picture.
constexpr DestinationRow kDestinations[] = {
    {CRTFParser::rdsNorm, "T", "T", "T", "T"},
    {CRTFParser::rdsSkip, "", "", "T", "T"},
    {CRTFParser::rdsFontTable, "", "", "T", "T"},
    {CRTFParser::rdsFontEntry, "N", "N", "N", "T"},
    {CRTFParser::rdsStyleSheet, "", "", "T", "T"},
    {CRTFParser::rdsStyleEntry, "N", "N", "N", "T"},
    {CRTFParser::rdsColorTable, "", "", "", "T"},
    {CRTFParser::rdsPicture, "", "", "T", "T"},
    {CRTFParser::rdsListTable, "", "", "T", "T"},
    {CRTFParser::rdsListLevel, "", "", "T", "T"},
    {CRTFParser::rdsLevelText, "", "", "N", "N"},
    {CRTFParser::rdsLevelNumbers, "", "", "N", "N"},
    {CRTFParser::rdsListOverrideTable, "", "", "T", "T"},
    {CRTFParser::rdsListText, "N", "N", "N", "N"},
    {CRTFParser::rdsPn, "", "", "", ""},
    {CRTFParser::rdsBookmarkStart, "B", "B", "B", "B"},
    {CRTFParser::rdsBookmarkEnd, "B", "B", "B", "B"},
    {CRTFParser::rdsPnText, "", "", "T", "T"},
    {CRTFParser::rdsPnTextBefore, "", "", "b", "b"},
    {CRTFParser::rdsPnTextAfter, "", "", "a", "a"},
};
static_assert(std::size(kDestinations) == 20);

TEST(RTFDecoding, EveryDestinationHasItsBuffer) {
  for (const DestinationRow& row : kDestinations) {
    OpenParser parsedByte;
    parsedByte.m_rds = row.destination;
    EXPECT_EQ(parsedByte.ParseChar('x'), 0);
    EXPECT_EQ(parsedByte.Buffers(), row.parseChar) << row.destination;
    OpenParser parsed;
    parsed.m_rds = row.destination;
    EXPECT_EQ(parsed.ParseUnicodeChar(L'x'), 0);
    EXPECT_EQ(parsed.Buffers(), row.parseUnicodeChar) << row.destination;
    OpenParser wide;
    wide.m_rds = row.destination;
    EXPECT_EQ(wide.PrintUnicodeChar(L'x'), 0);
    EXPECT_EQ(wide.Buffers(), row.printUnicodeChar) << row.destination;
    OpenParser narrow;
    narrow.m_rds = row.destination;
    EXPECT_EQ(narrow.PrintChar('x'), 0);
    EXPECT_EQ(narrow.Buffers(), row.printChar) << row.destination;
  }
}

TEST(RTFDecoding, CharactersCountAsRawBytes) {
  OpenParser parser;
  parser.m_ris = CRTFParser::risBin;
  parser.m_cbBin = 2;
  parser.ParseUnicodeChar(L'a');
  EXPECT_EQ(parser.m_cbBin, 1);
  EXPECT_EQ(parser.m_ris, CRTFParser::risBin);
  parser.ParseUnicodeChar(L'b');
  EXPECT_EQ(parser.m_cbBin, 0);
  EXPECT_EQ(parser.m_ris, CRTFParser::risNorm);
  EXPECT_EQ(parser.m_TextBuffer, L"ab");
}

TEST(RTFDecoding, OnlyNarrowCharactersNoteTheFormattingOfACell) {
  OpenParser parser;
  parser.m_FontProps.FontId = 65539;
  parser.m_CharProps.FontSize = 30;
  parser.m_CharProps.Bold = 1;
  parser.m_CharProps.Italic = 2;
  parser.m_CharProps.Superscript = 3;
  parser.m_CharProps.Subscript = 4;
  parser.PrintChar('x');
  parser.m_ParProps.InTable = 1;
  parser.PrintUnicodeChar(L'x');
  EXPECT_EQ(parser.m_CellFontSize, 0);
  parser.PrintChar('x');
  EXPECT_EQ(parser.m_CellFont, 3);  // 16 bits
  EXPECT_EQ(parser.m_CellFontSize, 30);
  EXPECT_EQ(parser.m_CellBold, 1);
  EXPECT_EQ(parser.m_CellItalic, 2);
  EXPECT_EQ(parser.m_CellSuper, 3);
  EXPECT_EQ(parser.m_CellSub, 4);
}

TEST(RTFDecoding, ZeroesHexBytesAfterDecoding) {
  const ScopedEnvironment language("LC_ALL", "C");
  OpenParser parser;
  char pair[2] = {'a', 'b'};
  parser.ParseMultiByteCharacter(pair, 2);
  EXPECT_EQ(pair[0], 0);
  EXPECT_EQ(pair[1], 0);
  char single[2] = {'c', 0};
  parser.ParseMultiByteCharacter(single, 1);
  EXPECT_EQ(single[0], 0);
  EXPECT_EQ(parser.m_TextBuffer, L"abc");
}

std::wstring FontName(const std::string& head, const std::string& name) {
  const RTFReading reading("{\\rtf1" + head + "{\\fonttbl{\\f0\\fcharset134 " + name + ";}}}");
  EXPECT_EQ(reading.Result(), 0);
  return reading.Parser().GetFontAtID(0)->GetFontFaceName();
}

// The bytes CB CE and CC E5 are the name of a common Chinese font in page 936.
TEST(RTFDecoding, RepairsFontNamesOfPage936) {
  EXPECT_EQ(FontName(R"(\ansicpg936)", R"(\u52174?\u52453?)"), L"\x5B8B\x4F53");
  EXPECT_EQ(FontName(R"(\ansicpg1252)", R"(\u52174?\u52453?)"), L"\xCBCE\xCCE5");
  EXPECT_EQ(FontName("", R"(\u52174?\u52453?)"), L"\xCBCE\xCCE5");
  EXPECT_EQ(FontName(R"(\ansicpg936)", R"(\u16706?)"), L"AB");
}

TEST(RTFDecoding, LeavesOtherFontNamesAlone) {
  EXPECT_EQ(FontName(R"(\ansicpg936)", R"(\u52174?a)"),
            L"\xCBCE"
            L"a");
  EXPECT_EQ(FontName(R"(\ansicpg936)", R"(\u255?\u52453?)"), L"\xFF\xCCE5");
  EXPECT_EQ(FontName(R"(\ansicpg936)", R"(\u65535?)"), L"\xFFFF");
  EXPECT_EQ(FontName(R"(\ansicpg936)", ""), L"");
}

TEST(RTFDecoding, RepairsNoMoreThan255BytesOfAFontName) {
  std::string name;
  for (int count = 0; count < 128; ++count) name += R"(\u16705?)";  // the bytes of AA
  EXPECT_EQ(FontName(R"(\ansicpg936)", name), std::wstring(255, L'A'));
}

// The limit cuts the last pair in two: such bytes do not convert.
TEST(RTFDecoding, FixedA936NameOf128PairsStaysAsItIs) {
  std::string name;
  for (int count = 0; count < 127; ++count) name += R"(\u52174?)";
  EXPECT_EQ(FontName(R"(\ansicpg936)", name), std::wstring(127, L'\x5B8B'));
  EXPECT_EQ(FontName(R"(\ansicpg936)", name + R"(\u52174?)"), std::wstring(128, L'\xCBCE'));
}

}  // namespace
