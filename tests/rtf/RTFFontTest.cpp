#include "rtf/RTFFont.h"

#include <gtest/gtest.h>

namespace {

TEST(RTFFont, IsEmptyAtTheStart) {
  const CRTFFont font;
  EXPECT_STREQ(font.GetFontFaceName(), L"");
  EXPECT_EQ(font.GetFontCharSet(), 0);
  EXPECT_EQ(font.GetFontWidth(), 0);
  EXPECT_EQ(font.GetFontHeight(), 0);
  EXPECT_EQ(font.GetFontFamily(), 0);
  EXPECT_EQ(font.GetFontPitch(), 0);
  EXPECT_EQ(font.GetAttributes(), 0);
}

TEST(RTFFont, KeepsEachValueByItselfAndCopies) {
  CRTFFont font;
  font.SetFontFaceName(L"Arial");
  font.SetFontCharSet(204);
  font.SetFontWidht(-11);
  font.SetFontHeight(12);
  font.SetFontFamily(2);
  font.SetFontPitch(3);
  font.SetFontAttributes(4);
  const CRTFFont copy(font);
  CRTFFont assigned;
  assigned = font;
  font.SetFontFaceName(L"Courier");
  for (const CRTFFont* const each : {&copy, static_cast<const CRTFFont*>(&assigned)}) {
    EXPECT_STREQ(each->GetFontFaceName(), L"Arial");
    EXPECT_EQ(each->GetFontCharSet(), 204);
    EXPECT_EQ(each->GetFontWidth(), -11);
    EXPECT_EQ(each->GetFontHeight(), 12);
    EXPECT_EQ(each->GetFontFamily(), 2);
    EXPECT_EQ(each->GetFontPitch(), 3);
    EXPECT_EQ(each->GetAttributes(), 4);
  }
  EXPECT_STREQ(font.GetFontFaceName(), L"Courier");
}

TEST(RTFFont, TakesNullAsAnEmptyName) {
  CRTFFont font;
  font.SetFontFaceName(L"Arial");
  font.SetFontFaceName(nullptr);
  EXPECT_STREQ(font.GetFontFaceName(), L"");
}

}  // namespace
