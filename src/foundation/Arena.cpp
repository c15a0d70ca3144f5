#include "foundation/Arena.h"

#include <algorithm>

namespace zeb {

namespace {
constexpr std::size_t kFirstBlock = 8192;
constexpr std::size_t kLargestBlock = 1048576;
}  // namespace

void* Arena::AllocateBlock(std::size_t size) {
  const std::size_t next = std::clamp(m_iSize * 2, kFirstBlock, kLargestBlock);
  // Something large gets a block of its own, so that what is left of the present one is not lost.
  const bool isLarge = size > next / 4;
  auto block = std::make_unique_for_overwrite<std::byte[]>(isLarge ? size : next);
  std::byte* result = block.get();
  m_rgpBlocks.push_back(std::move(block));
  if (!isLarge) {
    m_pBlock = result;
    m_iSize = next;
    m_iUsed = size;
  }
  return result;
}

void Arena::Shrink(const void* allocation, std::size_t size, std::size_t unused) {
  if (m_iUsed >= size && allocation == m_pBlock + (m_iUsed - size)) m_iUsed -= unused;
}

}  // namespace zeb
