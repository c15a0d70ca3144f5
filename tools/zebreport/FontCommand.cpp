#include "Commands.h"
#include "Failure.h"
#include "FontCommands.h"

namespace zebreport {

namespace {

struct FontCommand {
  const wchar_t* name;
  int (*run)(ArgumentReader& arguments, std::wstring& output);
};

constexpr FontCommand kFontCommands[] = {
    {L"show", RunFontShow},
    {L"glyph", RunFontGlyph},
    {L"subset", RunFontSubset},
};

std::wstring AllNames() {
  std::wstring names;
  for (const FontCommand& command : kFontCommands) {
    names += names.empty() ? L"" : L", ";
    names += command.name;
  }
  return names;
}

}  // namespace

int RunFont(ArgumentReader& arguments, std::wstring& output) {
  const std::wstring name = arguments.TakeNext(L"task (" + AllNames() + L")");
  for (const FontCommand& command : kFontCommands) {
    if (name == command.name) return command.run(arguments, output);
  }
  throw UsageFailure(L"there is no task " + name + L" for fonts; take one of: " + AllNames() + L".");
}

}  // namespace zebreport
