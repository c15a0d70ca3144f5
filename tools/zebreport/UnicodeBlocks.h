#pragma once

#include <span>

namespace zebreport {

/// A named range of characters.
struct UnicodeBlock {
  int first;
  int last;
  const wchar_t* name;
};

/// The blocks of the basic plane in ascending order.
std::span<const UnicodeBlock> UnicodeBlocks();

}  // namespace zebreport
