#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace zeb {

/// A hash table whose entries stand in one block of memory, for very many small entries that are never removed one by
/// one.
///
/// Keys that are close together are mostly asked for together: sixteen of them share a stretch of the table, so that a
/// walk through the objects of a report is a walk through the table as well. Stretches are spread by a number that nobody
/// can foresee, so that no choice of keys makes the search slow. The order of entries is seen nowhere.
/// @tparam Entry has `Key`, an int or a pointer, and `IsUsed`, false in a new entry
template <class Entry>
class EntryTable {
 public:
  using Key = decltype(Entry::Key);

  /// @return null if there is none; valid until the next insertion
  const Entry* Find(Key key) const {
    if (m_rgEntries.empty()) return nullptr;
    const Entry& entry = m_rgEntries[PlaceOf(key)];
    return entry.IsUsed ? &entry : nullptr;
  }

  /// Inserts an entry unless there is one with its key.
  /// @return the entry of that key, valid until the next insertion, and whether it is new
  std::pair<Entry*, bool> Insert(const Entry& entry) {
    if (2 * (m_iCount + 1) > m_rgEntries.size()) Grow();
    Entry& place = m_rgEntries[PlaceOf(entry.Key)];
    if (place.IsUsed) return {&place, false};
    place = entry;
    place.IsUsed = true;
    ++m_iCount;
    return {&place, true};
  }

  void Clear() {
    m_rgEntries.clear();
    m_iCount = 0;
  }

 private:
  static constexpr std::size_t kLeast = 64;    // a power of two
  static constexpr std::size_t kStretch = 16;  // a power of two

  static std::uint64_t NumberOf(int key) { return static_cast<std::uint32_t>(key); }
  /// Objects of the model take about 64 bytes and more.
  static std::uint64_t NumberOf(const void* key) {
    return static_cast<std::uint64_t>(std::bit_cast<std::uintptr_t>(key)) / 64;
  }

  /// The finalizer of MurmurHash3: every bit of the number moves every bit of the result.
  static std::uint64_t Mix(std::uint64_t number) {
    number ^= number >> 33;
    number *= 0xFF51AFD7ED558CCDULL;
    number ^= number >> 33;
    number *= 0xC4CEB9FE1A85EC53ULL;
    number ^= number >> 33;
    return number;
  }

  /// Where the key's entry stands or is to stand. At least half of the table is free.
  std::size_t PlaceOf(Key key) const {
    const std::uint64_t number = NumberOf(key);
    const std::uint64_t start = Mix(m_uiSeed ^ (number / kStretch)) * kStretch + number % kStretch;
    const std::size_t last = m_rgEntries.size() - 1;
    std::size_t place = static_cast<std::size_t>(start) & last;
    while (m_rgEntries[place].IsUsed && m_rgEntries[place].Key != key) place = (place + 1) & last;
    return place;
  }

  void Grow() {
    if (m_rgEntries.empty()) m_uiSeed = Mix(std::random_device()());
    std::vector<Entry> smaller(m_rgEntries.empty() ? kLeast : 2 * m_rgEntries.size());
    smaller.swap(m_rgEntries);
    for (const Entry& entry : smaller) {
      if (entry.IsUsed) m_rgEntries[PlaceOf(entry.Key)] = entry;
    }
  }

  std::vector<Entry> m_rgEntries;  // a power of two
  std::size_t m_iCount = 0;
  std::uint64_t m_uiSeed = 0;
};

}  // namespace zeb
