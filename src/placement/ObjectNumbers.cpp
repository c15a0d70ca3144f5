#include "placement/ObjectNumbers.h"

#include <algorithm>
#include <bit>

namespace zeb {
namespace {

constexpr std::size_t kFirstSlots = 64;

// Objects that were made one after the other mostly stand near each other and are looked for one after the other: what
// lies in one page of memory has its slots side by side, and the multiplication scatters the pages.
std::size_t Spread(const CPlaceable* object) {
  constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15U;
  constexpr unsigned kPageBits = 12;
  constexpr unsigned kObjectBits = 6;
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): an address as a number
  const auto address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(object));
  const std::uint64_t page = ((address >> kPageBits) * kGoldenRatio) >> 32U;
  const std::uint64_t inPage = (address & ((std::uint64_t{1} << kPageBits) - 1)) >> kObjectBits;
  return static_cast<std::size_t>(page + inPage);
}

}  // namespace

void ObjectNumbers::Reserve(std::size_t count) {
  m_Objects.reserve(count);
  const std::size_t slots = std::bit_ceil(2 * (count + 1));
  if (slots > m_Slots.size()) SetSlots(slots);
}

ObjectNumbers::Number ObjectNumbers::Of(CPlaceable* object) {
  if (m_Slots.size() < 2 * (m_Objects.size() + 1)) SetSlots(std::max(kFirstSlots, 2 * m_Slots.size()));
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

void ObjectNumbers::SetSlots(std::size_t slots) {
  m_Slots.assign(slots, kNone);
  for (std::size_t number = 0; number < m_Objects.size(); ++number) {
    m_Slots[SlotOf(m_Objects[number])] = static_cast<Number>(number);
  }
}

}  // namespace zeb
