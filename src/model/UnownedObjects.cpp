#include "model/UnownedObjects.h"

#include "fonts/FontRecords.h"
#include "model/FormulaValueHolder.h"
#include "model/LayoutPage.h"
#include "model/ObjectBinding.h"
#include "model/ReportDocument.h"
#include "model/ReportLayout.h"
#include "model/ReportRootElement.h"
#include "model/ReportZone.h"
#include "model/TableCell.h"

#include <unordered_set>

namespace zeb {

namespace {

void DeleteCellElements(CLayoutPage& page) {
  for (int i = 0; i < page.GetLayoutContentCount(); ++i) {
    const auto* cell = dynamic_cast<CTableCell*>(page.GetLayoutContentAt(i));
    if (cell == nullptr) continue;
    for (int j = 0; j < cell->GetCellElementCount(); ++j) delete cell->GetCellElementAt(j);
  }
}

/// The formulas that zones define: they are the caller's.
std::unordered_set<const CPlaceable*> DefinedFormulas(CReportDocument* document) {
  std::unordered_set<const CPlaceable*> formulas;
  for (int i = 0; document != nullptr && i < document->GetReportZoneCount(); ++i) {
    const CReportZone* zone = document->GetReportZoneAt(i);
    for (int j = 0; zone != nullptr && j < zone->GetDefinedFormulaValueHoldersCount(); ++j) {
      formulas.insert(zone->GetDefinedFormulaValueHolderAt(j));
    }
  }
  return formulas;
}

}  // namespace

UnownedObjects::~UnownedObjects() {
  const auto defined = DefinedFormulas(m_Root.GetReportDocument());
  for (const BoundObject& object : IDBinding(m_IDs).UnownedNamedByRelations()) {
    auto* placeable = static_cast<CPlaceable*>(object.Object);
    if (object.Tag == kPlaceableTag && !defined.contains(placeable)) {
      CReportRootElement::AddDeletableObject(placeable);
    }
  }
}

LayoutInReading::LayoutInReading() : m_pLayout(std::make_unique<CReportLayout>()) {}

LayoutInReading::~LayoutInReading() {
  if (m_pLayout == nullptr) return;
  for (int i = 0; i < m_pLayout->GetPageCount(); ++i) DeleteCellElements(*m_pLayout->GetPageAt(i));
  FreeCharacters(*m_pLayout->GetFontHandler());
}

}  // namespace zeb
