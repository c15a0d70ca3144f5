#include "fonts/FontRecords.h"

#include "fonts/EncodingInformation.h"
#include "fonts/Encodings.h"
#include "fonts/FontInformation.h"
#include "fonts/FontMetrics.h"
#include "fonts/Fonts.h"
#include "fonts/GlobalFontHandler.h"
#include "model/ReportDocument.h"
#include "model/ReportLayout.h"
#include "support/FontMachine.h"
#include "support/RaisedKey.h"
#include "support/RecordFixture.h"
#include "support/ScopedFontPool.h"
#include "support/TrueTypeBuilder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

/// The entries that every list begins with.
int StandardCount() {
  const CGlobalFontHandler handler;
  return handler.GetEncodings()->GetEncodingCount();
}

void AddEncoding(CGlobalFontHandler& handler, const wchar_t* name) {
  auto* encoding = new CEncodingInformation(handler.GetEncodings());
  handler.GetEncodings()->AddEncoding(encoding);
  encoding->SetInternalName(name);
  encoding->SetUnicodeAt(65, 0x416);
  encoding->SetCharNameAt(255, L"afii10024");
}

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

std::string Record(const std::string& name) {
  return "<EncodingInformation><InternalName>" + name + "</InternalName><PDFName/>" +
         Repeated("<Unicodes>0</Unicodes>", 65) + "<Unicodes>1046</Unicodes>" +
         Repeated("<Unicodes>0</Unicodes>", 190) + Repeated("<CharNames/>", 255) +
         "<CharNames>afii10024</CharNames></EncodingInformation>";
}

TEST(FontRecords, StandardEncodingsAreNotWritten) {
  CReportDocument document;
  EXPECT_EQ(SaveRecord(document).find("EncodingInformation"), std::string::npos);
}

TEST(FontRecords, ADocumentWritesItsEncodingsBehindItsZones) {
  CReportDocument document;
  AddEncoding(*document.GetFontHandler(), L"one");
  AddEncoding(*document.GetFontHandler(), L"two");
  EXPECT_EQ(SaveRecord(document),
            "<ReportDocument><VersionNr>2</VersionNr><ReportDocumentID>0</ReportDocumentID>" + Record("one") +
                Record("two") + "<ReportLayoutName/></ReportDocument>");
}

TEST(FontRecords, ADocumentReadsItsEncodings) {
  CReportDocument document;
  LoadRecord(
      document,
      "<ReportDocument><VersionNr>2</VersionNr><FontInformation><FontType>0</FontType></FontInformation>" +
          Record("one") + Record("two") + "<ReportLayoutName>l.xml</ReportLayoutName></ReportDocument>");
  CEncodings& encodings = *document.GetFontHandler()->GetEncodings();
  ASSERT_EQ(encodings.GetEncodingCount(), StandardCount() + 2);
  const CEncodingInformation* first = encodings.GetEncodingAt(StandardCount());
  EXPECT_STREQ(first->GetInternalName(), L"one");
  EXPECT_EQ(first->GetUnicodeAt(65), 0x416);
  EXPECT_STREQ(first->GetCharNameAt(255), L"afii10024");
  EXPECT_STREQ(encodings.GetEncodingAt(StandardCount() + 1)->GetInternalName(), L"two");
  EXPECT_STREQ(document.GetReportLayoutName(), L"l.xml");
}

TEST(FontRecords, ALayoutWritesItsEncodingsBehindItsPagesAndReadsThem) {
  CReportLayout layout;
  AddEncoding(*layout.GetFontHandler(), L"one");
  const std::string children = SaveRecord(layout);
  EXPECT_TRUE(children.ends_with("</LayoutPage>" + Record("one"))) << children;
  CReportLayout loaded;
  LoadRecord(loaded, "<ReportLayout>" + children + "</ReportLayout>");
  ASSERT_EQ(loaded.GetFontHandler()->GetEncodings()->GetEncodingCount(), StandardCount() + 1);
  EXPECT_EQ(loaded.GetFontHandler()->GetEncodings()->FindEncoding(L"one")->GetUnicodeAt(65), 0x416);
}

TEST(FontRecords, ALayoutOfTheOldFormReadsItsEncodings) {
  CReportLayout layout;
  LoadRecord(
      layout,
      "<ReportLayout><VersionNr>2</VersionNr><ReportLayoutID>0</ReportLayoutID><LayoutRect/><LayoutRect/>"
      "<FontInformation><FontType>0</FontType></FontInformation>" +
          Record("one") + "</ReportLayout>");
  EXPECT_NE(layout.GetFontHandler()->GetEncodings()->FindEncoding(L"one"), nullptr);
}

