#include "formula/StringOperations.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaNames.h"
#include "formula/FormulaSigns.h"
#include "formula/FunctionTable.h"
#include "formula/VariableOperation.h"
#include "foundation/ErrorKeys.h"

#include <cwchar>
#include <utility>

namespace {

/// The order of two strings by their characters' numbers, as -1, 0 or 1.
double CompareStrings(const std::wstring& a, const std::wstring& b) {
  const int order = std::wcscmp(a.c_str(), b.c_str());
  if (order == 0) return 0.0;
  return order < 0 ? -1.0 : 1.0;
}

}  // namespace

int StringFunktionOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return static_cast<int>(
      zeb::FindFunctionName(zeb::FormulaAccess::Text(*parser), static_cast<std::size_t>(pos)));
}

double StringFunktionOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  if (length != 0 && parser->IsThisFunktionEx(zeb::kStringCompareBit, parser->Mid(pos, length))) {
    pos += length;
    std::vector<std::wstring> strings;
    if (Parameter(pos, parser, strings) != 2)
      zeb::ThrowFormulaError(zeb::ErrorKeys::WrongFunctionParameterCount);
    return parser->GetBerechnen() ? CompareStrings(strings[0], strings[1]) : 0.0;
  }
  Operation* const next = GetNextOperation(parser);
  if (next == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::FunctionExpected);
  return next->Eval(pos, parser);
}

int StringFunktionOperation::Parameter(int& pos, CFormulaParser* parser, std::vector<std::wstring>& werte) {
  werte.clear();
  parser->EatWhite();
  if (!zeb::IsAt(*parser, pos, L'(')) zeb::ThrowFormulaError(zeb::ErrorKeys::OpeningBracketExpected);
  ++pos;
  while (pos < parser->GetLength()) {
    parser->EatWhite();
    if (zeb::IsAt(*parser, pos, gccConstStringKennzeichen)) {
      werte.push_back(GetConstStringOperation()->EvalString(pos, parser));
      ++pos;
    } else if (zeb::IsAt(*parser, pos, L';')) {
      zeb::StepOverStringSeparator(pos, *parser);
    } else if (zeb::IsAt(*parser, pos, L')')) {
      break;
    } else {
      const int before = pos;
      std::wstring value = GetStringVariableOperation()->EvalString(pos, parser);
      if (pos == before) zeb::ThrowFormulaError(zeb::ErrorKeys::WrongFunctionParameterCount);
      werte.push_back(std::move(value));
    }
  }
  parser->EatWhite();
  if (!zeb::IsAt(*parser, pos, L')')) zeb::ThrowFormulaError(zeb::ErrorKeys::ClosingBracketExpected);
  ++pos;
  return static_cast<int>(werte.size());
}

int ConstStringOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return zeb::IsAt(*parser, pos, gccConstStringKennzeichen) ? 1 : 0;
}

double ConstStringOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  if (FindOperation(pos, parser) == 0) {
    Operation* const next = GetNextOperation(parser);
    if (next == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::FunctionVariableExpected);
    return next->Eval(pos, parser);
  }
  EvalString(pos, parser);
  if (!zeb::IsAt(*parser, pos, gccConstStringKennzeichen)) {
    zeb::ThrowFormulaError(zeb::ErrorKeys::ConstStringEndMissing);
  }
  ++pos;
  return 0.0;
}

std::wstring ConstStringOperation::EvalString(int& pos, CFormulaParser* parser) {
  std::wstring text;
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  if (length == 0) return text;
  pos += length;
  // Fixed behaviour: blanks are dropped, and comment marks count inside a string constant too.
  for (parser->EatWhite(); pos < parser->GetLength(); parser->EatWhite()) {
    const wchar_t c = parser->GetAt(pos);
    if (c == gccConstStringKennzeichen) return text;
    text.push_back(c);
    ++pos;
  }
  zeb::ThrowFormulaError(zeb::ErrorKeys::ConstStringEndMissing);
}

StringFunktionOperation* GetStringFunktionOperation() {
  static StringFunktionOperation operation;
  return &operation;
}

ConstStringOperation* GetConstStringOperation() {
  static ConstStringOperation operation;
  return &operation;
}
