#include "platform/SingleBytePage.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using zeb::FindSingleBytePage;

TEST(SingleBytePage, GivesTheCodePointsOfAPage) {
  const zeb::SingleBytePage* page = FindSingleBytePage("windows-1252");
  ASSERT_NE(page, nullptr);
  EXPECT_EQ((*page)['a'], 'a');
  EXPECT_EQ((*page)[0], 0);
  EXPECT_EQ((*page)[0x80], 0x20AC);
  EXPECT_EQ((*page)[0xFF], 0xFF);
}

TEST(SingleBytePage, BytesWithoutACharacterAreMarked) {
  const zeb::SingleBytePage* page = FindSingleBytePage("windows-1253");
  ASSERT_NE(page, nullptr);
  EXPECT_EQ((*page)[0xD2], -1);
  EXPECT_EQ((*page)[0xFF], -1);
}

// Base letters of these pages wait for a combining mark.
TEST(SingleBytePage, KnowsPagesWithCombiningMarks) {
  for (const char* name : {"windows-1255", "windows-1258"}) {
    const zeb::SingleBytePage* page = FindSingleBytePage(name);
    ASSERT_NE(page, nullptr) << name;
    for (int letter = 'A'; letter <= 'z'; ++letter)
      EXPECT_EQ((*page)[static_cast<std::size_t>(letter)], letter);
  }
  EXPECT_EQ((*FindSingleBytePage("windows-1258"))[0xCC], 0x0300);
}

TEST(SingleBytePage, IgnoresCaseAndIsMadeOnce) {
  EXPECT_EQ(FindSingleBytePage("KOI8-R"), FindSingleBytePage("KOI8-R"));
  ASSERT_NE(FindSingleBytePage("koi8-r"), nullptr);
  EXPECT_EQ(*FindSingleBytePage("koi8-r"), *FindSingleBytePage("KOI8-R"));
}

TEST(SingleBytePage, KnowsNoOtherEncodings) {
  for (const char* name : {"", "none", "Shift_JIS", "EUC-KR", "Big5", "GB18030", "UTF-8", "UTF-16", "UTF-32",
                           "UTF-7", "ISO-2022-JP", "UCS-2"}) {
    EXPECT_EQ(FindSingleBytePage(name), nullptr) << name;
  }
}

}  // namespace
