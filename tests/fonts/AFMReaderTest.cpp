#include "fonts/FontData.h"
#include "fonts/ReadFont.h"
#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <string_view>

namespace {

using zebtest::Busy;
using zebtest::ReadFont;

/// A file with these lines in the global section, and these characters.
std::string File(std::string_view global, std::string_view characters = "C 32 ; WX 250 ; N space ;\n",
                 int count = 1) {
  return "StartFontMetrics 4.1\n" + std::string(global) + "\nStartCharMetrics " + std::to_string(count) +
         "\n" + std::string(characters) + "EndCharMetrics\nEndFontMetrics\n";
}

std::string Characters(std::string_view characters, int count = 1) { return File("", characters, count); }

TEST(AFMReader, EveryGlobalValueIsTaken) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("Comment any words : ; here\n"
                              "FontName Sample-Roman\nFullName Sample Roman\nFamilyName Sample\n"
                              "Weight Medium\nItalicAngle -15.5\nIsFixedPitch false\n"
                              "CharacterSet ExtendedRoman\nFontBBox -166.5 -225 1000 931\n"
                              "UnderlinePosition -101\nUnderlineThickness 51\nVersion 001.007\n"
                              "Notice Copyright nobody; all rights free.\n"
                              "EncodingScheme AdobeStandardEncoding\nCapHeight 718\nXHeight 523\n"
                              "Ascender 719\nDescender -207\nStdHW 76\nStdVW 88\nCharacters 1")),
            L"");
  EXPECT_STREQ(font->GetBaseFont(), L"Sample-Roman");
  EXPECT_STREQ(font->GetFontFamilyName(), L"");
  EXPECT_EQ(font->GetItalicAngle(), -15.5F);
  EXPECT_FALSE(font->GetFixedPitch());
  EXPECT_EQ(font->GetBBoxLLX(), -166.5F);
  EXPECT_EQ(font->GetBBoxLLY(), -225.0F);
  EXPECT_EQ(font->GetBBoxURX(), 1000.0F);
  EXPECT_EQ(font->GetBBoxURY(), 931.0F);
  EXPECT_EQ(font->GetUnderlinePosition(), -101);
  EXPECT_EQ(font->GetUnderlineThickness(), 51);
  EXPECT_STREQ(font->GetEncodingScheme(), L"AdobeStandardEncoding");
  EXPECT_EQ(font->GetCapHeight(), 718);
  EXPECT_EQ(font->GetXHeight(), 523);
  EXPECT_EQ(font->GetAscender(), 719);
  EXPECT_EQ(font->GetDescender(), -207);
  EXPECT_EQ(font->GetStemHW(), 76);
  EXPECT_EQ(font->GetStemVW(), 88);
  EXPECT_EQ(font->GetFontType(), CFontMetrics::FontTypeType1);
  EXPECT_EQ(font->GetFlags(), 0x20 | 0x40);
}

TEST(AFMReader, WhatTheFileDoesNotTellHasTheValuesOfAReader) {
  ReadFont font;
  font->SetAscender(1);
  font->SetFlags(12345);
  font->SetFixedPitch(true);
  ASSERT_EQ(font.AFMText(File("")), L"");
  EXPECT_EQ(font->GetAscender(), 800);
  EXPECT_EQ(font->GetDescender(), -200);
  EXPECT_EQ(font->GetCapHeight(), 700);
  EXPECT_EQ(font->GetXHeight(), 0);
  EXPECT_EQ(font->GetBBoxLLX(), -50.0F);
  EXPECT_EQ(font->GetUnderlinePosition(), -100);
  EXPECT_FALSE(font->GetFixedPitch());
  EXPECT_EQ(font->GetFlags(), 0x20);
  EXPECT_STREQ(font->GetEncodingScheme(), L"FontSpecific");
}

TEST(AFMReader, FixedStandardEncodingIsStoredAsAdobeStandardEncoding) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("EncodingScheme StandardEncoding")), L"");
  EXPECT_STREQ(font->GetEncodingScheme(), L"AdobeStandardEncoding");
  ReadFont other;
  ASSERT_EQ(other.AFMText(File("EncodingScheme ISO8859-1")), L"");
  EXPECT_STREQ(other->GetEncodingScheme(), L"ISO8859-1");
}

