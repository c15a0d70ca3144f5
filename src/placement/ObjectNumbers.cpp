#include "placement/ObjectNumbers.h"

namespace zeb {
namespace {

constexpr std::size_t kFirstSlots = 64;

// Addresses differ mostly in their middle bits: the multiplication spreads them over the upper ones.
std::size_t Spread(const CPlaceable* object) {
  constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15U;
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): an address as a number
  const auto address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(object));
  return static_cast<std::size_t>((address * kGoldenRatio) >> 32U);
}

}  // namespace

ObjectNumbers::Number ObjectNumbers::Of(CPlaceable* object) {
  if (m_Slots.size() < 2 * (m_Objects.size() + 1)) Grow();
  Number& slot = m_Slots[SlotOf(object)];
  if (slot == kNone) {
    slot = static_cast<Number>(m_Objects.size());
    m_Objects.push_back(object);
  }
  return slot;
}

std::size_t ObjectNumbers::SlotOf(const CPlaceable* object) const {
  const std::size_t mask = m_Slots.size() - 1;
  std::size_t slot = Spread(object) & mask;
  while (m_Slots[slot] != kNone && m_Objects[m_Slots[slot]] != object) slot = (slot + 1) & mask;
  return slot;
}

void ObjectNumbers::Grow() {
  m_Slots.assign(m_Slots.empty() ? kFirstSlots : 2 * m_Slots.size(), kNone);
  for (std::size_t number = 0; number < m_Objects.size(); ++number) {
    m_Slots[SlotOf(m_Objects[number])] = static_cast<Number>(number);
  }
}

}  // namespace zeb
