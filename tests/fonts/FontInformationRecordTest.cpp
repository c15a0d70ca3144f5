#include "fonts/FontData.h"
#include "fonts/FontInformation.h"
#include "fonts/FontPool.h"
#include "fonts/PostscriptFontMetrics.h"
#include "fonts/ReadFont.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "foundation/XMLManager.h"
#include "support/Files.h"
#include "support/FontMachine.h"
#include "support/RaisedKey.h"
#include "support/RecordFixture.h"
#include "support/ScopedFontPool.h"
#include "support/TrueTypeBuilder.h"
#include "support/WidePath.h"
#include "support/XMLFailure.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;
using zebtest::LoadRecord;
using zebtest::ReadFont;
using zebtest::SaveRecord;
using zebtest::ScopedFontPool;

std::string Element(std::string_view name, std::string_view text) {
  if (text.empty()) return "<" + std::string(name) + "/>";
  return "<" + std::string(name) + ">" + std::string(text) + "</" + std::string(name) + ">";
}

std::string Widths(int value, int count = 256) {
  std::string widths;
  for (int i = 0; i < count; ++i) widths += Element("Widths", std::to_string(value));
  return widths;
}

/// The children of a record up to `StdHW`, of a PostScript font unless said otherwise.
std::string Scalars(std::string_view type = "0", std::string_view name = "Sample-Roman") {
  return Element("BaseFont", name) + "<Encoding>fontspecific</Encoding><Flags>34</Flags>" +
         Element("FontType", type) +
         "<TTName>SampleTT</TTName><EncodingScheme>FontSpecific</EncodingScheme><ItalicAngle>-12.5</"
         "ItalicAngle>"
         "<IsFixedPitch>1</IsFixedPitch><BBoxLLX>-10.0</BBoxLLX><BBoxLLY>-220.25</BBoxLLY><BBoxURX>1001.0</"
         "BBoxURX>"
         "<BBoxURY>931.0</BBoxURY><UnderlinePosition>-101</UnderlinePosition>"
         "<UnderlineThickness>51</UnderlineThickness><CapHeight>718</CapHeight><XHeight>523</XHeight>"
         "<Ascender>719</Ascender><Descender>-207</Descender><StdVW>88</StdVW><StdHW>76</StdHW>";
}

const std::string kCharacters =
    "<CharMetricsInfo><Code>102</Code><WX>333</WX><WY>-1</WY><Name>f</Name><BBoxLLX>20.0</BBoxLLX>"
    "<BBoxLLY>0.0</BBoxLLY><BBoxURX>383.5</BBoxURX><BBoxURY>683.0</BBoxURY>"
    "<Ligatures><Successor>i</Successor><Ligature>fi</Ligature></Ligatures>"
    "<Ligatures><Successor>l</Successor><Ligature>fl</Ligature></Ligatures></CharMetricsInfo>"
    "<CharMetricsInfo><Code>-1</Code><WX>0</WX><WY>0</WY><Name/><BBoxLLX>0.0</BBoxLLX>"
    "<BBoxLLY>0.0</BBoxLLY><BBoxURX>0.0</BBoxURX><BBoxURY>0.0</BBoxURY></CharMetricsInfo>";

const std::string kTail =
    "<UnicodeFont>0</UnicodeFont><Bold>400</Bold><FontFamilyName>Samples</FontFamilyName>";

std::string Record(std::string_view children) { return Element("FontInformation", children); }

std::string SampleRecord() {
  return Record(Scalars() + kCharacters + "<FirstChar>32</FirstChar><LastChar>255</LastChar>" + Widths(600) +
                kTail);
}

std::string BytesOf(const CFontData* data) {
  if (data == nullptr) return "none";
  return {data->GetData(), data->GetData() + data->GetLength()};
}

void Store(std::string_view name, std::string program) {
  CFontPool::GetInstance().SetFontData(zebtest::Widen(name).c_str(), L"Family", 400, false,
                                       reinterpret_cast<unsigned char*>(program.data()),
                                       static_cast<int>(program.size()), {});
}

