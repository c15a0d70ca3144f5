// The sample reports of the examples folder: what its README tells of them, and that saving them settles at once.

#include "model/Border.h"
#include "model/Condition.h"
#include "model/CopyValueHolder.h"
#include "model/DynamicValueHolder.h"
#include "model/LayoutRect.h"
#include "model/Picture.h"
#include "model/RGBColor.h"
#include "model/SumValueHolder.h"
#include "support/LoadedReport.h"
#include "support/ScopedEnvironment.h"
#include "support/ScopedFontPool.h"
#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

using zebtest::LoadedReport;
namespace fs = std::filesystem;

fs::path Example(const std::string& name) { return fs::path(ZEB_EXAMPLES) / name; }

void Load(LoadedReport& report, const std::string& reportFile, const std::string& layoutFile) {
  report->LoadReport(zebtest::WidePath(Example(reportFile)).c_str(),
                     zebtest::WidePath(Example(layoutFile)).c_str());
}

/// The files that saving gives.
struct Saved {
  std::string Report;
  std::string Layout;
};

// Folders are parted by backslashes here, so that the report names its layout by the file's name alone.
Saved Save(LoadedReport& report) {
  const std::wstring folder = report.Dir().WidePath() + L'\\';
  report->SaveReport((folder + L"report.xml").c_str(), (folder + L"layout.xml").c_str());
  return {zebtest::ReadFile(report.Dir().File("report.xml")),
          zebtest::ReadFile(report.Dir().File("layout.xml"))};
}

/// Saves, loads what was saved, and saves again.
Saved SaveAgain(const Saved& saved) {
  LoadedReport report;
  report.LoadReportText(saved.Report);
  report.LoadLayoutText(saved.Layout);
  return Save(report);
}

std::vector<std::wstring> ZoneNames(CReportDocument& document) {
  std::vector<std::wstring> names;
  names.reserve(static_cast<std::size_t>(document.GetReportZoneCount()));
  for (int i = 0; i < document.GetReportZoneCount(); ++i) {
    names.emplace_back(document.GetReportZoneAt(i)->GetInternalReportZoneName());
  }
  return names;
}

/// All value holders of a zone, those in its cells behind the others.
std::vector<CValueHolder*> ValueHolders(CReportZone& zone) {
  std::vector<CValueHolder*> found;
  found.reserve(static_cast<std::size_t>(zone.GetValueHolderCount()));
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) found.push_back(zone.GetValueHolderAt(i));
  for (int i = 0; i < zone.GetTableCellCount(); ++i) {
    const CTableCell* cell = zone.GetTableCellAt(i);
    for (int j = 0; j < cell->GetCellElementCount(); ++j) {
      if (auto* valueHolder = dynamic_cast<CValueHolder*>(cell->GetCellElementAt(j)))
        found.push_back(valueHolder);
    }
  }
  return found;
}

CValueHolder* FindKey(CReportZone& zone, const std::wstring& key) {
  for (CValueHolder* valueHolder : ValueHolders(zone)) {
    if (valueHolder->GetInternalKey() == key) return valueHolder;
  }
  return nullptr;
}

template <class Kind>
std::vector<Kind*> OfKind(CReportZone& zone) {
  std::vector<Kind*> found;
  for (CValueHolder* valueHolder : ValueHolders(zone)) {
    if (auto* ofKind = dynamic_cast<Kind*>(valueHolder)) found.push_back(ofKind);
  }
  return found;
}

/// Where two files part, with what stands there.
std::string FirstDifference(const std::string& left, const std::string& right) {
  const auto at = static_cast<std::size_t>(
      std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first - left.begin());
  const std::size_t from = at < 60 ? 0 : at - 60;
  return "at " + std::to_string(at) + ":\n" + left.substr(from, 160) + "\n---\n" + right.substr(from, 160);
}

/// The file without the lines of upper and lower distances.
std::string WithoutVerticalDistances(const std::string& file) {
  std::istringstream lines(file);
  std::string kept;
  for (std::string line; std::getline(lines, line);) {
    bool isDistance = false;
    for (const char* name : {"<UpperDistance>", "<LowerDistance>", "<BaseUpper>", "<BaseLower>"}) {
      isDistance = isDistance || line.find(name) != std::string::npos;
    }
    if (!isDistance) kept += line + '\n';
  }
  return kept;
}

