#include "placement/Predecessors.h"

#include "placement/PointerIndex.h"

CPredecessors::CPredecessors() = default;
CPredecessors::CPredecessors(const CPredecessors& other) = default;
CPredecessors::~CPredecessors() = default;
CPredecessors& CPredecessors::operator=(const CPredecessors& other) = default;

void CPredecessors::AddPredecessor(CPlaceable* predecessor) {
  if (GetIndex(predecessor) >= 0) return;
  m_rgpPredecessors.push_back(predecessor);
  zeb::ExtendPointerIndex(m_rgpPredecessors, m_mapIndex);
}

int CPredecessors::GetIndex(CPlaceable* predecessor) const {
  return zeb::FindPointer(m_rgpPredecessors, m_mapIndex, predecessor);
}

CPlaceable* CPredecessors::GetPredecessorAt(int index) const {
  return m_rgpPredecessors[static_cast<std::size_t>(index)];
}

int CPredecessors::GetPredecessorCount() const { return static_cast<int>(m_rgpPredecessors.size()); }

void CPredecessors::ClearPredecessors() {
  m_rgpPredecessors.clear();
  m_mapIndex.clear();
}
