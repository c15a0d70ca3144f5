#include "formula/FormulaParser.h"

#include "formula/BiOperation.h"
#include "formula/FunktionOperation.h"
#include "formula/OpenParser.h"
#include "formula/PrefixOperations.h"
#include "formula/StringOperations.h"
#include "formula/TransparentOperation.h"
#include "formula/VariableFormulaParser.h"
#include "formula/VariableOperation.h"
#include "formula/ZahlOperation.h"
#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

using formulatest::ExpectError;
using testing::ElementsAre;

namespace {

const double kPi = 2.0 * std::asin(1.0);

using OpenFormulaParser = formulatest::OpenParser<CFormulaParser>;

}  // namespace

TEST(FormulaParser, StartsWithItsDefaults) {
  const CFormulaParser parser;
  EXPECT_EQ(parser.GetWert(), 0.0);
  EXPECT_EQ(parser.GetPI(), kPi);
  EXPECT_EQ(parser.GetWinkelmas(), kPi / 200);
  EXPECT_EQ(parser.GetFunktionen(), -1);
  EXPECT_EQ(parser.GetFunktionenEx(), 0);
  EXPECT_EQ(parser.GetErrorCode(), 0);
  EXPECT_EQ(parser.GetErrPos(), 0);
  EXPECT_TRUE(parser.GetBerechnen());
  EXPECT_STREQ(parser.GetErrorMessage(), L"");
  EXPECT_EQ(parser.GetLength(), 0);
  EXPECT_EQ(parser.GetFunctionCount(), 0);
  EXPECT_TRUE(parser.IstKommentarEnde(L'}'));
  EXPECT_TRUE(parser.IstKommentarEnde(L'\''));
  EXPECT_FALSE(parser.IstKommentarEnde(L'{'));
}

TEST(FormulaParser, ExportsTheConstantsOfTheLanguage) {
  EXPECT_EQ(gccVariablenKennzeichenAnfang, L'[');
  EXPECT_EQ(gccVariablenKennzeichenEnde, L']');
  EXPECT_EQ(gccConstStringKennzeichen, L'"');
  EXPECT_EQ(E, std::exp(1.0));
}

TEST(FormulaParser, HoldsTheOperationsInOrderOfPrecedence) {
  OpenFormulaParser parser;
  EXPECT_THAT(
      parser.Chain(),
      ElementsAre(GetVergleichOperation(), GetUndOderOperation(), GetPlusMinusOperation(), GetNotOperation(),
                  GetNegVorzeichenOperation(), GetMalDurchOperation(), GetPotenzOperation(),
                  GetKlammerOperation(), GetZahlOperation(), GetFunktionOperation()));
}

TEST(FormulaParser, GivesAnEmptyTextTheValueZeroInBothModes) {
  CFormulaParser parser;
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 0.0);
  EXPECT_TRUE(parser.WerteAus(false));
  EXPECT_EQ(parser.GetWert(), 0.0);
  EXPECT_FALSE(parser.GetBerechnen());
}

TEST(FormulaParser, SetsTheModeOfARunFromItsArgument) {
  CFormulaParser parser(L"1");
  parser.SetBerechnen(false);
  EXPECT_FALSE(parser.GetBerechnen());
  parser.WerteAus(true);
  EXPECT_TRUE(parser.GetBerechnen());
}

TEST(FormulaParser, ReportsAnErrorByNumberMessageAndPosition) {
  CFormulaParser parser(L"1 2");
  EXPECT_FALSE(parser.WerteAus(true));
  EXPECT_EQ(formulatest::KeyOfError(parser.GetErrorCode()), L"ArithmeticOperatorExpected");
  EXPECT_EQ(parser.GetErrPos(), 2);
  std::wstring message;
  try {
    CKXExceptionHandler::GetInstance().ThrowException(L"ArithmeticOperatorExpected");
  } catch (const CKXParserException& exception) {
    message = exception.GetErrorMessage();
  }
  EXPECT_FALSE(message.empty());
  EXPECT_EQ(parser.GetErrorMessage(), message);
  EXPECT_EQ(parser.GetWert(), 1.0);
}

