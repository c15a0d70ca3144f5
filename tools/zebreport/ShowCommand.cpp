#include "Commands.h"
#include "LoadedReport.h"
#include "ReportTree.h"
#include "Utf8.h"

namespace zebreport {

int RunShow(ArgumentReader& arguments, std::wstring& output) {
  const auto layout = arguments.TakeOption(L"--layout", 1);
  const std::wstring report = arguments.TakeRest({L"report file"}).front();
  LoadedReport loaded;
  loaded.LoadWithLayout(ToPath(report), layout.has_value() ? std::optional(layout->front()) : std::nullopt);
  output += loaded.DescribeFiles();
  output += ReportTree(loaded.Root());
  return 0;
}

}  // namespace zebreport
