#include "fonts/FontMetrics.h"

#include "fonts/EncodingTables.h"
#include "fonts/FontCharMetricsInfo.h"
#include "fonts/FontData.h"
#include "fonts/PostscriptFontMetrics.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

// The library stores these by pointer only; their classes are the caller's.
class CFontCompCharData {};
class CFontPairKerningData {};
class CFontTrackKerningData {};

namespace {

/// A font data object that tells when it is deleted.
class WatchedData : public CFontData {
 public:
  explicit WatchedData(bool& deleted) : CFontData(false), m_bDeleted(deleted) {}
  WatchedData(const WatchedData&) = delete;
  WatchedData& operator=(const WatchedData&) = delete;
  ~WatchedData() override { m_bDeleted = true; }

 private:
  bool& m_bDeleted;
};

/// Shows what is protected.
class OpenMetrics : public CFontMetrics {
 public:
  void SetSubsetData(CFontData* data) { m_pSubsetData = data; }
  int FileHandle() const { return m_iFileHandle; }
  void SetUnitsPerEm(unsigned short units) { m_usUnitsPerEm = units; }
  unsigned short UnitsPerEm() const { return m_usUnitsPerEm; }
};

std::unique_ptr<OpenMetrics> Make() { return std::make_unique<OpenMetrics>(); }

void ExpectEncoding(const CFontMetrics& metrics, const zeb::EncodingTable& table) {
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(metrics.GetUnicodeAt(code), table[static_cast<std::size_t>(code)].unicode) << code;
    EXPECT_STREQ(metrics.GetCharNameAt(code), table[static_cast<std::size_t>(code)].name) << code;
  }
}

TEST(FontMetrics, StartsWithTheValuesOfTheConstructor) {
  const auto metrics = Make();
  EXPECT_EQ(metrics->FileHandle(), -1);
  EXPECT_EQ(metrics->UnitsPerEm(), 0);
  EXPECT_STREQ(metrics->GetBaseFont(), L"");
  EXPECT_STREQ(metrics->GetEncoding(), L"winansi1252");
  EXPECT_EQ(metrics->GetFlags(), 0);
  EXPECT_EQ(metrics->GetFontType(), CFontMetrics::FontTypeTrueType);
  EXPECT_STREQ(metrics->GetEncodingScheme(), L"");
  EXPECT_EQ(metrics->GetItalicAngle(), 0.0F);
  EXPECT_FALSE(metrics->GetFixedPitch());
  EXPECT_EQ(metrics->GetBBoxLLX(), 0.0F);
  EXPECT_EQ(metrics->GetBBoxLLY(), 0.0F);
  EXPECT_EQ(metrics->GetBBoxURX(), 0.0F);
  EXPECT_EQ(metrics->GetBBoxURY(), 0.0F);
  EXPECT_EQ(metrics->GetUnderlinePosition(), 0);
  EXPECT_EQ(metrics->GetUnderlineThickness(), 0);
  EXPECT_EQ(metrics->GetCapHeight(), 0);
  EXPECT_EQ(metrics->GetXHeight(), 0);
  EXPECT_EQ(metrics->GetAscender(), 0);
  EXPECT_EQ(metrics->GetDescender(), 0);
  EXPECT_EQ(metrics->GetStemVW(), 0);
  EXPECT_EQ(metrics->GetStemHW(), 0);
  EXPECT_EQ(metrics->GetFontCharMetricsCount(), 0);
  EXPECT_EQ(metrics->GetFontCompCharDataCount(), 0);
  EXPECT_EQ(metrics->GetFontPairKerningDataCount(), 0);
  EXPECT_EQ(metrics->GetFontTrackKerningDataCount(), 0);
  EXPECT_EQ(metrics->GetFirstChar(), 0);
  EXPECT_EQ(metrics->GetLastChar(), 256);
  EXPECT_FALSE(metrics->GetBase14Font());
  EXPECT_FALSE(metrics->GetCJKFont());
  EXPECT_STREQ(metrics->GetTTName(), L"");
  EXPECT_FALSE(metrics->GetUnicodeFont());
  EXPECT_EQ(metrics->GetCharColl(), static_cast<CFontMetrics::CharColl>(-1));
  EXPECT_EQ(metrics->GetUsedGlyphsCount(), 3);
  EXPECT_EQ(metrics->GetFontEmbedding(), CFontMetrics::EmbedSingleByte);
  EXPECT_STREQ(metrics->GetFontBoldName(), L"");
  EXPECT_STREQ(metrics->GetFontItalicName(), L"");
  EXPECT_STREQ(metrics->GetFontBoldItalicName(), L"");
  EXPECT_EQ(metrics->GetBold(), 400);
  EXPECT_FALSE(metrics->GetItalic());
  EXPECT_STREQ(metrics->GetFontFamilyName(), L"");
  EXPECT_EQ(metrics->GetLocalizedFontNameCount(), 0);
  EXPECT_FALSE(metrics->GetSymbolFont());
  EXPECT_TRUE(metrics->GetBoldFont());
  EXPECT_TRUE(metrics->GetItalicFont());
  ExpectEncoding(*metrics, zeb::kWinAnsiEncoding);
  for (int code = 0; code < 65536; ++code) ASSERT_EQ(metrics->GetWidthAt(code), 0) << code;
  ASSERT_NE(metrics->GetFontData(), nullptr);
  EXPECT_EQ(metrics->GetFontData()->GetLength(), 0);
  EXPECT_EQ(metrics->GetTTFile(), nullptr);
}

