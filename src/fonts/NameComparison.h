#pragma once

#include <string_view>

namespace zeb {

/// Whether two font names are the same but for the case of ASCII letters, whatever the locale says.
bool AreEqualIgnoringCase(std::wstring_view one, std::wstring_view other);

/// The name without one leading `@`, the mark of a vertical font.
std::wstring_view WithoutVerticalMark(std::wstring_view name);

}  // namespace zeb
