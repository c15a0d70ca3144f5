#include "rtf/RTFParser.h"

#include "rtf/ParserProbe.h"
#include "rtf/RTFState.h"
#include "rtf/RecordingHandler.h"
#include "support/KeepForever.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

namespace {

using Parser = CRTFParser;
using zebtest::ParserProbe;
using zebtest::RTFReading;

int ResultOf(const std::string& data) { return RTFReading(data).Result(); }
std::wstring TextOf(const std::string& data) { return RTFReading(data).Text(); }

/// The text that a document leaves behind which no group's end hands on.
std::wstring Unreported(const std::string& data) {
  ParserProbe probe(data);
  probe.RtfParse();
  return probe.m_TextBuffer;
}

TEST(RTFParser, EnumerationsHaveTheirNumbers) {
  EXPECT_EQ(Parser::rdsNorm, 0);
  EXPECT_EQ(Parser::rdsSkip, 1);
  EXPECT_EQ(Parser::rdsFontTable, 2);
  EXPECT_EQ(Parser::rdsFontEntry, 3);
  EXPECT_EQ(Parser::rdsStyleSheet, 4);
  EXPECT_EQ(Parser::rdsStyleEntry, 5);
  EXPECT_EQ(Parser::rdsColorTable, 6);
  EXPECT_EQ(Parser::rdsPicture, 7);
  EXPECT_EQ(Parser::rdsListTable, 8);
  EXPECT_EQ(Parser::rdsListLevel, 9);
  EXPECT_EQ(Parser::rdsLevelText, 10);
  EXPECT_EQ(Parser::rdsLevelNumbers, 11);
  EXPECT_EQ(Parser::rdsListOverrideTable, 12);
  EXPECT_EQ(Parser::rdsListText, 13);
  EXPECT_EQ(Parser::rdsPn, 14);
  EXPECT_EQ(Parser::rdsBookmarkStart, 15);
  EXPECT_EQ(Parser::rdsBookmarkEnd, 16);
  EXPECT_EQ(Parser::rdsPnText, 17);
  EXPECT_EQ(Parser::rdsPnTextBefore, 18);
  EXPECT_EQ(Parser::rdsPnTextAfter, 19);
  EXPECT_EQ(Parser::risNorm, 0);
  EXPECT_EQ(Parser::risBin, 1);
  EXPECT_EQ(Parser::risHex, 2);
  EXPECT_EQ(Parser::rtfOK, 0);
  EXPECT_EQ(Parser::rtfStackUnderflow, 1);
  EXPECT_EQ(Parser::rtfNoMemory, 2);
  EXPECT_EQ(Parser::rtfUnmatchedBrace, 3);
  EXPECT_EQ(Parser::rtfInvalidHex, 4);
  EXPECT_EQ(Parser::rtfBadTable, 5);
  EXPECT_EQ(Parser::rtfBadState, 6);
  EXPECT_EQ(Parser::rtfEndOfData, 7);
}

TEST(RTFParser, InterfaceHasItsSignatures) {
  static_assert(
      std::is_constructible_v<Parser, unsigned char*, int, CContextChangedHandler*, CPictureConvertHandler*>);
  static_assert(std::is_same_v<decltype(&Parser::RtfParse), int (Parser::*)()>);
  static_assert(std::is_same_v<decltype(&Parser::GetFontAtID), CRTFFont* (Parser::*)(int) const>);
  static_assert(std::is_same_v<decltype(&Parser::GetColorAtID), CRTFColor* (Parser::*)(int) const>);
  static_assert(std::is_same_v<decltype(&Parser::GetStyleSheetAtID), CRTFStyleSheet* (Parser::*)(int) const>);
  static_assert(std::is_same_v<decltype(&Parser::GetTextContent), std::wstring (Parser::*)() const>);
  static_assert(std::is_same_v<decltype(&ParserProbe::TranslateKeyword), int (Parser::*)(char*, int, char)>);
  static_assert(std::is_same_v<decltype(&ParserProbe::ApplyPropChange), int (Parser::*)(Parser::IPROP, int)>);
  static_assert(
      std::is_same_v<decltype(&ParserProbe::ParseSpecialProperty), int (Parser::*)(Parser::IPROP, int)>);
  static_assert(std::is_same_v<decltype(&ParserProbe::ParseSpecialKeyword), int (Parser::*)(Parser::IPFN)>);
  static_assert(
      std::is_same_v<decltype(&ParserProbe::PropCanChangeContext), bool (Parser::*)(Parser::IPROP)>);
}

TEST(RTFParser, StartsWithNothing) {
  const ParserProbe probe("ab");
  EXPECT_EQ(probe.OffsetOfCursor(), 0);
  EXPECT_EQ(probe.m_cGroup, 0);
  EXPECT_EQ(probe.m_rds, Parser::rdsNorm);
  EXPECT_EQ(probe.m_ris, Parser::risNorm);
  EXPECT_EQ(probe.m_pStack, nullptr);
  EXPECT_EQ(probe.m_cbBin, 0);
  EXPECT_EQ(probe.m_lParam, 0);
  EXPECT_FALSE(probe.m_bSkipDestIfUnknown);
  EXPECT_TRUE(probe.m_Fonts.empty());
  EXPECT_EQ(probe.m_pCurFont, nullptr);
  EXPECT_TRUE(probe.m_StyleSheets.empty());
  EXPECT_EQ(probe.m_pCurStyle, nullptr);
  EXPECT_TRUE(probe.m_Colors.empty());
  EXPECT_EQ(probe.m_pCurColor, nullptr);
  EXPECT_EQ(probe.m_NameBuffer + probe.m_TextBuffer + probe.m_BookmarkBuffer, L"");
  EXPECT_EQ(probe.m_PnBefore + probe.m_PnAfter, L"");
  EXPECT_TRUE(probe.m_Lists.empty());
  EXPECT_TRUE(probe.m_ListOverrides.empty());
  EXPECT_EQ(probe.m_pCurList, nullptr);
  EXPECT_EQ(probe.m_pCurLevel, nullptr);
  EXPECT_FALSE(probe.m_InRow);
  EXPECT_EQ(probe.m_cSkip, 0);
}

// Results.

TEST(RTFParser, EmptyDataIsFine) {
  EXPECT_EQ(ResultOf(""), Parser::rtfOK);
  Parser parser(nullptr, 0, nullptr, nullptr);
  EXPECT_EQ(parser.RtfParse(), Parser::rtfOK);
}

TEST(RTFParser, NegativeLengthIsNoData) {
  unsigned char data[] = {'{'};
  Parser parser(data, -1, nullptr, nullptr);
  EXPECT_EQ(parser.RtfParse(), Parser::rtfOK);
}

TEST(RTFParser, ClosingBraceWithoutGroupUnderflows) {
  EXPECT_EQ(ResultOf("}"), Parser::rtfStackUnderflow);
  EXPECT_EQ(ResultOf("{a}}"), Parser::rtfStackUnderflow);
}

TEST(RTFParser, OpenGroupAtTheEndIsUnmatched) {
  EXPECT_EQ(ResultOf("{"), Parser::rtfUnmatchedBrace);
  RTFReading reading("{a{b}c");
  EXPECT_EQ(reading.Result(), Parser::rtfUnmatchedBrace);
  EXPECT_EQ(reading.Outline(), L"[ab]");
  EXPECT_EQ(reading.Parser().GetTextContent(), L"c");
}

TEST(RTFParser, NegativeDepthUnderflows) {
  ParserProbe probe("a");
  probe.m_cGroup = -1;
  EXPECT_EQ(probe.RtfParse(), Parser::rtfStackUnderflow);
  ParserProbe empty;
  empty.m_cGroup = -1;
  EXPECT_EQ(empty.RtfParse(), Parser::rtfStackUnderflow);
}

TEST(RTFParser, BackslashAsLastByteEndsInsideOfAKeyword) {
  EXPECT_EQ(ResultOf("\\"), Parser::rtfEndOfData);
  EXPECT_EQ(ResultOf("{abc\\"), Parser::rtfEndOfData);
}

TEST(RTFParser, MinusAsLastByteEndsInsideOfAKeyword) { EXPECT_EQ(ResultOf("{\\li-"), Parser::rtfEndOfData); }

TEST(RTFParser, UnknownInternalStateIsRefused) {
  ParserProbe probe("a");
  probe.m_ris = 3;
  EXPECT_EQ(probe.RtfParse(), Parser::rtfBadState);
}

TEST(RTFParser, FixedZeroByteIsTheEndOfTheData) {
  EXPECT_EQ(ResultOf(std::string("{a}\0{", 5)), Parser::rtfOK);
  EXPECT_EQ(ResultOf(std::string("{a\0}", 4)), Parser::rtfUnmatchedBrace);
  EXPECT_EQ(ResultOf(std::string("{\\\0}", 4)), Parser::rtfEndOfData);
  EXPECT_EQ(ResultOf(std::string("{\\li-\0}", 7)), Parser::rtfEndOfData);
  EXPECT_EQ(ResultOf(std::string("{\\bin3 a\0b}", 11)), Parser::rtfUnmatchedBrace);
}

TEST(RTFParser, KeywordInFrontOfAZeroByteLeavesNoText) {
  // The zero byte is gone over as any other, so that going back ends in front of it.
  EXPECT_EQ(Unreported(std::string("\\b\0x", 4)), L"");
  EXPECT_EQ(Unreported(std::string("a\\'41\0x", 7)), L"aA");
}

TEST(RTFParser, StopsAtTheFirstFailure) {
  RTFReading reading("{a\\par b\\par\\'xx c\\par}");
  EXPECT_EQ(reading.Result(), Parser::rtfInvalidHex);
  EXPECT_EQ(reading.Outline(), L"[a]P[b]P");
  EXPECT_EQ(reading.Parser().GetTextContent(), L"");
}

TEST(RTFParser, FailureLeavesTheTextThatIsNotYetReported) {
  RTFReading reading("{a\\par b\\'xx c\\par}");
  EXPECT_EQ(reading.Result(), Parser::rtfInvalidHex);
  EXPECT_EQ(reading.Outline(), L"[a]P");
  EXPECT_EQ(reading.Parser().GetTextContent(), L"b");
}

TEST(RTFParser, FixedHexDigitWaitsBehindItsGroup) {
  // The first digit is kept when its group ends; the next hex byte needs one digit only.
  EXPECT_EQ(TextOf("{{\\'4}\\'1x}"), L"Ax");
}

TEST(RTFParser, EveryBeginningOfADocumentEndsWithACode) {
  const std::string document =
      "{\\rtf1\\ansi\\ansicpg936\\deff0{\\fonttbl{\\f0\\fcharset0 Arial;}{\\f1\\fcharset134 Song;}}"
      "{\\colortbl;\\red255\\green0\\blue0;}{\\stylesheet{\\s1\\b Head;}{\\*\\cs2 Char;}}"
      "{\\*\\listtable{\\list\\listsimple{\\listlevel\\levelnfc0{\\leveltext\\'01.;}{\\levelnumbers;}}"
      "\\listid7}}"
      "{\\*\\listoverridetable{\\listoverride\\listid7\\listoverridecount0\\ls1}}"
      "{\\info{\\title T}}\\pard\\s1\\ls1\\ilvl0 {\\listtext 1.\\tab}a\\'e4\\'f6 b\\u252?\\line{\\bin3 {\\}c}"
      "{\\*\\shppict{\\pict\\pngblip\\picw10 89504e47}}{\\nonshppict{\\pict 0102}}"
      "{\\*\\bkmkstart m}{\\*\\bkmkend m}{\\pntext 1}\\trowd\\clbrdrt\\brdrw5\\cellx100\\intbl "
      "x\\cell\\row\\pard}";
  EXPECT_EQ(ResultOf(document), Parser::rtfOK);
  for (std::size_t length = 0; length < document.size(); ++length) {
    const int result = ResultOf(document.substr(0, length));
    EXPECT_GE(result, 0) << length;
    EXPECT_LE(result, 7) << length;
    if (length > 0) {
      EXPECT_NE(result, Parser::rtfOK) << length;
    }
  }
}

// Bytes.

TEST(RTFParser, GetCharGivesZeroAtTheEndAndStays) {
  ParserProbe probe("ab");
  EXPECT_EQ(probe.GetChar(), 'a');
  EXPECT_EQ(probe.GetChar(), 'b');
  EXPECT_EQ(probe.GetChar(), 0);
  EXPECT_EQ(probe.GetChar(), 0);
  probe.UnGetChar();
  EXPECT_EQ(probe.GetChar(), 'b');
}

TEST(RTFParser, UnGetCharStaysInTheData) {
  ParserProbe probe("ab");
  probe.UnGetChar();
  EXPECT_EQ(probe.GetChar(), 'a');
  probe.UnGetChar();
  probe.UnGetChar();
  EXPECT_EQ(probe.GetChar(), 'a');
}

TEST(RTFParser, LineEndsInTextAreIgnored) { EXPECT_EQ(TextOf("{a\r\nb\nc\rd}"), L"abcd"); }

TEST(RTFParser, LongTextComesWhole) {
  std::string data = "{\\rtf1 ";
  std::wstring expected;
  for (int i = 0; i < 3000; ++i) {
    const char letter = static_cast<char>('!' + i % 59);  // up to '['
    data += letter;
    expected += static_cast<wchar_t>(letter);
    if (i % 700 == 699) data += "\r\n";
  }
  RTFReading reading(data + "}");
  EXPECT_EQ(reading.Result(), Parser::rtfOK);
  EXPECT_EQ(reading.Text(), expected);
}

TEST(RTFParser, LongTextIsDecodedAsByteByByte) {
  for (const int charSet : {0, 1, 2, 77, 128, 134, 136, 204, 255}) {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
      const char ch = static_cast<char>(byte);
      if (ch != '\n' && ch != '\r' && ch != '\\' && ch != '{' && ch != '}') bytes += ch;
    }
    const std::string head = "{\\fonttbl{\\f3\\fcharset" + std::to_string(charSet) + " Font;}}\\f3\n";
    ParserProbe single(head);
    EXPECT_EQ(single.RtfParse(), Parser::rtfOK);
    for (const char ch : bytes) single.ParseMultiByteCharacter(static_cast<unsigned char>(ch));
    ParserProbe whole(head + bytes);
    EXPECT_EQ(whole.RtfParse(), Parser::rtfOK);
    EXPECT_EQ(whole.m_TextBuffer, single.m_TextBuffer) << charSet;
    EXPECT_EQ(whole.m_TextBuffer.size(), bytes.size()) << charSet;
  }
}

