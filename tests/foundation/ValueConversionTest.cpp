#include "foundation/ValueConversion.h"

#include "support/ScopedEnvironment.h"
#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

using zebtest::ScopedEnvironment;
using zebtest::ScopedLocale;

namespace {

template <typename Value>
std::wstring Print(void (*print)(Value, wchar_t*), Value value) {
  wchar_t buffer[400];
  print(value, buffer);
  return buffer;
}

std::wstring Format(double value, int digits) {
  std::vector<wchar_t> buffer(3000, L'x');
  DoubleToStringFormat(value, buffer.data(), digits);
  return buffer.data();
}

std::uint32_t Bits(float value) {
  std::uint32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(ValueConversion, BoolToStringWritesOneOrZero) {
  EXPECT_EQ(Print(&BoolToString, true), L"1");
  EXPECT_EQ(Print(&BoolToString, false), L"0");
}

TEST(ValueConversion, IntToStringWritesDecimalDigits) {
  EXPECT_EQ(Print(&IntToString, 0), L"0");
  EXPECT_EQ(Print(&IntToString, -17), L"-17");
  EXPECT_EQ(Print(&IntToString, std::numeric_limits<int>::max()), L"2147483647");
  EXPECT_EQ(Print(&IntToString, std::numeric_limits<int>::min()), L"-2147483648");
}

TEST(ValueConversion, UShortToStringWritesDecimalDigits) {
  EXPECT_EQ(Print<unsigned short>(&UShortToString, 0), L"0");
  EXPECT_EQ(Print<unsigned short>(&UShortToString, 65535), L"65535");
}

TEST(ValueConversion, DoubleToStringKeepsOneDecimal) {
  EXPECT_EQ(Print(&DoubleToString, 2.5), L"2.5");
  EXPECT_EQ(Print(&DoubleToString, 2.0), L"2.0");
  EXPECT_EQ(Print(&DoubleToString, 0.0000001), L"0.0");
  EXPECT_EQ(Print(&DoubleToString, 3.0), L"3.0");
  EXPECT_EQ(Print(&DoubleToString, 3.14), L"3.14");
  EXPECT_EQ(Print(&DoubleToString, 0.000001), L"0.000001");
  EXPECT_EQ(Print(&DoubleToString, 1234567.5), L"1234567.5");
  EXPECT_EQ(Print(&DoubleToString, -10.0), L"-10.0");
  EXPECT_EQ(Print(&DoubleToString, 10.010), L"10.01");
  EXPECT_EQ(Print(&DoubleToString, -0.0), L"-0.0");
}

TEST(ValueConversion, DoubleToStringWritesTheLargestDouble) {
  const std::wstring text = Print(&DoubleToString, -std::numeric_limits<double>::max());
  EXPECT_EQ(text.size(), 1U + 309U + 2U);
  EXPECT_EQ(text.substr(0, 19), L"-179769313486231570");
  EXPECT_EQ(text.substr(308), L"68.0");
}

TEST(ValueConversion, ValuesThatAreNotFiniteHaveNoPointAndStayAsPrinted) {
  EXPECT_EQ(Print(&DoubleToString, kInfinity), L"inf");
  EXPECT_EQ(Print(&DoubleToString, -kInfinity), L"-inf");
  EXPECT_EQ(Print(&FloatToString, -std::numeric_limits<float>::infinity()), L"-inf");
  EXPECT_EQ(Print(&FloatToString, std::numeric_limits<float>::quiet_NaN()), L"nan");
}

TEST(ValueConversion, FloatToStringPrintsTheWidenedValueWithSixDecimals) {
  EXPECT_EQ(Print(&FloatToString, 1.1F), L"1.1");
  EXPECT_EQ(Print(&FloatToString, 12.0F), L"12.0");
  EXPECT_EQ(Print(&FloatToString, 0.1F), L"0.1");
  EXPECT_EQ(Print(&FloatToString, 1234.567F), L"1234.567017");
  EXPECT_EQ(Print(&FloatToString, -0.0F), L"-0.0");
  EXPECT_EQ(Print(&FloatToString, -1.0e-10F), L"-0.0");
  EXPECT_EQ(Print(&FloatToString, 16777216.0F), L"16777216.0");
  EXPECT_EQ(Print(&FloatToString, 8.5e12F), L"8499999801344.0");
  EXPECT_EQ(Print(&FloatToString, 1.0e13F), L"9999999827968.0");
  EXPECT_EQ(Print(&FloatToString, std::numeric_limits<float>::max()),
            L"340282346638528859811704183484516925440.0");
}

TEST(ValueConversion, FloatToStringRoundsExactTiesToTheEvenDigit) {
  EXPECT_EQ(Print(&FloatToString, 0.0000152587890625F), L"0.000015");  // 2^-16
  EXPECT_EQ(Print(&FloatToString, 0.5F + 0x1p-7F), L"0.507812");       // 0.5078125
  EXPECT_EQ(Print(&FloatToString, 0.5F + 0x3p-7F), L"0.523438");       // 0.5234375
}

TEST(ValueConversion, DoubleToStringFormatCutsNothing) {
  EXPECT_EQ(Format(2.5, 0), L"2");
  EXPECT_EQ(Format(3.5, 0), L"4");
  EXPECT_EQ(Format(2.5, 3), L"2.500");
  EXPECT_EQ(Format(-1.005, 2), L"-1.00");
  EXPECT_EQ(Format(0.1, 20), L"0.10000000000000000555");
  EXPECT_EQ(Format(kInfinity, 3), L"inf");
}

TEST(ValueConversion, DoubleToStringFormatTakesAnyCountOfDigits) {
  EXPECT_EQ(Format(2.75, -1), L"3");
  EXPECT_EQ(Format(2.75, std::numeric_limits<int>::min()), L"3");
  EXPECT_EQ(Format(0.5, 2000), L"0.5" + std::wstring(1999, L'0'));
  const std::wstring smallest = Format(std::numeric_limits<double>::denorm_min(), 1100);
  EXPECT_EQ(smallest.size(), 1102U);
  EXPECT_EQ(smallest.substr(1074), L"25" + std::wstring(26, L'0'));
  EXPECT_EQ(Format(-kInfinity, 2000), L"-inf");
}

TEST(ValueConversion, StringToIntScansTheBeginning) {
  EXPECT_EQ(StringToInt(L""), 0);
  EXPECT_EQ(StringToInt(L"abc"), 0);
  EXPECT_EQ(StringToInt(L"12abc"), 12);
  EXPECT_EQ(StringToInt(L" \t\r\n42 "), 42);
  EXPECT_EQ(StringToInt(L"+7"), 7);
  EXPECT_EQ(StringToInt(L"-7"), -7);
  EXPECT_EQ(StringToInt(L"- 7"), 0);
  EXPECT_EQ(StringToInt(L"-"), 0);
  EXPECT_EQ(StringToInt(L"007"), 7);
  EXPECT_EQ(StringToInt(L"0x10"), 0);
  EXPECT_EQ(StringToInt(L"3.9"), 3);
  EXPECT_EQ(StringToInt(L"12\u00E4"), 12);
  EXPECT_EQ(StringToInt(L"2147483647"), 2147483647);
  EXPECT_EQ(StringToInt(L"-2147483648"), std::numeric_limits<int>::min());
}

TEST(ValueConversion, StringToUShortKeepsTheLow16Bits) {
  EXPECT_EQ(StringToUShort(L"17"), 17);
  EXPECT_EQ(StringToUShort(L"-1"), 65535);
  EXPECT_EQ(StringToUShort(L"70000"), 4464);
  EXPECT_EQ(StringToUShort(L"x"), 0);
}

TEST(ValueConversion, StringToBoolTellsNumbersOtherThanZeroFixed) {
  EXPECT_TRUE(StringToBool(L"1"));
  EXPECT_TRUE(StringToBool(L"2"));
  EXPECT_TRUE(StringToBool(L"-1"));
  EXPECT_FALSE(StringToBool(L"0"));
  EXPECT_FALSE(StringToBool(L""));
  EXPECT_FALSE(StringToBool(L"true"));
}

TEST(ValueConversion, StringToDoubleScansTheBeginning) {
  EXPECT_EQ(StringToDouble(L""), 0.0);
  EXPECT_EQ(StringToDouble(L"abc"), 0.0);
  EXPECT_EQ(StringToDouble(L"12.5abc"), 12.5);
  EXPECT_EQ(StringToDouble(L" \n-12.5"), -12.5);
  EXPECT_EQ(StringToDouble(L"+1.5"), 1.5);
  EXPECT_EQ(StringToDouble(L"1e3"), 1000.0);
  EXPECT_EQ(StringToDouble(L".5"), 0.5);
  EXPECT_EQ(StringToDouble(L"5."), 5.0);
  EXPECT_EQ(StringToDouble(L"1.2.3"), 1.2);
  EXPECT_EQ(StringToDouble(L"12,5"), 12.0);
  EXPECT_EQ(StringToDouble(L"0x1p3"), 8.0);
  EXPECT_EQ(StringToDouble(L"inf"), kInfinity);
  EXPECT_TRUE(std::isnan(StringToDouble(L"nan")));
  EXPECT_EQ(StringToDouble(L"1e999"), kInfinity);
  EXPECT_TRUE(std::signbit(StringToDouble(L"-0")));
  EXPECT_EQ(StringToDouble(std::wstring(400, L'9').c_str()), kInfinity);
  EXPECT_EQ(StringToDouble((L"0." + std::wstring(400, L'0') + L"1").c_str()), 0.0);
}

TEST(ValueConversion, StringToFloatRoundsOnceFromTheText) {
  EXPECT_EQ(StringToFloat(L"1.1"), 1.1F);
  EXPECT_EQ(StringToFloat(L"x1.1"), 0.0F);
  // Just above the middle of two floats: rounding to double first would land on the middle and go down.
  EXPECT_EQ(StringToFloat(L"1.00000005960464477540"), 1.0F + std::numeric_limits<float>::epsilon());
  EXPECT_EQ(StringToFloat(std::wstring(40, L'9').c_str()), std::numeric_limits<float>::infinity());
  EXPECT_EQ(StringToFloat((L"0." + std::wstring(44, L'0') + L"14").c_str()),
            std::numeric_limits<float>::denorm_min());
}

TEST(ValueConversion, LengthsAreConvertedInSinglePrecision) {
  EXPECT_EQ(MMToPDF(25.4F), 72.0F);
  EXPECT_EQ(PDFToMM(72.0F), 25.4F);
  EXPECT_EQ(MMToPDF(0.0F), 0.0F);
}

TEST(ValueConversion, LengthsHaveTheBitsOfStepwiseSinglePrecision) {
  // Each pair worked out with exact fractions, rounded to 24 bits after each of the two steps.
  EXPECT_EQ(Bits(MMToPDF(0.1F)), 0x3E912244U);  // double precision would end in 45
  EXPECT_EQ(Bits(MMToPDF(33.3F)), 0x42BCC993U);
  EXPECT_EQ(Bits(PDFToMM(0.1F)), 0x3D107F6EU);  // with the decimal 25.4: 6F
  EXPECT_EQ(Bits(PDFToMM(33.3F)), 0x413BF5C2U);
}

TEST(ValueConversion, CheckDoubleTellsFiniteValues) {
  EXPECT_EQ(CheckDouble(0.0), 0);
  EXPECT_EQ(CheckDouble(std::numeric_limits<double>::max()), 0);
  EXPECT_EQ(CheckDouble(kNaN), -1);
  EXPECT_EQ(CheckDouble(kInfinity), -1);
  EXPECT_EQ(CheckDouble(-kInfinity), -1);
}

TEST(ValueConversion, CommaLocalePrintsACommaAndCutsNothingFixed) {
  const ScopedLocale locale(LC_NUMERIC, zebtest::kCommaLocale);
  if (!locale.Ok()) GTEST_SKIP() << "no comma locale on this machine";
  EXPECT_EQ(Print(&FloatToString, 3.5F), L"3,500000");
  EXPECT_EQ(Print(&DoubleToString, 3.0), L"3,000000");
  EXPECT_EQ(Format(1234.5, 1), L"1234,5");
  EXPECT_EQ(StringToDouble(L"12,5"), 12.5);
  EXPECT_EQ(StringToDouble(L"12.5"), 12.0);
  EXPECT_EQ(StringToFloat(L"12,5"), 12.5F);
  EXPECT_EQ(StringToFloat(L"12.5"), 12.0F);
}

TEST(SetLocaleSwitch, SetsTheNumericLocaleToC) {
  const ScopedLocale locale(LC_NUMERIC, zebtest::kCommaLocale);
  if (!locale.Ok()) GTEST_SKIP() << "no comma locale on this machine";
  const CSetLocaleSwitch numbers;
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  EXPECT_EQ(StringToFloat(L"12.5"), 12.5F);
}

TEST(SetLocaleSwitch, EndsInTheUsersDefaultAlsoInsideAnotherSwitchFixed) {
  const ScopedEnvironment all("LC_ALL", zebtest::kCommaLocale);
  const ScopedLocale locale(LC_NUMERIC, "");
  if (!locale.Ok()) GTEST_SKIP() << "no comma locale on this machine";
  std::setlocale(LC_NUMERIC, "C");
  const CSetLocaleSwitch outer;
  { const CSetLocaleSwitch inner; }
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), zebtest::kCommaLocale);
}

TEST(SetLocaleSwitch, CopiesTouchNoLocaleFixed) {
  const ScopedEnvironment all("LC_ALL", "C");
  const ScopedLocale locale(LC_NUMERIC, "C");
  CSetLocaleSwitch first;
  const ScopedLocale comma(LC_NUMERIC, zebtest::kCommaLocale);
  if (!comma.Ok()) GTEST_SKIP() << "no comma locale on this machine";
  const CSetLocaleSwitch copy(first);
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), zebtest::kCommaLocale);
  first = copy;
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), zebtest::kCommaLocale);
}

TEST(SetLocaleSwitch, TouchesNoCategoryButTheNumericOne) {
  const std::string before = std::setlocale(LC_CTYPE, nullptr);
  { const CSetLocaleSwitch numbers; }
  EXPECT_EQ(std::setlocale(LC_CTYPE, nullptr), before);
  std::setlocale(LC_NUMERIC, "C");
}

TEST(SetLocaleSwitch, HasAVirtualDestructor) { EXPECT_TRUE(std::has_virtual_destructor_v<CSetLocaleSwitch>); }
