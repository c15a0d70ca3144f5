#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string_view>

// The functions of the formula language, and the texts that a user interface shows for functions and operators.
// Looking up a name, evaluating a call and the help list of CFormulaParser are all served from these tables.
namespace zeb {

/// The operators that a bit of the main mask switches.
inline constexpr int kModuloBit = 0x40000;
inline constexpr int kWholeDivisionBit = 0x2000000;
/// The bit of `strcmp` in the extra mask.
inline constexpr int kStringCompareBit = 0x4;

enum class FunctionSet : std::uint8_t {
  Main,   ///< enabled by CFormulaParser::GetFunktionen
  Extra,  ///< enabled by CFormulaParser::GetFunktionenEx
};

enum class Function : std::uint8_t {
  Floor,
  Sinh,
  Cosh,
  Tanh,
  Arcsin,
  Arccos,
  Arctan,
  Arccot,
  Ceil,
  Sqrt,
  Sin,
  Cos,
  Tan,
  Cot,
  Log,
  Exp,
  Abs,
  Round,
  Sqr,
  Ln,
  Eex,
  Roundk,
  Rad,
  Deg,
  Arctan2,
  Trunc,
  Min,
  Max,
  Wenn,
  If,
  W,
  Lg,
  Strcmp,
};

/// No upper limit of arguments.
inline constexpr int kAnyNumber = std::numeric_limits<int>::max();

struct FunctionEntry {
  Function function;
  FunctionSet set;
  std::uint32_t bit;  ///< in the mask of its set
  const wchar_t* name;
  std::string_view word;  ///< the name for comparing; compared without case
  int minimumArguments;
  int maximumArguments;
  const wchar_t* description;  ///< German; null for what the help list does not show

