#include "model/Metadata.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Metadata, IsEmptyAtFirst) {
  const CMetadata metadata;
  EXPECT_STREQ(metadata.GetTitle(), L"");
  EXPECT_STREQ(metadata.GetAuthor(), L"");
  EXPECT_STREQ(metadata.GetSubject(), L"");
  EXPECT_STREQ(metadata.GetCreator(), L"");
  EXPECT_EQ(metadata.GetKeywordCount(), 0);
  EXPECT_EQ(metadata.GetKeyValuePairCount(), 0);
}

TEST(Metadata, HoldsItsTexts) {
  CMetadata metadata;
  metadata.SetTitle(L"t");
  metadata.SetAuthor(L"a");
  metadata.SetSubject(L"s");
  metadata.SetCreator(L"c");
  EXPECT_STREQ(metadata.GetTitle(), L"t");
  EXPECT_STREQ(metadata.GetAuthor(), L"a");
  EXPECT_STREQ(metadata.GetSubject(), L"s");
  EXPECT_STREQ(metadata.GetCreator(), L"c");
}

TEST(Metadata, KeepsDuplicateKeywordsInOrder) {
  CMetadata metadata;
  metadata.AddKeyword(L"b");
  metadata.AddKeyword(L"a");
  metadata.AddKeyword(L"b");
  ASSERT_EQ(metadata.GetKeywordCount(), 3);
  EXPECT_STREQ(metadata.GetKeywordAt(0), L"b");
  EXPECT_STREQ(metadata.GetKeywordAt(1), L"a");
  EXPECT_STREQ(metadata.GetKeywordAt(2), L"b");
  metadata.ClearKeywords();
  EXPECT_EQ(metadata.GetKeywordCount(), 0);
}

TEST(Metadata, FixedFirstValueOfAKeyStays) {
  CMetadata metadata;
  metadata.AddKeyValuePair(L"k", L"first");
  metadata.AddKeyValuePair(L"k", L"second");
  EXPECT_EQ(metadata.GetKeyValuePairCount(), 1);
  EXPECT_STREQ(metadata.GetValueAtKey(L"k"), L"first");
}

TEST(Metadata, UnknownKeyHasNoValue) {
  CMetadata metadata;
  EXPECT_EQ(metadata.GetValueAtKey(L"k"), nullptr);
  metadata.AddKeyValuePair(L"k", L"");
  EXPECT_STREQ(metadata.GetValueAtKey(L"k"), L"");
  EXPECT_EQ(metadata.GetValueAtKey(L"K"), nullptr);
}

std::wstring PairAt(const CMetadata& metadata, int index) {
  std::wstring key = L"old";
  std::wstring value = L"old";
  metadata.GetKeyAndValueAt(index, key, value);
  return key + L"=" + value;
}

TEST(Metadata, PairsStandInKeyOrder) {
  CMetadata metadata;
  metadata.AddKeyValuePair(L"b", L"2");
  metadata.AddKeyValuePair(L"c", L"3");
  metadata.AddKeyValuePair(L"a", L"1");
  EXPECT_EQ(PairAt(metadata, 0), L"a=1");
  EXPECT_EQ(PairAt(metadata, 1), L"b=2");
  EXPECT_EQ(PairAt(metadata, 2), L"c=3");
}

TEST(Metadata, FixedIndexWithoutAPairGivesTheLastPair) {
  CMetadata metadata;
  metadata.AddKeyValuePair(L"b", L"2");
  metadata.AddKeyValuePair(L"a", L"1");
  EXPECT_EQ(PairAt(metadata, 2), L"b=2");
  EXPECT_EQ(PairAt(metadata, 5), L"b=2");
  EXPECT_EQ(PairAt(metadata, -1), L"b=2");
}

TEST(Metadata, WithoutPairsTheTextsBecomeEmpty) {
  CMetadata metadata;
  EXPECT_EQ(PairAt(metadata, 0), L"=");
  metadata.AddKeyValuePair(L"a", L"1");
  metadata.ClearKeyValuePairs();
  EXPECT_EQ(metadata.GetKeyValuePairCount(), 0);
  EXPECT_EQ(PairAt(metadata, 0), L"=");
}

TEST(Metadata, CopiesAreFull) {
  CMetadata source;
  source.SetTitle(L"t");
  source.SetAuthor(L"a");
  source.SetSubject(L"s");
  source.SetCreator(L"c");
  source.AddKeyword(L"k");
  source.AddKeyValuePair(L"x", L"y");
  const CMetadata copy(source);
  CMetadata assigned;
  assigned = source;
  source.ClearAllMetadata();
  for (const CMetadata* metadata : {&copy, const_cast<const CMetadata*>(&assigned)}) {
    EXPECT_STREQ(metadata->GetTitle(), L"t");
    EXPECT_STREQ(metadata->GetAuthor(), L"a");
    EXPECT_STREQ(metadata->GetSubject(), L"s");
    EXPECT_STREQ(metadata->GetCreator(), L"c");
    ASSERT_EQ(metadata->GetKeywordCount(), 1);
    EXPECT_STREQ(metadata->GetKeywordAt(0), L"k");
    EXPECT_STREQ(metadata->GetValueAtKey(L"x"), L"y");
  }
}

TEST(Metadata, ClearsEverything) {
  CMetadata metadata;
  metadata.SetTitle(L"t");
  metadata.SetAuthor(L"a");
  metadata.SetSubject(L"s");
  metadata.SetCreator(L"c");
  metadata.AddKeyword(L"k");
  metadata.AddKeyValuePair(L"x", L"y");
  metadata.ClearAllMetadata();
  EXPECT_STREQ(metadata.GetTitle(), L"");
  EXPECT_STREQ(metadata.GetAuthor(), L"");
  EXPECT_STREQ(metadata.GetSubject(), L"");
  EXPECT_STREQ(metadata.GetCreator(), L"");
  EXPECT_EQ(metadata.GetKeywordCount(), 0);
  EXPECT_EQ(metadata.GetKeyValuePairCount(), 0);
}

}  // namespace
