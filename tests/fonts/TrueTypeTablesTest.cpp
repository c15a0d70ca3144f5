#include "fonts/TrueTypeCMap.h"
#include "fonts/TrueTypeFont.h"
#include "fonts/TrueTypeHMtx.h"
#include "fonts/TrueTypeTables.h"
#include "support/ScopedEnvironment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using zebtest::Asked;
using zebtest::FontBytes;
using zebtest::ScopedEnvironment;
using zebtest::TrueTypeBuilder;
using zebtest::TrueTypeFont;

constexpr Asked kUnicode = {nullptr, true};

const CTrueTypeHMtxEntry& Glyph(const TrueTypeFont& font, int glyph) {
  return *font.File().GetTabHMtx()->GetEntryAt(glyph);
}

/// A font whose only Windows map has these bytes.
TrueTypeBuilder WithMap(const std::vector<unsigned char>& map) {
  TrueTypeBuilder font;
  font.cmaps = {{3, 1, map}};
  return font;
}

TEST(TrueTypeDirectory, KeepsTheOrderOfTheFile) {
  const TrueTypeFont font{TrueTypeBuilder()};
  const CTrueTypeFile& file = font.File();
  ASSERT_EQ(file.GetDirEntCount(), 10);
  EXPECT_STREQ(file.GetDirEntAt(0)->GetTag(), "OS/2");
  EXPECT_STREQ(file.GetDirEntAt(9)->GetTag(), "post");
  EXPECT_EQ(file.FindDirEnt("head")->GetLength(), 54U);
  EXPECT_EQ(file.FindDirEnt("OS/2")->GetOffset(), 12U + 16U * 10U);
  EXPECT_EQ(file.FindDirEnt("PCLT"), nullptr);
  EXPECT_EQ(file.GetTabPCLT(), nullptr);
  EXPECT_EQ(file.GetTabCFF(), nullptr);
}

TEST(TrueTypeTables, AreKeptWithTheirFields) {
  const TrueTypeFont font{TrueTypeBuilder()};
  const CTrueTypeFile& file = font.File();
  EXPECT_EQ(file.GetTabHead()->magicNumber, 0x5F0F3CF5U);
  EXPECT_EQ(file.GetTabHead()->unitsPerEm, 2048);
  EXPECT_EQ(file.GetTabHead()->lowestRecPPEM, 8);
  EXPECT_EQ(file.GetTabHead()->fontDirectionHint, 2);
  EXPECT_EQ(file.GetTabHhea()->ascender, 1600);
  EXPECT_EQ(file.GetTabHhea()->descender, -400);
  EXPECT_EQ(file.GetTabHhea()->lineGap, 100);
  EXPECT_EQ(file.GetTabHhea()->numberOfHMetrics, 5);
  EXPECT_EQ(file.GetTabMaxp()->maxPoints, 4);
  EXPECT_EQ(file.GetTabMaxp()->maxComponentDepth, 1);
  EXPECT_EQ(file.GetTabOS2()->usWidthClass, 5);
  EXPECT_EQ(file.GetTabOS2()->achVendID, (std::array<unsigned char, 4>{'P', 'R', 'O', 'B'}));
  EXPECT_EQ(file.GetTabOS2()->usWinAscent, 1700);
  EXPECT_EQ(file.GetTabOS2()->usWinDescent, 500);
  EXPECT_EQ(file.GetTabOS2()->usBreakChar, 0x20);
  EXPECT_EQ(file.GetTabPost()->version, 0x00030000U);
  EXPECT_EQ(file.GetTabGlyf()->offset, file.FindDirEnt("glyf")->GetOffset());
}

TEST(TrueTypeOS2, LaterFieldsComeWithTheirVersions) {
  TrueTypeBuilder font;
  font.os2Version = 0;
  EXPECT_EQ(TrueTypeFont(font).File().GetTabOS2()->ulCodePageRange[0], 0U);
  font.os2Version = 1;
  EXPECT_EQ(TrueTypeFont(font).File().GetTabOS2()->ulCodePageRange[0], 1U);
  EXPECT_EQ(TrueTypeFont(font).File().GetTabOS2()->sxHeight, 0);
  EXPECT_EQ(TrueTypeFont(font).File().GetTabOS2()->usBreakChar, 0);
  font.os2Version = 3;
  EXPECT_EQ(TrueTypeFont(font).File().GetTabOS2()->sxHeight, 1000);
}

