#pragma once

#include <filesystem>

namespace zebbench {

/// Writes a report file like those of examples/, which loads whole: zones of a hundred objects of all kinds, each with a
/// relation to its zone or to the object before it. About 850 bytes per object.
/// @param objects is rounded up to whole zones
void WriteReport(const std::filesystem::path& path, int objects);

}  // namespace zebbench
