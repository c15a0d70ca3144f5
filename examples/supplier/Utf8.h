#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace supplier {

// The standard library converts wide texts and paths by the locale; these do so whatever the locale is.

/// UTF-8 bytes as text.
/// @throws std::runtime_error if they are no UTF-8
std::wstring FromUtf8(std::string_view bytes);

/// The text as UTF-8 bytes.
std::string ToUtf8(std::wstring_view text);

/// The path as the library takes it.
std::wstring WidePath(const std::filesystem::path& path);

}  // namespace supplier
