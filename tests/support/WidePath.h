#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zebtest {

/// A text of ASCII characters, widened.
inline std::wstring Widen(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

/// The wide form of a path, as the library takes paths.
inline std::wstring WidePath(const std::filesystem::path& path) { return path.wstring(); }

}  // namespace zebtest
