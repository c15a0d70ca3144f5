#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace supplier {

/// One value of a report's data.
struct Value {
  enum class Kind {
    Number,
    Text,
    File,  ///< the content of a file; `text` names it
  };

  Kind kind = Kind::Text;
  double number = 0.0;
  int decimals = 0;  ///< with how many decimals the number was written
  std::wstring text;
};

/// The values of one printing of a zone, by key.
using Row = std::map<std::wstring, Value>;

/// The data of one printing of a report.
struct ReportData {
  std::wstring report;  ///< the report file, as seen from the data
  std::wstring layout;
  Row global;  ///< for keys that a row lacks
  std::vector<std::pair<std::wstring, std::vector<Row>>>
      zones;  ///< the rows of each zone, in the report's order
};

/// Reads a `data.json` of the sample reports, and nothing more general: the members are known, and so is how deep they
/// go.
/// @throws std::runtime_error with the place if the file is missing or is no such data
ReportData ReadReportData(const std::filesystem::path& file);

}  // namespace supplier