TEST(FormulaParser, FixedKeepsTheMessageOfAnEarlierErrorAfterAGoodRun) {
  CFormulaParser parser(L"1 2");
  EXPECT_FALSE(parser.WerteAus(true));
  const std::wstring message = parser.GetErrorMessage();
  parser = L"3";
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetErrorCode(), 0);
  EXPECT_EQ(parser.GetErrPos(), 0);
  EXPECT_EQ(parser.GetWert(), 3.0);
  EXPECT_EQ(parser.GetErrorMessage(), message);
}

TEST(FormulaParser, GivesAFailedRunTheValueZero) {
  CFormulaParser parser(L"3");
  EXPECT_TRUE(parser.WerteAus(true));
  parser = L"3 / 0";
  EXPECT_FALSE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 0.0);
}

TEST(FormulaParser, TakesANewTextAndTouchesNothingElse) {
  CFormulaParser parser(L"1 2");
  parser.SetWinkelmas(CFormulaParser::Altgrad);
  parser.WerteAus(true);
  const int error = parser.GetErrorCode();
  parser = std::wstring(L"sin(90)");
  EXPECT_EQ(parser.GetErrorCode(), error);
  EXPECT_EQ(parser.GetErrPos(), 2);
  EXPECT_EQ(parser.GetLength(), 7);
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 1.0);
}

TEST(FormulaParser, WithoutOperationsSucceedsAndLeavesTheErrorNumber) {
  OpenFormulaParser parser;
  parser = L"1 2";
  EXPECT_FALSE(parser.WerteAus(true));
  const int error = parser.GetErrorCode();
  while (parser.GetFirstOperation() != nullptr) parser.DeleteOperation(parser.GetFirstOperation());
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetErrorCode(), error);
  EXPECT_EQ(parser.GetWert(), 0.0);
}

TEST(FormulaParser, LetsExceptionsOfOtherFamiliesPass) {
  class Failing : public formulatest::TransparentOperation {
   public:
    double Eval(int& /*pos*/, CFormulaParser* /*parser*/) override {
      CKXExceptionHandler::GetInstance().ThrowException(L"ReadFileFailure");
      return 0.0;
    }
  };
  Failing failing;
  OpenFormulaParser parser;
  parser = L"1";
  parser.InsertOperationBefore(&failing, parser.GetFirstOperation());
  EXPECT_THROW(parser.WerteAus(true), CKXFileException);
  parser.DeleteOperation(&failing);
  EXPECT_TRUE(parser.WerteAus(true));
}

// The list of operations

TEST(FormulaParser, FindsTheEntryBehindAnOperation) {
  OpenFormulaParser parser;
  EXPECT_EQ(parser.GetNextOperation(GetVergleichOperation()), GetUndOderOperation());
  EXPECT_EQ(parser.GetNextOperation(GetFunktionOperation()), nullptr);
  EXPECT_EQ(parser.GetNextOperation(GetVariableOperation()), nullptr);
}

TEST(FormulaParser, InsertsInFrontOfAnEntryThatIsThere) {
  OpenFormulaParser parser;
  parser.InsertOperationBefore(GetVariableOperation(), GetUndOderOperation());
  EXPECT_EQ(parser.GetNextOperation(GetVergleichOperation()), GetVariableOperation());
  EXPECT_EQ(parser.Chain().size(), 11U);
  parser.InsertOperationBefore(GetConstStringOperation(), GetStringFunktionOperation());
  EXPECT_EQ(parser.Chain().size(), 11U);
}

TEST(FormulaParser, ReplacesEveryEntryEqualToTheOldOne) {
  OpenFormulaParser parser;
  parser.InsertOperationBefore(GetVariableOperation(), GetUndOderOperation());
  parser.InsertOperationBefore(GetVariableOperation(), GetFunktionOperation());
  parser.ReplaceOperation(GetVariableOperation(), GetConstStringOperation());
  EXPECT_EQ(parser.GetNextOperation(GetVergleichOperation()), GetConstStringOperation());
  EXPECT_EQ(parser.GetNextOperation(GetZahlOperation()), GetFunktionOperation());
  EXPECT_EQ(parser.Chain().size(), 11U);
  parser.ReplaceOperation(GetVariableOperation(), GetStringFunktionOperation());
  EXPECT_EQ(parser.Chain().size(), 11U);
}

