#include "model/ReportRootElement.h"

#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"
#include "support/KeepForever.h"
#include "support/LoadedReport.h"
#include "support/ScopedEnvironment.h"
#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <memory>
#include <string>

namespace {

using zebtest::LoadedReport;
using zebtest::ReportOfOneZone;
namespace fs = std::filesystem;

const std::string kEmptyReport =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ReportRootElement>\n  <VersionNr>1</VersionNr>\n  "
    "<ReportType/>\n"
    "  <ReportDocument>\n    <VersionNr>2</VersionNr>\n    <ReportDocumentID>0</ReportDocumentID>\n"
    "    <ReportLayoutName/>\n  </ReportDocument>\n</ReportRootElement>\n";

/// A placed object that says when it ends.
class Mortal : public CPlaceable {
 public:
  explicit Mortal(int& deaths) : m_deaths(deaths) {}
  Mortal(const Mortal&) = delete;
  Mortal& operator=(const Mortal&) = delete;
  ~Mortal() override { ++m_deaths; }

 private:
  int& m_deaths;
};

/// Runs the action, which must throw the XML family, and gives the exception's number.
template <class Action>
int NumberOfXMLFailure(Action action) {
  try {
    action();
  } catch (const CKXXMLException& exception) {
    EXPECT_STRNE(exception.GetErrorMessage(), L"");
    return exception.GetErrorNr();
  }
  ADD_FAILURE() << "no CKXXMLException";
  return 0;
}

}  // namespace

TEST(ReportRootElement, StartsEmpty) {
  const CReportRootElement root;
  EXPECT_EQ(root.GetReportDocument(), nullptr);
  EXPECT_EQ(root.GetReportLayout(), nullptr);
  EXPECT_STREQ(root.GetReportFile(), L"");
  EXPECT_STREQ(root.GetLayoutFile(), L"");
  EXPECT_STREQ(root.GetReportType(), L"");
  EXPECT_STREQ(root.GetPrintTemplatesPath(), L"");
  EXPECT_STREQ(root.GetLayoutPath(), L"");
}

TEST(ReportRootElement, PathsEndInABackslash) {
  CReportRootElement root;
  root.SetLayoutPath(L"C:\\layouts");
  EXPECT_STREQ(root.GetLayoutPath(), L"C:\\layouts\\");
  root.SetLayoutPath(L"C:\\layouts\\");
  EXPECT_STREQ(root.GetLayoutPath(), L"C:\\layouts\\");
  root.SetPrintTemplatesPath(L"/srv/print/");
  EXPECT_STREQ(root.GetPrintTemplatesPath(), L"/srv/print/\\");
  root.SetReportType(L"Rechnung");
  EXPECT_STREQ(root.GetReportType(), L"Rechnung");
}

TEST(ReportRootElement, AnEmptyPathStaysEmpty) {
  CReportRootElement root;
  root.SetLayoutPath(L"");
  root.SetPrintTemplatesPath(L"");
  EXPECT_STREQ(root.GetLayoutPath(), L"");
  EXPECT_STREQ(root.GetPrintTemplatesPath(), L"");
}

TEST(ReportRootElement, FixedSettersFreeNothing) {
  CReportRootElement root;
  const auto document = std::make_unique<CReportDocument>();
  const auto layout = std::make_unique<CReportLayout>();
  root.SetReportDocument(document.get());
  root.SetReportLayout(layout.get());
  EXPECT_EQ(root.GetReportDocument(), document.get());
  EXPECT_EQ(root.GetReportLayout(), layout.get());
  root.SetReportDocument(nullptr);
  root.SetReportLayout(nullptr);
  EXPECT_EQ(document->GetVersionNr(), 2);
  EXPECT_EQ(layout->GetVersionNr(), 3);
}

TEST(ReportRootElement, FixedACopyClaimsTheSameDocumentAndLayout) {
  CReportRootElement root;
  root.SetReportDocument(new CReportDocument);
  root.SetReportLayout(new CReportLayout);
  root.SetReportType(L"T");
  root.SetLayoutPath(L"p");
  const CReportRootElement& copy = zebtest::KeepForever(new CReportRootElement(root));
  EXPECT_EQ(copy.GetReportDocument(), root.GetReportDocument());
  EXPECT_EQ(copy.GetReportLayout(), root.GetReportLayout());
  EXPECT_STREQ(copy.GetReportType(), L"T");
  CReportRootElement& assigned = zebtest::KeepForever(new CReportRootElement);
  assigned = root;
  EXPECT_EQ(assigned.GetReportDocument(), root.GetReportDocument());
  EXPECT_STREQ(assigned.GetLayoutPath(), L"p\\");
}

