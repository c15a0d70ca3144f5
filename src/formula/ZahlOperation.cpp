#include "formula/ZahlOperation.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaNumber.h"
#include "foundation/ErrorKeys.h"

int ZahlOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return static_cast<int>(zeb::FindNumber(zeb::FormulaAccess::Text(*parser), static_cast<std::size_t>(pos)));
}

double ZahlOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  if (length != 0) {
    const double value = TakeDouble(pos, length, parser);
    pos += length;
    return value;
  }
  Operation* const next = GetNextOperation(parser);
  if (next == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::DoubleExpected);
  return next->Eval(pos, parser);
}

double ZahlOperation::TakeDouble(int& pos, int n, CFormulaParser* parser) {
  return zeb::ReadNumber(parser->Mid(pos, n));
}

ZahlOperation* GetZahlOperation() {
  static ZahlOperation operation;
  return &operation;
}
