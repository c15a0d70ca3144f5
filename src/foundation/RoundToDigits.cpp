#include "foundation/RoundToDigits.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <vector>

namespace zeb {
namespace {

constexpr std::array<double, 7> kPowersOfTen = {1.0, 10.0, 100.0, 1000.0, 10000.0, 100000.0, 1000000.0};
constexpr int kMostTableDigits = 6;

// Fixed behaviour: the bias is a little more than one half, so that near ties go away from zero.
constexpr double kBias = 0.500000001;
static_assert(std::bit_cast<std::uint64_t>(kBias) == 0x3FE000000089705FU);

double RoundByTable(double value, int digits) {
  const double bias = value >= 0.0 ? kBias : -kBias;
  const double power = kPowersOfTen[static_cast<std::size_t>(digits)];
  return std::trunc(value * power + bias) / power;
}

// Takes one decimal after the other off the fraction until the table can round the rest, then puts them together
// from the last to the first.
double RoundDigitByDigit(double magnitude, int digits) {
  std::vector<double> integers;
  double rest = magnitude;
  for (; digits > kMostTableDigits; --digits) {
    double integer = 0.0;
    const double fraction = std::modf(rest, &integer);
    integers.push_back(integer);
    rest = fraction * 10.0;
    // Nothing follows a fraction of zero: each further step would add exactly 0. A NaN stays one.
    if (fraction == 0.0 || std::isnan(fraction)) break;
  }
  const double result = digits > kMostTableDigits ? rest : RoundByTable(rest, kMostTableDigits);
  return std::accumulate(integers.rbegin(), integers.rend(), result,
                         [](double decimals, double integer) { return integer + decimals / 10.0; });
}

double RoundToInteger(double magnitude) {
  double integer = 0.0;
  return std::modf(magnitude, &integer) >= 0.5 ? integer + 1.0 : integer;
}

}  // namespace

double RoundToDigits(double value, int digits) {
  if (digits >= 0 && digits <= kMostTableDigits) return RoundByTable(value, digits);
  const double magnitude = std::fabs(value);
  const double rounded = digits < 0 ? RoundToInteger(magnitude) : RoundDigitByDigit(magnitude, digits);
  return value < 0.0 ? -rounded : rounded;
}

}  // namespace zeb
