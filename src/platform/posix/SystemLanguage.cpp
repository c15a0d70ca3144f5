#include "platform/SystemLanguage.h"

#include "platform/posix/LocaleLanguage.h"

#include <cstdlib>

namespace zeb {
namespace {

LocaleLanguage LanguageOfEnvironment() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const name = std::getenv(variable);
    if (name != nullptr && *name != '\0') return LanguageOfLocale(name);
  }
  return {};
}

}  // namespace

std::uint16_t SystemLanguage() { return LanguageOfEnvironment().number; }

int SystemCodePage() { return LanguageOfEnvironment().codePage; }

}  // namespace zeb