TEST(ReportRootElement, ClearsTheDeletableObjects) {
  int deaths = 0;
  CReportRootElement::AddDeletableObject(new Mortal(deaths));
  CReportRootElement::AddDeletableObject(nullptr);
  CReportRootElement::AddDeletableObject(new Mortal(deaths));
  EXPECT_EQ(deaths, 0);
  CReportRootElement::ClearDeletedObjects();
  EXPECT_EQ(deaths, 2);
  CReportRootElement::ClearDeletedObjects();
  EXPECT_EQ(deaths, 2);
}

TEST(ReportRootElement, FixedTheEndOfAnyReportClearsTheListOfTheProcess) {
  int deaths = 0;
  CReportRootElement::AddDeletableObject(new Mortal(deaths));
  { const CReportRootElement unrelated; }
  EXPECT_EQ(deaths, 1);
}

TEST(ReportRootElement, LoadingNothingDoesNothing) {
  CReportRootElement root;
  root.LoadReport(nullptr, nullptr);
  EXPECT_EQ(root.GetReportDocument(), nullptr);
  EXPECT_EQ(root.GetReportLayout(), nullptr);
  EXPECT_STREQ(root.GetReportFile(), L"");
}

TEST(ReportRootElement, AReportFileAloneGivesNoLayout) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone("", "", 1));
  EXPECT_EQ(report.Document().GetVersionNr(), 2);
  EXPECT_EQ(report->GetReportLayout(), nullptr);
  EXPECT_STREQ(report->GetReportType(), L"T");
  EXPECT_EQ(report->GetReportFile(), report.Dir().WideFile("in-report.xml"));
  EXPECT_STREQ(report->GetLayoutFile(), L"");
}

TEST(ReportRootElement, ALayoutFileAloneGivesNoDocument) {
  LoadedReport report;
  report.LoadLayoutText(zebtest::LayoutOfOnePage(""));
  EXPECT_EQ(report->GetReportDocument(), nullptr);
  EXPECT_EQ(report.Layout().GetPageCount(), 1);
  EXPECT_EQ(report->GetLayoutFile(), report.Dir().WideFile("in-layout.xml"));
}

TEST(ReportRootElement, ALayoutFileWithoutIdentifierLeavesTheLayoutAsItWas) {
  LoadedReport report;
  auto* layout = new CReportLayout;
  report->SetReportLayout(layout);
  report.LoadLayoutText("<ReportLayout><VersionNr>3</VersionNr><LayoutPage/></ReportLayout>");
  EXPECT_EQ(report->GetReportLayout(), layout);
}

TEST(ReportRootElement, FixedLoadingAgainDoesNotFreeTheEarlierModel) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(""));
  const std::unique_ptr<CReportDocument> earlier(report->GetReportDocument());
  report.LoadReportText(ReportOfOneZone(""));
  EXPECT_NE(report->GetReportDocument(), earlier.get());
  EXPECT_EQ(earlier->GetReportZoneCount(), 1);
  report.LoadLayoutText(zebtest::LayoutOfOnePage(""));
  const std::unique_ptr<CReportLayout> earlierLayout(report->GetReportLayout());
  report.LoadLayoutText(zebtest::LayoutOfOnePage(""));
  EXPECT_NE(report->GetReportLayout(), earlierLayout.get());
  EXPECT_EQ(earlierLayout->GetPageCount(), 1);
}

TEST(ReportRootElement, LoadReportLayoutFreesTheEarlierLayout) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(""));
  report.LoadLayoutText(zebtest::LayoutOfOnePage(""));
  report->LoadReportLayout(report.Dir().WideFile("in-layout.xml").c_str());
  EXPECT_EQ(report.Layout().GetPageCount(), 1);
  EXPECT_NE(report->GetReportDocument(), nullptr);
}

