#include "fonts/FontData.h"
#include "fonts/TrueTypeFont.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "fonts/TrueTypeHMtx.h"
#include "fonts/TrueTypeReader.h"
#include "fonts/TrueTypeStatus.h"
#include "support/ScopedFontPool.h"
#include "support/TrueTypeBuilder.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

// A font program is read once: from then on every use goes by the bytes in memory.

namespace {

using zebtest::ScopedFontPool;
using zebtest::TrueTypeBuilder;
using zebtest::TrueTypeFont;

using Bytes = std::vector<unsigned char>;

Bytes Contents(const CFontData& data) { return {data.GetData(), data.GetData() + data.GetLength()}; }

Bytes SubsetOf(CFontMetrics& metrics, unsigned short code) {
  metrics.MapChar(code);
  metrics.CreateSubsetFont();
  return Contents(*metrics.GetFontData());
}

/// What the subset must be, from a font of its own.
Bytes FreshSubset(unsigned short code) {
  const TrueTypeFont font(TrueTypeBuilder(), {.unicode = true});
  return SubsetOf(font.Metrics(), code);
}

bool ParseInPlace(CTrueTypeFontMetrics& metrics, const wchar_t* name) {
  zeb::TrueTypeReader reader(metrics, {.faceName = name, .unicode = true, .reuseData = true});
  return reader.Read() == zeb::kTrueTypeDone;
}

void StoreInPool(const ScopedFontPool& pool) {
  Bytes bytes = TrueTypeBuilder().Build();
  pool->SetFontData(L"Probe Regular", L"Probe", 400, false, bytes.data(), static_cast<int>(bytes.size()), {});
  pool->DeleteFontPool();
}

}  // namespace

TEST(FontReuse, ASecondReadingDoesNotNeedTheFile) {
  const zebtest::TempDir folder;
  zebtest::WriteBytes(folder.File("font.ttf"), TrueTypeBuilder().Build());
  TrueTypeFont font;
  font.ReadFile(folder.WideFile("font.ttf"), {.unicode = true});
  ASSERT_EQ(font.Failure(), L"");
  const CFontData* const data = font.Metrics().GetFontData();
  std::filesystem::remove(folder.File("font.ttf"));

  font.ReadAgain(nullptr, {.unicode = true});
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_EQ(font.Metrics().GetFontData(), data);
  EXPECT_EQ(SubsetOf(font.Metrics(), 0x42), FreshSubset(0x42));
}

TEST(FontReuse, ASecondReadingTakesNoNoticeOfAnotherFileOfThatName) {
  const zebtest::TempDir folder;
  zebtest::WriteBytes(folder.File("font.ttf"), TrueTypeBuilder().Build());
  TrueTypeFont font;
  font.ReadFile(folder.WideFile("font.ttf"), {.unicode = true});
  zebtest::WriteBytes(folder.File("font.ttf"), {1, 2, 3});
  font.ReadAgain(folder.WideFile("font.ttf").c_str(), {.unicode = true});
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_EQ(SubsetOf(font.Metrics(), 0x41), FreshSubset(0x41));
}

TEST(FontReuse, ThePoolReadsItsFileOnceForAllFontsOfThatName) {
  const ScopedFontPool pool;
  StoreInPool(pool);
  CFontData* const data = pool->GetFontData(L"Probe Regular");
  ASSERT_NE(data, nullptr);
  ASSERT_TRUE(std::filesystem::remove(pool.Folder().File("Probe Regular.fd")));
  const Bytes program = Contents(*data);

  for (const unsigned short code : std::array<unsigned short, 2>{0x41, 0x42}) {
    CTrueTypeFontMetrics metrics;
    CFontData* const again = pool->GetFontData(L"Probe Regular");
    ASSERT_EQ(again, data);
    metrics.SetFontData(again, false);
    ASSERT_TRUE(ParseInPlace(metrics, L"Probe Regular"));
    EXPECT_EQ(SubsetOf(metrics, code), FreshSubset(code));
  }
  EXPECT_EQ(Contents(*data), program);
}

TEST(FontReuse, GlyphsStayWhenTheProgramGoes) {
  TrueTypeFont font(TrueTypeBuilder(), {.unicode = true});
  const TrueTypeFont wanted(TrueTypeBuilder(), {.unicode = true});
  font.Metrics().SetFontData(new CFontData(false), true);
  const CTrueTypeHMtxEntry& entry = *font.File().GetTabHMtx()->GetEntryAt(3);
  const CTrueTypeHMtxEntry& expected = *wanted.File().GetTabHMtx()->GetEntryAt(3);
  EXPECT_EQ(entry.GetAdvanceWidth(), expected.GetAdvanceWidth());
  EXPECT_EQ(entry.GetCodes(), (std::vector<unsigned short>{0x41}));
  EXPECT_STREQ(entry.GetGlyphName(), expected.GetGlyphName());
  EXPECT_EQ(entry.GetXMax(), expected.GetXMax());
  EXPECT_EQ(entry.GetGlyphOffset(), expected.GetGlyphOffset());
}

TEST(FontReuse, GlyphsStayWhenThePoolGoes) {
  const ScopedFontPool pool;
  StoreInPool(pool);
  CTrueTypeFontMetrics metrics;
  metrics.SetFontData(pool->GetFontData(L"Probe Regular"), false);
  ASSERT_TRUE(ParseInPlace(metrics, L"Probe Regular"));
  pool->DeleteFontPool();
  EXPECT_EQ(metrics.GetWidthOfUsedGlyph(0), 488);
  CTrueTypeHMtxEntry& entry = *metrics.GetTTFile()->GetTabHMtx()->GetEntryAt(3);
  EXPECT_EQ(entry.GetCodes(), (std::vector<unsigned short>{0x41}));
  entry.SetGlyphName(nullptr);
  EXPECT_STREQ(entry.GetGlyphName(), L"");
}

TEST(FontReuse, FontsThatShareAProgramAreSubsetByTurns) {
  const ScopedFontPool pool;
  StoreInPool(pool);
  CTrueTypeFontMetrics first;
  CTrueTypeFontMetrics second;
  for (CTrueTypeFontMetrics* const metrics : {&first, &second}) {
    metrics->SetFontData(pool->GetFontData(L"Probe Regular"), false);
    ASSERT_TRUE(ParseInPlace(*metrics, L"Probe Regular"));
  }
  EXPECT_EQ(SubsetOf(first, 0x42), FreshSubset(0x42));
  EXPECT_EQ(SubsetOf(second, 0x42), FreshSubset(0x42));
  first.CreateSubsetFont();
  EXPECT_EQ(Contents(*first.GetFontData()), FreshSubset(0x42));
}

TEST(FontReuse, AFileDoesNotFillAProgramOfThePool) {
  const zebtest::TempDir folder;
  const Bytes bytes = TrueTypeBuilder().Build();
  zebtest::WriteBytes(folder.File("font.ttf"), bytes);
  const std::wstring path = folder.WideFile("font.ttf");
  CFontData ofPool(false);
  CTrueTypeFontMetrics metrics;
  metrics.SetFontData(&ofPool, false);
  ASSERT_EQ(zeb::TrueTypeReader(metrics, {.filePath = path.c_str()}).Read(), zeb::kTrueTypeDone);
  EXPECT_EQ(ofPool.GetLength(), 0);
  ASSERT_NE(metrics.GetFontData(), &ofPool);
  EXPECT_EQ(Contents(*metrics.GetFontData()), bytes);
}
