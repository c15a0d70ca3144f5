// Files that say what is not so about offsets, counts and lengths.

#include "fonts/TrueTypeCollection.h"
#include "fonts/TrueTypeFont.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

namespace {

using zebtest::Asked;
using zebtest::FontBytes;
using zebtest::TrueTypeBuilder;
using zebtest::TrueTypeFont;

constexpr Asked kUnicode = {nullptr, true};
constexpr const wchar_t* kIncorrect = L"IncorrectTrueTypeFile";

std::wstring Failure(const TrueTypeBuilder& font, const Asked& asked = {}) {
  return TrueTypeFont(font, asked).Failure();
}

/// The font with two bytes of a table changed.
std::vector<unsigned char> Patched(const TrueTypeBuilder& font, const char* tag, std::size_t at,
                                   unsigned value) {
  const std::vector<unsigned char> bytes = font.Build();
  return FontBytes().Append(bytes).PatchU16(zebtest::FindTable(bytes, tag).offset + at, value).Bytes();
}

TEST(TrueTypeLies, FilesThatEndInTheirDirectory) {
  const std::vector<unsigned char> bytes = TrueTypeBuilder().Build();
  for (const std::size_t size : {1U, 4U, 5U, 6U, 11U, 12U, 100U, 171U}) {
    const std::vector<unsigned char> cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_EQ(TrueTypeFont(cut).Failure(), kIncorrect) << size;
  }
}

TEST(TrueTypeLies, FilesCutAnywhereAreRefused) {
  const std::vector<unsigned char> bytes = TrueTypeBuilder().Build();
  // The last table is `post`, 32 bytes without padding.
  for (std::size_t size = 172; size < bytes.size(); size += 7) {
    const std::vector<unsigned char> cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_EQ(TrueTypeFont(cut).Failure(), kIncorrect) << size;
  }
}

TEST(TrueTypeLies, MoreTablesThanTheFileHolds) {
  FontBytes bytes;
  bytes.Append(TrueTypeBuilder().Build());
  EXPECT_EQ(TrueTypeFont(bytes.PatchU16(4, 0xFFFF).Bytes()).Failure(), kIncorrect);
  EXPECT_EQ(TrueTypeFont(bytes.PatchU16(4, 0).Bytes()).Failure(), L"TrueTypeCreationFailed");
}

TEST(TrueTypeLies, TablesOutsideOfTheFile) {
  TrueTypeBuilder font;
  for (const char* tag : {"CFF ", "PCLT", "cvt ", "fpgm", "prep"})
    font.Replace(tag, std::vector<unsigned char>(54));
  font.Remove("CFF ");
  const std::vector<unsigned char> bytes = font.Build();
  ASSERT_EQ(TrueTypeFont(bytes).Failure(), L"");
  for (const char* tag : {"OS/2", "PCLT", "cmap", "cvt ", "fpgm", "glyf", "head", "hhea", "hmtx", "loca",
                          "maxp", "name", "post", "prep"}) {
    const std::size_t entry = zebtest::FindTable(bytes, tag).directoryEntry;
    FontBytes offset;
    offset.Append(bytes).PatchU32(entry + 8, static_cast<std::uint32_t>(bytes.size()));
    EXPECT_EQ(TrueTypeFont(offset.Bytes()).Failure(), kIncorrect) << tag;
    FontBytes length;
    length.Append(bytes).PatchU32(entry + 12, 0xFFFFFFF0U);
    EXPECT_EQ(TrueTypeFont(length.Bytes()).Failure(), kIncorrect) << tag;
  }
}

TEST(TrueTypeLies, TablesThatNobodyReadsMayLieAnywhere) {
  TrueTypeBuilder font;
  font.Replace("DSIG", {1, 2, 3, 4});
  const std::vector<unsigned char> bytes = font.Build();
  FontBytes patched;
  patched.Append(bytes).PatchU32(zebtest::FindTable(bytes, "DSIG").directoryEntry + 8, 0x7FFFFFFF);
  EXPECT_EQ(TrueTypeFont(patched.Bytes()).Failure(), L"");
}

TEST(TrueTypeLies, TablesThatAreTooShort) {
  const auto tables = TrueTypeBuilder().Tables();
  for (const auto& [tag, bytes] : tables) {
    TrueTypeBuilder font;
    font.Replace(tag, std::vector<unsigned char>(bytes.begin(), bytes.end() - 1));
    EXPECT_EQ(Failure(font), kIncorrect) << tag;
    font.Replace(tag, {});
    EXPECT_EQ(Failure(font), kIncorrect) << tag;
  }
}

TEST(TrueTypeLies, NoUnitsPerEm) {
  TrueTypeBuilder font;
  font.unitsPerEm = 0;
  EXPECT_EQ(Failure(font), kIncorrect);
}

TEST(TrueTypeLies, CountsBeyondTheTables) {
  TrueTypeBuilder font;
  font.glyphCount = 0xFFFF;
  EXPECT_EQ(Failure(font), kIncorrect);
  font.glyphCount = 6;
  EXPECT_EQ(Failure(font), kIncorrect);
  font.glyphCount.reset();
  EXPECT_EQ(TrueTypeFont(Patched(font, "hhea", 34, 0xFFFF)).Failure(), kIncorrect);
  // Without any width there is none to repeat.
  EXPECT_EQ(TrueTypeFont(Patched(font, "hhea", 34, 0)).Failure(), kIncorrect);
}

TEST(TrueTypeLies, GlyphsOutOfOrderOrOutsideOfTheirTable) {
  TrueTypeBuilder font;
  // Offsets in units of two bytes: box, empty, empty, box, composite of 18 bytes.
  const auto box = static_cast<unsigned>(font.glyphs[0].outline.size() / 2);
  EXPECT_EQ(TrueTypeFont(Patched(font, "loca", 4, box - 1)).Failure(), kIncorrect);
  EXPECT_EQ(TrueTypeFont(Patched(font, "loca", 10, 2 * box + 10)).Failure(), kIncorrect);
  EXPECT_EQ(TrueTypeFont(Patched(font, "loca", 10, 2 * box + 9)).Failure(), L"");
  EXPECT_EQ(TrueTypeFont(Patched(font, "loca", 0, 1)).Failure(), L"");
}

TEST(TrueTypeLies, NamesOutsideOfTheirTable) {
  TrueTypeBuilder font;
  // Record 0: length at 14, offset at 16.
  EXPECT_EQ(TrueTypeFont(Patched(font, "name", 14, 1000)).Failure(), kIncorrect);
  EXPECT_EQ(TrueTypeFont(Patched(font, "name", 16, 1000)).Failure(), kIncorrect);
  EXPECT_EQ(TrueTypeFont(Patched(font, "name", 2, 1000)).Failure(), kIncorrect);
  EXPECT_EQ(TrueTypeFont(Patched(font, "name", 4, 1000)).Failure(), kIncorrect);
  // Records of no use may say what they like.
  font.names.push_back({1, 0, 0, 4, L"x"});
  EXPECT_EQ(TrueTypeFont(Patched(font, "name", 6 + 4 * 12 + 8, 0xFFFF)).Failure(), L"");
}

TEST(TrueTypeLies, GlyphNamesBeyondTheirTable) {
  TrueTypeBuilder font;
  const auto post = [](const FontBytes& rest) {
    return FontBytes().U32(0x20000).Zeros(28).Append(rest.Bytes()).Bytes();
  };
  font.Replace("post", post(FontBytes().U16(0xFFFF)));
  EXPECT_EQ(Failure(font), kIncorrect);
  font.Replace("post", post(FontBytes().U16(1).U16(258).U8(200).Ascii("short")));
  EXPECT_EQ(Failure(font), kIncorrect);
  font.Replace("post", post(FontBytes().U8(0)));
  EXPECT_EQ(Failure(font), kIncorrect);
}

TEST(TrueTypeLies, CharacterMaps) {
  const TrueTypeBuilder font;
  // The record's offset at 8; the map begins at 12: length at 14, twice the segments at 18.
  EXPECT_EQ(TrueTypeFont(Patched(font, "cmap", 8, 1)).Failure(), kIncorrect);
  EXPECT_EQ(TrueTypeFont(Patched(font, "cmap", 2, 0xFFFF)).Failure(), kIncorrect);
  for (const unsigned length : {0U, 13U, 15U, 16U, 39U, 41U + 1U, 0xFFFFU}) {
    EXPECT_EQ(TrueTypeFont(Patched(font, "cmap", 14, length)).Failure(), kIncorrect) << length;
  }
  for (const unsigned segments : {0U, 1U, 8U, 0xFFFFU}) {
    EXPECT_EQ(TrueTypeFont(Patched(font, "cmap", 18, segments)).Failure(), kIncorrect) << segments;
  }
}

TEST(TrueTypeLies, MacintoshMaps) {
  TrueTypeBuilder font;
  font.cmaps.push_back({1, 0, FontBytes().U16s({0, 262, 0}).Zeros(255).Bytes()});
  EXPECT_EQ(Failure(font), kIncorrect);
  font.cmaps[1].bytes = FontBytes().U16s({6, 10, 0, 0xFFFF, 0xFFFF}).Bytes();
  EXPECT_EQ(Failure(font), kIncorrect);
}

TEST(TrueTypeLies, ManyMapsInOnePlaceAreReadOnce) {
  // 60,000 records that all name a map of 60,000 bytes.
  constexpr unsigned kRecords = 60000;
  const std::vector<TrueTypeBuilder::Segment> segments(7000, {0x41, 0x42, 0, 0});
  FontBytes cmap;
  cmap.U16(0).U16(kRecords);
  for (unsigned record = 0; record < kRecords; ++record) cmap.U16(3).U16(1).U32(4 + 8 * kRecords);
  TrueTypeBuilder font;
  font.Replace("cmap", cmap.Append(TrueTypeBuilder::Format4(segments)).Bytes());
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Failure(font, kUnicode), L"");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

/// Where a collection has a font of that name; -1 if the bytes are none.
std::int64_t Find(const std::vector<unsigned char>& bytes, const wchar_t* name) {
  return zeb::FindCollectionFont(
      name, zeb::ByteReader(bytes.data(), static_cast<std::ptrdiff_t>(bytes.size())), 1033);
}

TEST(TrueTypeCollection, FindsFontsByTheirFullName) {
  TrueTypeBuilder other;
  other.names = {{3, 1, 1033, 4, L"Other"}, {3, 1, 1031, 4, L"Andere"}};
  const std::vector<unsigned char> bytes = TrueTypeBuilder::BuildCollection({TrueTypeBuilder(), other});
  EXPECT_EQ(Find(bytes, L"probe REGULAR"), 20);
  EXPECT_EQ(Find(bytes, L"@Probe Regular"), 20);
  EXPECT_GT(Find(bytes, L"Other"), 20);
  EXPECT_EQ(Find(bytes, L"Andere"), 0);
  EXPECT_EQ(Find(bytes, L"Probe"), 0);
  EXPECT_EQ(Find(bytes, nullptr), 0);
  EXPECT_EQ(Find(TrueTypeBuilder().Build(), L"Probe Regular"), -1);
  EXPECT_EQ(Find({}, L"Probe Regular"), -1);
  const zeb::ByteReader in(bytes.data(), static_cast<std::ptrdiff_t>(bytes.size()));
  EXPECT_EQ(zeb::FindCollectionFont(L"Andere", in, 1031), zeb::FindCollectionFont(L"Other", in, 1031));
}

TEST(TrueTypeCollection, AFontThatCannotBeReadIsPassedOver) {
  FontBytes bytes;
  bytes.Append(TrueTypeBuilder::BuildCollection({TrueTypeBuilder(), TrueTypeBuilder()}));
  bytes.PatchU32(12, 0xFFFFFFFFU);
  EXPECT_GT(Find(bytes.Bytes(), L"Probe Regular"), 20);
  bytes.PatchU32(16, 0x7FFFFFFFU);
  EXPECT_EQ(Find(bytes.Bytes(), L"Probe Regular"), 0);
}

TEST(TrueTypeCollection, CountsBeyondTheFileEndWithIt) {
  EXPECT_EQ(Find(FontBytes().Ascii("ttcf").U32(0x10000).U32(0x7FFFFFFF).U32(12).Bytes(), L"x"), 0);
  EXPECT_EQ(Find(FontBytes().Ascii("ttcf").U32(0x10000).U32(0xFFFFFFFFU).U32(12).Bytes(), L"x"), 0);
  EXPECT_EQ(Find(FontBytes().Ascii("ttcf").U32(0x10000).Bytes(), L"x"), 0);
}

TEST(TrueTypeCollection, LooksAtNoMoreThan1024Fonts) {
  const auto collection = [](unsigned fonts) {
    const std::size_t at = 12 + 4 * std::size_t{fonts};
    // All offsets but the last one lead nowhere.
    FontBytes header;
    header.Ascii("ttcf").U32(0x10000).U32(fonts);
    for (unsigned font = 1; font < fonts; ++font) header.U32(0xFFFFFFF0U);
    header.U32(static_cast<std::uint32_t>(at));
    TrueTypeBuilder font;
    const std::vector<unsigned char> names = font.Tables().at("name");
    header.U32(0x10000).U16(1).U16s({16, 0, 0}).Ascii("name").U32(0).U32(static_cast<std::uint32_t>(at + 28));
    return header.U32(static_cast<std::uint32_t>(names.size())).Append(names).Bytes();
  };
  EXPECT_EQ(Find(collection(1024), L"Probe Regular"), 12 + 4 * 1024);
  EXPECT_EQ(Find(collection(1025), L"Probe Regular"), 0);
}

TEST(TrueTypeLies, HostileBytesEndInAnOrderlyWay) {
  std::mt19937 random(11);
  TrueTypeBuilder builder;
  builder.Replace("PCLT", std::vector<unsigned char>(54));
  builder.Replace(
      "post",
      FontBytes().U32(0x20000).Zeros(28).U16(5).U16s({0, 258, 3, 259, 36}).U8(1).U8(65).U8(1).U8(66).Bytes());
  const std::vector<unsigned char> font = builder.Build();
  for (int round = 0; round < 300; ++round) {
    std::vector<unsigned char> bytes = font;
    for (int change = 0; change < 4; ++change) {
      bytes[random() % bytes.size()] = static_cast<unsigned char>(random() % 3 == 0 ? 0xFF : random());
    }
    TrueTypeFont read(bytes, {nullptr, random() % 2 == 0});
    EXPECT_TRUE(read.Failure().empty() || read.Metrics().GetTTFile() == nullptr);
  }
}

}  // namespace
