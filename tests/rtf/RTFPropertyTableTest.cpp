#include "rtf/RTFPropertyTable.h"

#include "rtf/ParserProbe.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFState.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using Parser = CRTFParser;
using zebtest::ParserProbe;

/// A property that a keyword stores, and how to see it.
struct Stored {
  int m_iProp;
  char m_cAction;  // b byte, i int
  int m_iArea;
  const char* m_pKeyword;
  int m_iWithout;  // after the keyword alone
  int m_iWith;     // after the keyword with the parameter 77
  std::function<int(const ParserProbe&)> m_Value;
};

#define CHAR_FIELD(name) [](const ParserProbe& p) -> int { return p.m_CharProps.name; }
#define PAR_FIELD(name) [](const ParserProbe& p) -> int { return p.m_ParProps.name; }
#define SEC_FIELD(name) [](const ParserProbe& p) -> int { return p.m_SecProps.name; }
#define DOC_FIELD(name) [](const ParserProbe& p) -> int { return p.m_DocProps.name; }
#define FONT_FIELD(name) [](const ParserProbe& p) -> int { return p.m_FontProps.name; }

// clang-format off
const std::vector<Stored>& AllStored() {
  static const std::vector<Stored> all = {
      {0, 'b', 0, "b", 1, 77, CHAR_FIELD(Bold)},
      {1, 'b', 0, "i", 1, 77, CHAR_FIELD(Italic)},
      {2, 'b', 0, "ul", 1, 77, CHAR_FIELD(Underline)},
      {2, 'b', 0, "ulnone", 0, 0, CHAR_FIELD(Underline)},
      {3, 'b', 0, "super", 1, 77, CHAR_FIELD(Superscript)},
      {3, 'b', 0, "up", 1, 77, CHAR_FIELD(Superscript)},
      {4, 'b', 0, "sub", 1, 77, CHAR_FIELD(Subscript)},
      {4, 'b', 0, "dn", 1, 77, CHAR_FIELD(Subscript)},
      {6, 'i', 1, "li", 0, 77, PAR_FIELD(LeftIndent)},
      {7, 'i', 1, "ri", 0, 77, PAR_FIELD(RightIndent)},
      {8, 'i', 1, "fi", 0, 77, PAR_FIELD(FirstIndent)},
      {9, 'i', 2, "cols", 1, 77, SEC_FIELD(Columns)},
      {10, 'i', 2, "pgnx", 0, 77, SEC_FIELD(PageNumberX)},
      {11, 'i', 2, "pgny", 0, 77, SEC_FIELD(PageNumberY)},
      {12, 'i', 3, "paperw", 12240, 77, DOC_FIELD(PaperWidth)},
      {13, 'i', 3, "paperh", 15480, 77, DOC_FIELD(PaperHeight)},
      {14, 'i', 3, "margl", 1800, 77, DOC_FIELD(MarginLeft)},
      {15, 'i', 3, "margr", 1800, 77, DOC_FIELD(MarginRight)},
      {16, 'i', 3, "margt", 1440, 77, DOC_FIELD(MarginTop)},
      {17, 'i', 3, "margb", 1440, 77, DOC_FIELD(MarginBottom)},
      {18, 'i', 3, "pgnstart", 1, 1, DOC_FIELD(PageNumberStart)},
      {19, 'b', 2, "sbknone", 0, 0, SEC_FIELD(SectionBreak)},
      {19, 'b', 2, "sbkcol", 1, 1, SEC_FIELD(SectionBreak)},
      {19, 'b', 2, "sbkeven", 2, 2, SEC_FIELD(SectionBreak)},
      {19, 'b', 2, "sbkodd", 3, 3, SEC_FIELD(SectionBreak)},
      {19, 'b', 2, "sbkpage", 4, 4, SEC_FIELD(SectionBreak)},
      {20, 'b', 2, "pgndec", 0, 0, SEC_FIELD(PageNumberFormat)},
      {20, 'b', 2, "pgnucrm", 1, 1, SEC_FIELD(PageNumberFormat)},
      {20, 'b', 2, "pgnlcrm", 2, 2, SEC_FIELD(PageNumberFormat)},
      {20, 'b', 2, "pgnucltr", 3, 3, SEC_FIELD(PageNumberFormat)},
      {20, 'b', 2, "pgnlcltr", 4, 4, SEC_FIELD(PageNumberFormat)},
      {21, 'b', 3, "facingp", 1, 1, DOC_FIELD(FacingPages)},
      {22, 'b', 3, "landscape", 1, 1, DOC_FIELD(Landscape)},
      {23, 'b', 1, "qc", 2, 2, PAR_FIELD(Justification)},
      {23, 'b', 1, "ql", 0, 0, PAR_FIELD(Justification)},
      {23, 'b', 1, "qr", 1, 1, PAR_FIELD(Justification)},
      {23, 'b', 1, "qj", 3, 3, PAR_FIELD(Justification)},
      {25, 'b', 1, "pndec", 1, 77, PAR_FIELD(PnDecimal)},
      {26, 'b', 1, "pnlvlblt", 1, 77, PAR_FIELD(PnBullet)},
      {29, 'i', 3, "deff", 0, 77, DOC_FIELD(DefaultFont)},
      {30, 'b', 0, "fs", 22, 77, CHAR_FIELD(FontSize)},
      {31, 'i', 4, "fcharset", 0, 77, FONT_FIELD(CharSet)},
      {32, 'i', 4, "f", 0, 77, FONT_FIELD(FontId)},
      {33, 'b', 3, "rtf", 0, 77, DOC_FIELD(RtfVersion)},
      {34, 'b', 0, "uc", 0, 77, CHAR_FIELD(UnicodeSkip)},
      {39, 'i', 4, "cf", 0, 77, FONT_FIELD(ForeColorIndex)},
      {40, 'i', 4, "cb", 0, 77, FONT_FIELD(BackColorIndex)},
      {44, 'i', 3, "deftab", 720, 720, DOC_FIELD(DefaultTab)},
      {46, 'i', 1, "tqr", 1, 1, PAR_FIELD(TabKind)},
      {46, 'i', 1, "tqc", 2, 2, PAR_FIELD(TabKind)},
      {46, 'i', 1, "tqdec", 3, 3, PAR_FIELD(TabKind)},
      {49, 'i', 3, "trleft", 0, 77, DOC_FIELD(RowLeft)},
      {50, 'i', 3, "trhdr", 1, 1, DOC_FIELD(RowHeader)},
      {69, 'b', 0, "jpegblip", 1, 1, CHAR_FIELD(JpegBlip)},
      {70, 'b', 0, "emfblip", 1, 1, CHAR_FIELD(EmfBlip)},
      {71, 'b', 0, "pngblip", 1, 1, CHAR_FIELD(PngBlip)},
      {93, 'b', 0, "chshdng", 0, 77, CHAR_FIELD(CharShading)},
      {94, 'b', 0, "chcfpat", 0, 77, CHAR_FIELD(CharForeColor)},
      {95, 'b', 0, "chcbpat", 0, 77, CHAR_FIELD(CharBackColor)},
      {96, 'b', 1, "shading", 0, 77, PAR_FIELD(Shading)},
      {97, 'b', 1, "cfpat", 0, 77, PAR_FIELD(ForeColor)},
      {98, 'b', 1, "cbpat", 0, 77, PAR_FIELD(BackColor)},
      {99, 'i', 0, "picw", 0, 77, CHAR_FIELD(PicWidth)},
      {100, 'i', 0, "pich", 0, 77, CHAR_FIELD(PicHeight)},
      {101, 'i', 0, "picwgoal", 0, 77, CHAR_FIELD(PicWidthGoal)},
      {102, 'i', 0, "pichgoal", 0, 77, CHAR_FIELD(PicHeightGoal)},
      {103, 'i', 0, "picscalex", 0, 77, CHAR_FIELD(PicScaleX)},
      {104, 'i', 0, "picscaley", 0, 77, CHAR_FIELD(PicScaleY)},
      {105, 'i', 3, "ansicpg", 0, 77, DOC_FIELD(AnsiCodePage)},
  };
  return all;
}
// clang-format on