TEST(RTFParser, SkippedBytesOfLongTextAreCounted) {
  EXPECT_EQ(TextOf("{\\uc3\\u65 abcdef}"), L"Adef");
  EXPECT_EQ(TextOf("{\\uc5\\u65 ab\r\nc{d\\b e}f}"), L"Af");
  EXPECT_EQ(TextOf("{\\uc2\\u65 \\'41\\'42\\'43 d}"), L"AC d");
}

TEST(RTFParser, SkippedBytesAreCountedInSkippedGroups) {
  EXPECT_EQ(TextOf("{\\uc3\\u65{\\*\\unk ab}cd}"), L"Ad");
  // A hex byte is none there: its two digits count.
  EXPECT_EQ(TextOf("{\\uc3\\u65{\\*\\unk \\'41}cd}"), L"Ad");
}

TEST(RTFParser, RawBytesAndKeywordsAreNoSkippedBytes) {
  EXPECT_EQ(TextOf("{\\uc2\\u65\\bin2 xyabz}"), L"Axyz");
  EXPECT_EQ(TextOf("{\\uc1\\u65\\tab xb}"), L"A\tb");
  EXPECT_EQ(TextOf("{\\uc2\\u65\\{xyb}"), L"A{b");
}

// Hex bytes.

TEST(RTFParser, HexByteLosesItsDigitAtTheEnd) {
  RTFReading reading("\\'4");
  EXPECT_EQ(reading.Result(), Parser::rtfOK);
  EXPECT_EQ(reading.Parser().GetTextContent(), L"");
}

