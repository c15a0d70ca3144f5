#include "UnownedObjects.h"

namespace zebreport {

UnownedObjects::~UnownedObjects() {
  for (CPlaceable* object : m_objects) delete object;
}

void UnownedObjects::Collect(const CReportRootElement& report) {
  if (report.GetReportDocument() != nullptr) CollectDefinedFormulas(*report.GetReportDocument());
  if (report.GetReportLayout() != nullptr) CollectCellElements(*report.GetReportLayout());
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

}  // namespace zebreport
