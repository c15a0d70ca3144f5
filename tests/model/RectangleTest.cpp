#include "model/Rectangle.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

TEST(Rectangle, WritesIdentifierAndPlaceable) {
  CRectangle rectangle;
  EXPECT_EQ(SaveRecord(rectangle),
            "<Rectangle><RectID>0</RectID><Placeable><PlID>0</PlID></Placeable></Rectangle>");
}

TEST(Rectangle, ReadsPlaceableAndBindsItself) {
  CIDManager ids;
  CRectangle rectangle;
  LoadRecord(rectangle, "<Rectangle><RectID>3</RectID><Placeable><Height>2</Height></Placeable></Rectangle>",
             ids);
  EXPECT_EQ(rectangle.GetHeight(), 2.0F);
  EXPECT_EQ(ids.GetObjectFromID(3), &rectangle);
  const CRectangle copy(rectangle);
  CRectangle assigned;
  assigned = rectangle;
  EXPECT_EQ(copy.GetHeight(), 2.0F);
  EXPECT_EQ(assigned.GetHeight(), 2.0F);
}

TEST(Rectangle, KeepsTheFirstBinding) {
  CIDManager ids;
  CRectangle first;
  CRectangle second;
  ids.SetObjectWithID(3, &first);
  LoadRecord(second, "<Rectangle><RectID>3</RectID></Rectangle>", ids);
  EXPECT_EQ(ids.GetObjectFromID(3), &first);
}

}  // namespace
