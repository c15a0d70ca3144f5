#include "formula/ReplaceVariableFormulaParser.h"

#include "formula/FunktionOperation.h"
#include "formula/OpenParser.h"
#include "formula/ReplaceOperations.h"
#include "formula/StringOperations.h"
#include "formula/TransparentOperation.h"
#include "formula/VariableOperation.h"
#include "formula/ZahlOperation.h"
#include "foundation/KXException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

/// Shows what derived classes can reach.
class OpenReplaceParser : public formulatest::OpenParser<CReplaceVariableFormulaParser> {
 public:
  using OpenParser::OpenParser;
  using OpenParser::operator=;
  using CReplaceVariableFormulaParser::LookupReplace;
  using CReplaceVariableFormulaParser::ReplaceAt;
};

struct Flags {
  bool stripQuotes = false;
  bool quoteIfNeeded = false;
  bool unquoteIfPossible = false;
};

void ExpectReplaced(CReplaceVariableFormulaParser& parser, const wchar_t* text, const wchar_t* expected,
                    Flags flags = {}) {
  parser = text;
  EXPECT_TRUE(parser.Replace(flags.stripQuotes, flags.quoteIfNeeded, flags.unquoteIfPossible));
  EXPECT_STREQ(parser.GetAusdruck(), expected);
}

void ExpectNotReplaced(CReplaceVariableFormulaParser& parser, const wchar_t* text, const wchar_t* key,
                       int position) {
  parser = text;
  EXPECT_FALSE(parser.Replace(false, false, false));
  EXPECT_EQ(formulatest::KeyOfError(parser.GetErrorCode()), key);
  EXPECT_EQ(parser.GetErrPos(), position);
  EXPECT_STREQ(parser.GetAusdruck(), text);
}

}  // namespace

TEST(ReplaceVariableFormulaParser, ReplacesNamesAndKeepsAllElse) {
  CReplaceVariableFormulaParser parser;
  parser.AddReplace(L"a", L"b");
  ExpectReplaced(parser, L"a + a", L"b + b");
  ExpectReplaced(parser, L"{a} a", L"{a} b");
  ExpectReplaced(parser, L"sin(a)", L"sin(b)");
  ExpectReplaced(parser, L" 'a' -a  *( a/2 ) ", L" 'a' -b  *( b/2 ) ");
  ExpectReplaced(parser, L"wenn(a<1;a;-a)", L"wenn(b<1;b;-b)");
  ExpectReplaced(parser, L"1 + 2", L"1 + 2");
  ExpectReplaced(parser, L"", L"");
}

TEST(ReplaceVariableFormulaParser, TakesNamesOfOtherLengths) {
  CReplaceVariableFormulaParser parser;
  parser.AddReplace(L"a", L"Preis");
  parser.AddReplace(L"Menge", L"m");
  ExpectReplaced(parser, L"a*Menge+a", L"Preis*m+Preis");
}

TEST(ReplaceVariableFormulaParser, SwapsNamesInOneRun) {
  CReplaceVariableFormulaParser parser;
  parser.AddReplace(L"a", L"b");
  parser.AddReplace(L"b", L"a");
  ExpectReplaced(parser, L"a - b", L"b - a");
}

TEST(ReplaceVariableFormulaParser, LeavesTheTextOfAFailedRun) {
  CReplaceVariableFormulaParser parser;
  parser.AddReplace(L"a", L"bcd");
  ExpectNotReplaced(parser, L"a + c", L"ArithmeticOperatorExpected", 6);
  ExpectNotReplaced(parser, L"a + (c)", L"ClosingBracketExpected", 7);
  ExpectNotReplaced(parser, L"sin(c)", L"ClosingBracketExpected", 4);
  ExpectNotReplaced(parser, L"wenn(c;1)", L"WrongFunctionParameterCount", 5);
  ExpectNotReplaced(parser, L"a +", L"FunctionVariableExpected", 5);
}

