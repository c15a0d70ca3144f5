#include "fonts/FontData.h"
#include "fonts/TrueTypeFont.h"
#include "support/TrueTypeBuilder.h"

#include <gtest/gtest.h>

#include <vector>

// Fonts of some MB that would take hours or gigabytes if a subset looked at everything as often as they ask for it.

namespace {

using zebtest::FindTable;
using zebtest::FontBytes;
using zebtest::TrueTypeBuilder;
using zebtest::TrueTypeFont;

constexpr unsigned kGlyphs = 60000;

/// A font of empty glyphs in which the code g maps to glyph g.
TrueTypeBuilder ManyGlyphs() {
  TrueTypeBuilder font;
  font.glyphs.resize(kGlyphs);
  font.metricsCount = 1;
  font.longLoca = true;
  font.cmaps = {{3, 1, TrueTypeBuilder::Format4({{3, kGlyphs - 1, 0, 0}})}};
  return font;
}

/// Makes a subset of the glyphs from 3 up to `last`.
/// @return how many glyphs it has
unsigned SubsetGlyphs(const TrueTypeBuilder& builder, unsigned last) {
  const std::vector<unsigned char> bytes = builder.Build();
  TrueTypeFont font(bytes, {.unicode = true});
  EXPECT_EQ(font.Failure(), L"");
  const CFontData& source = *font.Metrics().GetFontData();
  for (unsigned glyph = 3; glyph <= last; ++glyph) font.Metrics().MapChar(static_cast<unsigned short>(glyph));
  font.Metrics().CreateSubsetFont();
  EXPECT_EQ(std::vector<unsigned char>(source.GetData(), source.GetData() + source.GetLength()), bytes);
  const CFontData& subset = *font.Metrics().GetFontData();
  const std::vector<unsigned char> made(subset.GetData(), subset.GetData() + subset.GetLength());
  const std::size_t maxp = FindTable(made, "maxp").offset;
  return made.at(maxp + 4) * 256U + made.at(maxp + 5);
}

}  // namespace

TEST(SubsetHostile, ManyGlyphsThatLeadIntoOneChainOfComponents) {
  // Every word is the flags of a component with one more behind it, and the number of a glyph as well. So each glyph is
  // a composite that does not end before the table does.
  TrueTypeBuilder font = ManyGlyphs();
  unsigned number = 0;
  for (TrueTypeBuilder::Glyph& glyph : font.glyphs) {
    FontBytes words;
    for (int i = 0; i < 5; ++i) words.U16(0x8020U + (number++ % 0x69U) * 0x100U);
    glyph.outline = words.Bytes();
  }
  EXPECT_EQ(SubsetGlyphs(font, kGlyphs - 1), kGlyphs);
}

TEST(SubsetHostile, AChainOfCompositesEachMadeOfTheNext) {
  TrueTypeBuilder font = ManyGlyphs();
  for (unsigned glyph = 3; glyph + 1 < kGlyphs; ++glyph) {
    font.glyphs[glyph].outline = TrueTypeBuilder::Composite({glyph + 1});
  }
  EXPECT_EQ(SubsetGlyphs(font, 3), kGlyphs);
}

TEST(SubsetHostile, AGlyphWhoseComponentsFillATableOfMegabytes) {
  // The same word is the flags of a component with one more behind it and the number of a glyph. So the first glyph has
  // a million components up to the table's end, all of them the glyph 0x8020.
  TrueTypeBuilder font = ManyGlyphs();
  FontBytes words;
  for (int i = 0; i < 50; ++i) words.U16(0x8020);
  for (TrueTypeBuilder::Glyph& glyph : font.glyphs) glyph.outline = words.Bytes();
  EXPECT_EQ(SubsetGlyphs(font, 3), 5U);
}
