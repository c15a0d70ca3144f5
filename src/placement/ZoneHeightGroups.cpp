#include "model/ReportZone.h"

#include "placement/AdjustHeightElements.h"
#include "placement/HeightGroupIndex.h"

void CReportZone::AddHeightElements(CPlaceable* element, CPlaceable* reference) {
  // Fixed behaviour: groups are never merged; an object that stands in a later group may come into this one too.
  m_pHeightGroupIndex->Join(m_rgpHeightElements, element, reference);
}

void CReportZone::ClearHeightElements() {
  for (const CAdjustHeightElements* group : m_rgpHeightElements) delete group;
  m_rgpHeightElements.clear();
  m_pHeightGroupIndex->Clear();
}

CAdjustHeightElements* CReportZone::GetHeightElementsAt(int index) const {
  return m_rgpHeightElements[static_cast<std::size_t>(index)];
}

int CReportZone::GetHeightElementsCount() const { return static_cast<int>(m_rgpHeightElements.size()); }

float CReportZone::GetMaxHeightOfElement(CPlaceable* element) {
  const int group = m_pHeightGroupIndex->FirstGroupOf(m_rgpHeightElements, element);
  return group == zeb::HeightGroupIndex::kNoGroup ? 0.0F : GetHeightElementsAt(group)->GetMaxHeight();
}