TEST(ReplaceVariableFormulaParser, FixedUnknownNameThatBeginsWithAnOperatorIsReadOn) {
  CReplaceVariableFormulaParser parser;
  parser.AddReplace(L"a", L"b");
  // The name stays unread, and `mod` continues the value 0 that it has.
  ExpectReplaced(parser, L"moda", L"modb");
}

TEST(ReplaceVariableFormulaParser, ComputesNothing) {
  CReplaceVariableFormulaParser parser;
  parser.AddReplace(L"a", L"b");
  ExpectReplaced(parser, L"1/a", L"1/b");
  ExpectReplaced(parser, L"sqrt(a - 1)", L"sqrt(b - 1)");
  // Checks that run in syntax-only mode too: the name is worth 0.
  parser = L"arctan2(a;1)";
  EXPECT_FALSE(parser.Replace(false, false, false));
  EXPECT_EQ(formulatest::KeyOfError(parser.GetErrorCode()), L"IllegalParameter");
  EXPECT_STREQ(parser.GetAusdruck(), L"arctan2(a;1)");
}

TEST(ReplaceVariableFormulaParser, KeepsNamesThatBeginWithAWildcard) {
  CReplaceVariableFormulaParser parser;
  parser.AddReplace(L"a", L"b");
  parser.AddWildcard(L"c");
  ExpectReplaced(parser, L"a + c1", L"b + c1");
  EXPECT_TRUE(parser.FindInWildcards(L"c"));
  EXPECT_TRUE(parser.FindInWildcards(L"cde"));
  EXPECT_FALSE(parser.FindInWildcards(L"C"));
  EXPECT_FALSE(parser.FindInWildcards(L""));
  EXPECT_FALSE(parser.FindInWildcards(L"dc"));
  parser.ResetReplace();
  EXPECT_TRUE(parser.FindInWildcards(L"c"));
  ExpectNotReplaced(parser, L"a", L"ArithmeticOperatorExpected", 0);
  ExpectReplaced(parser, L"c", L"c");
}

TEST(ReplaceVariableFormulaParser, PutsBracketsWhereTheyAreNeeded) {
  CReplaceVariableFormulaParser parser;
  parser.EnableQuotedVariable(true);
  parser.AddReplace(L"x", L"y z");
  ExpectReplaced(parser, L"x", L"[y z]", {false, true, false});
}

TEST(ReplaceVariableFormulaParser, KeepsOrTakesAwayBracketsAsAsked) {
  CReplaceVariableFormulaParser parser;
  parser.EnableQuotedVariable(true);
  parser.AddReplace(L"[x y]", L"z");
  ExpectReplaced(parser, L"[x y]", L"[z]");
  ExpectReplaced(parser, L"[x y]", L"z", {false, true, true});
  ExpectReplaced(parser, L"[x y]", L"z", {true, false, false});
}

TEST(ReplaceVariableFormulaParser, FixedStripsBracketsThoughTheTextNoLongerParses) {
  CReplaceVariableFormulaParser parser;
  parser.EnableQuotedVariable(true);
  parser.AddReplace(L"a", L"[b c]");
  ExpectReplaced(parser, L"a", L"b c", {true, false, false});
  ExpectReplaced(parser, L"a", L"b c", {true, true, true});
  EXPECT_FALSE(parser.Replace(true, false, false));
}

