#pragma once

#include <algorithm>
#include <array>
#include <functional>

namespace zeb {

/// A character set as `\fcharset` numbers it, and its code page.
struct RTFCharSet {
  int CharSet;
  int CodePage;
};

inline constexpr int kRTFDefaultCharSet = 1;
/// The code page of a character set that the table does not have.
inline constexpr int kRTFOtherCodePage = 950;

inline constexpr std::array<RTFCharSet, 30> kRTFCharSets = {{
    {0, 1252},    // Western
    {1, 0},       // the system's default code page
    {2, 42},      // symbols
    {77, 10000},  // Macintosh Roman
    {78, 10001},  // Macintosh Japanese
    {79, 10003},  // Macintosh Korean
    {80, 10008},  // Macintosh simplified Chinese
    {81, 10002},  // Macintosh traditional Chinese
    {83, 10005},  // Macintosh Hebrew
    {84, 10004},  // Macintosh Arabic
    {85, 10006},  // Macintosh Greek
    {86, 10081},  // Macintosh Turkish
    {87, 10021},  // Macintosh Thai
    {88, 10029},  // Macintosh Central European
    {89, 10007},  // Macintosh Cyrillic
    {128, 932},   // Japanese
    {129, 949},   // Korean
    {130, 1361},  // Korean, Johab
    {134, 936},   // simplified Chinese
    {161, 1253},  // Greek
    {162, 1254},  // Turkish
    {163, 1258},  // Vietnamese
    {177, 1255},  // Hebrew
    {178, 1256},  // Arabic
    {186, 1257},  // Baltic
    {204, 1251},  // Cyrillic
    {222, 874},   // Thai
    {238, 1250},  // Central European
    {254, 437},   // US personal computers
    {255, 850},   // Western personal computers
}};
static_assert(std::ranges::is_sorted(kRTFCharSets, {}, &RTFCharSet::CharSet));

/// The code page of a character set; 0 is the system's default.
constexpr int CodePageOfCharSet(int charSet) {
  const auto* const row = std::ranges::lower_bound(kRTFCharSets, charSet, {}, &RTFCharSet::CharSet);
  return row != kRTFCharSets.end() && row->CharSet == charSet ? row->CodePage : kRTFOtherCodePage;
}

}  // namespace zeb
