#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace zebreport {

/// Hands the folder of the error catalogue to the library: the named one, else the one beside the installed program,
/// else that of the sources. Without any of them the library's failures have no text.
/// @param named the folder that the user named
/// @param program the program's own path as it was called
/// @throws UsageFailure if the named folder holds no catalogue
void UseCatalogue(const std::optional<std::wstring>& named, const std::filesystem::path& program);

}  // namespace zebreport
