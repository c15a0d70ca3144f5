#include "model/CopyValueHolder.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

TEST(CopyValueHolder, HasTheDefaults) {
  const CCopyValueHolder field;
  EXPECT_STREQ(field.GetRefZoneID(), L"");
  EXPECT_STREQ(field.GetRefVHID(), L"");
  EXPECT_TRUE(field.IsCopyValueHolder());
  EXPECT_FALSE(field.IsFormulaValueHolder());
  EXPECT_FALSE(field.IsSumValueHolder());
  EXPECT_FALSE(field.IsDynamicValueHolder());
}

TEST(CopyValueHolder, BothReferencesAreAlwaysWritten) {
  CCopyValueHolder field;
  EXPECT_EQ(
      SaveRecord(field),
      "<CopyValueHolder><ValueHolder><VHID>0</VHID><Text><TxID>0</TxID><Placeable><PlID>0</PlID></Placeable>"
      "<FontName>Helvetica</FontName><FontSize>12.0</FontSize></Text><InternalKey/><VHType>1</VHType></"
      "ValueHolder><RefZoneID/><RefVHID/></CopyValueHolder>");
}

TEST(CopyValueHolder, ReferencesAreTextsAndNoIdentifiers) {
  CIDManager ids;
  CCopyValueHolder field;
  LoadRecord(field,
             "<CopyValueHolder><ValueHolder><VHID>1</VHID></ValueHolder><RefZoneID>2</RefZoneID>"
             "<RefVHID>BE.Nummer</RefVHID></CopyValueHolder>",
             ids);
  EXPECT_STREQ(field.GetRefZoneID(), L"2");
  EXPECT_STREQ(field.GetRefVHID(), L"BE.Nummer");
  EXPECT_EQ(ids.GetObjectFromID(1), &field);
  EXPECT_EQ(ids.GetObjectFromID(2), nullptr);
  const CCopyValueHolder copy(field);
  CCopyValueHolder assigned;
  assigned = field;
  EXPECT_STREQ(copy.GetRefZoneID(), L"2");
  EXPECT_STREQ(assigned.GetRefVHID(), L"BE.Nummer");
}

TEST(CopyValueHolder, ReadingEndsAtAnElementOutOfOrder) {
  CCopyValueHolder field;
  LoadRecord(field,
             "<CopyValueHolder><ValueHolder/><RefVHID>v</RefVHID><RefZoneID>z</RefZoneID></CopyValueHolder>");
  EXPECT_STREQ(field.GetRefVHID(), L"v");
  EXPECT_STREQ(field.GetRefZoneID(), L"");
}

TEST(CopyValueHolder, EmptyRecordKeepsTheDefaults) {
  CCopyValueHolder field;
  LoadRecord(field, "<CopyValueHolder/>");
  EXPECT_STREQ(field.GetRefZoneID(), L"");
}

}  // namespace
