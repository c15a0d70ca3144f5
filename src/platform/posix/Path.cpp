#include "platform/posix/Path.h"

#include "platform/Unicode.h"

#include <algorithm>

namespace zeb {

std::string NativePath(const std::wstring& path) {
  if (path.find(L'\0') != std::wstring::npos) return {};
  std::string native = WideToUtf8(path);
  std::replace(native.begin(), native.end(), '\\', '/');
  return native;
}

}  // namespace zeb
