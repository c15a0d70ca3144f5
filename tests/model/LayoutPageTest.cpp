#include "model/LayoutPage.h"

#include "model/Border.h"
#include "model/CopyValueHolder.h"
#include "model/DynamicValueHolder.h"
#include "model/LayoutRect.h"
#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/SumValueHolder.h"
#include "placement/PlaceableRelation.h"
#include "support/KeepForever.h"
#include "support/LoadedReport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using zebtest::LayoutOfOnePage;
using zebtest::LoadedReport;
using zebtest::TextRecord;
using zebtest::ValueHolderRecord;

/// A report with a layout of one empty page.
CLayoutPage& NewPage(LoadedReport& report) {
  auto* layout = new CReportLayout;
  layout->GetPageAt(0)->SetPaperRect(new LayoutRect(0, 842, 595, 0));
  layout->GetPageAt(0)->SetBorderRect(new LayoutRect(57, 740, 538, 120));
  report->SetReportLayout(layout);
  return *layout->GetPageAt(0);
}

std::string Outer(const std::string& name, int id, const std::string& more = "") {
  return "<" + name + ">" + ValueHolderRecord(id) + more + "</" + name + ">";
}

std::string Object(const std::string& name, const std::string& idName, int id,
                   const std::string& placeable = "") {
  const std::string number = std::to_string(id);
  return "<" + name + "><" + idName + ">" + number + "</" + idName + "><Placeable><PlID>" + number +
         "</PlID>" + placeable + "</Placeable></" + name + ">";
}

std::string CellRecord(int id) { return Object("TableCell", "TableCellID", id); }

const std::string kOldDistances =
    "<Border><UpperDistance>4.0</UpperDistance><LowerDistance>3.0</LowerDistance></Border>";

}  // namespace

TEST(LayoutPage, SizesThePaperObjectWithYGrowingUpward) {
  CReportLayout layout;
  CLayoutPage page(&layout);
  page.SetPaperRect(new LayoutRect(0, 842, 595, 0));
  EXPECT_EQ(page.GetPaperObject()->GetWidth(), 595.0F);
  EXPECT_EQ(page.GetPaperObject()->GetHeight(), 842.0F);
  EXPECT_FALSE(page.GetPaperObject()->IsZoneObject());
  page.SetBorderRect(new LayoutRect(57, 740, 538, 120));
  EXPECT_EQ(page.GetBorderRect()->GetULX(), 57.0F);
  EXPECT_EQ(page.GetPaperObject()->GetWidth(), 595.0F);
}

TEST(LayoutPage, WithoutAPaperRectThePaperObjectKeepsItsSize) {
  CReportLayout layout;
  CLayoutPage page(&layout);
  page.SetPaperRect(new LayoutRect(10, 110, 60, 10));
  page.SetPaperRect(nullptr);
  page.AssignRectsToObjects();
  EXPECT_EQ(page.GetPaperRect(), nullptr);
  EXPECT_EQ(page.GetPaperObject()->GetWidth(), 50.0F);
  EXPECT_EQ(page.GetPaperObject()->GetHeight(), 100.0F);
}

TEST(LayoutPage, KeepsItsContentInOrder) {
  CReportLayout layout;
  CLayoutPage page(&layout);
  auto* text = new CText;
  page.AddLayoutContent(text);
  page.AddLayoutContent(nullptr);
  EXPECT_EQ(page.GetLayoutContentCount(), 2);
  EXPECT_EQ(page.GetLayoutContentAt(0), text);
}

TEST(LayoutPage, FixedReplacingAnObjectDoesNotFreeTheOldOne) {
  CReportLayout layout;
  CLayoutPage page(&layout);
  const auto text = std::make_unique<CText>();
  page.AddLayoutContent(text.get());
  page.SetLayoutContentAt(nullptr, 0);
  EXPECT_EQ(page.GetLayoutContentAt(0), nullptr);
  EXPECT_STREQ(text->GetFontName(), L"Helvetica");
}

TEST(LayoutPage, FixedACellsElementsStayWithTheirMaker) {
  const auto element = std::make_unique<CText>();
  {
    CReportLayout layout;
    auto* cell = new CTableCell;
    cell->AddCellElement(element.get());
    layout.GetPageAt(0)->AddLayoutContent(cell);
  }
  EXPECT_STREQ(element->GetFontName(), L"Helvetica");
}

