#include "formula/Operation.h"

#include "formula/FormulaErrors.h"
#include "formula/FormulaParser.h"
#include "foundation/ErrorKeys.h"

double Operation::EvalNextOperation(int& pos, CFormulaParser* parser) {
  Operation* const next = GetNextOperation(parser);
  if (next == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::InternalParserError);
  return next->Eval(pos, parser);
}

Operation* Operation::GetFirstOperation(CFormulaParser* parser) { return parser->GetFirstOperation(); }

Operation* Operation::GetNextOperation(CFormulaParser* parser) { return parser->GetNextOperation(this); }
