#include "model/TableCell.h"

#include "model/Text.h"
#include "support/RecordFixture.h"

#include <gtest/gtest.h>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

CTableCell Cell(int table, int row, int column) {
  CTableCell cell;
  cell.SetTableID(table);
  cell.SetRowIndex(row);
  cell.SetColIndex(column);
  return cell;
}

TEST(TableCell, HasTheDefaults) {
  const CTableCell cell;
  EXPECT_EQ(cell.GetTableID(), -1);
  EXPECT_EQ(cell.GetRowIndex(), -1);
  EXPECT_EQ(cell.GetColIndex(), -1);
  EXPECT_EQ(cell.GetCellElementCount(), 0);
  EXPECT_FALSE(cell.HasVariableWidthElements());
}

TEST(TableCell, WritesEveryFieldAlways) {
  CTableCell cell;
  EXPECT_EQ(
      SaveRecord(cell),
      "<TableCell><TableCellID>0</TableCellID><Placeable><PlID>0</PlID></Placeable><TableID>-1</TableID>"
      "<RowIndex>-1</RowIndex><ColIndex>-1</ColIndex></TableCell>");
}

TEST(TableCell, NeitherElementsNorVariableWidthAreInTheRecord) {
  CTableCell cell = Cell(1, 2, 3);
  CText text;
  cell.AddCellElement(&text);
  cell.SetVariableWidthElements(true);
  EXPECT_EQ(SaveRecord(cell),
            "<TableCell><TableCellID>0</TableCellID><Placeable><PlID>0</PlID></Placeable><TableID>1</TableID>"
            "<RowIndex>2</RowIndex><ColIndex>3</ColIndex></TableCell>");
}

TEST(TableCell, ReadsItsFields) {
  CIDManager ids;
  CTableCell cell;
  LoadRecord(
      cell,
      "<TableCell><TableCellID>8</TableCellID><Placeable><Width>40</Width></Placeable><TableID>1</TableID>"
      "<RowIndex>2</RowIndex><ColIndex>3</ColIndex></TableCell>",
      ids);
  EXPECT_EQ(cell.GetWidth(), 40.0F);
  EXPECT_EQ(cell.GetTableID(), 1);
  EXPECT_EQ(cell.GetRowIndex(), 2);
  EXPECT_EQ(cell.GetColIndex(), 3);
  EXPECT_EQ(ids.GetObjectFromID(8), &cell);
}

TEST(TableCell, ReadingEndsAtAnElementOutOfOrder) {
  CTableCell cell;
  LoadRecord(cell, "<TableCell><RowIndex>2</RowIndex><TableID>1</TableID><ColIndex>3</ColIndex></TableCell>");
  EXPECT_EQ(cell.GetRowIndex(), 2);
  EXPECT_EQ(cell.GetTableID(), -1);
  EXPECT_EQ(cell.GetColIndex(), -1);
}

TEST(TableCell, FixedSettingAnElementInsertsIt) {
  CTableCell cell;
  CText first;
  CText second;
  CText third;
  cell.AddCellElement(&first);
  cell.AddCellElement(&second);
  cell.SetCellElementAt(1, &third);
  ASSERT_EQ(cell.GetCellElementCount(), 3);
  EXPECT_EQ(cell.GetCellElementAt(0), &first);
  EXPECT_EQ(cell.GetCellElementAt(1), &third);
  EXPECT_EQ(cell.GetCellElementAt(2), &second);
}

TEST(TableCell, DoesNotOwnItsElements) {
  CText text;
  { CTableCell().AddCellElement(&text); }
  text.SetTextContent(L"alive");
  EXPECT_STREQ(text.GetTextContent(), L"alive");
}

TEST(TableCell, IsOrderedByTableThenRowThenColumn) {
  EXPECT_TRUE(Cell(0, 9, 9) < Cell(1, 0, 0));
  EXPECT_TRUE(Cell(1, 0, 9) < Cell(1, 1, 0));
  EXPECT_TRUE(Cell(1, 1, 0) < Cell(1, 1, 1));
  EXPECT_TRUE(Cell(-1, 0, 0) < Cell(0, 0, 0));
  EXPECT_FALSE(Cell(1, 1, 1) < Cell(1, 1, 1));
  EXPECT_FALSE(Cell(1, 0, 0) < Cell(0, 9, 9));
  EXPECT_FALSE(Cell(1, 1, 0) < Cell(1, 0, 9));
  EXPECT_FALSE(Cell(1, 1, 1) < Cell(1, 1, 0));
}

TEST(TableCell, CopySharesTheElements) {
  CTableCell source = Cell(1, 2, 3);
  CText text;
  source.AddCellElement(&text);
  source.SetVariableWidthElements(true);
  const CTableCell copy(source);
  CTableCell assigned;
  assigned = source;
  for (const CTableCell* cell : {&copy, const_cast<const CTableCell*>(&assigned)}) {
    EXPECT_EQ(cell->GetTableID(), 1);
    EXPECT_EQ(cell->GetRowIndex(), 2);
    EXPECT_EQ(cell->GetColIndex(), 3);
    EXPECT_TRUE(cell->HasVariableWidthElements());
    ASSERT_EQ(cell->GetCellElementCount(), 1);
    EXPECT_EQ(cell->GetCellElementAt(0), &text);
  }
}

}  // namespace