TEST(FontInformationRecord, EveryFieldIsRead) {
  ReadFont font;
  LoadRecord(font.Font(), SampleRecord());
  EXPECT_STREQ(font->GetBaseFont(), L"Sample-Roman");
  EXPECT_STREQ(font->GetEncoding(), L"fontspecific");
  EXPECT_EQ(font->GetFlags(), 34);
  EXPECT_EQ(font->GetFontType(), CFontMetrics::FontTypeType1);
  EXPECT_STREQ(font->GetTTName(), L"SampleTT");
  EXPECT_STREQ(font->GetEncodingScheme(), L"FontSpecific");
  EXPECT_EQ(font->GetItalicAngle(), -12.5F);
  EXPECT_TRUE(font->GetFixedPitch());
  EXPECT_EQ(font->GetBBoxLLX(), -10.0F);
  EXPECT_EQ(font->GetBBoxLLY(), -220.25F);
  EXPECT_EQ(font->GetBBoxURX(), 1001.0F);
  EXPECT_EQ(font->GetBBoxURY(), 931.0F);
  EXPECT_EQ(font->GetUnderlinePosition(), -101);
  EXPECT_EQ(font->GetUnderlineThickness(), 51);
  EXPECT_EQ(font->GetCapHeight(), 718);
  EXPECT_EQ(font->GetXHeight(), 523);
  EXPECT_EQ(font->GetAscender(), 719);
  EXPECT_EQ(font->GetDescender(), -207);
  EXPECT_EQ(font->GetStemVW(), 88);
  EXPECT_EQ(font->GetStemHW(), 76);
  EXPECT_EQ(font->GetFirstChar(), 32);
  EXPECT_EQ(font->GetLastChar(), 255);
  EXPECT_EQ(font->GetWidthAt(0), 600);
  EXPECT_EQ(font->GetWidthAt(255), 600);
  EXPECT_EQ(font->GetWidthAt(256), 0);
  EXPECT_FALSE(font->GetUnicodeFont());
  EXPECT_EQ(font->GetBold(), 400);
  EXPECT_FALSE(font->GetItalic());
  EXPECT_STREQ(font->GetFontFamilyName(), L"Samples");
}

TEST(FontInformationRecord, CharactersAreRead) {
  ReadFont font;
  LoadRecord(font.Font(), SampleRecord());
  ASSERT_EQ(font->GetFontCharMetricsCount(), 2);
  EXPECT_EQ(font.Record(0).GetCode(), 102);
  EXPECT_EQ(font.Record(0).GetWX(), 333);
  EXPECT_EQ(font.Record(0).GetWY(), -1);
  EXPECT_STREQ(font.Record(0).GetName(), L"f");
  EXPECT_EQ(font.Record(0).GetBBoxLLX(), 20.0F);
  EXPECT_EQ(font.Record(0).GetBBoxLLY(), 0.0F);
  EXPECT_EQ(font.Record(0).GetBBoxURX(), 383.5F);
  EXPECT_EQ(font.Record(0).GetBBoxURY(), 683.0F);
  ASSERT_EQ(font.Record(0).GetLigatureCount(), 2);
  EXPECT_STREQ(font.Record(0).GetLigatureAt(1)->GetSuccessor(), L"l");
  EXPECT_STREQ(font.Record(0).GetLigatureAt(1)->GetLigature(), L"fl");
  EXPECT_EQ(font.Record(1).GetCode(), -1);
  EXPECT_EQ(font.Record(1).GetLigatureCount(), 0);
}

TEST(FontInformationRecord, WhatIsReadIsWritten) {
  ReadFont font;
  LoadRecord(font.Font(), SampleRecord());
  EXPECT_EQ(SaveRecord(font.Font()), SampleRecord());
}

TEST(FontInformationRecord, TheFieldsOfANewFont) {
  CFontInformation font(nullptr);
  EXPECT_EQ(
      SaveRecord(font),
      Record("<BaseFont/><Encoding>winansi1252</Encoding><Flags>0</Flags><FontType>2</FontType><TTName/>"
             "<EncodingScheme/><ItalicAngle>0.0</ItalicAngle><IsFixedPitch>0</IsFixedPitch>"
             "<BBoxLLX>0.0</BBoxLLX><BBoxLLY>0.0</BBoxLLY><BBoxURX>0.0</BBoxURX><BBoxURY>0.0</BBoxURY>"
             "<UnderlinePosition>0</UnderlinePosition><UnderlineThickness>0</UnderlineThickness>"
             "<CapHeight>0</CapHeight><XHeight>0</XHeight><Ascender>0</Ascender><Descender>0</Descender>"
             "<StdVW>0</StdVW><StdHW>0</StdHW><FirstChar>0</FirstChar><LastChar>256</LastChar>" +
             Widths(0) + "<UnicodeFont>0</UnicodeFont><Bold>400</Bold><FontFamilyName/>"));
}

TEST(FontInformationRecord, BoldIsWrittenUnlessZeroAndItalicIfTrue) {
  CFontInformation font(nullptr);
  font.GetFontMetrics()->SetUnicodeFont(true);
  const auto tail = [&] {
    const std::string record = SaveRecord(font);
    return record.substr(record.find("<LastChar>"));
  };
  const std::string begin = "<LastChar>256</LastChar><UnicodeFont>1</UnicodeFont>";
  const std::string end = "<FontFamilyName/></FontInformation>";
  EXPECT_EQ(tail(), begin + "<Bold>400</Bold>" + end);
  font.GetFontMetrics()->SetBold(0);
  EXPECT_EQ(tail(), begin + end);
  font.GetFontMetrics()->SetBold(-1);
  font.GetFontMetrics()->SetItalic(true);
  EXPECT_EQ(tail(), begin + "<Bold>-1</Bold><Italic>1</Italic>" + end);
}