TEST(RTFParser, HexByteTakesDigitsOfBothCases) { EXPECT_EQ(TextOf("{\\'4a\\'4B\\'4A\\'4b}"), L"JKJK"); }

TEST(RTFParser, HexByteRefusesAnythingElse) {
  for (const char* data : {"\\'4x", "\\'x4", "\\'4 ", "\\'4g", "\\'4G", "\\'@4", "\\'`4", "\\':4", "\\'/4"}) {
    EXPECT_EQ(ResultOf(data), Parser::rtfInvalidHex) << data;
  }
}

TEST(RTFParser, LineEndsInsideOfAHexByteAreIgnored) { EXPECT_EQ(TextOf("{\\'4\n1\\'\r\n42}"), L"AB"); }

TEST(RTFParser, HexByteIsFlushedByEveryEvent) {
  EXPECT_EQ(TextOf("{\\'41x}"), L"Ax");
  EXPECT_EQ(TextOf("{\\'41}"), L"A");
  EXPECT_EQ(TextOf("{\\'41{x}}"), L"Ax");
  EXPECT_EQ(RTFReading("{\\'41\\b x}").Outline(), L"[A][x]");
  EXPECT_EQ(TextOf("{\\'41\\'42}"), L"AB");
  EXPECT_EQ(TextOf("{\\'41\\'42\\'43}"), L"ABC");
  EXPECT_EQ(Unreported("\\'41"), L"A");
  EXPECT_EQ(TextOf("{\\'41\\bin1 x}"), L"Ax");
}