TEST(FontMetrics, InitSetsTheValuesThatReadersStartFrom) {
  const auto metrics = Make();
  metrics->SetEncoding(L"cid");
  metrics->SetFlags(7);
  metrics->SetItalicAngle(-3);
  metrics->SetFixedPitch(true);
  metrics->SetXHeight(5);
  metrics->SetStemVW(5);
  metrics->SetStemHW(5);
  metrics->InitFontInformation();
  EXPECT_STREQ(metrics->GetEncoding(), L"winansi1252");
  EXPECT_EQ(metrics->GetFlags(), 0);
  EXPECT_EQ(metrics->GetFontType(), CFontMetrics::FontTypeType1);
  EXPECT_EQ(metrics->GetItalicAngle(), 0.0F);
  EXPECT_FALSE(metrics->GetFixedPitch());
  EXPECT_EQ(metrics->GetBBoxLLX(), -50.0F);
  EXPECT_EQ(metrics->GetBBoxLLY(), -200.0F);
  EXPECT_EQ(metrics->GetBBoxURX(), 1000.0F);
  EXPECT_EQ(metrics->GetBBoxURY(), 900.0F);
  EXPECT_EQ(metrics->GetUnderlinePosition(), -100);
  EXPECT_EQ(metrics->GetUnderlineThickness(), 50);
  EXPECT_EQ(metrics->GetCapHeight(), 700);
  EXPECT_EQ(metrics->GetXHeight(), 0);
  EXPECT_EQ(metrics->GetAscender(), 800);
  EXPECT_EQ(metrics->GetDescender(), -200);
  EXPECT_EQ(metrics->GetStemVW(), 0);
  EXPECT_EQ(metrics->GetStemHW(), 0);
}

