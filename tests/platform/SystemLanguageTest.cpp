#include "platform/SystemLanguage.h"

#include "support/ScopedEnvironment.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

using Value = std::optional<std::string>;

void ExpectLanguage(const Value& all, const Value& messages, const Value& lang, int number, int codePage) {
  const zebtest::ScopedEnvironment first("LC_ALL", all);
  const zebtest::ScopedEnvironment second("LC_MESSAGES", messages);
  const zebtest::ScopedEnvironment third("LANG", lang);
  EXPECT_EQ(zeb::SystemLanguage(), number);
  EXPECT_EQ(zeb::SystemCodePage(), codePage);
}

}  // namespace

TEST(SystemLanguage, IsThatOfTheFirstVariableThatIsSet) {
  ExpectLanguage("pl_PL.UTF-8", "ru_RU.UTF-8", "de_DE.UTF-8", 1045, 1250);
  ExpectLanguage({}, "ru_RU.UTF-8", "de_DE.UTF-8", 1049, 1251);
  ExpectLanguage("", "", "de_DE.UTF-8", 1031, 1252);
  ExpectLanguage("C", "ru_RU.UTF-8", "ru_RU.UTF-8", 1033, 1252);
}

TEST(SystemLanguage, IsUSEnglishWithoutALocale) {
  ExpectLanguage({}, {}, {}, 1033, 1252);
  ExpectLanguage({}, {}, "tlh_XX", 1033, 1252);
}
