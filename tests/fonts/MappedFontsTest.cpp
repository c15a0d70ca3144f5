#include "fonts/FontData.h"
#include "fonts/TrueTypeFont.h"
#include "fonts/TrueTypeHMtx.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <utility>
#include <vector>

// Fonts of the system stay in their files, and the records of their glyphs are made when they are asked for. Copies of the
// same files elsewhere are read to the end at once. Nobody can tell them apart.

namespace {

using zebtest::Asked;
using zebtest::TrueTypeFont;
using zebtest::WidePath;

constexpr Asked kUnicode = {nullptr, true};

const std::filesystem::path kSystemFont = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

std::vector<unsigned char> Contents(const CFontData& data) {
  return {data.GetData(), data.GetData() + data.GetLength()};
}

void ExpectSameEntry(const CTrueTypeHMtxEntry& entry, const CTrueTypeHMtxEntry& wanted) {
  EXPECT_EQ(entry.GetAdvanceWidth(), wanted.GetAdvanceWidth());
  EXPECT_EQ(entry.GetLeftSideBearing(), wanted.GetLeftSideBearing());
  EXPECT_STREQ(entry.GetGlyphName(), wanted.GetGlyphName());
  EXPECT_EQ(entry.GetNameIndex(), wanted.GetNameIndex());
  EXPECT_EQ(entry.GetCodes(), wanted.GetCodes());
  EXPECT_EQ(entry.GetNumberOfContours(), wanted.GetNumberOfContours());
  EXPECT_EQ(entry.GetXMin(), wanted.GetXMin());
  EXPECT_EQ(entry.GetYMin(), wanted.GetYMin());
  EXPECT_EQ(entry.GetXMax(), wanted.GetXMax());
  EXPECT_EQ(entry.GetYMax(), wanted.GetYMax());
  EXPECT_EQ(entry.GetGlyphOffset(), wanted.GetGlyphOffset());
}

class MappedFonts : public testing::Test {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(kSystemFont)) GTEST_SKIP() << kSystemFont << " is not installed";
    m_mapped = std::make_unique<TrueTypeFont>();
    m_mapped->ReadFile(WidePath(kSystemFont), kUnicode);
    ASSERT_EQ(m_mapped->Failure(), L"");
    m_copied = std::make_unique<TrueTypeFont>(zebtest::ReadBytes(kSystemFont), kUnicode);
    ASSERT_EQ(m_copied->Failure(), L"");
  }

  CTrueTypeHMtxEntry& Entry(int glyph) const { return *m_mapped->File().GetTabHMtx()->GetEntryAt(glyph); }
  CTrueTypeHMtxEntry& Wanted(int glyph) const { return *m_copied->File().GetTabHMtx()->GetEntryAt(glyph); }

  std::unique_ptr<TrueTypeFont> m_mapped;
  std::unique_ptr<TrueTypeFont> m_copied;
};

TEST_F(MappedFonts, HaveTheRecordsOfFontsThatWereRead) {
  const int count = m_copied->File().GetTabHMtx()->GetEntryCount();
  ASSERT_EQ(m_mapped->File().GetTabHMtx()->GetEntryCount(), count);
  // From the last one on, as no record may depend on others.
  for (int glyph = count - 1; glyph >= 0 && !HasFailure(); --glyph) {
    SCOPED_TRACE(glyph);
    ExpectSameEntry(Entry(glyph), Wanted(glyph));
  }
}

TEST_F(MappedFonts, TellOffsetsBeforeTheirRecordsAreMade) {
  const CTrueTypeTabHMtx& glyphs = *m_mapped->File().GetTabHMtx();
  for (const int glyph : {0, 1, 3, 36, 6000}) {
    EXPECT_EQ(glyphs.GetGlyphOffsetAt(glyph), Wanted(glyph).GetGlyphOffset()) << glyph;
  }
  Entry(36).SetGlyphOffset(7);
  EXPECT_EQ(glyphs.GetGlyphOffsetAt(36), 7U);
}

TEST_F(MappedFonts, KeepWhatIsSetInARecord) {
  CTrueTypeHMtxEntry& entry = Entry(36);
  entry.SetAdvanceWidth(5);
  entry.SetGlyphName(L"other");
  entry.AddCode(0xE000);
  EXPECT_EQ(Entry(36).GetAdvanceWidth(), 5);
  EXPECT_STREQ(Entry(36).GetGlyphName(), L"other");
  EXPECT_EQ(Entry(36).GetCodes(), (std::vector<unsigned short>{'A', 0xE000}));
}