TEST(FontMetrics, InitLeavesTheOtherValues) {
  const auto metrics = Make();
  const CFontData* const data = metrics->GetFontData();
  metrics->SetBaseFont(L"Base");
  metrics->SetTTName(L"TT");
  metrics->SetEncodingScheme(L"Scheme");
  metrics->SetFontFamilyName(L"Family");
  metrics->SetFirstChar(32);
  metrics->SetLastChar(126);
  metrics->SetWidthAt(65, 667);
  metrics->SetBase14Font(true);
  metrics->SetCP1250Encoding();
  metrics->SetUnicodeFont(true);
  metrics->SetCharColl(CFontMetrics::CharCollCNS1);
  metrics->SetBold(700);
  metrics->SetItalic(true);
  metrics->SetSymbolFont(true);
  metrics->SetBoldFont(false);
  metrics->SetItalicFont(false);
  metrics->AddLocalizedFontName(L"Name");
  metrics->InitFontInformation();
  EXPECT_STREQ(metrics->GetBaseFont(), L"Base");
  EXPECT_STREQ(metrics->GetTTName(), L"TT");
  EXPECT_STREQ(metrics->GetEncodingScheme(), L"Scheme");
  EXPECT_STREQ(metrics->GetFontFamilyName(), L"Family");
  EXPECT_EQ(metrics->GetFirstChar(), 32);
  EXPECT_EQ(metrics->GetLastChar(), 126);
  EXPECT_TRUE(metrics->GetBase14Font());
  EXPECT_EQ(metrics->GetFontEmbedding(), CFontMetrics::EmbedNone);
  ExpectEncoding(*metrics, zeb::kCP1250Encoding);
  EXPECT_TRUE(metrics->GetUnicodeFont());
  EXPECT_EQ(metrics->GetCharColl(), CFontMetrics::CharCollCNS1);
  EXPECT_EQ(metrics->GetBold(), 700);
  EXPECT_TRUE(metrics->GetItalic());
  EXPECT_TRUE(metrics->GetSymbolFont());
  EXPECT_FALSE(metrics->GetBoldFont());
  EXPECT_FALSE(metrics->GetItalicFont());
  EXPECT_EQ(metrics->GetLocalizedFontNameCount(), 1);
  EXPECT_EQ(metrics->GetFontData(), data);
  metrics->SetSymbolFont(false);
  EXPECT_EQ(metrics->GetWidthAt(65), 667);
}

TEST(FontMetrics, InitLeavesGlyphsRecordsAndLinkedNames) {
  const auto metrics = Make();
  CFontCharMetricsInfo record;
  metrics->SetUnitsPerEm(2048);
  metrics->SetFontEmbedding(CFontMetrics::EmbedSubset);
  metrics->AddUnicodeToGlyphIndex(65, 40);
  EXPECT_EQ(metrics->MapChar(65), 3);
  metrics->AddFontCharMetricsInfo(&record);
  metrics->SetFontBoldName(L"Bold");
  metrics->SetFontItalicName(L"Italic");
  metrics->SetFontBoldItalicName(L"BoldItalic");
  metrics->InitFontInformation();
  EXPECT_EQ(metrics->UnitsPerEm(), 2048);
  EXPECT_EQ(metrics->GetFontEmbedding(), CFontMetrics::EmbedSubset);
  EXPECT_EQ(metrics->GetUsedGlyphsCount(), 4);
  EXPECT_EQ(metrics->MapChar(65), 3);
  EXPECT_EQ(metrics->GetUsedGlyphsCount(), 4);
  ASSERT_EQ(metrics->GetFontCharMetricsCount(), 1);
  EXPECT_EQ(metrics->GetFontCharMetricsAt(0), &record);
  EXPECT_STREQ(metrics->GetFontBoldName(), L"Bold");
  EXPECT_STREQ(metrics->GetFontItalicName(), L"Italic");
  EXPECT_STREQ(metrics->GetFontBoldItalicName(), L"BoldItalic");
}

TEST(FontMetrics, TheDataOfANewObjectDoesNotGrow) {
  const auto metrics = Make();
  metrics->GetFontData()->Seek(10);
  EXPECT_EQ(metrics->GetFontData()->GetLength(), 0);
}

