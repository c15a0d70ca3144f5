// The language, line by line: every table in every kind of parser that it holds for, under two decimal marks, computing
// and checking the syntax only, with fresh parsers and with one that is used again and again.

#include "formula/FormulaTestSupport.h"
#include "formula/TransparentOperation.h"

#include <gtest/gtest.h>

#include <cwctype>
#include <memory>
#include <ostream>

using formulatest::Outcome;
using formulatest::Same;
using formulatest::TableLine;
using formulatest::Text;

namespace {

template <class Parser>
class ExtendedParser : public Parser {
 public:
  ExtendedParser() { this->InsertOperationBefore(&m_transparent, this->GetFirstOperation()); }

 private:
  formulatest::TransparentOperation m_transparent;
};

enum class Kind { Plain, Variables, Quoted, Strings };

std::unique_ptr<CFormulaParser> MakeParser(Kind kind, bool extended) {
  if (kind == Kind::Plain) {
    return extended ? std::make_unique<ExtendedParser<CFormulaParser>>() : std::make_unique<CFormulaParser>();
  }
  std::unique_ptr<CVariableFormulaParser> parser =
      extended ? std::make_unique<ExtendedParser<CVariableFormulaParser>>()
               : std::make_unique<CVariableFormulaParser>();
  formulatest::AddTableVariables(*parser);
  parser->EnableQuotedVariable(kind != Kind::Variables);
  parser->SetWithStringFunctions(kind == Kind::Strings);
  return parser;
}

bool BeginsName(wchar_t c) {
  return std::iswalpha(static_cast<std::wint_t>(c)) != 0 || c == L'#' || c == L'_';
}

/// The outcome of a plain parser's line in a parser with variables.
Outcome WithVariables(const std::wstring& formula, Outcome outcome) {
  if (outcome.key == L"FunctionExpected") {
    const auto position = static_cast<std::size_t>(outcome.position);
    const bool name = position < formula.size() && BeginsName(formula[position]);
    outcome.key = name ? L"VariableNotFound" : L"FunctionVariableExpected";
  }
  return outcome;
}

void ExpectOutcome(const std::string& table, const TableLine& line, const Outcome& expected,
                   const Outcome& actual, bool compute) {
  // A value is promised by computing runs only.
  const bool good =
      compute ? Same(expected, actual) : expected.key == actual.key && expected.position == actual.position;
  EXPECT_TRUE(good) << table << ":" << line.number << (compute ? "" : " (syntax only)") << ": expected "
                    << Text(expected) << ", got " << Text(actual);
}

struct Setting {
  std::string table;
  Kind kind;
  std::string locale;
};

void PrintTo(const Setting& setting, std::ostream* stream) {
  *stream << setting.table << ", parser " << static_cast<int>(setting.kind) << ", locale " << setting.locale;
}

class FormulaTable : public testing::TestWithParam<Setting> {
 protected:
  void Check(bool extended) const {
    const Setting& setting = GetParam();
    const formulatest::LocaleScope locale(setting.locale.c_str());
    ASSERT_TRUE(locale.IsSet()) << setting.locale;
    const bool plainTable = setting.table == "operators.txt" || setting.table == "functions.txt";
    const std::unique_ptr<CFormulaParser> reused = MakeParser(setting.kind, extended);
    for (const TableLine& line : formulatest::ReadTable(setting.table)) {
      for (const bool compute : {true, false}) {
        Outcome expected = line.Expected(compute);
        if (plainTable && setting.kind != Kind::Plain) expected = WithVariables(line.formula, expected);
        const std::unique_ptr<CFormulaParser> fresh = MakeParser(setting.kind, extended);
        *fresh = line.formula;
        ExpectOutcome(setting.table, line, expected, formulatest::Run(*fresh, compute), compute);
        *reused = line.formula;
        for (int run = 0; run < 2; ++run) {
          ExpectOutcome(setting.table, line, expected, formulatest::Run(*reused, compute), compute);
        }
      }
    }
  }
};

TEST_P(FormulaTable, GivesTheOutcomesOfItsLines) { Check(false); }

TEST_P(FormulaTable, GivesTheSameOutcomesWithAnOperationMore) { Check(true); }

std::vector<Setting> Settings() {
  std::vector<Setting> settings;
  for (const std::string locale : {"C", "de_DE.UTF-8"}) {
    for (const std::string table : {"operators.txt", "functions.txt"}) {
      settings.push_back({table, Kind::Plain, locale});
      settings.push_back({table, Kind::Variables, locale});
    }
    settings.push_back({"variables.txt", Kind::Variables, locale});
    settings.push_back({"quoted_variables.txt", Kind::Quoted, locale});
    settings.push_back({"strings.txt", Kind::Strings, locale});
  }
  return settings;
}

INSTANTIATE_TEST_SUITE_P(Tables, FormulaTable, testing::ValuesIn(Settings()));

}  // namespace
