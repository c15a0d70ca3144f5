#include "fonts/FontMetrics.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <utility>
#include <vector>

namespace {

class OpenMetrics : public CFontMetrics {
 public:
  void SetUnitsPerEm(unsigned short units) { m_usUnitsPerEm = units; }
};

std::unique_ptr<OpenMetrics> Subset() {
  auto metrics = std::make_unique<OpenMetrics>();
  metrics->SetFontEmbedding(CFontMetrics::EmbedSubset);
  return metrics;
}

TEST(MapChar, WithoutSubsettingTheCodeIsItsOwnNumber) {
  for (const auto embedding : {CFontMetrics::EmbedSingleByte, CFontMetrics::EmbedNone}) {
    const auto metrics = Subset();
    metrics->SetFontEmbedding(embedding);
    metrics->AddUnicodeToGlyphIndex(65, 40);
    EXPECT_EQ(metrics->MapChar(65), 65);
    EXPECT_EQ(metrics->MapChar(0xFFFF), 0xFFFF);
    EXPECT_EQ(metrics->GetUsedGlyphsCount(), 3);
    unsigned short newIndex = 7;
    EXPECT_FALSE(metrics->FindUsedGlyphIndex(40, newIndex));
    EXPECT_EQ(newIndex, 7);
  }
}

TEST(MapChar, TheFirstRealGlyphIsNumber3) {
  const auto metrics = Subset();
  metrics->AddUnicodeToGlyphIndex(65, 40);
  metrics->AddUnicodeToGlyphIndex(66, 41);
  EXPECT_EQ(metrics->GetUsedGlyphsCount(), 3);
  EXPECT_EQ(metrics->MapChar(66), 3);
  EXPECT_EQ(metrics->MapChar(65), 4);
  EXPECT_EQ(metrics->MapChar(66), 3);
  EXPECT_EQ(metrics->GetUsedGlyphsCount(), 5);
}

TEST(MapChar, ACodeWithoutAGlyphIsNumber0) {
  const auto metrics = Subset();
  EXPECT_EQ(metrics->MapChar(65), 0);
  EXPECT_EQ(metrics->GetUsedGlyphsCount(), 3);
}

TEST(MapChar, TheFirstThreeGlyphsKeepTheirNumbers) {
  const auto metrics = Subset();
  metrics->AddUnicodeToGlyphIndex(65, 0);
  metrics->AddUnicodeToGlyphIndex(66, 1);
  metrics->AddUnicodeToGlyphIndex(67, 2);
  EXPECT_EQ(metrics->MapChar(65), 0);
  EXPECT_EQ(metrics->MapChar(66), 1);
  EXPECT_EQ(metrics->MapChar(67), 2);
  EXPECT_EQ(metrics->GetUsedGlyphsCount(), 3);
}

TEST(MapChar, TwoCodesOfOneGlyphShareItsNumber) {
  const auto metrics = Subset();
  metrics->AddUnicodeToGlyphIndex(32, 40);
  metrics->AddUnicodeToGlyphIndex(160, 40);
  EXPECT_EQ(metrics->MapChar(32), 3);
  EXPECT_EQ(metrics->MapChar(160), 3);
  EXPECT_EQ(metrics->GetUsedGlyphsCount(), 4);
}

TEST(MapChar, EveryGlyphOfAFullFontFits) {
  const auto metrics = Subset();
  for (unsigned code = 0; code < 65536; ++code) {
    metrics->AddUnicodeToGlyphIndex(static_cast<unsigned short>(code),
                                    static_cast<unsigned short>(65535 - code));
  }
  for (unsigned code = 0; code < 65533; ++code) {
    ASSERT_EQ(metrics->MapChar(static_cast<unsigned short>(code)), code + 3);
  }
  EXPECT_EQ(metrics->MapChar(65533), 2);
  EXPECT_EQ(metrics->MapChar(65535), 0);
  EXPECT_EQ(metrics->MapChar(0), 3);
}

TEST(FindGlyphIndex, ACodeKeepsItsFirstGlyph) {
  const auto metrics = Subset();
  metrics->AddUnicodeToGlyphIndex(65, 40);
  metrics->AddUnicodeToGlyphIndex(65, 50);
  unsigned short glyph = 0;
  EXPECT_TRUE(metrics->FindGlyphIndex(65, glyph));
  EXPECT_EQ(glyph, 40);
}

TEST(FindGlyphIndex, AnUnknownCodeLeavesTheOutput) {
  const auto metrics = Subset();
  unsigned short glyph = 9;
  EXPECT_FALSE(metrics->FindGlyphIndex(65, glyph));
  EXPECT_EQ(glyph, 9);
}

TEST(FindGlyphIndex, ASymbolFontIsLookedUpInItsPage) {
  const auto metrics = Subset();
  metrics->SetSymbolFont(true);
  metrics->AddUnicodeToGlyphIndex(0xF041, 40);
  metrics->AddUnicodeToGlyphIndex(0x0042, 50);
  unsigned short glyph = 0;
  EXPECT_TRUE(metrics->FindGlyphIndex(0x41, glyph));
  EXPECT_EQ(glyph, 40);
  EXPECT_TRUE(metrics->FindGlyphIndex(0xF041, glyph));
  EXPECT_FALSE(metrics->FindGlyphIndex(0x42, glyph));
}

TEST(FindGlyphIndex, ASymbolFontWrapsCodesOfHighPages) {
  const auto metrics = Subset();
  metrics->SetSymbolFont(true);
  // 0x1041 + 0xF000, in 16 bits
  metrics->AddUnicodeToGlyphIndex(0x0041, 40);
  unsigned short glyph = 0;
  EXPECT_TRUE(metrics->FindGlyphIndex(0x1041, glyph));
}

TEST(FindUsedGlyphIndex, GivesTheNumberInTheSubset) {
  const auto metrics = Subset();
  metrics->AddUnicodeToGlyphIndex(65, 40);
  metrics->MapChar(65);
  unsigned short newIndex = 0;
  EXPECT_TRUE(metrics->FindUsedGlyphIndex(40, newIndex));
  EXPECT_EQ(newIndex, 3);
  EXPECT_TRUE(metrics->FindUsedGlyphIndex(2, newIndex));
  EXPECT_EQ(newIndex, 2);
}

TEST(FontWidths, AreStoredByCode) {
  const auto metrics = Subset();
  metrics->SetWidthAt(0, 250);
  metrics->SetWidthAt(65535, 1000);
  EXPECT_EQ(metrics->GetWidthAt(0), 250);
  EXPECT_EQ(metrics->GetWidthAt(65535), 1000);
}

TEST(FontWidths, OfUsedGlyphsNeedATrueTypeFont) {
  const auto metrics = Subset();
  metrics->SetUnitsPerEm(2048);
  EXPECT_EQ(metrics->GetWidthOfUsedGlyph(0), 0);
  EXPECT_EQ(metrics->GetWidthOfUsedGlyph(3), 0);
}

TEST(FontWidths, FixedASymbolFontReadsItsPageOnly) {
  const auto metrics = Subset();
  metrics->SetSymbolFont(true);
  metrics->SetWidthAt(0x41, 500);
  EXPECT_EQ(metrics->GetWidthAt(0x41), 0);
  metrics->SetWidthAt(0xF041, 600);
  EXPECT_EQ(metrics->GetWidthAt(0x41), 600);
  EXPECT_EQ(metrics->GetWidthAt(0xF041), 600);
  metrics->SetSymbolFont(false);
  EXPECT_EQ(metrics->GetWidthAt(0x41), 500);
}

TEST(FontWidths, ASymbolFontWrapsCodesOfHighPages) {
  const auto metrics = Subset();
  metrics->SetSymbolFont(true);
  metrics->SetWidthAt(0x41, 500);
  EXPECT_EQ(metrics->GetWidthAt(0x1041), 500);
  EXPECT_EQ(metrics->GetWidthAt(0xEFFF), 0);
}

TEST(FontHeight, IsThatOfTheBoundingBox) {
  const auto metrics = Subset();
  metrics->SetBBoxLLY(-225);
  metrics->SetBBoxURY(931);
  EXPECT_FLOAT_EQ(metrics->GetEffectiveFontHeight(10), 11.56F);
  EXPECT_EQ(metrics->GetEffectiveFontHeight(0), 0.0F);
}

TEST(ConvertTTToPDF, UnknownUnitsGiveMinusOne) {
  const auto metrics = Subset();
  EXPECT_EQ(metrics->ConvertTTToPDF(0), -1);
  EXPECT_EQ(metrics->ConvertTTToPDF(2048), -1);
}

TEST(ConvertTTToPDF, RoundsHalfAwayFromZero) {
  const auto metrics = Subset();
  metrics->SetUnitsPerEm(2000);
  for (const auto& [value, expected] : std::vector<std::pair<int, int>>{
           {0, 0}, {1, 1}, {2, 1}, {3, 2}, {-1, -1}, {-2, -1}, {-3, -2}, {2000, 1000}, {32767, 16384}}) {
    EXPECT_EQ(metrics->ConvertTTToPDF(value), expected) << value;
  }
}

TEST(ConvertTTToPDF, RoundsTheUsualUnits) {
  const auto metrics = Subset();
  metrics->SetUnitsPerEm(2048);
  for (const auto& [value, expected] : std::vector<std::pair<int, int>>{
           {-1, 0}, {1, 0}, {2, 1}, {-2, -1}, {1024, 500}, {1466, 716}, {-434, -212}, {2048, 1000}}) {
    EXPECT_EQ(metrics->ConvertTTToPDF(value), expected) << value;
  }
  metrics->SetUnitsPerEm(1000);
  EXPECT_EQ(metrics->ConvertTTToPDF(-207), -207);
}

// Of more digits these are 2070.49991 and 551.49998.
TEST(ConvertTTToPDF, ComputesInSinglePrecision) {
  const auto metrics = Subset();
  metrics->SetUnitsPerEm(16383);
  EXPECT_EQ(metrics->ConvertTTToPDF(33921), 2071);
  EXPECT_EQ(metrics->ConvertTTToPDF(-33921), -2071);
  metrics->SetUnitsPerEm(32767);
  EXPECT_EQ(metrics->ConvertTTToPDF(18071), 552);
}

TEST(ConvertTTToPDF, ValuesBeyondIntegersSaturate) {
  const auto metrics = Subset();
  metrics->SetUnitsPerEm(1);
  EXPECT_EQ(metrics->ConvertTTToPDF(65535), 65535000);
  EXPECT_EQ(metrics->ConvertTTToPDF(INT_MAX), INT_MAX);
  EXPECT_EQ(metrics->ConvertTTToPDF(INT_MIN), INT_MIN);
}

}  // namespace
