#include "UnownedObjects.h"

namespace zebreport {

namespace {

/// The standard and the CJK fonts, with which every list begins. They have no records of characters.
constexpr int kBuiltInFonts = 14 + 11;

}  // namespace

UnownedObjects::~UnownedObjects() {
  for (CPlaceable* object : m_objects) delete object;
  for (CFontCharMetricsInfo* character : m_characters) delete character;
}

void UnownedObjects::Collect(const CReportRootElement& report) {
  if (CReportDocument* document = report.GetReportDocument()) {
    CollectDefinedFormulas(*document);
    CollectCharacters(*document->GetFontHandler());
  }
  if (const CReportLayout* layout = report.GetReportLayout()) {
    CollectCellElements(*layout);
    CollectCharacters(*layout->GetFontHandler());
  }
}

// One that is placed as well is its zone's.
void UnownedObjects::CollectDefinedFormulas(CReportDocument& document) {
  for (int i = 0; i < document.GetReportZoneCount(); ++i) {
    const CReportZone* zone = document.GetReportZoneAt(i);
    for (int j = 0; zone != nullptr && j < zone->GetDefinedFormulaValueHoldersCount(); ++j) {
      m_objects.insert(zone->GetDefinedFormulaValueHolderAt(j));
    }
  }
  for (int i = 0; i < document.GetReportZoneCount(); ++i) {
    CReportZone* zone = document.GetReportZoneAt(i);
    for (int j = 0; zone != nullptr && j < zone->GetValueHolderCount(); ++j) {
      m_objects.erase(zone->GetValueHolderAt(j));
    }
    for (int j = 0; zone != nullptr && j < zone->GetTableCellCount(); ++j) {
      const CTableCell* cell = zone->GetTableCellAt(j);
      for (int k = 0; cell != nullptr && k < cell->GetCellElementCount(); ++k) {
        m_objects.erase(cell->GetCellElementAt(k));
      }
    }
  }
}

void UnownedObjects::CollectCellElements(const CReportLayout& layout) {
  for (int i = 0; i < layout.GetPageCount(); ++i) {
    CLayoutPage* page = layout.GetPageAt(i);
    for (int j = 0; page != nullptr && j < page->GetLayoutContentCount(); ++j) {
      const auto* cell = dynamic_cast<CTableCell*>(page->GetLayoutContentAt(j));
      for (int k = 0; cell != nullptr && k < cell->GetCellElementCount(); ++k) {
        m_objects.insert(cell->GetCellElementAt(k));
      }
    }
  }
}

void UnownedObjects::CollectCharacters(const CGlobalFontHandler& handler) {
  const CFonts& fonts = *handler.GetFonts();
  for (int i = kBuiltInFonts; i < fonts.GetFontCount(); ++i) {
    const CFontMetrics& metrics = *fonts.GetFontAt(i)->GetFontMetrics();
    for (int j = 0; j < metrics.GetFontCharMetricsCount(); ++j) {
      m_characters.insert(metrics.GetFontCharMetricsAt(j));
    }
  }
}

}  // namespace zebreport
