#pragma once

#include "formula/VariableFormulaParser.h"

#include <clocale>
#include <optional>
#include <string>
#include <vector>

namespace formulatest {

/// Reads the catalogue of errors, so that failures of formulas are those of the language.
void LoadErrorCatalogue();

/// The key of a catalogue's error number, empty for 0 and for unknown numbers.
std::wstring KeyOfError(int number);

/// What a run gave: a value, or a key and a position.
struct Outcome {
  std::wstring key;
  int position = 0;
  double value = 0.0;
};

/// Runs the parser's text.
Outcome Run(CFormulaParser& parser, bool compute = true);

/// `key @position`, or the value with all its digits.
std::string Text(const Outcome& outcome);

/// Whether two outcomes are the same, values to the last bit.
bool Same(const Outcome& a, const Outcome& b);

/// A line of a table: a formula and its outcomes.
struct TableLine {
  int number;
  std::wstring formula;
  Outcome computed;
  std::optional<Outcome> checked;  ///< of a run that checks the syntax only, where it differs from `computed`

  Outcome Expected(bool compute) const { return compute || !checked ? computed : *checked; }
};

/// A line `FORMULA => OUTCOME`, or `FORMULA => OUTCOME | OUTCOME`.
TableLine ParseTableLine(const std::string& line);

std::vector<TableLine> ReadTable(const std::string& name);

/// The variables that the tables name.
void AddTableVariables(CVariableFormulaParser& parser);

/// Sets a locale for a scope and restores the one before.
class LocaleScope {
 public:
  explicit LocaleScope(const char* name)
      : m_before(std::setlocale(LC_ALL, nullptr)), m_set(std::setlocale(LC_ALL, name)) {}
  ~LocaleScope() { std::setlocale(LC_ALL, m_before.c_str()); }
  LocaleScope(const LocaleScope&) = delete;
  LocaleScope& operator=(const LocaleScope&) = delete;

  bool IsSet() const { return m_set != nullptr; }

 private:
  std::string m_before;
  const char* m_set;
};

/// The program's characters as wide ones; UTF-8 is decoded.
std::wstring Wide(const std::string& text);

}  // namespace formulatest
