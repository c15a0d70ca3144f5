#pragma once

#include <cstdint>

namespace zeb {

/// The language of the system as a Windows language number: German 1031, US English 1033.
/// On POSIX it is that of the environment's locale (LC_ALL, LC_MESSAGES, LANG; the first that is set counts);
/// 1033 for the locale "C" and for one that is not known.
std::uint16_t SystemLanguage();

/// The Windows ANSI code page of that language; 1252 for the locale "C" and for a language that has none.
int SystemCodePage();

}  // namespace zeb
