// Formulas that are meant to hurt: each ends in an outcome, within a second and without the stack.

#include "formula/OpenParser.h"
#include "formula/ReplaceVariableFormulaParser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <memory>

namespace {

constexpr std::size_t kMegabyte = 1 << 20;

std::wstring Repeated(const std::wstring& part, std::size_t times) {
  std::wstring text;
  text.reserve(part.size() * times);
  for (std::size_t i = 0; i < times; ++i) text += part;
  return text;
}

std::vector<std::unique_ptr<CFormulaParser>> EveryParser() {
  std::vector<std::unique_ptr<CFormulaParser>> parsers;
  parsers.push_back(std::make_unique<CFormulaParser>());
  auto variables = std::make_unique<CVariableFormulaParser>();
  variables->AddVariable(L"a", 1.0);
  variables->EnableQuotedVariable(true);
  variables->SetWithStringFunctions(true);
  parsers.push_back(std::move(variables));
  auto replacing = std::make_unique<CReplaceVariableFormulaParser>();
  replacing->AddReplace(L"a", L"b");
  replacing->EnableQuotedVariable(true);
  replacing->SetWithStringFunctions(true);
  parsers.push_back(std::move(replacing));
  return parsers;
}

/// The processor time of the program so far, which other programs do not lengthen.
double Seconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

double SecondsOfRun(CFormulaParser& parser, bool compute) {
  const double start = Seconds();
  parser.WerteAus(compute);
  return Seconds() - start;
}

/// Expects that a text fails in every parser and mode, soon.
void ExpectFailure(const std::wstring& text) {
  for (const std::unique_ptr<CFormulaParser>& parser : EveryParser()) {
    for (const bool compute : {true, false}) {
      *parser = text;
      EXPECT_LT(SecondsOfRun(*parser, compute), 1.0);
      EXPECT_NE(parser->GetErrorCode(), 0);
      EXPECT_GE(parser->GetErrPos(), 0);
      EXPECT_LE(parser->GetErrPos(), parser->GetLength());
    }
  }
}

}  // namespace

TEST(HostileFormula, MegabyteOfOperators) {
  for (const wchar_t* const part :
       {L"+", L"-", L"*", L"/", L"^", L"!", L"<", L"&", L"|", L"=", L"~", L";", L")"}) {
    ExpectFailure(Repeated(part, kMegabyte));
    ExpectFailure(L"1" + Repeated(part, kMegabyte));
  }
}

TEST(HostileFormula, TwoHundredThousandOpenBrackets) {
  for (const wchar_t* const part :
       {L"(", L"abs(", L"wenn(1;", L"wenn(", L"min(1;", L"(-", L"!(", L"( {c} "}) {
    ExpectFailure(Repeated(part, 200000));
    ExpectFailure(Repeated(part, 200000) + L"1" + Repeated(L")", 200000));
  }
  CFormulaParser parser(Repeated(L"(", 200000));
  formulatest::ExpectError(parser, L"InternalParserError", 200);
}

TEST(HostileFormula, UnterminatedEverything) {
  for (const wchar_t* const part : {L"{", L"'", L"\"", L"[", L"strcmp(\"", L"strcmp(a;", L"1 {", L"1 + '"}) {
    for (const wchar_t fill : {L'x', L' ', L'1', L'{', L'(', L'\0'})
      ExpectFailure(part + std::wstring(kMegabyte / 8, fill));
  }
}

TEST(HostileFormula, EndlessWordsNumbersAndBlanks) {
  ExpectFailure(std::wstring(kMegabyte, L'x'));
  ExpectFailure(std::wstring(kMegabyte, L' '));
  ExpectFailure(std::wstring(kMegabyte, L'9'));
  ExpectFailure(std::wstring(kMegabyte, L'.'));
  ExpectFailure(Repeated(L"1 ", kMegabyte / 2));
  ExpectFailure(Repeated(L" -", kMegabyte / 2));
  ExpectFailure(Repeated(L"{}", kMegabyte / 2));
  ExpectFailure(Repeated(L"''", kMegabyte / 2));
  ExpectFailure(std::wstring(kMegabyte, L'\0'));
}

TEST(HostileFormula, CharactersThatBelongToNothing) {
  for (const unsigned code :
       {0x7FU, 0x80U, 0xE4U, 0xFFU, 0x100U, 0xFFFFU, 0xFFFFFFDFU, 0xFFFFFFFFU, 0x80000000U}) {
    const auto c = static_cast<wchar_t>(code);
    ExpectFailure(std::wstring(1, c));
    ExpectFailure(L"1" + std::wstring(1, c));
    ExpectFailure(L"[" + std::wstring(1, c));
    ExpectFailure(L"a" + std::wstring(1, c) + L"a");
  }
}

TEST(HostileFormula, TakesTimeInProportionToItsLength) {
  // A hundred times the length takes about a hundred times as long; a rest of the text that is copied or measured at
  // each operator would make it ten thousand times.
  for (const wchar_t* const part :
       {L"+1", L" + a ", L"+abs(a)", L"+{c}1", L"*1,5", L"<1", L"+wenn(1;a;1)", L"-(-1)"}) {
    CVariableFormulaParser parser;
    parser.AddVariable(L"a", 1.0);
    parser = L"1" + Repeated(part, 200);
    double shortRun = SecondsOfRun(parser, true);
    for (int i = 0; i < 4; ++i) shortRun = std::min(shortRun, SecondsOfRun(parser, true));
    EXPECT_EQ(parser.GetErrorCode(), 0);
    parser = L"1" + Repeated(part, 20000);
    EXPECT_LT(SecondsOfRun(parser, true), shortRun * 1000);
    EXPECT_EQ(parser.GetErrorCode(), 0);
  }
}

TEST(HostileFormula, RewritesLongFormulasSoon) {
  for (const wchar_t* const neu : {L"b", L"Preis", L""}) {
    CReplaceVariableFormulaParser parser(L"aa" + Repeated(L"+aa", 33000), false);
    parser.AddReplace(L"aa", neu);
    const double start = Seconds();
    EXPECT_TRUE(parser.Replace(false, false, false));
    EXPECT_LT(Seconds() - start, 1.0);
    EXPECT_EQ(std::wstring(parser.GetAusdruck()), neu + Repeated(std::wstring(L"+") + neu, 33000));
  }
}
