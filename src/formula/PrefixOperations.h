#pragma once

#include "formula/Operation.h"

/// `!` in front of an operand, once: 1.0 for 0.0, else 0.0. Binds tighter than `+` and looser than `*`.
class ZEB_EXPORT NotOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
};

/// `-` where a sign may stand: at the start of the text, behind `(` `;` `=` `!` `>` `<` and behind a comment. Once;
/// binds looser than `*` and `^`.
class ZEB_EXPORT NegVorzeichenOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
};

/// `(` expression `)`. Keys: "ClosingBracketExpected", "InternalParserError" beyond 200 levels.
class ZEB_EXPORT KlammerOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override;

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override;
};

// The one object of each class, made at the first call; it belongs to nobody and lives to the end of the process.
ZEB_EXPORT NotOperation* GetNotOperation();
ZEB_EXPORT NegVorzeichenOperation* GetNegVorzeichenOperation();
ZEB_EXPORT KlammerOperation* GetKlammerOperation();
