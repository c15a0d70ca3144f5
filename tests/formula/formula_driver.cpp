// Evaluates the formulas of its standard input, for comparison with another evaluator of the language.
//
// Arguments are variables, NAME=VALUE with a hexadecimal floating-point value. Each line of the input is `KM FORMULA`
// in UTF-8: K is p for a plain parser and v for one with the variables, M is c to compute and s to check the syntax
// only. Each line of the output is the value's bits, or an error key and its position.

#include "formula/FormulaTestSupport.h"

#include <bit>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <iostream>

namespace {

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
  CVariableFormulaParser variables;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const std::size_t equals = argument.find('=');
    variables.AddVariable(formulatest::Wide(argument.substr(0, equals)),
                          std::stod(argument.substr(equals + 1)));
  }
  for (std::string line; std::getline(std::cin, line);) {
    CFormulaParser& parser = line[0] == 'v' ? variables : plain;
    parser = formulatest::Wide(line.substr(3));
    Print(formulatest::Run(parser, line[1] == 'c'));
  }
  return 0;
}
