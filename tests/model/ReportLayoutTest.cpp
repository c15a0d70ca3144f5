#include "model/ReportLayout.h"

#include "fonts/GlobalFontHandler.h"
#include "model/LayoutRect.h"
#include "support/KeepForever.h"
#include "support/LoadedReport.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using zebtest::LoadedReport;
using zebtest::TextRecord;

const std::string kRects =
    "<LayoutRect><Ulx>0.0</Ulx><Uly>842.0</Uly><Lrx>595.0</Lrx><Lry>0.0</Lry></LayoutRect>"
    "<LayoutRect><Ulx>57.0</Ulx><Uly>740.0</Uly><Lrx>538.0</Lrx><Lry>120.0</Lry></LayoutRect>";

std::string LayoutFile(int version, const std::string& content) {
  return "<ReportLayout><VersionNr>" + std::to_string(version) +
         "</VersionNr><ReportLayoutID>0</ReportLayoutID>" + content + "</ReportLayout>";
}

std::string Page(const std::string& content) { return "<LayoutPage>" + kRects + content + "</LayoutPage>"; }

}  // namespace

TEST(ReportLayout, StartsWithOnePageAndTheCurrentVersion) {
  const CReportLayout layout;
  EXPECT_EQ(layout.GetPageCount(), 1);
  EXPECT_EQ(layout.GetVersionNr(), 3);
  EXPECT_FALSE(layout.GetFirstPageIndependent());
  EXPECT_FALSE(layout.GetEvenOddPagesIndependent());
  EXPECT_NE(layout.GetFontHandler(), nullptr);
}

TEST(ReportLayout, SwitchesMakePages) {
  CReportLayout layout;
  layout.SetFirstPageIndependent(true);
  EXPECT_EQ(layout.GetPageCount(), 2);
  layout.SetEvenOddPagesIndependent(true);
  EXPECT_EQ(layout.GetPageCount(), 3);
  EXPECT_TRUE(layout.GetFirstPageIndependent());
  EXPECT_TRUE(layout.GetEvenOddPagesIndependent());
}

TEST(ReportLayout, FixedSwitchingTwiceMakesTwoPagesAndSwitchingOffTakesNone) {
  CReportLayout layout;
  layout.SetFirstPageIndependent(true);
  layout.SetFirstPageIndependent(true);
  EXPECT_EQ(layout.GetPageCount(), 3);
  layout.SetFirstPageIndependent(false);
  EXPECT_EQ(layout.GetPageCount(), 3);
  EXPECT_FALSE(layout.GetFirstPageIndependent());
  EXPECT_EQ(layout.GetNormalPage(), layout.GetPageAt(0));
  layout.SetEvenOddPagesIndependent(false);
  EXPECT_EQ(layout.GetPageCount(), 3);
}

TEST(ReportLayout, OnePageServesAllPurposes) {
  const CReportLayout layout;
  EXPECT_EQ(layout.GetFirstPage(), layout.GetPageAt(0));
  EXPECT_EQ(layout.GetNormalPage(), layout.GetPageAt(0));
  EXPECT_EQ(layout.GetEvenPage(), layout.GetPageAt(0));
  EXPECT_EQ(layout.GetOddPage(), layout.GetPageAt(0));
}

TEST(ReportLayout, AnIndependentFirstPageIsPage0) {
  CReportLayout layout;
  layout.SetFirstPageIndependent(true);
  EXPECT_EQ(layout.GetFirstPage(), layout.GetPageAt(0));
  EXPECT_EQ(layout.GetNormalPage(), layout.GetPageAt(1));
  EXPECT_EQ(layout.GetEvenPage(), layout.GetPageAt(1));
  EXPECT_EQ(layout.GetOddPage(), layout.GetPageAt(1));
}

TEST(ReportLayout, WithEvenAndOddPagesOnlyThereIsNoFirstAndNoNormalPage) {
  CReportLayout layout;
  layout.SetEvenOddPagesIndependent(true);
  EXPECT_EQ(layout.GetFirstPage(), nullptr);
  EXPECT_EQ(layout.GetNormalPage(), nullptr);
  EXPECT_EQ(layout.GetEvenPage(), layout.GetPageAt(1));
  EXPECT_EQ(layout.GetOddPage(), layout.GetPageAt(0));
}

TEST(ReportLayout, WithBothSwitchesTheFirstPageIsPage0) {
  CReportLayout layout;
  layout.SetFirstPageIndependent(true);
  layout.SetEvenOddPagesIndependent(true);
  EXPECT_EQ(layout.GetFirstPage(), layout.GetPageAt(0));
  EXPECT_EQ(layout.GetNormalPage(), nullptr);
  EXPECT_EQ(layout.GetEvenPage(), layout.GetPageAt(1));
  EXPECT_EQ(layout.GetOddPage(), layout.GetPageAt(2));
}

TEST(ReportLayout, FixedACopySharesPagesAndFontHandler) {
  CReportLayout source;
  source.SetFirstPageIndependent(true);
  const CReportLayout& copy = zebtest::KeepForever(new CReportLayout(source));
  EXPECT_EQ(copy.GetPageCount(), 2);
  EXPECT_EQ(copy.GetPageAt(1), source.GetPageAt(1));
  EXPECT_EQ(copy.GetFontHandler(), source.GetFontHandler());
  EXPECT_TRUE(copy.GetFirstPageIndependent());
}