TEST(AFMReader, ASchemeSetBeforeStaysIfTheFileTellsNone) {
  ReadFont font;
  font->SetEncodingScheme(L"Mine");
  ASSERT_EQ(font.AFMText(File("")), L"");
  EXPECT_STREQ(font->GetEncodingScheme(), L"Mine");
}

TEST(AFMReader, FixedWhateverIsNotFalseIsFixedPitch) {
  for (const auto& [word, fixedPitch] :
       {std::pair{"false", false}, {"False", true}, {"true", true}, {"0", true}, {"falsely", true}}) {
    ReadFont font;
    ASSERT_EQ(font.AFMText(File("IsFixedPitch " + std::string(word))), L"") << word;
    EXPECT_EQ(font->GetFixedPitch(), fixedPitch) << word;
  }
}

TEST(AFMReader, ACharWidthMeansFixedPitch) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("CharWidth 600 0\nAscender 5")), L"");
  EXPECT_TRUE(font->GetFixedPitch());
  EXPECT_EQ(font->GetAscender(), 5);
}

TEST(AFMReader, TheWeightGivesTheStemIfTheFileHasNone) {
  for (const auto& [weight, stem] : {std::pair{"Light", 71},
                                     {"SemiBold", 135},
                                     {"Bold", 165},
                                     {"ExtraBold", 201},
                                     {"Black", 241},
                                     {"Medium", 109},
                                     {"bold", 109},
                                     {"Bold ", 109},
                                     {"Semi Bold", 109}}) {
    ReadFont font;
    ASSERT_EQ(font.AFMText(File("Weight " + std::string(weight))), L"") << weight;
    EXPECT_EQ(font->GetStemVW(), stem) << weight;
  }
  ReadFont none;
  ASSERT_EQ(none.AFMText(File("")), L"");
  EXPECT_EQ(none->GetStemVW(), 109);
  ReadFont zero;
  ASSERT_EQ(zero.AFMText(File("StdVW 0\nWeight \t Black")), L"");
  EXPECT_EQ(zero->GetStemVW(), 241);
  ReadFont told;
  ASSERT_EQ(told.AFMText(File("Weight Bold\nStdVW 84")), L"");
  EXPECT_EQ(told->GetStemVW(), 84);
}

TEST(AFMReader, TheStemOfAWeightMakesTheFontBold) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("Weight Bold")), L"");
  EXPECT_EQ(font->GetFlags(), 0x20 | 0x40000);
}

TEST(AFMReader, AFileThatEndsInTheGlobalSectionGetsNoStem) {
  ReadFont font;
  EXPECT_EQ(font.AFMText("StartFontMetrics 4.1\nWeight Bold\nAscender 7\n"), L"NoCharMetrics");
  EXPECT_EQ(font->GetStemVW(), 0);
  EXPECT_EQ(font->GetAscender(), 7);
}

TEST(AFMReader, EndFontMetricsEndsTheGlobalSection) {
  ReadFont font;
  EXPECT_EQ(font.AFMText("Weight Bold\nEndFontMetrics\n"), L"NoCharMetrics");
  EXPECT_EQ(font->GetStemVW(), 165);
}

TEST(AFMReader, EndFontMetricsEndsTheCharacters) {
  ReadFont font;
  EXPECT_EQ(font.AFMText("StartCharMetrics 1\nC 65 ; WX 7 ; N A ;\nEndFontMetrics\n"), L"");
  EXPECT_EQ(font->GetWidthAt(65), 7);
}

TEST(AFMReader, TheSchemeIsSetBeforeMissingCharactersAreRefused) {
  ReadFont font;
  EXPECT_EQ(font.AFMText("EndFontMetrics"), L"NoCharMetrics");
  EXPECT_STREQ(font->GetEncodingScheme(), L"FontSpecific");
}

TEST(AFMReader, FixedACountBehindEndFontMetricsBeginsCharacters) {
  ReadFont font;
  EXPECT_EQ(font.AFMText("EndFontMetrics 1 C 65 ; WX 444 ; N A ;"), L"");
  EXPECT_EQ(font->GetWidthAt(65), 444);
}

