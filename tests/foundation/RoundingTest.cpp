#include "foundation/Rounding.h"

#include "support/ScopedEnvironment.h"
#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

using zebtest::ScopedEnvironment;
using zebtest::ScopedLocale;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kMax = std::numeric_limits<double>::max();

std::wstring Format(double value, int digits, wchar_t decimal = L',', wchar_t thousands = L'.') {
  std::vector<wchar_t> buffer(4000, L'x');
  FormatDouble(value, digits, buffer.data(), decimal, thousands);
  return buffer.data();
}

}  // namespace

TEST(FullPrecision, HasFifteenSignificantDigitsWithoutTrailingZeros) {
  EXPECT_EQ(DoubleToStringFullPrecision(1.5), L"1.5");
  EXPECT_EQ(DoubleToStringFullPrecision(-1.5), L"-1.5");
  EXPECT_EQ(DoubleToStringFullPrecision(0.1), L"0.1");
  EXPECT_EQ(DoubleToStringFullPrecision(1.0 / 3.0), L"0.333333333333333");
  EXPECT_EQ(DoubleToStringFullPrecision(1000.0 / 3.0), L"333.333333333333");
  EXPECT_EQ(DoubleToStringFullPrecision(100.0), L"100");
  EXPECT_EQ(DoubleToStringFullPrecision(1.0), L"1");
  EXPECT_EQ(DoubleToStringFullPrecision(123456789012345.0), L"123456789012345");
}

TEST(FullPrecision, IntegersWithoutADecimalMarkKeepTheirZeros) {
  EXPECT_EQ(DoubleToStringFullPrecision(1e15), L"1000000000000000");
  EXPECT_EQ(DoubleToStringFullPrecision(200000000000000.0), L"200000000000000");
}

TEST(FullPrecision, ValuesAbove1E15ArePrintedWith15DecimalsFixed) {
  // 18 digits stay, which 15 significant digits would not leave.
  EXPECT_EQ(DoubleToStringFullPrecision(123456789012345677.0), L"123456789012345680");
  EXPECT_EQ(DoubleToStringFullPrecision(2251799813685248.5), L"2251799813685248.5");
}

TEST(FullPrecision, SmallValuesHaveMoreDecimals) {
  EXPECT_EQ(DoubleToStringFullPrecision(1e-300), L"0." + std::wstring(299, L'0') + L"1");
  EXPECT_EQ(DoubleToStringFullPrecision(std::numeric_limits<double>::denorm_min()),
            L"0." + std::wstring(323, L'0') + L"494065645841247");
}

TEST(FullPrecision, TakesZeroAndValuesThatAreNotFinite) {
  EXPECT_EQ(DoubleToStringFullPrecision(0.0), L"0");
  EXPECT_EQ(DoubleToStringFullPrecision(kInfinity), L"inf");
  EXPECT_EQ(DoubleToStringFullPrecision(-kInfinity), L"-inf");
  EXPECT_EQ(DoubleToStringFullPrecision(kNaN), L"nan");
  EXPECT_EQ(DoubleToStringFullPrecision(kMax).size(), 309U);
}

TEST(FullPrecision, CutsBehindACommaToo) {
  const ScopedLocale locale(LC_NUMERIC, zebtest::kCommaLocale);
  if (!locale.Ok()) GTEST_SKIP() << "no comma locale on this machine";
  EXPECT_EQ(DoubleToStringFullPrecision(1.5), L"1,5");
  EXPECT_EQ(DoubleToStringFullPrecision(20.0), L"20");
}

TEST(FormatDouble, GroupsTheIntegerDigits) {
  EXPECT_EQ(Format(-1234567.5, 2), L"-1.234.567,50");
  EXPECT_EQ(Format(999, 0), L"999");
  EXPECT_EQ(Format(1000, 0), L"1.000");
  EXPECT_EQ(Format(-999, 0), L"-999");
  EXPECT_EQ(Format(-1000, 0), L"-1.000");
  EXPECT_EQ(Format(0, 2), L"0,00");
  EXPECT_EQ(Format(100000, 3), L"100.000,000");
  EXPECT_EQ(Format(1e15, 0), L"1.000.000.000.000.000");
  EXPECT_EQ(Format(1234567.125, 2, L'.', L','), L"1,234,567.13");
}

TEST(FormatDouble, RoundsNearTiesAwayFromZeroFixed) {
  EXPECT_EQ(Format(0.4999999995, 0), L"1");
  EXPECT_EQ(Format(-0.4999999995, 0), L"-1");
  EXPECT_EQ(Format(1.005, 2), L"1,01");
  EXPECT_EQ(Format(2.5, 0), L"3");
  EXPECT_EQ(Format(-2.5, 0), L"-3");
}

TEST(FormatDouble, RoundsSevenDigitsAndMore) {
  EXPECT_EQ(Format(1.23456785, 7), L"1,2345679");
  EXPECT_EQ(Format(-1.23456785, 7), L"-1,2345679");
  EXPECT_EQ(Format(1234.123456789, 9), L"1.234,123456789");
}