TEST(FontInformationRecord, FixedABoldOfZeroComesBackAsTheDefault) {
  CFontInformation font(nullptr);
  font.GetFontMetrics()->SetBold(0);
  font.GetFontMetrics()->SetFontType(CFontMetrics::FontTypeType1);
  CFontInformation again(nullptr);
  LoadRecord(again, SaveRecord(font));
  EXPECT_EQ(again.GetFontMetrics()->GetBold(), 400);
}

TEST(FontInformationRecord, BuiltInFontsAreNotWritten) {
  CFontInformation base14(nullptr);
  base14.GetFontMetrics()->SetBase14Font(true);
  EXPECT_EQ(SaveRecord(base14), "");
  CFontInformation cjk(nullptr);
  cjk.GetFontMetrics()->SetCJKFont(true);
  EXPECT_EQ(SaveRecord(cjk), "");
}

TEST(FontInformationRecord, NullRecordsAndLigaturesAreNotWritten) {
  ReadFont font;
  auto* const info = new CFontCharMetricsInfo();
  info->AddLigature(nullptr);
  font->AddFontCharMetricsInfo(nullptr);
  font->AddFontCharMetricsInfo(info);
  const std::string record = SaveRecord(font.Font());
  EXPECT_EQ(record.find("<CharMetricsInfo>"), record.rfind("<CharMetricsInfo>"));
  EXPECT_EQ(record.find("Ligatures"), std::string::npos);
}

TEST(FontInformationRecord, AnyNumberButZeroIsFixedPitch) {
  ReadFont font;
  LoadRecord(font.Font(), Record("<FontType>0</FontType><IsFixedPitch>-7</IsFixedPitch>"));
  EXPECT_TRUE(font->GetFixedPitch());
  ReadFont text;
  LoadRecord(text.Font(), Record("<FontType>0</FontType><IsFixedPitch>true</IsFixedPitch>"));
  EXPECT_FALSE(text->GetFixedPitch());
}

TEST(FontInformationRecord, AnyNumberButZeroIsItalic) {
  for (const auto& [text, italic] :
       {std::pair{"1", true}, {"2", true}, {"-1", true}, {"0", false}, {"true", false}}) {
    ReadFont font;
    LoadRecord(font.Font(), Record("<FontType>0</FontType>" + Element("Italic", text)));
    EXPECT_EQ(font->GetItalic(), italic) << text;
  }
}

TEST(FontInformationRecord, AMissingChildKeepsItsDefault) {
  ReadFont font;
  LoadRecord(font.Font(), Record("<FontType>0</FontType><Ascender>5</Ascender><LastChar>9</LastChar>"));
  EXPECT_STREQ(font->GetBaseFont(), L"");
  EXPECT_STREQ(font->GetEncoding(), L"winansi1252");
  EXPECT_EQ(font->GetAscender(), 5);
  EXPECT_EQ(font->GetLastChar(), 9);
  EXPECT_EQ(font->GetFirstChar(), 0);
  EXPECT_EQ(font->GetBold(), 400);
}

TEST(FontInformationRecord, FixedChildrenOutOfTheirOrderAreLost) {
  ReadFont font;
  LoadRecord(font.Font(), Record("<FontType>0</FontType><Descender>-3</Descender><Ascender>5</Ascender>"
                                 "<FontFamilyName>F</FontFamilyName>"));
  EXPECT_EQ(font->GetDescender(), -3);
  EXPECT_EQ(font->GetAscender(), 0);
  EXPECT_STREQ(font->GetFontFamilyName(), L"");
}

TEST(FontInformationRecord, FixedChildrenOfACharacterOutOfTheirOrderAreLost) {
  ReadFont font;
  LoadRecord(font.Font(),
             Record("<FontType>0</FontType><CharMetricsInfo><WX>5</WX><Code>65</Code><Ligatures/>"
                    "</CharMetricsInfo><CharMetricsInfo><Name>f</Name><Ligatures><Ligature>fi</Ligature>"
                    "<Successor>i</Successor></Ligatures></CharMetricsInfo>"));
  ASSERT_EQ(font->GetFontCharMetricsCount(), 2);
  EXPECT_EQ(font.Record(0).GetWX(), 5);
  EXPECT_EQ(font.Record(0).GetCode(), 0);
  EXPECT_EQ(font.Record(0).GetLigatureCount(), 0);
  EXPECT_STREQ(font.Record(1).GetName(), L"f");
  ASSERT_EQ(font.Record(1).GetLigatureCount(), 1);
  EXPECT_STREQ(font.Record(1).GetLigatureAt(0)->GetSuccessor(), L"");
  EXPECT_STREQ(font.Record(1).GetLigatureAt(0)->GetLigature(), L"fi");
}