  /// The bit as the exported masks carry it.
  constexpr int Bit() const { return static_cast<int>(bit); }
};

// NOLINTBEGIN(cppcoreguidelines-macro-usage): the name stands once in a row, wide and narrow.
#define ZEB_NAME(name) L##name, name

/// All functions, the main set first, each set by rising bit.
inline constexpr std::array<FunctionEntry, 33> kFunctionTable = {{
    {Function::Floor, FunctionSet::Main, 0x1, ZEB_NAME("floor"), 1, 1,
     L"n\u00E4chst kleinere Ganzzahl: floor(x)"},
    {Function::Sinh, FunctionSet::Main, 0x2, ZEB_NAME("sinh"), 1, 1, L"sinus hyperbolicus: sinh(x)"},
    {Function::Cosh, FunctionSet::Main, 0x4, ZEB_NAME("cosh"), 1, 1, L"cosinus hyperbolicus: cosh(x)"},
    {Function::Tanh, FunctionSet::Main, 0x8, ZEB_NAME("tanh"), 1, 1, L"tangens hyperbolicus: tanh(x)"},
    {Function::Arcsin, FunctionSet::Main, 0x10, ZEB_NAME("arcsin"), 1, 1, L"arcus sinus: arcsin(x)"},
    {Function::Arccos, FunctionSet::Main, 0x20, ZEB_NAME("arccos"), 1, 1, L"arcus cosinus: arccos(x)"},
    {Function::Arctan, FunctionSet::Main, 0x40, ZEB_NAME("arctan"), 1, 1, L"arcus tangens: arctan(x)"},
    {Function::Arccot, FunctionSet::Main, 0x80, ZEB_NAME("arccot"), 1, 1, L"arcus cotangens: arccot(x)"},
    {Function::Ceil, FunctionSet::Main, 0x100, ZEB_NAME("ceil"), 1, 1,
     L"n\u00E4chst gr\u00F6\u00DFere Ganzzahl: ceil(x)"},
    {Function::Sqrt, FunctionSet::Main, 0x200, ZEB_NAME("sqrt"), 1, 1, L"Quadratwurzel: sqrt(x)"},
    {Function::Sin, FunctionSet::Main, 0x400, ZEB_NAME("sin"), 1, 1, L"sinus: sin(x)"},
    {Function::Cos, FunctionSet::Main, 0x800, ZEB_NAME("cos"), 1, 1, L"cosinus: cos(x)"},
    {Function::Tan, FunctionSet::Main, 0x1000, ZEB_NAME("tan"), 1, 1, L"tangens: tan(x)"},
    {Function::Cot, FunctionSet::Main, 0x2000, ZEB_NAME("cot"), 1, 1, L"cotangens: cot(x)"},
    {Function::Log, FunctionSet::Main, 0x4000, ZEB_NAME("log"), 1, 1, L"10er Logarithmus log(x)"},
    {Function::Exp, FunctionSet::Main, 0x8000, ZEB_NAME("exp"), 1, 1,
     L"Exponentialfunktion mit Basis e: exp(x)"},
    {Function::Abs, FunctionSet::Main, 0x10000, ZEB_NAME("abs"), 1, 1, L"Absolutbetrag: abs(x)"},
    {Function::Round, FunctionSet::Main, 0x20000, ZEB_NAME("round"), 1, 1,
     L"Runden auf 0 Nachkommastellen: round(x)"},
    {Function::Sqr, FunctionSet::Main, 0x80000, ZEB_NAME("sqr"), 1, 1, L"Quadrat: sqr(x)"},
    {Function::Ln, FunctionSet::Main, 0x100000, ZEB_NAME("ln"), 1, 1, L"nat\u00FCrlicher Logarithmus: ln(x)"},
    {Function::Eex, FunctionSet::Main, 0x200000, ZEB_NAME("eex"), 1, 1,
     L"Exponentialfunktion mit Basis 10: eex(x)"},
    {Function::Roundk, FunctionSet::Main, 0x400000, ZEB_NAME("roundk"), 2, 2,
     L"Runden auf n Nachkommastellen: roundk(x; n)"},
    {Function::Rad, FunctionSet::Main, 0x800000, ZEB_NAME("rad"), 1, 1,
     L"Rechnet von Altgrad in Bogenma\u00DF um: rad(x)"},
    {Function::Deg, FunctionSet::Main, 0x1000000, ZEB_NAME("deg"), 1, 1,
     L"Rechnet von Bogenma\u00DF in Altgrad um: deg(x)"},
    {Function::Arctan2, FunctionSet::Main, 0x4000000, ZEB_NAME("arctan2"), 2, 2,
     L"arcus tangens von x/y: arctan2(x; y)"},
    {Function::Trunc, FunctionSet::Main, 0x8000000, ZEB_NAME("trunc"), 1, 1,
     L"Nachkommastellen abschneiden: trunc(x)"},
    {Function::Min, FunctionSet::Main, 0x10000000, ZEB_NAME("min"), 2, kAnyNumber, L"Minimum: min(x;y;...)"},
    {Function::Max, FunctionSet::Main, 0x20000000, ZEB_NAME("max"), 2, kAnyNumber, L"Maximum: max(x;y;...)"},
    {Function::Wenn, FunctionSet::Main, 0x40000000, ZEB_NAME("wenn"), 2, 3,
     L"Bedingung: wenn(Bedingung;Wenn ja; Wenn nein)"},
    {Function::If, FunctionSet::Main, 0x80000000, ZEB_NAME("if"), 2, 3,
     L"Bedingung: if(Bedingung;Wenn ja; Wenn nein)"},
    {Function::W, FunctionSet::Extra, 0x1, ZEB_NAME("w"), 1, 1, nullptr},
    {Function::Lg, FunctionSet::Extra, 0x2, ZEB_NAME("lg"), 1, 1, nullptr},
    {Function::Strcmp, FunctionSet::Extra, 0x4, ZEB_NAME("strcmp"), 2, 2,
     L"Zeichenketten vergleichen: strcmp(a;b)"},
}};

#undef ZEB_NAME
// NOLINTEND(cppcoreguidelines-macro-usage)

/// What decides whether and how a row of the operator table enters the help list.
enum class HelpCondition : std::uint8_t {
  None,
  BraceComment,   ///< without brace comments the row takes the name of the row before it
  QuoteComment,   ///< the same for quote comments
  Modulo,         ///< only with kModuloBit
  WholeDivision,  ///< only with kWholeDivisionBit
};

struct OperatorHelp {
  const wchar_t* name;
  const wchar_t* description;
  HelpCondition condition;
};

/// The rows of the help list that stand in front of the functions.
inline constexpr std::array<OperatorHelp, 24> kOperatorHelp = {{
    {L"pi", L"Pi (3,141...)", HelpCondition::None},
    {L"e", L"Eulerische Zahl (2,718...)", HelpCondition::None},
    {L"( )", L"Klammern", HelpCondition::None},
    {L"{ }", L"Kommentar Anfang, Kommentar Ende", HelpCondition::BraceComment},
    {L"' '", L"Kommentar Anfang, Kommentar Ende", HelpCondition::QuoteComment},
    {L"+", L"Addition: x + y", HelpCondition::None},
    {L"-", L"Subtraktion: x - y", HelpCondition::None},
    {L"*", L"Multiplikation: x * y", HelpCondition::None},
    {L"/", L"Division: x / y", HelpCondition::None},
    {L"**", L"Potenz: x ** y", HelpCondition::None},
    {L"^", L"Potenz: x ^ y", HelpCondition::None},
    {L"//", L"Wurzel: x // y", HelpCondition::None},
    {L"~", L"Wurzel: x ~ y", HelpCondition::None},
    {L"mod", L"Modulo, ganzzahliger Rest einer Division: x mod y", HelpCondition::Modulo},
    {L"div", L"ganzzahliges Ergebnis einer Division: x div y", HelpCondition::WholeDivision},
    {L"!", L"Logische Negation", HelpCondition::None},
    {L"&&", L"Logisches Und", HelpCondition::None},
    {L"||", L"Logisches Oder", HelpCondition::None},
    {L"<", L"Kleiner", HelpCondition::None},
    {L"<=", L"Kleiner gleich", HelpCondition::None},
    {L">", L"Gr\u00F6\u00DFer", HelpCondition::None},
    {L">=", L"Gr\u00F6\u00DFer gleich", HelpCondition::None},
    {L"==", L"Gleich", HelpCondition::None},
    {L"<>", L"Ungleich", HelpCondition::None},
}};

}  // namespace zeb
