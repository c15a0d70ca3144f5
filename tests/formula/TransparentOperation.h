#pragma once

#include "formula/Operation.h"

namespace formulatest {

/// Hands everything on: makes a list of operations that is not the usual one.
class TransparentOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override { return EvalNextOperation(pos, parser); }

 protected:
  int FindOperation(int& /*pos*/, CFormulaParser* /*parser*/) override { return 0; }
};

}  // namespace formulatest
