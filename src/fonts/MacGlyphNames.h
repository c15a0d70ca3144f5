#pragma once

#include <array>

namespace zeb {

/// The glyph names that a `post` table refers to by number, in Macintosh order.
extern const std::array<const wchar_t*, 258> kMacGlyphNames;

}  // namespace zeb