TEST(FontMetrics, KeepsItsTexts) {
  const auto metrics = Make();
  metrics->SetBaseFont(L"1");
  metrics->SetFontFamilyName(L"2");
  metrics->SetTTName(L"3");
  metrics->SetEncoding(L"4");
  metrics->SetEncodingScheme(L"5");
  metrics->SetFontBoldName(L"6");
  metrics->SetFontItalicName(L"7");
  metrics->SetFontBoldItalicName(L"8");
  EXPECT_STREQ(metrics->GetBaseFont(), L"1");
  EXPECT_STREQ(metrics->GetFontFamilyName(), L"2");
  EXPECT_STREQ(metrics->GetTTName(), L"3");
  EXPECT_STREQ(metrics->GetEncoding(), L"4");
  EXPECT_STREQ(metrics->GetEncodingScheme(), L"5");
  EXPECT_STREQ(metrics->GetFontBoldName(), L"6");
  EXPECT_STREQ(metrics->GetFontItalicName(), L"7");
  EXPECT_STREQ(metrics->GetFontBoldItalicName(), L"8");
}

TEST(FontMetrics, KeepsItsNumbers) {
  const auto metrics = Make();
  metrics->SetFlags(1);
  metrics->SetItalicAngle(2.5F);
  metrics->SetBBoxLLX(3.5F);
  metrics->SetBBoxLLY(4.5F);
  metrics->SetBBoxURX(5.5F);
  metrics->SetBBoxURY(6.5F);
  metrics->SetUnderlinePosition(7);
  metrics->SetUnderlineThickness(8);
  metrics->SetCapHeight(9);
  metrics->SetXHeight(10);
  metrics->SetAscender(11);
  metrics->SetDescender(12);
  metrics->SetStemVW(13);
  metrics->SetStemHW(14);
  metrics->SetFirstChar(15);
  metrics->SetLastChar(16);
  metrics->SetBold(17);
  EXPECT_EQ(metrics->GetFlags(), 1);
  EXPECT_EQ(metrics->GetItalicAngle(), 2.5F);
  EXPECT_EQ(metrics->GetBBoxLLX(), 3.5F);
  EXPECT_EQ(metrics->GetBBoxLLY(), 4.5F);
  EXPECT_EQ(metrics->GetBBoxURX(), 5.5F);
  EXPECT_EQ(metrics->GetBBoxURY(), 6.5F);
  EXPECT_EQ(metrics->GetUnderlinePosition(), 7);
  EXPECT_EQ(metrics->GetUnderlineThickness(), 8);
  EXPECT_EQ(metrics->GetCapHeight(), 9);
  EXPECT_EQ(metrics->GetXHeight(), 10);
  EXPECT_EQ(metrics->GetAscender(), 11);
  EXPECT_EQ(metrics->GetDescender(), 12);
  EXPECT_EQ(metrics->GetStemVW(), 13);
  EXPECT_EQ(metrics->GetStemHW(), 14);
  EXPECT_EQ(metrics->GetFirstChar(), 15);
  EXPECT_EQ(metrics->GetLastChar(), 16);
  EXPECT_EQ(metrics->GetBold(), 17);
}

TEST(FontMetrics, KeepsItsKindsAndMarks) {
  const auto metrics = Make();
  metrics->SetFontType(CFontMetrics::FontTypeCID);
  metrics->SetCharColl(CFontMetrics::CharCollIdentity);
  metrics->SetFixedPitch(true);
  metrics->SetItalic(true);
  metrics->SetBoldFont(false);
  metrics->SetItalicFont(false);
  metrics->SetSymbolFont(true);
  metrics->SetUnicodeFont(true);
  EXPECT_EQ(metrics->GetFontType(), CFontMetrics::FontTypeCID);
  EXPECT_EQ(metrics->GetCharColl(), CFontMetrics::CharCollIdentity);
  EXPECT_TRUE(metrics->GetFixedPitch());
  EXPECT_TRUE(metrics->GetItalic());
  EXPECT_FALSE(metrics->GetBoldFont());
  EXPECT_FALSE(metrics->GetItalicFont());
  EXPECT_TRUE(metrics->GetSymbolFont());
  EXPECT_TRUE(metrics->GetUnicodeFont());
}

