#include "fonts/FontData.h"
#include "fonts/TrueTypeCMap.h"
#include "fonts/TrueTypeFont.h"
#include "fonts/TrueTypeHMtx.h"
#include "fonts/TrueTypeTables.h"
#include "support/ScopedEnvironment.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using zebtest::Asked;
using zebtest::FontBytes;
using zebtest::TrueTypeBuilder;
using zebtest::TrueTypeFont;

constexpr Asked kUnicode = {nullptr, true};

/// The key that reading the font ends with.
std::wstring Failure(const TrueTypeBuilder& font, const Asked& asked = {}) {
  return TrueTypeFont(font, asked).Failure();
}

TEST(TrueTypeReader, FillsTheMetrics) {
  const TrueTypeFont font{TrueTypeBuilder()};
  ASSERT_EQ(font.Failure(), L"");
  const CFontMetrics& metrics = font.Metrics();
  EXPECT_STREQ(metrics.GetBaseFont(), L"Probe Regular");
  EXPECT_STREQ(metrics.GetFontFamilyName(), L"Probe");
  EXPECT_STREQ(metrics.GetTTName(), L"Probe-Regular");
  EXPECT_EQ(metrics.GetFontType(), CFontMetrics::FontTypeTrueType);
  EXPECT_EQ(metrics.GetFontEmbedding(), CFontMetrics::EmbedSingleByte);
  // (400 / 65)^2 + 50 = 87.87
  EXPECT_EQ(metrics.GetStemVW(), 87);
  EXPECT_EQ(metrics.GetStemHW(), 0);
  EXPECT_EQ(metrics.GetItalicAngle(), 0.0F);
  EXPECT_FALSE(metrics.GetFixedPitch());
  // Thousandths of 2048, rounded half away from zero: -48.8, -244.1, 732.4, 781.25.
  EXPECT_EQ(metrics.GetBBoxLLX(), -49.0F);
  EXPECT_EQ(metrics.GetBBoxLLY(), -244.0F);
  EXPECT_EQ(metrics.GetBBoxURX(), 732.0F);
  EXPECT_EQ(metrics.GetBBoxURY(), 781.0F);
  EXPECT_EQ(metrics.GetUnderlinePosition(), -73);
  EXPECT_EQ(metrics.GetUnderlineThickness(), 49);
  EXPECT_EQ(metrics.GetAscender(), 732);
  EXPECT_EQ(metrics.GetDescender(), -220);
  EXPECT_EQ(metrics.GetCapHeight(), 684);
  EXPECT_EQ(metrics.GetXHeight(), 488);
  EXPECT_EQ(metrics.GetBold(), 400);
  EXPECT_FALSE(metrics.GetItalic());
  EXPECT_TRUE(metrics.GetBoldFont());
  EXPECT_TRUE(metrics.GetItalicFont());
  EXPECT_FALSE(metrics.GetSymbolFont());
  EXPECT_STREQ(metrics.GetEncoding(), L"winansi1252");
  EXPECT_STREQ(metrics.GetEncodingScheme(), L"AdobeStandardEncoding");
  EXPECT_FALSE(metrics.GetUnicodeFont());
  EXPECT_EQ(metrics.GetFirstChar(), 0);
  EXPECT_EQ(metrics.GetLastChar(), 255);
  EXPECT_EQ(metrics.GetFlags(), 32);
  EXPECT_EQ(metrics.GetFontData()->Tell(), 0);
}

TEST(TrueTypeReader, KeepsTheFileAsItIs) {
  const std::vector<unsigned char> bytes = TrueTypeBuilder().Build();
  const TrueTypeFont font(bytes);
  CFontData& data = *font.Metrics().GetFontData();
  ASSERT_EQ(data.GetLength(), static_cast<int>(bytes.size()));
  EXPECT_EQ(std::memcmp(data.GetData(), bytes.data(), bytes.size()), 0);
}

