// Evaluates the formulas of its standard input, for comparison with another evaluator of the language.
//
// Arguments are variables, NAME=VALUE with a hexadecimal floating-point value. Each line of the input is `KM FORMULA`
// in UTF-8: K is p for a plain parser and v for one with the variables, M is c to compute and s to check the syntax
// only. Each line of the output is the value's bits, or an error key and its position. Each formula is evaluated in one
// pass and from entry to entry of the list of operations; where the two differ, the line says so.

#include "formula/FormulaTestSupport.h"

#include "formula/OpenParser.h"
#include "formula/TransparentOperation.h"

#include <bit>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <iostream>

namespace {

/// With an operation more, so that the list is walked from entry to entry.
template <class Parser>
class ExtendedParser : public formulatest::OpenParser<Parser> {
 public:
  using formulatest::OpenParser<Parser>::operator=;

  ExtendedParser() { this->InsertOperationBefore(&m_transparent, this->GetFirstOperation()); }

 private:
  formulatest::TransparentOperation m_transparent;
};

void Print(const formulatest::Outcome& outcome) {
  if (outcome.key.empty()) {
    std::printf("%016" PRIx64 "\n", std::bit_cast<std::uint64_t>(outcome.value));
  } else {
    std::printf("%s %d\n", std::string(outcome.key.begin(), outcome.key.end()).c_str(), outcome.position);
  }
}

}  // namespace

int main(int argc, char** argv) {
  formulatest::LoadErrorCatalogue();
  CFormulaParser plain;
  ExtendedParser<CFormulaParser> plainExtended;
  CVariableFormulaParser variables;
  ExtendedParser<CVariableFormulaParser> variablesExtended;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const std::size_t equals = argument.find('=');
    const std::wstring name = formulatest::Wide(argument.substr(0, equals));
    variables.AddVariable(name, std::stod(argument.substr(equals + 1)));
    variablesExtended.AddVariable(name, std::stod(argument.substr(equals + 1)));
  }
  for (std::string line; std::getline(std::cin, line);) {
    const bool named = line[0] == 'v';
    CFormulaParser& parser = named ? variables : plain;
    CFormulaParser& extended = named ? static_cast<CFormulaParser&>(variablesExtended) : plainExtended;
    parser = formulatest::Wide(line.substr(3));
    extended = formulatest::Wide(line.substr(3));
    const formulatest::Outcome outcome = formulatest::Run(parser, line[1] == 'c');
    if (!formulatest::Same(outcome, formulatest::Run(extended, line[1] == 'c')))
      std::printf("the walks differ: ");
    Print(outcome);
  }
  return 0;
}