TEST(LayoutPage, FixedACopySharesItsObjects) {
  CReportLayout layout;
  CLayoutPage& source = *layout.GetPageAt(0);
  source.AddLayoutContent(new CText);
  source.AddLayoutContent(new CText);
  source.GetLayoutContentAt(1)->SetPlaceableRelation(
      CPlaceableRelation::CreatePlRel(RelationPoint{}, RelationPoint{}, 0, 0, source.GetLayoutContentAt(0)));
  source.CalculateOrderedElements();
  const auto expectShared = [&source](CLayoutPage& copy) {
    EXPECT_EQ(copy.GetLayoutContentAt(0), source.GetLayoutContentAt(0));
    EXPECT_EQ(copy.GetPaperRect(), source.GetPaperRect());
    EXPECT_EQ(copy.GetBorderRect(), source.GetBorderRect());
    EXPECT_EQ(copy.GetPaperObject(), source.GetPaperObject());
    EXPECT_EQ(copy.GetOrderedElementCount(), 2);
    EXPECT_EQ(copy.GetPredecessorsAt(source.GetLayoutContentAt(0)),
              source.GetPredecessorsAt(source.GetLayoutContentAt(0)));
  };
  expectShared(zebtest::KeepForever(new CLayoutPage(source)));
  auto* assigned = new CLayoutPage(nullptr);
  delete assigned->GetPaperRect();
  delete assigned->GetBorderRect();
  delete assigned->GetPaperObject();
  *assigned = source;
  expectShared(zebtest::KeepForever(assigned));
}

TEST(LayoutPage, ReadsEveryKindOfObject) {
  LoadedReport report;
  report.LoadLayoutText(
      LayoutOfOnePage(ValueHolderRecord(1) + Outer("FormulaValueHolder", 2) + Outer("SumValueHolder", 3) +
                      Outer("DynValueHolder", 4) + TextRecord(5) + Object("Picture", "PicID", 6) +
                      Object("Rectangle", "RectID", 7) + Object("Line", "LineID", 8) + CellRecord(9)));
  CLayoutPage& page = report.Page(0);
  ASSERT_EQ(page.GetLayoutContentCount(), 9);
  EXPECT_NE(dynamic_cast<CValueHolder*>(page.GetLayoutContentAt(0)), nullptr);
  EXPECT_NE(dynamic_cast<CFormulaValueHolder*>(page.GetLayoutContentAt(1)), nullptr);
  EXPECT_NE(dynamic_cast<CSumValueHolder*>(page.GetLayoutContentAt(2)), nullptr);
  EXPECT_NE(dynamic_cast<CDynamicValueHolder*>(page.GetLayoutContentAt(3)), nullptr);
  EXPECT_NE(dynamic_cast<CText*>(page.GetLayoutContentAt(4)), nullptr);
  EXPECT_NE(dynamic_cast<CPicture*>(page.GetLayoutContentAt(5)), nullptr);
  EXPECT_NE(dynamic_cast<CRectangle*>(page.GetLayoutContentAt(6)), nullptr);
  EXPECT_NE(dynamic_cast<CLine*>(page.GetLayoutContentAt(7)), nullptr);
  EXPECT_NE(dynamic_cast<CTableCell*>(page.GetLayoutContentAt(8)), nullptr);
}

TEST(LayoutPage, FixedACopiedFieldEndsTheContent) {
  LoadedReport report;
  report.LoadLayoutText(LayoutOfOnePage(TextRecord(1) + Outer("CopyValueHolder", 2) + TextRecord(3)));
  EXPECT_EQ(report.Page(0).GetLayoutContentCount(), 1);
}

TEST(LayoutPage, SkipsToItsFirstRectangle) {
  LoadedReport report;
  report.LoadLayoutText(
      "<ReportLayout><VersionNr>3</VersionNr><ReportLayoutID>0</ReportLayoutID><LayoutPage><Foreign/><Text/>"
      "<LayoutRect><Ulx>1.0</Ulx><Uly>9.0</Uly><Lrx>4.0</Lrx><Lry>2.0</Lry></LayoutRect>" +
      TextRecord(1) + "</LayoutPage></ReportLayout>");
  CLayoutPage& page = report.Page(0);
  EXPECT_EQ(page.GetPaperObject()->GetWidth(), 3.0F);
  EXPECT_EQ(page.GetPaperObject()->GetHeight(), 7.0F);
  EXPECT_EQ(page.GetLayoutContentCount(), 1) << "a page without the second rectangle is read on";
}

TEST(LayoutPage, WithoutARectangleNothingIsRead) {
  LoadedReport report;
  report.LoadLayoutText(
      "<ReportLayout><VersionNr>3</VersionNr><ReportLayoutID>0</ReportLayoutID><LayoutPage>" + TextRecord(1) +
      "</LayoutPage></ReportLayout>");
  EXPECT_EQ(report.Page(0).GetLayoutContentCount(), 0);
}

