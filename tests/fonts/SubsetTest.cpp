#include "fonts/FontData.h"
#include "fonts/FontMetrics.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeFont.h"
#include "fonts/TrueTypeHMtx.h"
#include "support/TrueTypeBuilder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

using zebtest::FindTable;
using zebtest::FontBytes;
using zebtest::TablePlace;
using zebtest::TrueTypeBuilder;
using zebtest::TrueTypeFont;

namespace {

using Bytes = std::vector<unsigned char>;
using Numbers = std::vector<unsigned>;

constexpr std::size_t kBoxLength = 34;

unsigned U16(const Bytes& bytes, std::size_t at) { return bytes.at(at) * 256U + bytes.at(at + 1); }
std::uint32_t U32(const Bytes& bytes, std::size_t at) { return U16(bytes, at) * 65536U + U16(bytes, at + 2); }

Bytes Contents(const CFontData& data) { return {data.GetData(), data.GetData() + data.GetLength()}; }

/// The steps of a subset that work on the glyphs of a font.
class Steps : public CFontMetrics {
 public:
  using CFontMetrics::GetIncludedGlyphs;
  using CFontMetrics::RemapComposite;
};

/// A font whose glyphs are used by two-byte codes.
TrueTypeFont ReadForSubset(const TrueTypeBuilder& font) { return TrueTypeFont(font, {.unicode = true}); }

/// A subset as a reader of the format sees it.
class Subset {
 public:
  explicit Subset(TrueTypeFont& font) {
    font.Metrics().CreateSubsetFont();
    m_bytes = Contents(*font.Metrics().GetFontData());
  }

  const Bytes& All() const { return m_bytes; }
  TablePlace Table(std::string_view tag) const { return FindTable(m_bytes, tag); }
  std::uint32_t CheckSum(std::string_view tag) const { return U32(m_bytes, Table(tag).directoryEntry + 4); }
  unsigned GlyphCount() const { return U16(m_bytes, Table("maxp").offset + 4); }
  std::size_t Loca(unsigned i) const { return U32(m_bytes, Table("loca").offset + 4 * std::size_t{i}); }
  Bytes Glyph(unsigned i) const {
    const auto glyf = m_bytes.begin() + static_cast<std::ptrdiff_t>(Table("glyf").offset);
    return {glyf + static_cast<std::ptrdiff_t>(Loca(i)), glyf + static_cast<std::ptrdiff_t>(Loca(i + 1))};
  }
  unsigned Width(unsigned i) const { return U16(m_bytes, Table("hmtx").offset + 4 * std::size_t{i}); }

 private:
  Bytes m_bytes;
};

/// The numbers of the components in a record that Composite() made.
Numbers Components(const Bytes& glyph) {
  Numbers numbers;
  for (std::size_t at = 12; at + 2 <= glyph.size(); at += 8) numbers.push_back(U16(glyph, at));
  return numbers;
}

TrueTypeBuilder::Glyph Composite(const Numbers& parts, unsigned width = 700) {
  return {width, 0, TrueTypeBuilder::Composite(parts)};
}

TrueTypeBuilder::Glyph Box(unsigned width = 600) {
  return {width, 0, TrueTypeBuilder::Box(0, 0, static_cast<int>(width), 100)};
}

/// A font in which the code 0x40 + g maps to glyph g, from glyph 3 on.
TrueTypeBuilder FontOf(const std::vector<TrueTypeBuilder::Glyph>& glyphsFrom3) {
  TrueTypeBuilder font;
  font.glyphs.resize(3);
  font.glyphs.insert(font.glyphs.end(), glyphsFrom3.begin(), glyphsFrom3.end());
  const auto last = static_cast<unsigned>(0x40 + font.glyphs.size() - 1);
  font.cmaps = {{3, 1, TrueTypeBuilder::Format4({{0x43, last, 0x10000U - 0x40U, 0}})}};
  return font;
}

unsigned short CodeOf(unsigned glyph) { return static_cast<unsigned short>(0x40 + glyph); }

/// The sum of little-endian words, with zeros behind the end.
std::uint32_t LittleEndianSum(const Bytes& bytes, std::size_t offset, std::size_t length) {
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i < length; ++i) sum += std::uint32_t{bytes.at(offset + i)} << (i % 4 * 8);
  return sum;
}

}  // namespace