TEST(FontMetrics, TheEnumerationsHaveTheirNumbers) {
  EXPECT_EQ(CFontMetrics::FontTypeType1, 0);
  EXPECT_EQ(CFontMetrics::FontTypeOpenType, 1);
  EXPECT_EQ(CFontMetrics::FontTypeTrueType, 2);
  EXPECT_EQ(CFontMetrics::FontTypeCID, 3);
  EXPECT_EQ(CFontMetrics::EmbedSingleByte, 0);
  EXPECT_EQ(CFontMetrics::EmbedSubset, 1);
  EXPECT_EQ(CFontMetrics::EmbedNone, 2);
  EXPECT_EQ(CFontMetrics::CharCollGB1, 0);
  EXPECT_EQ(CFontMetrics::CharCollCNS1, 1);
  EXPECT_EQ(CFontMetrics::CharCollJapan1, 2);
  EXPECT_EQ(CFontMetrics::CharCollKorea1, 3);
  EXPECT_EQ(CFontMetrics::CharCollIdentity, 4);
}

TEST(FontMetrics, SettingAnEncodingTableLeavesTheNameOfTheEncoding) {
  const auto metrics = Make();
  metrics->SetEncoding(L"other");
  metrics->SetCP1250Encoding();
  ExpectEncoding(*metrics, zeb::kCP1250Encoding);
  EXPECT_STREQ(metrics->GetEncoding(), L"other");
  metrics->SetWinAnsiEncoding();
  ExpectEncoding(*metrics, zeb::kWinAnsiEncoding);
  EXPECT_STREQ(metrics->GetEncoding(), L"other");
}

TEST(FontMetrics, SingleCodesCanBeSet) {
  const auto metrics = Make();
  metrics->SetUnicodeAt(255, 0xFFFF);
  metrics->SetCharNameAt(255, L"last");
  EXPECT_EQ(metrics->GetUnicodeAt(255), 0xFFFF);
  EXPECT_STREQ(metrics->GetCharNameAt(255), L"last");
}

TEST(FontMetrics, BuiltInFontsAreNeverEmbedded) {
  const auto base14 = Make();
  base14->SetBase14Font(true);
  EXPECT_TRUE(base14->GetBase14Font());
  EXPECT_EQ(base14->GetFontEmbedding(), CFontMetrics::EmbedNone);
  base14->SetFontEmbedding(CFontMetrics::EmbedSingleByte);
  EXPECT_EQ(base14->GetFontEmbedding(), CFontMetrics::EmbedNone);
  base14->SetBase14Font(false);
  EXPECT_EQ(base14->GetFontEmbedding(), CFontMetrics::EmbedNone);
  base14->SetFontEmbedding(CFontMetrics::EmbedSubset);
  EXPECT_EQ(base14->GetFontEmbedding(), CFontMetrics::EmbedSubset);
}

TEST(FontMetrics, FixedTheEmbeddingOfACJKFontCanBeChanged) {
  const auto metrics = Make();
  metrics->SetCJKFont(true);
  EXPECT_TRUE(metrics->GetCJKFont());
  EXPECT_EQ(metrics->GetFontEmbedding(), CFontMetrics::EmbedNone);
  metrics->SetFontEmbedding(CFontMetrics::EmbedSubset);
  EXPECT_EQ(metrics->GetFontEmbedding(), CFontMetrics::EmbedSubset);
  metrics->SetCJKFont(false);
  EXPECT_EQ(metrics->GetFontEmbedding(), CFontMetrics::EmbedSubset);
}

TEST(FontMetrics, TheSubsetIsGivenForAUnicodeFontOnly) {
  const auto metrics = Make();
  CFontData* const source = metrics->GetFontData();
  metrics->SetUnicodeFont(true);
  EXPECT_EQ(metrics->GetFontData(), source);
  auto* const subset = new CFontData(true);
  metrics->SetSubsetData(subset);
  EXPECT_EQ(metrics->GetFontData(), subset);
  metrics->SetUnicodeFont(false);
  EXPECT_EQ(metrics->GetFontData(), source);
}