TEST(ReplaceVariableFormulaParser, QuotesByEveryCombination) {
  // The old name in the text, the new name, the arguments, the outcome.
  struct Case {
    const wchar_t* text;
    const wchar_t* neu;
    Flags flags;
    const wchar_t* expected;
  };
  constexpr bool on = true;
  constexpr bool off = false;
  const Case cases[] = {
      // Neither: a name quoted in the text stays quoted.
      {L"n", L"v", {off, off, off}, L"v"},
      {L"[n]", L"v", {off, off, off}, L"[v]"},
      {L"n", L"[v]", {off, off, off}, L"[v]"},
      {L"[n]", L"[v]", {off, off, off}, L"[v]"},
      {L"n", L"v w", {off, off, off}, L"v w"},
      // Stripping goes before all.
      {L"[n]", L"[v]", {on, off, off}, L"v"},
      {L"[n]", L"v w", {on, on, on}, L"v w"},
      // Brackets where needed.
      {L"n", L"v", {off, on, off}, L"v"},
      {L"[n]", L"v", {off, on, off}, L"[v]"},
      {L"n", L"[v]", {off, on, off}, L"[v]"},
      {L"n", L"v w", {off, on, off}, L"[v w]"},
      {L"n", L"[v w]", {off, on, off}, L"[v w]"},
      {L"n", L"sin", {off, on, off}, L"[sin]"},
      // No brackets where possible.
      {L"[n]", L"v", {off, off, on}, L"v"},
      {L"n", L"[v]", {off, off, on}, L"v"},
      {L"[n]", L"v w", {off, off, on}, L"[v w]"},
      {L"n", L"[v w]", {off, off, on}, L"[v w]"},
      {L"n", L"v w", {off, off, on}, L"v w"},
      // Both.
      {L"[n]", L"[v]", {off, on, on}, L"v"},
      {L"n", L"v w", {off, on, on}, L"[v w]"},
      {L"[n]", L"[v w]", {off, on, on}, L"[v w]"},
  };
  for (const Case& entry : cases) {
    CReplaceVariableFormulaParser parser;
    parser.EnableQuotedVariable(true);
    parser.AddReplace(L"n", entry.neu);
    ExpectReplaced(parser, entry.text, entry.expected, entry.flags);
  }
}

TEST(ReplaceVariableFormulaParser, FirstNewNameOfAnOldOneStays) {
  CReplaceVariableFormulaParser parser;
  parser.AddReplace(L"a", L"b");
  parser.AddReplace(L"a", L"c");
  ExpectReplaced(parser, L"a", L"b");
  parser.ResetReplace();
  parser.AddReplace(L"a", L"c");
  ExpectReplaced(parser, L"a", L"c");
}

TEST(ReplaceVariableFormulaParser, ComparesOldNamesWithoutCaseIfAsked) {
  CReplaceVariableFormulaParser parser(true);
  parser.AddReplace(L"preis", L"Wert");
  parser.AddWildcard(L"MENGE");
  ExpectReplaced(parser, L"Preis + PREIS", L"Wert + Wert");
  // A wildcard is compared with the name in capitals, and the name becomes that.
  ExpectReplaced(parser, L"Menge2", L"MENGE2");
  parser.AddWildcard(L"an");
  ExpectNotReplaced(parser, L"anzahl", L"ArithmeticOperatorExpected", 0);
}

TEST(ReplaceVariableFormulaParser, ReplacesNamesInStringFunctions) {
  CReplaceVariableFormulaParser parser;
  parser.SetWithStringFunctions(true);
  parser.AddReplace(L"a", L"neu");
  ExpectReplaced(parser, L"strcmp( a ; \"a\" ) + a", L"strcmp( neu ; \"a\" ) + neu");
  ExpectReplaced(parser, L"strcmp(a;a)", L"strcmp(neu;neu)");
  ExpectNotReplaced(parser, L"strcmp(b;a)", L"WrongFunctionParameterCount", 7);
  ExpectNotReplaced(parser, L"strcmp a", L"OpeningBracketExpected", 7);
  ExpectNotReplaced(parser, L"strcmp(a", L"ClosingBracketExpected", 10);
  ExpectNotReplaced(parser, L"strcmp(a;", L"ClosingBracketExpected", 11);
  ExpectNotReplaced(parser, L"strcmp(a;;a)", L"WrongFunctionParameterCount", 11);
  ExpectNotReplaced(parser, L"strcmp(a;)", L"WrongFunctionParameterCount", 11);
  ExpectNotReplaced(parser, L"strcmp(\"a", L"ConstStringEndMissing", 9);
}

