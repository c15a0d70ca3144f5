#include "fonts/AFMKeys.h"

#include <gtest/gtest.h>

namespace {

TEST(AFMKeys, KnowsItsVocabulary) {
  const wchar_t* const words[] = {L"Ascender",
                                  L"B",
                                  L"C",
                                  L"CC",
                                  L"CapHeight",
                                  L"CharWidth",
                                  L"Characters",
                                  L"CharacterSet",
                                  L"Comment",
                                  L"Descender",
                                  L"EncodingScheme",
                                  L"EndCharMetrics",
                                  L"EndComposites",
                                  L"EndFontMetrics",
                                  L"EndKernData",
                                  L"EndKernPairs",
                                  L"EndTrackKern",
                                  L"FamilyName",
                                  L"FontBBox",
                                  L"FontName",
                                  L"FullName",
                                  L"IsFixedPitch",
                                  L"ItalicAngle",
                                  L"KP",
                                  L"KPX",
                                  L"L",
                                  L"N",
                                  L"Notice",
                                  L"PCC",
                                  L"StartCharMetrics",
                                  L"StartComposites",
                                  L"StartFontMetrics",
                                  L"StartKernData",
                                  L"StartKernPairs",
                                  L"StartTrackKern",
                                  L"StdHW",
                                  L"StdVW",
                                  L"TrackKern",
                                  L"UnderlinePosition",
                                  L"UnderlineThickness",
                                  L"Version",
                                  L"W",
                                  L"WX",
                                  L"Weight",
                                  L"XHeight"};
  const AFMKeys keys;
  int key = 0;
  for (const wchar_t* word : words) EXPECT_EQ(keys.FindKey(word), key++);
  EXPECT_EQ(key, 45);
}

TEST(AFMKeys, UnknownWordsGiveMinusOne) {
  const AFMKeys keys;
  for (const wchar_t* word : {L"", L"ascender", L"Ascende", L"Ascenders", L"W0X", L"Metrics"}) {
    EXPECT_EQ(keys.FindKey(word), -1);
  }
}

}  // namespace