TEST(FormatDouble, WritesAnIntegerForANegativeCount) {
  EXPECT_EQ(Format(1234.5, -3), L"1.235");
  EXPECT_EQ(Format(1234.49, std::numeric_limits<int>::min()), L"1.234");
}

TEST(FormatDouble, KeepsTheSignOfARoundedZero) {
  EXPECT_EQ(Format(-0.25, 0), L"-0");
  EXPECT_EQ(Format(-0.25, -1), L"-0");
}

TEST(FormatDouble, TakesAnyValueAndCount) {
  EXPECT_EQ(Format(kInfinity, 2), L"inf");
  EXPECT_EQ(Format(-kInfinity, 9), L"-inf");
  EXPECT_EQ(Format(kNaN, 2), L"nan");
  EXPECT_EQ(Format(kNaN, 2000), L"nan");
  EXPECT_EQ(Format(1e308, 0).size(), 309U + 102U);
  EXPECT_EQ(Format(0.5, 3000), L"0,5" + std::wstring(2999, L'0'));
}

TEST(FormatDouble, ValuesThatOverflowInTheRoundingBecomeInfiniteFixed) {
  EXPECT_EQ(Format(1e308, 2), L"inf");
}

TEST(FormatDouble, UnderACommaLocaleGroupsTheDecimalsFixed) {
  const ScopedLocale locale(LC_NUMERIC, zebtest::kCommaLocale);
  if (!locale.Ok()) GTEST_SKIP() << "no comma locale on this machine";
  EXPECT_EQ(Format(1234.5, 2), L"1234,50");
  EXPECT_EQ(Format(1234.5678, 4), L"1234,5.678");
  EXPECT_EQ(Format(1234.0, 0), L"1.234");
}

TEST(ReFormatDouble, IsTheInverseOfFormatDouble) {
  EXPECT_EQ(ReFormatDouble(L"1.234.567,50", L',', L'.'), 1234567.5);
  EXPECT_EQ(ReFormatDouble(L"-1.234.567,50", L',', L'.'), -1234567.5);
  EXPECT_EQ(ReFormatDouble(L"999", L',', L'.'), 999.0);
  EXPECT_EQ(ReFormatDouble(L"1.000", L',', L'.'), 1000.0);
  EXPECT_EQ(ReFormatDouble(L"1,234.5", L'.', L','), 1234.5);
}

TEST(ReFormatDouble, TakesTextsWithoutANumber) {
  EXPECT_EQ(ReFormatDouble(nullptr, L',', L'.'), 0.0);
  EXPECT_EQ(ReFormatDouble(L"", L',', L'.'), 0.0);
  EXPECT_EQ(ReFormatDouble(L"abc", L',', L'.'), 0.0);
}

TEST(ReFormatDouble, LeavesASeparatorBehindTheDecimalMarkFixed) {
  EXPECT_EQ(ReFormatDouble(L"1.234,5.6", L',', L'.'), 1234.5);
}

TEST(ReFormatDouble, AMarkAtTheFirstPlaceIsNoDecimalMarkFixed) {
  EXPECT_EQ(ReFormatDouble(L",5", L',', L'.'), 0.0);
  EXPECT_EQ(ReFormatDouble(L"1,2,5", L',', L'.'), 1.0);  // only the last one is: the text reads 1,2.5
}

TEST(RundeDouble, ToTheNearestWithTiesAwayFromZero) {
  EXPECT_EQ(RundeDouble(1.005, 2, 1, true), 1.01);
  EXPECT_EQ(RundeDouble(-1.005, 2, 1, true), -1.01);
  EXPECT_EQ(RundeDouble(-2.5, 0, 1, true), -3.0);
  EXPECT_EQ(RundeDouble(2.5, 0, 1, true), 3.0);
  EXPECT_EQ(RundeDouble(2.4, 0, 1, true), 2.0);
  EXPECT_EQ(RundeDouble(1.26, 1, 1, true), 1.3);
  EXPECT_EQ(RundeDouble(1250.0, -2, 1, true), 1300.0);
}

TEST(RundeDouble, UpwardsAndDownwardsOnTheNumberLine) {
  EXPECT_EQ(RundeDouble(2.5, 0, 0, true), 3.0);
  EXPECT_EQ(RundeDouble(-2.5, 0, 0, true), -2.0);
  EXPECT_EQ(RundeDouble(2.5, 0, 2, true), 2.0);
  EXPECT_EQ(RundeDouble(-2.5, 0, 2, true), -3.0);
  EXPECT_EQ(RundeDouble(0.001, 2, 0, true), 0.01);
  EXPECT_EQ(RundeDouble(0.001, 2, 2, true), 0.0);
}

TEST(RundeDouble, ToSignificantDigits) {
  EXPECT_EQ(RundeDouble(1234.5678, 2, 2, false), 1200.0);
  EXPECT_EQ(RundeDouble(1234.5678, 2, 0, false), 1300.0);
  EXPECT_EQ(RundeDouble(0.00123456, 3, 1, false), 0.00123);
  EXPECT_EQ(RundeDouble(-1234.5678, 6, 1, false), -1234.57);
}

