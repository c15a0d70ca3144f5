#pragma once

#include "ZEBReportDocument.h"

#include <string>

namespace zebreport {

/// Loads a report type file.
/// @throws Failure if it cannot be read or holds nothing of a report type
void LoadReportType(const std::wstring& file, CReportType& type);

/// Loads a report description file.
/// @throws Failure if it cannot be read or holds nothing of a catalogue
void LoadReportDescriptions(const std::wstring& file, CReportDescriptions& descriptions);

}  // namespace zebreport
