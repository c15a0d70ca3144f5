#include "platform/posix/LocaleLanguage.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

void ExpectLanguage(std::string_view localeName, int number, int codePage) {
  const zeb::LocaleLanguage language = zeb::LanguageOfLocale(localeName);
  EXPECT_EQ(language.number, number) << localeName;
  EXPECT_EQ(language.codePage, codePage) << localeName;
}

}  // namespace

TEST(LocaleLanguage, IsThatOfLanguageAndTerritory) {
  ExpectLanguage("de_DE", 1031, 1252);
  ExpectLanguage("de_AT", 3079, 1252);
  ExpectLanguage("en_US", 1033, 1252);
  ExpectLanguage("en_GB", 2057, 1252);
  ExpectLanguage("fr_CA", 3084, 1252);
  ExpectLanguage("es_ES", 3082, 1252);
  ExpectLanguage("pt_PT", 2070, 1252);
  ExpectLanguage("zu_ZA", 1077, 1252);
  ExpectLanguage("af_ZA", 1078, 1252);
}

TEST(LocaleLanguage, HasTheAnsiCodePageOfTheLanguage) {
  ExpectLanguage("pl_PL", 1045, 1250);
  ExpectLanguage("ru_RU", 1049, 1251);
  ExpectLanguage("el_GR", 1032, 1253);
  ExpectLanguage("tr_TR", 1055, 1254);
  ExpectLanguage("he_IL", 1037, 1255);
  ExpectLanguage("ar_EG", 3073, 1256);
  ExpectLanguage("lt_LT", 1063, 1257);
  ExpectLanguage("vi_VN", 1066, 1258);
  ExpectLanguage("th_TH", 1054, 874);
  ExpectLanguage("ja_JP", 1041, 932);
  ExpectLanguage("zh_CN", 2052, 936);
  ExpectLanguage("ko_KR", 1042, 949);
  ExpectLanguage("zh_TW", 1028, 950);
  ExpectLanguage("zh_HK", 3076, 950);
  ExpectLanguage("hi_IN", 1081, 1252);
}

TEST(LocaleLanguage, CharsetAndUnknownModifierDoNotCount) {
  ExpectLanguage("de_DE.UTF-8", 1031, 1252);
  ExpectLanguage("de_CH.ISO-8859-1", 2055, 1252);
  ExpectLanguage("de_DE@euro", 1031, 1252);
  ExpectLanguage("de_AT.UTF-8@euro", 3079, 1252);
}

TEST(LocaleLanguage, TheModifierTellsTheScript) {
  ExpectLanguage("sr_RS.UTF-8", 10266, 1251);
  ExpectLanguage("sr_RS.UTF-8@latin", 9242, 1250);
  ExpectLanguage("sr_ME@latin", 11290, 1250);
  ExpectLanguage("uz_UZ@cyrillic", 2115, 1251);
}

TEST(LocaleLanguage, AnUnknownTerritoryGivesTheLanguageAlone) {
  ExpectLanguage("de", 1031, 1252);
  ExpectLanguage("de_XX", 1031, 1252);
  ExpectLanguage("zh", 2052, 936);
}

TEST(LocaleLanguage, AnUnknownLanguageGivesUSEnglish) {
  ExpectLanguage("C", 1033, 1252);
  ExpectLanguage("C.UTF-8", 1033, 1252);
  ExpectLanguage("POSIX", 1033, 1252);
  ExpectLanguage("", 1033, 1252);
  ExpectLanguage("_DE", 1033, 1252);
  ExpectLanguage("deutsch", 1033, 1252);
  ExpectLanguage("@", 1033, 1252);
}
