#pragma once

#include "ZEBReportDocument.h"

#include <string>

namespace zebreport {

/// Loads a report type file. Warns if elements of it are not read.
/// @return the generation of the file: its VersionNr, 2 if it does not begin with one
/// @throws Failure if it cannot be read or holds nothing of a report type
int LoadReportType(const std::wstring& file, CReportType& type);

/// Loads a report description file. Warns if elements of it are not read.
/// @return the generation of the file, as LoadReportType
/// @throws Failure if it cannot be read or holds nothing of a catalogue
int LoadReportDescriptions(const std::wstring& file, CReportDescriptions& descriptions);

/// The version that a file has of its own, which is -1 where it names none, for people.
std::wstring VersionText(int versionNr, int generation);

}  // namespace zebreport
