#include "model/ReportDocument.h"

#include "fonts/GlobalFontHandler.h"
#include "foundation/IDManager.h"
#include "model/DefinedDynVH.h"
#include "model/ReportZone.h"
#include "support/KeepForever.h"
#include "support/LoadedReport.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using zebtest::LoadedReport;

CReportZone* NewZone(const wchar_t* name) {
  auto* zone = new CReportZone;
  zone->SetInternalReportZoneName(name);
  return zone;
}

std::string DocumentFile(const std::string& children) {
  return "<ReportRootElement><ReportDocument>" + children + "</ReportDocument></ReportRootElement>";
}

}  // namespace

TEST(ReportDocument, StartsEmptyWithTheCurrentVersionAndAFontHandler) {
  CReportDocument document;
  EXPECT_EQ(document.GetVersionNr(), 2);
  EXPECT_NE(document.GetFontHandler(), nullptr);
  EXPECT_EQ(document.GetReportZoneCount(), 0);
  EXPECT_EQ(document.GetDefinedDynVHCount(), 0);
  EXPECT_STREQ(document.GetReportLayoutName(), L"");
}

TEST(ReportDocument, FindsTheFirstZoneOfAName) {
  CReportDocument document;
  document.AddReportZone(NewZone(L"A"));
  CReportZone* first = NewZone(L"B");
  document.AddReportZone(first);
  document.AddReportZone(NewZone(L"B"));
  EXPECT_EQ(document.FindReportZone(L"B"), first);
  EXPECT_EQ(document.FindReportZone(L"b"), nullptr);
  EXPECT_EQ(document.FindReportZone(L"C"), nullptr);
}

TEST(ReportDocument, FixedReplacingAZoneDoesNotFreeTheOldOne) {
  CReportDocument document;
  CReportZone* old = NewZone(L"old");
  document.AddReportZone(old);
  CReportZone* replacement = NewZone(L"new");
  document.SetReportZoneAt(replacement, 0);
  EXPECT_EQ(document.GetReportZoneAt(0), replacement);
  EXPECT_STREQ(old->GetInternalReportZoneName(), L"old");
  delete old;
}

TEST(ReportDocument, SkipsNullZones) {
  CReportDocument document;
  document.AddReportZone(nullptr);
  CReportZone* zone = NewZone(L"A");
  document.AddReportZone(zone);
  EXPECT_EQ(document.FindReportZone(L"A"), zone);
}

TEST(ReportDocument, LayoutNameIsWhatStandsBehindTheLastBackslash) {
  CReportDocument document;
  document.SetReportLayoutName(L"C:\\reports\\invoice\\layout.xml");
  EXPECT_STREQ(document.GetReportLayoutName(), L"layout.xml");
  document.SetReportLayoutName(L"plain.xml");
  EXPECT_STREQ(document.GetReportLayoutName(), L"plain.xml");
  document.SetReportLayoutName(L"folder\\");
  EXPECT_STREQ(document.GetReportLayoutName(), L"");
}

TEST(ReportDocument, FixedSlashesDoNotPartFolders) {
  CReportDocument document;
  document.SetReportLayoutName(L"/srv/reports/layout.xml");
  EXPECT_STREQ(document.GetReportLayoutName(), L"/srv/reports/layout.xml");
  document.SetReportLayoutName(L"a\\b/c.xml");
  EXPECT_STREQ(document.GetReportLayoutName(), L"b/c.xml");
}

TEST(ReportDocument, KeepsDefinedDynamicValueHolders) {
  CReportDocument document;
  auto* entry = new CDefinedDynVH;
  document.AddDefinedDynVH(entry);
  document.AddDefinedDynVH(L"Farbe", L"Zusatzfeld");
  ASSERT_EQ(document.GetDefinedDynVHCount(), 2);
  EXPECT_EQ(document.GetDefinedDynVHAt(0), entry);
  EXPECT_STREQ(document.GetDefinedDynVHAt(1)->GetDynVHName(), L"Farbe");
  EXPECT_STREQ(document.GetDefinedDynVHAt(1)->GetType(), L"Zusatzfeld");
}

TEST(ReportDocument, FindsCopyKeysByBothParts) {
  CReportDocument document;
  document.AddCopyValueHolderKey(L"Kopf", L"BE.Nummer");
  document.AddCopyValueHolderKey(L"Kopf", L"BE.Nummer");
  EXPECT_TRUE(document.FindCopyValueHolderKey(L"Kopf", L"BE.Nummer"));
  EXPECT_FALSE(document.FindCopyValueHolderKey(L"Kopf", L"BE.Datum"));
  EXPECT_FALSE(document.FindCopyValueHolderKey(L"Fuss", L"BE.Nummer"));
  EXPECT_FALSE(document.FindCopyValueHolderKey(L"Kopf|BE.Nummer", L""));
}