TEST(FontInformationRecord, EveryWidthIsRead) {
  ReadFont font;
  LoadRecord(font.Font(),
             Record("<FontType>0</FontType>" + Widths(7, 300) + "<Widths>-1</Widths><Bold>5</Bold>"));
  EXPECT_EQ(font->GetWidthAt(299), 7);
  EXPECT_EQ(font->GetWidthAt(300), 65535);
  EXPECT_EQ(font->GetWidthAt(301), 0);
  EXPECT_EQ(font->GetBold(), 5);
}

// Attack: more widths than there are codes.
TEST(FontInformationRecord, WidthsBeyondTheLastCodeAreDropped) {
  ReadFont font;
  LoadRecord(font.Font(), Record("<FontType>0</FontType>" + Widths(7, 65540) + "<Bold>5</Bold>"));
  EXPECT_EQ(font->GetWidthAt(65535), 7);
  EXPECT_EQ(font->GetBold(), 5);
}

TEST(FontInformationRecord, FixedASymbolFontWritesTheWidthsOfItsPage) {
  CFontInformation font(nullptr);
  font.GetFontMetrics()->SetSymbolFont(true);
  font.GetFontMetrics()->SetWidthAt(65, 7);
  font.GetFontMetrics()->SetWidthAt(0xF000, 8);
  const std::string record = SaveRecord(font);
  EXPECT_NE(record.find("<LastChar>256</LastChar><Widths>8</Widths><Widths>0</Widths>"), std::string::npos);
  EXPECT_EQ(record.find("<Widths>7</Widths>"), std::string::npos);
}

TEST(FontInformationRecord, AProgramInTheRecordIsTaken) {
  ReadFont font;
  LoadRecord(font.Font(), Record(Scalars() +
                                 "<FontDataLength>99</FontDataLength><FontData><BinaryData>YWJj</BinaryData>"
                                 "</FontData>" +
                                 kTail));
  EXPECT_EQ(BytesOf(font->GetFontData()), "abc");
  EXPECT_STREQ(font->GetFontFamilyName(), L"Samples");
}

TEST(FontInformationRecord, AProgramWithoutLengthIsAppended) {
  ReadFont font;
  std::string before = "12";
  font->GetFontData()->AddFontMemData(before.data(), 2);
  LoadRecord(font.Font(), Record(Scalars() + "<FontData><BinaryData>YWJj</BinaryData></FontData>"));
  EXPECT_EQ(BytesOf(font->GetFontData()), "12abc");
  LoadRecord(font.Font(), Record(Scalars() + "<FontDataLength>0</FontDataLength>"));
  EXPECT_EQ(BytesOf(font->GetFontData()), "");
}

TEST(FontInformationRecord, FixedAnEmptyProgramInTheRecordCountsAsFound) {
  const ScopedFontPool pool;
  Store("Sample-Roman", "pool");
  for (const char* const program :
       {"<FontData/>", "<FontData>x</FontData>", "<FontData><BinaryData>?</BinaryData></FontData>"}) {
    ReadFont font;
    LoadRecord(font.Font(), Record(Scalars() + program));
    EXPECT_EQ(BytesOf(font->GetFontData()), "") << program;
  }
}

TEST(FontInformationRecord, TheProgramComesFromThePool) {
  const ScopedFontPool pool;
  Store("Sample-Roman", "pool");
  {
    ReadFont font;
    LoadRecord(font.Font(), SampleRecord());
    EXPECT_EQ(font->GetFontData(), pool->GetFontData(L"Sample-Roman"));
  }
  EXPECT_EQ(BytesOf(pool->GetFontData(L"Sample-Roman")), "pool") << "the pool keeps it";
}

TEST(FontInformationRecord, TheProgramOfAnotherFontTakesThePlaceOfOneThatThePoolKeeps) {
  const ScopedFontPool pool;
  Store("S", "first");
  Store("T", "second");
  ReadFont font;
  LoadRecord(font.Font(), Record(Scalars("0", "S") + kTail));
  LoadRecord(font.Font(), Record(Scalars("0", "T") + kTail));
  EXPECT_EQ(font->GetFontData(), pool->GetFontData(L"T"));
  EXPECT_EQ(BytesOf(pool->GetFontData(L"S")), "first");
  EXPECT_EQ(BytesOf(pool->GetFontData(L"T")), "second");
}

