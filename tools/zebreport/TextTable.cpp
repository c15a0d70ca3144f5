#include "TextTable.h"

#include "WideCharacters.h"

#include <algorithm>
#include <utility>

namespace zebreport {

namespace {

constexpr std::size_t kWidestColumn = 200;

std::wstring OnOneLine(std::wstring cell) {
  std::replace_if(
      cell.begin(), cell.end(), [](wchar_t c) { return c == L'\n' || c == L'\r' || c == L'\t'; }, L' ');
  return cell;
}

/// In columns of a terminal.
std::size_t WidthOf(const std::wstring& cell) {
  return cell.size() + static_cast<std::size_t>(std::count_if(cell.begin(), cell.end(), IsWide));
}

}  // namespace

TextTable::TextTable(std::vector<std::wstring> titles) { m_rows.push_back(std::move(titles)); }

void TextTable::AddRow(std::vector<std::wstring> cells) {
  for (std::wstring& cell : cells) cell = OnOneLine(std::move(cell));
  m_rows.push_back(std::move(cells));
}

void TextTable::AppendTo(std::wstring& text, int level) const {
  if (m_rows.size() == 1) return;
  std::vector<std::size_t> widths(m_rows.front().size());
  for (const auto& row : m_rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], std::min(WidthOf(row[i]), kWidestColumn));
    }
  }
  for (const auto& row : m_rows) {
    std::wstring line(static_cast<std::size_t>(level) * 2, L' ');
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += row[i];
      const std::size_t width = WidthOf(row[i]);
      if (i + 1 < row.size()) line.append(widths[i] - std::min(width, widths[i]) + 2, L' ');
    }
    // No blanks at the end, also where the last cells are empty.
    line.erase(line.find_last_not_of(L' ') + 1);
    text += line + L'\n';
  }
}

}  // namespace zebreport
