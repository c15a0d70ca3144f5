// A data supplier: loads a report by the facade for suppliers, offers the values of a data file to its zones, and prints
// what all formulas, sums and conditions give. Usage: supplier DATA.json CATALOGUEFOLDER

#include "ReportRun.h"
#include "Utf8.h"

#include <array>
#include <cstdio>
#include <exception>
#include <string>

namespace {

/// The number as the reader of a German report expects it.
std::wstring Printed(const supplier::Result& result) {
  if (result.isEmpty) return L"(empty)";
  std::array<wchar_t, 420> text{};
  FormatDouble(result.printed, result.decimals, text.data(), L',', L'.');
  return text.data();
}

using supplier::ToUtf8;

void Show(const supplier::PrintedZone& zone) {
  std::printf("%s\n", ToUtf8(zone.name).c_str());
  for (const auto& [key, result] : zone.results) {
    std::printf("  %s = %s\n", ToUtf8(key).c_str(), ToUtf8(Printed(result)).c_str());
  }
  for (const supplier::Visibility& condition : zone.conditions) {
    std::printf("  %s: %s\n", condition.isVisible ? "shown" : "hidden", ToUtf8(condition.object).c_str());
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("supplier: name the data file and the folder of the error catalogue.\n", stderr);
    return 2;
  }
  try {
    supplier::ReportRun run(argv[1], argv[2]);
    for (const supplier::PrintedZone& zone : run.Print()) Show(zone);
  } catch (const CKXException& exception) {
    std::fprintf(stderr, "supplier: %s\n", supplier::ToUtf8(exception.GetErrorMessage()).c_str());
    return 1;
  } catch (const std::exception& exception) {
    std::fprintf(stderr, "supplier: %s\n", exception.what());
    return 1;
  }
  return 0;
}
