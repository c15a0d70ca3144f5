#include "placement/HeightGroupIndex.h"

#include "placement/AdjustHeightElements.h"

#include <algorithm>
#include <cstddef>

namespace zeb {

int HeightGroupIndex::FirstGroupOf(const Groups& groups, const CPlaceable* object) {
  if (*m_pChangeCount != m_KnownChanges) Refresh(groups);
  const auto found = m_FirstGroups.find(object);
  return found == m_FirstGroups.end() ? kNoGroup : found->second;
}

void HeightGroupIndex::Join(Groups& groups, CPlaceable* element, CPlaceable* reference) {
  const int ofElement = FirstGroupOf(groups, element);
  const int ofReference = FirstGroupOf(groups, reference);
  if (ofElement == kNoGroup && ofReference == kNoGroup) {
    AddGroup(groups);
    const int group = static_cast<int>(groups.size()) - 1;
    Take(groups, group, element);
    if (reference != element) Take(groups, group, reference);
  } else if (ofReference == kNoGroup || (ofElement != kNoGroup && ofElement < ofReference)) {
    // The reference may stand in a later group: it then stands in two, as groups are never merged.
    Take(groups, ofElement, reference);
  } else if (ofElement != ofReference) {
    Take(groups, ofReference, element);
  }
}

void HeightGroupIndex::AddGroup(Groups& groups) {
  groups.push_back(new CAdjustHeightElements);
  groups.back()->m_pChangeCount = m_pChangeCount;
}

void HeightGroupIndex::AddNewElement(CAdjustHeightElements& group, CPlaceable* object) {
  group.AppendNewElement(object);
}

void HeightGroupIndex::Clear() {
  m_FirstGroups.clear();
  m_KnownChanges = *m_pChangeCount;
}

void HeightGroupIndex::Refresh(const Groups& groups) {
  m_FirstGroups.clear();
  for (std::size_t index = 0; index < groups.size(); ++index) {
    if (groups[index] == nullptr) continue;
    for (const CPlaceable* object : groups[index]->m_rgpElements) {
      m_FirstGroups.emplace(object, static_cast<int>(index));
    }
  }
  m_KnownChanges = *m_pChangeCount;
}

void HeightGroupIndex::Take(const Groups& groups, int group, CPlaceable* object) {
  groups[static_cast<std::size_t>(group)]->AppendNewElement(object);
  m_FirstGroups[object] = group;
  m_KnownChanges = *m_pChangeCount;
}

}  // namespace zeb
