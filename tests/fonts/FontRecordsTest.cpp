#include "fonts/FontRecords.h"

#include "fonts/EncodingInformation.h"
#include "fonts/Encodings.h"
#include "fonts/GlobalFontHandler.h"
#include "model/ReportDocument.h"
#include "model/ReportLayout.h"
#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <string>

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
  LoadRecord(document, "<ReportDocument><VersionNr>2</VersionNr><FontInformation/>" + Record("one") +
                           Record("two") + "<ReportLayoutName>l.xml</ReportLayoutName></ReportDocument>");
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
      "<FontInformation/>" +
          Record("one") + "</ReportLayout>");
  EXPECT_NE(layout.GetFontHandler()->GetEncodings()->FindEncoding(L"one"), nullptr);
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

}  // namespace
