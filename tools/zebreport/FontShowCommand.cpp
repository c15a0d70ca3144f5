#include "Failure.h"
#include "FontCommands.h"
#include "FontReport.h"

#include <cwchar>

namespace zebreport {

namespace {

FontStyle TakeStyle(ArgumentReader& arguments) {
  constexpr long kHeaviest = 1000;
  FontStyle style;
  style.italic = arguments.TakeOption(L"--italic", 0).has_value();
  const auto weight = arguments.TakeOption(L"--weight", 1);
  if (!weight) return style;
  wchar_t* end = nullptr;
  const long number = std::wcstol(weight->front().c_str(), &end, 10);
  if (end == weight->front().c_str() || *end != L'\0' || number < 1 || number > kHeaviest) {
    throw UsageFailure(L"--weight needs a number from 1 to 1000; 400 is normal, 700 is bold.");
  }
  style.weight = static_cast<int>(number);
  return style;
}

}  // namespace

int RunFontShow(ArgumentReader& arguments, std::wstring& output) {
  const FontStyle style = TakeStyle(arguments);
  const std::wstring name = arguments.TakeRest({L"font file or name of an installed font"}).front();
  WriteFont(OpenedFont(name, style), output);
  return 0;
}

int RunFontGlyph(ArgumentReader& arguments, std::wstring& output) {
  const FontStyle style = TakeStyle(arguments);
  const auto rest = arguments.TakeRest({L"font file or name of an installed font", L"text"});
  WriteGlyphs(OpenedFont(rest[0], style), rest[1], output);
  return 0;
}

}  // namespace zebreport
