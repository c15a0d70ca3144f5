#include "foundation/Rounding.h"

#include "foundation/AmountDigits.h"
#include "foundation/RoundToDigits.h"
#include "foundation/ValueConversion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cwchar>

namespace {

// At most 309 integer digits with 15 decimals, or 338 decimals behind a zero; then sign, mark and NUL.
constexpr std::size_t kTextSize = 400;

std::wstring PrintFixed(double value, int decimals) {
  std::array<wchar_t, kTextSize> text{};
  std::swprintf(text.data(), text.size(), L"%.*f", decimals, value);
  return text.data();
}

// Decimals that make 15 significant digits.
int DecimalsOfFullPrecision(double value) {
  const double order = std::ceil(std::log10(std::fabs(value)));
  // Fixed behaviour: above 1E15 there are 15 decimals again; zero, NaN and infinities have no order.
  if (!std::isfinite(order) || order > 15.0) return 15;
  return 15 - static_cast<int>(order);
}

double RoundUp(double value, double scale) {
  const double upper = std::ceil(value * scale) / scale;
  return value > upper ? upper + value * 1e-15 : upper;
}

double RoundDown(double value, double scale) {
  const double lower = std::floor(value * scale) / scale;
  return lower > value ? lower - value * 1e-15 : lower;
}

// 10 to the power of `places`: from 0 to 22 these are exact, and the same as those of the standard library.
double Scale(double places) {
  constexpr std::array<double, 23> kExact = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                             1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                             1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  if (places >= 0.0 && places <= 22.0) return kExact[static_cast<std::size_t>(places)];
  return std::pow(10.0, places);
}

double RoundPositive(double value, int digits, int mode, bool decimalPlaces) {
  if (std::isinf(value)) return value;
  const double places = decimalPlaces ? digits : digits - std::ceil(std::log10(value));
  const double scale = Scale(places);
  if (value > 1e16 / scale) return value;
  const double lower = RoundDown(value, scale);
  const double upper = RoundUp(value, scale);
  // Fixed behaviour: a value that counts as rounded stays as it came, in every mode.
  if (value > lower - value * 1e-14 && lower + value * 1e-14 > value) return value;
  switch (mode) {
    case 0:
      return upper;
    case 1:
      return upper - value - 1e-14 * value > value - lower ? lower : upper;
    case 2:
      return lower;
    default:
      return 0.0;
  }
}

// The integer digits of `text` (its first `length` characters), grouped by threes from the right.
std::wstring Group(const std::wstring& text, std::size_t length, wchar_t separator) {
  const auto isDigit = [](wchar_t c) { return c >= L'0' && c <= L'9'; };
  std::wstring reversed(text.rbegin(), text.rend() - static_cast<std::ptrdiff_t>(length));
  int counter = 1;
  std::size_t at = length;
  while (at > 1) {
    --at;
    if (!isDigit(text[at])) {
      ++at;
      break;
    }
    reversed += text[at];
    if (counter >= 3 && isDigit(text[at - 1])) {
      reversed += separator;
      counter = 0;
    }
    ++counter;
  }
  reversed.append(text.rend() - static_cast<std::ptrdiff_t>(at), text.rend());
  return {reversed.rbegin(), reversed.rend()};
}

}  // namespace

std::wstring DoubleToStringFullPrecision(double value) {
  std::wstring text = PrintFixed(value, DecimalsOfFullPrecision(value));
  if (text.find_first_of(L".,") == std::wstring::npos) return text;
  while (!text.empty() && text.back() == L'0') text.pop_back();
  if (!text.empty() && (text.back() == L',' || text.back() == L'.')) text.pop_back();
  return text;
}

void FormatDouble(double value, int digits, wchar_t* buffer, wchar_t decimalSeparator,
                  wchar_t thousandsSeparator) {
  DoubleToStringFormat(zeb::RoundToDigits(value, digits), buffer, digits);
  std::wstring text = buffer;
  std::size_t mark = text.rfind(L'.');
  if (mark == std::wstring::npos || mark == 0) {
    // Fixed behaviour: under a locale with a comma, grouping begins in the decimals, where the comma stops it.
    mark = text.size();
  } else {
    text[mark] = decimalSeparator;
  }
  text = Group(text, mark, thousandsSeparator);
  *std::copy(text.begin(), text.end(), buffer) = L'\0';
}

double ReFormatDouble(const wchar_t* text, wchar_t decimalSeparator, wchar_t thousandsSeparator) {
  if (text == nullptr || *text == L'\0') return 0.0;
  std::wstring number = text;
  std::size_t mark = number.rfind(decimalSeparator);
  if (mark == std::wstring::npos || mark == 0) {
    mark = number.size();
  } else {
    number[mark] = L'.';
  }
  const auto integerEnd = number.begin() + static_cast<std::ptrdiff_t>(mark);
  number.erase(std::remove(number.begin(), integerEnd, thousandsSeparator), integerEnd);
  return StringToDouble(number.c_str());
}

double RundeDouble(double value, int digits, int mode, bool decimalPlaces) {
  if (std::isnan(value) || value == 0.0) return 0.0;
  if (value > 0.0) return RoundPositive(value, digits, mode, decimalPlaces);
  if (mode < 0 || mode > 2) return 0.0;
  // Towards plus infinity for the negative number is towards minus infinity for its magnitude, and the reverse.
  return -RoundPositive(-value, digits, 2 - mode, decimalPlaces);
}

std::wstring NumberToText(double value) {
  const std::wstring text = PrintFixed(value, 5);
  const CSetLocaleSwitch numbers;
  return zeb::AmountDigitsToText(text, true);
}