TEST(AFMReader, AWordThatTheReaderDoesNotKnowIsRefused) {
  for (const char* const line : {"MetricsSets 0", "EscChar 255", "IsBaseFont true", "VVector 0 0",
                                 "ascender 5", "MappingScheme 3", "CapHeigh 5", "-1"}) {
    ReadFont font;
    EXPECT_EQ(font.AFMText(File(line)), L"WrongGlobalIndentifier") << line;
  }
}

TEST(AFMReader, AWordOfAnotherSectionIsRefusedInTheGlobalOne) {
  for (const char* const word : {"B",
                                 "C",
                                 "CC",
                                 "EndCharMetrics",
                                 "EndComposites",
                                 "EndKernData",
                                 "EndKernPairs",
                                 "EndTrackKern",
                                 "KP",
                                 "KPX",
                                 "L",
                                 "N",
                                 "PCC",
                                 "StartComposites",
                                 "StartKernData",
                                 "StartKernPairs",
                                 "StartTrackKern",
                                 "TrackKern",
                                 "W",
                                 "WX"}) {
    ReadFont font;
    EXPECT_EQ(font.AFMText(File(word)), L"WrongGlobalIndentifier") << word;
  }
}

TEST(AFMReader, ARefusalEndsTheReadingWhereItIs) {
  ReadFont font;
  EXPECT_EQ(font.AFMText(File("Ascender 5\nMetricsSets 0\nDescender -5")), L"WrongGlobalIndentifier");
  EXPECT_EQ(font->GetAscender(), 5);
  EXPECT_EQ(font->GetDescender(), -200);
}

TEST(AFMReader, EveryValueOfACharacterIsTaken) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(Characters("C 102 ; WX 333 ; N f ; B 20 0 383 683 ; L i fi ; L l fl ;\n"
                                    "C -1 ; W 500 -7 ; N odd ;\n",
                                    2)),
            L"");
  ASSERT_EQ(font->GetFontCharMetricsCount(), 2);
  const CFontCharMetricsInfo& f = font.Record(0);
  EXPECT_EQ(f.GetCode(), 102);
  EXPECT_EQ(f.GetWX(), 333);
  EXPECT_EQ(f.GetWY(), 0);
  EXPECT_STREQ(f.GetName(), L"f");
  EXPECT_EQ(f.GetBBoxLLX(), 20.0F);
  EXPECT_EQ(f.GetBBoxLLY(), 0.0F);
  EXPECT_EQ(f.GetBBoxURX(), 383.0F);
  EXPECT_EQ(f.GetBBoxURY(), 683.0F);
  ASSERT_EQ(f.GetLigatureCount(), 2);
  EXPECT_STREQ(f.GetLigatureAt(0)->GetSuccessor(), L"i");
  EXPECT_STREQ(f.GetLigatureAt(0)->GetLigature(), L"fi");
  EXPECT_STREQ(f.GetLigatureAt(1)->GetSuccessor(), L"l");
  EXPECT_STREQ(f.GetLigatureAt(1)->GetLigature(), L"fl");
  const CFontCharMetricsInfo& odd = font.Record(1);
  EXPECT_EQ(odd.GetCode(), -1);
  EXPECT_EQ(odd.GetWX(), 500);
  EXPECT_EQ(odd.GetWY(), -7);
  EXPECT_EQ(odd.GetLigatureCount(), 0);
}

TEST(AFMReader, FixedBoxesOfCharactersAreReadAsIntegers) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(Characters("C 65 ; WX 10.9 ; B 1.9 -2.9 3.9 4.9 ;\n")), L"");
  EXPECT_EQ(font.Record(0).GetWX(), 10);
  EXPECT_EQ(font.Record(0).GetBBoxLLX(), 1.0F);
  EXPECT_EQ(font.Record(0).GetBBoxLLY(), -2.0F);
  EXPECT_EQ(font.Record(0).GetBBoxURX(), 3.0F);
  EXPECT_EQ(font.Record(0).GetBBoxURY(), 4.0F);
}

TEST(AFMReader, ACommentAmongCharactersIsSkippedToTheEndOfItsLine) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(Characters("Comment KPX A B 5 ; C 1\nC 65 ; WX 7 ;\n")), L"");
  EXPECT_EQ(font.Record(0).GetCode(), 65);
}

