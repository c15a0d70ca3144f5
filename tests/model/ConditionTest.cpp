#include "model/Condition.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

TEST(Condition, DefaultWritesAnEmptyFormula) {
  CCondition condition;
  EXPECT_STREQ(condition.GetFormula(), L"");
  EXPECT_TRUE(condition.GetKeyToTypeMap().empty());
  EXPECT_EQ(SaveRecord(condition), "<Formula/>");
}

TEST(Condition, KeysComeInAscendingOrder) {
  CCondition condition;
  condition.SetFormula(L"b > a");
  condition.InsertKeyAndType(L"b", CCondition::ConditionVHTypeNumber);
  condition.InsertKeyAndType(L"a", CCondition::ConditionVHTypeGraphic);
  condition.InsertKeyAndType(L"B", static_cast<CCondition::ConditionVHType>(77));
  const std::string record = SaveRecord(condition);
  EXPECT_EQ(record,
            "<Formula>b &gt; a</Formula>"
            "<KeyToType><InternalKey>B</InternalKey><VHType>77</VHType></KeyToType>"
            "<KeyToType><InternalKey>a</InternalKey><VHType>8</VHType></KeyToType>"
            "<KeyToType><InternalKey>b</InternalKey><VHType>2</VHType></KeyToType>");
  CCondition loaded;
  LoadRecord(loaded, "<Condition>" + record + "</Condition>");
  EXPECT_STREQ(loaded.GetFormula(), L"b > a");
  EXPECT_EQ(loaded.GetKeyToTypeMap(), condition.GetKeyToTypeMap());
  EXPECT_EQ(loaded.GetTypeFromKey(L"B"), 77);
}

TEST(Condition, UnknownKeyHasType1) {
  CCondition condition;
  EXPECT_EQ(condition.GetTypeFromKey(L"x"), 1);
  condition.InsertKeyAndType(L"x", CCondition::ConditionVHTypeDate);
  EXPECT_EQ(condition.GetTypeFromKey(L"x"), 3);
  condition.ClearKeyToType();
  EXPECT_EQ(condition.GetTypeFromKey(L"x"), 1);
  EXPECT_TRUE(condition.GetKeyToTypeMap().empty());
}

TEST(Condition, FixedFirstTypeOfAKeyStays) {
  CCondition condition;
  condition.InsertKeyAndType(L"x", CCondition::ConditionVHTypeNumber);
  condition.InsertKeyAndType(L"x", CCondition::ConditionVHTypeDate);
  EXPECT_EQ(condition.GetTypeFromKey(L"x"), CCondition::ConditionVHTypeNumber);
  EXPECT_EQ(condition.GetKeyToTypeMap().size(), 1U);
}

TEST(Condition, MapIsGivenByReference) {
  CCondition condition;
  condition.GetKeyToTypeMap()[L"x"] = CCondition::ConditionVHTypeDate;
  EXPECT_EQ(condition.GetTypeFromKey(L"x"), CCondition::ConditionVHTypeDate);
}

TEST(Condition, ElementWithoutTypeHasType1AndWithoutKeyIsDropped) {
  CCondition condition;
  LoadRecord(condition,
             "<Condition><Formula>f</Formula><KeyToType><InternalKey>a</InternalKey></KeyToType>"
             "<KeyToType><VHType>2</VHType></KeyToType><KeyToType/>"
             "<KeyToType><InternalKey/><VHType>3</VHType></KeyToType></Condition>");
  ASSERT_EQ(condition.GetKeyToTypeMap().size(), 2U);
  EXPECT_EQ(condition.GetTypeFromKey(L"a"), 1);
  EXPECT_EQ(condition.GetTypeFromKey(L""), 3);
}

TEST(Condition, KeyBehindItsTypeIsDropped) {
  CCondition condition;
  LoadRecord(condition,
             "<Condition><KeyToType><VHType>2</VHType><InternalKey>a</InternalKey></KeyToType></Condition>");
  EXPECT_TRUE(condition.GetKeyToTypeMap().empty());
}

TEST(Condition, TableEndsAtAnotherElement) {
  CCondition condition;
  LoadRecord(condition,
             "<Condition><KeyToType><InternalKey>a</InternalKey></KeyToType><Formula>late</Formula>"
             "<KeyToType><InternalKey>b</InternalKey></KeyToType></Condition>");
  EXPECT_STREQ(condition.GetFormula(), L"");
  EXPECT_EQ(condition.GetKeyToTypeMap().size(), 1U);
}

TEST(Condition, CopiesFormulaAndTable) {
  CCondition source;
  source.SetFormula(L"f");
  source.InsertKeyAndType(L"x", CCondition::ConditionVHTypeDate);
  const CCondition copy(source);
  CCondition assigned;
  assigned = source;
  source.ClearKeyToType();
  EXPECT_STREQ(copy.GetFormula(), L"f");
  EXPECT_EQ(copy.GetTypeFromKey(L"x"), CCondition::ConditionVHTypeDate);
  EXPECT_STREQ(assigned.GetFormula(), L"f");
  EXPECT_EQ(assigned.GetTypeFromKey(L"x"), CCondition::ConditionVHTypeDate);
}

}  // namespace
