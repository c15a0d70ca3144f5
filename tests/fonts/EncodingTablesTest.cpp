// The expected rows are typed from the code pages and the glyph names of the Adobe standard encodings, apart from the
// script that makes the tables.

#include "fonts/EncodingTables.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// Codes 32 to 126 of both tables.
constexpr const char* kASCIINames =
    "space exclam quotedbl numbersign dollar percent ampersand quotesingle parenleft parenright asterisk "
    "plus comma "
    "hyphen period slash zero one two three four five six seven eight nine colon semicolon less equal "
    "greater "
    "question at A B C D E F G H I J K L M N O P Q R S T U V W X Y Z bracketleft backslash bracketright "
    "asciicircum "
    "underscore grave a b c d e f g h i j k l m n o p q r s t u v w x y z braceleft bar braceright "
    "asciitilde";

/// Codes 127 to 159; `-` is an unused code.
constexpr const char* kWinAnsiNames127 =
    "bullet Euro bullet quotesinglbase florin quotedblbase ellipsis dagger daggerdbl circumflex perthousand "
    "Scaron "
    "guilsinglleft OE bullet Zcaron bullet bullet quoteleft quoteright quotedblleft quotedblright bullet "
    "endash "
    "emdash tilde trademark scaron guilsinglright oe bullet zcaron Ydieresis";
constexpr std::array<unsigned short, 33> kWinAnsiUnicodes127 = {
    0x2022, 0x20AC, 0x2022, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030,
    0x0160, 0x2039, 0x0152, 0x2022, 0x017D, 0x2022, 0x2022, 0x2018, 0x2019, 0x201C, 0x201D,
    0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x2022, 0x017E, 0x0178};

/// Codes 160 to 255 of code page 1252, whose Unicode values are the codes but for 160, 173 and 181.
constexpr const char* kWinAnsiNames160 =
    "space exclamdown cent sterling currency yen brokenbar section dieresis copyright ordfeminine "
    "guillemotleft "
    "logicalnot hyphen registered macron degree plusminus twosuperior threesuperior acute mu paragraph "
    "periodcentered cedilla onesuperior ordmasculine guillemotright onequarter onehalf threequarters "
    "questiondown "
    "Agrave Aacute Acircumflex Atilde Adieresis Aring AE Ccedilla Egrave Eacute Ecircumflex Edieresis Igrave "
    "Iacute "
    "Icircumflex Idieresis Eth Ntilde Ograve Oacute Ocircumflex Otilde Odieresis multiply Oslash Ugrave "
    "Uacute "
    "Ucircumflex Udieresis Yacute Thorn germandbls agrave aacute acircumflex atilde adieresis aring ae "
    "ccedilla "
    "egrave eacute ecircumflex edieresis igrave iacute icircumflex idieresis eth ntilde ograve oacute "
    "ocircumflex "
    "otilde odieresis divide oslash ugrave uacute ucircumflex udieresis yacute thorn ydieresis";

constexpr const char* kCP1250Names127 =
    "- Euro - quotesinglbase - quotedblbase ellipsis dagger daggerdbl - perthousand Scaron guilsinglleft "
    "Sacute "
    "Tcaron Zcaron Zacute - quoteleft quoteright quotedblleft quotedblright bullet endash emdash - trademark "
    "scaron "
    "guilsinglright sacute tcaron zcaron zacute";
constexpr std::array<unsigned short, 33> kCP1250Unicodes127 = {
    0,      0x20AC, 0,      0x201A, 0,      0x201E, 0x2026, 0x2020, 0x2021, 0,      0x2030,
    0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179, 0,      0x2018, 0x2019, 0x201C, 0x201D,
    0x2022, 0x2013, 0x2014, 0,      0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A};

constexpr const char* kCP1250Names160 =
    "space caron breve Lslash currency Aogonek brokenbar section dieresis copyright Scedilla guillemotleft "
    "logicalnot hyphen registered Zdotaccent degree plusminus ogonek lslash acute mu paragraph "
    "periodcentered "
    "cedilla aogonek scedilla guillemotright Lcaron hungarumlaut lcaron zdotaccent Racute Aacute Acircumflex "
    "Abreve "
    "Adieresis Lacute Cacute Ccedilla Ccaron Eacute Eogonek Edieresis Ecaron Iacute Icircumflex Dcaron Eth "
    "Nacute "
    "Ncaron Oacute Ocircumflex Ohungarumlaut Odieresis multiply Rcaron Uring Uacute Uhungarumlaut Udieresis "
    "Yacute "
    "Tcommaaccent germandbls racute aacute acircumflex abreve adieresis lacute cacute ccedilla ccaron eacute "
    "eogonek "
    "edieresis ecaron iacute icircumflex dcaron eth nacute ncaron oacute ocircumflex ohungarumlaut odieresis "
    "divide "
    "rcaron uring uacute uhungarumlaut udieresis yacute tcommaaccent dotaccent";