TEST(FontInformationRecord, AProgramInTheRecordIsNotAddedToOneThatThePoolKeeps) {
  for (const char* const length : {"", "<FontDataLength>3</FontDataLength>"}) {
    const ScopedFontPool pool;
    Store("S", "first");
    ReadFont font;
    LoadRecord(font.Font(), Record(Scalars("0", "S") + kTail));
    LoadRecord(font.Font(),
               Record(Scalars("0", "T") + length + "<FontData><BinaryData>YWJj</BinaryData></FontData>"));
    EXPECT_EQ(BytesOf(font->GetFontData()), "abc") << length;
    EXPECT_EQ(BytesOf(pool->GetFontData(L"S")), "first") << length;
  }
}

TEST(FontInformationRecord, AProgramInTheRecordNeedsNoneBefore) {
  ReadFont font;
  font->SetFontData(nullptr, true);
  LoadRecord(font.Font(), Record(Scalars() + "<FontData><BinaryData>YWJj</BinaryData></FontData>"));
  EXPECT_EQ(BytesOf(font->GetFontData()), "abc");
}

TEST(FontInformationRecord, APostScriptFontWithoutProgramLoads) {
  const ScopedFontPool pool;
  ReadFont font;
  LoadRecord(font.Font(), SampleRecord());
  EXPECT_EQ(BytesOf(font->GetFontData()), "");
}

TEST(FontInformationRecord, SavingGivesTheProgramToThePool) {
  const ScopedFontPool pool;
  CFontInformation font(nullptr);
  std::string program = "program";
  font.GetFontMetrics()->SetBaseFont(L"Sample");
  font.GetFontMetrics()->GetFontData()->AddFontMemData(program.data(), 7);
  font.GetFontMetrics()->AddLocalizedFontName(L"Muster");
  EXPECT_EQ(SaveRecord(font).find("FontData"), std::string::npos);
  EXPECT_EQ(BytesOf(pool->GetFontData(L"Sample")), "program");
  EXPECT_STREQ(pool->FindUniqueName(L"Muster"), L"Sample");
  EXPECT_TRUE(fs::exists(pool.Folder().File("Sample.fd")));
}

TEST(FontInformationRecord, ABuiltInFontIsNotGivenToThePool) {
  const ScopedFontPool pool;
  CFontInformation font(nullptr);
  font.GetFontMetrics()->SetBaseFont(L"Sample");
  font.GetFontMetrics()->SetBase14Font(true);
  SaveRecord(font);
  EXPECT_EQ(pool->GetFontData(L"Sample"), nullptr);
}

TEST(FontInformationRecord, AProgramThatIsNullIsGivenAsEmpty) {
  const ScopedFontPool pool;
  CFontInformation font(nullptr);
  font.GetFontMetrics()->SetBaseFont(L"Sample");
  font.GetFontMetrics()->SetFontData(nullptr, true);
  SaveRecord(font);
  EXPECT_EQ(BytesOf(pool->GetFontData(L"Sample")), "");
}

TEST(FontInformationRecord, WithoutAPoolSavingWritesTheRecordAlone) {
  CFontInformation font(nullptr);
  font.GetFontMetrics()->SetBaseFont(L"Sample");
  EXPECT_NE(SaveRecord(font), "");
  EXPECT_EQ(CFontPool::GetInstance().GetFontData(L"Sample"), nullptr);
}

TEST(FontInformationRecord, AnAFMWithItsProgramComesBackWhole) {
  const ScopedFontPool pool;
  ReadFont font;
  ASSERT_EQ(font.AFMText(
                "FontName Sample\nStartCharMetrics 2\nC 65 ; WX 7 ; N A ;\nC 66 ; WX 8 ; N B ; L i fi ;\n"),
            L"");
  ASSERT_EQ(font.Program(fs::path(ZEB_TEST_DATA) / "fonts" / "dummy-space.pfb"), L"");
  const std::string record = SaveRecord(font.Font());
  ReadFont again;
  LoadRecord(again.Font(), record);
  EXPECT_EQ(SaveRecord(again.Font()), record);
  EXPECT_EQ(BytesOf(again->GetFontData()), BytesOf(font->GetFontData()));
  EXPECT_EQ(again->GetWidthAt('B'), 8);
}

/// The record of a TrueType font with its program, from a real layout file.
std::string BarCodeRecord() {
  const std::string layout = zebtest::ReadFile(fs::path(ZEB_EXAMPLES) / "legacy" / "layout.xml");
  const std::string end = "</FontInformation>";
  const std::size_t begin = layout.rfind("<FontInformation>");
  return layout.substr(begin, layout.find(end, begin) + end.size() - begin);
}

std::string Replaced(std::string text, std::string_view what, std::string_view with) {
  text.replace(text.find(what), what.size(), with);
  return text;
}

/// The same record without the program.
std::string BarCodeRecordWithoutProgram() {
  const std::string record = BarCodeRecord();
  const std::size_t begin = record.find("<FontDataLength>");
  const std::string end = "</FontData>";
  return record.substr(0, begin) + record.substr(record.find(end) + end.size());
}

