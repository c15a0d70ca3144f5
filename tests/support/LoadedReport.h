#pragma once

#include "fonts/BuiltInFonts.h"
#include "fonts/FontCharMetricsInfo.h"
#include "fonts/FontInformation.h"
#include "fonts/FontMetrics.h"
#include "fonts/Fonts.h"
#include "fonts/GlobalFontHandler.h"
#include "foundation/IDManager.h"
#include "foundation/XMLFile.h"
#include "model/FormulaValueHolder.h"
#include "model/LayoutPage.h"
#include "model/ReportDocument.h"
#include "model/ReportLayout.h"
#include "model/ReportRootElement.h"
#include "model/ReportZone.h"
#include "model/TableCell.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <set>
#include <string>
#include <string_view>

namespace zebtest {

/// The objects of a report that nobody owns: formulas that zones define but do not place, the elements of table cells on
/// pages, and the records of the characters of fonts. Collected while the report lives, freed at the end of the scope.
class UnownedOfReport {
 public:
  UnownedOfReport() = default;
  UnownedOfReport(const UnownedOfReport&) = delete;
  UnownedOfReport& operator=(const UnownedOfReport&) = delete;
  ~UnownedOfReport() {
    for (CPlaceable* object : m_objects) delete object;
    for (CFontCharMetricsInfo* character : m_characters) delete character;
  }

  void Collect(CReportDocument& document) {
    for (int i = 0; i < document.GetReportZoneCount(); ++i) {
      const CReportZone* zone = document.GetReportZoneAt(i);
      for (int j = 0; zone != nullptr && j < zone->GetDefinedFormulaValueHoldersCount(); ++j) {
        m_objects.insert(zone->GetDefinedFormulaValueHolderAt(j));
      }
    }
    // What a zone owns is not ours, even if it is defined as well.
    for (int i = 0; i < document.GetReportZoneCount(); ++i) Forget(document.GetReportZoneAt(i));
    Collect(document.GetFontHandler());
  }

  void Collect(const CReportLayout& layout) {
    for (int i = 0; i < layout.GetPageCount(); ++i) Collect(*layout.GetPageAt(i));
    Collect(layout.GetFontHandler());
  }

  void Collect(const CGlobalFontHandler* handler) {
    if (handler == nullptr) return;
    // Built-in fonts stand first. They have no such records, and asking for them would make them.
    const CFonts& fonts = *handler->GetFonts();
    for (int i = static_cast<int>(zeb::BuiltInFonts::kCount); i < fonts.GetFontCount(); ++i) {
      const CFontMetrics& metrics = *fonts.GetFontAt(i)->GetFontMetrics();
      for (int j = 0; j < metrics.GetFontCharMetricsCount(); ++j) {
        m_characters.insert(metrics.GetFontCharMetricsAt(j));
      }
    }
  }

  void Collect(CLayoutPage& page) {
    for (int i = 0; i < page.GetLayoutContentCount(); ++i) {
      const auto* cell = dynamic_cast<CTableCell*>(page.GetLayoutContentAt(i));
      for (int j = 0; cell != nullptr && j < cell->GetCellElementCount(); ++j) {
        m_objects.insert(cell->GetCellElementAt(j));
      }
    }
  }

 private:
  void Forget(CReportZone* zone) {
    for (int i = 0; zone != nullptr && i < zone->GetValueHolderCount(); ++i) {
      m_objects.erase(zone->GetValueHolderAt(i));
    }
    for (int i = 0; zone != nullptr && i < zone->GetTableCellCount(); ++i) {
      const CTableCell* cell = zone->GetTableCellAt(i);
      for (int j = 0; cell != nullptr && j < cell->GetCellElementCount(); ++j) {
        m_objects.erase(cell->GetCellElementAt(j));
      }
    }
  }

  std::set<CPlaceable*> m_objects;
  std::set<CFontCharMetricsInfo*> m_characters;
};

/// Calls the object's Load with the root element of this text. The object keeps nothing of the text.
template <class Object>
bool LoadRecord(Object& object, CIDManager& ids, std::string_view xml) {
  const TempDir dir;
  WriteFile(dir.File("record.xml"), xml);
  const zeb::XMLFile file = zeb::XMLFile::Load(dir.WideFile("record.xml").c_str());
  return object.Load(file.Root(), ids);
}

/// A report of a test, with everything freed at its end.
class LoadedReport {
 public:
  LoadedReport() = default;
  LoadedReport(const LoadedReport&) = delete;
  LoadedReport& operator=(const LoadedReport&) = delete;
  ~LoadedReport() {
    if (m_root.GetReportDocument() != nullptr) m_unowned.Collect(*m_root.GetReportDocument());
    if (m_root.GetReportLayout() != nullptr) m_unowned.Collect(*m_root.GetReportLayout());
  }

