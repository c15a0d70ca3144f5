#include "Commands.h"
#include "Failure.h"
#include "FormulaText.h"
#include "TextFormat.h"
#include "Utf8.h"

#include <charconv>
#include <functional>
#include <utility>

namespace zebreport {

namespace {

using Pair = std::pair<std::wstring, std::wstring>;

/// Splits `NAME=VALUE`. A name in brackets may hold any text and keeps its brackets.
Pair SplitPair(const std::wstring& argument) {
  const std::size_t bracket = argument.starts_with(L'[') ? argument.find(L"]=") : std::wstring::npos;
  const std::size_t sign = bracket == std::wstring::npos ? argument.find(L'=') : bracket + 1;
  if (sign == std::wstring::npos || sign == 0) {
    throw UsageFailure(L"the argument " + argument + L" names no value; write it as NAME=VALUE.");
  }
  return {argument.substr(0, sign), argument.substr(sign + 1)};
}

/// Variables are known to a parser by their bare names.
std::wstring BareName(const std::wstring& name) {
  const bool inBrackets = name.size() > 2 && name.starts_with(L'[') && name.ends_with(L']');
  return inBrackets ? name.substr(1, name.size() - 2) : name;
}

double NumberOf(const Pair& pair) {
  const std::string digits = ToUtf8(pair.second);
  double value = 0.0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc{} || end != digits.data() + digits.size()) {
    throw UsageFailure(L"the value of " + pair.first +
                       L" is no number such as 12 or 0.5; give texts as --string " + pair.first + L"=TEXT.");
  }
  return value;
}

/// Runs a parser on its formula.
/// @throws Failure if the formula is bad
void RunFormula(const std::wstring& formula, const CFormulaParser& parser, const std::function<bool()>& run) {
  try {
    if (!run()) throw FormulaFailure(formula, parser);
  } catch (const CKXException& exception) {
    throw LibraryFailure(L"formula", exception);
  }
}

void Scan(const std::wstring& formula, std::wstring& output) {
  CVariableFormulaParser parser(formula, false);
  UseLanguageOfReports(parser);
  RunFormula(formula, parser, [&] { return parser.ScanVariable(); });
  for (const std::wstring& name : FindVariables(formula).names) output += name + L"\n";
}

/// Names that are not to be replaced stay as they are.
void Replace(const std::wstring& formula, const std::vector<std::wstring>& replacements,
             std::wstring& output) {
  CReplaceVariableFormulaParser parser(formula, false);
  UseLanguageOfReports(parser);
  for (const std::wstring& replacement : replacements) {
    const Pair pair = SplitPair(replacement);
    parser.AddReplace(pair.first, pair.second);
  }
  parser.AddWildcard(L"");  // The prefix of all names.
  // A bad formula fails here, with a place that is one of the formula as it was given.
  RunFormula(formula, parser, [&] { return parser.ScanVariable(); });
  RunFormula(formula, parser, [&] { return parser.Replace(false, true, false); });
  output += parser.GetAusdruck();
  output += L"\n";
}

void Evaluate(const std::vector<std::wstring>& arguments, const std::vector<std::wstring>& texts,
              std::wstring& output) {
  const std::wstring& formula = arguments.front();
  CVariableFormulaParser parser(formula, false);
  UseLanguageOfReports(parser);
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    const Pair pair = SplitPair(arguments[i]);
    parser.AddVariable(BareName(pair.first), NumberOf(pair));
  }
  for (const std::wstring& text : texts) {
    const Pair pair = SplitPair(text);
    parser.AddStringVariable(BareName(pair.first), pair.second);
  }
  RunFormula(formula, parser, [&] { return parser.WerteAus(true); });
  output += ExactNumber(parser.GetWert()) + L"\n";
}

}  // namespace

int RunEval(ArgumentReader& arguments, std::wstring& output) {
  const std::vector<std::wstring> texts = arguments.TakeEach(L"--string", L"NAME=TEXT");
  const std::vector<std::wstring> replacements = arguments.TakeEach(L"--replace", L"OLD=NEW");
  const bool scan = arguments.TakeOption(L"--scan", 0).has_value();
  const bool evaluates = !scan && replacements.empty();
  if ((scan && !replacements.empty()) || (!evaluates && !texts.empty())) {
    throw UsageFailure(L"--scan, --replace and --string go with different tasks; see zebreport help.");
  }
  if (evaluates) {
    Evaluate(arguments.TakeRestAndMore({L"formula"}), texts, output);
    return 0;
  }
  const std::wstring formula = arguments.TakeRest({L"formula"}).front();
  if (scan) {
    Scan(formula, output);
  } else {
    Replace(formula, replacements, output);
  }
  return 0;
}

}  // namespace zebreport