TEST(ReportLayout, WritesItsFileInOrder) {
  LoadedReport report;
  auto* layout = new CReportLayout;
  layout->SetFirstPageIndependent(true);
  layout->SetEvenOddPagesIndependent(true);
  report->SetReportLayout(layout);
  const std::string rect =
      "    <LayoutRect>\n      <Ulx>0.0</Ulx>\n      <Uly>0.0</Uly>\n      <Lrx>0.0</Lrx>\n      "
      "<Lry>0.0</Lry>\n"
      "    </LayoutRect>\n";
  const std::string page = "  <LayoutPage>\n" + rect + rect + "  </LayoutPage>\n";
  for (int i = 0; i < 3; ++i) {
    layout->GetPageAt(i)->SetPaperRect(new LayoutRect(0, 0, 0, 0));
    layout->GetPageAt(i)->SetBorderRect(new LayoutRect(0, 0, 0, 0));
  }
  EXPECT_EQ(report.SavedLayout(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ReportLayout>\n  <VersionNr>3</VersionNr>\n"
            "  <ReportLayoutID>0</ReportLayoutID>\n  <FirstPageIndependent>1</FirstPageIndependent>\n"
            "  <EvenOddPagesIndependent>1</EvenOddPagesIndependent>\n" +
                page + page + page + "</ReportLayout>\n");
}

TEST(ReportLayout, WritesNoSwitchThatIsOff) {
  LoadedReport report;
  report->SetReportLayout(new CReportLayout);
  const std::string file = report.SavedLayout();
  EXPECT_EQ(file.find("Independent"), std::string::npos);
}

TEST(ReportLayout, LoadsPagesInOrder) {
  LoadedReport report;
  report.LoadLayoutText(LayoutFile(3,
                                   "<FirstPageIndependent>1</FirstPageIndependent>"
                                   "<EvenOddPagesIndependent>1</EvenOddPagesIndependent>" +
                                       Page(TextRecord(1)) + Page(TextRecord(2) + TextRecord(3)) + Page("")));
  ASSERT_EQ(report.Layout().GetPageCount(), 3);
  EXPECT_EQ(report.Page(0).GetLayoutContentCount(), 1);
  EXPECT_EQ(report.Page(1).GetLayoutContentCount(), 2);
  EXPECT_EQ(report.Page(2).GetLayoutContentCount(), 0);
}

TEST(ReportLayout, ASwitchThatIsWrittenAsOffMakesNoPage) {
  LoadedReport report;
  report.LoadLayoutText(LayoutFile(3, "<FirstPageIndependent>0</FirstPageIndependent>" + Page("")));
  EXPECT_EQ(report.Layout().GetPageCount(), 1);
}

// A file with more pages than its switches make must not be read behind the end of the pages.
TEST(ReportLayout, PagesBeyondTheSwitchesAreSteppedOver) {
  LoadedReport report;
  report.LoadLayoutText(
      LayoutFile(3, Page(TextRecord(1)) + Page(TextRecord(2)) + Page(TextRecord(3)) + Page(TextRecord(4))));
  ASSERT_EQ(report.Layout().GetPageCount(), 1);
  EXPECT_EQ(report.Page(0).GetLayoutContentCount(), 1);
}

TEST(ReportLayout, FewerPagesThanTheSwitchesMakeLeaveTheRestEmpty) {
  LoadedReport report;
  report.LoadLayoutText(
      LayoutFile(3, "<FirstPageIndependent>1</FirstPageIndependent>" + Page(TextRecord(1))));
  ASSERT_EQ(report.Layout().GetPageCount(), 2);
  EXPECT_EQ(report.Page(1).GetLayoutContentCount(), 0);
}

TEST(ReportLayout, TheOldFormHasOnePageUnderTheRoot) {
  LoadedReport report;
  report.LoadLayoutText(LayoutFile(2, kRects + TextRecord(1) + TextRecord(2)));
  ASSERT_EQ(report.Layout().GetPageCount(), 1);
  EXPECT_EQ(report.Page(0).GetLayoutContentCount(), 2);
  EXPECT_EQ(report.Page(0).GetPaperRect()->GetULY(), 842.0F);
  EXPECT_EQ(report.Page(0).GetBorderRect()->GetLRY(), 120.0F);
  EXPECT_EQ(report.Layout().GetVersionNr(), 3) << "a model in memory is of the current version";
}

TEST(ReportLayout, TheOldFormIsSavedInTheNewOneWithBothSwitchesOff) {
  LoadedReport report;
  report.LoadLayoutText(LayoutFile(2, kRects + TextRecord(1)));
  EXPECT_FALSE(report.Layout().GetFirstPageIndependent());
  EXPECT_FALSE(report.Layout().GetEvenOddPagesIndependent());
  const std::string file = report.SavedLayout();
  EXPECT_NE(file.find("<VersionNr>3</VersionNr>"), std::string::npos);
  EXPECT_EQ(file.find("Independent"), std::string::npos);
  EXPECT_TRUE(zebtest::StandsBefore(file, "<LayoutPage>", "<Text>"));
}

// The old form has no switches: an element of that name is content that nobody knows.
TEST(ReportLayout, TheOldFormReadsNoSwitches) {
  LoadedReport report;
  report.LoadLayoutText(
      LayoutFile(2, "<FirstPageIndependent>1</FirstPageIndependent>" + kRects + TextRecord(1)));
  EXPECT_EQ(report.Layout().GetPageCount(), 1);
  EXPECT_EQ(report.Page(0).GetLayoutContentCount(), 1);
}

TEST(ReportLayout, AFileWithoutVersionIsOfTheCurrentOne) {
  LoadedReport report;
  report.LoadLayoutText("<ReportLayout><ReportLayoutID>0</ReportLayoutID>" + Page(TextRecord(1)) +
                        "</ReportLayout>");
  EXPECT_EQ(report.Page(0).GetLayoutContentCount(), 1);
}
