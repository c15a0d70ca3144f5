// Functions of the language: their values, the masks that switch them, and the help list.

#include "formula/FunctionEvaluation.h"
#include "formula/FunctionTable.h"
#include "formula/OpenParser.h"
#include "foundation/Rounding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

using formulatest::ExpectError;
using formulatest::ExpectValue;

namespace {

const double kPi = 2.0 * std::asin(1.0);

struct NamedFunction {
  int bit;
  const wchar_t* name;
};

constexpr NamedFunction kMainNames[] = {
    {0x1, L"floor"},         {0x2, L"sinh"},        {0x4, L"cosh"},
    {0x8, L"tanh"},          {0x10, L"arcsin"},     {0x20, L"arccos"},
    {0x40, L"arctan"},       {0x80, L"arccot"},     {0x100, L"ceil"},
    {0x200, L"sqrt"},        {0x400, L"sin"},       {0x800, L"cos"},
    {0x1000, L"tan"},        {0x2000, L"cot"},      {0x4000, L"log"},
    {0x8000, L"exp"},        {0x10000, L"abs"},     {0x20000, L"round"},
    {0x80000, L"sqr"},       {0x100000, L"ln"},     {0x200000, L"eex"},
    {0x400000, L"roundk"},   {0x800000, L"rad"},    {0x1000000, L"deg"},
    {0x4000000, L"arctan2"}, {0x8000000, L"trunc"}, {0x10000000, L"min"},
    {0x20000000, L"max"},    {0x40000000, L"wenn"}, {static_cast<int>(0x80000000U), L"if"},
};

/// A call that is good for the function of a name.
std::wstring Call(const std::wstring& name) {
  const bool two = name == L"roundk" || name == L"arctan2" || name == L"min" || name == L"max" ||
                   name == L"wenn" || name == L"if";
  return name + (two ? L"(1;1)" : L"(0,5)");
}

}  // namespace

TEST(Functions, GiveTheValueOfTheStandardLibraryRounded) {
  const double w = kPi / 200;
  struct Case {
    const wchar_t* name;
    std::function<double(double)> value;
    std::vector<double> arguments;
  };
  const std::vector<double> any = {-123.456, -2.5, -1.0, -0.1, 0.0, 0.25, 0.7, 1.0, 33.3, 250.0};
  const std::vector<double> unit = {-1.0, -0.3, 0.0, 0.25, 1.0};
  const std::vector<double> positive = {0.001, 0.25, 1.0, 2.0, 1234.5};
  const Case cases[] = {
      {L"floor", [](double x) { return std::floor(x); }, any},
      {L"ceil", [](double x) { return std::ceil(x); }, any},
      {L"abs", [](double x) { return std::fabs(x); }, any},
      {L"round", [](double x) { return RundeDouble(x, 0, 1, true); }, any},
      {L"trunc", [](double x) { return std::trunc(x); }, any},
      {L"sqr", [](double x) { return x * x; }, any},
      {L"sqrt", [](double x) { return std::sqrt(x); }, positive},
      {L"exp", [](double x) { return std::exp(x); }, any},
      {L"eex", [](double x) { return std::pow(10.0, x); }, any},
      {L"ln", [](double x) { return std::log(x); }, positive},
      {L"log", [](double x) { return std::log10(x); }, positive},
      {L"sinh", [](double x) { return std::sinh(x); }, any},
      {L"cosh", [](double x) { return std::cosh(x); }, any},
      {L"tanh", [](double x) { return std::tanh(x); }, any},
      {L"sin", [w](double x) { return std::sin(w * x); }, any},
      {L"cos", [w](double x) { return std::cos(w * x); }, any},
      {L"tan", [w](double x) { return std::tan(w * x); }, any},
      {L"cot", [w](double x) { return 1.0 / std::tan(w * x); }, {-33.0, 0.5, 77.0}},
      {L"arcsin", [w](double x) { return std::asin(x) / w; }, unit},
      {L"arccos", [w](double x) { return std::acos(x) / w; }, unit},
      {L"arctan", [w](double x) { return std::atan(x) / w; }, any},
      {L"arccot", [w](double x) { return std::atan2(1.0, x) / w; }, any},
      {L"rad", [](double x) { return x / 360.0 * 2.0 * kPi; }, any},
      {L"deg", [](double x) { return x / (kPi * 2.0) * 360.0; }, any},
  };
  CVariableFormulaParser parser;
  for (const Case& function : cases) {
    for (const double x : function.arguments) {
      parser.Reset();
      parser.AddVariable(L"x", x);
      parser = function.name + std::wstring(L"(x)");
      const double argument = RundeDouble(x, 14, 1, true);
      SCOPED_TRACE(testing::Message()
                   << std::string(function.name, function.name + std::wcslen(function.name)) << " " << x);
      ExpectValue(parser, RundeDouble(function.value(argument), 14, 1, true));
    }
  }
  parser.Reset();
  parser.AddVariable(L"x", -0.3);
  parser = L"arctan2(x;2)";
  ExpectValue(parser, RundeDouble(std::atan2(-0.3, 2.0) / w, 14, 1, true));
}