TEST(FontInformationRecord, ATrueTypeFontWithItsProgramLoads) {
  ReadFont font;
  LoadRecord(font.Font(), BarCodeRecord());
  EXPECT_NE(dynamic_cast<CTrueTypeFontMetrics*>(&font.Metrics()), nullptr);
  EXPECT_NE(font->GetTTFile(), nullptr);
  EXPECT_STREQ(font->GetBaseFont(), L"LG Code 39");
  EXPECT_EQ(font->GetFontData()->GetLength(), 4212);
  EXPECT_EQ(font->GetFontEmbedding(), CFontMetrics::EmbedSingleByte);
}

TEST(FontInformationRecord, ATrueTypeFontComesBackFromThePool) {
  const ScopedFontPool pool;
  std::string record;
  {
    ReadFont font;
    LoadRecord(font.Font(), BarCodeRecord());
    record = SaveRecord(font.Font());
    EXPECT_EQ(BytesOf(pool->GetFontData(L"LG Code 39")), BytesOf(font->GetFontData()));
  }
  EXPECT_EQ(record.find("FontData"), std::string::npos);
  CFontPool::GetInstance().DeleteFontPool();
  ReadFont again;
  LoadRecord(again.Font(), record);
  EXPECT_EQ(again->GetFontData(), pool->GetFontData(L"LG Code 39")) << "read from the file of the pool";
  EXPECT_NE(again->GetTTFile(), nullptr);
  EXPECT_EQ(SaveRecord(again.Font()), record);
}

TEST(FontInformationRecord, ATrueTypeFontWithoutProgramAnywhereIsNamed) {
  ReadFont font;
  const zebtest::Raised raised =
      zebtest::RaisedBy([&] { LoadRecord(font.Font(), BarCodeRecordWithoutProgram()); });
  EXPECT_EQ(raised.Key, L"FontPoolIncomplete");
  EXPECT_TRUE(raised.Message.ends_with(L"\nLG Code 39")) << testing::PrintToString(raised.Message);
}

TEST(FontInformationRecord, FixedARecordWithoutTypeIsThatOfATrueTypeFont) {
  ReadFont font;
  const zebtest::Raised raised = zebtest::RaisedBy([&] { LoadRecord(font.Font(), "<FontInformation/>"); });
  EXPECT_EQ(raised.Key, L"FontPoolIncomplete");
  EXPECT_TRUE(raised.Message.ends_with(L"\n"));
}

TEST(FontInformationRecord, AUnicodeFontHasNoWidthsInTheFileAndThoseOfItsProgramWhenLoaded) {
  const ScopedFontPool pool;
  ReadFont font;
  LoadRecord(font.Font(), Replaced(BarCodeRecord(), "<UnicodeFont>0", "<UnicodeFont>1"));
  EXPECT_TRUE(font->GetUnicodeFont());
  EXPECT_EQ(font->GetFontEmbedding(), CFontMetrics::EmbedSubset);
  const std::string record = SaveRecord(font.Font());
  EXPECT_EQ(record.find("<Widths>"), std::string::npos);
  ReadFont again;
  LoadRecord(again.Font(), record);
  EXPECT_NE(again->GetWidthAt('A'), 0);
  EXPECT_EQ(again->GetWidthAt('A'), font->GetWidthAt('A'));
}

TEST(FontInformationRecord, FixedOfASubsetThePoolGetsTheSubset) {
  const ScopedFontPool pool;
  ReadFont font;
  LoadRecord(font.Font(), Replaced(BarCodeRecord(), "<UnicodeFont>0", "<UnicodeFont>1"));
  font->MapChar('A');
  font->CreateSubsetFont();
  ASSERT_LT(font->GetFontData()->GetLength(), 4212);
  SaveRecord(font.Font());
  EXPECT_EQ(BytesOf(pool->GetFontData(L"LG Code 39")), BytesOf(font->GetFontData()));
}

TEST(FontInformationRecord, ATrueTypeFontThatIsReadAgainLeavesThePoolsProgram) {
  const ScopedFontPool pool;
  const std::vector<unsigned char> probe = zebtest::TrueTypeBuilder().Build();
  Store("S", {probe.begin(), probe.end()});
  Store("T", {probe.begin(), probe.end()});
  ReadFont font;
  LoadRecord(font.Font(), Record(Scalars("2", "S") + kTail));
  LoadRecord(font.Font(), Record(Scalars("2", "T") + kTail));
  EXPECT_EQ(font->GetFontData(), pool->GetFontData(L"T"));
  EXPECT_EQ(BytesOf(pool->GetFontData(L"S")), BytesOf(pool->GetFontData(L"T")));
}

// What a program says of its font counts more than what the record says, imitations of a style included.

