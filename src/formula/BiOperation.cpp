#include "formula/BiOperation.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaOperators.h"
#include "formula/FormulaParser.h"

double BiOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  double left = EvalNextOperation(pos, parser);
  parser->EatWhite();
  while (pos < parser->GetLength()) {
    const int length = FindOperation(pos, parser);
    if (length <= 0) break;
    const int start = pos;
    pos += length;
    parser->EatWhite();
    const double right = EvalNextOperation(pos, parser);
    parser->EatWhite();
    left = BerechneOp(parser, parser->Mid(start, length), left, right);
  }
  return left;
}

namespace {

int FindOfLevel(zeb::OperatorLevel level, int pos, const CFormulaParser& parser) {
  return zeb::FindOperatorOfLevel(level, zeb::FormulaAccess::Text(parser), static_cast<std::size_t>(pos),
                                  parser.GetFunktionen());
}

}  // namespace

int VergleichOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return FindOfLevel(zeb::OperatorLevel::Comparison, pos, *parser);
}

double VergleichOperation::BerechneOp(CFormulaParser* /*parser*/, std::wstring op, double a, double b) {
  return zeb::CalculateComparison(zeb::OperatorFromText(op), a, b);
}

int UndOderOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return FindOfLevel(zeb::OperatorLevel::Logic, pos, *parser);
}

double UndOderOperation::BerechneOp(CFormulaParser* /*parser*/, std::wstring op, double a, double b) {
  return zeb::CalculateLogic(zeb::OperatorFromText(op), a, b);
}

int PlusMinusOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return FindOfLevel(zeb::OperatorLevel::Sum, pos, *parser);
}

double PlusMinusOperation::BerechneOp(CFormulaParser* parser, std::wstring op, double a, double b) {
  return zeb::CalculateSum(zeb::OperatorFromText(op), a, b, parser->GetBerechnen());
}

int MalDurchOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return FindOfLevel(zeb::OperatorLevel::Product, pos, *parser);
}

double MalDurchOperation::BerechneOp(CFormulaParser* parser, std::wstring op, double a, double b) {
  return zeb::CalculateProduct(zeb::OperatorFromText(op), a, b, parser->GetBerechnen());
}

int PotenzOperation::FindOperation(int& pos, CFormulaParser* parser) {
  return FindOfLevel(zeb::OperatorLevel::Power, pos, *parser);
}

double PotenzOperation::BerechneOp(CFormulaParser* parser, std::wstring op, double a, double b) {
  return zeb::CalculatePower(zeb::OperatorFromText(op), a, b, parser->GetBerechnen());
}

VergleichOperation* GetVergleichOperation() {
  static VergleichOperation operation;
  return &operation;
}

UndOderOperation* GetUndOderOperation() {
  static UndOderOperation operation;
  return &operation;
}

PlusMinusOperation* GetPlusMinusOperation() {
  static PlusMinusOperation operation;
  return &operation;
}

MalDurchOperation* GetMalDurchOperation() {
  static MalDurchOperation operation;
  return &operation;
}

PotenzOperation* GetPotenzOperation() {
  static PotenzOperation operation;
  return &operation;
}
