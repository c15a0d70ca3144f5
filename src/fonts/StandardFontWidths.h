#pragma once

#include <array>

namespace zeb {

/// The widths of one standard font by single-byte code, in thousandths of the em.
using StandardWidths = std::array<unsigned short, 256>;

extern const StandardWidths kCourierWidths;
extern const StandardWidths kHelveticaWidths;
extern const StandardWidths kHelveticaBoldWidths;
extern const StandardWidths kTimesRomanWidths;
extern const StandardWidths kTimesBoldWidths;
extern const StandardWidths kTimesBoldItalicWidths;
extern const StandardWidths kTimesItalicWidths;
extern const StandardWidths kSymbolWidths;
extern const StandardWidths kZapfDingbatsWidths;

}  // namespace zeb
