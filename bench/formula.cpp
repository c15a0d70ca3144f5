// Formulas of reports, evaluated once each as a layouter does: ours makes a parser, gives it the variables and the text and
// evaluates. muParser and fparser keep their parser and its variables; each time they parse the text and evaluate. The
// formulas are the same in the spelling of each language.

#include "formula/VariableFormulaParser.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#ifdef ZEB_HAS_MUPARSER
#include <muParser.h>
#endif
#ifdef ZEB_HAS_FPARSER
#include <fparser.hh>
#endif

namespace {

struct Formula {
  const char* name;
  std::string ours;
  std::string muparser;
  std::string fparser;
};

constexpr double kMenge = 12.0;
constexpr double kPreis = 19.95;
constexpr double kRabatt = 2.5;

std::string LongSum() {
  std::string text = "Preis";
  for (int i = 1; i <= 40; ++i) text += " + " + std::to_string(i * 7) + "." + std::to_string(10 + i);
  return text;
}

const std::vector<Formula>& Formulas() {
  static const std::vector<Formula> formulas = {
      {"price", "Menge * Preis * (1 - Rabatt / 100) * 1.19", "Menge * Preis * (1 - Rabatt / 100) * 1.19",
       "Menge * Preis * (1 - Rabatt / 100) * 1.19"},
      {"condition", "wenn(Menge >= 100; Preis * 0.8; wenn(Menge >= 10; Preis * 0.9; Preis))",
       "Menge >= 100 ? Preis * 0.8 : (Menge >= 10 ? Preis * 0.9 : Preis)",
       "if(Menge >= 100, Preis * 0.8, if(Menge >= 10, Preis * 0.9, Preis))"},
      {"logic", "(Menge > 5) && (Preis < 100) && (Rabatt <= 50) && (Menge <> 13)",
       "(Menge > 5) && (Preis < 100) && (Rabatt <= 50) && (Menge != 13)",
       "(Menge > 5) & (Preis < 100) & (Rabatt <= 50) & (Menge != 13)"},
      {"functions",
       "sqrt(Menge * Menge + Preis * Preis) + abs(Rabatt - 7) + max(Menge; Preis) + exp(Rabatt / 100) + "
       "ln(Preis)",
       "sqrt(Menge * Menge + Preis * Preis) + abs(Rabatt - 7) + max(Menge, Preis) + exp(Rabatt / 100) + "
       "ln(Preis)",
       "sqrt(Menge * Menge + Preis * Preis) + abs(Rabatt - 7) + max(Menge, Preis) + exp(Rabatt / 100) + "
       "log(Preis)"},
      {"sum", LongSum(), LongSum(), LongSum()},
  };
  return formulas;
}

double EvaluateOurs(const std::wstring& text) {
  CVariableFormulaParser parser(text, false);
  parser.AddVariable(L"Menge", kMenge);
  parser.AddVariable(L"Preis", kPreis);
  parser.AddVariable(L"Rabatt", kRabatt);
  if (!parser.WerteAus(true)) std::abort();
  return parser.GetWert();
}

void MeasureOurs(benchmark::State& state, const Formula& formula) {
  const std::wstring text(formula.ours.begin(), formula.ours.end());
  for (auto _ : state) benchmark::DoNotOptimize(EvaluateOurs(text));
}

/// With one parser for all, as the peers have.
void MeasureOursReused(benchmark::State& state, const Formula& formula) {
  const std::wstring text(formula.ours.begin(), formula.ours.end());
  CVariableFormulaParser parser;
  parser.AddVariable(L"Menge", kMenge);
  parser.AddVariable(L"Preis", kPreis);
  parser.AddVariable(L"Rabatt", kRabatt);
  for (auto _ : state) {
    parser = text;
    benchmark::DoNotOptimize(parser.WerteAus(true));
    benchmark::DoNotOptimize(parser.GetWert());
  }
}

/// Stops the program if a peer has another value: then the formulas are not the same.
void CheckValue(const Formula& formula, double value) {
  const double ours = EvaluateOurs(std::wstring(formula.ours.begin(), formula.ours.end()));
  if (std::fabs(value - ours) <= 1e-9 * std::fabs(ours)) return;
  std::cerr << "bench_formula: " << formula.name << ": " << ours << " here and " << value << " there\n";
  std::exit(1);
}

#ifdef ZEB_HAS_MUPARSER
void MeasureMuParser(benchmark::State& state, const Formula& formula) {
  double menge = kMenge;
  double preis = kPreis;
  double rabatt = kRabatt;
  mu::Parser parser;
  parser.DefineVar("Menge", &menge);
  parser.DefineVar("Preis", &preis);
  parser.DefineVar("Rabatt", &rabatt);
  parser.SetExpr(formula.muparser);
  CheckValue(formula, parser.Eval());
  for (auto _ : state) {
    parser.SetExpr(formula.muparser);
    benchmark::DoNotOptimize(parser.Eval());
  }
}
#endif

#ifdef ZEB_HAS_FPARSER
void MeasureFParser(benchmark::State& state, const Formula& formula) {
  FunctionParser parser;
  const double values[] = {kMenge, kPreis, kRabatt};
  const std::string names = "Menge,Preis,Rabatt";
  if (parser.Parse(formula.fparser, names) >= 0) std::abort();
  CheckValue(formula, parser.Eval(values));
  for (auto _ : state) {
    parser.Parse(formula.fparser, names);
    benchmark::DoNotOptimize(parser.Eval(values));
  }
}
#endif

void Register(const char* peer, void (*measure)(benchmark::State&, const Formula&), const Formula& formula) {
  benchmark::RegisterBenchmark((std::string("formula/") + formula.name + "/" + peer).c_str(),
                               [measure, &formula](benchmark::State& state) { measure(state, formula); });
}

}  // namespace

int main(int argc, char** argv) {
  for (const Formula& formula : Formulas()) {
    Register("ours", MeasureOurs, formula);
    Register("ours_reused", MeasureOursReused, formula);
#ifdef ZEB_HAS_MUPARSER
    Register("muparser", MeasureMuParser, formula);
#endif
#ifdef ZEB_HAS_FPARSER
    Register("fparser", MeasureFParser, formula);
#endif
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