TEST(AFMReader, OtherWordsAmongCharactersAreRefused) {
  for (const char* const word : {"KPX A B 5", "CH <41>", "W0X 5", "W1 1 2", "VV 1 2", "Ascender 5", ":"}) {
    ReadFont font;
    EXPECT_EQ(font.AFMText(Characters("C 65 ; WX 7 ; " + std::string(word) + " ;\n")),
              L"WrongGlobalIndentifier")
        << word;
  }
}

TEST(AFMReader, MoreCharactersThanAnnouncedAreRefused) {
  ReadFont font;
  EXPECT_EQ(font.AFMText(Characters("C 65 ; WX 7 ;\nC 66 ; WX 8 ;\nC 67 ; WX 9 ;\n", 2)),
            L"TooManyCharacterCodes");
  EXPECT_EQ(font.Record(1).GetWX(), 8);
}

TEST(AFMReader, FewerCharactersThanAnnouncedLeaveEmptyRecords) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(Characters("C 65 ; WX 7 ; N A ;\n", 3)), L"");
  ASSERT_EQ(font->GetFontCharMetricsCount(), 3);
  EXPECT_EQ(font.Record(2).GetCode(), 0);
  EXPECT_STREQ(font.Record(2).GetName(), L"");
}

TEST(AFMReader, ValuesInFrontOfTheFirstCharacterAreThoseOfTheFirstRecord) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(Characters("WX 9 ; C 65 ; N A ;\n")), L"");
  EXPECT_EQ(font.Record(0).GetWX(), 9);
  EXPECT_EQ(font.Record(0).GetCode(), 65);
}

TEST(AFMReader, NoCharactersAreRefused) {
  for (const int count : {0, -1}) {
    ReadFont font;
    EXPECT_EQ(font.AFMText(Characters("", count)), L"NoCharMetrics") << count;
    EXPECT_EQ(font->GetFontCharMetricsCount(), 0);
  }
  ReadFont noNumber;
  EXPECT_EQ(noNumber.AFMText("StartCharMetrics many\nEndCharMetrics\n"), L"NoCharMetrics");
}

TEST(AFMReader, WidthsFollowTheNamesOfTheEncoding) {
  ReadFont font;
  ASSERT_EQ(
      font.AFMText(Characters("C 1 ; WX 11 ; N A ;\nC 66 ; WX 222 ; N Euro ;\nC 200 ; WX 3 ; N Lslash ;\n"
                              "C 5 ; WX 44 ; N space ;\nC 7 ; WX 55 ; N A ;\n",
                              5)),
      L"");
  EXPECT_EQ(font->GetWidthAt(65), 11) << "the first record of a name counts";
  EXPECT_EQ(font->GetWidthAt(128), 222);
  EXPECT_EQ(font->GetWidthAt(66), 44) << "no record has this name: the width of the space";
  EXPECT_EQ(font->GetWidthAt(1), 44);
  EXPECT_EQ(font->GetWidthAt(255), 44);
  EXPECT_EQ(font->GetWidthAt(256), 0);
}

TEST(AFMReader, WithoutASpaceTheDefaultWidthIs250) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(Characters("C 65 ; WX 7 ; N A ;\n")), L"");
  EXPECT_EQ(font->GetWidthAt(65), 7);
  EXPECT_EQ(font->GetWidthAt(32), 250);
  EXPECT_EQ(font->GetWidthAt(66), 250);
}

TEST(AFMReader, TheFirstSpaceGivesTheDefaultWidth) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(Characters("C 5 ; WX 44 ; N space ;\nC 32 ; WX 55 ; N space ;\n", 2)), L"");
  EXPECT_EQ(font->GetWidthAt(32), 44);
  EXPECT_EQ(font->GetWidthAt(66), 44);
}

TEST(AFMReader, ACodeWithoutNameTakesTheDefaultThoughARecordHasNoName) {
  ReadFont font;
  font->SetCharNameAt(65, L"");
  ASSERT_EQ(font.AFMText(Characters("C 65 ; WX 7 ;\n")), L"");
  EXPECT_EQ(font->GetWidthAt(65), 250);
}

TEST(AFMReader, NamesThatTheCallerSetCount) {
  ReadFont font;
  font->SetCP1250Encoding();
  ASSERT_EQ(font.AFMText(Characters("C 65 ; WX 7 ; N Lslash ;\n")), L"");
  EXPECT_EQ(font->GetWidthAt(163), 7);
}

