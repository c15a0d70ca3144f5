#pragma once

#include <array>
#include <cstdint>

namespace zeb {

/// A character of a code page that the C library has otherwise or not at all.
struct CodePageCorrection {
  int Page;
  std::uint16_t Bytes;  // the byte, or the lead byte times 256 plus the trail byte
  char16_t Character;
};

// Page 1361 as Python's codec "johab" has it, after the published table JOHAB.TXT: an ASCII backslash, a blank of full
// width, and the single Hangul letters.
inline constexpr std::array<CodePageCorrection, 18> kCodePageCorrections = {{
    {1361, 0x005C, 0x005C},
    {1361, 0x8441, 0x3000},
    {1361, 0x8442, 0x3131},
    {1361, 0x8443, 0x3132},
    {1361, 0x8445, 0x3134},
    {1361, 0x8448, 0x3137},
    {1361, 0x8449, 0x3139},
    {1361, 0x8451, 0x3141},
    {1361, 0x8453, 0x3142},
    {1361, 0x8455, 0x3145},
    {1361, 0x8456, 0x3146},
    {1361, 0x8457, 0x3147},
    {1361, 0x8458, 0x3148},
    {1361, 0x8459, 0x314A},
    {1361, 0x845A, 0x314B},
    {1361, 0x845B, 0x314C},
    {1361, 0x845C, 0x314D},
    {1361, 0x845D, 0x314E},
}};

}  // namespace zeb
