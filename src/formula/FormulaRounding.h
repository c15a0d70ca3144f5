#pragma once

#include "foundation/Rounding.h"

namespace zeb {

/// The rounding of every intermediate value: RundeDouble(value, 14, 1, true), bit for bit.
///
/// From 2 upwards that rounding gives the value itself: the next value below on the grid of 1e-14 lies nearer than
/// 1e-14, and the tolerance of 1e-14 times the value counts all that as rounded already.
inline double RoundTo14Decimals(double value) {
  if (value >= 2.0 || value <= -2.0) return value;
  return RundeDouble(value, 14, 1, true);
}

}  // namespace zeb