constexpr int kSpecialProps[] = {5,  24, 27, 28, 35, 36, 37, 38, 41, 42, 43, 45, 47, 48, 51, 52, 53, 54,
                                 55, 56, 57, 58, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 72, 73, 74, 75,
                                 76, 77, 78, 79, 80, 81, 82, 83, 84, 85, 86, 87, 88, 89, 90, 91, 92};

TEST(RTFPropertyTable, EachRowIsSpecialOrStores) {
  std::vector<int> actions(zeb::kRTFPropertyTable.size(), -1);
  for (const int prop : kSpecialProps) actions[static_cast<std::size_t>(prop)] = 0;
  for (const Stored& stored : AllStored()) {
    const auto row = static_cast<std::size_t>(stored.m_iProp);
    actions[row] = stored.m_cAction == 'b' ? 1 : 2;
    EXPECT_EQ(zeb::kRTFPropertyTable[row].Area, stored.m_iArea) << stored.m_pKeyword;
  }
  for (std::size_t row = 0; row < actions.size(); ++row) {
    EXPECT_EQ(zeb::kRTFPropertyTable[row].Action, actions[row]) << row;
  }
}

TEST(RTFPropertyTable, IsCopiedIntoEachParser) {
  const ParserProbe probe;
  for (std::size_t row = 0; row < zeb::kRTFPropertyTable.size(); ++row) {
    EXPECT_EQ(probe.m_pPropTable[row].Action, zeb::kRTFPropertyTable[row].Action);
    EXPECT_EQ(probe.m_pPropTable[row].Area, zeb::kRTFPropertyTable[row].Area);
    EXPECT_EQ(probe.m_pPropTable[row].Field, zeb::kRTFPropertyTable[row].Field);
  }
}

