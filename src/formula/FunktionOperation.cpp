#include "formula/FunktionOperation.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaCharacters.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaNames.h"
#include "formula/FormulaRounding.h"
#include "formula/FormulaSigns.h"
#include "formula/FunctionEvaluation.h"
#include "foundation/ErrorKeys.h"

namespace {

/// The function that a name calls in a parser, null if it calls none there.
const zeb::FunctionEntry* EnabledFunction(const CFormulaParser& parser, std::wstring_view name) {
  const zeb::FunctionEntry* const entry = zeb::FindFunction(name);
  if (entry == nullptr || !zeb::IsEnabled(*entry, parser.GetFunktionen(), parser.GetFunktionenEx()))
    return nullptr;
  return entry;
}

void ExpectOpeningBracket(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  if (!zeb::IsAt(*parser, pos, L'(')) zeb::ThrowFormulaError(zeb::ErrorKeys::OpeningBracketExpected);
}

/// Evaluates one part of a condition and counts it, if a `;` announces it.
/// @return whether there was one
bool EvalPart(int& pos, CFormulaParser* parser, Operation* first, bool chosen, double& value) {
  parser->EatWhite();
  if (!zeb::IsAt(*parser, pos, L';')) return false;
  ++pos;
  const bool computing = parser->GetBerechnen();
  if (!chosen) parser->SetBerechnen(false);
  value = first->Eval(pos, parser);
  if (!chosen) parser->SetBerechnen(computing);
  return true;
}

}  // namespace

int FunktionOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return static_cast<int>(
      zeb::FindFunctionName(zeb::FormulaAccess::Text(*parser), static_cast<std::size_t>(pos)));
}

double FunktionOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  const std::wstring name = parser->Mid(pos, length);
  double value = 0.0;
  if (zeb::IsWord(name, "pi")) {
    pos += length;
    value = parser->GetBerechnen() ? parser->GetPI() : 0.0;
  } else if (zeb::IsWord(name, "e")) {
    pos += length;
    value = parser->GetBerechnen() ? E : 0.0;
  } else if (const zeb::FunctionEntry* const entry = EnabledFunction(*parser, name); entry != nullptr) {
    pos += length;
    if (zeb::IsCondition(*entry)) {
      value = EvalWenn(pos, parser);
    } else {
      std::vector<double> values;
      Parameter(pos, parser, values);
      zeb::FunctionArguments arguments;
      for (const double argument : values) arguments.Add(argument);
      value = zeb::EvaluateFunction(*entry, arguments,
                                    {parser->GetBerechnen(), parser->GetWinkelmas(), parser->GetPI()});
    }
  } else {
    Operation* const next = GetNextOperation(parser);
    if (next == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::FunctionExpected);
    value = next->Eval(pos, parser);
  }
  return parser->GetBerechnen() ? zeb::RoundTo14Decimals(value) : value;
}

int FunktionOperation::Parameter(int& pos, CFormulaParser* parser, std::vector<double>& werte) {
  werte.clear();
  ExpectOpeningBracket(pos, parser);
  const zeb::NestingLevel level(*parser);
  ++pos;
  parser->EatWhite();
  Operation* const first = GetFirstOperation(parser);
  if (first == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::InternalParserError);
  werte.push_back(first->Eval(pos, parser));
  int count = 1;
  while (pos < parser->GetLength()) {
    parser->EatWhite();
    if (!zeb::IsAt(*parser, pos, L';')) break;
    ++pos;
    werte.push_back(first->Eval(pos, parser));
    ++count;
  }
  parser->EatWhite();
  if (!zeb::IsAt(*parser, pos, L')')) zeb::ThrowFormulaError(zeb::ErrorKeys::ClosingBracketExpected);
  ++pos;
  return count;
}

double FunktionOperation::EvalWenn(int& pos, CFormulaParser* parser) {
  ExpectOpeningBracket(pos, parser);
  const zeb::NestingLevel level(*parser);
  ++pos;
  parser->EatWhite();
  Operation* const first = GetFirstOperation(parser);
  if (first == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::InternalParserError);

  const bool condition = first->Eval(pos, parser) != 0.0;
  double thenValue = 0.0;
  double elseValue = 0.0;
  const bool hasThen = EvalPart(pos, parser, first, condition, thenValue);
  if (hasThen) EvalPart(pos, parser, first, !condition, elseValue);

  parser->EatWhite();
  if (!hasThen || zeb::IsAt(*parser, pos, L';'))
    zeb::ThrowFormulaError(zeb::ErrorKeys::WrongFunctionParameterCount);
  if (!zeb::IsAt(*parser, pos, L')')) zeb::ThrowFormulaError(zeb::ErrorKeys::ClosingBracketExpected);
  ++pos;
  parser->EatWhite();
  if (!parser->GetBerechnen()) return 0.0;
  return condition ? thenValue : elseValue;
}

FunktionOperation* GetFunktionOperation() {
  static FunktionOperation operation;
  return &operation;
}
