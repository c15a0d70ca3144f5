#pragma once

#include <string>

namespace zeb {

/// A path as the system wants it: UTF-8 whatever the locale, with `/` for `\`.
/// @return empty if the path is empty or holds a NUL: such a path names no file
std::string NativePath(const std::wstring& path);

}  // namespace zeb