TEST(LayoutPage, FieldsBehindACellAreItsElements) {
  LoadedReport report;
  report.LoadLayoutText(LayoutOfOnePage(CellRecord(1) + TextRecord(2) + ValueHolderRecord(3) +
                                        Outer("FormulaValueHolder", 4) + CellRecord(5) + TextRecord(6)));
  CLayoutPage& page = report.Page(0);
  ASSERT_EQ(page.GetLayoutContentCount(), 2);
  const auto* first = dynamic_cast<CTableCell*>(page.GetLayoutContentAt(0));
  ASSERT_EQ(first->GetCellElementCount(), 3);
  EXPECT_EQ(dynamic_cast<CTableCell*>(page.GetLayoutContentAt(1))->GetCellElementCount(), 1);
  EXPECT_EQ(first->GetCellElementAt(0)->GetTableCell(), nullptr)
      << "elements on a page do not learn of their cell";
}

TEST(LayoutPage, FixedAnOpenCellTakesAllLaterTextsButNoOtherKind) {
  LoadedReport report;
  report.LoadLayoutText(LayoutOfOnePage(TextRecord(1) + CellRecord(2) + Outer("SumValueHolder", 3) +
                                        TextRecord(4) + Outer("DynValueHolder", 5) +
                                        Object("Picture", "PicID", 6) + Object("Rectangle", "RectID", 7) +
                                        Object("Line", "LineID", 8) + TextRecord(9)));
  CLayoutPage& page = report.Page(0);
  ASSERT_EQ(page.GetLayoutContentCount(), 7);
  EXPECT_NE(dynamic_cast<CSumValueHolder*>(page.GetLayoutContentAt(1)), nullptr);
  EXPECT_NE(dynamic_cast<CLine*>(page.GetLayoutContentAt(5)), nullptr);
  const auto* cell = dynamic_cast<CTableCell*>(page.GetLayoutContentAt(6));
  ASSERT_NE(cell, nullptr) << "the open cell comes into the page last";
  EXPECT_EQ(cell->GetCellElementCount(), 2);
}

TEST(LayoutPage, FixedASumInACellComesBackAsPageContent) {
  LoadedReport report;
  CLayoutPage& page = NewPage(report);
  auto* cell = new CTableCell;
  page.AddLayoutContent(cell);
  cell->AddCellElement(new CText);
  cell->AddCellElement(new CSumValueHolder);
  LoadedReport again;
  again.LoadLayoutText(report.SavedLayout());
  ASSERT_EQ(again.Page(0).GetLayoutContentCount(), 2);
  EXPECT_NE(dynamic_cast<CSumValueHolder*>(again.Page(0).GetLayoutContentAt(0)), nullptr);
  EXPECT_EQ(dynamic_cast<CTableCell*>(again.Page(0).GetLayoutContentAt(1))->GetCellElementCount(), 1);
}

TEST(LayoutPage, WritesRectanglesObjectsAndRelationsInThisOrder) {
  LoadedReport report;
  CLayoutPage& page = NewPage(report);
  auto* line = new CLine;
  auto* text = new CText;
  page.AddLayoutContent(line);
  page.AddLayoutContent(nullptr);
  page.AddLayoutContent(text);
  page.AddLayoutContent(new CPlaceable);  // of no kind that a file knows
  line->SetPlaceableRelation(
      CPlaceableRelation::CreatePlRel(RelationPoint{}, RelationPoint{}, 0, 0, page.GetPaperObject()));
  text->SetPlaceableRelation(CPlaceableRelation::CreatePlRel(RelationPoint{}, RelationPoint{}, 0, 0, line));
  const std::string file = report.SavedLayout();
  EXPECT_NE(
      file.find(
          "    </LayoutRect>\n"
          "    <Line>\n      <LineID>1</LineID>\n"
          "      <Placeable>\n        <PlID>1</PlID>\n        <PlRelID>2</PlRelID>\n      </Placeable>\n"
          "    </Line>\n"
          "    <Text>\n      <TxID>3</TxID>\n"
          "      <Placeable>\n        <PlID>3</PlID>\n        <PlRelID>4</PlRelID>\n      </Placeable>\n"
          "      <FontName>Helvetica</FontName>\n      <FontSize>12.0</FontSize>\n"
          "    </Text>\n"
          "    <PlRel>\n      <PlRelID>2</PlRelID>\n    </PlRel>\n"
          "    <PlRel>\n      <PlRelID>4</PlRelID>\n      <LineID>1</LineID>\n    </PlRel>\n"
          "  </LayoutPage>\n"),
      std::string::npos)
      << file;
}

