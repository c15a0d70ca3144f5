#pragma once

#include <string>

namespace zebreport {

/// Hands the folder of the font pool to the library. Without one, the programs of fonts come from the files of reports
/// themselves or from the operating system, and saving keeps none.
/// @throws UsageFailure if there is no such folder
void UseFontPool(const std::wstring& folder);

}  // namespace zebreport