TEST(Functions, FollowTheAngleUnit) {
  CFormulaParser parser(L"sin(90)");
  parser.SetWinkelmas(CFormulaParser::Altgrad);
  ExpectValue(parser, 1.0);
  parser = L"tan(90)";
  ExpectError(parser, L"IllegalParameter", 7);
  parser.SetWinkelmas(CFormulaParser::Bogenmass);
  parser = L"cos(0) + sin(pi/2)";
  ExpectValue(parser, 2.0);
  // These two convert between degrees and radians whatever the unit.
  parser = L"rad(180) - pi";
  ExpectValue(parser, 0.0);
  parser.SetPI(3.0);
  parser = L"rad(180)";
  ExpectValue(parser, 3.0);
}

TEST(Functions, FixedTruncateThroughThirtyTwoBits) {
  CFormulaParser parser(L"trunc(3000000000)");
  ExpectValue(parser, -2147483648.0);
  parser = L"trunc(exp(1000))";
  ExpectValue(parser, -2147483648.0);
}

TEST(Functions, AreSwitchedByTheirBits) {
  CFormulaParser parser;
  CVariableFormulaParser variables;
  for (const NamedFunction& function : kMainNames) {
    const std::wstring name = function.name;
    SCOPED_TRACE(std::string(name.begin(), name.end()));
    parser = Call(name);
    parser.SetFunktionen(function.bit);
    EXPECT_TRUE(parser.WerteAus(true));
    parser.SetFunktionen(~function.bit);
    ExpectError(parser, L"FunctionExpected", 0);
    // A name that is switched off can serve as a variable.
    variables.SetFunktionen(~function.bit);
    variables.AddVariable(name, 17.0);
    variables = name;
    ExpectValue(variables, 17.0);
  }
}

TEST(Functions, OfTheExtraSetNeedTheirBits) {
  CFormulaParser parser(L"W(16)");
  parser.SetFunktionenEx(0x1);
  ExpectValue(parser, 4.0);
  parser = L"w(-1)";
  ExpectError(parser, L"NegativeRoot", 5);
  EXPECT_TRUE(parser.WerteAus(false));
  parser = L"lg(100)";
  ExpectError(parser, L"FunctionExpected", 0);
  parser.SetFunktionenEx(0x2);
  ExpectValue(parser, 2.0);
  parser = L"lg(0)";
  ExpectError(parser, L"IllegalParameter", 5);
  EXPECT_TRUE(parser.WerteAus(false));
  // The bit alone does not bring strcmp: its operation is missing.
  parser.SetFunktionenEx(-1);
  parser = L"strcmp(\"a\";\"a\")";
  ExpectError(parser, L"FunctionExpected", 0);
}

