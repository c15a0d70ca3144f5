#pragma once

#include "formula/FormulaCharacters.h"
#include "formula/FormulaOperators.h"

#include <cstddef>
#include <string_view>

class CFormulaParser;
class CVariableFormulaParser;
class Operation;
class OperationList;

namespace zeb {

struct FunctionEntry;

/// What a usual list of operations adds to the plain language.
struct WalkedLanguage {
  bool stringFunctions = false;
  bool variables = false;
  bool stringConstants = false;
};

/// Evaluates a text by the usual operations, in one pass.
///
/// Gives what their walk from entry to entry gives: the same value to the last bit, or the same key at the same
/// position. Ten entries look at each operand there; here a character decides, and no operator costs an allocation.
/// Lists that a caller has changed are walked entry by entry.
class FormulaWalk {
 public:
  /// Whether a list is a usual one.
  static bool Knows(const OperationList& operations, WalkedLanguage& language);

  FormulaWalk(CFormulaParser& parser, const WalkedLanguage& language);

  /// The value of an expression at the parser's position, which moves behind it and the blanks that follow.
  double Expression();

 private:
  // One level of operators each, loosest first; all leave m_next as the operator behind what they read.
  double Logic();
  double Sum();
  double Prefixed();
  double WithPrefix();
  double Product();
  double Power();
  double Operand();

  double Bracket();
  /// A number that begins with a digit.
  double Number();
  /// What begins neither with a bracket nor with a digit.
  double Other();
  /// A constant, a call, a variable or a string.
  double Named();
  double Call(const FunctionEntry& entry);
  double Condition();
  /// A part of a condition behind its `;`, computed only if it is chosen.
  double Part(bool chosen);
  /// @param known how many characters of the name have been read as a function's name already
  double Variable(std::size_t known);
  /// Has one of the operations evaluate the text.
  double Through(Operation* operation);

  void SkipBlanks() {
    const auto pos = static_cast<std::size_t>(m_pos);
    if (pos < m_text.size() && !MayBeSkipped(m_text[pos])) return;
    SkipBlanksAtPosition();
  }
  void SkipBlanksAtPosition();
  void FindNext();
  /// Steps over the operator in m_next and the blanks behind it.
  BinaryOperator TakeNext();
  /// The character at the position, NUL at the end of the text.
  wchar_t Current() const {
    const auto pos = static_cast<std::size_t>(m_pos);
    return pos < m_text.size() ? m_text[pos] : L'\0';
  }
  bool Follows(OperatorLevel level) const { return LevelOf(m_next.op) == level; }
  bool IsAt(wchar_t c) const { return Current() == c; }
  void ExpectOpeningBracket();
  void ExpectClosingBracket();
  const FunctionEntry* EnabledFunction(std::wstring_view name) const;

  CFormulaParser& m_parser;
  const WalkedLanguage m_language;
  const std::wstring_view m_text;
  int& m_pos;
  const bool& m_computing;
  CVariableFormulaParser* m_variables = nullptr;  // observer; m_parser, once a variable has been met
  FoundOperator m_next;
};

}  // namespace zeb
