#include "model/SimplePoint.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

TEST(SimplePoint, IsTheOriginAtFirst) {
  const CSimplePoint point;
  EXPECT_EQ(point.GetX(), 0.0F);
  EXPECT_EQ(point.GetY(), 0.0F);
}

TEST(SimplePoint, SetsAndCopiesItsNumbers) {
  CSimplePoint point;
  point.SetX(1.0F);
  point.SetY(-2.0F);
  const CSimplePoint copy(point);
  EXPECT_EQ(copy.GetX(), 1.0F);
  EXPECT_EQ(copy.GetY(), -2.0F);
  CSimplePoint assigned;
  assigned = point;
  EXPECT_EQ(assigned.GetX(), 1.0F);
  EXPECT_EQ(assigned.GetY(), -2.0F);
}

TEST(SimplePoint, WritesBothNumbersEvenIfZero) {
  CSimplePoint point;
  EXPECT_EQ(SaveRecord(point), "<SimplePt><PtX>0.0</PtX><PtY>0.0</PtY></SimplePt>");
  point.SetX(12.5F);
  point.SetY(-20.0F);
  EXPECT_EQ(SaveRecord(point), "<SimplePt><PtX>12.5</PtX><PtY>-20.0</PtY></SimplePt>");
}

TEST(SimplePoint, ReadsItsNumbers) {
  CSimplePoint point;
  LoadRecord(point, "<RefOffsetPt><SimplePt><PtX>12.5</PtX><PtY>-20</PtY></SimplePt></RefOffsetPt>");
  EXPECT_EQ(point.GetX(), 12.5F);
  EXPECT_EQ(point.GetY(), -20.0F);
}

TEST(SimplePoint, LooksAtTheFirstChildOnly) {
  CSimplePoint point;
  LoadRecord(point, "<RefOffsetPt><Other/><SimplePt><PtX>1</PtX><PtY>2</PtY></SimplePt></RefOffsetPt>");
  LoadRecord(point, "<RefOffsetPt/>");
  EXPECT_EQ(point.GetX(), 0.0F);
  EXPECT_EQ(point.GetY(), 0.0F);
}

TEST(SimplePoint, ReadingKeepsWhatIsAbsentOrOutOfOrder) {
  CSimplePoint point;
  point.SetX(7.0F);
  LoadRecord(point, "<RefOffsetPt><SimplePt><PtY>2</PtY><PtX>1</PtX></SimplePt></RefOffsetPt>");
  EXPECT_EQ(point.GetX(), 7.0F);
  EXPECT_EQ(point.GetY(), 2.0F);
}

}  // namespace
