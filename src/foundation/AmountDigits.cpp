#include "foundation/AmountDigits.h"

#include "foundation/ValueConversion.h"

#include <algorithm>
#include <array>
#include <cwctype>

namespace zeb {
namespace {

constexpr std::array<wchar_t, 10> kDigits = {
    L'\u96F6',  // 0
    L'\u58F9',  // 1
    L'\u8D30',  // 2
    L'\u53C1',  // 3
    L'\u8086',  // 4
    L'\u4F0D',  // 5
    L'\u9646',  // 6
    L'\u67D2',  // 7
    L'\u634C',  // 8
    L'\u7396',  // 9
};
constexpr wchar_t kZero = kDigits[0];
constexpr wchar_t kTen = L'\u62FE';
constexpr wchar_t kHundred = L'\u4F70';
constexpr wchar_t kThousand = L'\u4EDF';
constexpr wchar_t kTenThousand = L'\u4E07';
constexpr wchar_t kHundredMillion = L'\u4EBF';
constexpr wchar_t kYuan = L'\u5143';
constexpr wchar_t kTenth = L'\u89D2';
constexpr wchar_t kHundredth = L'\u5206';

// Up to this many digits are split by ten, hundred, thousand and ten thousand; more of them by hundred million.
constexpr std::size_t kChunk = 8;

wchar_t DigitCharacter(wchar_t c) {
  // Fixed behaviour: a character that is no digit gives NUL; a minus sign thus takes a digit's place.
  return c >= L'0' && c <= L'9' ? kDigits[static_cast<std::size_t>(c - L'0')] : L'\0';
}

// Length of the longest beginning that is worth 0 when read as an integer (blanks, a sign, zeros, then no digit
// other than 0): the whole text if there is no such digit.
std::size_t LengthWorthZero(std::wstring_view text) {
  std::size_t at = 0;
  while (at < text.size() && std::iswspace(static_cast<std::wint_t>(text[at])) != 0) ++at;
  if (at < text.size() && (text[at] == L'-' || text[at] == L'+')) ++at;
  while (at < text.size() && text[at] == L'0') ++at;
  return at < text.size() && text[at] >= L'1' && text[at] <= L'9' ? at : text.size();
}

bool IsAllZeros(std::wstring_view text) { return text.find_first_not_of(L'0') == std::wstring_view::npos; }

// Cuts at the first pair of zeros at `from` or behind.
void CutAtDoubleZero(std::wstring& text, std::size_t from) {
  constexpr std::array<wchar_t, 2> pair = {kZero, kZero};
  // Fixed behaviour: everything from the first of two zeros on goes, not the one zero.
  const std::size_t at = text.find(pair.data(), from, pair.size());
  if (at != std::wstring::npos) text.resize(at);
}

// One to eight characters. Each call splits its text, so that five calls are nested at most.
std::wstring ChunkToText(std::wstring_view digits) {
  if (digits.size() == 1) return {DigitCharacter(digits[0])};
  constexpr std::array<wchar_t, 3> units = {kTen, kHundred, kThousand};
  const bool isSmall = digits.size() <= 4;
  const std::wstring_view head = digits.substr(0, isSmall ? 1 : digits.size() - 4);
  const std::wstring_view tail = digits.substr(head.size());
  const bool isZero = isSmall ? head[0] == L'0' : LengthWorthZero(head) == head.size();
  std::wstring text;
  if (isZero) {
    text = kZero + ChunkToText(tail);
  } else {
    text = ChunkToText(head) + (isSmall ? units[digits.size() - 2] : kTenThousand);
    if (!IsAllZeros(tail)) text += ChunkToText(tail);
  }
  CutAtDoubleZero(text, 0);
  return text;
}

// Splits off eight digits from the right again and again; walked from the left, so that no length needs recursion.
std::wstring IntegerToText(std::wstring_view digits) {
  if (digits.empty()) return {};
  const std::size_t worthZero = LengthWorthZero(digits);
  std::size_t length = (digits.size() - 1) % kChunk + 1;
  std::wstring text = ChunkToText(digits.substr(0, length));
  for (; length < digits.size(); length += kChunk) {
    const std::wstring_view tail = digits.substr(length, kChunk);
    std::size_t unchanged = 0;
    if (length <= worthZero) {
      text = kZero + ChunkToText(tail);
    } else {
      unchanged = text.empty() ? 0 : text.size() - 1;
      text += kHundredMillion;
      if (!IsAllZeros(tail)) text += ChunkToText(tail);
    }
    CutAtDoubleZero(text, unchanged);
  }
  return text;
}

std::wstring FractionToText(std::wstring_view fraction) {
  if (fraction.empty()) return {};
  if (fraction.size() == 1) return ChunkToText(fraction) + kTenth;
  const double parts = StringToDouble((L"0." + std::wstring(fraction)).c_str());
  std::array<wchar_t, 16> hundredths{};
  const double rounded = parts * 100.0 + 0.5;
  IntToString(static_cast<int>(rounded), hundredths.data());
  // Fixed behaviour: the number's first and last digit are used: one digit serves twice, and of 100 the 1 and the 0.
  const std::wstring_view digits = hundredths.data();
  return {DigitCharacter(digits.front()), kTenth, DigitCharacter(digits.back()), kHundredth};
}

}  // namespace

std::wstring AmountDigitsToText(std::wstring_view text, bool withYuan) {
  std::size_t mark = text.find(L'.');
  if (mark == std::wstring_view::npos) mark = text.find(L',');
  std::wstring result = IntegerToText(text.substr(0, mark));
  if (withYuan) result += kYuan;
  if (mark != std::wstring_view::npos) result += FractionToText(text.substr(mark + 1));
  return result;
}

}  // namespace zeb
