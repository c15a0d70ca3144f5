#include "rtf/RTFListIndex.h"

namespace zeb {

void RTFListIndex::Append(const CRTFListTableEntry* entry, std::size_t position) {
  // An entry may stand at several positions, of which only the first can be found.
  const int number = (entry->*m_GetNumber)();
  if (m_Places.emplace(entry, Place{position, number}).second) m_Positions[number].insert(position);
}

void RTFListIndex::ChangeNumber(const CRTFListTableEntry* entry) {
  const auto known = m_Places.find(entry);
  if (known == m_Places.end()) return;
  Place& place = known->second;
  const auto before = m_Positions.find(place.number);
  before->second.erase(place.position);
  if (before->second.empty()) m_Positions.erase(before);
  place.number = (entry->*m_GetNumber)();
  m_Positions[place.number].insert(place.position);
}

std::optional<std::size_t> RTFListIndex::Find(const std::vector<CRTFListTableEntry*>& entries, int number) {
  for (; m_Known < entries.size(); ++m_Known) Append(entries[m_Known], m_Known);
  const auto known = m_Positions.find(number);
  if (known == m_Positions.end()) return std::nullopt;
  return *known->second.begin();
}

}  // namespace zeb
