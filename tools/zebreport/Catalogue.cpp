#include "Catalogue.h"

#include "Failure.h"
#include "Utf8.h"
#include "ZEBReportDocument.h"

namespace zebreport {

namespace {

bool HoldsCatalogue(const std::filesystem::path& folder) {
  std::error_code error;
  return std::filesystem::is_regular_file(folder / "KXErrorMessages.xml", error);
}

/// The folder that the program lies in; empty if it is not known.
std::filesystem::path FolderOfProgram(const std::filesystem::path& calledAs) {
  std::error_code error;
  std::filesystem::path self = std::filesystem::canonical("/proc/self/exe", error);
  if (error) self = std::filesystem::canonical(calledAs, error);
  return error ? std::filesystem::path() : self.parent_path();
}

}  // namespace

void UseCatalogue(const std::optional<std::wstring>& named, const std::filesystem::path& program) {
  std::filesystem::path folder;
  if (named.has_value()) {
    folder = ToPath(*named);
    if (!HoldsCatalogue(folder)) {
      throw UsageFailure(*named + L" holds no KXErrorMessages.xml; name the folder of the error catalogue.");
    }
  } else {
    folder = FolderOfProgram(program) / ZEBREPORT_INSTALLED_CATALOGUE;
    if (!HoldsCatalogue(folder)) folder = ZEBREPORT_SOURCE_CATALOGUE;
    if (!HoldsCatalogue(folder)) return;
  }
  CKXExceptionHandler::GetInstance().SetExceptionPathName(FromPath(folder).c_str());
}

}  // namespace zebreport
