#pragma once

#include "ZEBReportDocument.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace zebreport {

/// A report in memory with the files that it came from. Frees the report at its end, with the objects that nobody owns.
///
/// One report at a time: the library's placeholder objects belong to the process, so an earlier report must have ended
/// before the next one is loaded.
class LoadedReport {
 public:
  LoadedReport() = default;
  LoadedReport(const LoadedReport&) = delete;
  LoadedReport& operator=(const LoadedReport&) = delete;
  ~LoadedReport();

  /// Loads a report file and exactly the given layout file; none if it is empty.
  /// @throws Failure
  void LoadExactly(const std::filesystem::path& report, const std::filesystem::path& layout);

  /// Loads a report file and its layout file: the named one, else the one that the report names, from the report's
  /// folder, if it is there.
  /// @throws Failure
  void LoadWithLayout(const std::filesystem::path& report, const std::optional<std::wstring>& layout);

  /// Loads a report file, whatever it lacks.
  /// @throws CKXException
  void LoadReportFile(const std::wstring& file);

  /// Loads a layout file, whatever it lacks.
  /// @throws CKXException
  void LoadLayoutFile(const std::wstring& file);

  CReportRootElement& Root() const { return *m_pRoot; }

  /// The lines that say which files were loaded.
  std::wstring DescribeFiles() const;

 private:
  void LoadReport();
  void LoadLayout();

  std::unique_ptr<CReportRootElement> m_pRoot = std::make_unique<CReportRootElement>();
  std::filesystem::path m_reportFile;
  std::filesystem::path m_layoutFile;     // empty if no layout was loaded
  std::filesystem::path m_missingLayout;  // the file that the report names and that is not there
};

}  // namespace zebreport
