#include "placement/RelationPoint.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

TEST(RelationPoint, IsZeroAtFirst) {
  CRelationPoint point;
  EXPECT_EQ(point.GetRelationPoint(), 0);
  EXPECT_EQ(SaveRecord(point), "<RelPt>0</RelPt>");
}

TEST(RelationPoint, AnyValueIsCarried) {
  for (const int value : {0, 1, 2, 3, 17, -5}) {
    CRelationPoint point;
    point.SetRelationPoint(static_cast<RelationPoint>(value));
    const std::string record = SaveRecord(point);
    EXPECT_EQ(record, "<RelPt>" + std::to_string(value) + "</RelPt>");
    CRelationPoint loaded;
    LoadRecord(loaded, "<SrcRelPt>" + record + "</SrcRelPt>");
    EXPECT_EQ(loaded.GetRelationPoint(), value);
  }
}

TEST(RelationPoint, LooksAtTheFirstChildOnly) {
  CRelationPoint point;
  point.SetRelationPoint(RelationPointLowerLeft);
  LoadRecord(point, "<SrcRelPt/>");
  LoadRecord(point, "<SrcRelPt><Other/><RelPt>3</RelPt></SrcRelPt>");
  EXPECT_EQ(point.GetRelationPoint(), RelationPointLowerLeft);
}

TEST(RelationPoint, TextThatIsNoNumberIsZero) {
  CRelationPoint point;
  point.SetRelationPoint(RelationPointLowerLeft);
  LoadRecord(point, "<SrcRelPt><RelPt>x</RelPt></SrcRelPt>");
  EXPECT_EQ(point.GetRelationPoint(), RelationPointUpperLeft);
}

TEST(RelationPoint, Copies) {
  CRelationPoint point;
  point.SetRelationPoint(RelationPointUpperRight);
  const CRelationPoint copy(point);
  CRelationPoint assigned;
  assigned = point;
  EXPECT_EQ(copy.GetRelationPoint(), RelationPointUpperRight);
  EXPECT_EQ(assigned.GetRelationPoint(), RelationPointUpperRight);
}

}  // namespace