TEST(Functions, ConstantsCannotBeSwitchedOff) {
  CFormulaParser parser(L"pi - e");
  parser.SetFunktionen(0);
  ExpectValue(parser, RundeDouble(kPi - E, 14, 1, true));
  EXPECT_TRUE(parser.WerteAus(false));
}

TEST(Functions, TellTheirNamesByBit) {
  CFormulaParser parser;
  for (const NamedFunction& function : kMainNames) {
    EXPECT_EQ(parser.GetFunktionNameFromDefine(function.bit), function.name);
  }
  for (const int bit : {0, 0x3, 0x40000, 0x2000000, -1}) {
    EXPECT_EQ(parser.GetFunktionNameFromDefine(bit), L"undefiniert") << bit;
  }
  EXPECT_EQ(parser.GetFunktionNameFromDefineEx(0x1), L"w");
  EXPECT_EQ(parser.GetFunktionNameFromDefineEx(0x2), L"lg");
  EXPECT_EQ(parser.GetFunktionNameFromDefineEx(0x4), L"strcmp");
  EXPECT_EQ(parser.GetFunktionNameFromDefineEx(0x8), L"undefiniert");
  EXPECT_EQ(parser.GetFunktionNameFromDefineEx(0), L"undefiniert");
}

TEST(Functions, FixedNextNameOverwritesTheLast) {
  CFormulaParser parser;
  const std::wstring& main = parser.GetFunktionNameFromDefine(0x400);
  const std::wstring& extra = parser.GetFunktionNameFromDefineEx(0x4);
  EXPECT_EQ(main, L"sin");
  CFormulaParser other;
  EXPECT_EQ(&other.GetFunktionNameFromDefine(0x800), &main);
  EXPECT_EQ(main, L"cos");
  EXPECT_EQ(extra, L"strcmp");
}

TEST(Functions, CompareNamesWithoutCaseAndAsWholeWords) {
  CFormulaParser parser;
  EXPECT_TRUE(parser.IsThisFunktion(0x400, L"sin"));
  EXPECT_TRUE(parser.IsThisFunktion(0x400, L"SiN"));
  EXPECT_FALSE(parser.IsThisFunktion(0x400, L"si"));
  EXPECT_FALSE(parser.IsThisFunktion(0x400, L"sinh"));
  EXPECT_FALSE(parser.IsThisFunktion(0x400, L"cos"));
  parser.SetFunktionen(0x800);
  EXPECT_FALSE(parser.IsThisFunktion(0x400, L"sin"));
  EXPECT_FALSE(parser.IsThisFunktionEx(0x4, L"strcmp"));
  parser.SetFunktionenEx(0x4);
  EXPECT_TRUE(parser.IsThisFunktionEx(0x4, L"STRCMP"));
  EXPECT_FALSE(parser.IsThisFunktionEx(0x1, L"w"));
}

// The help list