TEST(RTFParser, HexZeroIsDropped) { EXPECT_EQ(TextOf("{a\\'00b}"), L"ab"); }

TEST(RTFParser, FixedKeywordsBetweenHexDigitsAreRead) {
  // A digit waits while other things pass; the group has its own state in between.
  RTFReading reading("{\\'4\\b 1}");
  EXPECT_EQ(reading.Result(), Parser::rtfOK);
  EXPECT_EQ(reading.Text(), L"A");
  EXPECT_EQ(reading.Runs().at(0).m_State.CharProps.Bold, 1);
  EXPECT_EQ(TextOf("{\\'4{x}1}"), L"xA");
}

TEST(RTFParser, FixedBackslashAtTheEndBehindAHexByteIsAKeyword) {
  // Looking for a second hex byte behind the data goes back to the backslash, which is then its own keyword.
  ParserProbe probe("\\'41\\");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_TextBuffer, L"A\\");
}

// Raw bytes.

TEST(RTFParser, RawBytesPassWhateverTheyAre) {
  RTFReading reading("{a\\bin3 {\\}b}");
  EXPECT_EQ(reading.Result(), Parser::rtfOK);
  EXPECT_EQ(reading.Text(), L"a{\\}b");
}

TEST(RTFParser, RawBytesKeepLineEnds) { EXPECT_EQ(TextOf("{\\bin2 \r\nb}"), L"\r\nb"); }