constexpr std::array<unsigned short, 96> kCP1250Unicodes160 = {
    0x0020, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB,
    0x00AC, 0x002D, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x03BC, 0x00B6, 0x00B7,
    0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154, 0x00C1, 0x00C2, 0x0102,
    0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E,
    0x00D0, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170,
    0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x00F0, 0x0144, 0x0148, 0x00F3,
    0x00F4, 0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};

/// All 256 names from the three lists behind the control codes.
std::vector<std::wstring> Names(const std::string& from127, const std::string& from160) {
  std::vector<std::wstring> names(32);
  std::istringstream words(std::string(kASCIINames) + " " + from127 + " " + from160);
  for (std::string word; words >> word;) {
    names.emplace_back(word == "-" ? std::wstring() : std::wstring(word.begin(), word.end()));
  }
  return names;
}

void ExpectNames(const zeb::EncodingTable& table, const std::vector<std::wstring>& names) {
  ASSERT_EQ(names.size(), 256U);
  for (std::size_t code = 0; code < 256; ++code)
    EXPECT_EQ(std::wstring(table[code].name), names[code]) << code;
}

void ExpectControlsAndASCII(const zeb::EncodingTable& table) {
  for (std::size_t code = 0; code < 32; ++code) EXPECT_EQ(table[code].unicode, 0) << code;
  for (std::size_t code = 32; code < 127; ++code) EXPECT_EQ(table[code].unicode, code) << code;
}

TEST(EncodingTables, WinAnsiNames) {
  ExpectNames(zeb::kWinAnsiEncoding, Names(kWinAnsiNames127, kWinAnsiNames160));
}

TEST(EncodingTables, WinAnsiUnicodes) {
  const zeb::EncodingTable& table = zeb::kWinAnsiEncoding;
  ExpectControlsAndASCII(table);
  for (std::size_t i = 0; i < 33; ++i) EXPECT_EQ(table[127 + i].unicode, kWinAnsiUnicodes127[i]) << 127 + i;
  const std::map<std::size_t, unsigned short> differences = {{160, 0x0020}, {173, 0x002D}, {181, 0x03BC}};
  for (std::size_t code = 160; code < 256; ++code) {
    const auto difference = differences.find(code);
    EXPECT_EQ(table[code].unicode, difference == differences.end() ? code : difference->second) << code;
  }
}

TEST(EncodingTables, CP1250Names) {
  ExpectNames(zeb::kCP1250Encoding, Names(kCP1250Names127, kCP1250Names160));
}

TEST(EncodingTables, CP1250Unicodes) {
  const zeb::EncodingTable& table = zeb::kCP1250Encoding;
  ExpectControlsAndASCII(table);
  for (std::size_t i = 0; i < 33; ++i) EXPECT_EQ(table[127 + i].unicode, kCP1250Unicodes127[i]) << 127 + i;
  for (std::size_t i = 0; i < 96; ++i) EXPECT_EQ(table[160 + i].unicode, kCP1250Unicodes160[i]) << 160 + i;
}

TEST(EncodingTables, FixedUnusedCodesOfWinAnsiAreBullets) {
  for (const std::size_t code : {127U, 129U, 141U, 143U, 144U, 157U}) {
    EXPECT_EQ(zeb::kWinAnsiEncoding[code].unicode, 0x2022) << code;
    EXPECT_EQ(std::wstring(zeb::kWinAnsiEncoding[code].name), L"bullet") << code;
  }
}

TEST(EncodingTables, FixedEthStandsInForTheLettersWithAStrokeInCP1250) {
  EXPECT_EQ(zeb::kCP1250Encoding[208].unicode, 0x00D0);
  EXPECT_EQ(std::wstring(zeb::kCP1250Encoding[208].name), L"Eth");
  EXPECT_EQ(zeb::kCP1250Encoding[240].unicode, 0x00F0);
  EXPECT_EQ(std::wstring(zeb::kCP1250Encoding[240].name), L"eth");
}

}  // namespace
