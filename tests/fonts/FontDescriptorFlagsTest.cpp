#include "fonts/FontMetrics.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr int kSymbolic = 4;
constexpr int kNonSymbolic = 32;

class FontDescriptorFlags : public testing::Test {
 protected:
  int Flags() {
    m_pMetrics->BuildFontDescriptorFlag();
    return m_pMetrics->GetFlags();
  }

  std::unique_ptr<CFontMetrics> m_pMetrics = std::make_unique<CFontMetrics>();
};

TEST_F(FontDescriptorFlags, AWinAnsiFontIsNonSymbolic) { EXPECT_EQ(Flags(), kNonSymbolic); }

TEST_F(FontDescriptorFlags, AFontOfAnotherEncodingIsSymbolic) {
  m_pMetrics->SetEncoding(L"fontspecific");
  EXPECT_EQ(Flags(), kSymbolic);
  m_pMetrics->SetEncoding(L"WinAnsi1252");
  EXPECT_EQ(Flags(), kSymbolic);
}

TEST_F(FontDescriptorFlags, TheStandardSchemeIsNonSymbolicInAnyEncoding) {
  m_pMetrics->SetEncoding(L"winansi1250");
  m_pMetrics->SetEncodingScheme(L"AdobeStandardEncoding");
  EXPECT_EQ(Flags(), kNonSymbolic);
}

TEST_F(FontDescriptorFlags, FixedEarlierFlagsAreLost) {
  m_pMetrics->SetFlags(2 | 8);
  EXPECT_EQ(Flags(), kNonSymbolic);
}

TEST_F(FontDescriptorFlags, FixedPitchOfTheFace) {
  m_pMetrics->SetFixedPitch(true);
  EXPECT_EQ(Flags(), kNonSymbolic | 1);
}

TEST_F(FontDescriptorFlags, AnAngleBelowZeroIsItalic) {
  m_pMetrics->SetItalicAngle(-0.5F);
  EXPECT_EQ(Flags(), kNonSymbolic | 64);
  m_pMetrics->SetItalicAngle(12);
  EXPECT_EQ(Flags(), kNonSymbolic);
}

TEST_F(FontDescriptorFlags, SmallCapsAreKnownByTheName) {
  for (const wchar_t* name : {L"SmallCapsFont", L"FontSC", L"SC"}) {
    m_pMetrics->SetBaseFont(name);
    EXPECT_EQ(Flags(), kNonSymbolic | 0x20000);
  }
  for (const wchar_t* name : {L"SCFont", L"smallcaps", L"FontSc", L"S", L"C"}) {
    m_pMetrics->SetBaseFont(name);
    EXPECT_EQ(Flags(), kNonSymbolic);
  }
}

TEST_F(FontDescriptorFlags, BoldInTheNameForcesBoldWithoutAStem) {
  m_pMetrics->SetBaseFont(L"Font-Bold");
  EXPECT_EQ(Flags(), kNonSymbolic | 0x40000);
  m_pMetrics->SetBaseFont(L"Font-bold");
  EXPECT_EQ(Flags(), kNonSymbolic);
}

TEST_F(FontDescriptorFlags, StemsFrom136OnForceBold) {
  m_pMetrics->SetStemVW(135);
  EXPECT_EQ(Flags(), kNonSymbolic);
  m_pMetrics->SetStemVW(136);
  EXPECT_EQ(Flags(), kNonSymbolic | 0x40000);
}

TEST_F(FontDescriptorFlags, AllTogether) {
  m_pMetrics->SetFixedPitch(true);
  m_pMetrics->SetEncoding(L"fontspecific");
  m_pMetrics->SetItalicAngle(-12);
  m_pMetrics->SetBaseFont(L"Font-BoldSC");
  EXPECT_EQ(Flags(), 1 | 4 | 64 | 0x20000 | 0x40000);
}

}  // namespace
