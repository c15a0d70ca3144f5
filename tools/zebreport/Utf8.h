#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zebreport {

/// The text as UTF-8 bytes, whatever the locale; what is no character becomes U+FFFD.
std::string ToUtf8(std::wstring_view text);

/// UTF-8 bytes as text.
/// @throws UsageFailure if they are no UTF-8
std::wstring FromUtf8(std::string_view bytes);

// Paths from texts and back, whatever the locale: the standard library's own conversion goes by it.
std::filesystem::path ToPath(const std::wstring& text);
std::wstring FromPath(const std::filesystem::path& path);

}  // namespace zebreport
