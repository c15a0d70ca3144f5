#pragma once

#include "Failure.h"
#include "foundation/ReadingFindings.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zebreport {

/// What loading a file left out.
struct CheckedFile {
  std::vector<zeb::ReadingFinding> findings;  ///< in file order
  std::optional<Failure> failure;  ///< what ended the loading; the findings are then those in front of it
};

/// Loads a file of the system, of whichever kind it is, and finds the elements that loading left out. What is looked for
/// is known from the loading alone. A file that the library only writes has none.
/// @throws Failure if the file is no XML file or of no known kind
CheckedFile CheckFile(const std::wstring& file);

/// Calls `load`, which loads one file.
/// @return whether the loading left out no element
bool LoadsWhole(const std::function<void()>& load);

}  // namespace zebreport