TEST_F(MappedFonts, MakeRecordsAlsoWhenTheProgramIsGone) {
  m_mapped->Metrics().SetFontData(new CFontData(false), true);
  for (const int glyph : {0, 3, 36, 6000}) {
    SCOPED_TRACE(glyph);
    ExpectSameEntry(Entry(glyph), Wanted(glyph));
  }
}

TEST_F(MappedFonts, MakeRecordsOfTheFileAlsoWhenTheProgramChanges) {
  CFontData& data = *m_mapped->Metrics().GetFontData();
  std::vector<unsigned char> more(200'000, 0xAB);
  data.AddFontMemData(more.data(), static_cast<int>(more.size()));
  std::vector<unsigned char> wanted = zebtest::ReadBytes(kSystemFont);
  wanted.insert(wanted.end(), more.begin(), more.end());
  EXPECT_EQ(Contents(data), wanted);
  ExpectSameEntry(Entry(36), Wanted(36));
}

TEST_F(MappedFonts, GiveTheSubsetsOfFontsThatWereRead) {
  for (const unsigned short code : std::vector<unsigned short>{0x41, 0xC4, 0x410, 0x1E69, 0x2460}) {
    EXPECT_EQ(m_mapped->Metrics().MapChar(code), m_copied->Metrics().MapChar(code));
  }
  m_mapped->Metrics().CreateSubsetFont();
  m_copied->Metrics().CreateSubsetFont();
  EXPECT_EQ(Contents(*m_mapped->Metrics().GetFontData()), Contents(*m_copied->Metrics().GetFontData()));
}

TEST_F(MappedFonts, AreWholeAgainBehindASubset) {
  CFontMetrics& metrics = m_mapped->Metrics();
  const CFontData& source = *metrics.GetFontData();
  metrics.MapChar(0xC4);
  metrics.CreateSubsetFont();
  EXPECT_EQ(Contents(source), zebtest::ReadBytes(kSystemFont));
}

TEST_F(MappedFonts, AreParsedAgainWhereTheyAre) {
  m_mapped->ReadAgain(L"DejaVu Sans", kUnicode);
  ASSERT_EQ(m_mapped->Failure(), L"");
  m_mapped->Metrics().SetFontData(new CFontData(false), true);
  ExpectSameEntry(Entry(36), Wanted(36));
}

TEST_F(MappedFonts, GrowBetweenTwoSubsets) {
  CFontMetrics& metrics = m_mapped->Metrics();
  CFontData& source = *metrics.GetFontData();
  metrics.MapChar(0xC4);
  metrics.CreateSubsetFont();
  const std::vector<unsigned char> first = Contents(*metrics.GetFontData());
  source.WriteUIntAtPos(source.GetLength() + 500'000, 1);
  metrics.CreateSubsetFont();
  EXPECT_EQ(Contents(*metrics.GetFontData()), first);
}

TEST_F(MappedFonts, AreCopiedIntoABlockThatIsNotNew) {
  TrueTypeFont font;
  font.ReadFile(WidePath(kSystemFont), kUnicode);
  font.Metrics().SetFontData(new CFontData(1'000, false), true);
  font.ReadFile(WidePath(kSystemFont), kUnicode);
  EXPECT_EQ(Contents(*font.Metrics().GetFontData()), zebtest::ReadBytes(kSystemFont));
  ExpectSameEntry(*font.File().GetTabHMtx()->GetEntryAt(36), Wanted(36));
}

/// An object whose capacity can be seen.
struct OpenFontData : CFontData {
  explicit OpenFontData(const CFontData& other) : CFontData(other) {}
  int Capacity() const { return m_iCapacity; }
};

TEST_F(MappedFonts, HaveTheCapacityOfFontsThatWereRead) {
  // Copies share the block, so they must not be destroyed.
  alignas(OpenFontData) unsigned char rooms[2][sizeof(OpenFontData)];
  const auto* const mapped = new (rooms[0]) OpenFontData(*m_mapped->Metrics().GetFontData());
  const auto* const copied = new (rooms[1]) OpenFontData(*m_copied->Metrics().GetFontData());
  EXPECT_EQ(mapped->Capacity(), copied->Capacity());
}

}  // namespace
