#include "formula/VariableFormulaParser.h"

#include "formula/BiOperation.h"
#include "formula/FunktionOperation.h"
#include "formula/OpenParser.h"
#include "formula/PrefixOperations.h"
#include "formula/StringOperations.h"
#include "formula/TransparentOperation.h"
#include "formula/VariableOperation.h"
#include "formula/ZahlOperation.h"
#include "foundation/KXException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using formulatest::ExpectError;
using formulatest::ExpectValue;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Shows what derived classes can reach.
class OpenVariableParser : public formulatest::OpenParser<CVariableFormulaParser> {
 public:
  using OpenParser::OpenParser;
  using OpenParser::operator=;
  using CVariableFormulaParser::AddGescannteStringVariable;
  using CVariableFormulaParser::AddGescannteVariable;
  using CVariableFormulaParser::GetScanVariable;
  using CVariableFormulaParser::HasQuote;
  using CVariableFormulaParser::LookupStringVariable;
  using CVariableFormulaParser::LookupVariable;
  using CVariableFormulaParser::StripQuote;
};

bool IsValidName(const wchar_t* name, int& position) {
  return CVariableFormulaParser::IsValidVariablenName(name, position);
}

void ExpectValidName(const wchar_t* name) {
  int position = -1;
  EXPECT_TRUE(IsValidName(name, position));
  EXPECT_EQ(position, 0);
}

void ExpectInvalidName(const wchar_t* name, int expectedPosition) {
  int position = -1;
  EXPECT_FALSE(IsValidName(name, position));
  EXPECT_EQ(position, expectedPosition);
}

}  // namespace

TEST(VariableFormulaParser, StartsWithItsDefaults) {
  OpenVariableParser parser;
  EXPECT_FALSE(parser.GetIgnoreGrossKlein());
  EXPECT_FALSE(parser.IsQuotedVariableEnabled());
  EXPECT_FALSE(parser.GetScanVariable());
  EXPECT_THAT(parser.GetVariable(), IsEmpty());
  EXPECT_EQ(parser.GetLength(), 0);
  EXPECT_TRUE(CVariableFormulaParser(true).GetIgnoreGrossKlein());
  const CVariableFormulaParser withText(L"a + 1", true);
  EXPECT_EQ(withText.Mid(0), L"a + 1");
  EXPECT_TRUE(withText.GetIgnoreGrossKlein());
}

TEST(VariableFormulaParser, HoldsTheOperationOfVariablesBehindFunctions) {
  OpenVariableParser parser;
  EXPECT_THAT(
      parser.Chain(),
      ElementsAre(GetVergleichOperation(), GetUndOderOperation(), GetPlusMinusOperation(), GetNotOperation(),
                  GetNegVorzeichenOperation(), GetMalDurchOperation(), GetPotenzOperation(),
                  GetKlammerOperation(), GetZahlOperation(), GetFunktionOperation(), GetVariableOperation()));
  parser.SetWithStringFunctions(true);
  EXPECT_EQ(parser.GetNextOperation(GetZahlOperation()), GetStringFunktionOperation());
  EXPECT_EQ(parser.GetNextOperation(GetStringFunktionOperation()), GetFunktionOperation());
  EXPECT_EQ(parser.GetNextOperation(GetFunktionOperation()), GetVariableOperation());
  EXPECT_EQ(parser.GetNextOperation(GetVariableOperation()), GetConstStringOperation());
}

TEST(VariableFormulaParser, FixedFirstValueOfANameStays) {
  CVariableFormulaParser parser;
  parser.AddVariable(L"a", 1.0);
  parser.AddVariable(L"a", 2.0);
  parser.AddStringVariable(L"s", L"one");
  parser.AddStringVariable(L"s", L"two");
  parser.SetWithStringFunctions(true);
  parser = L"a";
  ExpectValue(parser, 1.0);
  parser = L"strcmp(s;\"one\")";
  ExpectValue(parser, 0.0);
  parser.Reset();
  parser.AddVariable(L"a", 2.0);
  parser = L"a";
  ExpectValue(parser, 2.0);
}

TEST(VariableFormulaParser, FixedVariablesAreLookedUpInSyntaxOnlyModeToo) {
  CVariableFormulaParser parser(L"a", false);
  ExpectError(parser, L"VariableNotFound", 0, true);
  ExpectError(parser, L"VariableNotFound", 0, false);
  EXPECT_TRUE(parser.ScanVariable());
}