TEST(ReportRootElement, FixedWithoutADocumentLoadReportLayoutFreesNothing) {
  LoadedReport report;
  report.LoadLayoutText(zebtest::LayoutOfOnePage(""));
  const std::unique_ptr<CReportLayout> earlier(report->GetReportLayout());
  report->LoadReportLayout(report.Dir().WideFile("in-layout.xml").c_str());
  EXPECT_NE(report->GetReportLayout(), earlier.get());
  EXPECT_EQ(earlier->GetPageCount(), 1);
}

TEST(ReportRootElement, LoadReportLayoutThatFailsLeavesNoLayout) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(""));
  report.LoadLayoutText(zebtest::LayoutOfOnePage(""));
  EXPECT_THROW(report->LoadReportLayout(report.Dir().WideFile("missing.xml").c_str()), CKXXMLException);
  EXPECT_EQ(report->GetReportLayout(), nullptr);
}

TEST(ReportRootElement, LoadReportDocumentFindsTheLayoutInTheLayoutPath) {
  LoadedReport report;
  fs::create_directory(report.Dir().File("layouts"));
  zebtest::WriteFile(report.Dir().File("layouts/l.xml"), zebtest::LayoutOfOnePage(zebtest::TextRecord(1)));
  zebtest::WriteFile(report.Dir().File("r.xml"), ReportOfOneZone(""));
  report->SetLayoutPath(report.Dir().WideFile("layouts").c_str());
  report->LoadReportDocument(report.Dir().WideFile("r.xml").c_str(), false);
  EXPECT_EQ(report->GetReportLayout(), nullptr);
  const std::unique_ptr<CReportDocument> earlier(report->GetReportDocument());
  report->LoadReportDocument(report.Dir().WideFile("r.xml").c_str(), true);
  EXPECT_EQ(report.Page(0).GetLayoutContentCount(), 1);
  EXPECT_EQ(report->GetLayoutFile(), report.Dir().WideFile("layouts") + L"\\l.xml");
}

TEST(ReportRootElement, LoadReportDocumentWithoutADocumentLoadsNoLayout) {
  LoadedReport report;
  zebtest::WriteFile(report.Dir().File("r.xml"), "<ReportRootElement/>");
  report->LoadReportDocument(report.Dir().WideFile("r.xml").c_str(), true);
  EXPECT_EQ(report->GetReportDocument(), nullptr);
  EXPECT_EQ(report->GetReportLayout(), nullptr);
}

TEST(ReportRootElement, RootVersionIsWrittenAsItWasRead) {
  LoadedReport report;
  report.LoadReportText(
      "<ReportRootElement><VersionNr>7</VersionNr><ReportType>T</ReportType>"
      "<ReportDocument><VersionNr>1</VersionNr></ReportDocument></ReportRootElement>");
  const std::string file = report.SavedReport();
  EXPECT_TRUE(zebtest::StandsBefore(file, "<VersionNr>7</VersionNr>", "<ReportDocument>"));
  EXPECT_TRUE(zebtest::StandsBefore(file, "<ReportDocument>", "<VersionNr>2</VersionNr>"));
}

TEST(ReportRootElement, AnEmptyReportTypeIsWritten) {
  LoadedReport report;
  report->SetReportDocument(new CReportDocument);
  EXPECT_EQ(report.SavedReport(), kEmptyReport);
}

