#include "rtf/RTFProperties.h"

#include <cstddef>

const CRTFTabStops::Block& CRTFTabStops::Stops() const {
  static constexpr Block kZero{};
  return m_pStops ? *m_pStops : kZero;
}

const CRTFTabStop& CRTFTabStops::operator[](int index) const {
  return Stops()[static_cast<std::size_t>(index)];
}

CRTFTabStop& CRTFTabStops::operator[](int index) {
  if (m_pStops.use_count() != 1) m_pStops = std::make_shared<Block>(Stops());
  return (*m_pStops)[static_cast<std::size_t>(index)];
}

const CRTFTabStop* CRTFTabStops::begin() const { return Stops().data(); }
const CRTFTabStop* CRTFTabStops::end() const { return Stops().data() + kCount; }

bool CRTFTabStops::operator==(const CRTFTabStops& other) const {
  return m_pStops == other.m_pStops || Stops() == other.Stops();
}