TEST(Subset, HoldsThreeGlyphsWithoutAnyUse) {
  TrueTypeFont font = ReadForSubset({});
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 3U);
  EXPECT_EQ(subset.Table("loca").length, 16U);
  EXPECT_EQ(subset.Glyph(0).size(), kBoxLength);
  EXPECT_TRUE(subset.Glyph(1).empty());
  EXPECT_TRUE(subset.Glyph(2).empty());
  EXPECT_EQ(subset.Width(0), 1000U);
  EXPECT_EQ(subset.Width(2), 500U);
}

TEST(Subset, FixedSearchFieldsStandInTheHeader) {
  TrueTypeFont font = ReadForSubset({});
  const Bytes all = Subset(font).All();
  EXPECT_EQ(Bytes(all.begin(), all.begin() + 12), (Bytes{0, 1, 0, 0, 0, 9, 0, 48, 0, 3, 0, 96}));
}

TEST(Subset, LaysNineTablesOutInItsOwnOrder) {
  TrueTypeFont font = ReadForSubset({});
  const Subset subset(font);
  const std::vector<std::string> tags = {"cvt ", "fpgm", "glyf", "head", "hhea",
                                         "hmtx", "loca", "maxp", "prep"};
  for (std::size_t i = 0; i < tags.size(); ++i) EXPECT_EQ(subset.Table(tags[i]).directoryEntry, 12 + 16 * i);

  // By hand: a pad is the remainder of the length by 4, so 210 becomes 212.
  EXPECT_EQ(subset.Table("head").offset, 156U);
  EXPECT_EQ(subset.Table("head").length, 54U);
  EXPECT_EQ(subset.Table("hhea").offset, 212U);
  EXPECT_EQ(subset.Table("hhea").length, 36U);
  EXPECT_EQ(subset.Table("hmtx").offset, 248U);
  EXPECT_EQ(subset.Table("hmtx").length, 12U);
  EXPECT_EQ(subset.Table("maxp").offset, 260U);
  EXPECT_EQ(subset.Table("maxp").length, 32U);
  EXPECT_EQ(subset.Table("loca").offset, 292U);
  EXPECT_EQ(subset.Table("loca").length, 16U);
  EXPECT_EQ(subset.Table("glyf").offset, 308U);
  EXPECT_EQ(subset.Table("glyf").length, kBoxLength);
  // 308 and 34 and twelve more are 354, which a pad of 2 makes 356.
  EXPECT_EQ(subset.All().size(), 356U);
  for (std::size_t at = 342; at < 356; ++at) EXPECT_EQ(subset.All()[at], 0) << at;
}

TEST(Subset, WritesAnEmptyTableForOneThatTheFontLacks) {
  TrueTypeFont font = ReadForSubset({});
  const Subset subset(font);
  for (const char* tag : {"cvt ", "fpgm", "prep"}) {
    EXPECT_EQ(subset.Table(tag).offset, 292U) << tag;
    EXPECT_EQ(subset.Table(tag).length, 0U) << tag;
    EXPECT_EQ(subset.CheckSum(tag), 0U) << tag;
  }
}

TEST(Subset, FixedPadOfTheRemainderMayLeaveATableOffItsAlignment) {
  TrueTypeBuilder builder;
  builder.Replace("cvt ", {1, 2, 3, 4, 5});
  builder.Replace("fpgm", {6, 7, 8});
  builder.Replace("prep", {9});
  TrueTypeFont font = ReadForSubset(builder);
  const Subset subset(font);
  EXPECT_EQ(subset.Table("cvt ").offset, 292U);
  EXPECT_EQ(subset.Table("fpgm").offset, 298U);  // 297 and 1
  EXPECT_EQ(subset.Table("prep").offset, 302U);  // 301 and 1
  EXPECT_EQ(subset.Table("loca").offset, 306U);  // 303 and 3
  EXPECT_EQ(subset.Table("glyf").offset, 324U);  // 322 and 2
  EXPECT_EQ(subset.All()[298], 6);
  EXPECT_EQ(subset.All()[302], 9);
}

