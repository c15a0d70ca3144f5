#include "fonts/FontCharMetricsInfo.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(FontCharMetricsInfo, StartsWithZeros) {
  const CFontCharMetricsInfo info;
  EXPECT_EQ(info.GetCode(), 0);
  EXPECT_EQ(info.GetWX(), 0);
  EXPECT_EQ(info.GetWY(), 0);
  EXPECT_STREQ(info.GetName(), L"");
  EXPECT_EQ(info.GetBBoxLLX(), 0.0F);
  EXPECT_EQ(info.GetBBoxLLY(), 0.0F);
  EXPECT_EQ(info.GetBBoxURX(), 0.0F);
  EXPECT_EQ(info.GetBBoxURY(), 0.0F);
  EXPECT_EQ(info.GetLigatureCount(), 0);
}

TEST(FontCharMetricsInfo, KeepsItsValues) {
  CFontCharMetricsInfo info;
  info.SetCode(-1);
  info.SetWX(500);
  info.SetWY(2);
  info.SetName(L"fi");
  info.SetBBoxLLX(1.5F);
  info.SetBBoxLLY(2.5F);
  info.SetBBoxURX(3.5F);
  info.SetBBoxURY(4.5F);
  EXPECT_EQ(info.GetCode(), -1);
  EXPECT_EQ(info.GetWX(), 500);
  EXPECT_EQ(info.GetWY(), 2);
  EXPECT_STREQ(info.GetName(), L"fi");
  EXPECT_EQ(info.GetBBoxLLX(), 1.5F);
  EXPECT_EQ(info.GetBBoxLLY(), 2.5F);
  EXPECT_EQ(info.GetBBoxURX(), 3.5F);
  EXPECT_EQ(info.GetBBoxURY(), 4.5F);
}

TEST(FontCharMetricsInfo, OwnsItsLigaturesInOrder) {
  CFontCharMetricsInfo info;
  auto first = std::make_unique<CFontLigature>();
  first->SetSuccessor(L"i");
  first->SetLigature(L"fi");
  info.AddLigature(first.release());
  info.AddLigature(std::make_unique<CFontLigature>().release());
  ASSERT_EQ(info.GetLigatureCount(), 2);
  EXPECT_STREQ(info.GetLigatureAt(0)->GetSuccessor(), L"i");
  EXPECT_STREQ(info.GetLigatureAt(0)->GetLigature(), L"fi");
  EXPECT_STREQ(info.GetLigatureAt(1)->GetSuccessor(), L"");
  EXPECT_STREQ(info.GetLigatureAt(1)->GetLigature(), L"");
}

TEST(FontLigature, CopiesItsNames) {
  CFontLigature ligature;
  ligature.SetSuccessor(L"l");
  ligature.SetLigature(L"fl");
  const CFontLigature copy = ligature;
  ligature.SetSuccessor(L"x");
  EXPECT_STREQ(copy.GetSuccessor(), L"l");
  EXPECT_STREQ(copy.GetLigature(), L"fl");
}

}  // namespace
