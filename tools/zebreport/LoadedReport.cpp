#include "LoadedReport.h"

#include "Failure.h"

#include <set>

namespace zebreport {

namespace {

/// The file name in a path of either separator.
std::wstring FileName(const std::wstring& path) {
  const std::size_t separator = path.find_last_of(L"\\/");
  return separator == std::wstring::npos ? path : path.substr(separator + 1);
}

using Objects = std::set<CPlaceable*>;

/// Formulas that zones define but do not place. One that is placed as well is its zone's.
void CollectDefinedFormulas(CReportDocument& document, Objects& objects) {
  for (int i = 0; i < document.GetReportZoneCount(); ++i) {
    const CReportZone* zone = document.GetReportZoneAt(i);
    for (int j = 0; zone != nullptr && j < zone->GetDefinedFormulaValueHoldersCount(); ++j) {
      objects.insert(zone->GetDefinedFormulaValueHolderAt(j));
    }
  }
  for (int i = 0; i < document.GetReportZoneCount(); ++i) {
    CReportZone* zone = document.GetReportZoneAt(i);
    for (int j = 0; zone != nullptr && j < zone->GetValueHolderCount(); ++j) {
      objects.erase(zone->GetValueHolderAt(j));
    }
    for (int j = 0; zone != nullptr && j < zone->GetTableCellCount(); ++j) {
      const CTableCell* cell = zone->GetTableCellAt(j);
      for (int k = 0; cell != nullptr && k < cell->GetCellElementCount(); ++k) {
        objects.erase(cell->GetCellElementAt(k));
      }
    }
  }
}

/// The elements of table cells on pages.
void CollectCellElements(const CReportLayout& layout, Objects& objects) {
  for (int i = 0; i < layout.GetPageCount(); ++i) {
    CLayoutPage* page = layout.GetPageAt(i);
    for (int j = 0; page != nullptr && j < page->GetLayoutContentCount(); ++j) {
      const auto* cell = dynamic_cast<CTableCell*>(page->GetLayoutContentAt(j));
      for (int k = 0; cell != nullptr && k < cell->GetCellElementCount(); ++k) {
        objects.insert(cell->GetCellElementAt(k));
      }
    }
  }
}

}  // namespace

LoadedReport::~LoadedReport() {
  Objects unowned;
  if (m_pRoot->GetReportDocument() != nullptr) CollectDefinedFormulas(*m_pRoot->GetReportDocument(), unowned);
  if (m_pRoot->GetReportLayout() != nullptr) CollectCellElements(*m_pRoot->GetReportLayout(), unowned);
  m_pRoot.reset();
  for (CPlaceable* object : unowned) delete object;
}

void LoadedReport::LoadExactly(const std::filesystem::path& report, const std::filesystem::path& layout) {
  m_reportFile = report;
  LoadReport();
  m_layoutFile = layout;
  if (!layout.empty()) LoadLayout();
}

void LoadedReport::LoadWithLayout(const std::filesystem::path& report,
                                  const std::optional<std::wstring>& layout) {
  if (layout.has_value()) return LoadExactly(report, *layout);
  LoadExactly(report, {});
  const std::wstring name = FileName(m_pRoot->GetReportDocument()->GetReportLayoutName());
  if (name.empty()) return;
  const std::filesystem::path beside = report.parent_path() / name;
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
  const std::wstring file = m_reportFile.wstring();
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
  const std::wstring file = m_layoutFile.wstring();
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
  std::wstring text = L"report " + m_reportFile.wstring() + L"\n";
  if (!m_layoutFile.empty()) text += L"layout " + m_layoutFile.wstring() + L"\n";
  if (!m_missingLayout.empty()) {
    text += L"no layout: " + m_missingLayout.wstring() +
            L", which the report names, is not there; name one with --layout\n";
  }
  return text;
}

}  // namespace zebreport