TEST(LayoutPage, FixedRelationsOfCellsAndTheirElementsAreNotWritten) {
  LoadedReport report;
  CLayoutPage& page = NewPage(report);
  auto* cell = new CTableCell;
  page.AddLayoutContent(cell);
  auto* text = new CText;
  cell->AddCellElement(text);
  cell->AddCellElement(nullptr);
  for (CPlaceable* object : {static_cast<CPlaceable*>(cell), static_cast<CPlaceable*>(text)}) {
    object->SetPlaceableRelation(
        CPlaceableRelation::CreatePlRel(RelationPoint{}, RelationPoint{}, 0, 0, page.GetPaperObject()));
  }
  const std::string file = report.SavedLayout();
  EXPECT_NE(file.find("<PlRelID>"), std::string::npos);
  EXPECT_EQ(file.find("<PlRel>"), std::string::npos);
}

TEST(LayoutPage, ARelationWithoutATargetIsTiedToThePaper) {
  LoadedReport report;
  report.LoadLayoutText(LayoutOfOnePage(TextRecord(1, "<PlRelID>2</PlRelID>") +
                                        TextRecord(3, "<PlRelID>4</PlRelID>") +
                                        "<PlRel><PlRelID>2</PlRelID></PlRel>"
                                        "<PlRel><PlRelID>99</PlRelID></PlRel>"
                                        "<PlRel><TxID>1</TxID></PlRel>"
                                        "<PlRel><PlRelID>4</PlRelID><TxID>1</TxID></PlRel>"));
  CLayoutPage& page = report.Page(0);
  EXPECT_EQ(page.GetLayoutContentAt(0)->GetPlaceableRelation()->GetRelationObject(), page.GetPaperObject());
  EXPECT_EQ(page.GetLayoutContentAt(1)->GetPlaceableRelation()->GetRelationObject(),
            page.GetLayoutContentAt(0))
      << "relations that nobody holds and records without an identifier are passed over";
}

TEST(LayoutPage, OldDistancesOfTextsAreUpgraded) {
  LoadedReport report;
  report.LoadLayoutText(
      "<ReportLayout><VersionNr>1</VersionNr><ReportLayoutID>0</ReportLayoutID>"
      "<LayoutRect/><LayoutRect/>" +
      TextRecord(1, kOldDistances) + ValueHolderRecord(2, kOldDistances) + "<SumValueHolder>" +
      ValueHolderRecord(3, kOldDistances) + "</SumValueHolder>" +
      Object("Rectangle", "RectID", 4, kOldDistances) + "</ReportLayout>");
  CLayoutPage& page = report.Page(0);
  ASSERT_EQ(page.GetLayoutContentCount(), 4);
  for (int i = 0; i < 3; ++i) {
    const CBorder* border = page.GetLayoutContentAt(i)->GetBorder();
    EXPECT_EQ(border->GetBaseLineToUpperDistance(), 4.0F);
    EXPECT_EQ(border->GetBaseLineToLowerDistance(), 3.0F);
    EXPECT_EQ(border->GetUpperTextDistance(), 0.0F);
    EXPECT_EQ(border->GetLowerTextDistance(), 0.0F);
  }
  EXPECT_EQ(page.GetLayoutContentAt(3)->GetBorder()->GetUpperTextDistance(), 4.0F)
      << "only texts are upgraded";
}

TEST(LayoutPage, DistancesOfVersion2AreNot) {
  LoadedReport report;
  report.LoadLayoutText(
      "<ReportLayout><VersionNr>2</VersionNr><ReportLayoutID>0</ReportLayoutID>"
      "<LayoutRect/><LayoutRect/>" +
      TextRecord(1, kOldDistances) + "</ReportLayout>");
  EXPECT_EQ(report.Page(0).GetLayoutContentAt(0)->GetBorder()->GetUpperTextDistance(), 4.0F);
}

TEST(LayoutPage, FixedLayoutFilesGiveCellsNoVariableWidth) {
  LoadedReport report;
  report.LoadLayoutText(LayoutOfOnePage(CellRecord(1) + TextRecord(2)));
  EXPECT_FALSE(dynamic_cast<CTableCell*>(report.Page(0).GetLayoutContentAt(0))->HasVariableWidthElements());
}

TEST(LayoutPage, AMissingRectangleKeepsItsPlaceInTheFile) {
  LoadedReport report;
  CLayoutPage& page = NewPage(report);
  page.SetPaperRect(nullptr);
  LoadedReport again;
  again.LoadLayoutText(report.SavedLayout());
  EXPECT_EQ(again.Page(0).GetBorderRect()->GetULX(), 57.0F);
  EXPECT_EQ(again.Page(0).GetPaperRect()->GetULX(), 0.0F);
}
