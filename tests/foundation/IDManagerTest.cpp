#include "foundation/IDManager.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <string>
#include <type_traits>

namespace {

TEST(IDManager, NumbersObjectsFromZeroInTheOrderOfAsking) {
  CIDManager ids;
  int first = 0;
  int second = 0;
  EXPECT_EQ(ids.GetIDFromObject(&first), 0);
  EXPECT_EQ(ids.GetIDFromObject(&second), 1);
}

TEST(IDManager, GivesTheSameIdentifierAgainWithoutMovingTheCounter) {
  CIDManager ids;
  int first = 0;
  int second = 0;
  EXPECT_EQ(ids.GetIDFromObject(&first), 0);
  EXPECT_EQ(ids.GetIDFromObject(&first), 0);
  EXPECT_EQ(ids.GetIDFromObject(&second), 1);
  EXPECT_EQ(ids.GetIDFromObject(&first), 0);
}

TEST(IDManager, WritesTheIdentifierAsText) {
  CIDManager ids;
  std::array<int, 12> objects = {};
  for (int& object : objects) ids.GetIDFromObject(&object);
  std::array<wchar_t, 64> buffer = {};
  ids.GetIDStringFromObject(&objects[11], buffer.data());
  EXPECT_STREQ(buffer.data(), L"11");
  int another = 0;
  ids.GetIDStringFromObject(&another, buffer.data());
  EXPECT_STREQ(buffer.data(), L"12");
}

TEST(IDManager, KnowsNoObjectBeforeItIsBound) {
  CIDManager ids;
  EXPECT_EQ(ids.GetObjectFromID(0), nullptr);
  EXPECT_EQ(ids.GetObjectFromID(-1), nullptr);
}

TEST(IDManager, BindsAnyNumber) {
  CIDManager ids;
  std::array<int, 4> objects = {};
  const std::array<int, 4> numbers = {0, -1, INT_MAX, INT_MIN};
  for (std::size_t i = 0; i < objects.size(); ++i) ids.SetObjectWithID(numbers[i], &objects[i]);
  for (std::size_t i = 0; i < objects.size(); ++i) EXPECT_EQ(ids.GetObjectFromID(numbers[i]), &objects[i]);
}

TEST(IDManager, KeepsTheFirstObjectOfAnIdentifier) {
  CIDManager ids;
  int first = 0;
  int second = 0;
  ids.SetObjectWithID(7, &first);
  ids.SetObjectWithID(7, &second);
  EXPECT_EQ(ids.GetObjectFromID(7), &first);
}

TEST(IDManager, KeepsANullThatWasBoundFirst) {
  CIDManager ids;
  int object = 0;
  ids.SetObjectWithID(7, nullptr);
  ids.SetObjectWithID(7, &object);
  EXPECT_EQ(ids.GetObjectFromID(7), nullptr);
}

TEST(IDManager, KeepsBothDirectionsApart) {
  CIDManager ids;
  int object = 0;
  EXPECT_EQ(ids.GetIDFromObject(&object), 0);
  EXPECT_EQ(ids.GetObjectFromID(0), nullptr);
  ids.SetObjectWithID(40, &object);
  EXPECT_EQ(ids.GetIDFromObject(&object), 0);
  int another = 0;
  ids.SetObjectWithID(41, &another);
  EXPECT_EQ(ids.GetIDFromObject(&another), 1);
}

TEST(IDManager, FixedCounterGoesOnAfterReset) {
  CIDManager ids;
  int object = 0;
  EXPECT_EQ(ids.GetIDFromObject(&object), 0);
  ids.SetObjectWithID(3, &object);
  ids.Reset();
  EXPECT_EQ(ids.GetObjectFromID(3), nullptr);
  EXPECT_EQ(ids.GetIDFromObject(&object), 1);
}

TEST(IDManager, AnIdentifierIsFreeAgainAfterReset) {
  CIDManager ids;
  int first = 0;
  int second = 0;
  ids.SetObjectWithID(3, &first);
  ids.Reset();
  ids.SetObjectWithID(3, &second);
  EXPECT_EQ(ids.GetObjectFromID(3), &second);
}

TEST(IDManager, ACopyHasTablesAndACounterOfItsOwn) {
  CIDManager ids;
  std::array<int, 3> objects = {};
  ids.GetIDFromObject(&objects[0]);
  ids.SetObjectWithID(5, &objects[0]);
  CIDManager copy = ids;
  EXPECT_EQ(copy.GetIDFromObject(&objects[0]), 0);
  EXPECT_EQ(copy.GetObjectFromID(5), &objects[0]);
  EXPECT_EQ(copy.GetIDFromObject(&objects[1]), 1);
  copy.SetObjectWithID(6, &objects[1]);
  EXPECT_EQ(ids.GetIDFromObject(&objects[2]), 1);
  EXPECT_EQ(ids.GetObjectFromID(6), nullptr);
  copy.Reset();
  EXPECT_EQ(ids.GetObjectFromID(5), &objects[0]);
}

TEST(IDManager, AssignmentReplacesTablesAndCounter) {
  CIDManager ids;
  CIDManager other;
  std::array<int, 2> objects = {};
  ids.GetIDFromObject(&objects[0]);
  ids.SetObjectWithID(5, &objects[0]);
  other.SetObjectWithID(9, &objects[1]);
  other = ids;
  EXPECT_EQ(other.GetObjectFromID(9), nullptr);
  EXPECT_EQ(other.GetObjectFromID(5), &objects[0]);
  EXPECT_EQ(other.GetIDFromObject(&objects[1]), 1);
  EXPECT_EQ(ids.GetIDFromObject(&objects[1]), 1);
  const CIDManager& same = ids;
  ids = same;
  EXPECT_EQ(ids.GetObjectFromID(5), &objects[0]);
}

TEST(IDManager, HasAVirtualDestructor) { EXPECT_TRUE(std::has_virtual_destructor_v<CIDManager>); }

TEST(IDManager, HoldsManyObjects) {
  constexpr int kCount = 300000;
  const std::string objects(kCount, 'x');
  CIDManager ids;
  for (int i = 0; i < kCount; ++i) {
    void* object = const_cast<char*>(&objects[static_cast<std::size_t>(i)]);
    ASSERT_EQ(ids.GetIDFromObject(object), i);
    ids.SetObjectWithID(i * 7000, object);
  }
  for (int i = 0; i < kCount; i += 997) {
    ASSERT_EQ(ids.GetObjectFromID(i * 7000), &objects[static_cast<std::size_t>(i)]);
  }
}

}  // namespace
