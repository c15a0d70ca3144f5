#pragma once

#include "ZEBReportDocument.h"

#include <string>

namespace zebreport {

/// The whole report as text: its type, zones with their settings and objects, and pages with theirs.
/// Two reports of equal content give equal texts, whatever files they came from.
std::wstring ReportTree(const CReportRootElement& report);

/// As ReportTree, without what a layout file does not keep: the ties of table cells on pages and of their elements.
struct SavedTree {
  std::wstring text;
  int unsavedTies = 0;
};
SavedTree ReportTreeAsSaved(const CReportRootElement& report);

}  // namespace zebreport
