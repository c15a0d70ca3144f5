#pragma once

#include "ArgumentReader.h"

#include <string>

namespace zebreport {

/// Lists the zones and value holders of a report that its report type does not offer, and the keys that its formulas,
/// conditions and sums read and that neither the type offers nor the report computes. Takes the report file and `--json`
/// from the arguments.
/// @return the exit code: 0 if the type offers all, 1 if there is a finding
/// @throws Failure if a file cannot be read
int RunTypeCheck(ArgumentReader& arguments, const std::wstring& typeFile, std::wstring& output);

}  // namespace zebreport
