#pragma once

#include <string>
#include <string_view>

namespace zeb {

/// The name of a font's file in the pool: the font name as it stands, but for characters that the name of a file cannot
/// hold, and `.fd`. It leads into no other folder.
std::wstring FontPoolFileName(std::wstring_view fontName);

/// Whether a file of the pool's folder counts as the file of a font.
bool IsFontPoolFileName(std::wstring_view fileName);

}  // namespace zeb
