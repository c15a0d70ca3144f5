#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// Numbers in a formula's text.
namespace zeb {

/// Length of the number at `pos`, 0 for none. A `-` at `pos` is skipped by the scan and not counted, and no digits are
/// taken right behind it, so that `-.5` has the length 2 and `-5` the length 0.
std::size_t FindNumber(std::wstring_view text, std::size_t pos);

/// The value of a text that FindNumber has measured, rounded to 14 decimals.
/// Keys: "DoubleExpected" if it holds no digit, "NumberTooLong" beyond the range of a double.
double ReadNumber(std::wstring_view number);

/// Whether the locale's decimal point lets numbers with decimals be read as they stand. Asks the locale at most once.
class DecimalMark {
 public:
  bool IsPlain();

 private:
  enum class State : std::uint8_t { Unknown, Plain, Other };
  State m_state = State::Unknown;
};

/// ReadNumber for the number at `pos`, which begins with a digit; its length comes with it.
double ReadNumberAt(std::wstring_view text, std::size_t pos, DecimalMark& mark, std::size_t& length);

}  // namespace zeb