namespace {

struct HelpRow {
  const wchar_t* name;
  const wchar_t* description;
};

constexpr HelpRow kFullHelp[] = {
    {L"pi", L"Pi (3,141...)"},
    {L"e", L"Eulerische Zahl (2,718...)"},
    {L"( )", L"Klammern"},
    {L"{ }", L"Kommentar Anfang, Kommentar Ende"},
    {L"' '", L"Kommentar Anfang, Kommentar Ende"},
    {L"+", L"Addition: x + y"},
    {L"-", L"Subtraktion: x - y"},
    {L"*", L"Multiplikation: x * y"},
    {L"/", L"Division: x / y"},
    {L"**", L"Potenz: x ** y"},
    {L"^", L"Potenz: x ^ y"},
    {L"//", L"Wurzel: x // y"},
    {L"~", L"Wurzel: x ~ y"},
    {L"mod", L"Modulo, ganzzahliger Rest einer Division: x mod y"},
    {L"div", L"ganzzahliges Ergebnis einer Division: x div y"},
    {L"!", L"Logische Negation"},
    {L"&&", L"Logisches Und"},
    {L"||", L"Logisches Oder"},
    {L"<", L"Kleiner"},
    {L"<=", L"Kleiner gleich"},
    {L">", L"Größer"},
    {L">=", L"Größer gleich"},
    {L"==", L"Gleich"},
    {L"<>", L"Ungleich"},
    {L"floor", L"nächst kleinere Ganzzahl: floor(x)"},
    {L"sinh", L"sinus hyperbolicus: sinh(x)"},
    {L"cosh", L"cosinus hyperbolicus: cosh(x)"},
    {L"tanh", L"tangens hyperbolicus: tanh(x)"},
    {L"arcsin", L"arcus sinus: arcsin(x)"},
    {L"arccos", L"arcus cosinus: arccos(x)"},
    {L"arctan", L"arcus tangens: arctan(x)"},
    {L"arccot", L"arcus cotangens: arccot(x)"},
    {L"ceil", L"nächst größere Ganzzahl: ceil(x)"},
    {L"sqrt", L"Quadratwurzel: sqrt(x)"},
    {L"sin", L"sinus: sin(x)"},
    {L"cos", L"cosinus: cos(x)"},
    {L"tan", L"tangens: tan(x)"},
    {L"cot", L"cotangens: cot(x)"},
    {L"log", L"10er Logarithmus log(x)"},
    {L"exp", L"Exponentialfunktion mit Basis e: exp(x)"},
    {L"abs", L"Absolutbetrag: abs(x)"},
    {L"round", L"Runden auf 0 Nachkommastellen: round(x)"},
    {L"sqr", L"Quadrat: sqr(x)"},
    {L"ln", L"natürlicher Logarithmus: ln(x)"},
    {L"eex", L"Exponentialfunktion mit Basis 10: eex(x)"},
    {L"roundk", L"Runden auf n Nachkommastellen: roundk(x; n)"},
    {L"rad", L"Rechnet von Altgrad in Bogenmaß um: rad(x)"},
    {L"deg", L"Rechnet von Bogenmaß in Altgrad um: deg(x)"},
    {L"arctan2", L"arcus tangens von x/y: arctan2(x; y)"},
    {L"trunc", L"Nachkommastellen abschneiden: trunc(x)"},
    {L"min", L"Minimum: min(x;y;...)"},
    {L"max", L"Maximum: max(x;y;...)"},
    {L"wenn", L"Bedingung: wenn(Bedingung;Wenn ja; Wenn nein)"},
    {L"if", L"Bedingung: if(Bedingung;Wenn ja; Wenn nein)"},
    {L"strcmp", L"Zeichenketten vergleichen: strcmp(a;b)"},
};

std::vector<std::wstring> HelpNames(CFormulaParser& parser) {
  parser.CreateFunctionList();
  std::vector<std::wstring> names;
  for (int i = 0; i < parser.GetFunctionCount(); ++i) names.emplace_back(parser.GetFunctionNameAt(i));
  return names;
}

}  // namespace

TEST(FunctionList, HoldsOperatorsAndFunctionsInOrder) {
  CFormulaParser parser;
  parser.SetFunktionenEx(-1);
  EXPECT_EQ(parser.GetFunctionCount(), 0);
  parser.CreateFunctionList();
  ASSERT_EQ(parser.GetFunctionCount(), static_cast<int>(std::size(kFullHelp)));
  for (int i = 0; i < parser.GetFunctionCount(); ++i) {
    EXPECT_STREQ(parser.GetFunctionNameAt(i), kFullHelp[i].name) << i;
    EXPECT_STREQ(parser.GetFunctionDescriptionAt(i), kFullHelp[i].description) << i;
  }
}

TEST(FunctionList, LeavesOutWhatTheMasksSwitchOff) {
  CFormulaParser parser;
  parser.SetFunktionen(0x400 | static_cast<int>(0x80000000U));
  const std::vector<std::wstring> names = HelpNames(parser);
  ASSERT_EQ(names.size(), 24U);
  EXPECT_EQ(names[12], L"~");
  EXPECT_EQ(names[13], L"!");
  EXPECT_EQ(names[22], L"sin");
  EXPECT_EQ(names[23], L"if");

  CFormulaParser remainders;
  remainders.SetFunktionen(0x40000);
  EXPECT_EQ(HelpNames(remainders).size(), 23U);
  EXPECT_STREQ(remainders.GetFunctionNameAt(13), L"mod");
}