TEST(ReplaceVariableFormulaParser, FixedDoesNotCheckTheNumberOfStrings) {
  CReplaceVariableFormulaParser parser;
  parser.SetWithStringFunctions(true);
  parser.AddReplace(L"a", L"b");
  ExpectReplaced(parser, L"strcmp()", L"strcmp()");
  ExpectReplaced(parser, L"strcmp(a)", L"strcmp(b)");
  ExpectReplaced(parser, L"strcmp(a;a;a)", L"strcmp(b;b;b)");
}

TEST(ReplaceVariableFormulaParser, EmptyNewNameOfAStringVariableFails) {
  CReplaceVariableFormulaParser parser;
  parser.SetWithStringFunctions(true);
  parser.AddReplace(L"a", L"");
  ExpectNotReplaced(parser, L"strcmp(a;\"b\")", L"WrongFunctionParameterCount", 7);
  ExpectReplaced(parser, L"1 + a", L"1 + ");
}

TEST(ReplaceVariableFormulaParser, ScansNamesWithoutReplacingThem) {
  CReplaceVariableFormulaParser parser(L"a + strcmp(b;\"x\") * [c d]", false);
  parser.SetWithStringFunctions(true);
  parser.EnableQuotedVariable(true);
  parser.AddReplace(L"a", L"z");
  EXPECT_TRUE(parser.ScanVariable());
  EXPECT_THAT(parser.GetVariable(), ElementsAre(L"a", L"b", L"c d"));
  EXPECT_STREQ(parser.GetAusdruck(), L"a + strcmp(b;\"x\") * [c d]");
}

TEST(ReplaceVariableFormulaParser, HoldsTheRewritingOperations) {
  OpenReplaceParser parser;
  EXPECT_EQ(parser.GetNextOperation(GetFunktionOperation()), GetReplaceVariableOperation());
  EXPECT_EQ(parser.GetNextOperation(GetReplaceVariableOperation()), nullptr);
  parser.SetWithStringFunctions(true);
  EXPECT_EQ(parser.GetFunktionenEx(), 4);
  EXPECT_EQ(parser.GetNextOperation(GetZahlOperation()), GetReplaceStringFunktionOperation());
  EXPECT_EQ(parser.GetNextOperation(GetReplaceVariableOperation()), GetConstStringOperation());
  parser.SetWithStringFunctions(false);
  parser.SetWithStringFunctions(true);
  EXPECT_EQ(parser.Chain().size(), 13U);
}

TEST(ReplaceVariableFormulaParser, MadeOfAParserWithVariablesRewritesItsFormula) {
  CVariableFormulaParser source(L"strcmp(a;a)", true);
  source.SetWithStringFunctions(true);
  source.EnableQuotedVariable(true);
  OpenReplaceParser parser(source);
  EXPECT_TRUE(parser.GetIgnoreGrossKlein());
  EXPECT_TRUE(parser.IsQuotedVariableEnabled());
  EXPECT_EQ(parser.GetNextOperation(GetZahlOperation()), GetReplaceStringFunktionOperation());
  EXPECT_EQ(parser.GetNextOperation(GetFunktionOperation()), GetReplaceVariableOperation());
  parser.AddReplace(L"a", L"b");
  EXPECT_TRUE(parser.Replace(false, false, false));
  EXPECT_STREQ(parser.GetAusdruck(), L"strcmp(b;b)");

  OpenReplaceParser assigned;
  assigned.AddReplace(L"a", L"c");
  assigned = source;
  EXPECT_EQ(assigned.Chain(), parser.Chain());
  assigned.SetIgnoreGrossKlein(false);
  EXPECT_TRUE(assigned.Replace(false, false, false));
  EXPECT_STREQ(assigned.GetAusdruck(), L"strcmp(c;c)");
}