struct Pair {
  const char* Report;
  const char* Layout;
};

class ExampleReports : public ::testing::TestWithParam<Pair> {};

}  // namespace

TEST_P(ExampleReports, SavingSettlesAtOnce) {
  // The programs of fonts leave the files for the pool.
  const zebtest::ScopedFontPool pool;
  LoadedReport report;
  Load(report, GetParam().Report, GetParam().Layout);
  const Saved first = SaveAgain(Save(report));
  const Saved second = SaveAgain(first);
  EXPECT_TRUE(first.Report == second.Report) << FirstDifference(first.Report, second.Report);
  EXPECT_TRUE(first.Layout == second.Layout) << FirstDifference(first.Layout, second.Layout);
}

TEST_P(ExampleReports, TheLocaleDoesNotShowInFiles) {
  LoadedReport plain;
  Load(plain, GetParam().Report, GetParam().Layout);
  const Saved expected = Save(plain);
  const zebtest::ScopedEnvironment all("LC_ALL", std::string(zebtest::kCommaLocale));
  const zebtest::ScopedLocale locale(LC_NUMERIC, zebtest::kCommaLocale);
  if (!locale.Ok()) GTEST_SKIP() << "no locale with a decimal comma";
  LoadedReport report;
  Load(report, GetParam().Report, GetParam().Layout);
  const Saved saved = Save(report);
  EXPECT_TRUE(saved.Report == expected.Report) << FirstDifference(saved.Report, expected.Report);
  EXPECT_TRUE(saved.Layout == expected.Layout) << FirstDifference(saved.Layout, expected.Layout);
}

TEST_P(ExampleReports, TheirPagesAndZonesCanBeOrdered) {
  LoadedReport report;
  Load(report, GetParam().Report, GetParam().Layout);
  for (int i = 0; i < report.Document().GetReportZoneCount(); ++i) {
    report.Zone(i).CalculateOrderedElements(true);
    EXPECT_GT(report.Zone(i).GetOrderedElementCount(), 0);
  }
  for (int i = 0; i < report.Layout().GetPageCount(); ++i) {
    report.Page(i).CalculateOrderedElements();
    EXPECT_EQ(report.Page(i).GetOrderedElementCount(), report.Page(i).GetLayoutContentCount());
  }
}

INSTANTIATE_TEST_SUITE_P(All, ExampleReports,
                         ::testing::Values(Pair{"invoice/report.xml", "invoice/layout.xml"},
                                           Pair{"statement/report.xml", "statement/layout.xml"},
                                           Pair{"legacy/report.xml", "legacy/layout.xml"},
                                           Pair{"legacy/report.xml", "legacy/layout_v1.xml"}));

// The invoice needs no font of its own and is of the current version: nothing of it may change.
TEST(ExampleInvoice, IsSavedByteForByte) {
  LoadedReport report;
  Load(report, "invoice/report.xml", "invoice/layout.xml");
  const Saved saved = Save(report);
  const std::string layout = zebtest::ReadFile(Example("invoice/layout.xml"));
  const std::string content = zebtest::ReadFile(Example("invoice/report.xml"));
  EXPECT_TRUE(saved.Layout == layout) << FirstDifference(saved.Layout, layout);
  EXPECT_TRUE(saved.Report == content) << FirstDifference(saved.Report, content);
}

TEST(ExampleInvoice, HasItsZonesAndPages) {
  LoadedReport report;
  Load(report, "invoice/report.xml", "invoice/layout.xml");
  EXPECT_STREQ(report->GetReportType(), L"Rechnung");
  EXPECT_EQ(ZoneNames(report.Document()),
            (std::vector<std::wstring>{L"Kopf", L"PositionsKopf", L"Position", L"Text", L"Summe", L"Fuss"}));
  EXPECT_TRUE(report.Layout().GetFirstPageIndependent());
  EXPECT_FALSE(report.Layout().GetEvenOddPagesIndependent());
  ASSERT_EQ(report.Layout().GetPageCount(), 2);
  EXPECT_EQ(report.Page(0).GetPaperRect()->GetULY(), 842.0F);
  EXPECT_EQ(report.Page(0).GetPaperObject()->GetWidth(), 595.0F);
  EXPECT_EQ(report.Page(0).GetBorderRect()->GetLRX() - report.Page(0).GetBorderRect()->GetULX(), 481.0F);
}