TEST(FormulaParser, FixedReplacingAnOperationByItselfRemovesIt) {
  OpenFormulaParser parser;
  parser.ReplaceOperation(GetNotOperation(), GetNotOperation());
  EXPECT_EQ(parser.GetNextOperation(GetPlusMinusOperation()), GetNegVorzeichenOperation());
}

TEST(FormulaParser, DeletesTheFirstEqualEntry) {
  OpenFormulaParser parser;
  parser.InsertOperationBefore(GetVariableOperation(), GetVergleichOperation());
  parser.InsertOperationBefore(GetVariableOperation(), GetFunktionOperation());
  parser.DeleteOperation(GetVariableOperation());
  EXPECT_EQ(parser.GetFirstOperation(), GetVergleichOperation());
  EXPECT_EQ(parser.GetNextOperation(GetZahlOperation()), GetVariableOperation());
  parser.DeleteOperation(GetConstStringOperation());
  EXPECT_EQ(parser.Chain().size(), 11U);
}

TEST(FormulaParser, HoldsAnyNumberOfOperations) {
  OpenFormulaParser parser;
  for (int i = 0; i < 30; ++i) parser.InsertOperationBefore(GetVariableOperation(), GetUndOderOperation());
  parser.ReplaceOperation(GetVariableOperation(), GetConstStringOperation());
  EXPECT_EQ(parser.Chain().size(), 11U);
  parser.DeleteOperation(GetConstStringOperation());
  parser = L"1 + 2";
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 3.0);
}

TEST(FormulaParser, ChangesTheLanguageWithItsOperations) {
  OpenFormulaParser parser;
  parser.DeleteOperation(GetPotenzOperation());
  parser = L"2 ** 3";
  ExpectError(parser, L"FunctionExpected", 3);
  parser = L"2 ^ 3";
  ExpectError(parser, L"ArithmeticOperatorExpected", 2);
  parser.DeleteOperation(GetFunktionOperation());
  parser = L"x";
  ExpectError(parser, L"DoubleExpected", 0);
  parser.DeleteOperation(GetZahlOperation());
  ExpectError(parser, L"InternalParserError", 0);
}

// String functions

TEST(FormulaParser, SwitchesStringFunctionsOn) {
  OpenFormulaParser parser;
  parser.SetWithStringFunctions(true);
  EXPECT_EQ(parser.GetFunktionenEx(), 4);
  EXPECT_EQ(parser.GetNextOperation(GetZahlOperation()), GetStringFunktionOperation());
  EXPECT_EQ(parser.GetNextOperation(GetStringFunktionOperation()), GetFunktionOperation());
  EXPECT_EQ(parser.GetNextOperation(GetFunktionOperation()), GetConstStringOperation());
  EXPECT_EQ(parser.GetNextOperation(GetConstStringOperation()), nullptr);
}

TEST(FormulaParser, FixedSwitchingStringFunctionsOffClearsTheFlagOnly) {
  OpenFormulaParser parser;
  parser.SetWithStringFunctions(true);
  parser.SetWithStringFunctions(false);
  EXPECT_EQ(parser.GetFunktionenEx(), 4);
  parser = L"strcmp(\"a\";\"b\")";
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), -1.0);
}

TEST(FormulaParser, SwitchingStringFunctionsOnAgainInsertsNothingTwice) {
  OpenFormulaParser parser;
  parser.SetWithStringFunctions(true);
  parser.SetFunktionenEx(0);
  parser.SetWithStringFunctions(true);
  EXPECT_EQ(parser.GetFunktionenEx(), 0);
  parser.SetWithStringFunctions(false);
  parser.SetWithStringFunctions(true);
  EXPECT_EQ(parser.GetFunktionenEx(), 4);
  EXPECT_EQ(parser.Chain().size(), 12U);
}

TEST(FormulaParser, PlainParserWithStringFunctionsKnowsNoStringVariables) {
  CFormulaParser parser(L"strcmp(a;\"b\")");
  parser.SetWithStringFunctions(true);
  ExpectError(parser, L"InternalParserError", 7);
  parser = L"strcmp(\"b\";\"b\") + 1";
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 1.0);
  parser = L"a";
  ExpectError(parser, L"FunctionVariableExpected", 0);
}