TEST(FunctionList, IsBuiltOnceAndDoesNotFollowTheMasks) {
  CFormulaParser parser;
  const std::vector<std::wstring> names = HelpNames(parser);
  parser.SetFunktionen(0);
  parser.SetFunktionenEx(4);
  EXPECT_EQ(HelpNames(parser), names);
  EXPECT_EQ(parser.GetFunktionen(), 0);
}

TEST(FunctionList, FixedRowsOfCommentsThatAreSwitchedOffTakeTheNameBefore) {
  CFormulaParser noBraces;
  noBraces.EnableKommentarGeschweifteKlammer(false);
  std::vector<std::wstring> names = HelpNames(noBraces);
  EXPECT_EQ(names[3], L"( )");
  EXPECT_EQ(names[4], L"' '");
  EXPECT_STREQ(noBraces.GetFunctionDescriptionAt(3), L"Kommentar Anfang, Kommentar Ende");

  CFormulaParser noQuotes;
  noQuotes.EnableKommentarHochkomma(false);
  names = HelpNames(noQuotes);
  EXPECT_EQ(names[3], L"{ }");
  EXPECT_EQ(names[4], L"{ }");

  CFormulaParser neither;
  neither.EnableKommentarGeschweifteKlammer(false);
  neither.EnableKommentarHochkomma(false);
  names = HelpNames(neither);
  EXPECT_EQ(names[3], L"( )");
  EXPECT_EQ(names[4], L"( )");
}

TEST(FunctionList, TakesEntriesWhoseBitTheMaskHasAndClearsIt) {
  CFormulaParser parser;
  int mask = 0x401;
  parser.AddToArray(L"Sinus", 0x400, mask);
  EXPECT_EQ(mask, 0x1);
  parser.AddToArray(L"Sinus", 0x400, mask);
  EXPECT_EQ(mask, 0x1);
  int extra = 0x6;
  parser.AddToArrayEx(L"Vergleich", 0x4, extra);
  parser.AddToArrayEx(L"Wurzel", 0x1, extra);
  EXPECT_EQ(extra, 0x2);
  ASSERT_EQ(parser.GetFunctionCount(), 2);
  EXPECT_STREQ(parser.GetFunctionNameAt(0), L"sin");
  EXPECT_STREQ(parser.GetFunctionDescriptionAt(0), L"Sinus");
  EXPECT_STREQ(parser.GetFunctionNameAt(1), L"strcmp");
  // A list that is not empty is not filled.
  parser.CreateFunctionList();
  EXPECT_EQ(parser.GetFunctionCount(), 2);
}

// The table behind all that

TEST(FunctionTable, FindsEachFunctionByItsName) {
  for (const zeb::FunctionEntry& entry : zeb::kFunctionTable) {
    EXPECT_EQ(zeb::FindFunction(entry.name), &entry);
    std::wstring upper = entry.name;
    for (wchar_t& c : upper) c = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(c)));
    EXPECT_EQ(zeb::FindFunction(upper), &entry);
    EXPECT_EQ(zeb::FindFunction(upper + L"x"), nullptr);
    EXPECT_EQ(entry.word, std::string(entry.name, entry.name + std::wcslen(entry.name)));
  }
  EXPECT_EQ(zeb::FindFunction(L""), nullptr);
  EXPECT_EQ(zeb::FindFunction(L"Preis"), nullptr);
  EXPECT_EQ(zeb::FindFunction(std::wstring(100, L's')), nullptr);
  EXPECT_EQ(zeb::FindFunction(std::wstring(3, static_cast<wchar_t>(-1))), nullptr);
}
