#include "model/Line.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

constexpr const char* kHead = "<Line><LineID>0</LineID><Placeable><PlID>0</PlID></Placeable>";

TEST(Line, DefaultWritesIdentifierAndPlaceable) {
  CLine line;
  EXPECT_FALSE(line.GetExtendToReportZoneEnd());
  EXPECT_FALSE(line.GetExtendToLayoutFooter());
  EXPECT_EQ(SaveRecord(line), std::string(kHead) + "</Line>");
}

TEST(Line, EachSwitchIsWrittenIfTrue) {
  CLine line;
  line.SetExtendToLayoutFooter(true);
  EXPECT_EQ(SaveRecord(line), std::string(kHead) + "<ExtendToLayoutFooter>1</ExtendToLayoutFooter></Line>");
  line.SetExtendToReportZoneEnd(true);
  EXPECT_EQ(SaveRecord(line), std::string(kHead) +
                                  "<ExtendToReportZoneEnd>1</ExtendToReportZoneEnd>"
                                  "<ExtendToLayoutFooter>1</ExtendToLayoutFooter></Line>");
}

TEST(Line, ReadsItsFields) {
  CIDManager ids;
  CLine line;
  LoadRecord(
      line,
      "<Line><LineID>3</LineID><Placeable><Width>2</Width></Placeable>"
      "<ExtendToReportZoneEnd>1</ExtendToReportZoneEnd><ExtendToLayoutFooter>1</ExtendToLayoutFooter></Line>",
      ids);
  EXPECT_EQ(line.GetWidth(), 2.0F);
  EXPECT_TRUE(line.GetExtendToReportZoneEnd());
  EXPECT_TRUE(line.GetExtendToLayoutFooter());
  EXPECT_EQ(ids.GetObjectFromID(3), &line);
  const CLine copy(line);
  CLine assigned;
  assigned = line;
  EXPECT_TRUE(copy.GetExtendToReportZoneEnd());
  EXPECT_TRUE(assigned.GetExtendToLayoutFooter());
}

TEST(Line, ReadingEndsAtAnElementOutOfOrder) {
  CLine line;
  LoadRecord(line,
             "<Line><ExtendToLayoutFooter>1</ExtendToLayoutFooter><ExtendToReportZoneEnd>1</"
             "ExtendToReportZoneEnd></Line>");
  EXPECT_TRUE(line.GetExtendToLayoutFooter());
  EXPECT_FALSE(line.GetExtendToReportZoneEnd());
}

}  // namespace
