#include "placement/AdjustHeightElements.h"

#include "placement/PointerIndex.h"

CAdjustHeightElements::CAdjustHeightElements() : m_pChangeCount(std::make_shared<std::uint64_t>(0)) {}

CAdjustHeightElements::CAdjustHeightElements(const CAdjustHeightElements& other)
    : m_rgpElements(other.m_rgpElements),
      m_mapIndex(other.m_mapIndex),
      m_fMaxHeight(other.m_fMaxHeight),
      m_pChangeCount(std::make_shared<std::uint64_t>(0)) {}

CAdjustHeightElements::~CAdjustHeightElements() = default;

CAdjustHeightElements& CAdjustHeightElements::operator=(const CAdjustHeightElements& other) {
  if (this == &other) return *this;
  m_rgpElements = other.m_rgpElements;
  m_mapIndex = other.m_mapIndex;
  m_fMaxHeight = other.m_fMaxHeight;
  ++*m_pChangeCount;
  return *this;
}

void CAdjustHeightElements::AddElement(CPlaceable* element) {
  if (FindElementIndex(element) < 0) AppendNewElement(element);
}

int CAdjustHeightElements::FindElementIndex(CPlaceable* element) {
  zeb::ExtendPointerIndex(m_rgpElements, m_mapIndex);
  return zeb::FindPointer(m_rgpElements, m_mapIndex, element);
}

CPlaceable* CAdjustHeightElements::GetElementAt(int index) const {
  return m_rgpElements[static_cast<std::size_t>(index)];
}

int CAdjustHeightElements::GetElementCount() const { return static_cast<int>(m_rgpElements.size()); }

void CAdjustHeightElements::SetElementHeight(CPlaceable* element, float height) {
  if (FindElementIndex(element) >= 0 && height > m_fMaxHeight) m_fMaxHeight = height;
}

float CAdjustHeightElements::GetMaxHeight() const { return m_fMaxHeight; }

void CAdjustHeightElements::AppendNewElement(CPlaceable* element) {
  m_rgpElements.push_back(element);
  ++*m_pChangeCount;
}