TEST(ReplaceVariableFormulaParser, FixedCopyForgetsWildcards) {
  OpenReplaceParser source;
  source = L"a";
  source.AddReplace(L"a", L"b");
  source.AddWildcard(L"w");
  OpenReplaceParser copy(source);
  EXPECT_EQ(copy.Chain(), source.Chain());
  EXPECT_FALSE(copy.FindInWildcards(L"w1"));
  EXPECT_TRUE(copy.Replace(false, false, false));
  EXPECT_STREQ(copy.GetAusdruck(), L"b");
  EXPECT_STREQ(source.GetAusdruck(), L"a");

  OpenReplaceParser assigned;
  assigned.AddReplace(L"z", L"y");
  assigned = source;
  EXPECT_TRUE(assigned.FindInWildcards(L"w1"));
  EXPECT_TRUE(assigned.LookupReplace(L"a"));
  EXPECT_FALSE(assigned.LookupReplace(L"z"));
}

TEST(ReplaceVariableFormulaParser, LooksOldNamesUpAsTheyStandInTheText) {
  OpenReplaceParser parser;
  parser.AddReplace(L"a b", L"c");
  EXPECT_TRUE(parser.LookupReplace(L"a b"));
  EXPECT_FALSE(parser.LookupReplace(L"[a b]"));
  parser.EnableQuotedVariable(true);
  EXPECT_TRUE(parser.LookupReplace(L"[a b]"));
  EXPECT_FALSE(parser.LookupReplace(L"A B"));
}

TEST(ReplaceVariableFormulaParser, RefusesPlacesOutsideTheTextAndUnknownNames) {
  OpenReplaceParser parser;
  parser = L"abc";
  parser.AddReplace(L"b", L"xyz");
  int length = -1;
  EXPECT_THROW(parser.ReplaceAt(2, 2, length), CKXParserException);
  EXPECT_THROW(parser.ReplaceAt(4, 0, length), CKXParserException);
  EXPECT_THROW(parser.ReplaceAt(-1, 1, length), CKXParserException);
  EXPECT_THROW(parser.ReplaceAt(0, 1, length), CKXParserException);
  EXPECT_STREQ(parser.GetAusdruck(), L"abc");
  EXPECT_EQ(length, -1);
  parser.ReplaceAt(1, 1, length);
  EXPECT_STREQ(parser.GetAusdruck(), L"axyzc");
  EXPECT_EQ(length, 3);
}

TEST(ReplaceVariableFormulaParser, OperationsRefuseOtherParsers) {
  formulatest::OpenParser<CVariableFormulaParser> parser;
  parser.ReplaceOperation(GetVariableOperation(), GetReplaceVariableOperation());
  parser = L"1 + a";
  formulatest::ExpectError(parser, L"InternalParserError", 4);
}

TEST(ReplaceVariableFormulaParser, EvaluatesNothingOfWhatItReads) {
  CReplaceVariableFormulaParser parser(L"a + 1", false);
  parser.AddVariable(L"a", 5.0);
  parser.AddReplace(L"a", L"b");
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 1.0);
  EXPECT_STREQ(parser.GetAusdruck(), L"b + 1");
}

TEST(ReplaceVariableFormulaParser, LeavesTheTextAsItWasIfAnExceptionEndsTheRun) {
  class FailingInBrackets : public formulatest::TransparentOperation {
   public:
    double Eval(int& pos, CFormulaParser* parser) override {
      if (++m_iCalls == 2) throw CKXFileException(1, L"");
      return TransparentOperation::Eval(pos, parser);
    }

   private:
    int m_iCalls = 0;
  };
  FailingInBrackets failing;
  OpenReplaceParser parser;
  parser = L"a+(b)";
  parser.AddReplace(L"a", L"longer");
  parser.InsertOperationBefore(&failing, parser.GetFirstOperation());
  EXPECT_THROW(parser.Replace(false, false, false), CKXFileException);
  EXPECT_STREQ(parser.GetAusdruck(), L"a+(b)");
  parser.DeleteOperation(&failing);
}
