#include "model/ReportZone.h"
#include "model/TableCell.h"
#include "model/Text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <vector>

namespace {

CTableCell* NewCell(int table, int row, int column) {
  auto* cell = new CTableCell;
  cell->SetTableID(table);
  cell->SetRowIndex(row);
  cell->SetColIndex(column);
  return cell;
}

/// The sort as it is described: cell by cell, each in front of the first that is not less.
std::vector<CTableCell*> SortedByInsertion(const std::vector<CTableCell*>& cells) {
  std::vector<CTableCell*> sorted;
  for (CTableCell* cell : cells) {
    auto place = sorted.begin();
    while (place != sorted.end() && **place < *cell) ++place;
    sorted.insert(place, cell);
  }
  return sorted;
}

std::vector<CTableCell*> CellsOf(CReportZone& zone) {
  std::vector<CTableCell*> cells;
  cells.reserve(static_cast<std::size_t>(zone.GetTableCellCount()));
  for (int i = 0; i < zone.GetTableCellCount(); ++i) cells.push_back(zone.GetTableCellAt(i));
  return cells;
}

/// Gives access to the sort itself.
class SortingZone : public CReportZone {
 public:
  using CReportZone::SortTableCells;
};

}  // namespace

TEST(ReportZoneCells, ComeInTheOrderOfTableRowAndColumn) {
  CReportZone zone;
  CTableCell* last = NewCell(1, 0, 1);
  CTableCell* middle = NewCell(1, 0, 0);
  CTableCell* first = NewCell(0, 5, 5);
  zone.AddTableCell(last);
  zone.AddTableCell(middle);
  zone.AddTableCell(first);
  EXPECT_EQ(zone.GetTableCellAt(0), first);
  EXPECT_EQ(zone.GetTableCellAt(1), middle);
  EXPECT_EQ(zone.GetTableCellAt(2), last);
}

// Counting must not sort: equal cells would then turn round once more.
TEST(ReportZoneCells, CountingSortsNothing) {
  CReportZone zone;
  CTableCell* first = NewCell(1, 0, 0);
  CTableCell* second = NewCell(1, 0, 0);
  zone.AddTableCell(first);
  EXPECT_EQ(zone.GetTableCellCount(), 1);
  zone.AddTableCell(second);
  EXPECT_EQ(zone.GetTableCellCount(), 2);
  EXPECT_EQ(zone.GetTableCellAt(0), second);
  EXPECT_EQ(zone.GetTableCellAt(1), first);
}

TEST(ReportZoneCells, FixedEqualCellsComeInReverseOrderOfAdding) {
  CReportZone zone;
  std::vector<CTableCell*> added;
  for (int i = 0; i < 4; ++i) {
    added.push_back(NewCell(1, 1, 1));
    zone.AddTableCell(added.back());
  }
  EXPECT_EQ(CellsOf(zone), (std::vector{added[3], added[2], added[1], added[0]}));
}

TEST(ReportZoneCells, FixedEqualCellsTurnRoundAtEverySort) {
  SortingZone zone;
  CTableCell* first = NewCell(1, 0, 0);
  CTableCell* second = NewCell(1, 0, 0);
  zone.AddTableCell(first);
  zone.AddTableCell(second);
  EXPECT_EQ(CellsOf(zone), (std::vector{second, first}));
  EXPECT_EQ(CellsOf(zone), (std::vector{second, first})) << "no sort without a change";
  CTableCell* other = NewCell(2, 0, 0);
  zone.AddTableCell(other);
  EXPECT_EQ(CellsOf(zone), (std::vector{first, second, other}));
  zone.SortTableCells();
  EXPECT_EQ(CellsOf(zone), (std::vector{second, first, other}));
}

TEST(ReportZoneCells, SortIsTheDescribedInsertion) {
  std::mt19937 random(7);  // NOLINT(bugprone-random-generator-seed): the same cells in every run
  for (int round = 0; round < 50; ++round) {
    CReportZone zone;
    std::vector<CTableCell*> expected;
    for (int batch = 0; batch < 3; ++batch) {
      const int count = static_cast<int>(random() % 20);
      for (int i = 0; i < count; ++i) {
        CTableCell* cell = NewCell(static_cast<int>(random() % 2), static_cast<int>(random() % 3) - 1,
                                   static_cast<int>(random() % 3) - 1);
        zone.AddTableCell(cell);
        expected.push_back(cell);
      }
      if (count > 0) expected = SortedByInsertion(expected);
      ASSERT_EQ(CellsOf(zone), expected);
    }
  }
}

