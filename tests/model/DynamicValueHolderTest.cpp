#include "model/DynamicValueHolder.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

constexpr const char* kDefault =
    "<DynValueHolder><ValueHolder><VHID>0</VHID><Text><TxID>0</TxID><Placeable><PlID>0</PlID></Placeable>"
    "<FontName>Helvetica</FontName><FontSize>12.0</FontSize></Text><InternalKey/><VHType>1</VHType></"
    "ValueHolder><Name/></DynValueHolder>";

TEST(DynamicValueHolder, HasTheDefaults) {
  const CDynamicValueHolder field;
  EXPECT_STREQ(field.GetName(), L"");
  EXPECT_TRUE(field.IsDynamicValueHolder());
  EXPECT_FALSE(field.IsFormulaValueHolder());
  EXPECT_FALSE(field.IsSumValueHolder());
  EXPECT_FALSE(field.IsCopyValueHolder());
}

TEST(DynamicValueHolder, NameIsAlwaysWritten) {
  CDynamicValueHolder field;
  EXPECT_EQ(SaveRecord(field), kDefault);
}

TEST(DynamicValueHolder, ReadsBaseAndName) {
  CDynamicValueHolder field;
  LoadRecord(field,
             "<DynValueHolder><ValueHolder><InternalKey>ZF.Farbe</InternalKey></ValueHolder>"
             "<Name>Farbe</Name></DynValueHolder>");
  EXPECT_STREQ(field.GetInternalKey(), L"ZF.Farbe");
  EXPECT_STREQ(field.GetName(), L"Farbe");
  const CDynamicValueHolder copy(field);
  EXPECT_STREQ(copy.GetName(), L"Farbe");
  CDynamicValueHolder assigned;
  assigned = field;
  EXPECT_STREQ(assigned.GetName(), L"Farbe");
  EXPECT_STREQ(assigned.GetInternalKey(), L"ZF.Farbe");
}

TEST(DynamicValueHolder, EmptyRecordKeepsTheDefaults) {
  CDynamicValueHolder field;
  LoadRecord(field, "<DynValueHolder/>");
  EXPECT_EQ(SaveRecord(field), kDefault);
}

}  // namespace