TEST(FontMetrics, OwnedDataEndsWithTheObject) {
  bool deleted = false;
  auto metrics = Make();
  metrics->SetFontData(new WatchedData(deleted), true);
  EXPECT_FALSE(deleted);
  metrics.reset();
  EXPECT_TRUE(deleted);
}

TEST(FontMetrics, ForeignDataOutlivesTheObject) {
  bool deleted = false;
  WatchedData data(deleted);
  auto metrics = Make();
  metrics->SetFontData(&data, false);
  EXPECT_EQ(metrics->GetFontData(), &data);
  metrics.reset();
  EXPECT_FALSE(deleted);
}

TEST(FontMetrics, FixedReplacingDeletesForeignDataToo) {
  bool deleted = false;
  const auto metrics = Make();
  metrics->SetFontData(new WatchedData(deleted), false);
  metrics->SetFontData(nullptr, true);
  EXPECT_TRUE(deleted);
  EXPECT_EQ(metrics->GetFontData(), nullptr);
}

TEST(FontMetrics, TheDataThatItHasAlreadyIsNotDeleted) {
  bool deleted = false;
  const auto metrics = Make();
  auto* const data = new WatchedData(deleted);
  metrics->SetFontData(data, false);
  metrics->SetFontData(data, true);
  EXPECT_FALSE(deleted);
}

TEST(FontMetrics, NamesThatWereSetSinglyEndWithTheNextEncoding) {
  const auto metrics = Make();
  for (const bool centralEuropean : {false, true}) {
    metrics->SetCharNameAt(65, L"own");
    EXPECT_STREQ(metrics->GetCharNameAt(65), L"own");
    centralEuropean ? metrics->SetCP1250Encoding() : metrics->SetWinAnsiEncoding();
    EXPECT_STREQ(metrics->GetCharNameAt(65), L"A");
  }
}

TEST(FontMetrics, NamesOfCopiesAreTheirOwn) {
  CFontData data(false);
  const auto source = Make();
  source->SetFontData(&data, false);
  source->SetCharNameAt(65, L"own");
  CFontMetrics copy(*source);
  EXPECT_STREQ(copy.GetCharNameAt(65), L"own");
  copy.SetCharNameAt(65, L"x");
  EXPECT_STREQ(source->GetCharNameAt(65), L"own");
  source->SetCharNameAt(65, source->GetCharNameAt(65));
  EXPECT_STREQ(source->GetCharNameAt(65), L"own");
}

TEST(FontMetrics, FixedCopiesShareTheData) {
  CFontData data(false);
  const auto source = Make();
  source->SetFontData(&data, false);
  source->SetBaseFont(L"Base");
  source->SetWidthAt(65, 667);
  source->SetFontEmbedding(CFontMetrics::EmbedSubset);
  source->AddUnicodeToGlyphIndex(65, 40);
  EXPECT_EQ(source->MapChar(65), 3);
  source->AddLocalizedFontName(L"Name");
  const auto copy = std::make_unique<CFontMetrics>(*source);
  EXPECT_EQ(copy->GetFontData(), &data);
  EXPECT_STREQ(copy->GetBaseFont(), L"Base");
  EXPECT_EQ(copy->GetWidthAt(65), 667);
  EXPECT_EQ(copy->GetUsedGlyphsCount(), 4);
  EXPECT_EQ(copy->FindLocalizedFontName(L"Name"), 0);
  // The maps are the copy's own.
  copy->AddUnicodeToGlyphIndex(66, 41);
  EXPECT_EQ(copy->MapChar(66), 4);
  EXPECT_EQ(source->GetUsedGlyphsCount(), 4);
  const auto assigned = Make();
  assigned->SetFontData(nullptr, false);
  *assigned = *source;
  EXPECT_EQ(assigned->GetFontData(), &data);
  EXPECT_EQ(assigned->MapChar(65), 3);
}

