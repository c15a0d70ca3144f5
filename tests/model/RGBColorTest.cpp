#include "model/RGBColor.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

void ExpectColor(const CRGBColor& color, float red, float green, float blue) {
  EXPECT_FLOAT_EQ(color.GetRed(), red);
  EXPECT_FLOAT_EQ(color.GetGreen(), green);
  EXPECT_FLOAT_EQ(color.GetBlue(), blue);
}

TEST(RGBColor, IsBlackAtFirst) {
  const CRGBColor color;
  ExpectColor(color, 0.0F, 0.0F, 0.0F);
  EXPECT_TRUE(color.IsDefaultTextColor());
  EXPECT_FALSE(color.IsDefaultBackgroundColor());
}

TEST(RGBColor, SetsAndCopiesItsParts) {
  CRGBColor color;
  color.SetRed(0.25F);
  color.SetGreen(0.5F);
  color.SetBlue(0.75F);
  ExpectColor(color, 0.25F, 0.5F, 0.75F);
  const CRGBColor copy(color);
  ExpectColor(copy, 0.25F, 0.5F, 0.75F);
  color.SetValues(0.1F, 0.2F, 0.3F);
  ExpectColor(color, 0.1F, 0.2F, 0.3F);
  color = copy;
  ExpectColor(color, 0.25F, 0.5F, 0.75F);
}

TEST(RGBColor, DefaultsAreExact) {
  CRGBColor color;
  color.SetValues(0.0F, 0.0F, 0.0001F);
  EXPECT_FALSE(color.IsDefaultTextColor());
  color.SetValues(1.0F, 1.0F, 1.0F);
  EXPECT_TRUE(color.IsDefaultBackgroundColor());
  EXPECT_FALSE(color.IsDefaultTextColor());
  color.SetValues(1.0F, 0.9999F, 1.0F);
  EXPECT_FALSE(color.IsDefaultBackgroundColor());
}

TEST(RGBColor, BlackWritesAnEmptyColor) {
  CRGBColor color;
  EXPECT_EQ(SaveRecord(color), "<Color/>");
}

TEST(RGBColor, WritesThePartsThatAreNotZero) {
  CRGBColor color;
  color.SetValues(1.0F, 1.0F, 1.0F);
  EXPECT_EQ(SaveRecord(color),
            "<Color><RGBRed>1.0</RGBRed><RGBGreen>1.0</RGBGreen><RGBBlue>1.0</RGBBlue></Color>");
  color.SetValues(0.0F, 0.5F, 0.0F);
  EXPECT_EQ(SaveRecord(color), "<Color><RGBGreen>0.5</RGBGreen></Color>");
}

TEST(RGBColor, ReadsItsParts) {
  CRGBColor color;
  LoadRecord(color,
             "<TextColor><Color><RGBRed>0.25</RGBRed><RGBGreen>0.5</RGBGreen><RGBBlue>0.75</RGBBlue>"
             "</Color></TextColor>");
  ExpectColor(color, 0.25F, 0.5F, 0.75F);
}

TEST(RGBColor, ReadingKeepsPartsThatTheFileOmits) {
  CRGBColor color;
  color.SetValues(0.1F, 0.2F, 0.3F);
  LoadRecord(color, "<TextColor><Color><RGBGreen>0.5</RGBGreen></Color></TextColor>");
  ExpectColor(color, 0.1F, 0.5F, 0.3F);
}

TEST(RGBColor, StaysWithoutAColorElementInFront) {
  CRGBColor color;
  color.SetValues(0.1F, 0.2F, 0.3F);
  LoadRecord(color, "<TextColor/>");
  ExpectColor(color, 0.1F, 0.2F, 0.3F);
  LoadRecord(color, "<TextColor><Other/><Color><RGBRed>1</RGBRed></Color></TextColor>");
  ExpectColor(color, 0.1F, 0.2F, 0.3F);
}

TEST(RGBColor, ReadingEndsAtAPartOutOfOrder) {
  CRGBColor color;
  LoadRecord(color, "<TextColor><Color><RGBBlue>0.5</RGBBlue><RGBRed>0.25</RGBRed></Color></TextColor>");
  ExpectColor(color, 0.0F, 0.0F, 0.5F);
}

TEST(RGBColor, FixedOldFilesRunTo255) {
  CRGBColor color;
  LoadRecord(color, "<TextColor><Color><RGBRed>128</RGBRed></Color></TextColor>");
  ExpectColor(color, 128.0F / 255.0F, 0.0F, 0.0F);
  EXPECT_NEAR(color.GetRed(), 0.502F, 0.0005F);

  CRGBColor blue;
  LoadRecord(blue, "<TextColor><Color><RGBRed>1</RGBRed><RGBBlue>255</RGBBlue></Color></TextColor>");
  ExpectColor(blue, 1.0F / 255.0F, 0.0F, 1.0F);

  CRGBColor green;
  LoadRecord(green, "<TextColor><Color><RGBGreen>1.501</RGBGreen></Color></TextColor>");
  ExpectColor(green, 0.0F, 1.501F / 255.0F, 0.0F);
}

TEST(RGBColor, FixedOneAndAHalfIsNotAboveTheLimit) {
  CRGBColor color;
  LoadRecord(color, "<TextColor><Color><RGBRed>1.5</RGBRed></Color></TextColor>");
  ExpectColor(color, 1.5F, 0.0F, 0.0F);
}

}  // namespace
