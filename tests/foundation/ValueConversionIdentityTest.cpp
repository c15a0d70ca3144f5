// The conversions answer plain cases without the print and scan family. Here they are held against that
// family, over random bit patterns and texts, under a locale with a point and under one with a comma.

#include "foundation/ValueConversion.h"

#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <random>
#include <string>

namespace {

using Random = std::mt19937_64;

template <typename Target, typename Source>
Target Copy(Source bits) {
  static_assert(sizeof(Target) == sizeof(Source));
  Target value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

void CutAsTold(std::wstring& text) {
  const std::size_t point = text.find(L'.');
  if (point == std::wstring::npos) return;
  while (text.size() > point + 2 && text.back() == L'0') text.pop_back();
}

std::wstring PrintedFloat(float value) {
  wchar_t text[400];
  std::swprintf(text, 400, L"%f", static_cast<double>(value));
  std::wstring cut = text;
  CutAsTold(cut);
  return cut;
}

// Texts of a number's characters, mostly well-formed, with anything before, between and behind.
std::wstring RandomNumberText(Random& random, int maxDigits) {
  const auto below = [&random](std::uint64_t n) { return random() % n; };
  std::wstring text;
  if (below(8) == 0) text += L" \t\n\r"[below(4)];
  if (below(3) == 0) text += L"+-"[below(2)];
  const auto digits = [&](std::uint64_t most) {
    for (std::uint64_t n = below(most + 1); n > 0; --n) text += static_cast<wchar_t>(L'0' + below(10));
  };
  digits(static_cast<std::uint64_t>(maxDigits));
  if (below(2) == 0) {
    text += below(6) == 0 ? L',' : L'.';
    digits(static_cast<std::uint64_t>(maxDigits));
  }
  if (below(6) == 0) {
    text += L"eEpx"[below(4)];
    if (below(2) == 0) text += L"+-"[below(2)];
    digits(3);
  }
  if (below(10) == 0) text += L" .,-+eExXinfa%'\u00A0\u0663\uFF11"[below(18)];
  if (below(20) == 0) digits(3);
  return text;
}

int ScannedInt(const wchar_t* text) {
  int value = 0;
  std::swscanf(text, L"%d", &value);
  return value;
}

std::uint32_t ScannedFloat(const wchar_t* text) {
  float value = 0.0F;
  std::swscanf(text, L"%f", &value);
  return Copy<std::uint32_t>(value);
}

std::uint64_t ScannedDouble(const wchar_t* text) {
  double value = 0.0;
  std::swscanf(text, L"%lg", &value);
  return Copy<std::uint64_t>(value);
}

class ValueConversionIdentity : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (!m_locale.Ok()) GTEST_SKIP() << "no locale " << GetParam() << " on this machine";
  }

 private:
  zebtest::ScopedLocale m_locale{LC_NUMERIC, GetParam()};
};

}  // namespace

TEST_P(ValueConversionIdentity, FloatsOfAnyBitsPrintAsThePrintFamilyDoes) {
  Random random(1);
  wchar_t buffer[400];
  for (int i = 0; i < 300000; ++i) {
    const auto value = Copy<float>(static_cast<std::uint32_t>(random()));
    FloatToString(value, buffer);
    ASSERT_EQ(std::wstring(buffer), PrintedFloat(value)) << value;
  }
}

TEST_P(ValueConversionIdentity, FloatsOfAReportsSizesPrintAsThePrintFamilyDoes) {
  Random random(2);
  wchar_t buffer[400];
  for (int i = 0; i < 300000; ++i) {
    // Exponents from 2^-24 to 2^43, and every other one with few bits, where exact ties are.
    auto bits = static_cast<std::uint32_t>(random() % (68U << 23U)) + (103U << 23U);
    if (i % 2 == 0) bits &= 0xFFFF0000U;
    if (i % 3 == 0) bits |= 0x80000000U;
    const auto value = Copy<float>(bits);
    FloatToString(value, buffer);
    ASSERT_EQ(std::wstring(buffer), PrintedFloat(value)) << value;
  }
}

TEST_P(ValueConversionIdentity, IntegersPrintAsThePrintFamilyDoes) {
  Random random(3);
  wchar_t buffer[32];
  wchar_t expected[32];
  for (int i = 0; i < 200000; ++i) {
    const auto value = Copy<int>(static_cast<std::uint32_t>(random())) >> (random() % 32U);
    IntToString(value, buffer);
    std::swprintf(expected, 32, L"%d", value);
    ASSERT_STREQ(buffer, expected);
  }
}

TEST_P(ValueConversionIdentity, TextsScanAsIntegersAsTheScanFamilyDoes) {
  Random random(4);
  for (int i = 0; i < 300000; ++i) {
    const std::wstring text = RandomNumberText(random, i % 2 == 0 ? 11 : 25);
    ASSERT_EQ(StringToInt(text.c_str()), ScannedInt(text.c_str())) << testing::PrintToString(text);
  }
}

TEST_P(ValueConversionIdentity, TextsScanAsFloatsAsTheScanFamilyDoes) {
  Random random(5);
  for (int i = 0; i < 300000; ++i) {
    const std::wstring text = RandomNumberText(random, i % 4 == 0 ? 45 : 9);
    ASSERT_EQ(Copy<std::uint32_t>(StringToFloat(text.c_str())), ScannedFloat(text.c_str()))
        << testing::PrintToString(text);
  }
}

TEST_P(ValueConversionIdentity, TextsScanAsDoublesAsTheScanFamilyDoes) {
  Random random(6);
  for (int i = 0; i < 300000; ++i) {
    const std::wstring text = RandomNumberText(random, i % 4 == 0 ? 45 : 17);
    ASSERT_EQ(Copy<std::uint64_t>(StringToDouble(text.c_str())), ScannedDouble(text.c_str()))
        << testing::PrintToString(text);
  }
}

TEST_P(ValueConversionIdentity, PrintedFloatsScanBackAsTheScanFamilyDoes) {
  Random random(7);
  wchar_t text[400];
  for (int i = 0; i < 200000; ++i) {
    const auto value = Copy<float>(static_cast<std::uint32_t>(random()));
    std::swprintf(text, 400, i % 2 == 0 ? L"%.9g" : L"%.50f", static_cast<double>(value));
    ASSERT_EQ(Copy<std::uint32_t>(StringToFloat(text)), ScannedFloat(text)) << value;
  }
}

INSTANTIATE_TEST_SUITE_P(Locales, ValueConversionIdentity, testing::Values("C", zebtest::kCommaLocale),
                         [](const auto& locale) { return locale.index == 0 ? "Point" : "Comma"; });
