#include "fonts/FontPoolEntry.h"

#include "fonts/FontData.h"
#include "support/KeepForever.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

static_assert(std::has_virtual_destructor_v<CFontPoolEntry>);

TEST(FontPoolEntry, HasItsDefaults) {
  const CFontPoolEntry entry;
  EXPECT_EQ(entry.GetFontData(), nullptr);
  EXPECT_EQ(entry.GetBold(), 400);
  EXPECT_FALSE(entry.GetItalic());
  EXPECT_STREQ(entry.GetFontName(), L"");
  EXPECT_STREQ(entry.GetFontFamilyName(), L"");
  EXPECT_EQ(entry.GetLocalizedFontNameCount(), 0);
}

TEST(FontPoolEntry, KeepsItsValues) {
  CFontPoolEntry entry;
  entry.SetBold(700);
  entry.SetItalic(true);
  entry.SetFontName(L"Sample Bold");
  entry.SetFontFamilyName(L"Sample");
  auto* const data = new CFontData(false);
  entry.SetFontData(data);
  EXPECT_EQ(entry.GetBold(), 700);
  EXPECT_TRUE(entry.GetItalic());
  EXPECT_STREQ(entry.GetFontName(), L"Sample Bold");
  EXPECT_STREQ(entry.GetFontFamilyName(), L"Sample");
  EXPECT_EQ(entry.GetFontData(), data);
}

TEST(FontPoolEntry, KeepsLocalizedNamesInOrderAndTwice) {
  CFontPoolEntry entry;
  entry.AddLocalizedFontName(L"Muster");
  entry.AddLocalizedFontName(L"Anders");
  entry.AddLocalizedFontName(L"Muster");
  ASSERT_EQ(entry.GetLocalizedFontNameCount(), 3);
  EXPECT_STREQ(entry.GetLocalizedFontNameAt(0), L"Muster");
  EXPECT_STREQ(entry.GetLocalizedFontNameAt(1), L"Anders");
  EXPECT_STREQ(entry.GetLocalizedFontNameAt(2), L"Muster");
}

TEST(FontPoolEntry, ReplacingTheProgramFreesNothing) {
  CFontPoolEntry entry;
  const auto first = std::make_unique<CFontData>(false);
  entry.SetFontData(first.get());
  entry.SetFontData(new CFontData(false));
  EXPECT_NE(entry.GetFontData(), first.get());
}

TEST(FontPoolEntry, FixedACopySharesTheProgram) {
  CFontPoolEntry source;
  source.SetFontData(new CFontData(false));
  source.SetFontName(L"Sample Bold");
  source.SetFontFamilyName(L"Sample");
  source.SetBold(700);
  source.SetItalic(true);
  source.AddLocalizedFontName(L"Muster");
  const CFontPoolEntry& copy = zebtest::KeepForever(new CFontPoolEntry(source));
  CFontPoolEntry& assigned = zebtest::KeepForever(new CFontPoolEntry);
  assigned = source;
  for (const CFontPoolEntry* const other : {&copy, static_cast<const CFontPoolEntry*>(&assigned)}) {
    EXPECT_EQ(other->GetFontData(), source.GetFontData());
    EXPECT_STREQ(other->GetFontName(), L"Sample Bold");
    EXPECT_STREQ(other->GetFontFamilyName(), L"Sample");
    EXPECT_EQ(other->GetBold(), 700);
    EXPECT_TRUE(other->GetItalic());
    ASSERT_EQ(other->GetLocalizedFontNameCount(), 1);
    EXPECT_STREQ(other->GetLocalizedFontNameAt(0), L"Muster");
  }
}

}  // namespace
