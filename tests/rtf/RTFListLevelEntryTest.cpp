#include "rtf/RTFListLevelEntry.h"

#include <gtest/gtest.h>

namespace {

TEST(RTFListLevelEntry, IsEmptyAtTheStart) {
  const CRTFListLevelEntry level;
  EXPECT_EQ(level.GetLevelnfc(), 0);
  EXPECT_EQ(level.GetLeveljc(), 0);
  EXPECT_EQ(level.GetLevelfollow(), 0);
  EXPECT_EQ(level.GetLevelstartat(), 0);
  EXPECT_EQ(level.GetLevelspace(), 0);
  EXPECT_EQ(level.GetLevelindent(), 0);
  EXPECT_STREQ(level.GetLeveltext(), L"");
  EXPECT_STREQ(level.GetLevelnumbers(), L"");
  EXPECT_EQ(level.GetCharProps().FontSize, 24);
  EXPECT_EQ(level.GetParProps().LeftIndent, 0);
  EXPECT_STREQ(level.GetListText(), L"");
  EXPECT_EQ(level.GetFontListText().FontId, 0);
}

TEST(RTFListLevelEntry, KeepsEachValueByItselfAndCopies) {
  CCharacterProperties charProps;
  charProps.Italic = 1;
  CParagraphProperties parProps;
  parProps.FirstIndent = -360;
  CFontProperties fontListText;
  fontListText.FontId = 3;
  CRTFListLevelEntry level;
  level.SetLevelnfc(23);
  level.SetLeveljc(2);
  level.SetLevelfollow(1);
  level.SetLevelstartat(65535);
  level.SetLevelspace(360);
  level.SetLevelindent(-720);
  level.SetLeveltext(L"%1.");
  level.SetLevelnumbers(L"1");
  level.SetCharProps(charProps);
  level.SetParProps(parProps);
  level.SetListText(L"1.\t");
  level.SetFontListText(fontListText);
  const CRTFListLevelEntry copy(level);
  CRTFListLevelEntry assigned;
  assigned = level;
  level.SetListText(L"2.\t");
  for (const CRTFListLevelEntry* const each : {&copy, static_cast<const CRTFListLevelEntry*>(&assigned)}) {
    EXPECT_EQ(each->GetLevelnfc(), 23);
    EXPECT_EQ(each->GetLeveljc(), 2);
    EXPECT_EQ(each->GetLevelfollow(), 1);
    EXPECT_EQ(each->GetLevelstartat(), 65535);
    EXPECT_EQ(each->GetLevelspace(), 360);
    EXPECT_EQ(each->GetLevelindent(), -720);
    EXPECT_STREQ(each->GetLeveltext(), L"%1.");
    EXPECT_STREQ(each->GetLevelnumbers(), L"1");
    EXPECT_EQ(each->GetCharProps().Italic, 1);
    EXPECT_EQ(each->GetParProps().FirstIndent, -360);
    EXPECT_STREQ(each->GetListText(), L"1.\t");
    EXPECT_EQ(each->GetFontListText().FontId, 3);
  }
}

TEST(RTFListLevelEntry, TakesNullAsAnEmptyText) {
  CRTFListLevelEntry level;
  level.SetLeveltext(L"a");
  level.SetLevelnumbers(L"b");
  level.SetListText(L"c");
  level.SetLeveltext(nullptr);
  level.SetLevelnumbers(nullptr);
  level.SetListText(nullptr);
  EXPECT_STREQ(level.GetLeveltext(), L"");
  EXPECT_STREQ(level.GetLevelnumbers(), L"");
  EXPECT_STREQ(level.GetListText(), L"");
}

}  // namespace