TEST(RTFParser, FixedRawBytesLoseLeadingBlanks) {
  // The blanks behind the keyword are swallowed, so they are none of the three.
  EXPECT_EQ(TextOf("{\\bin3   abcd}"), L"abcd");
  EXPECT_EQ(TextOf("{\\bin3   {{{d}"), L"{{{d");
}

TEST(RTFParser, FixedRawBytesWithoutCountTakeTheLastNumber) {
  EXPECT_EQ(TextOf("{\\fs4\\bin {{{{a}"), L"{{{{a");
}

TEST(RTFParser, FixedNoRawBytesAreOne) {
  EXPECT_EQ(TextOf("{\\bin0 {a}"), L"{a");
  EXPECT_EQ(TextOf("{\\bin {a}"), L"{a");
}

TEST(RTFParser, FixedNegativeCountOfRawBytesIsPositive) { EXPECT_EQ(TextOf("{\\bin-2 {{a}"), L"{{a"); }

TEST(RTFParser, RawBytesAreSteppedOverInSkippedGroups) {
  RTFReading reading("{a{\\info\\bin3 }}}lost}b}");
  EXPECT_EQ(reading.Result(), Parser::rtfOK);
  EXPECT_EQ(reading.Text(), L"ab");
}

TEST(RTFParser, RawBytesCutByTheEnd) {
  EXPECT_EQ(ResultOf("{\\bin99 abc}"), Parser::rtfUnmatchedBrace);
  EXPECT_EQ(ResultOf("\\bin2147483647 abc}"), Parser::rtfOK);
}