// Comments

TEST(FormulaParser, TakesTheMarksOfCommentsThatAreSwitchedOffAsOrdinaryCharacters) {
  CFormulaParser parser(L"{ 1 }");
  parser.EnableKommentarGeschweifteKlammer(false);
  EXPECT_FALSE(parser.IstKommentarEnde(L'}'));
  EXPECT_TRUE(parser.IstKommentarEnde(L'\''));
  ExpectError(parser, L"FunctionExpected", 0);
  parser = L"1 }";
  ExpectError(parser, L"ArithmeticOperatorExpected", 2);
  parser = L"'}{' 1";
  EXPECT_TRUE(parser.WerteAus(true));

  parser.EnableKommentarGeschweifteKlammer(true);
  parser.EnableKommentarHochkomma(false);
  EXPECT_TRUE(parser.IstKommentarEnde(L'}'));
  EXPECT_FALSE(parser.IstKommentarEnde(L'\''));
  parser = L"1 'c'";
  ExpectError(parser, L"ArithmeticOperatorExpected", 2);
  parser = L"{'} 1";
  EXPECT_TRUE(parser.WerteAus(true));
  parser = L"3 + ' -2";
  ExpectError(parser, L"FunctionExpected", 4);
}

// Angles and pi

TEST(FormulaParser, SetsTheAngleUnit) {
  CFormulaParser parser;
  parser.SetWinkelmas(CFormulaParser::Altgrad);
  EXPECT_EQ(parser.GetWinkelmas(), kPi / 180);
  parser.SetWinkelmas(CFormulaParser::Bogenmass);
  EXPECT_EQ(parser.GetWinkelmas(), 1.0);
  parser.SetWinkelmas(static_cast<CFormulaParser::Winkelmas>(7));
  EXPECT_EQ(parser.GetWinkelmas(), 1.0);
  parser.SetWinkelmas(CFormulaParser::Neugrad);
  EXPECT_EQ(parser.GetWinkelmas(), kPi / 200);
}

TEST(FormulaParser, KeepsTheAngleUnitWhenPiChanges) {
  CFormulaParser degrees;
  degrees.SetWinkelmas(CFormulaParser::Altgrad);
  degrees.SetPI(3.0);
  EXPECT_EQ(degrees.GetPI(), 3.0);
  EXPECT_EQ(degrees.GetWinkelmas(), 3.0 / 180);

  CFormulaParser radians;
  radians.SetWinkelmas(CFormulaParser::Bogenmass);
  radians.SetPI(3.0);
  EXPECT_EQ(radians.GetWinkelmas(), 1.0);

  CFormulaParser grads;
  grads.SetPI(3.0);
  EXPECT_EQ(grads.GetWinkelmas(), 3.0 / 200);
  grads = L"pi";
  EXPECT_TRUE(grads.WerteAus(true));
  EXPECT_EQ(grads.GetWert(), 3.0);
}

// Texts

TEST(FormulaParser, GivesPartsOfItsText) {
  const CFormulaParser parser(L"abcdef");
  EXPECT_EQ(parser.GetLength(), 6);
  EXPECT_EQ(parser.GetAt(2), L'c');
  EXPECT_EQ(parser.Left(2), L"ab");
  EXPECT_EQ(parser.Left(9), L"abcdef");
  EXPECT_EQ(parser.Mid(4), L"ef");
  EXPECT_EQ(parser.Mid(6), L"");
  EXPECT_EQ(parser.Mid(9), L"");
  EXPECT_EQ(parser.Mid(1, 2), L"bc");
  EXPECT_EQ(parser.Mid(5, 9), L"f");
}

TEST(FormulaParser, FindsTheAssignmentSign) {
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"a<=b"), -1);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"a>=b"), -1);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"a==b"), -1);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"a=b"), 1);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"=1"), 0);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"a="), 1);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L""), -1);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"a<=b=c"), 4);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"a==b=c"), 4);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"a = b == c"), 2);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"a==="), 3);
  EXPECT_EQ(CFormulaParser::FindFinalGleich(L"<=="), 2);
}

