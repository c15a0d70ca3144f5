#include "foundation/Base64.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

std::string Encode(std::string_view text) { return zeb::EncodeBase64(std::as_bytes(std::span(text))); }

/// The decoded text, or the mark of what is no Base64.
std::string Decode(std::string_view text) {
  const auto bytes = zeb::DecodeBase64(text);
  if (!bytes) return "no Base64";
  std::string decoded;
  for (const std::byte byte : *bytes) decoded.push_back(static_cast<char>(byte));
  return decoded;
}

// The test vectors of RFC 4648.
const std::vector<std::pair<std::string, std::string>> kVectors = {{"", ""},
                                                                   {"f", "Zg=="},
                                                                   {"fo", "Zm8="},
                                                                   {"foo", "Zm9v"},
                                                                   {"foob", "Zm9vYg=="},
                                                                   {"fooba", "Zm9vYmE="},
                                                                   {"foobar", "Zm9vYmFy"}};

TEST(Base64, EncodesTheVectorsOfItsStandard) {
  for (const auto& [plain, text] : kVectors) EXPECT_EQ(Encode(plain), text);
}

TEST(Base64, DecodesTheVectorsOfItsStandard) {
  for (const auto& [plain, text] : kVectors) EXPECT_EQ(Decode(text), plain);
}

TEST(Base64, UsesPlusAndSlash) {
  EXPECT_EQ(Encode("\xFB\xFF\xFE"), "+//+");
  EXPECT_EQ(Decode("+//+"), "\xFB\xFF\xFE");
}

TEST(Base64, AllowsWhiteSpaceAnywhere) {
  EXPECT_EQ(Decode("\n  Zm 9v\r\n\tYg = =\n "), "foob");
  EXPECT_EQ(Decode(" \n"), "");
}

TEST(Base64, RefusesWhatIsNoBase64) {
  for (const char* text : {"Z", "Zg", "Zg=", "Zg===", "=", "====", "Z===", "Zm9v=", "Zm8=Zm8=", "Zm8=a",
                           "Zm9?", "Zm9v-_", "Zm\xC3\xA4", "Zm9v\v"}) {
    EXPECT_EQ(Decode(text), "no Base64") << text;
  }
  EXPECT_EQ(Decode(std::string_view("Zm\0v", 4)), "no Base64");
}

TEST(Base64, GivesEveryLengthBack) {
  std::string plain;
  for (int length = 0; length < 300; ++length) {
    EXPECT_EQ(Decode(Encode(plain)), plain);
    plain.push_back(static_cast<char>(length * 37));
  }
}

}  // namespace