TEST(TrueTypePCLT, SerifUnlessTheStyleSaysSans) {
  for (const auto& [style, serif] : std::initializer_list<std::pair<unsigned, bool>>{
           {0x00, true}, {0x40, false}, {0x7F, false}, {0x80, true}, {0xC0, true}}) {
    TrueTypeBuilder font;
    font.Replace("PCLT", FontBytes().Zeros(52).U8(style).U8(0).Bytes());
    EXPECT_EQ(TrueTypeFont(font).File().GetTabPCLT()->serif, serif) << style;
  }
}

TEST(TrueTypeHMtx, GlyphsWithoutAWidthHaveThatOfTheLastPair) {
  TrueTypeBuilder font;
  font.metricsCount = 2;
  font.glyphs[1].width = 777;
  const TrueTypeFont read(font);
  EXPECT_EQ(read.File().GetTabHMtx()->GetEntryCount(), 5);
  EXPECT_EQ(Glyph(read, 0).GetAdvanceWidth(), 1000);
  EXPECT_EQ(Glyph(read, 1).GetAdvanceWidth(), 777);
  EXPECT_EQ(Glyph(read, 4).GetAdvanceWidth(), 777);
  EXPECT_EQ(Glyph(read, 4).GetLeftSideBearing(), 30);
}

TEST(TrueTypeHMtx, MetricsWithoutAGlyphBelongToEmptyOnes) {
  TrueTypeBuilder font;
  font.glyphCount = 4;
  const TrueTypeFont read(font);
  ASSERT_EQ(read.Failure(), L"");
  EXPECT_EQ(read.File().GetTabHMtx()->GetEntryCount(), 5);
  EXPECT_EQ(Glyph(read, 4).GetAdvanceWidth(), 1300);
  EXPECT_EQ(Glyph(read, 4).GetGlyphOffset(), read.File().GetTabLoca()->endOffset);
  EXPECT_EQ(read.Metrics().GetWidthAt('B'), 634);
}

TEST(TrueTypeLoca, OffsetsAreShortOrLong) {
  TrueTypeBuilder font;
  const auto box = static_cast<unsigned>(font.glyphs[0].outline.size());
  for (const bool isLong : {false, true}) {
    font.longLoca = isLong;
    const TrueTypeFont read(font);
    EXPECT_EQ(Glyph(read, 0).GetGlyphOffset(), 0U);
    EXPECT_EQ(Glyph(read, 1).GetGlyphOffset(), box);
    EXPECT_EQ(Glyph(read, 3).GetGlyphOffset(), box);
    EXPECT_EQ(Glyph(read, 4).GetGlyphOffset(), 2 * box);
    EXPECT_EQ(read.File().GetTabLoca()->endOffset, 2 * box + 18);
  }
}

TEST(TrueTypeGlyf, AnEmptyGlyphHasTheHeaderOfGlyph0Fixed) {
  const TrueTypeFont font{TrueTypeBuilder()};
  EXPECT_EQ(Glyph(font, 0).GetNumberOfContours(), 1);
  EXPECT_EQ(Glyph(font, 0).GetXMax(), 950);
  EXPECT_EQ(Glyph(font, 1).GetNumberOfContours(), 1);
  EXPECT_EQ(Glyph(font, 1).GetXMin(), 50);
  EXPECT_EQ(Glyph(font, 2).GetYMax(), 1400);
  EXPECT_EQ(Glyph(font, 3).GetYMin(), -10);
  EXPECT_EQ(Glyph(font, 4).GetNumberOfContours(), -1);
  EXPECT_EQ(Glyph(font, 4).GetXMax(), 1000);
}