// Keywords.

TEST(RTFParser, UnknownKeywordIsDroppedWithItsParameter) {
  EXPECT_EQ(TextOf("{\\unknownkw text}"), L"text");
  EXPECT_EQ(TextOf("{\\unknownkw-12 text}"), L"text");
  EXPECT_EQ(TextOf("{\\unknownkw12text}"), L"text");
  EXPECT_EQ(TextOf("{a\\~b\\_c}"), L"abc");
}

TEST(RTFParser, UnknownKeywordBehindAStarSkipsTheGroup) {
  EXPECT_EQ(TextOf("{\\*\\unknownkw text}"), L"");
  EXPECT_EQ(TextOf("{a{\\*\\unknownkw{x}}b}"), L"ab");
  EXPECT_EQ(TextOf("{\\*\\fooo{x}}"), L"");
}

TEST(RTFParser, KnownKeywordBehindAStarSkipsNothing) {
  RTFReading reading("{\\*\\b text}");
  EXPECT_EQ(reading.Text(), L"text");
  EXPECT_EQ(reading.Runs().at(0).m_State.CharProps.Bold, 1);
}

TEST(RTFParser, StarCountsForTheNextKeywordOnly) {
  EXPECT_EQ(TextOf("{\\*\\b\\unknownkw text}"), L"text");
  EXPECT_EQ(TextOf("{\\*text\\unknownkw lost}"), L"text");
  EXPECT_EQ(TextOf("{\\*\\'41\\unknownkw text}"), L"Atext");
}

TEST(RTFParser, FixedStarCountsAcrossBraces) {
  EXPECT_EQ(TextOf("{\\*{\\unknownkw lost}text}"), L"text");
  EXPECT_EQ(TextOf("{a{\\*}{\\unknownkw lost}b}"), L"ab");
  EXPECT_EQ(TextOf("{\\*\\\nlost}"), L"");  // an escaped line end is an unknown keyword
}

TEST(RTFParser, FixedAllBlanksBehindAKeywordAreSwallowed) {
  EXPECT_EQ(TextOf("{\\b    text}"), L"text");
  EXPECT_EQ(TextOf("{\\b0    text}"), L"text");
  EXPECT_EQ(TextOf("{\\unknownkw   text}"), L"text");
  EXPECT_EQ(TextOf("{\\b\ttext}"), L"\ttext");
}

TEST(RTFParser, BlanksBehindAControlSymbolAreText) { EXPECT_EQ(TextOf("{\\~ a\\{ b}"), L" a{ b"); }