TEST(AFMReader, FixedASymbolFontHasTheDefaultWidthAtEveryCode) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("EncodingScheme FontSpecific", "C 65 ; WX 777 ; N a10 ;\n")), L"");
  for (int code = 0; code < 256; ++code) EXPECT_EQ(font->GetWidthAt(code), 250) << code;
}

TEST(AFMReader, FixedAnEncodingSetBeforeTheCallIsReset) {
  ReadFont font;
  font->SetEncoding(L"fontspecific");
  ASSERT_EQ(font.AFMText(Characters("C 66 ; WX 777 ; N A ;\n")), L"");
  EXPECT_STREQ(font->GetEncoding(), L"winansi1252");
  EXPECT_EQ(font->GetWidthAt(65), 777);
  EXPECT_EQ(font->GetWidthAt(66), 250);
}

TEST(AFMReader, AWidthBeyond16BitsWraps) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(Characters("C 65 ; WX 65537 ; N A ;\nC 66 ; WX -1 ; N B ;\n", 2)), L"");
  EXPECT_EQ(font->GetWidthAt(65), 1);
  EXPECT_EQ(font->GetWidthAt(66), 65535);
}

TEST(AFMReader, KerningAndCompositesArePassedOver) {
  ReadFont font;
  ASSERT_EQ(font.AFMText("StartCharMetrics 1\nC 65 ; WX 7 ; N A ;\nEndCharMetrics\n"
                         "StartKernData\nStartTrackKern 1\nTrackKern 0 6 0 72 0\nEndTrackKern\n"
                         "StartKernPairs 2\nKPX A y -40\nKP A B 1 2\nEndKernPairs\nEndKernData\n"
                         "StartComposites 1\nCC Aacute 2 ; PCC A 0 0 ; PCC acute 1 2 ;\nEndComposites\n"
                         "EndFontMetrics\n"),
            L"");
  EXPECT_EQ(font->GetFontPairKerningDataCount(), 0);
  EXPECT_EQ(font->GetFontTrackKerningDataCount(), 0);
  EXPECT_EQ(font->GetFontCompCharDataCount(), 0);
  EXPECT_EQ(font->GetWidthAt(65), 7);
}

TEST(AFMReader, AnyWordsStandBehindTheCharacters) {
  for (const char* const rest :
       {"", "Nonsense 5", "Comment no section", "StartKernPairs 0\nEndKernPairs", "StartKernPairs 1",
        "StartKernData", "StartComposites 1\nEndKernData EndFontMetrics", "StartTrackKern 3 EndKernPairs",
        "StartKernPairs"}) {
    ReadFont font;
    EXPECT_EQ(font.AFMText(Characters("C 65 ; WX 7 ; N A ;\n") + rest), L"") << rest;
    EXPECT_EQ(font->GetWidthAt(65), 7) << rest;
  }
}

TEST(AFMReader, TokensEndAtWhatSeparatesThem) {
  ReadFont font;
  ASSERT_EQ(font.AFMText("\r\n,; \tFontName\tA,B;Ascender:5\rDescender,Foo"), L"WrongGlobalIndentifier")
      << "a comma is part of a word";
  EXPECT_STREQ(font->GetBaseFont(), L"A,B");
  EXPECT_EQ(font->GetAscender(), 5) << "a colon behind a word is swallowed";
}

TEST(AFMReader, AColonAloneIsAToken) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("FontName :\nEncodingScheme: : \nVersion: 1")), L"");
  EXPECT_STREQ(font->GetBaseFont(), L":");
  EXPECT_STREQ(font->GetEncodingScheme(), L":");
}

TEST(AFMReader, ARestOfALineThatIsEmptyDoesNotTakeTheNext) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("Comment\nAscender 5\nNotice \t \r\nDescender -5\rFullName\r\nCapHeight 9")),
            L"");
  EXPECT_EQ(font->GetAscender(), 5);
  EXPECT_EQ(font->GetDescender(), -5);
  EXPECT_EQ(font->GetCapHeight(), 9);
}