TEST(RundeDouble, AnUnknownModeAnswersOnlyWhereRoundingIsDueFixed) {
  EXPECT_EQ(RundeDouble(3.0, 2, 5, true), 3.0);
  EXPECT_EQ(RundeDouble(3.014, 2, 5, true), 0.0);
  EXPECT_EQ(RundeDouble(-3.0, 2, 5, true), 0.0);
  EXPECT_EQ(RundeDouble(-3.014, 2, -1, true), 0.0);
}

TEST(RundeDouble, AValueThatCountsAsRoundedStaysAsItCameFixed) {
  const double nearly = std::nextafter(3.0, 4.0);
  EXPECT_EQ(RundeDouble(nearly, 2, 1, true), nearly);
  EXPECT_EQ(RundeDouble(nearly, 2, 0, true), nearly);
  EXPECT_EQ(RundeDouble(3.141592653589793, 14, 1, false), 3.1415926535898);
}

TEST(RundeDouble, ValuesWithoutDigitsToRoundComeBack) {
  EXPECT_EQ(RundeDouble(1.5e16, 0, 0, true), 1.5e16);
  EXPECT_EQ(RundeDouble(0.3, 17, 2, true), 0.3);
  EXPECT_EQ(RundeDouble(0.3, 400, 2, true), 0.3);
  EXPECT_EQ(RundeDouble(kMax, 2, 2, true), kMax);
}

TEST(RundeDouble, ZeroAndNaNGiveZero) {
  EXPECT_EQ(RundeDouble(kNaN, 2, 1, true), 0.0);
  EXPECT_EQ(RundeDouble(0.0, 2, 1, true), 0.0);
  EXPECT_FALSE(std::signbit(RundeDouble(-0.0, 2, 1, true)));
}

TEST(RundeDouble, TakesAnyValueAndCount) {
  EXPECT_EQ(RundeDouble(kInfinity, 2, 1, true), kInfinity);
  EXPECT_EQ(RundeDouble(kInfinity, 2, 1, false), kInfinity);
  EXPECT_EQ(RundeDouble(-kInfinity, 2, 0, true), -kInfinity);
  EXPECT_EQ(RundeDouble(1.5, std::numeric_limits<int>::max(), 1, false), 1.5);
  // A scale of zero has no multiples.
  EXPECT_TRUE(std::isnan(RundeDouble(1.5, std::numeric_limits<int>::min(), 1, false)));
}

TEST(NumberToText, WritesAmounts) {
  EXPECT_EQ(NumberToText(0), L"零元零角零分");
  EXPECT_EQ(NumberToText(0.5), L"零元伍角零分");
  EXPECT_EQ(NumberToText(12.34), L"壹拾贰元叁角肆分");
  EXPECT_EQ(NumberToText(20), L"贰拾元零角零分");
  EXPECT_EQ(NumberToText(101), L"壹佰零壹元零角零分");
  EXPECT_EQ(NumberToText(1010), L"壹仟零壹拾元零角零分");
  EXPECT_EQ(NumberToText(100100), L"壹拾万零壹佰元零角零分");
  EXPECT_EQ(NumberToText(123456789.12), L"壹亿贰仟叁佰肆拾伍万陆仟柒佰捌拾玖元壹角贰分");
}

TEST(NumberToText, TheFractionsFirstAndLastDigitServeFixed) {
  EXPECT_EQ(NumberToText(0.05), L"零元伍角伍分");
  EXPECT_EQ(NumberToText(0.999), L"零元壹角零分");
}

TEST(NumberToText, CutsEverythingFromADoubleZeroOnFixed) {
  EXPECT_EQ(NumberToText(1001), L"壹仟元零角零分");
  EXPECT_EQ(NumberToText(10001), L"壹万零元零角零分");
  EXPECT_EQ(NumberToText(100000001), L"壹亿元零角零分");
}

TEST(NumberToText, AMinusSignTakesADigitsPlaceAsNulFixed) {
  EXPECT_EQ(NumberToText(-12.5), std::wstring(1, L'\0') + L"佰壹拾贰元伍角零分");
  EXPECT_EQ(NumberToText(-1), std::wstring(1, L'\0') + L"拾壹元零角零分");
}

TEST(NumberToText, TakesValuesThatAreNotFinite) {
  const std::wstring nul(1, L'\0');
  EXPECT_EQ(NumberToText(kInfinity), nul + L"佰" + nul + L"拾" + nul + L"元");
  EXPECT_EQ(NumberToText(kNaN), nul + L"佰" + nul + L"拾" + nul + L"元");
  EXPECT_FALSE(NumberToText(kMax).empty());
}

TEST(NumberToText, ReadsTheCommaThatItPrintedAndLeavesTheUsersLocaleFixed) {
  const ScopedEnvironment all("LC_ALL", zebtest::kCommaLocale);
  const ScopedLocale locale(LC_NUMERIC, "");
  if (!locale.Ok()) GTEST_SKIP() << "no comma locale on this machine";
  EXPECT_EQ(NumberToText(12.34), L"壹拾贰元叁角肆分");
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), zebtest::kCommaLocale);
}
