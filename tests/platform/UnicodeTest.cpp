#include "platform/Unicode.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using zeb::Utf8ToWide;
using zeb::WideToUtf8;

TEST(Unicode, ConvertsEachLengthOfSequence) {
  const std::string utf8 = "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
  const std::wstring wide = L"\x7F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF";
  EXPECT_EQ(Utf8ToWide(utf8), wide);
  EXPECT_EQ(WideToUtf8(wide), utf8);
}

TEST(Unicode, KeepsNulAndGivesEmptyForEmpty) {
  EXPECT_EQ(Utf8ToWide(std::string_view("a\0b", 3)), std::wstring_view(L"a\0b", 3));
  EXPECT_EQ(WideToUtf8(std::wstring_view(L"a\0b", 3)), std::string_view("a\0b", 3));
  EXPECT_EQ(Utf8ToWide(""), L"");
  EXPECT_EQ(WideToUtf8(L""), "");
}

TEST(Unicode, MalformedBytesBecomeReplacementCharacters) {
  EXPECT_EQ(Utf8ToWide("a\x80"
                       "b"),
            L"a\uFFFDb");                    // a byte that continues nothing
  EXPECT_EQ(Utf8ToWide("\xC3"), L"\uFFFD");  // cut off
  EXPECT_EQ(Utf8ToWide("\xC3"
                       "a"),
            L"\uFFFDa");                                                   // not continued
  EXPECT_EQ(Utf8ToWide("\xC0\x80"), L"\uFFFD\uFFFD");                      // two bytes for one
  EXPECT_EQ(Utf8ToWide("\xE0\x9F\xBF"), L"\uFFFD\uFFFD\uFFFD");            // three bytes for two
  EXPECT_EQ(Utf8ToWide("\xED\xA0\x80"), L"\uFFFD\uFFFD\uFFFD");            // a surrogate
  EXPECT_EQ(Utf8ToWide("\xF4\x90\x80\x80"), L"\uFFFD\uFFFD\uFFFD\uFFFD");  // beyond the last code point
  EXPECT_EQ(Utf8ToWide("\xFF\xFE"), L"\uFFFD\uFFFD");
}

TEST(Unicode, PairsOfSurrogatesCountAsOneCodePoint) {
  EXPECT_EQ(WideToUtf8(std::wstring{wchar_t{0xD83D}, wchar_t{0xDE00}}), "\xF0\x9F\x98\x80");
  EXPECT_EQ(WideToUtf8(std::wstring{wchar_t{0xDBFF}, wchar_t{0xDFFF}}), "\xF4\x8F\xBF\xBF");
  EXPECT_EQ(WideToUtf8(std::wstring{wchar_t{0xD83D}}), "\xEF\xBF\xBD");
  EXPECT_EQ(WideToUtf8(std::wstring{wchar_t{0xDE00}, L'a'}),
            "\xEF\xBF\xBD"
            "a");
}

TEST(Unicode, TellsWhatUtf8GivesBackUnchanged) {
  EXPECT_TRUE(zeb::SurvivesUtf8(L""));
  EXPECT_TRUE(zeb::SurvivesUtf8(L"a\x01\u20AC\uD7FF\uE000\uFFFD\uFFFE\U0001F600"));
  EXPECT_FALSE(zeb::SurvivesUtf8(std::wstring{L'a', wchar_t{0xD83D}}));
  EXPECT_FALSE(zeb::SurvivesUtf8(std::wstring{wchar_t{0xDE00}, wchar_t{0xD83D}}));
}

}  // namespace