TEST(RTFPropertyTable, KeywordWithoutParameterStoresItsDefault) {
  for (const Stored& stored : AllStored()) {
    // A value that the keyword cannot leave by chance comes first, where it takes one.
    ParserProbe probe(std::string("\\") + stored.m_pKeyword + "66\\" + stored.m_pKeyword + "\n");
    EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
    EXPECT_EQ(stored.m_Value(probe), stored.m_iWithout) << stored.m_pKeyword;
  }
}

TEST(RTFPropertyTable, FixedKeywordWithParameterStoresItOrItsDefaultAlways) {
  for (const Stored& stored : AllStored()) {
    ParserProbe probe(std::string("\\") + stored.m_pKeyword + "77 \n");
    EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
    EXPECT_EQ(stored.m_Value(probe), stored.m_iWith) << stored.m_pKeyword;
  }
}

TEST(RTFPropertyTable, KeywordChangesNoOtherField) {
  for (const Stored& stored : AllStored()) {
    ParserProbe probe(std::string("\\") + stored.m_pKeyword + "77 \n");
    const ParserProbe untouched;
    EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
    for (const Stored& other : AllStored()) {
      if (other.m_iProp == stored.m_iProp) continue;
      EXPECT_EQ(other.m_Value(probe), other.m_Value(untouched))
          << stored.m_pKeyword << ' ' << other.m_pKeyword;
    }
  }
}

TEST(RTFPropertyTable, BytesKeepTheLowByte) {
  for (const Stored& stored : AllStored()) {
    if (stored.m_cAction != 'b' || stored.m_iWith != 77) continue;
    ParserProbe probe(std::string("\\") + stored.m_pKeyword + "333 \n");
    EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
    EXPECT_EQ(stored.m_Value(probe), 77) << stored.m_pKeyword;
  }
}

