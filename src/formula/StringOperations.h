#pragma once

#include "formula/Operation.h"

#include <string>
#include <vector>

/// Calls of `strcmp`, whose arguments are string constants and string variables, not expressions. The value is -1, 0
/// or 1 while the parser computes, else 0. Keys: "FunctionExpected", "OpeningBracketExpected",
/// "ClosingBracketExpected", "WrongFunctionParameterCount".
class ZEB_EXPORT StringFunktionOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
  /// Reads `( string ; string ... )` and returns the number of strings.
  int Parameter(int& pos, CFormulaParser* parser, std::vector<std::wstring>& werte);
};

/// A string constant `"..."`, last in the list of a parser with string functions. In a numeric place it is worth 0.0.
/// Blanks and comments inside it are dropped. Keys: "ConstStringEndMissing", "FunctionVariableExpected".
class ZEB_EXPORT ConstStringOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;
  /// The text of the constant at `pos`, which then stands on the closing quote; empty if there is no constant.
  std::wstring EvalString(int& pos, CFormulaParser* parser);

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
};

// The one object of each class, made at the first call; it belongs to nobody and lives to the end of the process.
ZEB_EXPORT StringFunktionOperation* GetStringFunktionOperation();
ZEB_EXPORT ConstStringOperation* GetConstStringOperation();
