#include "FontPool.h"

#include "Failure.h"
#include "Utf8.h"
#include "ZEBReportDocument.h"

#include <filesystem>

namespace zebreport {

void UseFontPool(const std::wstring& folder) {
  std::error_code error;
  if (!std::filesystem::is_directory(ToPath(folder), error)) {
    throw UsageFailure(folder + L" is no folder; name the folder of the font pool.");
  }
  CFontPool::GetInstance().SetFontPoolPath(folder.c_str());
}

}  // namespace zebreport
