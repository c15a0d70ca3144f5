#include "fonts/AFMKeys.h"

#include <array>

namespace {

/// The keywords of Adobe Font Metrics files in alphabetical order; a keyword's key is its position.
constexpr std::array<const wchar_t*, 45> kWords = {{
    L"Ascender",
    L"B",
    L"C",
    L"CC",
    L"CapHeight",
    L"CharWidth",
    L"Characters",
    L"CharacterSet",
    L"Comment",
    L"Descender",
    L"EncodingScheme",
    L"EndCharMetrics",
    L"EndComposites",
    L"EndFontMetrics",
    L"EndKernData",
    L"EndKernPairs",
    L"EndTrackKern",
    L"FamilyName",
    L"FontBBox",
    L"FontName",
    L"FullName",
    L"IsFixedPitch",
    L"ItalicAngle",
    L"KP",
    L"KPX",
    L"L",
    L"N",
    L"Notice",
    L"PCC",
    L"StartCharMetrics",
    L"StartComposites",
    L"StartFontMetrics",
    L"StartKernData",
    L"StartKernPairs",
    L"StartTrackKern",
    L"StdHW",
    L"StdVW",
    L"TrackKern",
    L"UnderlinePosition",
    L"UnderlineThickness",
    L"Version",
    L"W",
    L"WX",
    L"Weight",
    L"XHeight",
}};

}  // namespace

AFMKeys::AFMKeys() {
  int key = 0;
  for (const wchar_t* word : kWords) m_Keys.emplace(word, key++);
}

AFMKeys::AFMKeys(const AFMKeys& other) = default;

AFMKeys::~AFMKeys() = default;

AFMKeys& AFMKeys::operator=(const AFMKeys& other) = default;

int AFMKeys::FindKey(const wchar_t* word) const {
  const auto found = m_Keys.find(word);
  return found == m_Keys.end() ? -1 : found->second;
}
