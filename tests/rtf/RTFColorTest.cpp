#include "rtf/RTFColor.h"

#include <gtest/gtest.h>

namespace {

TEST(RTFColor, IsBlackAtTheStart) {
  const CRTFColor color;
  EXPECT_EQ(color.GetRed(), 0);
  EXPECT_EQ(color.GetGreen(), 0);
  EXPECT_EQ(color.GetBlue(), 0);
}

TEST(RTFColor, KeepsEachPartByItselfAndCopies) {
  CRTFColor color;
  color.SetRed(255);
  color.SetGreen(128);
  color.SetBlue(1);
  const CRTFColor copy(color);
  CRTFColor assigned;
  assigned = color;
  color.SetRed(7);
  for (const CRTFColor* const each : {&copy, static_cast<const CRTFColor*>(&assigned)}) {
    EXPECT_EQ(each->GetRed(), 255);
    EXPECT_EQ(each->GetGreen(), 128);
    EXPECT_EQ(each->GetBlue(), 1);
  }
  EXPECT_EQ(color.GetRed(), 7);
}

}  // namespace
