#include "formula/PrefixOperations.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaSigns.h"
#include "foundation/ErrorKeys.h"

int NotOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return zeb::FindNot(zeb::FormulaAccess::Text(*parser), static_cast<std::size_t>(pos));
}

double NotOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  pos += length;
  const double value = EvalNextOperation(pos, parser);
  if (length == 0) return value;
  return value == 0.0 ? 1.0 : 0.0;
}

int NegVorzeichenOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return zeb::FindSign(*parser, zeb::FormulaAccess::Text(*parser), static_cast<std::size_t>(pos));
}

double NegVorzeichenOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  pos += length;
  const double value = EvalNextOperation(pos, parser);
  return length == 0 ? value : -value;
}

int KlammerOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return zeb::IsAt(*parser, pos, L'(') ? 1 : 0;
}

double KlammerOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  if (length == 0) return EvalNextOperation(pos, parser);

  const zeb::NestingLevel level(*parser);
  pos += length;
  Operation* const first = GetFirstOperation(parser);
  if (first == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::InternalParserError);
  const double value = first->Eval(pos, parser);
  if (!zeb::IsAt(*parser, pos, L')')) zeb::ThrowFormulaError(zeb::ErrorKeys::ClosingBracketExpected);
  ++pos;
  return value;
}

NotOperation* GetNotOperation() {
  static NotOperation operation;
  return &operation;
}

NegVorzeichenOperation* GetNegVorzeichenOperation() {
  static NegVorzeichenOperation operation;
  return &operation;
}

KlammerOperation* GetKlammerOperation() {
  static KlammerOperation operation;
  return &operation;
}
