#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// The binary operators of the formula language: how they are spelled and what they compute.
namespace zeb {

enum class BinaryOperator : std::uint8_t {
  None,
  Less,
  LessOrEqual,
  Greater,
  GreaterOrEqual,
  Equal,
  Unequal,
  And,
  Or,
  Plus,
  Minus,
  Times,
  DividedBy,
  Modulo,
  WholeDivision,
  Power,
  Root,
};

/// Precedence, loosest first. Prefixes stand between sums and products.
enum class OperatorLevel : std::uint8_t { None, Comparison, Logic, Sum, Product, Power };

constexpr OperatorLevel LevelOf(BinaryOperator op) {
  if (op >= BinaryOperator::Power) return OperatorLevel::Power;
  if (op >= BinaryOperator::Times) return OperatorLevel::Product;
  if (op >= BinaryOperator::Plus) return OperatorLevel::Sum;
  if (op >= BinaryOperator::And) return OperatorLevel::Logic;
  return op == BinaryOperator::None ? OperatorLevel::None : OperatorLevel::Comparison;
}

/// An operator in a text and its length there.
struct FoundOperator {
  BinaryOperator op = BinaryOperator::None;
  int length = 0;
};

/// The operator at `pos`, which may be at the end of the text or behind it. `**` and `//` go before `*` and `/`.
/// @param functions the mask of enabled functions, which switches `mod` and `div`
FoundOperator FindOperator(std::wstring_view text, std::size_t pos, int functions);

/// Length of the operator of one level at `pos`, 0 for none.
int FindOperatorOfLevel(OperatorLevel level, std::wstring_view text, std::size_t pos, int functions);

/// The operator that a text spells, None if it spells none. Case is ignored.
BinaryOperator OperatorFromText(std::wstring_view text);

/// The value of `a op b` of one level, rounded while computing.
/// An operator of another level: "InternalParserError". Products and powers give 0.0 unless computing.
double CalculateComparison(BinaryOperator op, double a, double b);
double CalculateLogic(BinaryOperator op, double a, double b);
double CalculateSum(BinaryOperator op, double a, double b, bool computing);
double CalculateProduct(BinaryOperator op, double a, double b, bool computing);
double CalculatePower(BinaryOperator op, double a, double b, bool computing);

/// The value truncated to a 32-bit integer; -2147483648 for all that does not fit, infinities and NaN included.
double TruncateTo32Bits(double value);

}  // namespace zeb
