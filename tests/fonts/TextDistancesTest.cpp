#include "fonts/TextDistances.h"

#include "fonts/FontInformation.h"
#include "fonts/Fonts.h"
#include "fonts/GlobalFontHandler.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "fonts/TrueTypeTables.h"
#include "model/Border.h"
#include "model/Text.h"
#include "support/RaisedKey.h"

#include <gtest/gtest.h>

namespace {

/// Sets the distances of a text in one way or the other.
using Operation = void (CGlobalFontHandler::*)(CText*);

class TextDistances : public testing::TestWithParam<Operation> {
 protected:
  void SetFont(const wchar_t* name, float size) {
    m_text.SetFontName(name);
    m_text.SetFontSize(size);
  }
  CFontInformation& AddFont() {
    auto* const font = new CFontInformation(m_handler.GetFonts());
    m_handler.GetFonts()->AddFont(font);
    return *font;
  }
  void Calculate() { (m_handler.*GetParam())(&m_text); }
  void Expect(float upper, float lower, float spacing) const {
    ASSERT_NE(m_text.GetBorder(), nullptr);
    EXPECT_FLOAT_EQ(m_text.GetBorder()->GetBaseLineToUpperDistance(), upper);
    EXPECT_FLOAT_EQ(m_text.GetBorder()->GetBaseLineToLowerDistance(), lower);
    EXPECT_FLOAT_EQ(m_text.GetLineSpacing(), spacing);
  }

  CGlobalFontHandler m_handler;
  CText m_text;
};

TEST_P(TextDistances, AreThoseOfTheBoxOfAStandardFont) {
  SetFont(L"Helvetica", 10);
  Calculate();
  Expect(9.31F, 2.25F, 11.56F);
}

TEST_P(TextDistances, AreThoseOfTheBoxOfACJKFont) {
  SetFont(L"STSong-Light", 20);
  Calculate();
  Expect(17.14F, 2.86F, 20.0F);
}

TEST_P(TextDistances, ABoxAboveTheBaseLineCountsByItsAbsoluteValue) {
  CFontMetrics& metrics = *AddFont().GetFontMetrics();
  metrics.SetBaseFont(L"Sample");
  metrics.SetBBoxLLY(50);
  metrics.SetBBoxURY(700.5F);
  SetFont(L"Sample", 100);
  Calculate();
  Expect(70.05F, 5.0F, 75.05F);
}

TEST_P(TextDistances, AreThoseOfTheStyleOfTheText) {
  /// A face of the family and the upper edge of its box.
  struct Face {
    int Bold;
    bool Italic;
    float Top;
  };
  for (const auto& [bold, italic, top] :
       {Face{400, false, 500}, Face{700, false, 600}, Face{400, true, 700}, Face{700, true, 800}}) {
    CFontMetrics& metrics = *AddFont().GetFontMetrics();
    metrics.SetFontFamilyName(L"Sample");
    metrics.SetBold(bold);
    metrics.SetItalic(italic);
    metrics.SetBBoxLLY(-200);
    metrics.SetBBoxURY(top);
  }
  SetFont(L"Sample", 10);
  m_text.SetBold(700);
  m_text.SetItalic(true);
  Calculate();
  Expect(8.0F, 2.0F, 10.0F);
}

TEST_P(TextDistances, OfATrueTypeFontThatWasRefusedAreThoseOfTheBox) {
  CFontInformation& font = AddFont();
  ASSERT_EQ(zebtest::RaisedKey(
                [&] { font.ReadTT(nullptr, L"/nowhere/font.ttf", nullptr, true, false, 400, false); }),
            L"ReadFileFailure");
  auto* const metrics = dynamic_cast<CTrueTypeFontMetrics*>(font.GetFontMetrics());
  ASSERT_NE(metrics, nullptr);
  ASSERT_EQ(metrics->GetTTFile(), nullptr);
  metrics->SetBaseFont(L"Sample");
  metrics->SetBBoxLLY(-111);
  metrics->SetBBoxURY(222);
  SetFont(L"Sample", 100);
  Calculate();
  Expect(22.2F, 11.1F, 33.3F);
}

TEST_P(TextDistances, ATextOfAnUnknownFontStaysAsItIs) {
  SetFont(L"No such font at all", 10);
  m_text.SetLineSpacing(3);
  Calculate();
  EXPECT_EQ(m_text.GetBorder(), nullptr);
  EXPECT_EQ(m_text.GetLineSpacing(), 3);
}

TEST_P(TextDistances, ABorderThatIsThereKeepsItsOtherValues) {
  auto* const border = new CBorder;
  border->SetUpperBorderWidth(2);
  border->SetUpperTextDistance(3);
  m_text.SetBorder(border);
  SetFont(L"Helvetica", 10);
  Calculate();
  EXPECT_EQ(m_text.GetBorder(), border);
  EXPECT_EQ(border->GetUpperBorderWidth(), 2);
  EXPECT_EQ(border->GetUpperTextDistance(), 3);
  Expect(9.31F, 2.25F, 11.56F);
}

TEST_P(TextDistances, ANewBorderHasTheDefaults) {
  SetFont(L"Helvetica", 10);
  Calculate();
  ASSERT_NE(m_text.GetBorder(), nullptr);
  EXPECT_FALSE(m_text.GetBorder()->HasBorder());
  EXPECT_EQ(m_text.GetBorder()->GetUpperTextDistance(), 0);
}

INSTANTIATE_TEST_SUITE_P(Both, TextDistances,
                         testing::Values(&CGlobalFontHandler::CalculateOptimalTextDistances,
                                         &CGlobalFontHandler::CalculateOptimalTextDistancesForTables));

/// A TrueType font of chosen heights, in units of an em of 2000.
class TrueTypeMetrics : public CTrueTypeFontMetrics {
 public:
  TrueTypeMetrics(unsigned short winAscent, unsigned short winDescent, short ascender, short descender,
                  short gap) {
    m_usUnitsPerEm = 2000;
    SetBBoxLLY(-111);
    SetBBoxURY(222);
    auto* const os2 = new CTrueTypeTabOS2;
    os2->usWinAscent = winAscent;
    os2->usWinDescent = winDescent;
    m_file.SetTabOS2(os2);
    auto* const hhea = new CTrueTypeTabHhea;
    hhea->ascender = ascender;
    hhea->descender = descender;
    hhea->lineGap = gap;
    m_file.SetTabHhea(hhea);
  }

