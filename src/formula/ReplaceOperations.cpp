#include "formula/ReplaceOperations.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaSigns.h"
#include "formula/FunctionTable.h"
#include "formula/ReplaceVariableFormulaParser.h"
#include "foundation/ErrorKeys.h"

namespace {

CReplaceVariableFormulaParser& WithReplacements(CFormulaParser* parser) {
  auto* const replacing = dynamic_cast<CReplaceVariableFormulaParser*>(parser);
  if (replacing == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::InternalParserError);
  return *replacing;
}

/// Lists the name of `length` characters at `pos` in a scanning run, else replaces it if it is known.
void ListOrReplace(CReplaceVariableFormulaParser& parser, int& pos, int length) {
  if (zeb::FormulaAccess::IsScanning(parser)) {
    zeb::FormulaAccess::AddScanned(parser, parser.Mid(pos, length));
    pos += length;
  } else if (zeb::FormulaAccess::IsReplaceable(parser, parser.Mid(pos, length))) {
    pos += zeb::FormulaAccess::ReplaceAt(parser, pos, length);
  }
}

void ReadString(int& pos, CFormulaParser* parser) {
  if (zeb::IsAt(*parser, pos, gccConstStringKennzeichen)) {
    GetConstStringOperation()->EvalString(pos, parser);
    ++pos;
    return;
  }
  const int before = pos;
  GetReplaceStringVariableOperation()->EvalString(pos, parser);
  if (pos == before) zeb::ThrowFormulaError(zeb::ErrorKeys::WrongFunctionParameterCount);
}

/// Reads `( string ; string ... )`.
void ReadStrings(int& pos, CFormulaParser* parser) {
  if (!zeb::IsAt(*parser, pos, L'(')) zeb::ThrowFormulaError(zeb::ErrorKeys::OpeningBracketExpected);
  ++pos;
  while (pos < parser->GetLength()) {
    parser->EatWhite();
    if (zeb::IsAt(*parser, pos, L')')) break;
    if (!zeb::IsAt(*parser, pos, L';')) {
      ReadString(pos, parser);
      continue;
    }
    zeb::StepOverStringSeparator(pos, *parser);
  }
  parser->EatWhite();
  if (!zeb::IsAt(*parser, pos, L')')) zeb::ThrowFormulaError(zeb::ErrorKeys::ClosingBracketExpected);
  ++pos;
}

}  // namespace

double ReplaceVariableOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  if (length != 0) {
    ListOrReplace(WithReplacements(parser), pos, length);
    return 0.0;
  }
  Operation* const next = GetNextOperation(parser);
  if (next == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::FunctionVariableExpected);
  return next->Eval(pos, parser);
}

std::wstring ReplaceStringVariableOperation::EvalString(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  if (length != 0) ListOrReplace(WithReplacements(parser), pos, length);
  return {};
}

double ReplaceStringFunktionOperation::Eval(int& pos, CFormulaParser* parser) {
  parser->EatWhite();
  const int length = FindOperation(pos, parser);
  if (length != 0 && parser->IsThisFunktionEx(zeb::kStringCompareBit, parser->Mid(pos, length))) {
    pos += length;
    parser->EatWhite();
    ReadStrings(pos, parser);
    return 0.0;
  }
  Operation* const next = GetNextOperation(parser);
  if (next == nullptr) zeb::ThrowFormulaError(zeb::ErrorKeys::FunctionExpected);
  return next->Eval(pos, parser);
}

ReplaceVariableOperation* GetReplaceVariableOperation() {
  static ReplaceVariableOperation operation;
  return &operation;
}

ReplaceStringVariableOperation* GetReplaceStringVariableOperation() {
  static ReplaceStringVariableOperation operation;
  return &operation;
}

ReplaceStringFunktionOperation* GetReplaceStringFunktionOperation() {
  static ReplaceStringFunktionOperation operation;
  return &operation;
}
