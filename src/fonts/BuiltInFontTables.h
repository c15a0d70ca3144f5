#pragma once

#include "fonts/FontMetrics.h"
#include "fonts/StandardFontWidths.h"

#include <array>
#include <cstddef>

namespace zeb {

/// Numbers that every font has, in thousandths of the em.
struct FaceMeasures {
  int ascender;
  int descender;
  int capHeight;
  int xHeight;
  std::array<float, 4> bbox;  // lower left x and y, upper right x and y
};

/// One of the 14 fonts that every PDF viewer has.
struct StandardFontRow {
  const wchar_t* name;
  FaceMeasures measures;
  const StandardWidths* widths;
  bool isFontSpecific;  // has an encoding of its own
};

/// One of the predefined fonts for Chinese, Japanese and Korean.
struct CJKFontRow {
  const wchar_t* name;
  CFontMetrics::CharColl collection;
  FaceMeasures measures;
  int flags;
  int stemVW;
  int stemHW;
  int underlinePosition;
};

inline constexpr std::size_t kStandardFontCount = 14;
inline constexpr std::size_t kCJKFontCount = 11;

extern const std::array<StandardFontRow, kStandardFontCount> kStandardFonts;
extern const std::array<CJKFontRow, kCJKFontCount> kCJKFonts;

}  // namespace zeb
