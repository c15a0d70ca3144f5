#pragma once

#include <cstdint>
#include <string_view>

namespace zeb {

/// What Windows calls the language of a POSIX locale.
struct LocaleLanguage {
  std::uint16_t number = 1033;
  int codePage = 1252;
};

/// The language of a locale by its name, `language[_TERRITORY][.charset][@modifier]`. A territory or a modifier that
/// is not known gives the language alone; a language that is not known gives US English.
LocaleLanguage LanguageOfLocale(std::string_view localeName);

}  // namespace zeb