TEST(TrueTypeGlyf, TheLastGlyphIsReadAlthoughItIsEmptyFixed) {
  TrueTypeBuilder font;
  font.glyphs[4].outline.clear();
  // The directory's order puts `head` behind `glyf`: version 1.0, revision 1.0 and the check sum.
  const TrueTypeFont read(font);
  ASSERT_EQ(read.Failure(), L"");
  EXPECT_EQ(Glyph(read, 4).GetNumberOfContours(), 1);
  EXPECT_EQ(Glyph(read, 4).GetXMin(), 0);
  EXPECT_EQ(Glyph(read, 4).GetYMin(), 1);
}

TEST(TrueTypeName, WindowsRecordsOfTwoLanguagesCount) {
  TrueTypeBuilder font;
  font.names = {{1, 0, 0, 4, L"Macintosh"},   {3, 10, 1033, 4, L"Wide"},    {3, 1, 1033, 4, L""},
                {3, 0, 1033, 4, L"First"},    {3, 1, 1033, 4, L"Second"},   {3, 1, 1031, 4, L"Erste"},
                {3, 1, 1036, 4, L"Première"}, {3, 1, 1033, 7, L"Trademark"}};
  const ScopedEnvironment german("LC_ALL", "de_DE.UTF-8");
  const TrueTypeFont read(font);
  // The slot of an empty record stays open, and the first name of a slot stays.
  EXPECT_STREQ(read.Metrics().GetBaseFont(), L"First");
  EXPECT_STREQ(read.Metrics().GetTTName(), L"First");
  EXPECT_STREQ(read.Metrics().GetFontFamilyName(), L"");
  ASSERT_EQ(read.Metrics().GetLocalizedFontNameCount(), 1);
  EXPECT_STREQ(read.Metrics().GetLocalizedFontNameAt(0), L"Erste");
  EXPECT_EQ(read.File().GetTabName()->count, 8);
}

TEST(TrueTypeName, InAnEnglishSystemBothListsAreEnglish) {
  const ScopedEnvironment english("LC_ALL", "C");
  const TrueTypeFont font{TrueTypeBuilder()};
  ASSERT_EQ(font.Metrics().GetLocalizedFontNameCount(), 1);
  EXPECT_STREQ(font.Metrics().GetLocalizedFontNameAt(0), L"Probe Regular");
}

TEST(TrueTypeName, CharactersAreUnitsOf16Bits) {
  TrueTypeBuilder font;
  font.names = {{3, 1, 1033, 4, {L'\x4E2D', wchar_t{0xD83D}, wchar_t{0xDE00}, L'\xFFFF'}}};
  EXPECT_EQ(std::wstring(TrueTypeFont(font).Metrics().GetBaseFont()),
            (std::wstring{L'\x4E2D', wchar_t{0xD83D}, wchar_t{0xDE00}, L'\xFFFF'}));
}

std::vector<unsigned char> Post(std::uint32_t version, const std::vector<unsigned char>& rest) {
  return FontBytes().U32(version).Zeros(28).Append(rest).Bytes();
}

TEST(TrueTypePost, Version1NamesGlyphsInMacintoshOrder) {
  TrueTypeBuilder font;
  font.Replace("post", Post(0x10000, {}));
  const TrueTypeFont read(font);
  EXPECT_STREQ(Glyph(read, 0).GetGlyphName(), L".notdef");
  EXPECT_STREQ(Glyph(read, 2).GetGlyphName(), L"CR");
  EXPECT_STREQ(Glyph(read, 4).GetGlyphName(), L"exclam");
  EXPECT_EQ(read.File().GetTabPost()->standardNames.size(), 258U);
}

TEST(TrueTypePost, FiveStandardNamesAreOthersFixed) {
  TrueTypeBuilder font;
  font.Replace("post", Post(0x10000, {}));
  const TrueTypeFont read(font);
  const std::vector<const wchar_t*>& names = read.File().GetTabPost()->standardNames;
  EXPECT_STREQ(names[1], L".null");
  EXPECT_STREQ(names[2], L"CR");
  EXPECT_STREQ(names[172], L"nbspace");
  EXPECT_STREQ(names[257], L"dmacron");
  for (const wchar_t* other : {L"applelogo", L"Idot"}) {
    EXPECT_EQ(std::count(names.begin(), names.end(), std::wstring(other)), 1) << other;
  }
  for (const wchar_t* standard :
       {L"nonmarkingreturn", L"nonbreakingspace", L"apple", L"Idotaccent", L"dcroat"}) {
    EXPECT_EQ(std::count(names.begin(), names.end(), std::wstring(standard)), 0) << standard;
  }
}

