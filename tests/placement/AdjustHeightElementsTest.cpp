#include "placement/AdjustHeightElements.h"

#include "model/Text.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(AdjustHeightElements, StartsEmpty) {
  CText a;
  CAdjustHeightElements group;
  EXPECT_EQ(group.GetElementCount(), 0);
  EXPECT_EQ(group.GetMaxHeight(), 0.0F);
  EXPECT_EQ(group.FindElementIndex(&a), -1);
}

TEST(AdjustHeightElements, KeepsTheOrderOfJoiningWithoutDuplicates) {
  CText a;
  CText b;
  CAdjustHeightElements group;
  group.AddElement(&b);
  group.AddElement(&a);
  group.AddElement(&b);
  ASSERT_EQ(group.GetElementCount(), 2);
  EXPECT_EQ(group.GetElementAt(0), &b);
  EXPECT_EQ(group.GetElementAt(1), &a);
  EXPECT_EQ(group.FindElementIndex(&b), 0);
  EXPECT_EQ(group.FindElementIndex(&a), 1);
}

TEST(AdjustHeightElements, HeightsOnlyGrow) {
  CText a;
  CAdjustHeightElements group;
  group.AddElement(&a);
  group.SetElementHeight(&a, 10);
  EXPECT_EQ(group.GetMaxHeight(), 10.0F);
  group.SetElementHeight(&a, 5);
  EXPECT_EQ(group.GetMaxHeight(), 10.0F);
  group.SetElementHeight(&a, 20);
  EXPECT_EQ(group.GetMaxHeight(), 20.0F);
  group.SetElementHeight(&a, -1);
  EXPECT_EQ(group.GetMaxHeight(), 20.0F);
}

TEST(AdjustHeightElements, HeightOfAnObjectOfAnotherGroupChangesNothing) {
  CText a;
  CText stranger;
  CAdjustHeightElements group;
  group.AddElement(&a);
  group.SetElementHeight(&a, 20);
  group.SetElementHeight(&stranger, 30);
  EXPECT_EQ(group.GetMaxHeight(), 20.0F);
}

TEST(AdjustHeightElements, CopiesByValueAndSharesTheObjects) {
  CText a;
  CText b;
  CAdjustHeightElements group;
  group.AddElement(&a);
  group.SetElementHeight(&a, 20);
  CAdjustHeightElements copy = group;
  CAdjustHeightElements assigned;
  assigned.AddElement(&b);
  assigned = group;
  group.AddElement(&b);
  group.SetElementHeight(&b, 50);
  for (CAdjustHeightElements* other : {&copy, &assigned}) {
    EXPECT_EQ(other->GetElementCount(), 1);
    EXPECT_EQ(other->GetElementAt(0), &a);
    EXPECT_EQ(other->FindElementIndex(&b), -1);
    EXPECT_EQ(other->GetMaxHeight(), 20.0F);
  }
}

TEST(AdjustHeightElements, FindsEachOfManyObjects) {
  std::vector<CText> texts(1'000);
  CAdjustHeightElements group;
  for (int round = 0; round < 2; ++round) {
    for (CText& text : texts) group.AddElement(&text);
  }
  ASSERT_EQ(group.GetElementCount(), 1'000);
  for (int i = 0; i < 1'000; ++i) {
    EXPECT_EQ(group.GetElementAt(i), &texts[static_cast<std::size_t>(i)]);
    EXPECT_EQ(group.FindElementIndex(&texts[static_cast<std::size_t>(i)]), i);
  }
}

}  // namespace
