#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class CPlaceable;

namespace zeb {

/// Numbers the objects that a calculation meets, from 0 upwards, so that what it knows of them stands in vectors.
class ObjectNumbers {
 public:
  using Number = std::uint32_t;
  static constexpr Number kNone = UINT32_MAX;

  /// Makes room for so many objects.
  void Reserve(std::size_t count);
  /// The object's number; an object that is met for the first time gets the next one.
  Number Of(CPlaceable* object);
  CPlaceable* Object(Number number) const { return m_Objects[number]; }

 private:
  std::size_t SlotOf(const CPlaceable* object) const;
  void SetSlots(std::size_t slots);

  std::vector<CPlaceable*> m_Objects;  // observer
  std::vector<Number> m_Slots;         // a power of two, at least half of them free
};

/// The entry of a number in a vector, which grows as far as it must.
template <class T>
T& EntryOf(std::vector<T>& entries, ObjectNumbers::Number number) {
  if (number >= entries.size()) entries.resize(std::size_t{number} + 1);
  return entries[number];
}

}  // namespace zeb
