#include "formula/FormulaNumber.h"

#include "formula/FormulaErrors.h"
#include "formula/FormulaRounding.h"
#include "foundation/ErrorKeys.h"
#include "foundation/ValueConversion.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

namespace zeb {

namespace {

constexpr bool IsNumberDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

constexpr bool IsMark(wchar_t c) { return c == L'.' || c == L','; }

std::size_t DigitRun(std::wstring_view text, std::size_t pos) {
  std::size_t end = pos;
  while (end < text.size() && IsNumberDigit(text[end])) ++end;
  return end - pos;
}

/// The parts of a number without its sign.
struct Literal {
  std::wstring_view whole;
  std::wstring_view decimals;
};

Literal Split(std::wstring_view text) {
  Literal literal;
  literal.whole = text.substr(0, DigitRun(text, 0));
  const std::size_t mark = literal.whole.size();
  if (mark < text.size() && IsMark(text[mark]))
    literal.decimals = text.substr(mark + 1, DigitRun(text, mark + 1));
  return literal;
}

/// Powers of ten that a double holds exactly.
constexpr std::array<double, 23> kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Digits that surely fit a 64-bit integer that a double holds exactly.
constexpr std::size_t kExactDigits = 15;

std::uint64_t AppendDigits(std::uint64_t number, std::wstring_view digits) {
  for (const wchar_t digit : digits) number = number * 10 + static_cast<std::uint64_t>(digit - L'0');
  return number;
}

/// The nearest double to a number of any length.
double NearestDouble(const Literal& literal) {
  std::string text;
  text.reserve(literal.whole.size() + literal.decimals.size() + 2);
  text.push_back('0');
  for (const wchar_t digit : literal.whole) text.push_back(static_cast<char>(digit));
  text.push_back('.');
  for (const wchar_t digit : literal.decimals) text.push_back(static_cast<char>(digit));

  double value = 0.0;
  const auto result =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (result.ec != std::errc::result_out_of_range) return value;
  const bool tooSmall =
      std::all_of(literal.whole.begin(), literal.whole.end(), [](wchar_t c) { return c == L'0'; });
  return tooSmall ? 0.0 : std::numeric_limits<double>::infinity();
}

double Value(const Literal& literal) {
  const std::size_t digits = literal.whole.size() + literal.decimals.size();
  if (digits > kExactDigits) return NearestDouble(literal);
  // One division of two exact numbers gives the nearest double, as the standard library's scan does.
  const std::uint64_t number = AppendDigits(AppendDigits(0, literal.whole), literal.decimals);
  return static_cast<double>(number) / kPowersOfTen[literal.decimals.size()];
}

}  // namespace

std::size_t FindNumber(std::wstring_view text, std::size_t pos) {
  if (pos >= text.size()) return 0;
  const std::size_t skipped = text[pos] == L'-' ? 1 : 0;
  const std::size_t whole = DigitRun(text, pos);
  const std::size_t mark = pos + skipped + whole;
  if (mark >= text.size() || !IsMark(text[mark])) return whole;
  return whole + 1 + DigitRun(text, mark + 1);
}

double ReadNumber(std::wstring_view number) {
  const bool negative = !number.empty() && number.front() == L'-';
  const Literal literal = Split(number.substr(negative ? 1 : 0));
  if (literal.whole.empty() && literal.decimals.empty()) ThrowFormulaError(ErrorKeys::DoubleExpected);
  const double magnitude = Value(literal);
  const double value = negative ? -magnitude : magnitude;
  if (CheckDouble(value) != 0) ThrowFormulaError(ErrorKeys::NumberTooLong);
  return RoundTo14Decimals(value);
}

double ReadNumberAt(std::wstring_view text, std::size_t pos, std::size_t& length) {
  // A usual number is short enough to be read exactly and to be divided in one step.
  const std::size_t limit = std::min(text.size(), pos + kExactDigits);
  std::size_t end = pos + DigitRun(text.substr(0, limit), pos);
  std::uint64_t number = AppendDigits(0, text.substr(pos, end - pos));
  const bool hasMark = end < limit && IsMark(text[end]);
  std::size_t decimals = 0;
  if (hasMark) {
    decimals = DigitRun(text.substr(0, limit), end + 1);
    number = AppendDigits(number, text.substr(end + 1, decimals));
    end += 1 + decimals;
  }
  if (end == text.size() || !(IsNumberDigit(text[end]) || (!hasMark && IsMark(text[end])))) {
    length = end - pos;
    return RoundTo14Decimals(static_cast<double>(number) / kPowersOfTen[decimals]);
  }
  length = FindNumber(text, pos);
  return ReadNumber(text.substr(pos, length));
}

}  // namespace zeb
