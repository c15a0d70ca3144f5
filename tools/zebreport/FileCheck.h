#pragma once

#include "foundation/ReadingFindings.h"

#include <string>
#include <vector>

namespace zebreport {

/// Loads a file of the system, of whichever kind it is, and finds the elements that loading left out. What is looked for
/// is known from the loading alone. A file that the library only writes has none.
/// @return the elements in file order
/// @throws Failure if the file cannot be loaded or is of no known kind
std::vector<zeb::ReadingFinding> CheckFile(const std::wstring& file);

}  // namespace zebreport
