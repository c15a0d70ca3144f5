#include "placement/Predecessors.h"

#include "model/Text.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(Predecessors, KeepsTheOrderOfAddingWithoutDuplicates) {
  CText a;
  CText b;
  CPredecessors predecessors;
  EXPECT_EQ(predecessors.GetPredecessorCount(), 0);
  EXPECT_EQ(predecessors.GetIndex(&a), -1);
  predecessors.AddPredecessor(&b);
  predecessors.AddPredecessor(&a);
  predecessors.AddPredecessor(&b);
  ASSERT_EQ(predecessors.GetPredecessorCount(), 2);
  EXPECT_EQ(predecessors.GetPredecessorAt(0), &b);
  EXPECT_EQ(predecessors.GetPredecessorAt(1), &a);
  EXPECT_EQ(predecessors.GetIndex(&b), 0);
  EXPECT_EQ(predecessors.GetIndex(&a), 1);
}

TEST(Predecessors, ClearEmptiesTheList) {
  std::vector<CText> texts(100);
  CPredecessors predecessors;
  for (CText& text : texts) predecessors.AddPredecessor(&text);
  predecessors.ClearPredecessors();
  EXPECT_EQ(predecessors.GetPredecessorCount(), 0);
  EXPECT_EQ(predecessors.GetIndex(&texts[0]), -1);
  predecessors.AddPredecessor(&texts[99]);
  EXPECT_EQ(predecessors.GetIndex(&texts[99]), 0);
}

TEST(Predecessors, CopiesByValue) {
  CText a;
  CText b;
  CPredecessors predecessors;
  predecessors.AddPredecessor(&a);
  const CPredecessors copy = predecessors;
  CPredecessors assigned;
  assigned.AddPredecessor(&b);
  assigned = predecessors;
  predecessors.AddPredecessor(&b);
  for (const CPredecessors* other : {&copy, static_cast<const CPredecessors*>(&assigned)}) {
    EXPECT_EQ(other->GetPredecessorCount(), 1);
    EXPECT_EQ(other->GetPredecessorAt(0), &a);
    EXPECT_EQ(other->GetIndex(&b), -1);
  }
}

TEST(Predecessors, FindsEachOfManyObjects) {
  std::vector<CText> texts(1'000);
  CPredecessors predecessors;
  for (int round = 0; round < 2; ++round) {
    for (CText& text : texts) predecessors.AddPredecessor(&text);
  }
  ASSERT_EQ(predecessors.GetPredecessorCount(), 1'000);
  for (int i = 0; i < 1'000; ++i) EXPECT_EQ(predecessors.GetIndex(&texts[static_cast<std::size_t>(i)]), i);
}

}  // namespace
