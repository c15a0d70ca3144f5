#pragma once

#include <cstddef>
#include <string_view>

// Numbers in a formula's text. Point and comma are both decimal marks, whatever the locale.
namespace zeb {

/// Length of the number at `pos`, 0 for none. A `-` at `pos` is skipped by the scan and not counted, and no digits are
/// taken right behind it, so that `-.5` has the length 2 and `-5` the length 0.
std::size_t FindNumber(std::wstring_view text, std::size_t pos);

/// The value of a text that FindNumber has measured, rounded to 14 decimals.
/// Keys: "DoubleExpected" if it holds no digit, "NumberTooLong" beyond the range of a double.
double ReadNumber(std::wstring_view number);

/// ReadNumber for the number at `pos`, which begins with a digit; its length comes with it.
double ReadNumberAt(std::wstring_view text, std::size_t pos, std::size_t& length);

}  // namespace zeb
