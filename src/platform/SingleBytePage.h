#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zeb {

/// The code points of the 256 bytes of a single-byte encoding; -1 for a byte that stands for nothing.
using SingleBytePage = std::array<std::int32_t, 256>;

/// The table of an encoding by the name that a file declares (`windows-1252`, `ISO-8859-2`, `KOI8-R`), case ignored.
/// Each table is made once and kept.
/// @return null if the encoding is not known or is no single-byte one
const SingleBytePage* FindSingleBytePage(const std::string& name);

}  // namespace zeb
