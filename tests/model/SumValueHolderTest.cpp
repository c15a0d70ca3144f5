#include "model/SumValueHolder.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

constexpr const char* kBase =
    "<ValueHolder><VHID>0</VHID><Text><TxID>0</TxID><Placeable><PlID>0</PlID></Placeable>"
    "<FontName>Helvetica</FontName><FontSize>12.0</FontSize></Text><InternalKey/><VHType>1</VHType></"
    "ValueHolder>";

std::string Record(const std::string& tail) {
  return "<SumValueHolder>" + (kBase + tail) + "</SumValueHolder>";
}

TEST(SumValueHolder, HasTheDefaults) {
  const CSumValueHolder sum;
  EXPECT_STREQ(sum.GetName(), L"");
  EXPECT_STREQ(sum.GetSumKey(), L"");
  EXPECT_FALSE(sum.GetResetSumAfterPageEnd());
  EXPECT_FALSE(sum.GetCumulative());
  EXPECT_TRUE(sum.IsSumValueHolder());
  EXPECT_FALSE(sum.IsFormulaValueHolder());
  EXPECT_FALSE(sum.IsDynamicValueHolder());
  EXPECT_FALSE(sum.IsCopyValueHolder());
}

TEST(SumValueHolder, DefaultWritesTheBaseAndAnEmptyName) {
  CSumValueHolder sum;
  EXPECT_EQ(SaveRecord(sum), Record("<Name/>"));
}

TEST(SumValueHolder, WritesEveryFieldInItsOrderAndReadsItBack) {
  CSumValueHolder sum;
  sum.SetName(L"Summe");
  sum.SetSumKey(L"Betrag");
  sum.SetResetSumAfterPageEnd(true);
  sum.SetCumulative(true);
  const std::string record = SaveRecord(sum);
  EXPECT_EQ(record, Record("<Name>Summe</Name><SumKey>Betrag</SumKey>"
                           "<ResetSumAfterPageEnd>1</ResetSumAfterPageEnd><Cumulative>1</Cumulative>"));
  CSumValueHolder loaded;
  LoadRecord(loaded, record);
  EXPECT_STREQ(loaded.GetName(), L"Summe");
  EXPECT_STREQ(loaded.GetSumKey(), L"Betrag");
  EXPECT_TRUE(loaded.GetResetSumAfterPageEnd());
  EXPECT_TRUE(loaded.GetCumulative());
}

TEST(SumValueHolder, ReadsTheBase) {
  CIDManager ids;
  CSumValueHolder sum;
  LoadRecord(sum,
             "<SumValueHolder><ValueHolder><VHID>6</VHID><InternalKey>SU.1</InternalKey></ValueHolder>"
             "<Name>n</Name></SumValueHolder>",
             ids);
  EXPECT_STREQ(sum.GetInternalKey(), L"SU.1");
  EXPECT_STREQ(sum.GetName(), L"n");
  EXPECT_EQ(ids.GetObjectFromID(6), &sum);
}

TEST(SumValueHolder, FixedFirstChildIsTakenAsTheBase) {
  CSumValueHolder sum;
  LoadRecord(sum, "<SumValueHolder><Name>lost</Name><SumKey>kept</SumKey></SumValueHolder>");
  EXPECT_STREQ(sum.GetName(), L"");
  EXPECT_STREQ(sum.GetSumKey(), L"kept");
}

TEST(SumValueHolder, EmptyRecordKeepsTheDefaults) {
  CSumValueHolder sum;
  LoadRecord(sum, "<SumValueHolder/>");
  EXPECT_EQ(SaveRecord(sum), Record("<Name/>"));
}

TEST(SumValueHolder, ReadingEndsAtAnElementOutOfOrder) {
  CSumValueHolder sum;
  LoadRecord(sum,
             "<SumValueHolder><ValueHolder/><SumKey>k</SumKey><Name>n</Name><Cumulative>1</Cumulative>"
             "</SumValueHolder>");
  EXPECT_STREQ(sum.GetSumKey(), L"k");
  EXPECT_STREQ(sum.GetName(), L"");
  EXPECT_FALSE(sum.GetCumulative());
}

TEST(SumValueHolder, CopiesItsFields) {
  CSumValueHolder source;
  source.SetInternalKey(L"SU.1");
  source.SetName(L"n");
  source.SetSumKey(L"k");
  source.SetResetSumAfterPageEnd(true);
  source.SetCumulative(true);
  const CSumValueHolder copy(source);
  CSumValueHolder assigned;
  assigned = source;
  for (const CSumValueHolder* sum : {&copy, const_cast<const CSumValueHolder*>(&assigned)}) {
    EXPECT_STREQ(sum->GetInternalKey(), L"SU.1");
    EXPECT_STREQ(sum->GetName(), L"n");
    EXPECT_STREQ(sum->GetSumKey(), L"k");
    EXPECT_TRUE(sum->GetResetSumAfterPageEnd());
    EXPECT_TRUE(sum->GetCumulative());
  }
}

}  // namespace
