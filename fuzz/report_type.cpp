// Report type files: any bytes are refused, or what is saved of them comes to rest.

#include "catalogue_files.h"
#include "reporttypes/ReportType.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zebfuzz::LoadAndSettle<CReportType>(data, size, &CReportType::LoadReportType, &CReportType::SaveReportType);
  return 0;
}
