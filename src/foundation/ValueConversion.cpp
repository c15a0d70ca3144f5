#include "foundation/ValueConversion.h"

#include "platform/NumericLocale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cwchar>
#include <iterator>
#include <system_error>

// Files hold a number for nearly every field, so the conversions that files use answer the plain cases
// themselves and leave every other one to the print and scan family. A short cut is taken only where its
// result is the same by construction: exact integer arithmetic, or a correctly rounded conversion of a text
// without any frills.

namespace {

// Sign, 309 integer digits, the mark, 6 decimals, NUL.
constexpr std::size_t kFixedSize = 350;
// Every double is a multiple of 2^-1074: no decimal behind the 1074th is anything but 0.
constexpr int kMaxDecimals = 1074;

bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

bool IsSign(wchar_t c) { return c == L'+' || c == L'-'; }

// Asked at each use, as the host may change the locale between any two conversions.
bool IsPointTheDecimalMark() {
  const char* mark = std::localeconv()->decimal_point;
  return mark[0] == '.' && mark[1] == '\0';
}

// Reads [sign] and 1 to 9 digits that end in the text's end or in an ASCII character: no scan family goes on
// there or knows another value.
bool ScanPlainInt(const wchar_t* text, int& value) {
  const bool negative = *text == L'-';
  if (IsSign(*text)) ++text;
  const wchar_t* const begin = text;
  int magnitude = 0;
  for (; IsDigit(*text); ++text) {
    if (text - begin == 9) return false;
    magnitude = magnitude * 10 + static_cast<int>(*text - L'0');
  }
  if (text == begin || static_cast<std::uint32_t>(*text) > 0x7FU) return false;
  value = negative ? -magnitude : magnitude;
  return true;
}

// Reads [sign] digits [. digits] that are the whole text. Overflow and underflow are left to the scan family.
template <typename Number>
bool ScanPlainNumber(const wchar_t* text, Number& value) {
  std::array<char, 48> narrow;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled as far as it is read
  std::size_t length = 0;
  if (*text == L'-') narrow[length++] = '-';
  if (IsSign(*text)) ++text;
  if (!IsDigit(*text)) return false;
  bool hasMark = false;
  for (; *text != L'\0'; ++text) {
    if (length == narrow.size()) return false;
    if (*text == L'.' && !hasMark) {
      hasMark = true;
    } else if (!IsDigit(*text)) {
      return false;
    }
    narrow[length++] = static_cast<char>(*text);
  }
  if (hasMark && !IsPointTheDecimalMark()) return false;
  Number scanned = 0;
  const char* const end = narrow.data() + length;
  const auto [stop, error] = std::from_chars(narrow.data(), end, scanned, std::chars_format::fixed);
  if (error != std::errc() || stop != end) return false;
  value = scanned;
  return true;
}

void CutTrailingZeros(wchar_t* text) {
  wchar_t* const point = std::wcschr(text, L'.');
  if (point == nullptr) return;
  wchar_t* const end = point + std::wcslen(point);
  wchar_t* keep = point + 2;
  if (keep >= end) return;
  for (const wchar_t* at = keep; at != end; ++at) {
    if (*at != L'0') keep = point + (at - point) + 1;
  }
  *keep = L'\0';
}

void Append(const char* begin, const char* end, wchar_t*& out) {
  out = std::transform(begin, end, out, [](char c) { return static_cast<wchar_t>(c); });
}

// Writes six decimals of a value that fits in 64 bits when it is counted in millionths.
// The product is exact (24 bits of the float, 14 of the odd part of a million), so that the only rounding is
// the one to the nearest millionth, under the same rounding rule as that of the print family.
bool PrintPlainFloat(float value, wchar_t* buffer) {
  constexpr double kLimit = 9.0e12;
  if (!(std::fabs(value) < kLimit) || !IsPointTheDecimalMark()) return false;
  const auto millionths =
      static_cast<std::uint64_t>(std::fabs(std::nearbyint(static_cast<double>(value) * 1.0e6)));
  std::array<char, 24> digits{};
  if (std::signbit(value)) *buffer++ = L'-';
  Append(digits.data(), std::to_chars(digits.data(), std::end(digits), millionths / 1000000U).ptr, buffer);
  *buffer++ = L'.';
  std::uint64_t decimals = millionths % 1000000U;
  for (int i = 5; i >= 0; --i, decimals /= 10U) buffer[i] = static_cast<wchar_t>(L'0' + decimals % 10U);
  buffer[6] = L'\0';
  return true;
}

}  // namespace

CSetLocaleSwitch::CSetLocaleSwitch() { zeb::SetNumericLocaleToC(); }

CSetLocaleSwitch::CSetLocaleSwitch(const CSetLocaleSwitch& other) = default;

// Fixed behaviour: ends in the user's default locale, also inside an outer switch.
CSetLocaleSwitch::~CSetLocaleSwitch() { zeb::SetNumericLocaleToUserDefault(); }

CSetLocaleSwitch& CSetLocaleSwitch::operator=(const CSetLocaleSwitch& /*other*/) = default;

void BoolToString(bool value, wchar_t* buffer) { IntToString(value ? 1 : 0, buffer); }

void IntToString(int value, wchar_t* buffer) {
  std::array<char, 16> digits{};
  Append(digits.data(), std::to_chars(digits.data(), std::end(digits), value).ptr, buffer);
  *buffer = L'\0';
}

void UShortToString(unsigned short value, wchar_t* buffer) { IntToString(value, buffer); }

void DoubleToString(double value, wchar_t* buffer) {
  DoubleToStringFormat(value, buffer, 6);
  CutTrailingZeros(buffer);
}

void FloatToString(float value, wchar_t* buffer) {
  if (!PrintPlainFloat(value, buffer)) DoubleToStringFormat(static_cast<double>(value), buffer, 6);
  CutTrailingZeros(buffer);
}

void DoubleToStringFormat(double value, wchar_t* buffer, int digits) {
  const int decimals = std::clamp(digits, 0, kMaxDecimals);
  std::array<wchar_t, kFixedSize + kMaxDecimals> text;  // NOLINT(cppcoreguidelines-pro-type-member-init)
  std::swprintf(text.data(), text.size(), L"%.*f", decimals, value);
  const std::size_t length = std::wcslen(text.data());
  wchar_t* end = std::copy_n(text.data(), length, buffer);
  if (digits > kMaxDecimals && std::isfinite(value)) end = std::fill_n(end, digits - kMaxDecimals, L'0');
  *end = L'\0';
}

int StringToInt(const wchar_t* text) {
  int value = 0;
  if (!ScanPlainInt(text, value)) std::swscanf(text, L"%d", &value);
  return value;
}

unsigned short StringToUShort(const wchar_t* text) {
  return static_cast<unsigned short>(static_cast<unsigned int>(StringToInt(text)) & 0xFFFFU);
}

bool StringToBool(const wchar_t* text) { return StringToInt(text) != 0; }

double StringToDouble(const wchar_t* text) {
  double value = 0.0;
  if (!ScanPlainNumber(text, value)) std::swscanf(text, L"%lg", &value);
  return value;
}

float StringToFloat(const wchar_t* text) {
  float value = 0.0F;
  if (!ScanPlainNumber(text, value)) std::swscanf(text, L"%f", &value);
  return value;
}

float MMToPDF(float millimetres) { return millimetres / 25.4F * 72.0F; }

float PDFToMM(float points) { return points * 25.4F / 72.0F; }

int CheckDouble(double value) { return std::isfinite(value) ? 0 : -1; }
