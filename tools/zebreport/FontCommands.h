#pragma once

#include "ArgumentReader.h"

#include <string>

namespace zebreport {

// The subcommands of `zebreport font`. Each takes the arguments behind its name, collects what it says in `output` and
// returns the exit code.

int RunFontSubset(ArgumentReader& arguments, std::wstring& output);

}  // namespace zebreport