TEST(FormulaParser, GivesTheDecimalPointOfTheLocaleAfresh) {
  EXPECT_EQ(CFormulaParser::GetWinsysDez(), L".");
  const std::wstring& text = CFormulaParser::GetWinsysDez();
  const formulatest::LocaleScope locale("de_DE.UTF-8");
  ASSERT_TRUE(locale.IsSet());
  EXPECT_EQ(text, L".");
  EXPECT_EQ(&CFormulaParser::GetWinsysDez(), &text);
  EXPECT_EQ(text, L",");
}

// Character classes

TEST(FormulaParser, AsksTheStandardLibraryForCharacterClasses) {
  EXPECT_TRUE(CFormulaParser::Isalpha(L'a'));
  EXPECT_TRUE(CFormulaParser::Isalpha(L'Z'));
  EXPECT_FALSE(CFormulaParser::Isalpha(L'1'));
  EXPECT_FALSE(CFormulaParser::Isalpha(L'_'));
  EXPECT_TRUE(CFormulaParser::Isalnum(L'1'));
  EXPECT_FALSE(CFormulaParser::Isalnum(L'#'));
  EXPECT_TRUE(CFormulaParser::Isdigit(L'0'));
  EXPECT_FALSE(CFormulaParser::Isdigit(L'a'));
  EXPECT_TRUE(CFormulaParser::Isspace(L'\t'));
  EXPECT_FALSE(CFormulaParser::Isspace(L'a'));
  EXPECT_FALSE(CFormulaParser::Isalpha(0x3B1));
  EXPECT_FALSE(CFormulaParser::Isspace(0x2003));
  EXPECT_FALSE(CFormulaParser::Isdigit(std::numeric_limits<int>::max()));
}

TEST(FormulaParser, FixedWrapsNegativeCharactersBeforeItLooksForUmlauts) {
  for (const int umlaut : {-4, -36, -10, -42, -28, -60}) {
    EXPECT_TRUE(CFormulaParser::IstUmlaut(umlaut)) << umlaut;
    EXPECT_FALSE(CFormulaParser::IstUmlaut(umlaut + 256)) << umlaut;
    // In the "C" locale the wrapped value is no letter.
    EXPECT_FALSE(CFormulaParser::Isalpha(umlaut)) << umlaut;
    EXPECT_FALSE(CFormulaParser::Isalnum(umlaut)) << umlaut;
    // Below -256 the wrapped value is an umlaut's signed byte.
    EXPECT_TRUE(CFormulaParser::Isalpha(umlaut - 256)) << umlaut;
    EXPECT_TRUE(CFormulaParser::Isalnum(umlaut - 256)) << umlaut;
    EXPECT_FALSE(CFormulaParser::Isdigit(umlaut - 256)) << umlaut;
    EXPECT_FALSE(CFormulaParser::Isspace(umlaut - 256)) << umlaut;
  }
  EXPECT_FALSE(CFormulaParser::IstUmlaut(-33));
  EXPECT_FALSE(CFormulaParser::Isalpha(-33));
  EXPECT_TRUE(CFormulaParser::Isalpha(-33 - 256));
  EXPECT_TRUE(CFormulaParser::Isalpha(static_cast<int>(L'a') - 256));
}

TEST(FormulaParser, TakesUmlautsForLettersOnlyIfTheLocaleDoes) {
  CFormulaParser parser(L"\u00E4");
  ExpectError(parser, L"FunctionExpected", 0);
  CVariableFormulaParser variables(L"\u00E4", false);
  variables.AddVariable(L"\u00E4", 1.0);
  ExpectError(variables, L"FunctionVariableExpected", 0);
}

// Numbers

TEST(FormulaParser, RefusesNumbersBeyondTheRangeOfADouble) {
  CFormulaParser parser(L"1 + " + std::wstring(400, L'9'));
  ExpectError(parser, L"NumberTooLong", 4);
  ExpectError(parser, L"NumberTooLong", 4, false);
  parser = std::wstring(400, L'0') + L"1";
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 1.0);
  parser = L"1" + std::wstring(308, L'0');
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 1e308);
  parser = L"0." + std::wstring(400, L'0') + L"1";
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 0.0);
}

