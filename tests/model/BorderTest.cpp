#include "model/Border.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

struct Field {
  const char* Element;
  float (CBorder::*Get)() const;
  void (CBorder::*Set)(float);
};

constexpr std::array kFields = {
    Field{"LeftWidth", &CBorder::GetLeftBorderWidth, &CBorder::SetLeftBorderWidth},
    Field{"UpperWidth", &CBorder::GetUpperBorderWidth, &CBorder::SetUpperBorderWidth},
    Field{"RightWidth", &CBorder::GetRightBorderWidth, &CBorder::SetRightBorderWidth},
    Field{"LowerWidth", &CBorder::GetLowerBorderWidth, &CBorder::SetLowerBorderWidth},
    Field{"LeftDistance", &CBorder::GetLeftTextDistance, &CBorder::SetLeftTextDistance},
    Field{"UpperDistance", &CBorder::GetUpperTextDistance, &CBorder::SetUpperTextDistance},
    Field{"RightDistance", &CBorder::GetRightTextDistance, &CBorder::SetRightTextDistance},
    Field{"LowerDistance", &CBorder::GetLowerTextDistance, &CBorder::SetLowerTextDistance},
    Field{"BaseUpper", &CBorder::GetBaseLineToUpperDistance, &CBorder::SetBaseLineToUpperDistance},
    Field{"BaseLower", &CBorder::GetBaseLineToLowerDistance, &CBorder::SetBaseLineToLowerDistance},
};

std::string Element(const char* name, const std::string& text) {
  return std::string("<") + name + ">" + text + "</" + name + ">";
}

TEST(Border, EveryFieldIsZeroAtFirst) {
  const CBorder border;
  for (const Field& field : kFields) EXPECT_EQ((border.*field.Get)(), 0.0F) << field.Element;
  EXPECT_FALSE(border.HasBorder());
  EXPECT_FALSE(border.HasTextDistances());
  EXPECT_TRUE(border.IsDefaultBorder());
}

TEST(Border, DefaultWritesNothing) {
  CBorder border;
  EXPECT_EQ(SaveRecord(border), "");
}

TEST(Border, EachFieldIsWrittenAndReadAlone) {
  for (const Field& field : kFields) {
    CBorder border;
    (border.*field.Set)(-1.5F);
    EXPECT_EQ(SaveRecord(border), Element(field.Element, "-1.5"));

    CBorder loaded;
    LoadRecord(loaded, "<Border>" + Element(field.Element, "-1.5") + "</Border>");
    for (const Field& other : kFields) {
      EXPECT_EQ((loaded.*other.Get)(), &other == &field ? -1.5F : 0.0F) << field.Element << other.Element;
    }
  }
}

TEST(Border, FieldsAreWrittenInTheirOrder) {
  CBorder border;
  std::string expected;
  float value = 0.0F;
  for (const Field& field : kFields) {
    value += 1.0F;
    (border.*field.Set)(value);
    expected += Element(field.Element, std::to_string(static_cast<int>(value)) + ".0");
  }
  EXPECT_EQ(SaveRecord(border), expected);

  CBorder loaded;
  LoadRecord(loaded, "<Border>" + expected + "</Border>");
  for (const Field& field : kFields) EXPECT_EQ((loaded.*field.Get)(), (border.*field.Get)()) << field.Element;
}

TEST(Border, ReadingEndsAtAnElementOutOfOrder) {
  CBorder border;
  LoadRecord(border,
             "<Border><UpperWidth>2</UpperWidth><LeftWidth>1</LeftWidth><BaseLower>3</BaseLower></Border>");
  EXPECT_EQ(border.GetUpperBorderWidth(), 2.0F);
  EXPECT_EQ(border.GetLeftBorderWidth(), 0.0F);
  EXPECT_EQ(border.GetBaseLineToLowerDistance(), 0.0F);
}

TEST(Border, ReadingKeepsFieldsThatTheFileOmits) {
  CBorder border;
  border.SetAllWidths(4.0F);
  LoadRecord(border, "<Border><RightWidth>1</RightWidth></Border>");
  EXPECT_EQ(border.GetLeftBorderWidth(), 4.0F);
  EXPECT_EQ(border.GetRightBorderWidth(), 1.0F);
}

TEST(Border, SetsWidthsTogether) {
  CBorder border;
  border.SetWidths(1.0F, 2.0F, 3.0F, 4.0F);
  EXPECT_EQ(border.GetLeftBorderWidth(), 1.0F);
  EXPECT_EQ(border.GetUpperBorderWidth(), 2.0F);
  EXPECT_EQ(border.GetRightBorderWidth(), 3.0F);
  EXPECT_EQ(border.GetLowerBorderWidth(), 4.0F);
  border.SetAllWidths(5.0F);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ((border.*kFields.at(i).Get)(), 5.0F);
  for (std::size_t i = 4; i < 10; ++i) EXPECT_EQ((border.*kFields.at(i).Get)(), 0.0F);
}

TEST(Border, SetsDistancesTogether) {
  CBorder border;
  border.SetDistances(1.0F, 2.0F, 3.0F, 4.0F);
  EXPECT_EQ(border.GetLeftTextDistance(), 1.0F);
  EXPECT_EQ(border.GetUpperTextDistance(), 2.0F);
  EXPECT_EQ(border.GetRightTextDistance(), 3.0F);
  EXPECT_EQ(border.GetLowerTextDistance(), 4.0F);
}

TEST(Border, FixedAllDistancesLeaveBaseLineDistancesAlone) {
  CBorder border;
  border.SetBaseLineToUpperDistance(7.0F);
  border.SetBaseLineToLowerDistance(8.0F);
  border.SetAllDistances(5.0F);
  for (std::size_t i = 4; i < 8; ++i) EXPECT_EQ((border.*kFields.at(i).Get)(), 5.0F);
  EXPECT_EQ(border.GetBaseLineToUpperDistance(), 7.0F);
  EXPECT_EQ(border.GetBaseLineToLowerDistance(), 8.0F);
}

TEST(Border, AsksForWidthsAndDistances) {
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    CBorder border;
    (border.*kFields.at(i).Set)(1.0F);
    EXPECT_EQ(border.HasBorder(), i < 4) << kFields.at(i).Element;
    EXPECT_EQ(border.HasTextDistances(), i >= 4) << kFields.at(i).Element;
    EXPECT_FALSE(border.IsDefaultBorder()) << kFields.at(i).Element;
  }
}

TEST(Border, CopiesEveryField) {
  CBorder border;
  float value = 0.0F;
  for (const Field& field : kFields) (border.*field.Set)(value += 1.0F);
  const CBorder copy(border);
  CBorder assigned;
  assigned = border;
  for (const Field& field : kFields) {
    EXPECT_EQ((copy.*field.Get)(), (border.*field.Get)()) << field.Element;
    EXPECT_EQ((assigned.*field.Get)(), (border.*field.Get)()) << field.Element;
  }
}

}  // namespace