TEST(Subset, FixedSumsAreLittleEndian) {
  TrueTypeBuilder builder;
  builder.Replace("cvt ", {1, 2, 3, 4, 5});
  TrueTypeFont font = ReadForSubset(builder);
  const Subset subset(font);
  EXPECT_EQ(subset.CheckSum("cvt "), 0x04030201U + 5U);
  for (const char* tag : {"hhea", "hmtx", "maxp", "loca", "glyf"}) {
    const TablePlace place = subset.Table(tag);
    EXPECT_EQ(subset.CheckSum(tag), LittleEndianSum(subset.All(), place.offset, place.length)) << tag;
  }
  Bytes withoutAdjustment = subset.All();
  for (std::size_t at = 164; at < 168; ++at) withoutAdjustment[at] = 0;
  EXPECT_EQ(subset.CheckSum("head"), LittleEndianSum(withoutAdjustment, 156, 54));
  EXPECT_EQ(U32(subset.All(), 164),
            0xB1B0AFBAU - LittleEndianSum(withoutAdjustment, 0, withoutAdjustment.size()));
}

TEST(Subset, CountsAgree) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(), Composite({3}), Composite({4, 3})}));
  font.Metrics().MapChar(CodeOf(5));
  const Subset subset(font);
  const TablePlace hhea = subset.Table("hhea");
  EXPECT_EQ(subset.GlyphCount(), 6U);
  EXPECT_EQ(U16(subset.All(), hhea.offset + hhea.length - 2), 6U);
  EXPECT_EQ(subset.Table("loca").length / 4 - 1, 6U);
  EXPECT_EQ(subset.Table("hmtx").length, 24U);
}

TEST(Subset, OffsetsAreLongWhateverTheFontHas) {
  for (const bool longLoca : {false, true}) {
    TrueTypeBuilder builder;
    builder.longLoca = longLoca;
    TrueTypeFont font = ReadForSubset(builder);
    const Subset subset(font);
    EXPECT_EQ(U16(subset.All(), subset.Table("head").offset + 50), 1U);
  }
}

TEST(Subset, KeepsTheOtherFieldsOfTheFont) {
  const TrueTypeBuilder builder;
  TrueTypeFont font = ReadForSubset(builder);
  const Subset subset(font);
  /// Bytes of a table that the subset sets: the first, and how many.
  struct Changed {
    const char* Tag;
    std::size_t First, Count;
  };
  for (const auto& [tag, first, count] :
       {Changed{"head", 8, 4}, Changed{"hhea", 34, 2}, Changed{"maxp", 4, 2}}) {
    const Bytes table = builder.Tables().at(tag);
    const TablePlace place = subset.Table(tag);
    ASSERT_EQ(place.length, table.size()) << tag;
    for (std::size_t at = 0; at < table.size(); ++at) {
      const bool isLocaFormat = std::string_view(tag) == "head" && (at == 50 || at == 51);
      if (isLocaFormat || (at >= first && at < first + count)) continue;
      EXPECT_EQ(subset.All().at(place.offset + at), table[at]) << tag << ' ' << at;
    }
  }
}

TEST(Subset, FixedTheCountOfMetricsStandsAtTheEndOfALongerHorizontalHeader) {
  TrueTypeBuilder builder;
  Bytes longer = builder.Tables().at("hhea");
  ASSERT_EQ(longer.size(), 36U);
  longer.insert(longer.end(), {0xAA, 0xBB, 0xCC, 0xDD});
  builder.Replace("hhea", longer);
  TrueTypeFont font = ReadForSubset(builder);
  const Subset subset(font);
  const TablePlace hhea = subset.Table("hhea");
  EXPECT_EQ(hhea.length, 40U);
  EXPECT_EQ(U16(subset.All(), hhea.offset + 34), 5U) << "that of the font";
  EXPECT_EQ(U16(subset.All(), hhea.offset + 36), 0xAABBU);
  EXPECT_EQ(U16(subset.All(), hhea.offset + 38), 3U);
}

