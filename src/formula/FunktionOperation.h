#pragma once

#include "formula/Operation.h"

#include <vector>

/// The constants `pi` and `e` and the calls of numeric functions. Values from here and from all entries behind are
/// rounded to 14 decimals while the parser computes.
/// Keys: "FunctionExpected", "OpeningBracketExpected", "ClosingBracketExpected", "WrongFunctionParameterCount",
/// "IllegalParameter", "NegativeRoot", "InternalParserError".
class ZEB_EXPORT FunktionOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
  /// Reads `( x; y; ... )` and returns the number of arguments.
  int Parameter(int& pos, CFormulaParser* parser, std::vector<double>& werte);
  /// Reads `( condition; then; else )` behind the name and returns the chosen part. Computing is switched off for the
  /// other part, so that its numeric errors cannot fire.
  double EvalWenn(int& pos, CFormulaParser* parser);
};

/// The one object of the class, made at the first call; it belongs to nobody and lives to the end of the process.
ZEB_EXPORT FunktionOperation* GetFunktionOperation();
