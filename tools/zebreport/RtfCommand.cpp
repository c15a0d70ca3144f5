#include "Commands.h"
#include "Failure.h"
#include "RtfViews.h"
#include "Utf8.h"

#include <filesystem>
#include <fstream>

namespace zebreport {

namespace {

void WriteFile(const std::wstring& path, const std::wstring& text) {
  const std::string bytes = ToUtf8(text);
  std::ofstream file(ToPath(path), std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw Failure(path + L": the page cannot be written; check the folder.");
}

}  // namespace

int RunRtf(ArgumentReader& arguments, std::wstring& output) {
  const auto target = arguments.TakeOption(L"-o", 1);
  const std::vector<std::wstring> names = arguments.TakeRest({L"view (dump, text or html)", L"RTF file"});
  const std::wstring& view = names[0];
  if (target.has_value() && view != L"html") {
    throw UsageFailure(L"-o goes with rtf html alone; see zebreport help.");
  }
  if (view == L"dump") {
    DumpRtf(names[1], output);
  } else if (view == L"text") {
    ShowRtfText(names[1], output);
  } else if (view == L"html") {
    std::wstring page;
    ShowRtfPage(names[1], page);
    if (target.has_value()) {
      WriteFile(target->front(), page);
    } else {
      output += page;
    }
  } else {
    throw UsageFailure(L"there is no view " + view + L" of rich text; take dump, text or html.");
  }
  return 0;
}

}  // namespace zebreport