TEST(VariableFormulaParser, ComparesNamesWithoutCaseIfAsked) {
  CVariableFormulaParser parser(L"ABC + abc", true);
  parser.AddVariable(L"abc", 2.0);
  ExpectValue(parser, 4.0);
  parser.SetIgnoreGrossKlein(false);
  // The stored name is in capitals and is not converted back.
  ExpectError(parser, L"VariableNotFound", 6);
  CVariableFormulaParser exact(L"ABC", false);
  exact.AddVariable(L"abc", 2.0);
  ExpectError(exact, L"VariableNotFound", 0);

  CVariableFormulaParser strings(L"strcmp(TEXT;\"x\")", true);
  strings.SetWithStringFunctions(true);
  strings.AddStringVariable(L"text", L"x");
  ExpectValue(strings, 0.0);
}

TEST(VariableFormulaParser, FixedVariablesAreReadAtFourteenDecimals) {
  CVariableFormulaParser parser(L"a", false);
  parser.AddVariable(L"a", 0.123456789012342);
  ExpectValue(parser, 0.12345678901234);
  parser.Reset();
  parser.AddVariable(L"a", -0.0);
  parser = L"a";
  ExpectValue(parser, 0.0);
}

TEST(VariableFormulaParser, PrefersANumberToAStringOfTheSameName) {
  CVariableFormulaParser parser(L"a", false);
  parser.AddStringVariable(L"a", L"text");
  ExpectValue(parser, 0.0);
  parser.AddVariable(L"a", 3.0);
  ExpectValue(parser, 3.0);
  parser.SetWithStringFunctions(true);
  parser = L"strcmp(a;\"text\")";
  ExpectValue(parser, 0.0);
}

TEST(VariableFormulaParser, FixedConstantsAndFunctionsHideVariables) {
  CVariableFormulaParser parser;
  for (const wchar_t* const name : {L"e", L"E", L"pi", L"PI", L"sin"}) parser.AddVariable(name, 42.0);
  parser = L"e";
  ExpectValue(parser, E);
  parser = L"PI";
  ExpectValue(parser, parser.GetPI());
  parser = L"sin";
  ExpectError(parser, L"OpeningBracketExpected", 3);
  parser.SetFunktionen(0);
  ExpectValue(parser, 42.0);
  parser = L"e";
  ExpectValue(parser, E);
}

// Scanning

TEST(VariableFormulaParser, ScansTheNamesInOrderWithRepeats) {
  CVariableFormulaParser parser(L"a + b * a", false);
  EXPECT_TRUE(parser.ScanVariable());
  EXPECT_THAT(parser.GetVariable(), ElementsAre(L"a", L"b", L"a"));
  parser = L"wenn(x; y; sin(z)) + {c} 'd' pi + e + #1";
  EXPECT_TRUE(parser.ScanVariable());
  EXPECT_THAT(parser.GetVariable(), ElementsAre(L"x", L"y", L"z", L"#1"));
  parser = L"1";
  EXPECT_TRUE(parser.ScanVariable());
  EXPECT_THAT(parser.GetVariable(), IsEmpty());
}

TEST(VariableFormulaParser, ScansNamesInBracketsIfTheyAreSwitchedOn) {
  CVariableFormulaParser parser(L"[x y] + 1", false);
  EXPECT_FALSE(parser.ScanVariable());
  EXPECT_EQ(formulatest::KeyOfError(parser.GetErrorCode()), L"FunctionVariableExpected");
  EXPECT_EQ(parser.GetErrPos(), 0);
  parser.EnableQuotedVariable(true);
  EXPECT_TRUE(parser.ScanVariable());
  EXPECT_THAT(parser.GetVariable(), ElementsAre(L"x y"));
  parser = L"[] + [a]";
  EXPECT_TRUE(parser.ScanVariable());
  EXPECT_THAT(parser.GetVariable(), ElementsAre(L"[]", L"a"));
}

TEST(VariableFormulaParser, ScansStringVariablesIntoTheSameListAndFoldsNoCase) {
  CVariableFormulaParser parser(L"strcmp(Name;\"x\") + Preis + strcmp([a b];Name)", true);
  parser.SetWithStringFunctions(true);
  parser.EnableQuotedVariable(true);
  EXPECT_TRUE(parser.ScanVariable());
  EXPECT_THAT(parser.GetVariable(), ElementsAre(L"Name", L"Preis", L"a b", L"Name"));
}

TEST(VariableFormulaParser, ScanKeepsTheNamesInFrontOfAnError) {
  OpenVariableParser parser;
  parser = L"a + b + )";
  EXPECT_FALSE(parser.ScanVariable());
  EXPECT_THAT(parser.GetVariable(), ElementsAre(L"a", L"b"));
  EXPECT_EQ(parser.GetErrPos(), 8);
  EXPECT_FALSE(parser.GetScanVariable());
  // The scan is over: names must be known again.
  parser = L"a";
  ExpectError(parser, L"VariableNotFound", 0);
}

