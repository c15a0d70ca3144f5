#include "foundation/AmountDigits.h"

#include <gtest/gtest.h>

#include <string>

using zeb::AmountDigitsToText;

TEST(AmountDigits, WritesDigitsWithoutAUnit) {
  EXPECT_EQ(AmountDigitsToText(L"1234567890", false), L"壹拾贰亿叁仟肆佰伍拾陆万柒仟捌佰玖拾");
  EXPECT_EQ(AmountDigitsToText(L"7", true), L"柒元");
  EXPECT_EQ(AmountDigitsToText(L"10", false), L"壹拾");
  EXPECT_EQ(AmountDigitsToText(L"20000000", false), L"贰仟万");
  EXPECT_EQ(AmountDigitsToText(L"300000000", false), L"叁亿");
}

TEST(AmountDigits, LeadingZerosBecomeOneOrCutEverythingFixed) {
  EXPECT_EQ(AmountDigitsToText(L"05", false), L"零伍");
  EXPECT_EQ(AmountDigitsToText(L"005", false), L"");
  EXPECT_EQ(AmountDigitsToText(L"0005", false), L"零");
  EXPECT_EQ(AmountDigitsToText(L"00051234", false), L"零万壹仟贰佰叁拾肆");
  EXPECT_EQ(AmountDigitsToText(L"012345678", false), L"零壹仟贰佰叁拾肆万伍仟陆佰柒拾捌");
}

TEST(AmountDigits, OneFractionDigitIsATenthFixed) {
  EXPECT_EQ(AmountDigitsToText(L"1.5", true), L"壹元伍角");
  EXPECT_EQ(AmountDigitsToText(L"1,5", true), L"壹元伍角");
  EXPECT_EQ(AmountDigitsToText(L"1.55", true), L"壹元伍角伍分");
}

TEST(AmountDigits, TakesTextsWithoutIntegerOrFractionDigits) {
  EXPECT_EQ(AmountDigitsToText(L"", true), L"元");
  EXPECT_EQ(AmountDigitsToText(L".25", true), L"元贰角伍分");
  EXPECT_EQ(AmountDigitsToText(L"4.", true), L"肆元");
}

TEST(AmountDigits, ASignAloneBeforeTenThousandIsWorthZeroFixed) {
  EXPECT_EQ(AmountDigitsToText(L"-1234", false), L"零壹仟贰佰叁拾肆");
  EXPECT_EQ(AmountDigitsToText(L"-12345678", false), L"零壹仟贰佰叁拾肆万伍仟陆佰柒拾捌");
}

// The depth of calls does not follow the length of the text.
TEST(AmountDigits, TakesAnyNumberOfDigits) {
  const std::wstring text = AmountDigitsToText(std::wstring(200000, L'1'), false);
  // 25,000 groups of eight digits: 15 characters each, with a unit between two.
  EXPECT_EQ(text.size(), 25000U * 15U + 24999U);
  EXPECT_EQ(AmountDigitsToText(std::wstring(200000, L'0'), false), L"");
}
