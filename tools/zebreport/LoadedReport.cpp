#include "LoadedReport.h"

#include "Failure.h"
#include "UnownedObjects.h"
#include "Utf8.h"

namespace zebreport {

namespace {

/// The file name in a path of either separator.
std::wstring FileName(const std::wstring& path) {
  const std::size_t separator = path.find_last_of(L"\\/");
  return separator == std::wstring::npos ? path : path.substr(separator + 1);
}

}  // namespace

LoadedReport::~LoadedReport() {
  UnownedObjects unowned;
  unowned.Collect(*m_pRoot);
  m_pRoot.reset();
}

void LoadedReport::LoadExactly(const std::filesystem::path& report, const std::filesystem::path& layout) {
  m_reportFile = report;
  LoadReport();
  m_layoutFile = layout;
  if (!layout.empty()) LoadLayout();
}

void LoadedReport::LoadWithLayout(const std::filesystem::path& report,
                                  const std::optional<std::wstring>& layout) {
  if (layout.has_value()) return LoadExactly(report, ToPath(*layout));
  LoadExactly(report, {});
  const std::wstring name = FileName(m_pRoot->GetReportDocument()->GetReportLayoutName());
  if (name.empty()) return;
  const std::filesystem::path beside = report.parent_path() / ToPath(name);
  std::error_code error;
  if (std::filesystem::exists(beside, error)) {
    m_layoutFile = beside;
    LoadLayout();
  } else {
    m_missingLayout = beside;
  }
}

void LoadedReport::LoadReportFile(const std::wstring& file) { m_pRoot->LoadReport(file.c_str(), nullptr); }

void LoadedReport::LoadLayoutFile(const std::wstring& file) { m_pRoot->LoadReport(nullptr, file.c_str()); }

void LoadedReport::LoadReport() {
  const std::wstring file = FromPath(m_reportFile);
  try {
    LoadReportFile(file);
  } catch (const CKXException& exception) {
    throw LibraryFailure(file, exception);
  }
  if (m_pRoot->GetReportDocument() == nullptr) {
    throw Failure(file + L": there is no ReportDocument in it; name a report file.");
  }
}

void LoadedReport::LoadLayout() {
  const std::wstring file = FromPath(m_layoutFile);
  try {
    LoadLayoutFile(file);
  } catch (const CKXException& exception) {
    throw LibraryFailure(file, exception);
  }
  if (m_pRoot->GetReportLayout() == nullptr) {
    throw Failure(file + L": there is no ReportLayoutID in it; name a layout file.");
  }
}

std::wstring LoadedReport::DescribeFiles() const {
  std::wstring text = L"report " + FromPath(m_reportFile) + L"\n";
  if (!m_layoutFile.empty()) text += L"layout " + FromPath(m_layoutFile) + L"\n";
  if (!m_missingLayout.empty()) {
    text += L"no layout: " + FromPath(m_missingLayout) +
            L", which the report names, is not there; name one with --layout\n";
  }
  return text;
}

}  // namespace zebreport
