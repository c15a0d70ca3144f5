// Shortcuts of the arithmetic against the long way that they stand for, bit for bit.

#include "formula/FormulaNumber.h"
#include "formula/FormulaOperators.h"
#include "formula/FormulaRounding.h"
#include "formula/FormulaTestSupport.h"
#include "foundation/Rounding.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cwchar>
#include <limits>
#include <random>
#include <vector>

namespace {

std::uint64_t Bits(double value) { return std::bit_cast<std::uint64_t>(value); }

/// Values of all kinds: any bits, decimals with few digits, and what lies beside those.
std::vector<double> Values(int count) {
  std::mt19937_64 random(20);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same values in every run
  std::vector<double> values = {0.0,   -0.0, 1.0,  -1.0, 2.0,   -2.0,  1e-14,
                                5e-15, 1e14, 1e15, 1e16, 1e300, 1e-300};
  values.push_back(std::numeric_limits<double>::infinity());
  values.push_back(-std::numeric_limits<double>::infinity());
  values.push_back(std::numeric_limits<double>::quiet_NaN());
  values.push_back(std::numeric_limits<double>::denorm_min());
  for (int i = 0; i < count; ++i) {
    values.push_back(std::bit_cast<double>(random()));
    const double scale = std::pow(10.0, static_cast<double>(random() % 20));
    const double decimal = static_cast<double>(static_cast<std::int64_t>(random() % 2000000)) / scale;
    values.push_back(decimal);
    values.push_back(-decimal);
    values.push_back(std::nextafter(decimal, 10.0));
    values.push_back(std::nextafter(decimal, -10.0));
    values.push_back(static_cast<double>(random() % 4000000) / 1e6 +
                     static_cast<double>(random() % 100) * 1e-15);
  }
  return values;
}

double ComparedInFull(zeb::BinaryOperator op, double a, double b) {
  const double difference =
      RundeDouble(RundeDouble(a, 14, 1, false) - RundeDouble(b, 14, 1, false), 14, 1, true);
  switch (op) {
    case zeb::BinaryOperator::Less:
      return 0 > difference ? 1.0 : 0.0;
    case zeb::BinaryOperator::GreaterOrEqual:
      return difference >= 0 ? 1.0 : 0.0;
    default:
      return difference == 0 ? 1.0 : 0.0;
  }
}

}  // namespace

TEST(FormulaShortcut, RoundsToFourteenDecimalsAsTheRoundingDoes) {
  for (const double value : Values(100000)) {
    ASSERT_EQ(Bits(zeb::RoundTo14Decimals(value)), Bits(RundeDouble(value, 14, 1, true)))
        << std::hexfloat << value;
  }
}

TEST(FormulaShortcut, ComparesAsTheRoundedValuesDo) {
  const std::vector<double> values = Values(4000);
  std::mt19937_64 random(7);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same values in every run
  for (const double a : values) {
    const double other = values[random() % values.size()];
    for (const double b :
         {other, a, a * (1 + 1e-15), a * (1 + 1e-13), a * (1 - 3e-13), a + 1e-14, a - 1e-13, a + 1}) {
      for (const zeb::BinaryOperator op :
           {zeb::BinaryOperator::Less, zeb::BinaryOperator::GreaterOrEqual, zeb::BinaryOperator::Equal}) {
        ASSERT_EQ(zeb::CalculateComparison(op, a, b), ComparedInFull(op, a, b))
            << std::hexfloat << a << ' ' << b;
      }
    }
  }
}

TEST(FormulaShortcut, ReadsNumbersAsTheStandardLibraryDoes) {
  std::mt19937_64 random(3);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same numbers in every run
  for (const char* const name : {"C", "de_DE.UTF-8"}) {
    const formulatest::LocaleScope locale(name);
    ASSERT_TRUE(locale.IsSet()) << name;
    const wchar_t point = name == std::string("C") ? L'.' : L',';
    for (int i = 0; i < 10000; ++i) {
      std::wstring whole;
      std::wstring decimals;
      for (auto digits = random() % 22; digits > 0; --digits)
        whole += static_cast<wchar_t>(L'0' + random() % 10);
      for (auto digits = random() % 22; digits > 0; --digits)
        decimals += static_cast<wchar_t>(L'0' + random() % 10);
      if (whole.empty() && decimals.empty()) continue;
      double expected = 0.0;
      std::wstring inLocale = whole;
      inLocale += point;
      inLocale += decimals;
      ASSERT_EQ(std::swscanf(inLocale.c_str(), L"%lf", &expected), 1);
      expected = RundeDouble(expected, 14, 1, true);
      std::wstring text = whole;
      text += random() % 2 == 0 ? L'.' : L',';
      text += decimals;
      ASSERT_EQ(Bits(zeb::ReadNumber(text)), Bits(expected)) << std::string(text.begin(), text.end());
      if (whole.empty()) continue;
      std::size_t length = 0;
      const std::wstring around = L"x" + text + L"+1";
      ASSERT_EQ(Bits(zeb::ReadNumberAt(around, 1, length)), Bits(expected));
      ASSERT_EQ(length, text.size());
    }
  }
}

TEST(FormulaShortcut, ReadsWholeNumbersOfAnyLength) {
  std::wstring text;
  for (int digits = 1; digits < 40; ++digits) {
    text += static_cast<wchar_t>(L'0' + digits * 7 % 10);
    double expected = 0.0;
    ASSERT_EQ(std::swscanf(text.c_str(), L"%lf", &expected), 1);
    for (const wchar_t* const behind : {L"", L"+", L".", L",0", L" 1"}) {
      std::size_t length = 0;
      EXPECT_EQ(zeb::ReadNumberAt(text + behind, 0, length), expected);
      EXPECT_EQ(length, zeb::FindNumber(text + behind, 0));
    }
  }
}
