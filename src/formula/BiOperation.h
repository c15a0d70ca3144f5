#pragma once

#include "formula/Operation.h"

#include <string>

/// A level of binary operators, all of them associative from left to right. Both operands are always evaluated.
class ZEB_EXPORT BiOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;
  /// The value of `a op b`. Rounded to 14 decimals while the parser computes.
  /// @param op the operator as it stands in the text; unknown to the level: "InternalParserError"
  virtual double BerechneOp(CFormulaParser* parser, std::wstring op, double a, double b) = 0;
};

/// `<` `<=` `>` `>=` `==` `<>`: the loosest level. Compares at 14 significant digits; the value is 1.0 or 0.0.
class ZEB_EXPORT VergleichOperation : public BiOperation {
 public:
  double BerechneOp(CFormulaParser* parser, std::wstring op, double a, double b) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
};

/// `&&` and `||`, one level without precedence between them; the value is 1.0 or 0.0.
class ZEB_EXPORT UndOderOperation : public BiOperation {
 public:
  double BerechneOp(CFormulaParser* parser, std::wstring op, double a, double b) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
};

/// `+` and `-`. Adds and subtracts also in a run that checks the syntax only.
class ZEB_EXPORT PlusMinusOperation : public BiOperation {
 public:
  double BerechneOp(CFormulaParser* parser, std::wstring op, double a, double b) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
};

/// `*`, `/` and `:`, and the switchable words `mod` and `div`. The value is 0.0 unless the parser computes.
/// Keys while computing: "DivisionByZero", "ZeroDividedByZero".
class ZEB_EXPORT MalDurchOperation : public BiOperation {
 public:
  double BerechneOp(CFormulaParser* parser, std::wstring op, double a, double b) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
};

/// Power `^` `**` (a to the b) and root `~` `//` (the a-th root of b). The value is 0.0 unless the parser computes.
/// Keys while computing: "NullPowerNegative", "NegativePowerFraction", "ZeroRoot", "NegativeRoot", "NegativeRootNull".
class ZEB_EXPORT PotenzOperation : public BiOperation {
 public:
  double BerechneOp(CFormulaParser* parser, std::wstring op, double a, double b) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
};

// The one object of each class, made at the first call; it belongs to nobody and lives to the end of the process.
ZEB_EXPORT VergleichOperation* GetVergleichOperation();
ZEB_EXPORT UndOderOperation* GetUndOderOperation();
ZEB_EXPORT PlusMinusOperation* GetPlusMinusOperation();
ZEB_EXPORT MalDurchOperation* GetMalDurchOperation();
ZEB_EXPORT PotenzOperation* GetPotenzOperation();
