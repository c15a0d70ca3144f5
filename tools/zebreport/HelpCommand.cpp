#include "Commands.h"

namespace zebreport {

int RunHelp(ArgumentReader& arguments, std::wstring& output) {
  arguments.TakeRest({});
  output += L"zebreport looks into report and layout files, their formulas, rich texts and fonts.\n\n";
  for (const Command& command : AllCommands()) {
    output += std::wstring(L"  zebreport ") + command.name;
    if (*command.usage != L'\0') output += std::wstring(L" ") + command.usage;
    output += std::wstring(L"\n      ") + command.summary + L"\n";
  }
  output +=
      L"\n"
      L"Without --layout, show and order take the layout file that the report names, from the report's "
      L"folder.\n"
      L"Formulas are those of reports: names as in [x y], texts as in strcmp(Name; \"text\").\n"
      L"Fonts are TrueType files, or installed fonts by name; that is how those in collections are reached.\n"
      L"font show and font glyph also take .afm, .pfm, .pfb and .pfa files; those of the same name in one "
      L"folder "
      L"belong together.\n"
      L"--fonts FOLDER names the folder of the font pool, from which TrueType fonts come that are not "
      L"installed, and\n"
      L"which gets the fonts of a copy.\n"
      L"--catalogue FOLDER names the folder of the error catalogue, KXErrorMessages.xml.\n"
      L"Exit codes: 0 done, 1 a file could not be read, written or understood, or a formula is bad, or a "
      L"check "
      L"found something, 2 wrong usage.\n";
  return 0;
}

}  // namespace zebreport
