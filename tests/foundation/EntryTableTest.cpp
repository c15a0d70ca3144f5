#include "foundation/EntryTable.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <vector>

namespace {

struct Numbered {
  int Key = 0;
  int Value = 0;
  bool IsUsed = false;
};

struct Pointed {
  const void* Key = nullptr;
  int Value = 0;
  bool IsUsed = false;
};

void ExpectFindsAll(const std::vector<int>& keys) {
  zeb::EntryTable<Numbered> table;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    EXPECT_TRUE(table.Insert({.Key = keys[i], .Value = static_cast<int>(i)}).second);
  }
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const Numbered* entry = table.Find(keys[i]);
    ASSERT_NE(entry, nullptr) << keys[i];
    EXPECT_EQ(entry->Value, static_cast<int>(i));
  }
}

TEST(EntryTable, FindsNothingInAnEmptyTable) {
  const zeb::EntryTable<Numbered> table;
  EXPECT_EQ(table.Find(0), nullptr);
}

TEST(EntryTable, KeepsTheFirstEntryOfAKey) {
  zeb::EntryTable<Numbered> table;
  EXPECT_TRUE(table.Insert({.Key = 7, .Value = 1}).second);
  const auto [entry, isNew] = table.Insert({.Key = 7, .Value = 2});
  EXPECT_FALSE(isNew);
  EXPECT_EQ(entry->Value, 1);
  EXPECT_EQ(table.Find(8), nullptr);
}

TEST(EntryTable, TakesZeroAndTheLimitsAsKeys) { ExpectFindsAll({0, -1, INT_MIN, INT_MAX, 1}); }

TEST(EntryTable, TakesNullAsAKey) {
  zeb::EntryTable<Pointed> table;
  EXPECT_EQ(table.Find(nullptr), nullptr);
  EXPECT_TRUE(table.Insert({.Key = nullptr, .Value = 3}).second);
  EXPECT_FALSE(table.Insert({.Key = nullptr, .Value = 4}).second);
  EXPECT_EQ(table.Find(nullptr)->Value, 3);
}

TEST(EntryTable, KeepsEntriesWhileItGrows) {
  std::vector<int> keys;
  for (int i = 0; i < 10000; ++i) keys.push_back(i);
  ExpectFindsAll(keys);
}

// Numbers at any distance, as a file may choose them.
TEST(EntryTable, TakesSpacedKeys) {
  for (int shift = 1; shift < 20; ++shift) {
    std::vector<int> keys;
    for (int i = 0; i < 2000; ++i) keys.push_back(i << shift);
    ExpectFindsAll(keys);
  }
}

TEST(EntryTable, TellsObjectsApartThatLieCloseTogether) {
  const std::vector<char> objects(500);
  zeb::EntryTable<Pointed> table;
  for (const char& object : objects)
    table.Insert({.Key = &object, .Value = static_cast<int>(&object - &objects[0])});
  for (const char& object : objects) EXPECT_EQ(table.Find(&object)->Value, &object - &objects[0]);
}

TEST(EntryTable, IsEmptyAfterClearing) {
  zeb::EntryTable<Numbered> table;
  table.Insert({.Key = 7, .Value = 1});
  table.Clear();
  EXPECT_EQ(table.Find(7), nullptr);
  EXPECT_TRUE(table.Insert({.Key = 7, .Value = 2}).second);
  EXPECT_EQ(table.Find(7)->Value, 2);
}

TEST(EntryTable, IsCopiedWithItsEntries) {
  zeb::EntryTable<Numbered> table;
  table.Insert({.Key = 7, .Value = 1});
  zeb::EntryTable<Numbered> copy = table;
  copy.Insert({.Key = 8, .Value = 2});
  EXPECT_EQ(copy.Find(7)->Value, 1);
  EXPECT_EQ(table.Find(8), nullptr);
}

}  // namespace
