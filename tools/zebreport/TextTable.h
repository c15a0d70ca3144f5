#pragma once

#include <string>
#include <vector>

namespace zebreport {

/// A table as lines of text: columns of equal width as terminals show it, parted by two spaces, with their titles above.
/// No column is wider than 200; longer cells stand out, so that output grows with the input and not with its square.
class TextTable {
 public:
  explicit TextTable(std::vector<std::wstring> titles);

  /// Adds a row of as many cells as there are titles. A cell stands on one line: line ends and tabs become spaces.
  void AddRow(std::vector<std::wstring> cells);

  /// Appends the table, each line indented by two spaces per level; nothing if it has no rows.
  void AppendTo(std::wstring& text, int level) const;

 private:
  std::vector<std::vector<std::wstring>> m_rows;  // the titles first
};

}  // namespace zebreport