TEST(Subset, UsedGlyphsComeInTheOrderOfTheirUse) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), Box(602), Box(603)}));
  EXPECT_EQ(font.Metrics().MapChar(CodeOf(5)), 3);
  EXPECT_EQ(font.Metrics().MapChar(CodeOf(3)), 4);
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 5U);
  EXPECT_EQ(subset.Width(3), 603U);
  EXPECT_EQ(subset.Width(4), 601U);
  EXPECT_EQ(subset.Glyph(3), TrueTypeBuilder::Box(0, 0, 603, 100));
  EXPECT_EQ(subset.Glyph(4), TrueTypeBuilder::Box(0, 0, 601, 100));
}

TEST(Subset, EveryGlyphHasAMetricOfItsOwn) {
  TrueTypeBuilder builder = FontOf({Box(601), Box(602)});
  builder.glyphs[4].bearing = -7;
  builder.metricsCount = 4;
  TrueTypeFont font = ReadForSubset(builder);
  font.Metrics().MapChar(CodeOf(4));
  const Subset subset(font);
  EXPECT_EQ(subset.Width(3), 601U) << "the width of the last metric";
  EXPECT_EQ(U16(subset.All(), subset.Table("hmtx").offset + 14), 0x10000U - 7U);
}

TEST(Subset, AnUnusedComponentGetsTheNextNumberBehindAllUsedGlyphs) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), Composite({3}), Box(603)}));
  font.Metrics().MapChar(CodeOf(4));
  font.Metrics().MapChar(CodeOf(5));
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 6U);
  EXPECT_EQ(Components(subset.Glyph(3)), Numbers{5});
  EXPECT_EQ(subset.Width(5), 601U);
  EXPECT_EQ(font.Metrics().GetUsedGlyphsCount(), 5) << "components are not counted";
}

TEST(Subset, CompositesOfCompositesEnterLevelByLevel) {
  // 6 is made of 5 and 3, 5 of 4, 4 of 3.
  TrueTypeFont font = ReadForSubset(FontOf({Box(603), Composite({3}), Composite({4}), Composite({5, 3})}));
  font.Metrics().MapChar(CodeOf(6));
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 7U);
  EXPECT_EQ(Components(subset.Glyph(3)), (Numbers{4, 5}));  // glyphs 5 and 3
  EXPECT_EQ(Components(subset.Glyph(4)), Numbers{6});       // glyph 4, found one level deeper
  EXPECT_EQ(Components(subset.Glyph(6)), Numbers{5});
  EXPECT_EQ(subset.Width(5), 603U);
}

TEST(Subset, ReadsEveryFormOfAComponent) {
  constexpr unsigned kMore = 0x0020;
  FontBytes parts;
  parts.S16(-1).Zeros(8);
  parts.U16(kMore | 0x0001).U16(3).Zeros(4);          // arguments as words
  parts.U16(kMore).U16(4).Zeros(2);                   // as bytes
  parts.U16(kMore | 0x0008).U16(3).Zeros(2 + 2);      // one scale
  parts.U16(kMore | 0x0040).U16(4).Zeros(2 + 4);      // two scales
  parts.U16(kMore | 0x0081).U16(3).Zeros(4 + 8);      // a matrix
  parts.U16(kMore | 0x00C8).U16(4).Zeros(2 + 2);      // the first of the scales counts
  parts.U16(0x0100).U16(5).Zeros(2).U16(2).Zeros(2);  // instructions behind the last one
  TrueTypeFont font = ReadForSubset(FontOf({Box(), Box(), Box(), {700, 0, parts.Bytes()}}));
  font.Metrics().MapChar(CodeOf(6));
  const Bytes glyph = Subset(font).Glyph(3);
  ASSERT_EQ(glyph.size(), parts.Size());
  Bytes expected = parts.Bytes();
  const std::vector<std::pair<std::size_t, unsigned char>> changed = {{13, 4}, {21, 5}, {27, 4}, {35, 5},
                                                                      {45, 4}, {61, 5}, {69, 6}};
  for (const auto& [at, number] : changed) expected.at(at) = number;
  EXPECT_EQ(glyph, expected);
}