TEST(ReportDocument, FixedACopySharesZonesTablesAndFontHandler) {
  CReportDocument source;
  source.AddReportZone(NewZone(L"A"));
  source.AddDefinedDynVH(L"n", L"t");
  source.AddCopyValueHolderKey(L"z", L"v");
  source.SetReportLayoutName(L"l.xml");
  CReportDocument& copy = zebtest::KeepForever(new CReportDocument(source));
  EXPECT_EQ(copy.GetReportZoneAt(0), source.GetReportZoneAt(0));
  EXPECT_EQ(copy.GetDefinedDynVHAt(0), source.GetDefinedDynVHAt(0));
  EXPECT_EQ(copy.GetFontHandler(), source.GetFontHandler());
  EXPECT_STREQ(copy.GetReportLayoutName(), L"l.xml");
  EXPECT_TRUE(copy.FindCopyValueHolderKey(L"z", L"v"));
  CReportDocument& assigned = zebtest::KeepForever(new CReportDocument);
  delete assigned.GetFontHandler();
  assigned = source;
  EXPECT_EQ(assigned.GetReportZoneAt(0), source.GetReportZoneAt(0));
  EXPECT_EQ(assigned.GetFontHandler(), source.GetFontHandler());
}

TEST(ReportDocument, ReportsTheVersionOfTheFileUntilItIsDeclaredCurrent) {
  CIDManager ids;
  CReportDocument document;
  EXPECT_TRUE(
      zebtest::LoadRecord(document, ids, "<ReportDocument><VersionNr>1</VersionNr></ReportDocument>"));
  EXPECT_EQ(document.GetVersionNr(), 1);
  document.SetCurrentVersionNr();
  EXPECT_EQ(document.GetVersionNr(), 2);
}

TEST(ReportDocument, LoadsItsElementInOrder) {
  LoadedReport report;
  report.LoadReportText(
      DocumentFile("<VersionNr>2</VersionNr><ReportDocumentID>0</ReportDocumentID><ZoneID>1</ZoneID>"
                   "<ZoneID>2</ZoneID><ReportLayoutName>a\\b.xml</ReportLayoutName>"
                   "<DefinedDynVH><Name>n1</Name><Type>t1</Type></DefinedDynVH>"
                   "<DefinedDynVH><Name>n2</Name><Type>t2</Type></DefinedDynVH>"));
  EXPECT_EQ(report.Document().GetReportZoneCount(), 2);
  EXPECT_STREQ(report.Document().GetReportLayoutName(), L"a\\b.xml")
      << "the name of a file is stored as it stands";
  ASSERT_EQ(report.Document().GetDefinedDynVHCount(), 2);
  EXPECT_STREQ(report.Document().GetDefinedDynVHAt(1)->GetDynVHName(), L"n2");
  EXPECT_STREQ(report.Document().GetDefinedDynVHAt(1)->GetType(), L"t2");
}

TEST(ReportDocument, ReadsWhatFollowsFontsAndEncodings) {
  LoadedReport report;
  report.LoadReportText(
      DocumentFile("<VersionNr>2</VersionNr><ReportDocumentID>0</ReportDocumentID><ZoneID>1</ZoneID>"
                   "<FontInformation><FontType>0</FontType></FontInformation>"
                   "<FontInformation><FontType>0</FontType></FontInformation><EncodingInformation/>"
                   "<ReportLayoutName>l.xml</ReportLayoutName>"));
  EXPECT_STREQ(report.Document().GetReportLayoutName(), L"l.xml");
}

TEST(ReportDocument, AnElementOutOfPlaceEndsTheReading) {
  LoadedReport report;
  report.LoadReportText(
      DocumentFile("<VersionNr>2</VersionNr><Foreign/><ZoneID>1</ZoneID>"
                   "<ReportLayoutName>l.xml</ReportLayoutName>"));
  EXPECT_EQ(report.Document().GetReportZoneCount(), 0);
  EXPECT_STREQ(report.Document().GetReportLayoutName(), L"");
}

TEST(ReportDocument, WritesAllOfItsElement) {
  LoadedReport report;
  auto* document = new CReportDocument;
  document->AddReportZone(NewZone(L"A"));
  document->AddReportZone(nullptr);
  document->AddReportZone(NewZone(L"B"));
  document->AddDefinedDynVH(L"n", L"t");
  document->SetReportLayoutName(L"l.xml");
  report->SetReportDocument(document);
  const std::string file = report.SavedReport();
  EXPECT_NE(file.find("  <ReportDocument>\n"
                      "    <VersionNr>2</VersionNr>\n"
                      "    <ReportDocumentID>0</ReportDocumentID>\n"
                      "    <ZoneID>1</ZoneID>\n"
                      "    <ZoneID>2</ZoneID>\n"
                      "    <ReportLayoutName>l.xml</ReportLayoutName>\n"
                      "    <DefinedDynVH>\n"
                      "      <Name>n</Name>\n"
                      "      <Type>t</Type>\n"
                      "    </DefinedDynVH>\n"
                      "  </ReportDocument>\n"),
            std::string::npos)
      << file;
}

TEST(ReportDocument, ZoneThatIsNamedTwiceIsOwnedOnce) {
  LoadedReport report;
  report.LoadReportText(
      DocumentFile("<VersionNr>2</VersionNr><ReportDocumentID>0</ReportDocumentID><ZoneID>1</ZoneID>"
                   "<ZoneID>1</ZoneID><ZoneID>2</ZoneID>"));
  EXPECT_EQ(report.Document().GetReportZoneCount(), 2);
}
