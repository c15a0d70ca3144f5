#include "foundation/RoundToDigits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using zeb::RoundToDigits;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kMostDigits = std::numeric_limits<int>::max();

// The rule as a recursion, for counts that a test can afford.
double ByRecursion(double value, int digits) {
  if (digits <= 6) return RoundToDigits(value, digits);
  double integer = 0.0;
  const double fraction = std::modf(std::fabs(value), &integer);
  const double magnitude = integer + ByRecursion(fraction * 10.0, digits - 1) / 10.0;
  return value < 0.0 ? -magnitude : magnitude;
}

}  // namespace

TEST(RoundToDigits, TableOfUpToSixDigits) {
  EXPECT_EQ(RoundToDigits(2.5, 0), 3.0);
  EXPECT_EQ(RoundToDigits(-2.5, 0), -3.0);
  EXPECT_EQ(RoundToDigits(1.2345678, 6), 1.234568);
  EXPECT_EQ(RoundToDigits(1.24, 1), 1.2);
}

TEST(RoundToDigits, TheBiasIsMoreThanOneHalfFixed) {
  EXPECT_EQ(RoundToDigits(0.499999999, 0), 1.0);
  EXPECT_EQ(RoundToDigits(0.499999998, 0), 0.0);
  EXPECT_EQ(RoundToDigits(-0.499999999, 0), -1.0);
}

TEST(RoundToDigits, SevenDigitsAndMoreGoDigitByDigit) {
  for (const double value :
       {1.23456785, -1.23456785, 0.1, 1.0 / 3.0, 123456.789, 1e-9, 7.0, 1e300, -5e-324}) {
    for (const int digits : {7, 8, 15, 16, 17, 30, 400, 1100}) {
      EXPECT_EQ(RoundToDigits(value, digits), ByRecursion(value, digits)) << value << ' ' << digits;
    }
  }
}

TEST(RoundToDigits, ANegativeCountRoundsToAnIntegerFixed) {
  EXPECT_EQ(RoundToDigits(1234.5, -1), 1235.0);
  EXPECT_EQ(RoundToDigits(-1234.5, -2), -1235.0);
  EXPECT_EQ(RoundToDigits(0.4999999995, -1), 0.0);  // no bias here
  EXPECT_EQ(RoundToDigits(7.25, std::numeric_limits<int>::min()), 7.0);
}

TEST(RoundToDigits, TakesAnyValueAndCount) {
  EXPECT_EQ(RoundToDigits(0.5, kMostDigits), 0.5);
  EXPECT_EQ(RoundToDigits(-7.0, kMostDigits), -7.0);
  EXPECT_EQ(RoundToDigits(kInfinity, kMostDigits), kInfinity);
  EXPECT_EQ(RoundToDigits(-kInfinity, 2), -kInfinity);
  EXPECT_EQ(RoundToDigits(-kInfinity, -2), -kInfinity);
  for (const int digits : {-1, 2, 7, kMostDigits}) {
    EXPECT_TRUE(std::isnan(RoundToDigits(std::numeric_limits<double>::quiet_NaN(), digits))) << digits;
  }
}

TEST(RoundToDigits, ValuesThatOverflowInTheTableBecomeInfiniteFixed) {
  EXPECT_EQ(RoundToDigits(1e308, 1), kInfinity);
  EXPECT_EQ(RoundToDigits(-1e308, 6), -kInfinity);
  EXPECT_EQ(RoundToDigits(1e308, 7), 1e308);
}