TEST(Subset, AComponentThatIsNoGlyphEndsTheWalk) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), Box(602), Composite({3, 99, 4})}));
  font.Metrics().MapChar(CodeOf(5));
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 5U);
  EXPECT_EQ(Components(subset.Glyph(3)), (Numbers{4, 99, 4})) << "glyph 4 behind it keeps its old number";
}

TEST(Subset, ComponentsInACircleEnterOnce) {
  TrueTypeFont font = ReadForSubset(FontOf({Composite({4}), Composite({3}), Composite({5})}));
  font.Metrics().MapChar(CodeOf(4));
  font.Metrics().MapChar(CodeOf(5));
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 6U);
  EXPECT_EQ(Components(subset.Glyph(3)), Numbers{5});
  EXPECT_EQ(Components(subset.Glyph(5)), Numbers{3});
  EXPECT_EQ(Components(subset.Glyph(4)), Numbers{4}) << "a composite of itself";
}

TEST(Subset, AnEmptyGlyphMayBeAComponent) {
  TrueTypeFont font = ReadForSubset(FontOf({{0, 0, {}}, Box(602), Composite({3, 4})}));
  font.Metrics().MapChar(CodeOf(5));
  const Subset subset(font);
  EXPECT_EQ(Components(subset.Glyph(3)), (Numbers{4, 5}));
  EXPECT_TRUE(subset.Glyph(4).empty());
  EXPECT_EQ(subset.Glyph(5).size(), kBoxLength);
}

TEST(Subset, FixedAnEmptyGlyphCountsByTheBytesBehindIt) {
  // Glyph 4 is empty and in front of the composite 5: what 5 is made of enters although only 4 is used.
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), {0, 0, {}}, Composite({3})}));
  font.Metrics().MapChar(CodeOf(4));
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 5U);
  EXPECT_TRUE(subset.Glyph(3).empty());
  EXPECT_EQ(subset.Width(4), 601U);
}

TEST(Subset, AnEmptyGlyphInFrontOfACompositeDoesNotSpoilIt) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), {0, 0, {}}, Composite({3, 6}), Box(604)}));
  for (const unsigned glyph : {4U, 5U, 6U, 3U}) font.Metrics().MapChar(CodeOf(glyph));
  const Subset subset(font);
  EXPECT_EQ(Components(subset.Glyph(4)), (Numbers{6, 5}));
}

TEST(Subset, TheLastGlyphEndsWhereLocaSays) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), Box(602)}));
  font.Metrics().MapChar(CodeOf(4));
  const Subset subset(font);
  EXPECT_EQ(subset.Glyph(3), TrueTypeBuilder::Box(0, 0, 602, 100));
  EXPECT_EQ(subset.Loca(4), 2 * kBoxLength) << "the greatest end of a glyph";
}

TEST(Subset, AnEmptyLastGlyphIsSimpleAtTheEndOfTheData) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), {0, 0, {}}}));
  font.Metrics().MapChar(CodeOf(4));
  const Subset subset(font);
  EXPECT_EQ(subset.Loca(3), subset.Loca(4));
  EXPECT_EQ(subset.GlyphCount(), 4U);
}

TEST(Subset, LeavesTheFontAsItWas) {
  const TrueTypeBuilder builder =
      FontOf({Box(), Composite({3}), Composite({4, 3}), {0, 0, {}}, Composite({4})});
  TrueTypeFont font = ReadForSubset(builder);
  const CFontData* source = font.Metrics().GetFontData();
  for (const unsigned glyph : {7U, 6U, 5U}) font.Metrics().MapChar(CodeOf(glyph));
  font.Metrics().CreateSubsetFont();
  EXPECT_NE(font.Metrics().GetFontData(), source);
  EXPECT_EQ(Contents(*source), builder.Build());
}

TEST(Subset, MadeTwiceIsTheSame) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(), Composite({3}), Composite({4, 3})}));
  font.Metrics().MapChar(CodeOf(5));
  const Bytes first = Subset(font).All();
  EXPECT_EQ(Subset(font).All(), first);
}