  CReportRootElement& operator*() { return m_root; }
  CReportRootElement* operator->() { return &m_root; }
  CReportDocument& Document() { return *m_root.GetReportDocument(); }
  CReportZone& Zone(int index) { return *Document().GetReportZoneAt(index); }
  CReportLayout& Layout() { return *m_root.GetReportLayout(); }
  CLayoutPage& Page(int index) { return *Layout().GetPageAt(index); }

  /// Loads a report file of this content.
  void LoadReportText(std::string_view xml) {
    WriteFile(m_dir.File("in-report.xml"), xml);
    m_root.LoadReport(m_dir.WideFile("in-report.xml").c_str(), nullptr);
  }

  /// Loads a layout file of this content.
  void LoadLayoutText(std::string_view xml) {
    WriteFile(m_dir.File("in-layout.xml"), xml);
    m_root.LoadReport(nullptr, m_dir.WideFile("in-layout.xml").c_str());
  }

  /// The report file that the report saves.
  std::string SavedReport() {
    m_root.SaveReport(m_dir.WideFile("out-report.xml").c_str(), nullptr);
    return ReadFile(m_dir.File("out-report.xml"));
  }

  /// The layout file that the report saves.
  std::string SavedLayout() {
    m_root.SaveReport(nullptr, m_dir.WideFile("out-layout.xml").c_str());
    return ReadFile(m_dir.File("out-layout.xml"));
  }

  const TempDir& Dir() const { return m_dir; }

 private:
  TempDir m_dir;
  UnownedOfReport m_unowned;
  CReportRootElement m_root;
};

/// A report file around its records: document 0 with zone 1, whose record is `zone`, and the records behind it.
inline std::string ReportOfOneZone(std::string_view zone, std::string_view records = "", int version = 2) {
  return "<ReportRootElement><VersionNr>1</VersionNr><ReportType>T</ReportType><ReportDocument><VersionNr>" +
         std::to_string(version) +
         "</VersionNr><ReportDocumentID>0</ReportDocumentID><ZoneID>1</ZoneID>"
         "<ReportLayoutName>l.xml</ReportLayoutName></ReportDocument><ReportZone><ZoneID>1</ZoneID>"
         "<InternalName>Zone</InternalName>" +
         std::string(zone) + "</ReportZone>" + std::string(records) + "</ReportRootElement>";
}

/// A layout file of the current version around its content: one page with these records.
inline std::string LayoutOfOnePage(std::string_view content) {
  return "<ReportLayout><VersionNr>3</VersionNr><ReportLayoutID>0</ReportLayoutID><LayoutPage>"
         "<LayoutRect><Ulx>0.0</Ulx><Uly>842.0</Uly><Lrx>595.0</Lrx><Lry>0.0</Lry></LayoutRect>"
         "<LayoutRect><Ulx>57.0</Ulx><Uly>740.0</Uly><Lrx>538.0</Lrx><Lry>120.0</Lry></LayoutRect>" +
         std::string(content) + "</LayoutPage></ReportLayout>";
}

/// A record of a text, with further children of its `Placeable` and of itself.
inline std::string TextRecord(int id, std::string_view placeable = "", std::string_view fields = "") {
  const std::string number = std::to_string(id);
  return "<Text><TxID>" + number + "</TxID><Placeable><PlID>" + number + "</PlID>" + std::string(placeable) +
         "</Placeable>" + std::string(fields) + "</Text>";
}

/// A record of a value holder around its text record.
inline std::string ValueHolderRecord(int id, std::string_view placeable = "", std::string_view key = "") {
  return "<ValueHolder><VHID>" + std::to_string(id) + "</VHID>" + TextRecord(id, placeable) +
         "<InternalKey>" + std::string(key) + "</InternalKey></ValueHolder>";
}

/// Whether `first` stands in front of `second`, and both are there.
inline bool StandsBefore(std::string_view text, std::string_view first, std::string_view second) {
  const auto at = text.find(first);
  return at != std::string_view::npos && text.find(second, at) != std::string_view::npos &&
         text.find(second) > at;
}

}  // namespace zebtest