TEST(ExampleInvoice, HasItsZoneSettings) {
  LoadedReport report;
  Load(report, "invoice/report.xml", "invoice/layout.xml");
  CReportZone& head = *report.Document().FindReportZone(L"PositionsKopf");
  EXPECT_TRUE(head.GetPageBreakNotLastZone());
  ASSERT_EQ(head.GetZonesKeepTogetherCount(), 1);
  EXPECT_STREQ(head.GetZonesKeepTogetherAt(0), L"Position");
  CReportZone& sum = *report.Document().FindReportZone(L"Summe");
  EXPECT_TRUE(sum.GetFooterZone());
  ASSERT_EQ(sum.GetZonesKeepTogetherCount(), 2);
  EXPECT_STREQ(sum.GetZonesKeepTogetherAt(0), L"Text");
  EXPECT_STREQ(sum.GetZonesKeepTogetherAt(1), L"Fuss");
}

TEST(ExampleInvoice, HasATableOfTwoRowsInItsPositions) {
  LoadedReport report;
  Load(report, "invoice/report.xml", "invoice/layout.xml");
  CReportZone& zone = *report.Document().FindReportZone(L"Position");
  EXPECT_EQ(zone.GetDefinedFormulaValueHoldersCount(), 2);
  int lastRow = 0;
  for (int i = 0; i < zone.GetTableCellCount(); ++i)
    lastRow = std::max(lastRow, zone.GetTableCellAt(i)->GetRowIndex());
  EXPECT_EQ(lastRow, 1);
  const CValueHolder* price = FindKey(zone, L"Preis");
  ASSERT_NE(price, nullptr);
  EXPECT_EQ(price->GetWidth(), 0.0F);
  EXPECT_TRUE(price->GetTableCell()->HasVariableWidthElements());
}

TEST(ExampleInvoice, HasItsRichTextAndItsPicture) {
  LoadedReport report;
  Load(report, "invoice/report.xml", "invoice/layout.xml");
  const CValueHolder* note = FindKey(*report.Document().FindReportZone(L"Text"), L"BE.Notiz");
  ASSERT_NE(note, nullptr);
  EXPECT_TRUE(note->GetHasRTFContent());
  const CValueHolder* signature = FindKey(*report.Document().FindReportZone(L"Fuss"), L"BE.Unterschrift");
  ASSERT_NE(signature, nullptr);
  EXPECT_EQ(static_cast<int>(signature->GetValueHolderType()), 8);
}

TEST(ExampleStatement, HasItsZonesAndPages) {
  LoadedReport report;
  Load(report, "statement/report.xml", "statement/layout.xml");
  EXPECT_STREQ(report->GetReportType(), L"Kontoauszug");
  EXPECT_EQ(ZoneNames(report.Document()),
            (std::vector<std::wstring>{L"Kopf", L"BuchungsKopf", L"Buchung", L"Saldo", L"Hinweis"}));
  EXPECT_TRUE(report.Layout().GetEvenOddPagesIndependent());
  ASSERT_EQ(report.Layout().GetPageCount(), 2);
  EXPECT_EQ(report.Layout().GetOddPage(), report.Layout().GetPageAt(0));
  EXPECT_EQ(report.Layout().GetEvenPage(), report.Layout().GetPageAt(1));
}

TEST(ExampleStatement, HasThreeSumsTwoOfThemOverOneKeyInItsFooter) {
  LoadedReport report;
  Load(report, "statement/report.xml", "statement/layout.xml");
  CReportZone& zone = *report.Document().FindReportZone(L"Saldo");
  EXPECT_TRUE(zone.GetFooterZone());
  const auto sums = OfKind<CSumValueHolder>(zone);
  ASSERT_EQ(sums.size(), 3U);
  std::multiset<std::wstring> keys;
  for (const CSumValueHolder* sum : sums) keys.insert(sum->GetSumKey());
  EXPECT_EQ(std::set<std::wstring>(keys.begin(), keys.end()).size(), 2U);
  EXPECT_GT(zone.GetTableCellCount(), 0);
}