TEST(RTFPropertyTable, IntsKeepTheWholeValue) {
  for (const Stored& stored : AllStored()) {
    if (stored.m_cAction != 'i' || stored.m_iWith != 77) continue;
    ParserProbe probe(std::string("\\") + stored.m_pKeyword + "70077 \n");
    EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
    EXPECT_EQ(stored.m_Value(probe), 70077) << stored.m_pKeyword;
  }
}

TEST(RTFPropertyTable, FixedFontSizeChangesItsLowByteOnly) {
  ParserProbe probe;
  probe.m_CharProps.FontSize = 0x1234;
  EXPECT_EQ(probe.ApplyPropChange(Parser::ipropFontSize, 0x777), Parser::rtfOK);
  EXPECT_EQ(probe.m_CharProps.FontSize, 0x1277);
}

TEST(RTFPropertyTable, FixedBytesOfShadingAreSigned) {
  ParserProbe probe("\\chshdng200\\cfpat255 \n");
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_CharProps.CharShading, -56);
  EXPECT_EQ(probe.m_ParProps.ForeColor, -1);
}

TEST(RTFPropertyTable, FieldsThatKeywordsDoNotReachAreNone) {
  CParagraphProperties paragraph;
  constexpr int kTabs = 4;
  for (const int field : {-1, kTabs, 13}) {
    const zeb::RTFField found = zeb::RTFFieldOf(paragraph, field);
    EXPECT_EQ(found.m_pByte, nullptr);
    EXPECT_EQ(found.m_pSignedByte, nullptr);
    EXPECT_EQ(found.m_pInt, nullptr);
  }
}

TEST(RTFPropertyTable, RowsThatCannotBeHandledEndTheReading) {
  ParserProbe probe("{\\b x}");
  probe.m_pPropTable[Parser::ipropBold].Action = 3;
  EXPECT_EQ(probe.RtfParse(), Parser::rtfBadTable);

  ParserProbe area("{\\b x}");
  area.m_pPropTable[Parser::ipropBold].Area = 5;
  EXPECT_EQ(area.RtfParse(), Parser::rtfBadTable);

  ParserProbe field("{\\b x}");
  field.m_pPropTable[Parser::ipropBold].Field = 99;
  EXPECT_EQ(field.RtfParse(), Parser::rtfBadTable);

  ParserProbe kind("{\\b x}");
  for (int row = 0; row < kind.m_KeywordCount; ++row) kind.m_pKeywordTable[row].Kind = 4;
  EXPECT_EQ(kind.RtfParse(), Parser::rtfBadTable);
}

TEST(RTFPropertyTable, SpecialRowsNeedNoArea) {
  ParserProbe probe("{a\\line b}");
  probe.m_pPropTable[Parser::ipropLine].Area = 5;
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.Handler().Outline(), L"[a]L[b]");
}

TEST(RTFPropertyTable, NumbersThatAreNoPropertyAreRefused) {
  ParserProbe probe;
  EXPECT_EQ(probe.ApplyPropChange(static_cast<Parser::IPROP>(-1), 1), Parser::rtfBadTable);
  EXPECT_EQ(probe.ApplyPropChange(static_cast<Parser::IPROP>(106), 1), Parser::rtfBadTable);
  EXPECT_EQ(probe.ParseSpecialProperty(static_cast<Parser::IPROP>(106), 1), Parser::rtfBadTable);
  EXPECT_EQ(probe.ParseSpecialProperty(Parser::ipropBold, 1), Parser::rtfBadTable);
  EXPECT_EQ(probe.ParseSpecialKeyword(static_cast<Parser::IPFN>(3)), Parser::rtfBadTable);
  EXPECT_EQ(probe.ChangeDest(static_cast<Parser::IDEST>(19)), Parser::rtfBadTable);
}

}  // namespace
