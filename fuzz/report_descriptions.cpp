// Report description files: any bytes are refused, or what is saved of them comes to rest.

#include "catalogue_files.h"
#include "reporttypes/ReportDescriptions.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zebfuzz::LoadAndSettle<CReportDescriptions>(data, size, &CReportDescriptions::LoadReportDescriptions,
                                              &CReportDescriptions::SaveReportDescriptions);
  return 0;
}