TEST(FormulaParser, ReadsBothDecimalMarksUnderEveryLocale) {
  // The decimal point of the last two is neither; machines need not have them.
  for (const char* const name : {"C", "de_DE.UTF-8", "ps_AF.UTF-8", "fa_IR.UTF-8"}) {
    const formulatest::LocaleScope locale(name);
    if (!locale.IsSet()) continue;
    SCOPED_TRACE(name);
    for (const wchar_t* const text : {L"1,5 + 1.5", L",5 + 2.5", L"3,000000000000000000 * 1."}) {
      CFormulaParser parser(text);
      EXPECT_EQ(formulatest::Text(formulatest::Run(parser)), "3");
    }
  }
}

// Nesting

namespace {

std::wstring Nested(int levels, const std::wstring& open, const std::wstring& inner,
                    const std::wstring& close) {
  std::wstring text;
  for (int i = 0; i < levels; ++i) text += open;
  text += inner;
  for (int i = 0; i < levels; ++i) text += close;
  return text;
}

}  // namespace

TEST(FormulaParser, NestsTwoHundredLevelsOfBracketsAndCalls) {
  CFormulaParser parser(Nested(200, L"(", L"1", L")"));
  EXPECT_EQ(formulatest::Text(formulatest::Run(parser)), "1");
  parser = Nested(201, L"(", L"1", L")");
  ExpectError(parser, L"InternalParserError", 200);
  ExpectError(parser, L"InternalParserError", 200, false);

  parser = Nested(200, L"abs(", L"1", L")");
  EXPECT_EQ(formulatest::Text(formulatest::Run(parser)), "1");
  parser = Nested(201, L"abs(", L"1", L")");
  ExpectError(parser, L"InternalParserError", 803);

  parser = Nested(200, L"wenn(1;", L"1", L")");
  EXPECT_EQ(formulatest::Text(formulatest::Run(parser)), "1");
  parser = Nested(201, L"wenn(1;", L"1", L")");
  ExpectError(parser, L"InternalParserError", 1404);

  parser = Nested(100, L"(abs(", L"1", L"))");
  EXPECT_EQ(formulatest::Text(formulatest::Run(parser)), "1");
  parser = L"abs(" + Nested(100, L"(abs(", L"1", L"))") + L")";
  ExpectError(parser, L"InternalParserError", 503);
}

TEST(FormulaParser, CountsOnlyLevelsThatAreOpen) {
  std::wstring text = L"0";
  for (int i = 0; i < 300; ++i) text += L" + abs((1))";
  CFormulaParser parser(text);
  EXPECT_EQ(formulatest::Text(formulatest::Run(parser)), "300");
  parser = Nested(201, L"(", L"1", L")");
  EXPECT_FALSE(parser.WerteAus(true));
  parser = Nested(200, L"(", L"2", L")");
  EXPECT_EQ(formulatest::Text(formulatest::Run(parser)), "2");
}

// Copies

TEST(FormulaParser, CopiesOptionsTextResultAndOperations) {
  OpenFormulaParser source;
  source = L"1 2";
  source.SetPI(3.0);
  source.SetWinkelmas(CFormulaParser::Altgrad);
  source.SetFunktionen(0x3);
  source.SetFunktionenEx(0x2);
  source.EnableKommentarGeschweifteKlammer(false);
  source.EnableKommentarHochkomma(false);
  source.DeleteOperation(GetNotOperation());
  source.CreateFunctionList();
  source.WerteAus(false);

  const auto expectCopy = [&source](OpenFormulaParser& copy) {
    EXPECT_EQ(copy.Chain(), source.Chain());
    EXPECT_EQ(copy.GetWert(), 1.0);
    EXPECT_EQ(copy.GetErrorCode(), source.GetErrorCode());
    EXPECT_EQ(copy.GetErrPos(), 2);
    EXPECT_EQ(copy.GetWinkelmas(), 3.0 / 180);
    EXPECT_EQ(copy.GetPI(), 3.0);
    EXPECT_FALSE(copy.GetBerechnen());
    EXPECT_EQ(copy.GetFunktionen(), 0x3);
    EXPECT_EQ(copy.GetFunktionenEx(), 0x2);
    EXPECT_EQ(copy.Mid(0), L"1 2");
    EXPECT_FALSE(copy.IstKommentarEnde(L'}'));
    EXPECT_FALSE(copy.IstKommentarEnde(L'\''));
    // Neither the message nor the help list is copied.
    EXPECT_STREQ(copy.GetErrorMessage(), L"");
    EXPECT_EQ(copy.GetFunctionCount(), 0);
  };
  OpenFormulaParser copy(source);
  expectCopy(copy);
  OpenFormulaParser assigned;
  assigned = source;
  expectCopy(assigned);
}

