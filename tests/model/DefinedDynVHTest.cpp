#include "model/DefinedDynVH.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

TEST(DefinedDynVH, WritesBothFieldsEvenIfEmpty) {
  CDefinedDynVH defined;
  EXPECT_STREQ(defined.GetDynVHName(), L"");
  EXPECT_STREQ(defined.GetType(), L"");
  EXPECT_EQ(SaveRecord(defined), "<DefinedDynVH><Name/><Type/></DefinedDynVH>");
}

TEST(DefinedDynVH, WritesAndReadsItsFields) {
  CDefinedDynVH defined;
  defined.SetDynVHName(L"Farbe");
  defined.SetType(L"Zusatzfeld");
  const std::string record = SaveRecord(defined);
  EXPECT_EQ(record, "<DefinedDynVH><Name>Farbe</Name><Type>Zusatzfeld</Type></DefinedDynVH>");
  CDefinedDynVH loaded;
  LoadRecord(loaded, record);
  EXPECT_STREQ(loaded.GetDynVHName(), L"Farbe");
  EXPECT_STREQ(loaded.GetType(), L"Zusatzfeld");
  const CDefinedDynVH copy(loaded);
  CDefinedDynVH assigned;
  assigned = loaded;
  EXPECT_STREQ(copy.GetDynVHName(), L"Farbe");
  EXPECT_STREQ(assigned.GetType(), L"Zusatzfeld");
}

TEST(DefinedDynVH, ReadingEndsAtAnElementOutOfOrder) {
  CDefinedDynVH defined;
  LoadRecord(defined, "<DefinedDynVH><Type>t</Type><Name>n</Name></DefinedDynVH>");
  EXPECT_STREQ(defined.GetType(), L"t");
  EXPECT_STREQ(defined.GetDynVHName(), L"");
}

}  // namespace
