#include "formula/VariableOperation.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaNames.h"
#include "foundation/ErrorKeys.h"

namespace {

CVariableFormulaParser* WithVariables(CFormulaParser* parser) {
  auto* const variables = dynamic_cast<CVariableFormulaParser*>(parser);
  if (variables == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::InternalParserError);
  return variables;
}

}  // namespace

int VariableOperation::FindOperation(int& pos, CFormulaParser* parser) {
  CVariableFormulaParser* const variables = WithVariables(parser);
  return variables->IsQuotedVariableEnabled() ? FindQuotedVariable(pos, variables)
                                              : FindVariable(pos, variables);
}

int VariableOperation::FindVariable(int& pos, CVariableFormulaParser* parser) {
  return static_cast<int>(
      zeb::FindVariableName(zeb::FormulaAccess::Text(*parser), static_cast<std::size_t>(pos)));
}

int VariableOperation::FindQuotedVariable(int& pos, CVariableFormulaParser* parser) {
  return static_cast<int>(
      zeb::FindQuotedVariableName(zeb::FormulaAccess::Text(*parser), static_cast<std::size_t>(pos)));
}

double VariableOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  if (length == 0) {
    Operation* const next = GetNextOperation(parser);
    if (next == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::FunctionVariableExpected);
    return next->Eval(pos, parser);
  }
  CVariableFormulaParser* const variables = WithVariables(parser);
  const std::wstring name = parser->Mid(pos, length);
  double value = 0.0;
  if (zeb::FormulaAccess::IsScanning(*variables)) {
    zeb::FormulaAccess::AddScanned(*variables, name);
  } else {
    value = zeb::FormulaAccess::NumericValue(*variables, name);
  }
  pos += length;
  return value;
}

std::wstring StringVariableOperation::EvalString(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  std::wstring value;
  if (length == 0) return value;
  CVariableFormulaParser* const variables = WithVariables(parser);
  const std::wstring name = parser->Mid(pos, length);
  if (zeb::FormulaAccess::IsScanning(*variables)) {
    zeb::FormulaAccess::AddScannedString(*variables, name);
  } else if (!zeb::FormulaAccess::FindString(*variables, name, value)) {
    zeb::ThrowFormulaError(zeb::ErrorKeys::VariableNotFound);
  }
  pos += length;
  return value;
}

VariableOperation* GetVariableOperation() {
  static VariableOperation operation;
  return &operation;
}

StringVariableOperation* GetStringVariableOperation() {
  static StringVariableOperation operation;
  return &operation;
}
