#include "formula/FormulaOperators.h"

#include "formula/FormulaCharacters.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaRounding.h"
#include "formula/FunctionTable.h"
#include "foundation/ErrorKeys.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace zeb {

namespace {

/// The character at an index, NUL behind the end.
wchar_t At(std::wstring_view text, std::size_t pos) { return pos < text.size() ? text[pos] : L'\0'; }

bool WordAt(std::wstring_view text, std::size_t pos, std::string_view word) {
  return pos < text.size() && text.size() - pos >= word.size() && IsWord(text.substr(pos, word.size()), word);
}

/// The difference whose sign is the result of a comparison: 0.0 for values that are equal at 14 digits.
double ComparableDifference(double a, double b) {
  const double difference = a - b;
  // Rounding to 14 digits moves a value by less than 1e-13 of it; where the values lie further apart than that, or
  // are the same finite number, it cannot change the outcome.
  const double magnitude = std::max(std::fabs(a), std::fabs(b));
  if (magnitude <= std::numeric_limits<double>::max()) {
    if (difference == 0.0) return 0.0;
    if (std::fabs(difference) > magnitude * 1e-12 + 1e-13) return difference;
  }
  return RundeDouble(RundeDouble(a, 14, 1, false) - RundeDouble(b, 14, 1, false), 14, 1, true);
}

double PowerOf(double a, double b) {
  if (a == 0.0 && b < 0.0) ThrowFormulaError(ErrorKeys::NullPowerNegative);
  if (a < 0.0 && std::ceil(b) != b) ThrowFormulaError(ErrorKeys::NegativePowerFraction);
  return std::pow(a, b);
}

/// The a-th root of b.
double RootOf(double a, double b) {
  if (a == 0.0) ThrowFormulaError(ErrorKeys::ZeroRoot);
  if (b < 0.0) ThrowFormulaError(ErrorKeys::NegativeRoot);
  if (a < 0.0 && b == 0.0) ThrowFormulaError(ErrorKeys::NegativeRootNull);
  if (a == 2.0) return std::sqrt(b);
  if (a == -2.0) return 1.0 / std::sqrt(b);
  return std::pow(b, 1.0 / a);
}

double Quotient(double a, double b) {
  if (b == 0.0) ThrowFormulaError(a == 0.0 ? ErrorKeys::ZeroDividedByZero : ErrorKeys::DivisionByZero);
  return a / b;
}

void RefuseZeroDivisor(double b) {
  if (b == 0.0) ThrowFormulaError(ErrorKeys::DivisionByZero);
}

}  // namespace

FoundOperator FindOperator(std::wstring_view text, std::size_t pos, int functions) {
  const wchar_t c = At(text, pos);
  const wchar_t next = At(text, pos + 1);
  switch (c) {
    case L'+':
      return {BinaryOperator::Plus, 1};
    case L'-':
      return {BinaryOperator::Minus, 1};
    case L'*':
      return next == L'*' ? FoundOperator{BinaryOperator::Power, 2} : FoundOperator{BinaryOperator::Times, 1};
    case L'/':
      return next == L'/' ? FoundOperator{BinaryOperator::Root, 2}
                          : FoundOperator{BinaryOperator::DividedBy, 1};
    case L':':
      return {BinaryOperator::DividedBy, 1};
    case L'^':
      return {BinaryOperator::Power, 1};
    case L'~':
      return {BinaryOperator::Root, 1};
    case L'<':
      if (next == L'=') return {BinaryOperator::LessOrEqual, 2};
      return next == L'>' ? FoundOperator{BinaryOperator::Unequal, 2}
                          : FoundOperator{BinaryOperator::Less, 1};
    case L'>':
      return next == L'=' ? FoundOperator{BinaryOperator::GreaterOrEqual, 2}
                          : FoundOperator{BinaryOperator::Greater, 1};
    case L'=':
      return next == L'=' ? FoundOperator{BinaryOperator::Equal, 2} : FoundOperator{};
    case L'&':
      return next == L'&' ? FoundOperator{BinaryOperator::And, 2} : FoundOperator{};
    case L'|':
      return next == L'|' ? FoundOperator{BinaryOperator::Or, 2} : FoundOperator{};
    case L'm':
    case L'M':
      if ((functions & kModuloBit) != 0 && WordAt(text, pos, "mod")) return {BinaryOperator::Modulo, 3};
      return {};
    case L'd':
    case L'D':
      if ((functions & kWholeDivisionBit) != 0 && WordAt(text, pos, "div"))
        return {BinaryOperator::WholeDivision, 3};
      return {};
    default:
      return {};
  }
}