/// A record of "Probe Regular" as a TrueType font with codes of one byte.
std::string ProbeRecord(std::string_view encoding, std::string_view behindType, std::string_view tail) {
  return Record("<BaseFont>Probe Regular</BaseFont>" + Element("Encoding", encoding) +
                "<Flags>0</Flags><FontType>2</FontType>" + std::string(behindType) +
                "<UnicodeFont>0</UnicodeFont>" + std::string(tail));
}

void StoreProbe() {
  const std::vector<unsigned char> bytes = zebtest::TrueTypeBuilder().Build();
  Store("Probe Regular", {bytes.begin(), bytes.end()});
}

TEST(FontInformationRecord, AStyleThatTheProgramLacksIsImitated) {
  const ScopedFontPool pool;
  StoreProbe();
  ReadFont font;
  LoadRecord(font.Font(), ProbeRecord("winansi1252", "", "<Bold>700</Bold><Italic>1</Italic>"));
  EXPECT_EQ(font->GetBold(), 700);
  EXPECT_TRUE(font->GetItalic());
  EXPECT_EQ(font->GetStemVW(), 165);
  EXPECT_EQ(font->GetItalicAngle(), -12.0F);
  EXPECT_FALSE(font->GetBoldFont());
  EXPECT_FALSE(font->GetItalicFont());
}

TEST(FontInformationRecord, TheProgramsEncodingHeightsAndWidthsReplaceThoseOfTheRecord) {
  const ScopedFontPool pool;
  StoreProbe();
  ReadFont font;
  LoadRecord(font.Font(), ProbeRecord("winansi1250",
                                      "<EncodingScheme>FontSpecific</EncodingScheme><Ascender>5</Ascender>"
                                      "<Widths>7</Widths>",
                                      ""));
  EXPECT_STREQ(font->GetEncoding(), L"winansi1252");
  EXPECT_STREQ(font->GetEncodingScheme(), L"AdobeStandardEncoding");
  EXPECT_EQ(font->GetUnicodeAt(0xA5), 0xA5) << "the yen; in the other code page a Polish letter";
  EXPECT_EQ(font->GetAscender(), 732) << "1500 of 2048";
  EXPECT_EQ(font->GetWidthAt(0), 488) << "glyph 0, 1000 of 2048, truncated";
  EXPECT_EQ(font->GetFirstChar(), 0);
  EXPECT_EQ(font->GetLastChar(), 255);
}

TEST(FontInformationRecord, FixedATypeThatIsNotTheFourthChildFindsNoProgramInThePool) {
  const std::string record = Record("<BaseFont>Probe Regular</BaseFont>");
  {
    const ScopedFontPool pool;
    StoreProbe();
    ReadFont font;
    EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(font.Font(), record); }), L"IncorrectTrueTypeFile");
    EXPECT_EQ(pool->GetFontData(L"Probe Regular")->GetLength(), 728) << "the pool keeps it";
  }
  const zebtest::FontMachine machine;
  machine.Install("probe.ttf", zebtest::TrueTypeBuilder().Build());
  ReadFont font;
  EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(font.Font(), record); }), L"");
  EXPECT_EQ(font->GetWidthAt('A'), 585) << "1200 of 2048";
}

// From the system

TEST(FontInformationRecord, APoolThatCannotBeWrittenEndsTheLoadingOfAnInstalledFont) {
  const zebtest::FontMachine machine;
  machine.Install("probe.ttf", zebtest::TrueTypeBuilder().Build());
  const ScopedFontPool pool;
  CFontPool::GetInstance().SetFontPoolPath(pool.Folder().WideFile("missing").c_str());
  ReadFont font;
  EXPECT_EQ(
      zebtest::FacilityFailure([&] { LoadRecord(font.Font(), ProbeRecord("winansi1252", "", "")); }).Number,
      zebxmln::CXMLException::CannotWrite);
}

TEST(FontInformationRecord, OnlyATrueTypeFontIsSoughtInTheSystem) {
  const zebtest::FontMachine machine;
  machine.Install("probe.ttf", zebtest::TrueTypeBuilder().Build());
  for (const char* const type : {"0", "1", "3", "-1"}) {
    ReadFont font;
    EXPECT_EQ(
        zebtest::RaisedKey([&] { LoadRecord(font.Font(), Record(Scalars(type, "Probe Regular") + kTail)); }),
        L"")
        << type;
    EXPECT_EQ(font->GetFontData()->GetLength(), 0) << type;
  }
}

TEST(FontInformationRecord, FixedAFontFromTheSystemIsReadTwiceSoItsNameIsThereTwice) {
  const zebtest::FontMachine machine;
  machine.Install("probe.ttf", zebtest::TrueTypeBuilder().Build());
  const std::string record = ProbeRecord("winansi1252", "", "");
  ReadFont font;
  LoadRecord(font.Font(), record);
  EXPECT_EQ(font->GetLocalizedFontNameCount(), 2);
  const ScopedFontPool pool;
  StoreProbe();
  ReadFont fromPool;
  LoadRecord(fromPool.Font(), record);
  EXPECT_EQ(fromPool->GetLocalizedFontNameCount(), 1);
}

