#include "platform/SystemLanguage.h"

#include "platform/windows/Windows.h"

namespace zeb {

std::uint16_t SystemLanguage() { return GetSystemDefaultLangID(); }

int SystemCodePage() { return static_cast<int>(GetACP()); }

}  // namespace zeb