TEST(TrueTypeReader, GivesSingleBytesTheWidthOfTheirCharacters) {
  const TrueTypeFont font{TrueTypeBuilder()};
  const CFontMetrics& metrics = font.Metrics();
  // Truncated: 1200 * 1000 / 2048 = 585.9, 1300: 634.8, 500: 244.1, glyph 0: 488.3.
  EXPECT_EQ(metrics.GetWidthAt('A'), 585);
  EXPECT_EQ(metrics.GetWidthAt('B'), 634);
  EXPECT_EQ(metrics.GetWidthAt(' '), 244);
  // A no-break space is a space.
  EXPECT_EQ(metrics.GetWidthAt(160), 244);
  unsigned short glyph = 0;
  EXPECT_TRUE(metrics.FindGlyphIndex('A', glyph));
  EXPECT_EQ(glyph, 3);
  EXPECT_TRUE(metrics.FindGlyphIndex(160, glyph));
  EXPECT_EQ(glyph, 2);
  EXPECT_EQ(font.File().GetTabHMtx()->GetEntryAt(2)->GetCodes(), (std::vector<unsigned short>{32, 160}));
}

TEST(TrueTypeReader, FixedBehaviourACharacterWithoutGlyphHasTheWidthOfGlyph0AndNoMapEntry) {
  const TrueTypeFont font{TrueTypeBuilder()};
  EXPECT_EQ(font.Metrics().GetWidthAt('C'), 488);
  unsigned short glyph = 77;
  EXPECT_FALSE(font.Metrics().FindGlyphIndex('C', glyph));
  EXPECT_EQ(glyph, 77);
  EXPECT_TRUE(font.File().GetTabHMtx()->GetEntryAt(0)->GetCodes().empty());
}

TEST(TrueTypeReader, GivesUnicodeFontsTheCodesOfTheirSegments) {
  const TrueTypeFont font(TrueTypeBuilder(), kUnicode);
  ASSERT_EQ(font.Failure(), L"");
  CFontMetrics& metrics = font.Metrics();
  EXPECT_STREQ(metrics.GetEncoding(), L"cid");
  EXPECT_STREQ(metrics.GetEncodingScheme(), L"Identity-H");
  EXPECT_EQ(metrics.GetCharColl(), CFontMetrics::CharCollIdentity);
  EXPECT_TRUE(metrics.GetUnicodeFont());
  EXPECT_EQ(metrics.GetFontEmbedding(), CFontMetrics::EmbedSubset);
  EXPECT_EQ(metrics.GetFirstChar(), 0x20);
  EXPECT_EQ(metrics.GetLastChar(), 0x42);
  EXPECT_EQ(metrics.GetFlags(), 4);
  EXPECT_EQ(metrics.GetWidthAt(0x1F), 0);
  EXPECT_EQ(metrics.GetWidthAt(0x20), 244);
  EXPECT_EQ(metrics.GetWidthAt(0x21), 488);
  EXPECT_EQ(metrics.GetWidthAt(0x42), 634);
  EXPECT_EQ(metrics.GetWidthAt(0x43), 0);
  EXPECT_EQ(metrics.MapChar('B'), 3);
  EXPECT_EQ(metrics.MapChar('A'), 4);
  EXPECT_EQ(metrics.GetWidthOfUsedGlyph(3), 635);
}

TEST(TrueTypeReader, AFontForbidsEmbeddingOnlyWithTheValue2Fixed) {
  TrueTypeBuilder font;
  font.fsType = 2;
  EXPECT_EQ(Failure(font), L"FontEmbeddingNotAllowed");
  for (const unsigned fsType : {0U, 4U, 8U, 6U, 10U, 0x102U}) {
    font.fsType = fsType;
    EXPECT_EQ(Failure(font), L"") << fsType;
  }
}