TEST(Subset, FixedAGlyphUsedAfterASubsetTakesTheNumberOfAComponent) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), Composite({3}), Box(603)}));
  font.Metrics().MapChar(CodeOf(4));
  font.Metrics().CreateSubsetFont();
  EXPECT_EQ(font.Metrics().MapChar(CodeOf(5)), 4) << "the number of glyph 3";
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 6U);
  EXPECT_EQ(Components(subset.Glyph(3)), Numbers{4});
  EXPECT_EQ(subset.Width(4), 603U);
  EXPECT_EQ(subset.Glyph(4), TrueTypeBuilder::Box(0, 0, 603, 100));
}

TEST(Subset, ComponentsOfALaterSubsetAreNumberedBehindAllKnownGlyphs) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), Composite({3}), Box(605), Composite({5})}));
  font.Metrics().MapChar(CodeOf(4));
  font.Metrics().CreateSubsetFont();
  EXPECT_EQ(font.Metrics().MapChar(CodeOf(6)), 4) << "the number of glyph 3";
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 7U) << "two glyphs have the number 4, none has 5";
  unsigned short number = 0;
  ASSERT_TRUE(font.Metrics().FindUsedGlyphIndex(5, number));
  EXPECT_EQ(number, 6);
  std::vector<std::size_t> places;
  for (unsigned i = 0; i <= 7; ++i) places.push_back(subset.Loca(i));
  EXPECT_EQ(places, (std::vector<std::size_t>{0, 34, 34, 34, 52, 70, 104, 138}));
}

TEST(Subset, ComponentsAreNumberedInTheOrderOfTheGlyphsThatNeedThem) {
  // 6 is used first, but 5 comes first in the font.
  TrueTypeFont font = ReadForSubset(
      FontOf({Box(603), Composite({3}), Composite({8}), Composite({7, 8}), Composite({4}), Box(608)}));
  font.Metrics().MapChar(CodeOf(6));
  font.Metrics().MapChar(CodeOf(5));
  const Subset subset(font);
  EXPECT_EQ(Components(subset.Glyph(4)), Numbers{5}) << "glyph 8, from glyph 5";
  EXPECT_EQ(Components(subset.Glyph(3)), (Numbers{6, 5})) << "glyphs 7 and 8, from glyph 6";
  EXPECT_EQ(Components(subset.Glyph(6)), Numbers{7}) << "glyph 4, from glyph 7";
  EXPECT_EQ(Components(subset.Glyph(7)), Numbers{8}) << "glyph 3, from glyph 4";
  EXPECT_EQ(subset.Width(8), 603U);
}

TEST(Subset, AGlyphWithoutContoursIsSimple) {
  FontBytes outline;
  outline.S16(0).Zeros(8).U16(0).U16(4).Zeros(4);  // a composite of glyph 4, were it one
  TrueTypeFont font = ReadForSubset(FontOf({{500, 0, outline.Bytes()}, Box()}));
  font.Metrics().MapChar(CodeOf(3));
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 4U);
  EXPECT_EQ(subset.Glyph(3), outline.Bytes());
}

TEST(Subset, GlyphsFollowEachOtherWithoutPadding) {
  FontBytes outline;
  outline.S16(0).Zeros(9);
  TrueTypeBuilder builder = FontOf({{500, 0, outline.Bytes()}, Box(), {500, 0, outline.Bytes()}});
  builder.longLoca = true;
  TrueTypeFont font = ReadForSubset(builder);
  for (const unsigned glyph : {3U, 4U, 5U}) font.Metrics().MapChar(CodeOf(glyph));
  const Subset subset(font);
  const std::vector<std::size_t> places = {subset.Loca(3), subset.Loca(4), subset.Loca(5), subset.Loca(6)};
  EXPECT_EQ(places, (std::vector<std::size_t>{kBoxLength, kBoxLength + 11, 2 * kBoxLength + 11,
                                              2 * kBoxLength + 22}));
  EXPECT_EQ(subset.Table("glyf").length, 2 * kBoxLength + 22);
}