TEST(ReportZoneCells, NullCellsStandBehindAllOthers) {
  CReportZone zone;
  CTableCell* cell = NewCell(5, 5, 5);
  zone.AddTableCell(nullptr);
  zone.AddTableCell(cell);
  zone.AddTableCell(nullptr);
  EXPECT_EQ(CellsOf(zone), (std::vector<CTableCell*>{cell, nullptr, nullptr}));
  EXPECT_EQ(zone.GetTableCellIndex(cell), 0);
}

TEST(ReportZoneCells, IndexIsThatOfTheFirstCellOfTheSamePlace) {
  CReportZone zone;
  for (int i = 0; i < 3; ++i) zone.AddTableCell(NewCell(1, 2, 3));
  zone.AddTableCell(NewCell(0, 0, 0));
  zone.AddTableCell(NewCell(1, 2, 4));
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(zone.GetTableCellIndex(zone.GetTableCellAt(i)), 1);
  EXPECT_EQ(zone.GetTableCellIndex(zone.GetTableCellAt(4)), 4);
}

TEST(ReportZoneCells, IndexOfACellOfAnotherZoneIsThatOfItsPlace) {
  CReportZone zone;
  zone.AddTableCell(NewCell(1, 0, 0));
  zone.AddTableCell(NewCell(1, 0, 1));
  CTableCell stranger;
  stranger.SetTableID(1);
  stranger.SetRowIndex(0);
  stranger.SetColIndex(1);
  EXPECT_EQ(zone.GetTableCellIndex(&stranger), 1);
  stranger.SetRowIndex(9);
  EXPECT_EQ(zone.GetTableCellIndex(&stranger), -1);
}

TEST(ReportZoneCells, IndexFindsACellThatMovedSinceTheSort) {
  CReportZone zone;
  CTableCell* moved = NewCell(1, 0, 0);
  zone.AddTableCell(moved);
  zone.AddTableCell(NewCell(1, 1, 0));
  zone.AddTableCell(NewCell(1, 2, 0));
  EXPECT_EQ(zone.GetTableCellIndex(moved), 0);
  moved->SetRowIndex(9);
  EXPECT_EQ(zone.GetTableCellIndex(moved), 0);
}

TEST(ReportZoneCells, PositionNeedsAnOrder) {
  CReportZone zone;
  zone.AddTableCell(NewCell(1, 0, 0));
  const CTableCell* cell = NewCell(1, 0, 1);
  EXPECT_EQ(zone.FindTableCellPos(cell), -1);
  delete cell;
}

TEST(ReportZoneCells, PositionIsThatOfTheLastEarlierCellOfTheTable) {
  CReportZone zone;
  auto* text = new CText;
  zone.AddTextElement(text);
  CTableCell* first = NewCell(1, 0, 0);
  CTableCell* second = NewCell(1, 0, 1);
  CTableCell* third = NewCell(1, 1, 0);
  CTableCell* other = NewCell(2, 0, 0);
  for (CTableCell* cell : {first, second, third, other}) zone.AddTableCell(cell);
  zone.CalculateOrderedElements(true);
  ASSERT_EQ(zone.FindOrderedElement(first), 1);
  EXPECT_EQ(zone.FindTableCellPos(first), -1);
  EXPECT_EQ(zone.FindTableCellPos(second), zone.FindOrderedElement(third)) << "an earlier column";
  EXPECT_EQ(zone.FindTableCellPos(third), zone.FindOrderedElement(second)) << "an earlier row";
  EXPECT_EQ(zone.FindTableCellPos(other), -1) << "only cells of the same table count";
}

TEST(ReportZoneCells, FixedALaterRowOfAnEarlierColumnEndsTheSearchForThePosition) {
  CReportZone zone;
  zone.AddTableCell(NewCell(1, 0, 0));
  CTableCell* later = NewCell(1, 5, 0);
  zone.AddTableCell(later);
  zone.CalculateOrderedElements(true);
  CTableCell cell;
  cell.SetTableID(1);
  cell.SetRowIndex(1);
  cell.SetColIndex(1);
  EXPECT_EQ(zone.FindTableCellPos(&cell), zone.FindOrderedElement(later));
}

// 100,000 cells, all of them in the worst order, and an index for each.
TEST(ReportZoneCells, ManyCellsAreSortedAndFoundInReasonableTime) {
  constexpr int kCount = 100'000;
  CReportZone zone;
  for (int i = kCount - 1; i >= 0; --i) zone.AddTableCell(NewCell(1, i / 10, i % 10));
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < kCount; ++i) ASSERT_EQ(zone.GetTableCellIndex(zone.GetTableCellAt(i)), i);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}