TEST(TrueTypePost, Version2NamesGlyphsByIndex) {
  TrueTypeBuilder font;
  font.Replace(
      "post",
      Post(0x20000,
           FontBytes().U16(5).U16s({0, 259, 3, 258, 36}).U8(3).Ascii("own").U8(4).Ascii("next").Bytes()));
  const TrueTypeFont read(font);
  EXPECT_STREQ(Glyph(read, 0).GetGlyphName(), L".notdef");
  EXPECT_STREQ(Glyph(read, 1).GetGlyphName(), L"next");
  EXPECT_STREQ(Glyph(read, 2).GetGlyphName(), L"space");
  EXPECT_STREQ(Glyph(read, 3).GetGlyphName(), L"own");
  EXPECT_STREQ(Glyph(read, 4).GetGlyphName(), L"A");
  EXPECT_EQ(Glyph(read, 1).GetNameIndex(), 259);
}

TEST(TrueTypePost, NamesAreWidenedWithTheirSignFixed) {
  TrueTypeBuilder font;
  font.Replace("post", Post(0x20000, FontBytes().U16(1).U16(258).U8(2).U8(0x41).U8(0xE4).Bytes()));
  EXPECT_EQ(std::wstring(Glyph(TrueTypeFont(font), 0).GetGlyphName()), (std::wstring{L'A', wchar_t{0xFFE4}}));
}

TEST(TrueTypePost, NamesThatGlyphsShareStandOnce) {
  TrueTypeBuilder font;
  font.Replace("post",
               Post(0x20000, FontBytes().U16(5).U16s({0, 258, 258, 258, 300}).U8(1).Ascii("x").Bytes()));
  const TrueTypeFont read(font);
  ASSERT_EQ(read.Failure(), L"");
  EXPECT_STREQ(Glyph(read, 3).GetGlyphName(), L"x");
  EXPECT_STREQ(Glyph(read, 4).GetGlyphName(), L"");
}

TEST(TrueTypePost, OtherVersionsLeaveNamesEmpty) {
  for (const std::uint32_t version : {0x00025000U, 0x00030000U, 0x00040000U, 0U}) {
    TrueTypeBuilder font;
    font.Replace("post", Post(version, FontBytes().U16(5).U16s({1, 2, 3, 4, 5}).Bytes()));
    const TrueTypeFont read(font);
    EXPECT_STREQ(Glyph(read, 3).GetGlyphName(), L"");
    EXPECT_TRUE(read.File().GetTabPost()->standardNames.empty());
  }
}

TEST(TrueTypePost, MoreNamesThanGlyphsAreLeftOut) {
  TrueTypeBuilder font;
  font.Replace("post", Post(0x20000, FontBytes().U16(7).U16s({0, 1, 2, 3, 4, 5, 6}).Bytes()));
  EXPECT_STREQ(Glyph(TrueTypeFont(font), 4).GetGlyphName(), L"exclam");
}

TEST(TrueTypeCMap, TheLastMapOfAKindCounts) {
  TrueTypeBuilder font;
  const auto mapOf = [](unsigned glyph) {
    return TrueTypeBuilder::Format4({{0x41, 0x41, glyph - 0x41U, 0}});
  };
  font.cmaps = {{3, 0, mapOf(2)}, {3, 1, mapOf(3)}, {3, 10, mapOf(4)}, {0, 3, mapOf(4)}};
  const TrueTypeFont read(font);
  const CTrueTypeTabCMap& table = *read.File().GetTabCMap();
  EXPECT_EQ(table.GetSubtableCount(), 4);
  EXPECT_EQ(table.GetCMap4()->GetEncodingID(), 1);
  EXPECT_EQ(table.GetCMap4()->GetGlyph(0x41), 3);
  EXPECT_FALSE(read.Metrics().GetSymbolFont());
  EXPECT_EQ(table.GetCMap0_6(), nullptr);
}