TEST(Subset, KeepsTheOtherFieldsOfTheHorizontalHeaderAndTheProfile) {
  const TrueTypeBuilder builder;
  TrueTypeFont font = ReadForSubset(builder);
  const Subset subset(font);
  const auto written = [&](const char* tag) {
    const auto begin = subset.All().begin() + static_cast<std::ptrdiff_t>(subset.Table(tag).offset);
    return Bytes(begin, begin + static_cast<std::ptrdiff_t>(subset.Table(tag).length));
  };
  EXPECT_EQ(written("hhea"), FontBytes().Append(builder.Tables().at("hhea")).PatchU16(34, 3).Bytes());
  EXPECT_EQ(written("maxp"), FontBytes().Append(builder.Tables().at("maxp")).PatchU16(4, 3).Bytes());
}

TEST(Subset, IsNotMadeOfAFontWithATableThatReachesBehindTheFile) {
  TrueTypeBuilder builder;
  builder.Replace("prep", {1, 2, 3, 4});
  Bytes bytes = builder.Build();
  const std::size_t entry = FindTable(bytes, "prep").directoryEntry;
  for (std::size_t at = entry + 12; at < entry + 16; ++at) bytes[at] = 0x7F;
  TrueTypeFont font(bytes, {.unicode = true});
  EXPECT_EQ(font.Failure(), L"IncorrectTrueTypeFile");
  font.Metrics().CreateSubsetFont();
  EXPECT_EQ(Contents(*font.Metrics().GetFontData()), bytes) << "there is no parsed font";
}

TEST(Subset, IsGivenOnlyForTwoByteCodes) {
  TrueTypeFont font{TrueTypeBuilder()};
  const CFontData* source = font.Metrics().GetFontData();
  font.Metrics().CreateSubsetFont();
  EXPECT_EQ(font.Metrics().GetFontData(), source);
}

TEST(Subset, IsMadeOfTrueTypeFontsOnly) {
  TrueTypeFont font = ReadForSubset({});
  const CFontData* source = font.Metrics().GetFontData();
  font.Metrics().SetFontType(CFontMetrics::FontTypeType1);
  font.Metrics().CreateSubsetFont();
  EXPECT_EQ(font.Metrics().GetFontData(), source);

  CFontMetrics plain;
  plain.CreateSubsetFont();
  EXPECT_EQ(plain.GetFontData()->GetLength(), 0);
}

TEST(Subset, StaysWhenTheFontIsOfAnotherTypeByNow) {
  TrueTypeFont font = ReadForSubset({});
  font.Metrics().CreateSubsetFont();
  const CFontData* subset = font.Metrics().GetFontData();
  const Bytes before = Contents(*subset);
  font.Metrics().SetFontType(CFontMetrics::FontTypeType1);
  font.Metrics().CreateSubsetFont();
  EXPECT_EQ(font.Metrics().GetFontData(), subset);
  EXPECT_EQ(Contents(*subset), before);
}

TEST(Subset, TakesATableThatReachesBehindTheDataAsFarAsItGoes) {
  TrueTypeBuilder builder;
  builder.Replace("prep", {1, 2, 3, 4});
  Bytes bytes = builder.Build();
  TrueTypeFont font(bytes, {.unicode = true});
  // Shorter data takes the place of the font: half of its last table is left.
  auto* const data = new CFontData(false);
  data->AddFontMemData(bytes.data(), static_cast<int>(FindTable(bytes, "prep").offset + 2));
  font.Metrics().SetFontData(data, true);
  const Subset subset(font);
  EXPECT_EQ(subset.Table("prep").length, 2U);
  EXPECT_EQ(subset.CheckSum("prep"), 0x0201U);
  EXPECT_EQ(U16(subset.All(), subset.Table("prep").offset), 0x0102U);
}

TEST(Subset, AnEmptyLastGlyphIsNotToldByTheTableBehindIt) {
  TrueTypeBuilder builder = FontOf({Box(601), Box(602), {600, 0, {}}});
  // Fills `glyf` up to a multiple of 4, so that the next table follows at once; and it looks like a composite.
  builder.glyphs[4].outline.resize(kBoxLength + 2);
  builder.Replace("glyz", TrueTypeBuilder::Composite({3}));
  TrueTypeFont font = ReadForSubset(builder);
  const CTrueTypeFile& file = font.File();
  ASSERT_EQ(file.FindDirEnt("glyz")->GetOffset(),
            file.FindDirEnt("glyf")->GetOffset() + file.FindDirEnt("glyf")->GetLength());
  const CFontData& source = *font.Metrics().GetFontData();
  font.Metrics().MapChar(CodeOf(5));
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 4U);
  EXPECT_TRUE(subset.Glyph(3).empty());
  EXPECT_EQ(Contents(source), builder.Build());
}

