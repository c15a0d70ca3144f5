#pragma once

#include <cstddef>
#include <cstring>

namespace zebtest {

/// The place of a virtual operation in its class's table: a pointer to it holds the offset plus 1. A virtual destructor
/// takes two places.
template <class Member>
std::size_t VirtualSlot(Member member) {
  std::size_t offset = 0;
  std::memcpy(&offset, &member, sizeof(offset));
  return (offset - 1) / sizeof(void*);
}

}  // namespace zebtest
