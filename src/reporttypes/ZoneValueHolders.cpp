#include "model/ReportZone.h"
#include "reporttypes/AvailableValueHolderBase.h"

// What a zone offers to suppliers of values. It stands here since the zone itself knows suppliers by name only.

void CReportZone::AddAvailableValueHolder(CAvailableValueHolderBase* valueHolder) {
  m_mapAvailableValueHolders.emplace(valueHolder->GetInternalKey(), valueHolder);
}

CAvailableValueHolderBase* CReportZone::GetAvailableValueHolder(const wchar_t* key) const {
  const auto found = m_mapAvailableValueHolders.find(key);
  return found == m_mapAvailableValueHolders.end() ? nullptr : found->second;
}
