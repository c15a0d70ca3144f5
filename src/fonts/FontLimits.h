#pragma once

// Limits to what a font file can make the library do. What lies beyond is not looked at, as the comment says; nothing
// beyond a limit crashes, hangs or uses memory out of proportion to the file.
namespace zeb {

/// Fonts of a collection that are compared with the wanted name. Fonts behind them are not found.
inline constexpr int kMostFontsOfCollection = 1024;

}  // namespace zeb
