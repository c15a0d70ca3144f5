#include "fonts/CMapTokenizer.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_literals;

std::vector<std::string> Tokens(std::string_view text) {
  zeb::CMapTokenizer tokenizer(
      zeb::TextCursor(reinterpret_cast<const unsigned char*>(text.data()), std::ssize(text)));
  std::vector<std::string> tokens;
  std::string token;
  while (tokenizer.NextToken(token)) tokens.push_back(token);
  EXPECT_EQ(token, "") << "the token at the end is empty";
  return tokens;
}

using List = std::vector<std::string>;

TEST(CMapTokenizer, AllSixWhitespaceBytesSeparate) {
  EXPECT_EQ(Tokens("a\0b\tc\nd\fe\rf g"s), (List{"a", "b", "c", "d", "e", "f", "g"}));
}

TEST(CMapTokenizer, VerticalTabIsNoWhitespace) { EXPECT_EQ(Tokens("a\vb"), (List{"a\vb"})); }

TEST(CMapTokenizer, EmptyDataHasNoToken) {
  EXPECT_EQ(Tokens(""), List{});
  EXPECT_EQ(Tokens(" \n"), List{});
  EXPECT_EQ(Tokens("% only a comment"), List{});
}

TEST(CMapTokenizer, CommentsRunToTheEndOfTheLine) {
  EXPECT_EQ(Tokens("a % b c\nd"), (List{"a", "d"}));
  EXPECT_EQ(Tokens("a%b\rc"), (List{"a", "c"}));
  EXPECT_EQ(Tokens("%a\n%b\nc"), (List{"c"}));
}

TEST(CMapTokenizer, NamesAreOneToken) {
  EXPECT_EQ(Tokens("/CMapName /GB-EUC-H def"), (List{"/CMapName", "/GB-EUC-H", "def"}));
  EXPECT_EQ(Tokens("/a/b"), (List{"/a", "/b"}));
}

TEST(CMapTokenizer, StringsEndAtTheFirstClosingBracket) {
  EXPECT_EQ(Tokens("(a b)c"), (List{"(a b)", "c"}));
  EXPECT_EQ(Tokens("(% no comment)"), (List{"(% no comment)"}));
  EXPECT_EQ(Tokens("()"), (List{"()"}));
}

TEST(CMapTokenizer, FixedNestedBracketsAreNotCounted) {
  EXPECT_EQ(Tokens("(a(b)c)"), (List{"(a(b)", "c", ")"}));
}

TEST(CMapTokenizer, FixedOneBackslashHidesAClosingBracketAndIsKept) {
  EXPECT_EQ(Tokens("(a\\)b)c"), (List{"(a\\)b)", "c"}));
  EXPECT_EQ(Tokens("(a\\\\)b)c"), (List{"(a\\\\)b)", "c"}));
}

TEST(CMapTokenizer, HexStringsEndAtTheNextClosingBracket) {
  EXPECT_EQ(Tokens("<00><ff> 1"), (List{"<00>", "<ff>", "1"}));
  EXPECT_EQ(Tokens("<00 \n ff>"), (List{"<00 \n ff>"}));
}

TEST(CMapTokenizer, ArrayBracketsStandAlone) {
  EXPECT_EQ(Tokens("[a]b["), (List{"[", "a", "]", "b", "["}));
  EXPECT_EQ(Tokens("[[]]"), (List{"[", "[", "]", "]"}));
}

TEST(CMapTokenizer, FixedADelimiterAtTheStartTakesInWhatFollows) {
  EXPECT_EQ(Tokens("{abc}d"), (List{"{abc", "}d"}));
  EXPECT_EQ(Tokens(")x >y"), (List{")x", ">y"}));
  EXPECT_EQ(Tokens("/ a"), (List{"/", "a"}));
}

TEST(CMapTokenizer, EveryDelimiterEndsAWord) {
  for (const char delimiter : {'%', '(', ')', '/', '<', '>', '[', ']', '{', '}'}) {
    const List tokens = Tokens("word"s + delimiter + "x");
    ASSERT_GE(tokens.size(), 1U);
    EXPECT_EQ(tokens[0], "word") << delimiter;
  }
}

TEST(CMapTokenizer, KeepsTheFirst255BytesOfATokenAndDropsTheRest) {
  EXPECT_EQ(Tokens(std::string(255, 'a') + " b"), (List{std::string(255, 'a'), "b"}));
  EXPECT_EQ(Tokens(std::string(256, 'a') + " b"), (List{std::string(255, 'a'), "b"}));
  EXPECT_EQ(Tokens("(" + std::string(1000, 'a') + ") b"), (List{"(" + std::string(254, 'a'), "b"}));
  EXPECT_EQ(Tokens("<" + std::string(1000, '0') + "> b"), (List{"<" + std::string(254, '0'), "b"}));
}

TEST(CMapTokenizer, Byte255EndsTheData) {
  EXPECT_EQ(Tokens("a \xff b"), (List{"a"}));
  EXPECT_EQ(Tokens("abc\xff"), (List{"abc"}));
  EXPECT_EQ(Tokens("\xff"), List{});
}

TEST(CMapTokenizer, FixedByte255EndsTheDataInsideStringsAndCommentsToo) {
  EXPECT_EQ(Tokens("(a\xff b) c"), (List{"(a"}));
  EXPECT_EQ(Tokens("<0\xff 0> c"), (List{"<0"}));
  EXPECT_EQ(Tokens("% a\xff\n b"), List{});
}

TEST(CMapTokenizer, TheEndIsFinal) {
  const std::string text = "a \xff b";
  zeb::CMapTokenizer tokenizer(
      zeb::TextCursor(reinterpret_cast<const unsigned char*>(text.data()), std::ssize(text)));
  std::string token;
  EXPECT_TRUE(tokenizer.NextToken(token));
  EXPECT_FALSE(tokenizer.NextToken(token));
  EXPECT_FALSE(tokenizer.NextToken(token));
}

TEST(CMapTokenizer, OpenStringsEndWithTheData) {
  EXPECT_EQ(Tokens("(abc"), (List{"(abc"}));
  EXPECT_EQ(Tokens("<00"), (List{"<00"}));
}

}  // namespace
