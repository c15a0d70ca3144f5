// A report file and a layout file: any two are refused, or give a report that can be ordered, saved and loaded again.
//
// The input is the two files as text, parted by a NUL byte, or, if it does not begin like XML, a short code that always
// gives well-formed files of the elements that reports know: changed codes reach the readers of records at once.

#include "foundation/KXException.h"
#include "support/LoadedReport.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr std::array kRecords = {
    "ReportDocument",
    "ReportZone",
    "ValueHolder",
    "FormulaValueHolder",
    "SumValueHolder",
    "DynValueHolder",
    "CopyValueHolder",
    "Text",
    "Picture",
    "Rectangle",
    "Line",
    "TableCell",
    "PlRel",
    "Placeable",
    "LayoutPage",
    "LayoutRect",
    "FontInformation",
    "EncodingInformation",
    "DefinedDynVH",
    "Border",
    "TextColor",
    "Color",
    "Condition",
    "KeyToType",
    "FormulaData",
    "FormulaOptions",
    "SrcRelPt",
    "RefOffsetPt",
    "SimplePt",
    "PictureData",
    "CharMetricsInfo",
    "Ligatures",
    "FontData",
};

constexpr std::array kFields = {
    "VersionNr",
    "ReportType",
    "ReportDocumentID",
    "ReportLayoutID",
    "ReportLayoutName",
    "ZoneID",
    "VHID",
    "FormulaVHID",
    "SumVHID",
    "DynVHID",
    "CopyVHID",
    "TxID",
    "PicID",
    "RectID",
    "LineID",
    "TableCellID",
    "PlRelID",
    "PlID",
    "DefinedFormulaVHID",
    "KeepTogetherZoneID",
    "FooterZone",
    "ZoneCanBreak",
    "PageBreakNrLinesKeep",
    "TableID",
    "RowIndex",
    "ColIndex",
    "Width",
    "Height",
    "FirstPageIndependent",
    "EvenOddPagesIndependent",
    "AdjustHeight",
    "RelPt",
    "PtX",
    "PtY",
    "PictureDataLength",
    "BinaryData",
    "UpperDistance",
    "RGBRed",
    "RefZoneID",
    "RefVHID",
    "FontName",
    "FontSize",
    "BaseFont",
    "FontType",
    "FontDataLength",
    "Widths",
    "UnicodeFont",
};

struct Files {
  std::string Report;
  std::string Layout;
};

/// Builds well-formed files from codes: below the records' count a record is opened, then a field with the number of
/// the next byte; the rest closes a record, or goes on to the layout file.
class CodedFiles {
 public:
  Files Build(std::string_view codes) {
    Begin("ReportRootElement");
    for (std::size_t i = 0; i < codes.size(); ++i) {
      std::size_t code = static_cast<unsigned char>(codes[i]);
      if (code < kRecords.size()) {
        Begin(kRecords[code]);
      } else if ((code -= kRecords.size()) < kFields.size()) {
        const int number = i + 1 < codes.size() ? static_cast<signed char>(codes[++i]) : 0;
        Field(kFields[code], number);
      } else if (code == kFields.size() && m_files.Report.empty()) {
        m_files.Report = End();
        Begin("ReportLayout");
      } else if (m_open.size() > 1) {
        Close();
      }
    }
    (m_files.Report.empty() ? m_files.Report : m_files.Layout) = End();
    return m_files;
  }

 private:
  void Begin(const char* name) {
    m_xml += '<' + std::string(name) + '>';
    m_open.emplace_back(name);
  }
  void Close() {
    m_xml += "</" + m_open.back() + '>';
    m_open.pop_back();
  }
  void Field(const char* name, int number) {
    Begin(name);
    m_xml += std::to_string(number);
    Close();
  }
  std::string End() {
    while (!m_open.empty()) Close();
    return std::exchange(m_xml, std::string());
  }

  Files m_files;
  std::string m_xml;
  std::vector<std::string> m_open;
};

Files FilesOf(std::string_view input) {
  if (!input.starts_with('<') && !input.starts_with("\xEF\xBB\xBF")) return CodedFiles().Build(input);
  const std::size_t end = input.find('\0');
  if (end == std::string_view::npos) return {std::string(input), {}};
  return {std::string(input.substr(0, end)), std::string(input.substr(end + 1))};
}

void Load(zebtest::LoadedReport& report, const Files& files) {
  try {
    if (!files.Report.empty()) report.LoadReportText(files.Report);
    if (!files.Layout.empty()) report.LoadLayoutText(files.Layout);
  } catch (const CKXException&) {
    return;  // a file that is refused; what was built of it stays, and is used
  }
}

void Order(zebtest::LoadedReport& report) {
  for (int i = 0; report->GetReportDocument() != nullptr && i < report.Document().GetReportZoneCount(); ++i) {
    CReportZone& zone = report.Zone(i);
    zone.CalculateOrderedElements(false);
    for (int j = 0; j < zone.GetTableCellCount(); ++j) {
      if (zone.GetTableCellIndex(zone.GetTableCellAt(j)) < 0) std::abort();
    }
  }
  for (int i = 0; report->GetReportLayout() != nullptr && i < report.Layout().GetPageCount(); ++i) {
    try {
      report.Page(i).CalculateOrderedElements();
    } catch (const CKXException&) {
      continue;  // ties in a circle
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Files files = FilesOf(std::string(data, data + size));
  zebtest::LoadedReport report;
  Load(report, files);
  Order(report);
  const bool hasDocument = report->GetReportDocument() != nullptr;
  const bool hasLayout = report->GetReportLayout() != nullptr;
  // A picture whose length is a lie keeps it, and the file that it is saved to is refused.
  zebtest::LoadedReport again;
  Load(again, {hasDocument ? report.SavedReport() : std::string(),
               hasLayout ? report.SavedLayout() : std::string()});
  Order(again);
  if (hasDocument && again.Document().GetReportZoneCount() != report.Document().GetReportZoneCount())
    std::abort();
  return 0;
}
