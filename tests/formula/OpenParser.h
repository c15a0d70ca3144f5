#pragma once

#include "formula/FormulaTestSupport.h"
#include "formula/Operation.h"

#include <gtest/gtest.h>

#include <vector>

namespace formulatest {

/// Shows a parser's list of operations and lets a test edit it.
template <class Parser>
class OpenParser : public Parser {
 public:
  using Parser::Parser;
  using Parser::operator=;
  using Parser::DeleteOperation;
  using Parser::GetFirstOperation;
  using Parser::GetNextOperation;
  using Parser::InsertOperationBefore;
  using Parser::ReplaceOperation;

  std::vector<const Operation*> Chain() {
    std::vector<const Operation*> chain;
    for (Operation* operation = this->GetFirstOperation(); operation != nullptr;
         operation = this->GetNextOperation(operation)) {
      chain.push_back(operation);
    }
    return chain;
  }
};

/// Expects that the parser's text fails.
inline void ExpectError(CFormulaParser& parser, const wchar_t* key, int position, bool compute = true) {
  const Outcome outcome = Run(parser, compute);
  EXPECT_EQ(outcome.key, key);
  EXPECT_EQ(outcome.position, position);
}

/// Expects that the parser's text has a value.
inline void ExpectValue(CFormulaParser& parser, double value) {
  const Outcome outcome = Run(parser);
  EXPECT_TRUE(Same(outcome, Outcome{{}, 0, value})) << Text(outcome);
}

}  // namespace formulatest
