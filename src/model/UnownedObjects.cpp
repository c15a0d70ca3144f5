#include "model/UnownedObjects.h"

#include "model/LayoutPage.h"
#include "model/ObjectBinding.h"
#include "model/ReportLayout.h"
#include "model/ReportRootElement.h"
#include "model/TableCell.h"

namespace zeb {

namespace {

void DeleteCellElements(CLayoutPage& page) {
  for (int i = 0; i < page.GetLayoutContentCount(); ++i) {
    const auto* cell = dynamic_cast<CTableCell*>(page.GetLayoutContentAt(i));
    if (cell == nullptr) continue;
    for (int j = 0; j < cell->GetCellElementCount(); ++j) delete cell->GetCellElementAt(j);
  }
}

}  // namespace

UnownedObjects::~UnownedObjects() {
  for (const BoundObject& object : IDBinding(m_IDs).UnownedNamedByRelations()) {
    if (object.Tag == kPlaceableTag) {
      CReportRootElement::AddDeletableObject(static_cast<CPlaceable*>(object.Object));
    }
  }
}

LayoutInReading::LayoutInReading() : m_pLayout(std::make_unique<CReportLayout>()) {}

LayoutInReading::~LayoutInReading() {
  if (m_pLayout == nullptr) return;
  for (int i = 0; i < m_pLayout->GetPageCount(); ++i) DeleteCellElements(*m_pLayout->GetPageAt(i));
}

}  // namespace zeb
