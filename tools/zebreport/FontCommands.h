#pragma once

#include "ArgumentReader.h"

#include <string>

namespace zebreport {

// The subcommands of `zebreport font`. Each takes the arguments behind its name, collects what it says in `output` and
// returns the exit code.

int RunFontGlyph(ArgumentReader& arguments, std::wstring& output);
int RunFontShow(ArgumentReader& arguments, std::wstring& output);
int RunFontSubset(ArgumentReader& arguments, std::wstring& output);

}  // namespace zebreport