TEST(ExampleStatement, HasCopiedDynamicAndFormulaFieldsInATable) {
  LoadedReport report;
  Load(report, "statement/report.xml", "statement/layout.xml");
  CReportZone& zone = *report.Document().FindReportZone(L"Saldo");
  const auto copies = OfKind<CCopyValueHolder>(zone);
  ASSERT_FALSE(copies.empty());
  EXPECT_TRUE(report.Document().FindCopyValueHolderKey(copies[0]->GetRefZoneID(), copies[0]->GetRefVHID()));
  EXPECT_STREQ(copies[0]->GetRefVHID(), copies[0]->GetInternalKey());
  const CReportZone* source = report.Document().FindReportZone(copies[0]->GetRefZoneID());
  ASSERT_NE(source, nullptr);
  EXPECT_FALSE(OfKind<CDynamicValueHolder>(zone).empty());
  EXPECT_FALSE(OfKind<CFormulaValueHolder>(zone).empty());
  EXPECT_GT(zone.GetFormulaValueHoldersInTableCellsCount(), 0);
  EXPECT_FALSE(OfKind<CSumValueHolder>(*report.Document().FindReportZone(L"Buchung")).empty());
}

TEST(ExampleLegacy, IsUpgraded) {
  LoadedReport report;
  Load(report, "legacy/report.xml", "legacy/layout.xml");
  EXPECT_EQ(ZoneNames(report.Document()), (std::vector<std::wstring>{L"Kopf", L"Position", L"Fuss"}));
  EXPECT_EQ(report.Document().GetVersionNr(), 2);
  EXPECT_EQ(report.Layout().GetVersionNr(), 3);
  EXPECT_EQ(report.Layout().GetPageCount(), 1);
  EXPECT_TRUE(report.Document().FindReportZone(L"Fuss")->GetFooterZone());
}

// The same page in two old versions: only the meaning of its distances differs.
TEST(ExampleLegacy, BothOldLayoutsAreOnePage) {
  LoadedReport second;
  Load(second, "legacy/report.xml", "legacy/layout.xml");
  LoadedReport first;
  Load(first, "legacy/report.xml", "legacy/layout_v1.xml");
  const std::string one = WithoutVerticalDistances(first.SavedLayout());
  const std::string other = WithoutVerticalDistances(second.SavedLayout());
  EXPECT_TRUE(one == other) << FirstDifference(one, other);
  const CBorder* border = first.Page(0).GetLayoutContentAt(0)->GetBorder();
  EXPECT_EQ(border->GetUpperTextDistance(), 0.0F);
  EXPECT_EQ(border->GetBaseLineToUpperDistance(), 2.0F);
  EXPECT_EQ(border->GetBaseLineToLowerDistance(), 1.0F);
  EXPECT_EQ(second.Page(0).GetLayoutContentAt(0)->GetBorder()->GetBaseLineToUpperDistance(), 7.785F);
}

TEST(ExampleLegacy, TheSumBehindTheFirstCellBelongsToThePage) {
  LoadedReport report;
  Load(report, "legacy/report.xml", "legacy/layout.xml");
  int cells = 0;
  int sums = 0;
  for (int i = 0; i < report.Page(0).GetLayoutContentCount(); ++i) {
    CPlaceable* object = report.Page(0).GetLayoutContentAt(i);
    if (const auto* cell = dynamic_cast<CTableCell*>(object)) {
      ++cells;
      EXPECT_GT(cell->GetCellElementCount(), 0);
    }
    if (dynamic_cast<CSumValueHolder*>(object) != nullptr) ++sums;
  }
  EXPECT_GT(cells, 0);
  EXPECT_GT(sums, 0);
}

TEST(ExampleLegacy, ColoursAreScaled) {
  LoadedReport report;
  Load(report, "legacy/report.xml", "legacy/layout.xml");
  const CRGBColor* color = report.Page(0).GetLayoutContentAt(0)->GetTextColor();
  ASSERT_NE(color, nullptr);
  EXPECT_EQ(color->GetRed(), 0.0F);
  EXPECT_NEAR(color->GetGreen(), 64.0 / 255.0, 1e-6);
  EXPECT_NEAR(color->GetBlue(), 128.0 / 255.0, 1e-6);
}
