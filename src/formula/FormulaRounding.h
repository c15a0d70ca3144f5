#pragma once

#include "foundation/Rounding.h"

#include <cstdint>

namespace zeb {

/// The rounding of every intermediate value: RundeDouble(value, 14, 1, true), bit for bit.
inline double RoundTo14Decimals(double value) {
  // From 2 upwards that gives the value itself: the next value below on the grid of 1e-14 lies nearer than 1e-14, and
  // all that is nearer than 1e-14 times the value counts as rounded.
  if (value >= 2.0 || value <= -2.0) return value;
  // So does what is near the next value below.
  const double magnitude = value < 0.0 ? -value : value;
  if (magnitude > 0.0) {
    const double lower = static_cast<double>(static_cast<std::int64_t>(magnitude * 1e14)) / 1e14;
    if (lower <= magnitude && lower + magnitude * 1e-14 > magnitude) return value;
  }
  return RundeDouble(value, 14, 1, true);
}

}  // namespace zeb
