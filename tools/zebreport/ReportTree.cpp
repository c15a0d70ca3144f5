#include "ReportTree.h"

#include "Describe.h"
#include "Names.h"
#include "TextFormat.h"

namespace zebreport {

namespace {

/// Writes the tree of one report.
class TreeWriter {
 public:
  /// @param asSaved whether to leave out and count the ties that a layout file does not keep
  TreeWriter(const CReportRootElement& report, std::wstring& text, bool asSaved)
      : m_names(report), m_lines(text), m_bAsSaved(asSaved) {}

  void AddReport(const CReportRootElement& report) {
    m_lines.Add(0, L"report type " + Quoted(report.GetReportType()));
    if (CReportDocument* document = report.GetReportDocument()) AddDocument(*document);
    if (const CReportLayout* layout = report.GetReportLayout()) AddLayout(*layout);
  }

  int UnsavedTies() const { return m_iUnsavedTies; }

 private:
  void AddDocument(CReportDocument& document) {
    for (int i = 0; i < document.GetDefinedDynVHCount(); ++i) {
      if (const CDefinedDynVH* defined = document.GetDefinedDynVHAt(i)) {
        m_lines.Add(0, L"dynamic field " + Quoted(defined->GetDynVHName()) + L" of kind " +
                           Quoted(defined->GetType()));
      }
    }
    for (int i = 0; i < document.GetReportZoneCount(); ++i) {
      if (CReportZone* zone = document.GetReportZoneAt(i)) AddZone(*zone);
    }
  }

  void AddZone(CReportZone& zone) {
    m_place = Names::OfZone(zone);
    m_lines.Add(0, m_place);
    AddZoneSettings(zone);
    for (int i = 0; i < zone.GetTextElementCount(); ++i) AddObject(1, zone.GetTextElementAt(i));
    for (int i = 0; i < zone.GetValueHolderCount(); ++i) AddObject(1, zone.GetValueHolderAt(i));
    for (int i = 0; i < zone.GetPictureElementCount(); ++i) AddObject(1, zone.GetPictureElementAt(i));
    for (int i = 0; i < zone.GetRectangleElementCount(); ++i) AddObject(1, zone.GetRectangleElementAt(i));
    for (int i = 0; i < zone.GetLineElementCount(); ++i) AddObject(1, zone.GetLineElementAt(i));
    for (int i = 0; i < zone.GetTableCellCount(); ++i) AddObject(1, zone.GetTableCellAt(i));
    if (zone.GetDefinedFormulaValueHoldersCount() > 0) m_lines.Add(1, L"defined, not placed");
    for (int i = 0; i < zone.GetDefinedFormulaValueHoldersCount(); ++i) {
      AddObject(2, zone.GetDefinedFormulaValueHolderAt(i));
    }
  }

  void AddZoneSettings(const CReportZone& zone) {
    std::vector<std::wstring> settings;
    if (zone.GetFooterZone()) settings.emplace_back(L"footer zone");
    settings.emplace_back(zone.GetZoneCanBreak() ? L"may break" : L"does not break");
    settings.push_back(L"keeps " + std::to_wstring(zone.GetPageBreakNrLinesKeep()) +
                       L" lines at a page break");
    if (zone.GetPageBreakNotLastZone()) settings.emplace_back(L"is not the last zone of a page");
    for (int i = 0; i < zone.GetZonesKeepTogetherCount(); ++i) {
      settings.push_back(L"stays with zone " + std::wstring(zone.GetZonesKeepTogetherAt(i)));
    }
    m_lines.Add(1, Joined(settings));
  }

  void AddLayout(const CReportLayout& layout) {
    for (int i = 0; i < layout.GetPageCount(); ++i) {
      if (CLayoutPage* page = layout.GetPageAt(i)) AddPage(layout, *page, i);
    }
  }

  void AddPage(const CReportLayout& layout, CLayoutPage& page, int index) {
    m_place = Names::OfPage(index);
    std::vector<std::wstring> uses;
    if (layout.GetFirstPage() == &page) uses.emplace_back(L"first page");
    if (layout.GetNormalPage() == &page) uses.emplace_back(L"normal pages");
    if (layout.GetEvenPage() == &page) uses.emplace_back(L"even pages");
    if (layout.GetOddPage() == &page) uses.emplace_back(L"odd pages");
    m_lines.Add(0, m_place + (uses.empty() ? L"" : L" (" + Joined(uses) + L")"));
    AddRect(L"paper", page.GetPaperRect());
    AddRect(L"area of the zones", page.GetBorderRect());
    for (int i = 0; i < page.GetLayoutContentCount(); ++i) AddPageObject(page.GetLayoutContentAt(i));
  }

  void AddRect(const std::wstring& what, const LayoutRect* rect) {
    if (rect == nullptr) return;
    m_lines.Add(1, what + L" from " + Number(rect->GetULX()) + L" " + Number(rect->GetULY()) + L" to " +
                       Number(rect->GetLRX()) + L" " + Number(rect->GetLRY()));
  }

  void AddObject(int level, const CPlaceable* object) {
    if (object == nullptr) return;
    AddLines(level, *object, true);
    if (const auto* cell = dynamic_cast<const CTableCell*>(object)) AddElements(level, *cell, true);
  }

  void AddPageObject(const CPlaceable* object) {
    const auto* cell = dynamic_cast<const CTableCell*>(object);
    if (cell == nullptr) return AddObject(1, object);
    AddLines(1, *cell, false);
    AddElements(1, *cell, false);
  }

  void AddElements(int level, const CTableCell& cell, bool tiesAreSaved) {
    for (int i = 0; i < cell.GetCellElementCount(); ++i) {
      if (const CPlaceable* element = cell.GetCellElementAt(i)) AddLines(level + 1, *element, tiesAreSaved);
    }
  }

  void AddLines(int level, const CPlaceable& object, bool tieIsSaved) {
    m_lines.Add(level, m_names.Of(&object, m_place));
    for (const std::wstring& line : Describe(object)) m_lines.Add(level + 1, line);
    const CPlaceableRelation* relation = object.GetPlaceableRelation();
    if (relation == nullptr) return;
    if (m_bAsSaved && !tieIsSaved) {
      ++m_iUnsavedTies;
    } else {
      m_lines.Add(level + 1, DescribeRelation(*relation, m_names, m_place));
    }
  }

  Names m_names;
  Lines m_lines;
  std::wstring m_place;
  bool m_bAsSaved;
  int m_iUnsavedTies = 0;
};

}  // namespace

std::wstring ReportTree(const CReportRootElement& report) {
  std::wstring text;
  TreeWriter(report, text, false).AddReport(report);
  return text;
}

SavedTree ReportTreeAsSaved(const CReportRootElement& report) {
  SavedTree tree;
  TreeWriter writer(report, tree.text, true);
  writer.AddReport(report);
  tree.unsavedTies = writer.UnsavedTies();
  return tree;
}

}  // namespace zebreport