TEST(AFMReader, NumbersAreWhatATokenBeginsWith) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("Ascender 12.9\nDescender -7x\nCapHeight x7\nXHeight +3\n"
                              "StdHW 99999999999999999999\nStdVW -99999999999")),
            L"");
  EXPECT_EQ(font->GetAscender(), 12);
  EXPECT_EQ(font->GetDescender(), -7);
  EXPECT_EQ(font->GetCapHeight(), 0);
  EXPECT_EQ(font->GetXHeight(), 3);
  EXPECT_EQ(font->GetStemHW(), 2147483647);
  EXPECT_EQ(font->GetStemVW(), -2147483647 - 1);
}

TEST(AFMReader, FixedDecimalsFollowTheNumericLocale) {
  const zebtest::ScopedLocale locale(LC_NUMERIC, zebtest::kCommaLocale);
  if (!locale.Ok()) GTEST_SKIP() << "the locale is not installed";
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("ItalicAngle -15.5")), L"");
  EXPECT_EQ(font->GetItalicAngle(), -15.0F);
}

TEST(AFMReader, BytesAreCharactersOfTheSameNumber) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("FontName \xE4\xFF\x01")), L"");
  EXPECT_STREQ(font->GetBaseFont(), L"\u00E4\u00FF\u0001");
}

TEST(AFMReader, FixedASecondFileFillsTheRecordsOfTheFirstAgain) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(Characters("C 65 ; WX 1 ; N A ; L x y ;\nC 66 ; WX 2 ; N B ;\n", 2)), L"");
  ASSERT_EQ(font.AFMText(Characters("C 67 ; WX 3 ; N C ;\n")), L"");
  ASSERT_EQ(font->GetFontCharMetricsCount(), 3);
  EXPECT_EQ(font.Record(0).GetCode(), 67);
  EXPECT_EQ(font.Record(0).GetLigatureCount(), 1);
  EXPECT_STREQ(font.Record(1).GetName(), L"B");
  EXPECT_STREQ(font.Record(2).GetName(), L"");
  EXPECT_EQ(font->GetWidthAt(66), 2);
  EXPECT_EQ(font->GetWidthAt(67), 3);
  EXPECT_EQ(font->GetWidthAt(65), 250);
}

TEST(AFMReader, ANullRecordOfTheCallerIsPassedOver) {
  ReadFont font;
  font->AddFontCharMetricsInfo(nullptr);
  ASSERT_EQ(font.AFMText(Characters("WX 5 ; C 65 ; N A ;\n")), L"");
  EXPECT_EQ(font.Record(1).GetCode(), 65);
  EXPECT_EQ(font->GetWidthAt(65), 5);
}

TEST(AFMReader, WithoutAPathTheParameterIsWrong) {
  ReadFont font;
  EXPECT_EQ(zebtest::RaisedKey([&] { font.Font().ReadAFM(nullptr); }), L"WrongParameter");
  EXPECT_EQ(zebtest::RaisedKey([&] { font.Font().ReadAFM(L""); }), L"WrongParameter");
}

TEST(AFMReader, MetricsWithAnOpenFileAreRefused) {
  ReadFont font;
  Busy::Set(font.Metrics(), 0);
  EXPECT_EQ(font.AFMText(File("")), L"WrongParameter");
  Busy::Set(font.Metrics(), -1);
  EXPECT_EQ(font.AFMText(File("")), L"");
}

TEST(AFMReader, AFileThatCannotBeReadIsAFailure) {
  ReadFont font;
  font->SetAscender(1);
  EXPECT_EQ(font.AFM(font.Dir().File("none.afm")), L"ReadFileFailure");
  EXPECT_EQ(font.AFM(font.Dir().Path()), L"ReadFileFailure");
  EXPECT_EQ(font->GetAscender(), 1) << "nothing is reset";
}

TEST(AFMReader, APathOfAnyCharactersOpens) {
  ReadFont font;
  const std::wstring path = font.Dir().WidePath() + L"\\Schrift \u00E4\u4E2D.afm";
  zebtest::WriteFile(font.Dir().Path() / u8"Schrift \u00E4\u4E2D.afm", File("Ascender 5"));
  EXPECT_EQ(zebtest::RaisedKey([&] { font.Font().ReadAFM(path.c_str()); }), L"");
  EXPECT_EQ(font->GetAscender(), 5);
}