TEST(FontRecords, FixedALayoutOfTheOldFormWithoutFontsHasNoEncodings) {
  CReportLayout layout;
  LoadRecord(layout,
             "<ReportLayout><VersionNr>2</VersionNr><ReportLayoutID>0</ReportLayoutID><LayoutRect/>"
             "<LayoutRect/>" +
                 Record("one") + "</ReportLayout>");
  EXPECT_EQ(layout.GetFontHandler()->GetEncodings()->FindEncoding(L"one"), nullptr);
}

TEST(FontRecords, FixedARecordOfAStandardNameIsAppendedButNotFound) {
  CReportDocument document;
  LoadRecord(document, "<ReportDocument>" + Record("winansi1252") + "</ReportDocument>");
  CEncodings& encodings = *document.GetFontHandler()->GetEncodings();
  EXPECT_EQ(encodings.GetEncodingCount(), StandardCount() + 1);
  EXPECT_TRUE(encodings.FindEncoding(L"winansi1252")->GetStandardEncoding());
  EXPECT_NE(SaveRecord(document).find(Record("winansi1252")), std::string::npos);
}

// Attack: elements of a few bytes, each of which makes an entry of thousands.
TEST(FontRecords, ManyEncodingsAreCut) {
  CReportDocument document;
  LoadRecord(document, "<ReportDocument>" +
                           Repeated("<EncodingInformation/>", zeb::kMostEncodingsOfFile + 50) +
                           "<ReportLayoutName>l.xml</ReportLayoutName></ReportDocument>");
  EXPECT_EQ(document.GetFontHandler()->GetEncodings()->GetEncodingCount(),
            StandardCount() + zeb::kMostEncodingsOfFile);
  EXPECT_STREQ(document.GetReportLayoutName(), L"l.xml");
}

/// Fonts that every list begins with.
int StandardFontCount() {
  const CGlobalFontHandler handler;
  return handler.GetFonts()->GetFontCount();
}

CFontInformation& AddFont(CGlobalFontHandler& handler, const wchar_t* name) {
  auto* const font = new CFontInformation(handler.GetFonts());
  handler.GetFonts()->AddFont(font);
  font->GetFontMetrics()->SetBaseFont(name);
  font->GetFontMetrics()->SetFontType(CFontMetrics::FontTypeType1);
  return *font;
}

/// The names of the font records in a text, in order.
std::vector<std::string> FontNames(const std::string& text) {
  std::vector<std::string> names;
  const std::string begin = "<FontInformation><BaseFont>";
  for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at + 1)) {
    const std::size_t name = at + begin.size();
    names.push_back(text.substr(name, text.find('<', name) - name));
  }
  return names;
}

TEST(FontRecords, BuiltInFontsAreNotWritten) {
  CReportDocument document;
  EXPECT_NE(document.GetFontHandler()->GetFonts()->GetFontAt(0), nullptr);
  EXPECT_EQ(SaveRecord(document).find("FontInformation"), std::string::npos);
}

TEST(FontRecords, FontsAreWrittenInTheirOrderInFrontOfTheEncodings) {
  CReportDocument document;
  AddEncoding(*document.GetFontHandler(), L"one");
  AddFont(*document.GetFontHandler(), L"B");
  AddFont(*document.GetFontHandler(), L"A");
  const std::string record = SaveRecord(document);
  EXPECT_EQ(FontNames(record), (std::vector<std::string>{"B", "A"}));
  EXPECT_LT(record.rfind("</FontInformation>"), record.find("<EncodingInformation>"));
}

TEST(FontRecords, ADocumentReadsItsFonts) {
  CReportDocument document;
  AddFont(*document.GetFontHandler(), L"B");
  AddFont(*document.GetFontHandler(), L"A");
  CReportDocument loaded;
  const std::string record = SaveRecord(document);
  LoadRecord(loaded, record);
  CFonts& fonts = *loaded.GetFontHandler()->GetFonts();
  ASSERT_EQ(fonts.GetFontCount(), StandardFontCount() + 2);
  EXPECT_STREQ(fonts.GetFontAt(StandardFontCount())->GetFontMetrics()->GetBaseFont(), L"B");
  EXPECT_STREQ(fonts.GetFontAt(StandardFontCount() + 1)->GetFontMetrics()->GetBaseFont(), L"A");
  EXPECT_NE(fonts.FindFont(L"A", 400, false)->GetEncodingInformation(L"winansi1252"), nullptr);
  EXPECT_EQ(SaveRecord(loaded), record);
}