TEST(TrueTypeCMap, MacintoshMapsAreReadBesideIt) {
  TrueTypeBuilder font;
  FontBytes format0;
  format0.U16s({0, 262, 0}).Zeros(65).U8(3).U8(4).Zeros(189);
  font.cmaps.push_back({1, 0, format0.Bytes()});
  const TrueTypeFont read(font);
  const CTrueTypeCMap0_6& map = *read.File().GetTabCMap()->GetCMap0_6();
  EXPECT_EQ(map.GetFormat(), 0);
  EXPECT_EQ(map.GetFirstCode(), 0);
  EXPECT_EQ(map.GetEntryCount(), 256);
  EXPECT_EQ(map.GetGlyph(0x41), 3);
  EXPECT_EQ(map.GetGlyph(0x42), 4);
  EXPECT_EQ(map.GetGlyph(0x100), 0);
}

TEST(TrueTypeCMap, Format6IsIndexedByCode) {
  TrueTypeBuilder font;
  font.cmaps.push_back({1, 0, FontBytes().U16s({6, 14, 0, 0x41, 2, 3, 4}).Bytes()});
  font.cmaps.push_back({1, 0, FontBytes().U16s({2, 6, 0}).Bytes()});
  const TrueTypeFont read(font);
  const CTrueTypeCMap0_6& map = *read.File().GetTabCMap()->GetCMap0_6();
  EXPECT_EQ(map.GetFormat(), 6);
  EXPECT_EQ(map.GetGlyph(0), 0);
  EXPECT_EQ(map.GetGlyph(0x40), 0);
  EXPECT_EQ(map.GetGlyph(0x41), 3);
  EXPECT_EQ(map.GetGlyph(0x42), 4);
  EXPECT_EQ(map.GetGlyph(0x43), 0);
}

TEST(TrueTypeCMap4, FollowsRangeOffsetsIntoTheGlyphs) {
  // Two segments and the end: offset 6 of the first one leads to entry 0, offset 8 of the second one to entry 2.
  const auto bytes = TrueTypeBuilder::Format4({{0x41, 0x42, 1, 6}, {0x61, 0x63, 0xFFFF, 8}}, {2, 0, 3, 0, 5});
  const TrueTypeFont font(WithMap(bytes));
  const CTrueTypeCMap4& map = *font.File().GetTabCMap()->GetCMap4();
  EXPECT_EQ(map.GetGlyphIdCount(), 5);
  EXPECT_EQ(map.GetGlyph(0x41), 3);
  EXPECT_EQ(map.GetGlyph(0x42), 0);
  EXPECT_EQ(map.GetGlyph(0x61), 2);
  EXPECT_EQ(map.GetGlyph(0x62), 0);
  EXPECT_EQ(map.GetGlyph(0x63), 4);
  EXPECT_EQ(map.GetGlyph(0x60), 0);
}

TEST(TrueTypeCMap4, AnOffsetBehindTheGlyphsGivesNone) {
  const auto bytes = TrueTypeBuilder::Format4({{0x41, 0x42, 0, 0xFFFF}, {0x43, 0x44, 0, 2}}, {3});
  const TrueTypeFont font(WithMap(bytes));
  ASSERT_EQ(font.Failure(), L"");
  const CTrueTypeCMap4& map = *font.File().GetTabCMap()->GetCMap4();
  EXPECT_EQ(map.GetGlyph(0x41), 0);
  // Entry 1 + 0 + (1 - 3), in front of the first one.
  EXPECT_EQ(map.GetGlyph(0x43), 0);
}

TEST(TrueTypeCMap4, ACodeBehindAllSegmentsBelongsToTheFirstFixed) {
  FontBytes bytes;
  bytes.U16s({4, 32, 0, 4, 2, 0, 0}).U16s({0x41, 0x50}).U16(0).U16s({0x41, 0x50}).U16s({10, 20}).U16s({0, 0});
  const TrueTypeFont font(WithMap(bytes.Bytes()));
  const CTrueTypeCMap4& map = *font.File().GetTabCMap()->GetCMap4();
  EXPECT_EQ(map.GetGlyph(0x51), 0x51 + 10);
  EXPECT_EQ(map.GetGlyph(0xFFFF), (0xFFFF + 10) & 0xFFFF);
}

