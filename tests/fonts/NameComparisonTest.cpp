#include "fonts/NameComparison.h"

#include <gtest/gtest.h>

namespace {

using zeb::AreEqualIgnoringCase;
using zeb::WithoutVerticalMark;

TEST(NameComparison, IgnoresTheCaseOfAsciiLetters) {
  EXPECT_TRUE(AreEqualIgnoringCase(L"", L""));
  EXPECT_TRUE(AreEqualIgnoringCase(L"Arial AZ", L"aRIAL az"));
  EXPECT_FALSE(AreEqualIgnoringCase(L"Arial", L"Arial "));
  EXPECT_FALSE(AreEqualIgnoringCase(L"Arial", L"Ariel"));
  EXPECT_FALSE(AreEqualIgnoringCase(L"@", L"`"));
  EXPECT_FALSE(AreEqualIgnoringCase(L"[", L"{"));
}

TEST(NameComparison, OtherLettersHaveTheirCase) {
  EXPECT_TRUE(AreEqualIgnoringCase(L"GR\xD6\xDF\x45", L"gr\xD6\xDF\x65"));
  EXPECT_FALSE(AreEqualIgnoringCase(L"\xD6", L"\xF6"));
}

TEST(NameComparison, DropsOneMarkOfAVerticalFont) {
  EXPECT_EQ(WithoutVerticalMark(L"@MS Mincho"), L"MS Mincho");
  EXPECT_EQ(WithoutVerticalMark(L"@@MS Mincho"), L"@MS Mincho");
  EXPECT_EQ(WithoutVerticalMark(L"MS@Mincho"), L"MS@Mincho");
  EXPECT_EQ(WithoutVerticalMark(L"@"), L"");
  EXPECT_EQ(WithoutVerticalMark(L""), L"");
}

}  // namespace