TEST(AFMReader, AfterARefusalTheObjectReadsAgain) {
  ReadFont font;
  for (const char* const bad : {"StartCharMetrics 1 C 65 C 66", "MetricsSets 0", "StartCharMetrics 1 KPX"}) {
    EXPECT_NE(font.AFMText(bad), L"") << bad;
    EXPECT_EQ(font.AFMText(File("Ascender 5")), L"") << bad;
    EXPECT_EQ(font->GetAscender(), 5);
  }
}

TEST(AFMReader, TheMetricsOfAnAFMHaveNoProgram) {
  ReadFont font;
  ASSERT_EQ(font.AFMText(File("")), L"");
  EXPECT_EQ(font->GetFontData()->GetLength(), 0);
}

// Attack: a file of few bytes announces records for gigabytes.
TEST(AFMReader, AnAnnouncedCountIsBelievedAsFarAsTheFileCouldHoldIt) {
  ReadFont font;
  EXPECT_EQ(font.AFMText("StartCharMetrics 2147483647\nC 65 ; WX 7 ; N A ;\n"), L"");
  EXPECT_LE(font->GetFontCharMetricsCount(), 10);
  EXPECT_EQ(font->GetWidthAt(65), 7);
}

TEST(AFMReader, TheShortestCharactersAreNotTooMany) {
  ReadFont font;
  std::string characters;
  for (int i = 0; i < 100; ++i) characters += "C::";
  EXPECT_EQ(font.AFMText("StartCharMetrics 100 " + characters), L"");
  EXPECT_EQ(font->GetFontCharMetricsCount(), 100);
}

// Attack: words and lines longer than any buffer.
TEST(AFMReader, LongTokensAndLinesAreCut) {
  ReadFont font;
  const std::string lengthy(5000, 'x');
  ASSERT_EQ(font.AFMText(File("FontName " + lengthy + "\nWeight " + lengthy + "\nComment " + lengthy +
                              "\nAscender 5")),
            L"");
  EXPECT_EQ(std::wstring(font->GetBaseFont()), std::wstring(1023, L'x'));
  EXPECT_EQ(font->GetAscender(), 5);
  EXPECT_EQ(font->GetStemVW(), 109);
  ReadFont exact;
  ASSERT_EQ(exact.AFMText(File("FontName " + std::string(1023, 'y'))), L"");
  EXPECT_EQ(std::wstring(exact->GetBaseFont()), std::wstring(1023, L'y'));
}

TEST(AFMReader, ALongUnknownWordIsRefused) {
  ReadFont font;
  EXPECT_EQ(font.AFMText(File(std::string(100000, 'A'))), L"WrongGlobalIndentifier");
}

// Attack: the file stops anywhere.
TEST(AFMReader, AFileThatStopsAnywhereIsReadOrRefused) {
  const std::string whole =
      "StartFontMetrics 4.1\nComment c\nFontName N\nWeight Bold\nItalicAngle -1.5\nIsFixedPitch false\n"
      "FontBBox 1 2 3 4\nEncodingScheme StandardEncoding\nCharWidth 1 2\nStartCharMetrics 2\n"
      "C 65 ; WX 7 ; N A ; B 1 2 3 4 ; L x y ;\nC 66 ; W 8 9 ; N B ;\nComment "
      "d\nEndCharMetrics\nStartKernData\n"
      "StartKernPairs 1\nKPX A B 1\nEndKernPairs\nEndKernData\nStartComposites 1\nCC x\nEndComposites\n"
      "EndFontMetrics\n";
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    ReadFont font;
    const std::wstring key = font.AFMText(whole.substr(0, length));
    // A word that is cut is another word: "C" for "Comment" begins a third character.
    const bool known = key.empty() || key == L"WrongGlobalIndentifier" || key == L"NoCharMetrics" ||
                       key == L"TooManyCharacterCodes";
    EXPECT_TRUE(known) << length;
    const bool hasAll = length >= whole.find("EndCharMetrics") + 14;
    EXPECT_TRUE(!hasAll || key.empty()) << length;
  }
}

// Attack: separators alone, and no word at their end.
TEST(AFMReader, SeparatorsAtTheEndOfTheFileEndTheReading) {
  ReadFont font;
  EXPECT_EQ(font.AFMText(std::string(10000, ';')), L"NoCharMetrics");
  EXPECT_EQ(font.AFMText("StartCharMetrics 1 C 65" + std::string(10000, '\n')), L"");
}

}  // namespace