/// The glyph by going through the segments in order.
unsigned GlyphByWalking(const CTrueTypeCMap4& map, unsigned code) {
  int segment = 0;
  while (segment < map.GetSegCount() && map.GetEndCodeAt(segment) < code) ++segment;
  if (segment == map.GetSegCount()) segment = 0;
  if (code < map.GetStartCodeAt(segment)) return 0;
  if (map.GetIdRangeOffsetAt(segment) == 0) return (code + map.GetIdDeltaAt(segment)) & 0xFFFFU;
  const int index = map.GetIdRangeOffsetAt(segment) / 2 + static_cast<int>(code) -
                    map.GetStartCodeAt(segment) + segment - map.GetSegCount();
  if (index < 0 || index >= map.GetGlyphIdCount() || map.GetGlyphIdAt(index) == 0) return 0;
  return (map.GetGlyphIdAt(index) + static_cast<unsigned>(map.GetIdDeltaAt(segment))) & 0xFFFFU;
}

TEST(TrueTypeCMap4, UnsortedSegmentsGiveTheFirstThatReachesTheCode) {
  std::mt19937 random(7);
  const auto number = [&](unsigned below) { return static_cast<unsigned>(random() % below); };
  for (int round = 0; round < 20; ++round) {
    std::vector<TrueTypeBuilder::Segment> segments(1 + number(40));
    for (auto& segment : segments) {
      segment = {number(3000), number(3000), number(3000), number(3) == 0 ? 2 * number(60) : 0};
    }
    std::vector<unsigned> glyphs(number(50));
    for (unsigned& glyph : glyphs) glyph = number(2000);
    const Asked asked = {nullptr, number(2) == 0};
    const TrueTypeFont font(WithMap(TrueTypeBuilder::Format4(segments, glyphs)), asked);
    ASSERT_EQ(font.Failure(), L"");
    const CTrueTypeCMap4& map = *font.File().GetTabCMap()->GetCMap4();
    for (unsigned code = 0; code < 3100; ++code) {
      ASSERT_EQ(map.GetGlyph(static_cast<unsigned short>(code)), GlyphByWalking(map, code))
          << round << ' ' << code;
    }
    if (!asked.unicode) continue;
    for (int code = font.Metrics().GetFirstChar(); code <= font.Metrics().GetLastChar(); ++code) {
      const unsigned glyph = std::min(GlyphByWalking(map, static_cast<unsigned>(code)), 4U);
      const unsigned width = TrueTypeBuilder().glyphs[glyph].width * 1000 / 2048;
      ASSERT_EQ(font.Metrics().GetWidthAt(code), width) << round << ' ' << code;
    }
  }
}

TEST(TrueTypeCMap4, TheRangeOfCodesComesFromFirstAndLastButOneSegmentFixed) {
  const auto bytes = TrueTypeBuilder::Format4({{0x100, 0x110, 0, 0}, {0x41, 0x42, 0, 0}});
  const TrueTypeFont font(WithMap(bytes), kUnicode);
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_EQ(font.Metrics().GetFirstChar(), 0x100);
  EXPECT_EQ(font.Metrics().GetLastChar(), 0x42);
  EXPECT_EQ(font.Metrics().GetWidthAt(0x41), 0);
}

TEST(TrueTypeCMap4, AMapOfAnotherFormatIsReadAsIfItWereOfFormat4Fixed) {
  auto bytes = TrueTypeBuilder::Format4({{0x41, 0x42, 3U - 0x41U, 0}});
  bytes[1] = 8;
  const TrueTypeFont font(WithMap(bytes));
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_EQ(font.File().GetTabCMap()->GetCMap4()->GetFormat(), 8);
  EXPECT_EQ(font.Metrics().GetWidthAt('A'), 585);
}

TEST(TrueTypeCMap4, OneSegmentHasNoRangeOfCodes) {
  const auto bytes = TrueTypeBuilder::Format4({});
  EXPECT_EQ(TrueTypeFont(WithMap(bytes), kUnicode).Failure(), L"IncorrectTrueTypeFile");
  EXPECT_EQ(TrueTypeFont(WithMap(bytes)).Failure(), L"");
}

}  // namespace