int FindOperatorOfLevel(OperatorLevel level, std::wstring_view text, std::size_t pos, int functions) {
  const FoundOperator found = FindOperator(text, pos, functions);
  if (LevelOf(found.op) == level) return found.length;
  // Where the level of powers has not taken them, `**` and `//` begin with a sign of this level.
  return level == OperatorLevel::Product && LevelOf(found.op) == OperatorLevel::Power && found.length == 2
             ? 1
             : 0;
}

BinaryOperator OperatorFromText(std::wstring_view text) {
  const FoundOperator found = FindOperator(text, 0, kModuloBit | kWholeDivisionBit);
  return static_cast<std::size_t>(found.length) == text.size() ? found.op : BinaryOperator::None;
}

double CalculateComparison(BinaryOperator op, double a, double b) {
  const double difference = ComparableDifference(a, b);
  switch (op) {
    case BinaryOperator::Less:
      return 0.0 > difference ? 1.0 : 0.0;
    case BinaryOperator::LessOrEqual:
      return 0.0 >= difference ? 1.0 : 0.0;
    case BinaryOperator::Greater:
      return difference > 0.0 ? 1.0 : 0.0;
    case BinaryOperator::GreaterOrEqual:
      return difference >= 0.0 ? 1.0 : 0.0;
    case BinaryOperator::Equal:
      return difference == 0.0 ? 1.0 : 0.0;
    case BinaryOperator::Unequal:
      return difference != 0.0 ? 1.0 : 0.0;
    default:
      ThrowFormulaError(ErrorKeys::InternalParserError);
  }
}

double CalculateLogic(BinaryOperator op, double a, double b) {
  switch (op) {
    case BinaryOperator::Or:
      return a != 0.0 || b != 0.0 ? 1.0 : 0.0;
    case BinaryOperator::And:
      return a != 0.0 && b != 0.0 ? 1.0 : 0.0;
    default:
      ThrowFormulaError(ErrorKeys::InternalParserError);
  }
}

double CalculateSum(BinaryOperator op, double a, double b, bool computing) {
  double result = 0.0;
  switch (op) {
    case BinaryOperator::Plus:
      result = a + b;
      break;
    case BinaryOperator::Minus:
      result = a - b;
      break;
    default:
      ThrowFormulaError(ErrorKeys::InternalParserError);
  }
  return computing ? RoundTo14Decimals(result) : result;
}

double CalculateProduct(BinaryOperator op, double a, double b, bool computing) {
  if (LevelOf(op) != OperatorLevel::Product) ThrowFormulaError(ErrorKeys::InternalParserError);
  if (!computing) return 0.0;
  switch (op) {
    case BinaryOperator::Times:
      return RoundTo14Decimals(a * b);
    case BinaryOperator::DividedBy:
      return RoundTo14Decimals(Quotient(a, b));
    case BinaryOperator::Modulo:
      RefuseZeroDivisor(b);
      return RoundTo14Decimals(std::fmod(a, b));
    default:
      RefuseZeroDivisor(b);
      return RoundTo14Decimals(TruncateTo32Bits(a / b));
  }
}

double CalculatePower(BinaryOperator op, double a, double b, bool computing) {
  switch (op) {
    case BinaryOperator::Power:
      return computing ? RoundTo14Decimals(PowerOf(a, b)) : 0.0;
    case BinaryOperator::Root:
      return computing ? RoundTo14Decimals(RootOf(a, b)) : 0.0;
    default:
      ThrowFormulaError(ErrorKeys::InternalParserError);
  }
}

double TruncateTo32Bits(double value) {
  constexpr double kFirstBelow = -2147483649.0;
  constexpr double kFirstAbove = 2147483648.0;
  if (!(value > kFirstBelow && value < kFirstAbove)) return std::numeric_limits<std::int32_t>::min();
  return static_cast<double>(static_cast<std::int32_t>(value));
}

}  // namespace zeb