TEST(ReportRootElement, WithoutADocumentTheFileIsItsFrame) {
  LoadedReport report;
  EXPECT_EQ(report.SavedReport(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ReportRootElement>\n  <VersionNr>1</VersionNr>\n"
            "  <ReportType/>\n</ReportRootElement>\n");
  EXPECT_EQ(report.SavedLayout(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ReportLayout/>\n");
}

TEST(ReportRootElement, SavingBothNamesTheLayoutByItsFileName) {
  LoadedReport report;
  report->SetReportDocument(new CReportDocument);
  report->SetReportLayout(new CReportLayout);
  report.Document().SetReportLayoutName(L"old.xml");
  const std::wstring layoutFile = report.Dir().WidePath() + L"\\new.xml";
  report->SaveReport(report.Dir().WideFile("r.xml").c_str(), layoutFile.c_str());
  EXPECT_STREQ(report.Document().GetReportLayoutName(), L"new.xml");
  EXPECT_NE(
      zebtest::ReadFile(report.Dir().File("r.xml")).find("<ReportLayoutName>new.xml</ReportLayoutName>"),
      std::string::npos);
  EXPECT_TRUE(fs::exists(report.Dir().File("new.xml")));
}

TEST(ReportRootElement, WithoutALayoutTheLayoutNameStays) {
  LoadedReport report;
  report->SetReportDocument(new CReportDocument);
  report.Document().SetReportLayoutName(L"old.xml");
  report->SaveReportDocument(report.Dir().WideFile("r.xml").c_str());
  EXPECT_STREQ(report.Document().GetReportLayoutName(), L"old.xml");
}

TEST(ReportRootElement, SaveReportLayoutWritesNoReport) {
  LoadedReport report;
  report->SetReportDocument(new CReportDocument);
  report->SetReportLayout(new CReportLayout);
  report->SaveReportLayout(report.Dir().WideFile("l.xml").c_str());
  EXPECT_TRUE(fs::exists(report.Dir().File("l.xml")));
  EXPECT_STREQ(report.Document().GetReportLayoutName(), L"");
  EXPECT_EQ(report->GetLayoutFile(), report.Dir().WideFile("l.xml"));
}

TEST(ReportRootElement, TheLayoutFileIsWrittenFirst) {
  LoadedReport report;
  report->SetReportDocument(new CReportDocument);
  report->SetReportLayout(new CReportLayout);
  const std::wstring impossible = report.Dir().WideFile("missing/r.xml");
  EXPECT_THROW(report->SaveReport(impossible.c_str(), report.Dir().WideFile("l.xml").c_str()),
               CKXXMLException);
  EXPECT_TRUE(fs::exists(report.Dir().File("l.xml")));
  EXPECT_THROW(report->SaveReport(report.Dir().WideFile("r.xml").c_str(), impossible.c_str()),
               CKXXMLException);
  EXPECT_FALSE(fs::exists(report.Dir().File("r.xml")));
}

TEST(ReportRootElement, AMissingFileIsAnXMLFailure) {
  LoadedReport report;
  const std::wstring missing = report.Dir().WideFile("missing.xml");
  EXPECT_EQ(NumberOfXMLFailure([&] { report->LoadReport(missing.c_str(), nullptr); }), 1);
  EXPECT_EQ(NumberOfXMLFailure([&] { report->LoadReport(nullptr, missing.c_str()); }), 1);
  EXPECT_EQ(report->GetReportFile(), missing) << "paths are kept whatever happens";
}

TEST(ReportRootElement, AFileThatIsNotWellFormedIsAnXMLFailure) {
  LoadedReport report;
  EXPECT_EQ(NumberOfXMLFailure([&] { report.LoadReportText("<ReportRootElement><VersionNr>"); }), 2);
}

// The document must be freed although the failure passes, and what was built must stay.
TEST(ReportRootElement, AFailureInTheLayoutLeavesTheZonesUnfilled) {
  LoadedReport report;
  zebtest::WriteFile(report.Dir().File("r.xml"), ReportOfOneZone("", "", 1));
  EXPECT_THROW(
      report->LoadReport(report.Dir().WideFile("r.xml").c_str(), report.Dir().WideFile("no.xml").c_str()),
      CKXXMLException);
  ASSERT_NE(report->GetReportDocument(), nullptr);
  EXPECT_EQ(report.Document().GetReportZoneCount(), 1);
  EXPECT_STREQ(report.Zone(0).GetInternalReportZoneName(), L"");
  EXPECT_EQ(report.Document().GetVersionNr(), 1) << "the version is not declared current";
}

// The catalogue's path is the process's, so the test reads the shipped one and throws by key.
TEST(ReportRootElement, SavingToAReadOnlyReportIsRefusedByKey) {
  LoadedReport report;
  CKXExceptionHandler::GetInstance().ReadExceptions(
      zebtest::WidePath(ZEB_SHARE "/KXErrorMessages.xml").c_str());
  report->SetReportDocument(new CReportDocument);
  const fs::path file = report.Dir().File("r.xml");
  zebtest::WriteFile(file, "old");
  fs::permissions(file, fs::perms::owner_read);
  int expected = 0;
  try {
    CKXExceptionHandler::GetInstance().ThrowException(L"FileReadOnly");
  } catch (const CKXException& exception) {
    expected = exception.GetErrorNr();
  }
  ASSERT_GT(expected, 0);
  try {
    report->SaveReport(report.Dir().WideFile("r.xml").c_str(), nullptr);
    ADD_FAILURE() << "saved over a read-only file";
  } catch (const CKXException& exception) {
    EXPECT_EQ(exception.GetErrorNr(), expected);
  }
  EXPECT_EQ(zebtest::ReadFile(file), "old");
}

TEST(ReportRootElement, FixedAReadOnlyLayoutAloneIsAnXMLFailure) {
  LoadedReport report;
  report->SetReportLayout(new CReportLayout);
  const fs::path file = report.Dir().File("l.xml");
  zebtest::WriteFile(file, "old");
  fs::permissions(file, fs::perms::owner_read);
  EXPECT_EQ(NumberOfXMLFailure([&] { report->SaveReportLayout(report.Dir().WideFile("l.xml").c_str()); }), 4);
}

TEST(ReportRootElement, FixedAFailureOfTheLayoutAsksTheReportFile) {
  LoadedReport report;
  report->SetReportDocument(new CReportDocument);
  zebtest::WriteFile(report.Dir().File("r.xml"), "old");
  fs::permissions(report.Dir().File("r.xml"), fs::perms::owner_read);
  EXPECT_THROW(
      {
        try {
          report->SaveReport(report.Dir().WideFile("r.xml").c_str(),
                             report.Dir().WideFile("no/l.xml").c_str());
        } catch (const CKXXMLException&) {
          ADD_FAILURE() << "the read-only report file decides";
          throw;
        }
      },
      CKXException);
}

TEST(ReportRootElement, OtherWriteFailuresAreXMLFailures) {
  LoadedReport report;
  report->SetReportDocument(new CReportDocument);
  const std::wstring missing = report.Dir().WideFile("no/r.xml");
  EXPECT_EQ(NumberOfXMLFailure([&] { report->SaveReportDocument(missing.c_str()); }), 3);
  EXPECT_EQ(NumberOfXMLFailure([&] { report->SaveValueHolders(missing.c_str()); }), 3);
}

TEST(ReportRootElement, FixedTheValueHolderListIsNotAskedForReadOnly) {
  LoadedReport report;
  report->SetReportDocument(new CReportDocument);
  const fs::path file = report.Dir().File("v.xml");
  zebtest::WriteFile(file, "old");
  fs::permissions(file, fs::perms::owner_read);
  EXPECT_EQ(NumberOfXMLFailure([&] { report->SaveValueHolders(report.Dir().WideFile("v.xml").c_str()); }), 4);
}

TEST(ReportRootElement, WritesTheValueHolderList) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(
      "<VHID>2</VHID><SumVHID>3</SumVHID><TableCellID>4</TableCellID><VHID>5</VHID>"
      "<DefinedFormulaVHID>6</DefinedFormulaVHID>",
      zebtest::ValueHolderRecord(2, "", "AD.Name") + zebtest::ValueHolderRecord(5, "", "IN.Zelle")));
  report.Document().AddReportZone(nullptr);
  report->SaveValueHolders(report.Dir().WideFile("v.xml").c_str());
  EXPECT_EQ(
      zebtest::ReadFile(report.Dir().File("v.xml")),
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ValueHolderData>\n  <VersionNr>1</VersionNr>\n"
      "  <ReportZone>\n    <InternalKey>Zone</InternalKey>\n    <ValueHolderKey>AD.Name</ValueHolderKey>\n"
      "    <ValueHolderKey/>\n  </ReportZone>\n</ValueHolderData>\n");
}

// The user's default locale has a decimal comma here; the files must not.
TEST(ReportRootElement, FilesHavePointsAndTheUsersLocaleComesBack) {
  const zebtest::ScopedEnvironment all("LC_ALL", std::string(zebtest::kCommaLocale));
  const zebtest::ScopedLocale locale(LC_NUMERIC, zebtest::kCommaLocale);
  if (!locale.Ok()) GTEST_SKIP() << "no locale with a decimal comma";
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone("<TxID>2</TxID>", zebtest::TextRecord(2, "<Width>12.5</Width>")));
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), zebtest::kCommaLocale);
  EXPECT_EQ(report.Zone(0).GetTextElementAt(0)->GetWidth(), 12.5F);
  EXPECT_NE(report.SavedReport().find("<Width>12.5</Width>"), std::string::npos);
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), zebtest::kCommaLocale);
  EXPECT_THROW(report->LoadReport(report.Dir().WideFile("no.xml").c_str(), nullptr), CKXXMLException);
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), zebtest::kCommaLocale) << "also where a failure passes";
}