TEST(FontRecords, ALayoutReadsItsFonts) {
  CReportLayout layout;
  AddFont(*layout.GetFontHandler(), L"A");
  AddEncoding(*layout.GetFontHandler(), L"one");
  const std::string children = SaveRecord(layout);
  CReportLayout loaded;
  LoadRecord(loaded, "<ReportLayout>" + children + "</ReportLayout>");
  EXPECT_NE(loaded.GetFontHandler()->GetFonts()->FindFont(L"A", 400, false), nullptr);
  EXPECT_NE(loaded.GetFontHandler()->GetEncodings()->FindEncoding(L"one"), nullptr);
}

TEST(FontRecords, AFontThatIsRefusedEndsTheReadingAndLeavesNothingBehind) {
  CReportDocument document;
  const std::string characters = "<CharMetricsInfo><Code>1</Code></CharMetricsInfo>";
  const std::string record =
      "<ReportDocument><FontInformation><BaseFont>A</BaseFont><FontType>0</FontType></FontInformation>"
      "<FontInformation><BaseFont>No such font</BaseFont><FontType>2</FontType>" +
      characters + "</FontInformation></ReportDocument>";
  EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(document, record); }), L"FontPoolIncomplete");
  EXPECT_EQ(document.GetFontHandler()->GetFonts()->GetFontCount(), StandardFontCount() + 1);
}

// Attack: elements of a few bytes, each of which makes a font of 200 KiB.
TEST(FontRecords, ManyFontsAreCut) {
  CReportDocument document;
  LoadRecord(document, "<ReportDocument>" +
                           Repeated("<FontInformation><FontType>0</FontType></FontInformation>",
                                    zeb::kMostFontsOfFile + 5) +
                           "<ReportLayoutName>l.xml</ReportLayoutName></ReportDocument>");
  EXPECT_EQ(document.GetFontHandler()->GetFonts()->GetFontCount(),
            StandardFontCount() + zeb::kMostFontsOfFile);
  EXPECT_STREQ(document.GetReportLayoutName(), L"l.xml");
}

// Attack: short records that each name a large installed font.

constexpr int kLargeFont = 2 * 1024 * 1024;
constexpr int kMostLargeFonts = static_cast<int>(zeb::kMostSystemBytesOfFile / kLargeFont);

/// Installs "Probe Regular" with bytes behind its tables.
void InstallLargeFont(const zebtest::FontMachine& machine) {
  std::vector<unsigned char> bytes = zebtest::TrueTypeBuilder().Build();
  bytes.resize(kLargeFont);
  machine.Install("large.ttf", bytes);
}

std::string DocumentOfLargeFonts(int count) {
  return "<ReportDocument>" +
         Repeated(
             "<FontInformation><BaseFont>Probe Regular</BaseFont><Encoding>cid</Encoding><Flags>0</Flags>"
             "<FontType>2</FontType></FontInformation>",
             count) +
         "</ReportDocument>";
}

TEST(FontRecords, ProgramsOfTheSystemAreLimited) {
  static_assert(kMostLargeFonts == 128 && kMostLargeFonts < zeb::kMostFontsOfFile);
  const zebtest::FontMachine machine;
  InstallLargeFont(machine);
  CReportDocument document;
  EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(document, DocumentOfLargeFonts(kMostLargeFonts + 1)); }),
            L"NoMoreMemoryLeft");
  EXPECT_EQ(document.GetFontHandler()->GetFonts()->GetFontCount(), StandardFontCount() + kMostLargeFonts);
}

TEST(FontRecords, ProgramsThatStayInTheFilesOfTheSystemAreNotLimited) {
  if (!std::filesystem::exists("/usr/share/fonts/truetype/wqy/wqy-zenhei.ttc")) {
    GTEST_SKIP() << "the font WenQuanYi Zen Hei is not installed";
  }
  // 20 times 16 MB.
  CReportDocument document;
  EXPECT_EQ(
      zebtest::RaisedKey([&] {
        LoadRecord(
            document,
            "<ReportDocument>" +
                Repeated("<FontInformation><BaseFont>WenQuanYi Zen Hei</BaseFont><Encoding>cid</Encoding>"
                         "<Flags>0</Flags><FontType>2</FontType></FontInformation>",
                         20) +
                "</ReportDocument>");
      }),
      L"");
  EXPECT_EQ(document.GetFontHandler()->GetFonts()->GetFontCount(), StandardFontCount() + 20);
}

TEST(FontRecords, ProgramsThatThePoolKeepsAreNotLimited) {
  const zebtest::FontMachine machine;
  InstallLargeFont(machine);
  const zebtest::ScopedFontPool pool;
  const std::string record = DocumentOfLargeFonts(kMostLargeFonts + 1);
  for (const char* const from : {"the system at first, then the pool", "the pool"}) {
    CReportDocument document;
    EXPECT_EQ(zebtest::RaisedKey([&] { LoadRecord(document, record); }), L"") << from;
  }
}

}  // namespace
