#pragma once

namespace zeb {

/// Rounds for display, to the nearest, with ties away from zero. The rounding of FormatDouble alone.
/// @param digits decimal places; a negative count rounds to an integer
double RoundToDigits(double value, int digits);

}  // namespace zeb