  CTrueTypeFile* GetTTFile() override { return &m_file; }
  CTrueTypeFile& File() { return m_file; }

 private:
  CTrueTypeFile m_file;
};

void ExpectExtent(CTrueTypeFontMetrics& metrics, float above, float below) {
  const zeb::LineExtent extent = zeb::ExtentByTables(metrics);
  EXPECT_EQ(extent.above, above);
  EXPECT_EQ(extent.below, below);
}

TEST(TextDistancesByTables, AreTheWindowsHeightsWithoutAGap) {
  TrueTypeMetrics metrics(1800, 400, 1800, -400, 0);
  ExpectExtent(metrics, 900, 200);
}

TEST(TextDistancesByTables, WhatTheGapLeavesOverStandsAbove) {
  // 150 of the gap, less the 100 by which the Windows heights exceed the others.
  TrueTypeMetrics metrics(1900, 500, 1800, -400, 300);
  ExpectExtent(metrics, 1000, 250);
}

TEST(TextDistancesByTables, AGapThatIsUsedUpCountsNothing) {
  TrueTypeMetrics metrics(2000, 800, 1800, -400, 300);
  ExpectExtent(metrics, 1000, 400);
}

TEST(TextDistancesByTables, OtherHeightsThatExceedTheWindowsOnesStandAbove) {
  TrueTypeMetrics metrics(1600, 400, 1800, -400, 0);
  ExpectExtent(metrics, 900, 200);
}

TEST(TextDistancesByTables, TheWindowsHeightsHaveNoSign) {
  TrueTypeMetrics metrics(40000, 50000, 0, 0, 0);
  ExpectExtent(metrics, 20000, 25000);
}

TEST(TextDistancesByTables, EveryHeightIsRoundedByItself) {
  // 900.5 and 200.5 thousandths become 901 and 201; their sum in the other heights is 1101.
  TrueTypeMetrics metrics(1801, 401, 1801, -401, 2);
  ExpectExtent(metrics, 902, 201);
}

TEST(TextDistancesByTables, WithoutTablesAreThoseOfTheBox) {
  CTrueTypeFontMetrics none;
  none.SetBBoxLLY(-111);
  none.SetBBoxURY(222);
  ExpectExtent(none, 222, 111);
  TrueTypeMetrics withoutOS2(1800, 400, 1800, -400, 0);
  withoutOS2.File().SetTabOS2(nullptr);
  ExpectExtent(withoutOS2, 222, 111);
  TrueTypeMetrics withoutHhea(1800, 400, 1800, -400, 0);
  withoutHhea.File().SetTabHhea(nullptr);
  ExpectExtent(withoutHhea, 222, 111);
}

/// In an em of 2048: Windows heights 1901 and 483, those of hhea the same, and no gap. The box is larger.
TEST(TextDistancesByTables, OfAnInstalledFontAreInTheUnitOfTheFontSize) {
  CGlobalFontHandler handler;
  auto* const font = new CFontInformation(handler.GetFonts());
  handler.GetFonts()->AddFont(font);
  font->ReadTT(L"DejaVu Sans", nullptr, nullptr, true, false, 400, false);
  CText text;
  text.SetFontName(L"DejaVu Sans");
  text.SetFontSize(10);
  handler.CalculateOptimalTextDistances(&text);
  ASSERT_NE(text.GetBorder(), nullptr);
  EXPECT_FLOAT_EQ(text.GetBorder()->GetBaseLineToUpperDistance(), 9.28F);
  EXPECT_FLOAT_EQ(text.GetBorder()->GetBaseLineToLowerDistance(), 2.36F);
  EXPECT_FLOAT_EQ(text.GetLineSpacing(), 11.64F);
  // The box reaches from -948 to 2524.
  handler.CalculateOptimalTextDistancesForTables(&text);
  EXPECT_FLOAT_EQ(text.GetBorder()->GetBaseLineToUpperDistance(), 12.32F);
  EXPECT_FLOAT_EQ(text.GetBorder()->GetBaseLineToLowerDistance(), 4.63F);
  EXPECT_FLOAT_EQ(text.GetLineSpacing(), 16.95F);
}

}  // namespace