TEST(FontMetrics, KeepsRecordsByPointerAndFreesNone) {
  const auto metrics = Make();
  CFontCharMetricsInfo character;
  CFontCompCharData composite;
  CFontPairKerningData pair;
  CFontTrackKerningData track;
  metrics->AddFontCharMetricsInfo(&character);
  metrics->AddFontCompCharData(nullptr);
  metrics->AddFontCompCharData(&composite);
  metrics->AddFontPairKerningData(&pair);
  metrics->AddFontTrackKerningData(&track);
  EXPECT_EQ(metrics->GetFontCharMetricsCount(), 1);
  EXPECT_EQ(metrics->GetFontCharMetricsAt(0), &character);
  EXPECT_EQ(metrics->GetFontCompCharDataCount(), 2);
  EXPECT_EQ(metrics->GetFontCompCharDataAt(0), nullptr);
  EXPECT_EQ(metrics->GetFontCompCharDataAt(1), &composite);
  EXPECT_EQ(metrics->GetFontPairKerningDataCount(), 1);
  EXPECT_EQ(metrics->GetFontPairKerningDataAt(0), &pair);
  EXPECT_EQ(metrics->GetFontTrackKerningDataCount(), 1);
  EXPECT_EQ(metrics->GetFontTrackKerningDataAt(0), &track);
}

TEST(FontMetrics, LocalizedNamesAreKeptInOrderWithDuplicates) {
  const auto metrics = Make();
  metrics->AddLocalizedFontName(L"Eins");
  metrics->AddLocalizedFontName(nullptr);
  metrics->AddLocalizedFontName(L"");
  metrics->AddLocalizedFontName(L"Zwei");
  metrics->AddLocalizedFontName(L"Eins");
  ASSERT_EQ(metrics->GetLocalizedFontNameCount(), 3);
  EXPECT_STREQ(metrics->GetLocalizedFontNameAt(1), L"Zwei");
  EXPECT_EQ(metrics->GetLocalizedNames(), (std::vector<std::wstring>{L"Eins", L"Zwei", L"Eins"}));
}

TEST(FontMetrics, LocalizedNamesAreFoundCaseSensitivelyWithoutTheVerticalMark) {
  const auto metrics = Make();
  metrics->AddLocalizedFontName(L"Eins");
  metrics->AddLocalizedFontName(L"@Zwei");
  metrics->AddLocalizedFontName(L"Eins");
  EXPECT_EQ(metrics->FindLocalizedFontName(L"Eins"), 0);
  EXPECT_EQ(metrics->FindLocalizedFontName(L"@Eins"), 0);
  EXPECT_EQ(metrics->FindLocalizedFontName(L"eins"), -1);
  EXPECT_EQ(metrics->FindLocalizedFontName(L"@@Zwei"), 1);
  EXPECT_EQ(metrics->FindLocalizedFontName(L"@Zwei"), -1);
  EXPECT_EQ(metrics->FindLocalizedFontName(L"@"), -1);
  EXPECT_EQ(metrics->FindLocalizedFontName(L""), -1);
  EXPECT_EQ(metrics->FindLocalizedFontName(nullptr), -1);
}

TEST(FontMetrics, FixedBytesAreWidenedWithTheirSign) {
  wchar_t wide[6] = {1, 1, 1, 1, 1, 1};
  CFontMetrics::AnsiToUnicode("A\x7F\x80\xFF", wide);
  EXPECT_EQ(wide[0], 0x41);
  EXPECT_EQ(wide[1], 0x7F);
  EXPECT_EQ(wide[2], 0xFF80);
  EXPECT_EQ(wide[3], 0xFFFF);
  EXPECT_EQ(wide[4], 0);
  EXPECT_EQ(wide[5], 1);
}

TEST(PostscriptFontMetrics, HasNoTrueTypeFile) {
  const auto metrics = std::make_unique<CPostscriptFontMetrics>();
  EXPECT_EQ(metrics->GetTTFile(), nullptr);
  EXPECT_EQ(metrics->GetFontType(), CFontMetrics::FontTypeTrueType);
}

}  // namespace
