// zebreport: looks into report and layout files. One subcommand per task, each in a file of its own.

#include "Catalogue.h"
#include "Commands.h"
#include "Failure.h"
#include "FontPool.h"
#include "Utf8.h"

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

void Complain(const char* sentence) { std::fprintf(stderr, "zebreport: error: %s\n", sentence); }

/// Runs the command of the arguments and writes what it says, also what it had said before it failed.
int Run(const char* program, const std::vector<std::wstring>& words) {
  using namespace zebreport;
  std::wstring output;
  int result = 0;
  try {
    ArgumentReader arguments(words);
    const auto catalogue = arguments.TakeOption(L"--catalogue", 1);
    const auto fonts = arguments.TakeOption(L"--fonts", 1);
    const std::wstring name = arguments.TakeFirst();
    const Command* command = FindCommand(name);
    if (command == nullptr) {
      throw UsageFailure(L"there is no command " + name + L"; see zebreport help.");
    }
    UseCatalogue(catalogue.has_value() ? std::optional(catalogue->front()) : std::nullopt, program);
    if (fonts.has_value()) UseFontPool(fonts->front());
    result = command->run(arguments, output);
  } catch (const UsageFailure& failure) {
    Complain(failure.what());
    result = kWrongUsage;
  } catch (const Failure& failure) {
    Complain(failure.what());
    result = kFailed;
  }
  const std::string bytes = ToUtf8(output);
  if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size() || std::fflush(stdout) != 0) {
    Complain("the output could not be written; check where it goes.");
    return kFailed;
  }
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    std::vector<std::wstring> words;
    for (int i = 1; i < argc; ++i) words.push_back(zebreport::FromUtf8(argv[i]));
    return Run(argc > 0 ? argv[0] : "", words);
  } catch (const zebreport::UsageFailure& failure) {
    Complain(failure.what());
    return kWrongUsage;
  } catch (const std::exception& exception) {
    Complain(exception.what());
    return kFailed;
  }
}