TEST(VariableFormulaParser, ScanRunsTheVirtualEvaluation) {
  class Watching : public CVariableFormulaParser {
   public:
    bool WerteAus(bool berechnen) override {
      modes.push_back(berechnen);
      return CVariableFormulaParser::WerteAus(berechnen);
    }
    std::vector<bool> modes;
  };
  Watching parser;
  parser.ScanVariable();
  EXPECT_THAT(parser.modes, ElementsAre(false));
}

// Names

TEST(VariableFormulaParser, TellsNamesThatNeedNoBrackets) {
  ExpectValidName(L"a");
  ExpectValidName(L"#1");
  ExpectValidName(L"_");
  ExpectValidName(L"PL_Nks2");
  ExpectValidName(L"mod");
  // Complete formulas.
  ExpectValidName(L"e");
  ExpectValidName(L"pi");
}

TEST(VariableFormulaParser, TellsWhereANameNeedsBrackets) {
  ExpectInvalidName(L"a b", 1);
  ExpectInvalidName(L"1a", 0);
  ExpectInvalidName(L"PL.Nks2", 2);
  ExpectInvalidName(L" a", 0);
  ExpectInvalidName(L"\u00E4", 0);
  ExpectInvalidName(L"[", 0);
  ExpectInvalidName(L"[]", 0);
}

TEST(VariableFormulaParser, FixedFunctionNamesAndNamesInBracketsAreNotValid) {
  ExpectInvalidName(L"sin", 3);
  ExpectInvalidName(L"wenn", 4);
  ExpectInvalidName(L"[a]", 0);
}

TEST(VariableFormulaParser, LeavesThePositionOfAnEmptyNameAlone) { ExpectInvalidName(L"", -1); }

TEST(VariableFormulaParser, StripsBracketsIfTheyAreSwitchedOn) {
  EXPECT_TRUE(OpenVariableParser::HasQuote(L"[a]"));
  EXPECT_FALSE(OpenVariableParser::HasQuote(L"[]"));
  EXPECT_FALSE(OpenVariableParser::HasQuote(L"[a"));
  EXPECT_FALSE(OpenVariableParser::HasQuote(L"a]"));
  EXPECT_FALSE(OpenVariableParser::HasQuote(L""));
  OpenVariableParser parser;
  std::wstring name = L"[a]";
  parser.StripQuote(name);
  EXPECT_EQ(name, L"[a]");
  parser.EnableQuotedVariable(true);
  parser.StripQuote(name);
  EXPECT_EQ(name, L"a");
  name = L"[]";
  parser.StripQuote(name);
  EXPECT_EQ(name, L"[]");
}

TEST(VariableFormulaParser, FixedBracketsOfAddedNamesStay) {
  OpenVariableParser parser;
  parser.EnableQuotedVariable(true);
  parser.AddVariable(L"[a]", 1.0);
  parser.AddVariable(L"b", 2.0);
  double value = 0.0;
  EXPECT_FALSE(parser.LookupVariable(L"a", value));
  EXPECT_FALSE(parser.LookupVariable(L"[a]", value));
  EXPECT_TRUE(parser.LookupVariable(L"[[a]]", value));
  EXPECT_EQ(value, 1.0);
  EXPECT_TRUE(parser.LookupVariable(L"[b]", value));
  EXPECT_EQ(value, 2.0);
  std::wstring text = L"before";
  EXPECT_FALSE(parser.LookupStringVariable(L"b", text));
  EXPECT_EQ(text, L"before");
  parser.AddStringVariable(L"b", L"x");
  EXPECT_TRUE(parser.LookupStringVariable(L"[b]", text));
  EXPECT_EQ(text, L"x");
}

TEST(VariableFormulaParser, AddsScannedNamesWithoutTheirBrackets) {
  OpenVariableParser parser;
  parser.AddGescannteVariable(L"[a]");
  parser.EnableQuotedVariable(true);
  parser.AddGescannteVariable(L"[b]");
  parser.AddGescannteStringVariable(L"[c]");
  EXPECT_THAT(parser.GetVariable(), ElementsAre(L"[a]", L"b", L"c"));
}

// Copies and Reset

