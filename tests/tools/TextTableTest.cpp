#include "TextTable.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::wstring Shown(const zebreport::TextTable& table) {
  std::wstring text;
  table.AppendTo(text, 0);
  return text;
}

TEST(TextTable, PadsNoLastCell) {
  zebreport::TextTable table({L"a", L"b"});
  table.AddRow({L"long", std::wstring(300, L'x')});
  table.AddRow({L"c", L"d"});
  table.AddRow({L"c", L""});
  EXPECT_EQ(Shown(table), L"a     b\nlong  " + std::wstring(300, L'x') + L"\nc     d\nc\n");
}

TEST(TextTable, HasNoColumnWiderThan200) {
  zebreport::TextTable table({L"a", L"b"});
  table.AddRow({std::wstring(201, L'x'), L"y"});
  table.AddRow({std::wstring(200, L'x'), L"y"});
  EXPECT_EQ(Shown(table), L"a" + std::wstring(201, L' ') + L"b\n" + std::wstring(201, L'x') + L"  y\n" +
                              std::wstring(200, L'x') + L"  y\n");
}

}  // namespace