TEST(RTFParser, FixedNegativeParameterArrivesPositive) {
  ParserProbe probe("\\li-720\\ri-1 \n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_ParProps.LeftIndent, 720);
  EXPECT_EQ(probe.m_ParProps.RightIndent, 1);
  EXPECT_EQ(probe.m_lParam, 1);
}

TEST(RTFParser, MinusWithoutDigitsIsNoParameter) {
  ParserProbe probe("\\paperw-x\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_DocProps.PaperWidth, 12240);
  EXPECT_EQ(probe.m_TextBuffer, L"x");
}

TEST(RTFParser, SecondMinusIsText) {
  ParserProbe probe("\\li--5 \n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_ParProps.LeftIndent, 0);
  EXPECT_EQ(probe.m_TextBuffer, L"-5 ");
}

TEST(RTFParser, ParameterSaturates) {
  constexpr int kMax = std::numeric_limits<int>::max();
  for (const char* digits : {"2147483647", "2147483648", "9999999999", "9999999999999999999",
                             "99999999999999999999999999999999999999999"}) {
    ParserProbe probe(std::string("\\li") + digits + "\\ri-" + digits + " \n");
    EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
    EXPECT_EQ(probe.m_ParProps.LeftIndent, kMax) << digits;
    EXPECT_EQ(probe.m_ParProps.RightIndent, kMax) << digits;
    EXPECT_EQ(probe.m_lParam, kMax) << digits;
  }
}

TEST(RTFParser, ParameterKeepsItsFirstNineteenDigits) {
  ParserProbe probe("\\li00000000000000001234567\\fi0000000000000000012 \n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_ParProps.LeftIndent, 123);
  EXPECT_EQ(probe.m_ParProps.FirstIndent, 12);
}

TEST(RTFParser, LastNumberStaysWithoutParameter) {
  ParserProbe probe("\\li5\\b\\unknownkw7\\i \n");
  EXPECT_EQ(probe.m_lParam, 0);
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_lParam, 7);
}

TEST(RTFParser, LongKeywordIsUnknownAndReadWhole) {
  for (const std::size_t length : {29U, 30U, 31U, 32U, 1000U, 100000U}) {
    const std::string letters(length, 'b');
    EXPECT_EQ(TextOf("{\\" + letters + "5 x}"), L"x") << length;
    EXPECT_EQ(TextOf("{\\*\\" + letters + "5 x}"), L"") << length;
  }
}

TEST(RTFParser, KeywordsHaveTheirCase) {
  ParserProbe probe("\\B\\I x\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_CharProps.Bold, 0);
  EXPECT_EQ(probe.m_CharProps.Italic, 0);
}

TEST(RTFParser, FixedKeywordAtTheVeryEndLeavesItsLastByteAsText) {
  EXPECT_EQ(Unreported("\\b"), L"b");
  EXPECT_EQ(Unreported("\\li20"), L"0");
  EXPECT_EQ(Unreported("\\b "), L" ");
  EXPECT_EQ(ResultOf("\\b"), Parser::rtfOK);
}

TEST(RTFParser, BytesAbove127AreNoLetters) {
  // The byte alone is a keyword that is unknown.
  EXPECT_EQ(TextOf("{a\\\xe4"
                   "b}"),
            L"ab");
}

TEST(RTFParser, EmptyKeywordFindsTheFirstRow) {
  ParserProbe probe;
  char none[] = "";
  EXPECT_EQ(probe.TranslateKeyword(none, 0, 0), Parser::rtfOK);
  EXPECT_EQ(probe.m_TextBuffer, L"\n");
}

// Destinations.

TEST(RTFParser, ChangeDestDoesNothingInASkippedGroup) {
  ParserProbe probe;
  for (int dest = 0; dest <= 18; ++dest) {
    probe.m_rds = Parser::rdsSkip;
    EXPECT_EQ(probe.ChangeDest(static_cast<Parser::IDEST>(dest)), Parser::rtfOK);
    EXPECT_EQ(probe.m_rds, Parser::rdsSkip) << dest;
  }
}

TEST(RTFParser, ChangeDestGoesFromWhereItMay) {
  struct Change {
    int m_iDest;
    int m_iFrom;  // -1 for any
    int m_iTo;
  };
  const Change changes[] = {{0, -1, 7},  {1, -1, 1},  {2, -1, 2},   {3, 2, 3},   {4, -1, 4},
                            {5, 4, 5},   {6, -1, 6},  {7, 0, 14},   {8, 0, 15},  {9, 0, 16},
                            {10, 0, 17}, {11, 0, 18}, {12, 0, 19},  {13, -1, 8}, {14, -1, 9},
                            {15, 9, 10}, {16, 9, 11}, {17, -1, 12}, {18, 0, 13}};
  for (const Change& change : changes) {
    for (int from = 0; from <= 19; ++from) {
      if (from == Parser::rdsSkip) continue;
      ParserProbe probe;
      probe.m_rds = static_cast<Parser::RDS>(from);
      EXPECT_EQ(probe.ChangeDest(static_cast<Parser::IDEST>(change.m_iDest)), Parser::rtfOK);
      const bool goes = change.m_iFrom == -1 || change.m_iFrom == from;
      EXPECT_EQ(probe.m_rds, goes ? change.m_iTo : from) << change.m_iDest << " from " << from;
      EXPECT_EQ(probe.m_CharProps.PnText, change.m_iDest == 10 && goes ? 1 : 0);
    }
  }
}

TEST(RTFParser, PicturesAndOldListNumbersAreNoText) {
  EXPECT_EQ(TextOf("{a{\\pict 0102}{\\pn x{\\pntxtb (}{\\pntxta )}}{\\pntext 1.}b}"), L"ab");
}

TEST(RTFParser, EndOfAGroupResetsItsDestination) {
  ParserProbe probe;
  for (int dest = 0; dest <= 19; ++dest) {
    probe.m_rds = static_cast<Parser::RDS>(dest);
    EXPECT_EQ(probe.EndGroupAction(probe.m_rds), Parser::rtfOK) << dest;
    EXPECT_EQ(probe.m_rds, Parser::rdsNorm) << dest;
  }
}

TEST(RTFParser, SpecialKeywordsAreIgnoredInSkippedGroupsButForBin) {
  ParserProbe probe;
  probe.m_rds = Parser::rdsSkip;
  probe.m_lParam = 9;
  EXPECT_EQ(probe.ParseSpecialKeyword(Parser::ipfnHex), Parser::rtfOK);
  EXPECT_EQ(probe.m_ris, Parser::risNorm);
  EXPECT_EQ(probe.ParseSpecialKeyword(Parser::ipfnSkipDest), Parser::rtfOK);
  EXPECT_FALSE(probe.m_bSkipDestIfUnknown);
  EXPECT_EQ(probe.ParseSpecialKeyword(Parser::ipfnBin), Parser::rtfOK);
  EXPECT_EQ(probe.m_ris, Parser::risBin);
  EXPECT_EQ(probe.m_cbBin, 9);
}

TEST(RTFParser, MarkOfAnOldListNumberEndsWithItsGroup) {
  ParserProbe probe("{\\pntext x}\n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_CharProps.PnText, 0);
}

// The class itself.

TEST(RTFParser, CopySharesWhatItsSourceOwns) {
  std::string data = "{\\fonttbl{\\f0 Arial;}}{open";
  auto& source = zebtest::KeepForever(new Parser(reinterpret_cast<unsigned char*>(data.data()),
                                                 static_cast<int>(data.size()), nullptr, nullptr));
  EXPECT_EQ(source.RtfParse(), Parser::rtfUnmatchedBrace);
  const Parser& copy = zebtest::KeepForever(new Parser(source));
  EXPECT_EQ(copy.GetTextContent(), source.GetTextContent());
  EXPECT_EQ(copy.GetFontAtID(0), source.GetFontAtID(0));
  // What the target of an assignment owned is kept by its own copy, since it is not freed.
  auto& target = zebtest::KeepForever(new Parser(nullptr, 0, nullptr, nullptr));
  zebtest::KeepForever(new Parser(target));
  target = source;
  EXPECT_EQ(target.GetTextContent(), L"\n\nopen");
  EXPECT_EQ(target.GetFontAtID(0), source.GetFontAtID(0));
}

TEST(RTFParser, HasAVirtualDestructor) { EXPECT_TRUE(std::has_virtual_destructor_v<Parser>); }

}  // namespace
