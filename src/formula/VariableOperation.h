#pragma once

#include "formula/Operation.h"

#include <string>

class CVariableFormulaParser;

/// A named value. In a scanning run the name is listed instead. Serves parsers of the class CVariableFormulaParser only.
/// Keys: "FunctionVariableExpected", "VariableNotFound", "VariableEndMissing", "InternalParserError".
class ZEB_EXPORT VariableOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
  /// Length of a bare name: a letter, `#` or `_`, then letters, digits, `#` and `_`.
  int FindVariable(int& pos, CVariableFormulaParser* parser);
  /// Length of a name that may stand in `[ ]`, with the brackets.
  int FindQuotedVariable(int& pos, CVariableFormulaParser* parser);
};

/// A named string, as an argument of a string function.
class ZEB_EXPORT StringVariableOperation : public VariableOperation {
 public:
  /// The value of the string variable at `pos`; empty, with `pos` where it was, if no name stands there.
  std::wstring EvalString(int& pos, CFormulaParser* parser);
};

// The one object of each class, made at the first call; it belongs to nobody and lives to the end of the process.
ZEB_EXPORT VariableOperation* GetVariableOperation();
ZEB_EXPORT StringVariableOperation* GetStringVariableOperation();
