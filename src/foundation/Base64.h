#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zeb {

/// Base64 with padding, in one line.
std::string EncodeBase64(std::span<const std::byte> bytes);

/// The bytes of a Base64 text. Blanks, tabs and line ends may stand anywhere; padding is required.
/// @return nothing if the text is no Base64
std::optional<std::vector<std::byte>> DecodeBase64(std::string_view text);

}  // namespace zeb
