#include "model/LayoutRect.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

void ExpectRect(const LayoutRect& rect, float ulx, float uly, float lrx, float lry) {
  EXPECT_EQ(rect.GetULX(), ulx);
  EXPECT_EQ(rect.GetULY(), uly);
  EXPECT_EQ(rect.GetLRX(), lrx);
  EXPECT_EQ(rect.GetLRY(), lry);
}

TEST(LayoutRect, TakesItsCornersInOrder) {
  ExpectRect(LayoutRect(1.0F, 2.0F, 3.0F, 4.0F), 1.0F, 2.0F, 3.0F, 4.0F);
}

TEST(LayoutRect, SetsAndCopiesItsCorners) {
  LayoutRect rect;
  rect.SetULX(1.0F);
  rect.SetULY(2.0F);
  rect.SetLRX(3.0F);
  rect.SetLRY(4.0F);
  ExpectRect(rect, 1.0F, 2.0F, 3.0F, 4.0F);
  ExpectRect(LayoutRect(rect), 1.0F, 2.0F, 3.0F, 4.0F);
  LayoutRect assigned;
  assigned = rect;
  ExpectRect(assigned, 1.0F, 2.0F, 3.0F, 4.0F);
}

TEST(LayoutRect, WritesAllFourEvenIfZero) {
  LayoutRect rect(0.0F, 842.0F, 595.0F, 0.0F);
  EXPECT_EQ(SaveRecord(rect), "<Ulx>0.0</Ulx><Uly>842.0</Uly><Lrx>595.0</Lrx><Lry>0.0</Lry>");
}

TEST(LayoutRect, ReadsItsCorners) {
  LayoutRect rect;
  LoadRecord(rect, "<LayoutRect><Ulx>-1</Ulx><Uly>842</Uly><Lrx>595.25</Lrx><Lry>2</Lry></LayoutRect>");
  ExpectRect(rect, -1.0F, 842.0F, 595.25F, 2.0F);
}

TEST(LayoutRect, ReadingKeepsWhatIsAbsentOrOutOfOrder) {
  LayoutRect rect(1.0F, 2.0F, 3.0F, 4.0F);
  LoadRecord(rect, "<LayoutRect><Lrx>30</Lrx><Uly>20</Uly><Lry>40</Lry></LayoutRect>");
  ExpectRect(rect, 1.0F, 2.0F, 30.0F, 4.0F);
}

}  // namespace
