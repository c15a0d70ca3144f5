#include "FormulaText.h"

#include "TextFormat.h"

#include <algorithm>
#include <set>
#include <string>

namespace zebreport {

namespace {

/// The message of the parser's last run without the point at its end.
std::wstring MessageOf(const CFormulaParser& parser) {
  std::wstring message = parser.GetErrorMessage();
  while (message.ends_with(L'.')) message.pop_back();
  return message;
}

/// The text on one line of as many characters.
std::wstring OnOneLine(std::wstring text) {
  std::replace_if(
      text.begin(), text.end(), [](wchar_t c) { return c < L' '; }, L' ');
  return text;
}

}  // namespace

void UseLanguageOfReports(CVariableFormulaParser& parser) {
  parser.EnableQuotedVariable(true);
  parser.SetWithStringFunctions(true);
}

FormulaVariables FindVariables(const std::wstring& formula) {
  CVariableFormulaParser parser(formula, false);
  UseLanguageOfReports(parser);
  FormulaVariables variables;
  try {
    if (!parser.ScanVariable()) {
      variables.failure =
          MessageOf(parser) + L" (character " + std::to_wstring(parser.GetErrPos() + 1) + L")";
      return variables;
    }
  } catch (const CKXException&) {
    variables.failure = L"the error catalogue that says why is missing";
    return variables;
  }
  std::set<std::wstring> known;
  for (const std::wstring& name : parser.GetVariable()) {
    if (known.insert(name).second) variables.names.push_back(name);
  }
  return variables;
}

Failure FormulaFailure(const std::wstring& formula, const CFormulaParser& parser) {
  const int position = parser.GetErrPos();
  return Failure(L"formula:" + std::to_wstring(position + 1) + L": " + MessageOf(parser) + L" (error " +
                 std::to_wstring(parser.GetErrorCode()) + L"); mend the formula there.\n  " +
                 OnOneLine(formula) + L"\n  " + std::wstring(static_cast<std::size_t>(position), L' ') +
                 L"^");
}

}  // namespace zebreport