TEST(TrueTypeReader, RefusesFontsThatLackATable) {
  for (const char* tag : {"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "name", "post", "OS/2"}) {
    TrueTypeBuilder font;
    font.Remove(tag);
    EXPECT_EQ(Failure(font), L"TrueTypeCreationFailed") << tag;
  }
}

TEST(TrueTypeReader, RefusesPostScriptOutlines) {
  TrueTypeBuilder font;
  font.version = 0x4F54544F;
  font.Remove("glyf");
  font.Remove("loca");
  font.Replace("CFF ", {1, 0, 4, 1});
  const TrueTypeFont read(font);
  EXPECT_EQ(read.Failure(), L"TrueTypeCreationFailed");
  EXPECT_EQ(read.Metrics().GetFontType(), CFontMetrics::FontTypeOpenType);
  EXPECT_EQ(read.Metrics().GetTTFile(), nullptr);
}

TEST(TrueTypeReader, PostScriptOutlinesBesideTheOthersOnlyChangeTheKind) {
  TrueTypeBuilder font;
  font.Replace("CFF ", {1, 0, 4, 1});
  const TrueTypeFont read(font);
  EXPECT_EQ(read.Failure(), L"");
  EXPECT_EQ(read.Metrics().GetFontType(), CFontMetrics::FontTypeOpenType);
}

TEST(TrueTypeReader, RefusesBitmapFonts) {
  TrueTypeBuilder font;
  font.Replace("bhed", {0});
  font.Remove("head");
  EXPECT_EQ(Failure(font), L"BitmapMACFontUnsupported");
}

TEST(TrueTypeReader, RefusesACollectionGivenByPathFixed) {
  EXPECT_EQ(TrueTypeFont(TrueTypeBuilder::BuildCollection({TrueTypeBuilder()})).Failure(),
            L"TrueTypeCreationFailed");
}

TEST(TrueTypeReader, RefusesAFontWithoutWindowsMap) {
  TrueTypeBuilder font;
  font.cmaps = {{1, 0, FontBytes().U16s({0, 262, 0}).Zeros(256).Bytes()}};
  EXPECT_EQ(Failure(font), L"IncorrectTrueTypeFile");
  font.cmaps.clear();
  EXPECT_EQ(Failure(font), L"IncorrectTrueTypeFile");
}

TEST(TrueTypeReader, WeightsBelow700AreAlwaysImitatedFixed) {
  TrueTypeBuilder font;
  font.weightClass = 700;
  font.fsSelection = 0x20;
  Asked asked;
  asked.bold = 700;
  const TrueTypeFont bold(font, asked);
  EXPECT_TRUE(bold.Metrics().GetBoldFont());
  EXPECT_EQ(bold.Metrics().GetBold(), 700);
  // (700 / 65)^2 + 50 = 165.98
  EXPECT_EQ(bold.Metrics().GetStemVW(), 165);

  asked.bold = 600;
  font.weightClass = 600;
  const TrueTypeFont halfBold(font, asked);
  EXPECT_FALSE(halfBold.Metrics().GetBoldFont());
  EXPECT_EQ(halfBold.Metrics().GetBold(), 600);
  EXPECT_EQ(halfBold.Metrics().GetStemVW(), 165);

  asked.bold = 300;
  const TrueTypeFont light(font, asked);
  EXPECT_FALSE(light.Metrics().GetBoldFont());
  EXPECT_EQ(light.Metrics().GetBold(), 300);
  EXPECT_EQ(light.Metrics().GetStemVW(), 165);
}

TEST(TrueTypeReader, ImitatesStylesThatTheFaceLacks) {
  Asked asked;
  asked.bold = 700;
  asked.italic = true;
  TrueTypeBuilder font;
  const TrueTypeFont regular(font, asked);
  EXPECT_FALSE(regular.Metrics().GetBoldFont());
  EXPECT_FALSE(regular.Metrics().GetItalicFont());
  EXPECT_TRUE(regular.Metrics().GetItalic());
  EXPECT_EQ(regular.Metrics().GetItalicAngle(), -12.0F);
  EXPECT_EQ(regular.Metrics().GetStemVW(), 165);
  // Italic, force bold, non-symbolic.
  EXPECT_EQ(regular.Metrics().GetFlags(), 0x40000 + 64 + 32);

  font.fsSelection = 0x21;
  font.italicAngle = -(9 * 65536 + 32768);
  const TrueTypeFont boldItalic(font, asked);
  EXPECT_TRUE(boldItalic.Metrics().GetBoldFont());
  EXPECT_TRUE(boldItalic.Metrics().GetItalicFont());
  EXPECT_EQ(boldItalic.Metrics().GetItalicAngle(), -9.5F);
}

TEST(TrueTypeReader, FallsBackWhereHeightsAreMissing) {
  TrueTypeBuilder font;
  font.unitsPerEm = 1000;
  font.typoAscender = 0;
  font.typoDescender = 0;
  font.os2Version = 1;
  const TrueTypeFont withoutHeights(font);
  EXPECT_EQ(withoutHeights.Metrics().GetAscender(), 1600);
  EXPECT_EQ(withoutHeights.Metrics().GetDescender(), -400);
  EXPECT_EQ(withoutHeights.Metrics().GetCapHeight(), 1600);
  EXPECT_EQ(withoutHeights.Metrics().GetXHeight(), 1056);

  font.os2Version = 2;
  font.sCapHeight = 0;
  font.sxHeight = 0;
  font.typoAscender = 757;
  const TrueTypeFont zeroHeights(font);
  EXPECT_EQ(zeroHeights.Metrics().GetCapHeight(), 757);
  // 499.62
  EXPECT_EQ(zeroHeights.Metrics().GetXHeight(), 499);

  font.Replace("PCLT", FontBytes().Zeros(10).U16(510).Zeros(4).U16(690).Zeros(34).U8(0x40).U8(0).Bytes());
  const TrueTypeFont withPCLT(font);
  EXPECT_EQ(withPCLT.Metrics().GetCapHeight(), 690);
  EXPECT_EQ(withPCLT.Metrics().GetXHeight(), 510);
  EXPECT_FALSE(withPCLT.File().GetTabPCLT()->serif);
}

TEST(TrueTypeReader, TheEncodingThatIsAskedForDecides) {
  Asked asked;
  asked.encoding = L"1250";
  const TrueTypeFont central(TrueTypeBuilder(), asked);
  EXPECT_STREQ(central.Metrics().GetEncoding(), L"winansi1250");
  EXPECT_STREQ(central.Metrics().GetEncodingScheme(), L"AdobeStandardEncoding");
  // 0xE8 is c with caron there.
  EXPECT_EQ(central.Metrics().GetUnicodeAt(0xE8), 0x010D);

  asked.encoding = L"winansi1252";
  const TrueTypeFont western(TrueTypeBuilder(), asked);
  EXPECT_STREQ(western.Metrics().GetEncodingScheme(), L"AdobeStandardEncoding");
  EXPECT_EQ(western.Metrics().GetUnicodeAt(0xE8), 0x00E8);
}

TEST(TrueTypeReader, AnyOtherEncodingSetsNoSchemeFixed) {
  Asked asked;
  for (const wchar_t* encoding : {L"", L"1252"}) {
    asked.encoding = encoding;
    const TrueTypeFont other(TrueTypeBuilder(), asked);
    EXPECT_STREQ(other.Metrics().GetEncoding(), L"winansi1252");
    EXPECT_STREQ(other.Metrics().GetEncodingScheme(), L"");
  }
}

TEST(TrueTypeReader, TheEncodingOfTheMetricsThemselvesMayBeAskedFor) {
  TrueTypeFont font(TrueTypeBuilder(), kUnicode);
  Asked asked;
  asked.encoding = font.Metrics().GetEncoding();
  font.Read(TrueTypeBuilder().Build(), asked);
  // "cid" is no encoding of single bytes, so it sets none.
  EXPECT_STREQ(font.Metrics().GetEncoding(), L"winansi1252");
  EXPECT_STREQ(font.Metrics().GetEncodingScheme(), L"Identity-H");
}

TrueTypeBuilder SymbolFont() {
  TrueTypeBuilder font;
  font.firstCharIndex = 0xF020;
  font.cmaps = {{3, 0, TrueTypeBuilder::Format4({{0xF041, 0xF042, 3U - 0xF041U, 0}})}};
  return font;
}

TEST(TrueTypeReader, ASymbolFontHasItsCodesInTheSymbolPage) {
  const TrueTypeFont font(SymbolFont(), kUnicode);
  ASSERT_EQ(font.Failure(), L"");
  const CFontMetrics& metrics = font.Metrics();
  EXPECT_TRUE(metrics.GetSymbolFont());
  EXPECT_STREQ(metrics.GetEncoding(), L"fontspecific");
  EXPECT_STREQ(metrics.GetEncodingScheme(), L"FontSpecific");
  EXPECT_EQ(metrics.GetFirstChar(), 0xF041);
  EXPECT_EQ(metrics.GetLastChar(), 0xF042);
  EXPECT_EQ(metrics.GetFlags(), 4);
  EXPECT_FALSE(metrics.GetUnicodeFont());
  unsigned short glyph = 0;
  EXPECT_TRUE(metrics.FindGlyphIndex(0x41, glyph));
  EXPECT_EQ(glyph, 3);
  EXPECT_EQ(metrics.GetWidthAt(0x41), 585);
}

TEST(TrueTypeReader, ASingleByteSymbolFontReadsBackNoWidthsFixed) {
  const TrueTypeFont font{SymbolFont()};
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_TRUE(font.Metrics().GetSymbolFont());
  EXPECT_EQ(font.Metrics().GetFirstChar(), 0);
  EXPECT_EQ(font.Metrics().GetLastChar(), 255);
  EXPECT_EQ(font.Metrics().GetWidthAt(0x41), 0);
  // The code 0x41 was entered without the page, and is looked up with it.
  unsigned short glyph = 9;
  EXPECT_FALSE(font.Metrics().FindGlyphIndex(0x41, glyph));
  EXPECT_EQ(font.File().GetTabHMtx()->GetEntryAt(3)->GetCodes(), (std::vector<unsigned short>{0x41}));
}

TEST(TrueTypeReader, TheMarkOfASymbolFontOutlivesAReadingFixed) {
  TrueTypeFont font{SymbolFont()};
  ASSERT_TRUE(font.Metrics().GetSymbolFont());
  TrueTypeBuilder plain;
  plain.cmaps = {
      {3, 1, TrueTypeBuilder::Format4({{0x41, 0x41, 3U - 0x41U, 0}, {0x20AC, 0x20AC, 4U - 0x20ACU, 0}})}};
  font.Read(plain.Build());
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_TRUE(font.Metrics().GetSymbolFont());
  // The glyphs go by the characters of the encoding all the same: 0x80 is the Euro sign.
  EXPECT_EQ(font.File().GetTabHMtx()->GetEntryAt(3)->GetCodes(), (std::vector<unsigned short>{0x41}));
  EXPECT_EQ(font.File().GetTabHMtx()->GetEntryAt(4)->GetCodes(), (std::vector<unsigned short>{0x80}));
}

TEST(TrueTypeReader, TheCodesOfASymbolFontLieInThePageOfItsFirstCharacter) {
  TrueTypeBuilder font = SymbolFont();
  font.firstCharIndex = 0xF1AB;
  font.cmaps = {{3, 0, TrueTypeBuilder::Format4({{0xF141, 0xF141, 3U - 0xF141U, 0}})}};
  const TrueTypeFont read(font);
  EXPECT_EQ(read.File().GetTabHMtx()->GetEntryAt(3)->GetCodes(), (std::vector<unsigned short>{0x41}));
}

TEST(TrueTypeReader, AGlyphBehindTheLastIsTheLastFixed) {
  TrueTypeBuilder font;
  font.cmaps = {{3, 1, TrueTypeBuilder::Format4({{0x41, 0x41, 500U - 0x41U, 0}})}};
  const TrueTypeFont read(font, kUnicode);
  EXPECT_EQ(read.Metrics().GetWidthAt('A'), 634);
  unsigned short glyph = 0;
  EXPECT_TRUE(read.Metrics().FindGlyphIndex('A', glyph));
  EXPECT_EQ(glyph, 4);
}

TEST(TrueTypeReader, TheFullNameStandsInForAPostScriptName) {
  TrueTypeBuilder font;
  font.names.pop_back();
  EXPECT_STREQ(TrueTypeFont(font).Metrics().GetTTName(), L"Probe Regular");
}

TEST(TrueTypeReader, WrongArguments) {
  TrueTypeFont font;
  font.ReadFile(L"");
  EXPECT_EQ(font.Failure(), L"WrongParameter");
  font.ReadFace(L"");
  EXPECT_EQ(font.Failure(), L"WrongParameter");
  font.ReadFace(std::wstring(33, L'x'));
  EXPECT_EQ(font.Failure(), L"WrongParameter");
  font.ReadFace(std::wstring(32, L'x'));
  EXPECT_EQ(font.Failure(), L"TrueTypeCreationFailed");
  font.Information();
  const std::wstring none = zebtest::RaisedKey(
      [&] { font.Information().ReadTT(nullptr, nullptr, nullptr, true, false, 400, false); });
  EXPECT_EQ(none, L"WrongParameter");
}

TEST(TrueTypeReader, UnreadableFiles) {
  const zebtest::TempDir folder;
  TrueTypeFont font;
  font.ReadFile(folder.WideFile("missing.ttf"));
  EXPECT_EQ(font.Failure(), L"ReadFileFailure");
  font.ReadFile(folder.WidePath());
  EXPECT_EQ(font.Failure(), L"ReadFileFailure");
  font.Read({});
  EXPECT_EQ(font.Failure(), L"ReadFileFailure");
}

TEST(TrueTypeReader, ARefusedFontLeavesItsBytesAndTheNextOneIsRead) {
  TrueTypeBuilder forbidden;
  forbidden.fsType = 2;
  TrueTypeFont font(forbidden);
  EXPECT_EQ(font.Failure(), L"FontEmbeddingNotAllowed");
  EXPECT_EQ(font.Metrics().GetFontData()->GetLength(), static_cast<int>(forbidden.Build().size()));
  EXPECT_EQ(font.Metrics().GetTTFile(), nullptr);
  font.Read(TrueTypeBuilder().Build());
  EXPECT_EQ(font.Failure(), L"");
  EXPECT_EQ(font.Metrics().GetFontData()->GetLength(), static_cast<int>(TrueTypeBuilder().Build().size()));
  EXPECT_NE(font.Metrics().GetTTFile(), nullptr);
}

TEST(TrueTypeReader, DataThatIsThereCanBeParsedAgain) {
  TrueTypeFont font{TrueTypeBuilder()};
  font.ReadAgain(nullptr, kUnicode);
  EXPECT_EQ(font.Failure(), L"");
  EXPECT_STREQ(font.Metrics().GetEncoding(), L"cid");
  EXPECT_EQ(font.File().GetTabMaxp()->numGlyphs, 5);
  TrueTypeFont empty;
  empty.ReadAgain(L"Probe");
  EXPECT_EQ(empty.Failure(), L"IncorrectTrueTypeFile");
}

TEST(TrueTypeReader, ParsingAgainFindsTheFontOfACollection) {
  TrueTypeBuilder other;
  other.names[2].text = L"Other Regular";
  other.glyphs[3].width = 2048;
  std::vector<unsigned char> bytes = TrueTypeBuilder::BuildCollection({TrueTypeBuilder(), other});
  TrueTypeFont font;
  font.Read(bytes);
  EXPECT_EQ(font.Failure(), L"TrueTypeCreationFailed");
  font.ReadAgain(L"@OTHER regular");
  EXPECT_EQ(font.Failure(), L"");
  EXPECT_STREQ(font.Metrics().GetBaseFont(), L"Other Regular");
  EXPECT_EQ(font.Metrics().GetWidthAt('A'), 1000);
  font.ReadAgain(L"Third");
  EXPECT_EQ(font.Failure(), L"TrueTypeCreationFailed");
  font.ReadAgain(nullptr);
  EXPECT_EQ(font.Failure(), L"TrueTypeCreationFailed");
}

// The encoding's name is reset before the tables are held against it, the tables are not.
TEST(TrueTypeReader, FixedTheCharactersOfAnEarlierReadingStay) {
  Asked central;
  central.encoding = L"1250";
  TrueTypeFont font(TrueTypeBuilder(), central);
  font.Read(TrueTypeBuilder().Build());
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_STREQ(font.Metrics().GetEncoding(), L"winansi1252");
  EXPECT_EQ(font.Metrics().GetUnicodeAt(0xE8), 0x010D);
}

TEST(TrueTypeReader, ParsingAgainChangesTheCharacters) {
  Asked central;
  central.encoding = L"1250";
  TrueTypeFont font(TrueTypeBuilder(), central);
  font.ReadAgain(nullptr);
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_STREQ(font.Metrics().GetEncoding(), L"winansi1252");
  EXPECT_EQ(font.Metrics().GetUnicodeAt(0xE8), 0x00E8);
}

TEST(TrueTypeReader, ParsingAgainDoesNotResetTheMetrics) {
  TrueTypeFont font{TrueTypeBuilder()};
  font.Metrics().SetStemHW(5);
  font.Metrics().SetFontType(CFontMetrics::FontTypeType1);
  font.ReadAgain(nullptr);
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_EQ(font.Metrics().GetStemHW(), 5);
  EXPECT_EQ(font.Metrics().GetFontType(), CFontMetrics::FontTypeTrueType);
  font.Read(TrueTypeBuilder().Build());
  EXPECT_EQ(font.Metrics().GetStemHW(), 0);
}

TEST(TrueTypeReader, FixedAPathWinsOverDataThatIsThere) {
  const zebtest::TempDir folder;
  TrueTypeFont font{TrueTypeBuilder()};
  font.Metrics().SetStemHW(5);
  TrueTypeBuilder wide;
  wide.glyphs[3].width = 2048;
  zebtest::WriteBytes(folder.File("wide.ttf"), wide.Build());
  EXPECT_EQ(zebtest::RaisedKey([&] {
              font.Information().ReadTT(nullptr, folder.WideFile("wide.ttf").c_str(), nullptr, false, true,
                                        400, false);
            }),
            L"");
  EXPECT_EQ(font.Metrics().GetWidthAt('A'), 1000);
  EXPECT_EQ(font.Metrics().GetStemHW(), 5);
}

TEST(TrueTypeReader, FixedASecondReadingAddsTheLocalizedNameAgain) {
  const zebtest::ScopedEnvironment language("LC_ALL", "C");
  TrueTypeFont font{TrueTypeBuilder()};
  font.ReadAgain(nullptr);
  ASSERT_EQ(font.Metrics().GetLocalizedFontNameCount(), 2);
  EXPECT_STREQ(font.Metrics().GetLocalizedFontNameAt(0), L"Probe Regular");
  EXPECT_STREQ(font.Metrics().GetLocalizedFontNameAt(1), L"Probe Regular");
}

TEST(TrueTypeReader, FixedACodeKeepsTheGlyphOfTheFirstReading) {
  TrueTypeFont font{TrueTypeBuilder()};
  TrueTypeBuilder other;
  other.cmaps = {{3, 1, TrueTypeBuilder::Format4({{0x41, 0x41, 4U - 0x41U, 0}})}};
  font.Read(other.Build());
  ASSERT_EQ(font.Failure(), L"");
  unsigned short glyph = 0;
  EXPECT_TRUE(font.Metrics().FindGlyphIndex('A', glyph));
  EXPECT_EQ(glyph, 3);
  EXPECT_EQ(font.Metrics().GetWidthAt('A'), 634);
  EXPECT_EQ(font.File().GetTabHMtx()->GetEntryAt(4)->GetCodes(), (std::vector<unsigned short>{0x41}));
}

}  // namespace
