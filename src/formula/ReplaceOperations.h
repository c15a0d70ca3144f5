#pragma once

#include "formula/StringOperations.h"
#include "formula/VariableOperation.h"

#include <string>

/// A variable's name, which is replaced in the text; its value is 0.0. An unknown name stays unread, so that the run
/// ends there. Serves parsers of the class CReplaceVariableFormulaParser only.
class ZEB_EXPORT ReplaceVariableOperation : public VariableOperation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;
};

/// A string variable's name, which is replaced in the text.
class ZEB_EXPORT ReplaceStringVariableOperation : public StringVariableOperation {
 public:
  /// Replaces the name at `pos`; the result is always empty.
  std::wstring EvalString(int& pos, CFormulaParser* parser);
};

/// Calls of `strcmp` whose names are replaced in the text. The number of arguments is not checked; the value is 0.0.
class ZEB_EXPORT ReplaceStringFunktionOperation : public StringFunktionOperation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;
};

// The one object of each class, made at the first call; it belongs to nobody and lives to the end of the process.
ZEB_EXPORT ReplaceVariableOperation* GetReplaceVariableOperation();
ZEB_EXPORT ReplaceStringVariableOperation* GetReplaceStringVariableOperation();
ZEB_EXPORT ReplaceStringFunktionOperation* GetReplaceStringFunktionOperation();
