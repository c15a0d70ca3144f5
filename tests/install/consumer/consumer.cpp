#include "ZEBReportDocument.h"

#include <cstdio>
#include <string>

// A stranger's program: works with nothing but the install tree. Loads the report that its argument names and raises
// a failure of the installed catalogue.

namespace {

bool LoadsTheReport(const std::string& file) {
  CReportRootElement report;
  report.LoadReportDocument(std::wstring(file.begin(), file.end()).c_str(), false);
  return report.GetReportDocument()->GetReportZoneCount() == 1 &&
         report.GetReportDocument()->FindReportZone(L"Kopf") != nullptr;
}

bool KnowsTheCatalogue() {
  CKXExceptionHandler::GetInstance().SetExceptionPathName(L"" CONSUMER_CATALOGUE);
  try {
    CKXExceptionHandler::GetInstance().ThrowException(L"DivisionByZero");
  } catch (const CKXParserException& exception) {
    return exception.GetErrorNr() != -1;
  } catch (const CKXException&) {
    return false;
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::puts("consumer: name a report file.");
    return 2;
  }
  if (!LoadsTheReport(argv[1])) {
    std::puts("consumer: the report was not loaded as it should be.");
    return 1;
  }
  if (!KnowsTheCatalogue()) {
    std::puts("consumer: the error catalogue was not found in the install tree.");
    return 1;
  }
  std::puts("consumer: the library answers.");
  return 0;
}
