// What docs/formula-language.md tells authors of reports is so.

#include "formula/FormulaTestSupport.h"
#include "foundation/ErrorKeys.h"
#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>

namespace {

std::vector<std::string> Lines() {
  std::ifstream file(ZEB_DOCS "/formula-language.md");
  EXPECT_TRUE(file.is_open());
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

CVariableFormulaParser ParserOfTheDocument() {
  CVariableFormulaParser parser;
  parser.EnableQuotedVariable(true);
  parser.SetWithStringFunctions(true);
  parser.AddVariable(L"Preis", 20.0);
  parser.AddVariable(L"Menge", 3.0);
  parser.AddVariable(L"Rabatt", 0.0);
  parser.AddVariable(L"Total Netto", 60.0);
  parser.AddStringVariable(L"Name", L"Meier");
  return parser;
}

}  // namespace

TEST(FormulaLanguageDocument, ExamplesHaveTheirOutcomes) {
  CVariableFormulaParser parser = ParserOfTheDocument();
  bool inExamples = false;
  int examples = 0;
  for (const std::string& line : Lines()) {
    if (line.starts_with("```")) {
      inExamples = line == "```formula";
    } else if (inExamples) {
      const formulatest::TableLine example = formulatest::ParseTableLine(line);
      parser = example.formula;
      const formulatest::Outcome outcome = formulatest::Run(parser);
      EXPECT_TRUE(formulatest::Same(outcome, example.computed)) << line << ": " << formulatest::Text(outcome);
      ++examples;
    }
  }
  EXPECT_GT(examples, 50);
}

TEST(FormulaLanguageDocument, ErrorsHaveTheirNumbersTextsAndExamples) {
  CKXExceptionHandler& handler = CKXExceptionHandler::GetInstance();
  std::map<std::string, std::string> rows;
  const std::regex row(R"(\| (3\d\d\d) \| (\w+) \| .* \| (`(.*)`)? ?\|)");
  for (const std::string& line : Lines()) {
    std::smatch parts;
    if (!std::regex_match(line, parts, row)) continue;
    const std::string key = parts[2];
    rows[key] = line;
    try {
      handler.ThrowException(formulatest::Wide(key).c_str());
    } catch (const CKXParserException& exception) {
      EXPECT_EQ(std::to_string(exception.GetErrorNr()), parts[1]) << key;
    }
    if (!parts[3].matched) continue;
    CVariableFormulaParser parser = ParserOfTheDocument();
    parser = formulatest::Wide(parts[4]);
    EXPECT_EQ(formulatest::Run(parser).key, formulatest::Wide(key)) << line;
  }
  EXPECT_EQ(rows.size(), 24U);
}
