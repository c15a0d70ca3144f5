#pragma once

#include "formula/Operation.h"

/// A number: digits, a decimal mark and digits. `.` and `,` are both decimal marks whatever the locale; there is no
/// exponent. Each number is rounded to 14 decimals at once. Keys: "DoubleExpected", "NumberTooLong".
class ZEB_EXPORT ZahlOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
  /// The value of the `n` characters at `pos`, which stays where it is.
  double TakeDouble(int& pos, int n, CFormulaParser* parser);
};

/// The one object of the class, made at the first call; it belongs to nobody and lives to the end of the process.
ZEB_EXPORT ZahlOperation* GetZahlOperation();
