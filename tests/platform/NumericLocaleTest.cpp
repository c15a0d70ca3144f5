#include "platform/NumericLocale.h"

#include "support/ScopedEnvironment.h"
#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <clocale>

TEST(NumericLocale, IsSetToCAndToTheUsersDefault) {
  const zebtest::ScopedEnvironment all("LC_ALL", zebtest::kCommaLocale);
  const zebtest::ScopedLocale locale(LC_NUMERIC, "");
  if (!locale.Ok()) GTEST_SKIP() << "no comma locale on this machine";
  zeb::SetNumericLocaleToC();
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  zeb::SetNumericLocaleToUserDefault();
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), zebtest::kCommaLocale);
}