TEST(Subset, ListsAGlyphAndThenWhatItIsMadeOf) {
  const TrueTypeFont font = ReadForSubset(FontOf({Box(), Box(), Composite({4, 3, 4})}));
  std::vector<unsigned short> list = {9, 9};
  Steps().GetIncludedGlyphs(font.Metrics().GetFontData(), font.File().FindDirEnt("glyf"),
                            font.File().GetTabHMtx(), 5, list);
  EXPECT_EQ(list, (std::vector<unsigned short>{5, 4, 3, 4}));
}

TEST(Subset, RenumberingStopsAtAComponentWithoutANumberAndIsUndone) {
  const TrueTypeBuilder builder = FontOf({Box(), Box(), Composite({4, 3, 4})});
  const TrueTypeFont font = ReadForSubset(builder);
  CFontData* const source = font.Metrics().GetFontData();
  CTrueTypeDirEnt* const glyf = font.File().FindDirEnt("glyf");
  CTrueTypeTabHMtx* const hmtx = font.File().GetTabHMtx();
  Steps steps;
  steps.SetFontEmbedding(CFontMetrics::EmbedSubset);
  steps.AddUnicodeToGlyphIndex(CodeOf(4), 4);
  ASSERT_EQ(steps.MapChar(CodeOf(4)), 3);
  steps.RemapComposite(source, glyf, hmtx, 5);
  const unsigned char* const glyph =
      source->GetData() + glyf->GetOffset() + hmtx->GetEntryAt(5)->GetGlyphOffset();
  EXPECT_EQ(Components({glyph, glyph + 34}), (Numbers{3, 3, 4}));
  steps.ResetMapIndex(source);
  EXPECT_EQ(Contents(*source), builder.Build());
}

TEST(Subset, AGlyphThatTheFontLacksIsEmpty) {
  TrueTypeFont font = ReadForSubset({});
  font.Metrics().AddUnicodeToGlyphIndex(0x7A, 4000);
  EXPECT_EQ(font.Metrics().MapChar(0x7A), 3);
  const Subset subset(font);
  EXPECT_EQ(subset.GlyphCount(), 4U);
  EXPECT_TRUE(subset.Glyph(3).empty());
  EXPECT_EQ(subset.Width(3), 0U);
}

TEST(Subset, KnowsTheWidthsOfUsedGlyphs) {
  TrueTypeFont font = ReadForSubset(FontOf({Box(601), Composite({3}, 1024)}));
  font.Metrics().MapChar(CodeOf(4));
  EXPECT_EQ(font.Metrics().GetWidthOfUsedGlyph(3), 500);
  EXPECT_EQ(font.Metrics().GetWidthOfUsedGlyph(0), 488) << "1000 of 2048, rounded";
  EXPECT_EQ(font.Metrics().GetWidthOfUsedGlyph(4), 0);
  Subset{font};
  EXPECT_EQ(font.Metrics().GetWidthOfUsedGlyph(4), 0) << "components are in the other map only";
}

TEST(Subset, FillsAMapOfCodesToGlyphs) {
  TrueTypeFont font = ReadForSubset({});
  Bytes map(2 * 0x44 + 1, 0xEE);
  font.Metrics().ConvertAllCodesToGlyphIDs(map.data(), static_cast<int>(map.size()));
  EXPECT_EQ(U16(map, 2 * 0x20), 2U);
  EXPECT_EQ(U16(map, 2 * 0x41), 3U);
  EXPECT_EQ(U16(map, 2 * 0x42), 4U);
  EXPECT_EQ(U16(map, 2 * 0x43), 0U);
  EXPECT_EQ(map.back(), 0xEE) << "half a glyph number is left alone";

  CFontMetrics plain;
  plain.ConvertAllCodesToGlyphIDs(map.data(), static_cast<int>(map.size()));
  EXPECT_EQ(U16(map, 2 * 0x41), 3U);
}