TEST(FormulaParser, FixedCopyForgetsTheFlagOfStringFunctionsButHasTheOperations) {
  OpenFormulaParser source;
  source.SetWithStringFunctions(true);
  OpenFormulaParser copy(source);
  EXPECT_EQ(copy.GetFunktionenEx(), 4);
  EXPECT_EQ(copy.Chain(), source.Chain());
  copy.SetFunktionenEx(0);
  // The flag is off, so switching on acts.
  copy.SetWithStringFunctions(true);
  EXPECT_EQ(copy.GetFunktionenEx(), 4);
  EXPECT_EQ(copy.Chain(), source.Chain());
}

TEST(FormulaParser, AssignsItselfWithoutHarm) {
  CFormulaParser parser(L"1 + 1");
  const CFormulaParser& same = parser;
  parser = same;
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 2.0);
}

TEST(FormulaParser, ResetGoesBackToTheOptionsOfTheStart) {
  OpenFormulaParser parser;
  parser = L"1 2";
  parser.SetPI(3.0);
  parser.SetWinkelmas(CFormulaParser::Altgrad);
  parser.SetFunktionen(0);
  parser.SetFunktionenEx(3);
  parser.EnableKommentarGeschweifteKlammer(false);
  parser.EnableKommentarHochkomma(false);
  parser.DeleteOperation(GetNotOperation());
  parser.CreateFunctionList();
  parser.WerteAus(false);
  const std::wstring message = parser.GetErrorMessage();
  const int functions = parser.GetFunctionCount();
  parser.Reset();

  EXPECT_EQ(parser.GetWert(), 0.0);
  EXPECT_EQ(parser.GetErrorCode(), 0);
  EXPECT_EQ(parser.GetErrPos(), 0);
  EXPECT_TRUE(parser.GetBerechnen());
  EXPECT_EQ(parser.GetPI(), 3.0);
  EXPECT_EQ(parser.GetWinkelmas(), 3.0 / 200);
  EXPECT_EQ(parser.GetFunktionen(), -1);
  EXPECT_EQ(parser.GetFunktionenEx(), 0);
  EXPECT_EQ(parser.GetLength(), 0);
  EXPECT_TRUE(parser.IstKommentarEnde(L'}'));
  EXPECT_TRUE(parser.IstKommentarEnde(L'\''));
  EXPECT_EQ(parser.Chain().size(), 9U);
  EXPECT_EQ(parser.GetFunctionCount(), functions);
  EXPECT_EQ(parser.GetErrorMessage(), message);
}

TEST(FormulaParser, FixedResetSwitchesStrcmpOffWhileItsOperationStays) {
  OpenFormulaParser parser;
  parser.SetWithStringFunctions(true);
  parser.Reset();
  EXPECT_EQ(parser.GetFunktionenEx(), 0);
  EXPECT_EQ(parser.Chain().size(), 12U);
  parser = L"strcmp(\"a\";\"a\")";
  ExpectError(parser, L"FunctionVariableExpected", 0);
  // The flag is on, so switching on does nothing.
  parser.SetWithStringFunctions(true);
  EXPECT_EQ(parser.GetFunktionenEx(), 0);
}

TEST(FormulaParser, FixedFailureInsideAPartNotComputedLeavesComputingOff) {
  CFormulaParser parser(L"wenn(1;2;3 4)");
  EXPECT_FALSE(parser.WerteAus(true));
  EXPECT_TRUE(parser.GetBerechnen());
  parser = L"wenn(1;2;(3 4))";
  EXPECT_FALSE(parser.WerteAus(true));
  EXPECT_FALSE(parser.GetBerechnen());
  parser = L"wenn(1;2;3)";
  EXPECT_TRUE(parser.WerteAus(true));
  EXPECT_EQ(parser.GetWert(), 2.0);
}
