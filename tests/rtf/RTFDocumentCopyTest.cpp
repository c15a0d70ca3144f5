#include "rtf/RTFDocumentCopy.h"

#include "rtf/RTFPropertyTable.h"

#include <gtest/gtest.h>

namespace {

TEST(RTFDocumentCopy, CopiesAllButTheRows) {
  CRTFTableRow row;
  CRTFTableCell cell;
  CDocumentProperties from;
  for (int field = 0; field < 22; ++field) {
    const zeb::RTFField place = zeb::RTFFieldOf(from, field);
    if (place.m_pInt != nullptr) *place.m_pInt = 100 + field;
    if (place.m_pByte != nullptr) *place.m_pByte = static_cast<unsigned char>(100 + field);
  }
  from.CurrentRow = &row;
  from.CurrentCell = &cell;
  from.Rows = {&row, &row};

  CDocumentProperties to;
  to.Rows = {&row};
  zeb::CopyWithoutRows(from, to);
  EXPECT_EQ(to.AnsiCodePage, 121);
  EXPECT_EQ(to.Rows.size(), 1U);
  EXPECT_EQ(from.Rows.size(), 2U);
  to.Rows = from.Rows;
  EXPECT_TRUE(to == from);
}

}  // namespace
