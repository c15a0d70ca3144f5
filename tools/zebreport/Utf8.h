#pragma once

#include <string>
#include <string_view>

namespace zebreport {

/// The text as UTF-8 bytes, whatever the locale; what is no character becomes U+FFFD.
std::string ToUtf8(std::wstring_view text);

/// UTF-8 bytes as text.
/// @throws UsageFailure if they are no UTF-8
std::wstring FromUtf8(std::string_view bytes);

}  // namespace zebreport