TEST(VariableFormulaParser, CopiesHaveTheirOwnVariables) {
  OpenVariableParser source;
  source = L"a";
  source.AddVariable(L"a", 1.0);
  source.AddStringVariable(L"s", L"x");
  source.SetWithStringFunctions(true);
  source.EnableQuotedVariable(true);
  source.SetIgnoreGrossKlein(true);
  source.AddGescannteVariable(L"n");
  OpenVariableParser copy(source);
  EXPECT_EQ(copy.Mid(0), L"a");
  EXPECT_TRUE(copy.IsQuotedVariableEnabled());
  EXPECT_TRUE(copy.GetIgnoreGrossKlein());
  EXPECT_THAT(copy.GetVariable(), ElementsAre(L"n"));
  EXPECT_EQ(copy.Chain(), source.Chain());
  copy.SetIgnoreGrossKlein(false);
  source.Reset();
  ExpectValue(copy, 1.0);
  // The flag of string functions came with the copy: switching on does nothing.
  copy.SetFunktionenEx(0);
  copy.SetWithStringFunctions(true);
  EXPECT_EQ(copy.GetFunktionenEx(), 0);
}

TEST(VariableFormulaParser, FixedAssignmentMergesVariablesAndOwnOnesWin) {
  CVariableFormulaParser source(L"a + b + c", false);
  source.AddVariable(L"a", 1.0);
  source.AddVariable(L"b", 2.0);
  CVariableFormulaParser target;
  target.AddVariable(L"b", 20.0);
  target.AddVariable(L"c", 30.0);
  target = source;
  ExpectValue(target, 51.0);
  ExpectError(source, L"VariableNotFound", 8);
}

TEST(VariableFormulaParser, AssignmentReplacesTheOperations) {
  OpenVariableParser source;
  source.DeleteOperation(GetNotOperation());
  OpenVariableParser target;
  target.SetWithStringFunctions(true);
  target = source;
  EXPECT_EQ(target.Chain(), source.Chain());
}

TEST(VariableFormulaParser, AssignsItselfWithoutHarm) {
  CVariableFormulaParser parser(L"a", false);
  parser.AddVariable(L"a", 5.0);
  const CVariableFormulaParser& same = parser;
  parser = same;
  ExpectValue(parser, 5.0);
}

TEST(VariableFormulaParser, ResetForgetsVariablesNamesAndFlags) {
  OpenVariableParser parser;
  parser = L"a";
  parser.AddVariable(L"a", 1.0);
  parser.AddStringVariable(L"s", L"x");
  parser.EnableQuotedVariable(true);
  parser.SetIgnoreGrossKlein(true);
  parser.ScanVariable();
  parser.Reset();
  EXPECT_THAT(parser.GetVariable(), IsEmpty());
  EXPECT_FALSE(parser.IsQuotedVariableEnabled());
  EXPECT_FALSE(parser.GetIgnoreGrossKlein());
  EXPECT_EQ(parser.GetLength(), 0);
  double value = 0.0;
  std::wstring text;
  EXPECT_FALSE(parser.LookupVariable(L"a", value));
  EXPECT_FALSE(parser.LookupStringVariable(L"s", text));
}

TEST(VariableFormulaParser, PlainParserWithTheseOperationsFails) {
  formulatest::OpenParser<CFormulaParser> parser;
  const CFormulaParser& variables = CVariableFormulaParser(L"1 + a", false);
  static_cast<CFormulaParser&>(parser) = variables;
  EXPECT_EQ(parser.Chain().size(), 11U);
  ExpectError(parser, L"InternalParserError", 4);
  parser = L"1 + 2";
  ExpectValue(parser, 3.0);
}

TEST(VariableFormulaParser, ReusedParserGivesWhatAFreshOneGives) {
  CVariableFormulaParser parser;
  parser.AddVariable(L"a", 2.0);
  for (int i = 0; i < 3; ++i) {
    parser = L"a *";
    ExpectError(parser, L"FunctionVariableExpected", 3);
    parser = std::wstring(L"a * 3");
    ExpectValue(parser, 6.0);
    EXPECT_TRUE(parser.ScanVariable());
    ExpectValue(parser, 6.0);
  }
}

TEST(VariableFormulaParser, ComputesAgainAfterAScanThatAnExceptionEnded) {
  class Failing : public formulatest::TransparentOperation {
   public:
    double Eval(int& /*pos*/, CFormulaParser* /*parser*/) override { throw CKXFileException(1, L""); }
  };
  Failing failing;
  OpenVariableParser parser;
  parser = L"a";
  parser.InsertOperationBefore(&failing, parser.GetFirstOperation());
  EXPECT_THROW(parser.ScanVariable(), CKXFileException);
  EXPECT_FALSE(parser.GetScanVariable());
  parser.DeleteOperation(&failing);
  ExpectError(parser, L"VariableNotFound", 0);
}
