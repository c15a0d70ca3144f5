#include "rtf/RTFStyleSheet.h"

#include <gtest/gtest.h>

namespace {

TEST(RTFStyleSheet, IsEmptyAtTheStart) {
  const CRTFStyleSheet style;
  EXPECT_EQ(style.GetCharProps().FontSize, 24);
  EXPECT_EQ(style.GetSecProps().Columns, 0);
  EXPECT_EQ(style.GetParProps().LeftIndent, 0);
  EXPECT_EQ(style.GetFontProps().FontId, 0);
  EXPECT_EQ(style.GetStyleSheetIndex(), 0);
  EXPECT_STREQ(style.GetStyleSheetName(), L"");
}

TEST(RTFStyleSheet, KeepsEachValueByItselfAndCopies) {
  CCharacterProperties charProps;
  charProps.Bold = 1;
  CSectionProperties secProps;
  secProps.Columns = 2;
  CParagraphProperties parProps;
  parProps.LeftIndent = 720;
  parProps.Tabs[3].Position = 5;
  CFontProperties fontProps;
  fontProps.FontId = 7;
  CRTFStyleSheet style;
  style.SetCharProps(charProps);
  style.SetSecProps(secProps);
  style.SetParProps(parProps);
  style.SetFontProps(fontProps);
  style.SetStyleSheetIndex(15);
  style.SetStyleSheetName(L"heading 1");
  const CRTFStyleSheet copy(style);
  CRTFStyleSheet assigned;
  assigned = style;
  style.SetStyleSheetName(nullptr);
  for (const CRTFStyleSheet* const each : {&copy, static_cast<const CRTFStyleSheet*>(&assigned)}) {
    EXPECT_EQ(each->GetCharProps().Bold, 1);
    EXPECT_EQ(each->GetSecProps().Columns, 2);
    EXPECT_EQ(each->GetParProps().LeftIndent, 720);
    EXPECT_EQ(each->GetParProps().Tabs[3].Position, 5);
    EXPECT_EQ(each->GetFontProps().FontId, 7);
    EXPECT_EQ(each->GetStyleSheetIndex(), 15);
    EXPECT_STREQ(each->GetStyleSheetName(), L"heading 1");
  }
  EXPECT_STREQ(style.GetStyleSheetName(), L"");
}

}  // namespace
