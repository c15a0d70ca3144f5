#include "RtfList.h"

#include "TextFormat.h"

#include <array>
#include <cstddef>

namespace zebreport {

namespace {

/// Number formats of levels.
enum NumberFormat : unsigned char {
  formatUpperRoman = 1,
  formatLowerRoman = 2,
  formatUpperLetter = 3,
  formatLowerLetter = 4,
  formatBullet = 23,
  formatNone = 255,
};

std::wstring Roman(int number, bool upper) {
  struct Sign {
    int value;
    const wchar_t* upper;
    const wchar_t* lower;
  };
  constexpr std::array<Sign, 13> kSigns = {{{1000, L"M", L"m"},
                                            {900, L"CM", L"cm"},
                                            {500, L"D", L"d"},
                                            {400, L"CD", L"cd"},
                                            {100, L"C", L"c"},
                                            {90, L"XC", L"xc"},
                                            {50, L"L", L"l"},
                                            {40, L"XL", L"xl"},
                                            {10, L"X", L"x"},
                                            {9, L"IX", L"ix"},
                                            {5, L"V", L"v"},
                                            {4, L"IV", L"iv"},
                                            {1, L"I", L"i"}}};
  constexpr int kGreatest = 3999;
  if (number < 1 || number > kGreatest) return std::to_wstring(number);
  std::wstring text;
  for (const Sign& sign : kSigns) {
    for (; number >= sign.value; number -= sign.value) text += upper ? sign.upper : sign.lower;
  }
  return text;
}

/// A to Z, then AA to ZZ, up to thirty times the same letter.
std::wstring Letters(int number, wchar_t first) {
  constexpr int kLetters = 26;
  constexpr int kGreatest = 30 * kLetters;
  if (number < 1 || number > kGreatest) return std::to_wstring(number);
  const auto letter = static_cast<wchar_t>(first + (number - 1) % kLetters);
  return std::wstring(static_cast<std::size_t>((number - 1) / kLetters + 1), letter);
}

std::wstring Formatted(int number, unsigned char format) {
  switch (format) {
    case formatUpperRoman:
    case formatLowerRoman:
      return Roman(number, format == formatUpperRoman);
    case formatUpperLetter:
      return Letters(number, L'A');
    case formatLowerLetter:
      return Letters(number, L'a');
    default:
      return std::to_wstring(number);
  }
}

std::wstring Follow(const CRTFListLevelEntry& level) {
  constexpr unsigned char kTab = 0;
  constexpr unsigned char kBlank = 1;
  if (level.GetLevelfollow() == kTab) return L"\t";
  return level.GetLevelfollow() == kBlank ? L" " : L"";
}

}  // namespace

std::wstring ListMarks::Next(const std::wstring& text, const CRTFContext& context, bool startsParagraph) {
  std::wstring mark;
  if (startsParagraph) {
    mark = TakeMark(context.Level);
    if (mark.empty()) mark = LostMark(context);
    // The paragraphs of a cell are one run; what is known then is the mark of the last one.
    if (text.find(L'\n') != std::wstring::npos) mark.clear();
  }
  m_previous = context.Level;
  return mark;
}

std::wstring ListMarks::TakeMark(CRTFListLevelEntry* current) {
  std::wstring mark;
  for (CRTFListLevelEntry* const level : {m_previous, current}) {
    if (level == nullptr) continue;
    if (mark.empty()) mark = Beginning(level->GetListText());
    level->SetListText(nullptr);
  }
  return mark;
}

std::wstring ListMarks::LostMark(const CRTFContext& context) {
  // A list stays in force behind its last paragraph. Paragraphs of lists alone have both indents.
  const CParagraphProperties& props = context.State->ParProps;
  if (m_previous != nullptr || context.List == nullptr || props.LeftIndent == 0 || props.FirstIndent == 0) {
    return {};
  }
  const CRTFListLevelEntry* const level =
      context.Level != nullptr ? context.Level : context.List->GetListLevelEntryAt(0);
  if (level == nullptr || level->GetLevelnfc() == formatNone) return {};
  if (level->GetLevelnfc() == formatBullet) return L"\u2022" + Follow(*level);
  // The form of a number is dropped by the reader as well. Mostly there is a point behind it.
  const int number = level->GetLevelstartat() + m_cLost[level]++;
  return Formatted(number, level->GetLevelnfc()) + L"." + Follow(*level);
}

}  // namespace zebreport
