#include "model/CopyValueHolderKey.h"

#include <gtest/gtest.h>

namespace {

TEST(CopyValueHolderKey, JoinsItsParts) {
  const CCopyValueHolderKey key(L"A", L"B");
  EXPECT_STREQ(key.GetKey(), L"A|B");
  EXPECT_STREQ(CCopyValueHolderKey(L"", L"").GetKey(), L"|");
}

TEST(CopyValueHolderKey, FixedPartsAreComparedAndNotTheKey) {
  const CCopyValueHolderKey key(L"A", L"B");
  EXPECT_TRUE(key.CompareKey(L"A", L"B"));
  EXPECT_FALSE(key.CompareKey(L"A|B", L""));
  EXPECT_FALSE(key.CompareKey(L"B", L"A"));
  EXPECT_FALSE(key.CompareKey(L"a", L"B"));
  EXPECT_FALSE(CCopyValueHolderKey(L"A|B", L"C").CompareKey(L"A", L"B|C"));
}

TEST(CopyValueHolderKey, Copies) {
  CCopyValueHolderKey key(L"A", L"B");
  const CCopyValueHolderKey copy(key);
  key = CCopyValueHolderKey(L"X", L"Y");
  EXPECT_STREQ(key.GetKey(), L"X|Y");
  EXPECT_TRUE(key.CompareKey(L"X", L"Y"));
  EXPECT_STREQ(copy.GetKey(), L"A|B");
  EXPECT_TRUE(copy.CompareKey(L"A", L"B"));
}

}  // namespace