/// A collection of "Probe Regular" and "Other Full", whose A is as wide as the em.
std::vector<unsigned char> Collection() {
  zebtest::TrueTypeBuilder other;
  other.names = {{3, 1, 1033, 1, L"Other"}, {3, 1, 1033, 2, L"Regular"}, {3, 1, 1033, 4, L"Other Full"}};
  other.glyphs[3].width = 2048;
  return zebtest::TrueTypeBuilder::BuildCollection({zebtest::TrueTypeBuilder(), other});
}

TEST(FontInformationRecord, TheNameFindsTheFontInACollectionOfThePool) {
  const ScopedFontPool pool;
  const std::vector<unsigned char> bytes = Collection();
  Store("Other Full", {bytes.begin(), bytes.end()});
  ReadFont font;
  EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(font.Font(), Record(Scalars("2", "Other Full") + kTail)); }),
            L"");
  EXPECT_STREQ(font->GetBaseFont(), L"Other Full");
  EXPECT_EQ(font->GetWidthAt('A'), 1000);
  EXPECT_EQ(font->GetFontData(), pool->GetFontData(L"Other Full"));
  ReadFont none;
  Store("Third", {bytes.begin(), bytes.end()});
  EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(none.Font(), Record(Scalars("2", "Third") + kTail)); }),
            L"TrueTypeCreationFailed");
}

TEST(FontInformationRecord, AnInstalledCollectionLoadsWithAPoolAndWithout) {
  const zebtest::FontMachine machine;
  machine.Install("both.ttc", Collection());
  const std::string record = Record(Scalars("2", "Other Full") + kTail);
  ReadFont withoutPool;
  EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(withoutPool.Font(), record); }), L"");
  EXPECT_EQ(withoutPool->GetWidthAt('A'), 1000);
  const ScopedFontPool pool;
  ReadFont font;
  EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(font.Font(), record); }), L"");
  EXPECT_EQ(font->GetWidthAt('A'), 1000);
  EXPECT_EQ(font->GetFontData(), pool->GetFontData(L"Other Full"));
}

TEST(FontInformationRecord, AProgramThatIsNoTrueTypeFontHasItsOwnFailure) {
  const std::string record = Record(Scalars("2") + "<FontData><BinaryData>YWJj</BinaryData></FontData>");
  ReadFont font;
  EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(font.Font(), record); }), L"IncorrectTrueTypeFile");
}

// Attack: a type out of its place, so that the record is read into metrics of the other kind.
TEST(FontInformationRecord, ATypeOutOfItsPlaceKeepsTheCharacters) {
  ReadFont font;
  const std::string record = Record("<BaseFont>No such font</BaseFont><FontType>2</FontType>" + kCharacters);
  EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(font.Font(), record); }), L"FontPoolIncomplete");
  EXPECT_EQ(font->GetFontCharMetricsCount(), 2);
  EXPECT_NE(dynamic_cast<CTrueTypeFontMetrics*>(&font.Metrics()), nullptr);
}

/// The record of the Unicode font DejaVu Sans, from a real report file; it holds no program.
std::string SystemFontRecord() {
  const std::string report = zebtest::ReadFile(fs::path(ZEB_EXAMPLES) / "statement" / "report.xml");
  const std::string end = "</FontInformation>";
  const std::size_t begin = report.find("<FontInformation>");
  return report.substr(begin, report.find(end, begin) + end.size() - begin);
}

bool IsDejaVuInstalled() { return fs::exists("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"); }

TEST(FontInformationRecord, AnInstalledFontNeedsNoPool) {
  if (!IsDejaVuInstalled()) GTEST_SKIP() << "the package fonts-dejavu-core is not installed";
  ReadFont font;
  LoadRecord(font.Font(), SystemFontRecord());
  EXPECT_STREQ(font->GetBaseFont(), L"DejaVu Sans");
  EXPECT_NE(font->GetTTFile(), nullptr);
  EXPECT_NE(font->GetWidthAt('A'), 0);
}

TEST(FontInformationRecord, AnInstalledFontGoesIntoThePool) {
  if (!IsDejaVuInstalled()) GTEST_SKIP() << "the package fonts-dejavu-core is not installed";
  const ScopedFontPool pool;
  ReadFont font;
  LoadRecord(font.Font(), SystemFontRecord());
  EXPECT_TRUE(fs::exists(pool.Folder().File("DejaVu Sans.fd")));
  EXPECT_EQ(font->GetFontData(), pool->GetFontData(L"DejaVu Sans"));
}

}  // namespace
