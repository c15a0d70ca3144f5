#include "rtf/RTFListTableEntry.h"

#include "rtf/RTFListLevelEntry.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <type_traits>

namespace {

static_assert(std::has_virtual_destructor_v<CRTFListTableEntry>);

TEST(RTFListTableEntry, HasOneLevelToFillAtTheStart) {
  const CRTFListTableEntry list;
  for (int index = 0; index < 9; ++index) EXPECT_EQ(list.GetListLevelEntryAt(index), nullptr);
  EXPECT_EQ(list.GetLevelCount(), 1);
  EXPECT_STREQ(list.GetListName(), L"");
  EXPECT_EQ(list.GetListId(), 0);
  EXPECT_EQ(list.GetLs(), 0);
}

TEST(RTFListTableEntry, KeepsEachValueByItself) {
  CRTFListTableEntry list;
  list.SetLevelCount(9);
  list.SetListId(-5);
  list.SetListName(L"numbers");
  list.SetLs(4);
  EXPECT_EQ(list.GetLevelCount(), 9);
  EXPECT_EQ(list.GetListId(), -5);
  EXPECT_STREQ(list.GetListName(), L"numbers");
  EXPECT_EQ(list.GetLs(), 4);
  list.SetListName(nullptr);
  EXPECT_STREQ(list.GetListName(), L"");
}

TEST(RTFListTableEntry, AddsLevelsInOrderWhateverTheCountSays) {
  std::array<CRTFListLevelEntry, 9> levels;
  CRTFListTableEntry list;
  list.SetLevelCount(0);
  for (CRTFListLevelEntry& level : levels) list.AddListLevelEntry(&level);
  for (int index = 0; index < 9; ++index) {
    EXPECT_EQ(list.GetListLevelEntryAt(index), &levels[static_cast<std::size_t>(index)]);
  }
  EXPECT_EQ(list.GetLevelCount(), 0);
}

TEST(RTFListTableEntry, RefusesATenthLevel) {
  std::array<CRTFListLevelEntry, 10> levels;
  CRTFListTableEntry list;
  list.SetLevelCount(0);
  for (CRTFListLevelEntry& level : levels) list.AddListLevelEntry(&level);
  EXPECT_EQ(list.GetListLevelEntryAt(0), levels.data());
  EXPECT_EQ(list.GetListLevelEntryAt(8), &levels[8]);
  EXPECT_EQ(list.GetListLevelEntryAt(9), nullptr);
}

TEST(RTFListTableEntry, SetsALevelWithoutFreeingOrCounting) {
  CRTFListLevelEntry first;
  CRTFListLevelEntry second;
  CRTFListTableEntry list;
  list.SetLevelCount(0);
  list.SetListLevelEntryAt(0, &first);
  list.SetListLevelEntryAt(0, &second);
  list.SetListLevelEntryAt(-1, &first);
  list.SetListLevelEntryAt(9, &first);
  EXPECT_EQ(list.GetListLevelEntryAt(0), &second);
  EXPECT_EQ(list.GetListLevelEntryAt(-1), nullptr);
  list.AddListLevelEntry(&first);
  EXPECT_EQ(list.GetListLevelEntryAt(0), &first);
}

// The leak checker sees a level too few, its memory checker one too many.
TEST(RTFListTableEntry, FixedFreesTheStatedCountOfLevels) {
  const auto kept = std::make_unique<CRTFListLevelEntry>();
  CRTFListTableEntry list;
  list.SetLevelCount(2);
  list.AddListLevelEntry(new CRTFListLevelEntry);
  list.AddListLevelEntry(new CRTFListLevelEntry);
  list.AddListLevelEntry(kept.get());
}

// A stated count is any number that a file holds.
TEST(RTFListTableEntry, FreesNoMoreThanNineLevels) {
  CRTFListTableEntry many;
  many.SetLevelCount(2147483647);
  for (int index = 0; index < 9; ++index) many.AddListLevelEntry(new CRTFListLevelEntry);
  CRTFListLevelEntry kept;
  CRTFListTableEntry none;
  none.SetLevelCount(-1);
  none.AddListLevelEntry(&kept);
}

TEST(RTFListTableEntry, CopiesShareLevels) {
  CRTFListLevelEntry level;
  CRTFListTableEntry list;
  list.SetLevelCount(0);
  list.SetListId(3);
  list.AddListLevelEntry(&level);
  CRTFListTableEntry copy(list);
  CRTFListTableEntry assigned;
  assigned = list;
  for (CRTFListTableEntry* const each : {&copy, &assigned}) {
    EXPECT_EQ(each->GetListLevelEntryAt(0), &level);
    EXPECT_EQ(each->GetLevelCount(), 0);
    EXPECT_EQ(each->GetListId(), 3);
  }
  CRTFListLevelEntry second;
  copy.AddListLevelEntry(&second);
  EXPECT_EQ(copy.GetListLevelEntryAt(1), &second);
}

}  // namespace
