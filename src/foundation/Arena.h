#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

namespace zeb {

/// Memory for many small things that end together. Nothing is freed before the arena is, and no destructor is called.
class Arena {
 public:
  Arena() = default;
  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;

  /// @param alignment a power of two, at most that of std::max_align_t
  /// @throws std::bad_alloc
  void* Allocate(std::size_t size, std::size_t alignment) {
    const std::size_t padding = (alignment - m_iUsed % alignment) % alignment;
    if (padding > m_iSize - m_iUsed || size > m_iSize - m_iUsed - padding) return AllocateBlock(size);
    std::byte* result = m_pBlock + m_iUsed + padding;
    m_iUsed += padding + size;
    return result;
  }

  /// An object that needs no destruction.
  template <class T, class... Arguments>
  T* Make(Arguments&&... arguments) {
    return ::new (Allocate(sizeof(T), alignof(T))) T(std::forward<Arguments>(arguments)...);
  }

  template <class T>
  T* AllocateArray(std::size_t count) {
    constexpr std::size_t kItem =
        sizeof(T);  // NOLINT(bugprone-sizeof-expression): arrays of pointers are meant
    if (count > static_cast<std::size_t>(-1) / kItem) throw std::bad_array_new_length();
    return static_cast<T*>(Allocate(count * kItem, alignof(T)));
  }

  /// Gives back the end of the youngest allocation.
  /// @param unused bytes that were not needed
  void Shrink(const void* allocation, std::size_t size, std::size_t unused);

  /// A copy, terminated by a zero.
  template <class Character>
  Character* CopyText(std::basic_string_view<Character> text) {
    Character* copy = AllocateArray<Character>(text.size() + 1);
    text.copy(copy, text.size());
    copy[text.size()] = Character();
    return copy;
  }

 private:
  void* AllocateBlock(std::size_t size);

  std::vector<std::unique_ptr<std::byte[]>> m_rgpBlocks;  // owned
  std::byte* m_pBlock = nullptr;                          // observer: the block that is being filled
  std::size_t m_iSize = 0;
  std::size_t m_iUsed = 0;
};

}  // namespace zeb
