#include "model/ReportZone.h"

#include "foundation/IDManager.h"
#include "model/CopyValueHolder.h"
#include "model/DynamicValueHolder.h"
#include "model/FormulaValueHolder.h"
#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/SumValueHolder.h"
#include "model/TableCell.h"
#include "placement/PlaceableRelation.h"
#include "reporttypes/AvailableValueHolderBase.h"
#include "support/KeepForever.h"
#include "support/LoadedReport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using zebtest::LoadedReport;
using zebtest::ReportOfOneZone;

/// The zone's element as it is saved, with its lines' indentation.
std::string SavedZone(LoadedReport& report) {
  const std::string file = report.SavedReport();
  const auto begin = file.find("  <ReportZone>");
  const auto end = file.find("  </ReportZone>\n");
  return file.substr(begin, end - begin);
}

/// A report of one zone, which the test fills.
CReportZone& NewZone(LoadedReport& report) {
  auto* document = new CReportDocument;
  auto* zone = new CReportZone;
  document->AddReportZone(zone);
  report->SetReportDocument(document);
  return *zone;
}

/// Zone element with the identifier that it gets behind that of the document, around further lines.
std::string ZoneLines(const std::string& lines, const std::string& name = "Z") {
  const std::string text =
      name.empty() ? "    <InternalName/>\n" : "    <InternalName>" + name + "</InternalName>\n";
  return "  <ReportZone>\n    <ZoneID>1</ZoneID>\n" + text + lines;
}

}  // namespace

TEST(ReportZone, HasItsDefaults) {
  CReportZone zone;
  EXPECT_STREQ(zone.GetInternalReportZoneName(), L"");
  EXPECT_FALSE(zone.GetFooterZone());
  EXPECT_TRUE(zone.GetZoneCanBreak());
  EXPECT_EQ(zone.GetPageBreakNrLinesKeep(), 2);
  EXPECT_FALSE(zone.GetPageBreakNotLastZone());
  EXPECT_EQ(zone.GetValueHolderCount(), 0);
  EXPECT_EQ(zone.GetTextElementCount(), 0);
  EXPECT_EQ(zone.GetPictureElementCount(), 0);
  EXPECT_EQ(zone.GetRectangleElementCount(), 0);
  EXPECT_EQ(zone.GetLineElementCount(), 0);
  EXPECT_EQ(zone.GetTableCellCount(), 0);
  EXPECT_EQ(zone.GetZonesKeepTogetherCount(), 0);
  EXPECT_EQ(zone.GetOrderedElementCount(), 0);
  EXPECT_EQ(zone.GetHeightElementsCount(), 0);
  EXPECT_EQ(zone.GetFormulaValueHolderKeyCount(), 0);
  EXPECT_EQ(zone.GetSumValueHolderKeyCount(), 0);
  EXPECT_EQ(zone.GetValueHoldersInTableCellsCount(), 0);
  EXPECT_EQ(zone.GetFormulaValueHoldersInTableCellsCount(), 0);
  EXPECT_EQ(zone.GetDefinedFormulaValueHoldersCount(), 0);
}

TEST(ReportZone, KeepsElementsOfEachKindInOrder) {
  CReportZone zone;
  auto* valueHolder = new CValueHolder;
  auto* text = new CText;
  auto* picture = new CPicture;
  auto* rectangle = new CRectangle;
  auto* line = new CLine;
  zone.AddValueHolder(new CValueHolder);
  zone.AddValueHolder(valueHolder);
  zone.AddTextElement(new CText);
  zone.AddTextElement(text);
  zone.AddPictureElement(new CPicture);
  zone.AddPictureElement(picture);
  zone.AddRectangleElement(new CRectangle);
  zone.AddRectangleElement(rectangle);
  zone.AddLineElement(new CLine);
  zone.AddLineElement(line);
  EXPECT_EQ(zone.GetValueHolderCount(), 2);
  EXPECT_EQ(zone.GetValueHolderAt(1), valueHolder);
  EXPECT_EQ(zone.GetTextElementCount(), 2);
  EXPECT_EQ(zone.GetTextElementAt(1), text);
  EXPECT_EQ(zone.GetPictureElementCount(), 2);
  EXPECT_EQ(zone.GetPictureElementAt(1), picture);
  EXPECT_EQ(zone.GetRectangleElementCount(), 2);
  EXPECT_EQ(zone.GetRectangleElementAt(1), rectangle);
  EXPECT_EQ(zone.GetLineElementCount(), 2);
  EXPECT_EQ(zone.GetLineElementAt(1), line);
}

TEST(ReportZone, FixedReplacingAnElementDoesNotFreeTheOldOne) {
  CReportZone zone;
  const auto valueHolder = std::make_unique<CValueHolder>();
  const auto text = std::make_unique<CText>();
  const auto picture = std::make_unique<CPicture>();
  const auto rectangle = std::make_unique<CRectangle>();
  const auto line = std::make_unique<CLine>();
  zone.AddValueHolder(valueHolder.get());
  zone.AddTextElement(text.get());
  zone.AddPictureElement(picture.get());
  zone.AddRectangleElement(rectangle.get());
  zone.AddLineElement(line.get());
  zone.SetValueHolderAt(nullptr, 0);
  auto* newText = new CText;
  zone.SetTextElementAt(newText, 0);
  zone.SetPictureElementAt(nullptr, 0);
  zone.SetRectangleElementAt(nullptr, 0);
  zone.SetLineElementAt(nullptr, 0);
  EXPECT_EQ(zone.GetValueHolderAt(0), nullptr);
  EXPECT_EQ(zone.GetTextElementAt(0), newText);
  EXPECT_STREQ(text->GetFontName(), L"Helvetica");
}

TEST(ReportZone, KeepsItsSettings) {
  CReportZone zone;
  zone.SetInternalReportZoneName(L"Position");
  zone.SetFooterZone(true);
  zone.SetZoneCanBreak(false);
  zone.SetPageBreakNrLinesKeep(-3);
  zone.SetPageBreakNotLastZone(true);
  EXPECT_STREQ(zone.GetInternalReportZoneName(), L"Position");
  EXPECT_TRUE(zone.GetFooterZone());
  EXPECT_FALSE(zone.GetZoneCanBreak());
  EXPECT_EQ(zone.GetPageBreakNrLinesKeep(), -3);
  EXPECT_TRUE(zone.GetPageBreakNotLastZone());
}

TEST(ReportZone, KeepsNamesOfZonesKeptTogether) {
  CReportZone zone;
  std::wstring name = L"Fuss";
  zone.AddZonesKeepTogether(name.c_str());
  zone.AddZonesKeepTogether(L"Fuss");
  name = L"----";
  ASSERT_EQ(zone.GetZonesKeepTogetherCount(), 2) << "duplicates are kept";
  EXPECT_STREQ(zone.GetZonesKeepTogetherAt(0), L"Fuss") << "the name is a copy";
  zone.ClearZonesKeepTogether();
  EXPECT_EQ(zone.GetZonesKeepTogetherCount(), 0);
}

TEST(ReportZone, FindsOfferedValueHoldersByTheTextOfTheirKey) {
  CReportZone zone;
  CAvailableValueHolderBase first;
  CAvailableValueHolderBase second;
  CAvailableValueHolderBase other;
  first.SetInternalKey(L"AD.Name");
  second.SetInternalKey(L"AD.Name");
  other.SetInternalKey(L"AD.Ort");
  zone.AddAvailableValueHolder(&first);
  zone.AddAvailableValueHolder(&second);
  zone.AddAvailableValueHolder(&other);
  const std::wstring key = L"AD.Name";
  EXPECT_EQ(zone.GetAvailableValueHolder(key.c_str()), &first) << "the first entry of a key stays";
  EXPECT_EQ(zone.GetAvailableValueHolder(L"AD.Ort"), &other);
  EXPECT_EQ(zone.GetAvailableValueHolder(L"ad.name"), nullptr);
}

TEST(ReportZone, FixedDefinedFormulasStayWithTheirMaker) {
  const auto defined = std::make_unique<CFormulaValueHolder>();
  {
    CReportZone zone;
    zone.AddDefinedFormulaValueHolder(defined.get());
    ASSERT_EQ(zone.GetDefinedFormulaValueHoldersCount(), 1);
    EXPECT_EQ(zone.GetDefinedFormulaValueHolderAt(0), defined.get());
  }
  EXPECT_STREQ(defined->GetRoundVHKey(), L"PL.Nks2");
}

TEST(ReportZone, FixedACopySharesItsObjects) {
  CReportZone source;
  source.SetInternalReportZoneName(L"Z");
  source.SetFooterZone(true);
  source.SetZoneCanBreak(false);
  source.SetPageBreakNrLinesKeep(7);
  source.SetPageBreakNotLastZone(true);
  source.AddValueHolder(new CValueHolder);
  source.AddTextElement(new CText);
  source.AddPictureElement(new CPicture);
  source.AddRectangleElement(new CRectangle);
  source.AddLineElement(new CLine);
  source.AddTableCell(new CTableCell);
  source.GetTableCellAt(0)->AddCellElement(new CFormulaValueHolder);
  source.GetTableCellAt(0)->AddCellElement(new CValueHolder);
  source.FillValueHoldersInTableCells();
  source.AddZonesKeepTogether(L"K");
  const auto defined = std::make_unique<CFormulaValueHolder>();
  source.AddDefinedFormulaValueHolder(defined.get());
  CAvailableValueHolderBase offered;
  offered.SetInternalKey(L"k");
  source.AddAvailableValueHolder(&offered);
  source.CalculateOrderedElements(true);
  source.AddHeightElements(source.GetTextElementAt(0), source.GetLineElementAt(0));

  const auto expectShared = [&source, &offered](CReportZone& copy) {
    EXPECT_STREQ(copy.GetInternalReportZoneName(), L"Z");
    EXPECT_TRUE(copy.GetFooterZone());
    EXPECT_FALSE(copy.GetZoneCanBreak());
    EXPECT_EQ(copy.GetPageBreakNrLinesKeep(), 7);
    EXPECT_TRUE(copy.GetPageBreakNotLastZone());
    EXPECT_EQ(copy.GetValueHolderAt(0), source.GetValueHolderAt(0));
    EXPECT_EQ(copy.GetTextElementAt(0), source.GetTextElementAt(0));
    EXPECT_EQ(copy.GetPictureElementAt(0), source.GetPictureElementAt(0));
    EXPECT_EQ(copy.GetRectangleElementAt(0), source.GetRectangleElementAt(0));
    EXPECT_EQ(copy.GetLineElementAt(0), source.GetLineElementAt(0));
    EXPECT_EQ(copy.GetTableCellAt(0), source.GetTableCellAt(0));
    EXPECT_EQ(copy.GetValueHoldersInTableCellsAt(0), source.GetValueHoldersInTableCellsAt(0));
    EXPECT_EQ(copy.GetFormulaValueHoldersInTableCellsAt(0), source.GetFormulaValueHoldersInTableCellsAt(0));
    EXPECT_STREQ(copy.GetZonesKeepTogetherAt(0), L"K");
    EXPECT_EQ(copy.GetDefinedFormulaValueHolderAt(0), source.GetDefinedFormulaValueHolderAt(0));
    EXPECT_EQ(copy.GetAvailableValueHolder(L"k"), &offered);
    EXPECT_EQ(copy.GetOrderedElementCount(), source.GetOrderedElementCount());
    EXPECT_EQ(copy.FindOrderedElement(source.GetLineElementAt(0)),
              source.FindOrderedElement(source.GetLineElementAt(0)));
    EXPECT_EQ(copy.GetHeightElementsAt(0), source.GetHeightElementsAt(0));
  };
  expectShared(zebtest::KeepForever(new CReportZone(source)));
  CReportZone& assigned = zebtest::KeepForever(new CReportZone);
  assigned = source;
  expectShared(assigned);
  const CReportZone& self = assigned;
  assigned = self;
  expectShared(assigned);
}

TEST(ReportZone, InItsDefaultStateWritesIdentifierAndNameOnly) {
  LoadedReport report;
  NewZone(report);
  EXPECT_EQ(SavedZone(report), ZoneLines("", ""));
}

TEST(ReportZone, WritesItsReferencesInOrder) {
  LoadedReport report;
  CReportZone& zone = NewZone(report);
  zone.SetInternalReportZoneName(L"Z");
  zone.AddTextElement(new CText);
  zone.AddTextElement(nullptr);
  zone.AddTextElement(new CText);
  zone.AddValueHolder(new CCopyValueHolder);
  zone.AddValueHolder(new CFormulaValueHolder);
  zone.AddValueHolder(nullptr);
  zone.AddValueHolder(new CValueHolder);
  zone.AddValueHolder(new CDynamicValueHolder);
  zone.AddValueHolder(new CSumValueHolder);
  zone.AddPictureElement(new CPicture);
  zone.AddRectangleElement(new CRectangle);
  zone.AddLineElement(new CLine);
  zone.AddTableCell(nullptr);
  auto* cell = new CTableCell;
  zone.AddTableCell(cell);
  cell->AddCellElement(new CSumValueHolder);
  cell->AddCellElement(new CText);
  zone.SetFooterZone(true);
  zone.SetZoneCanBreak(false);
  zone.SetPageBreakNrLinesKeep(0);
  zone.SetPageBreakNotLastZone(true);
  zone.AddZonesKeepTogether(L"K1");
  zone.AddZonesKeepTogether(L"K2");
  zone.AddDefinedFormulaValueHolder(new CFormulaValueHolder);
  EXPECT_EQ(
      SavedZone(report),
      ZoneLines("    <TxID>2</TxID>\n    <TxID>3</TxID>\n    <CopyVHID>4</CopyVHID>\n"
                "    <FormulaVHID>5</FormulaVHID>\n    <VHID>6</VHID>\n    <DynVHID>7</DynVHID>\n"
                "    <SumVHID>8</SumVHID>\n    <PicID>9</PicID>\n    <RectID>10</RectID>\n"
                "    <LineID>11</LineID>\n    <TableCellID>12</TableCellID>\n    <SumVHID>13</SumVHID>\n"
                "    <TxID>14</TxID>\n    <FooterZone>1</FooterZone>\n    <ZoneCanBreak>0</ZoneCanBreak>\n"
                "    <PageBreakNrLinesKeep>0</PageBreakNrLinesKeep>\n"
                "    <PageBreakNotLastZone>1</PageBreakNotLastZone>\n"
                "    <KeepTogetherZoneID>K1</KeepTogetherZoneID>\n"
                "    <KeepTogetherZoneID>K2</KeepTogetherZoneID>\n"
                "    <DefinedFormulaVHID>15</DefinedFormulaVHID>\n"));
}

TEST(ReportZone, FixedACellElementThatIsNoTextIsLostOnSaving) {
  LoadedReport report;
  CReportZone& zone = NewZone(report);
  auto* cell = new CTableCell;
  zone.AddTableCell(cell);
  cell->AddCellElement(new CPicture);
  cell->AddCellElement(nullptr);
  cell->AddCellElement(new CText);
  EXPECT_EQ(SavedZone(report), ZoneLines("    <TableCellID>2</TableCellID>\n    <TxID>3</TxID>\n", ""));
  EXPECT_EQ(report.SavedReport().find("<Picture>"), std::string::npos);
}

TEST(ReportZone, WritesItsCellsInSortedOrder) {
  LoadedReport report;
  CReportZone& zone = NewZone(report);
  auto* second = new CTableCell;
  second->SetTableID(7);
  zone.AddTableCell(second);
  auto* first = new CTableCell;
  first->SetTableID(3);
  zone.AddTableCell(first);
  const std::string file = report.SavedReport();
  EXPECT_TRUE(zebtest::StandsBefore(file, "<TableID>3</TableID>", "<TableID>7</TableID>"));
}

TEST(ReportZone, ReadsEveryKindOfReference) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(
      "<TxID>2</TxID><CopyVHID>3</CopyVHID><FormulaVHID>4</FormulaVHID><VHID>5</VHID><DynVHID>6</DynVHID>"
      "<SumVHID>7</SumVHID><PicID>8</PicID><RectID>9</RectID><LineID>10</LineID><FooterZone>1</FooterZone>"
      "<ZoneCanBreak>0</ZoneCanBreak><PageBreakNrLinesKeep>5</PageBreakNrLinesKeep>"
      "<PageBreakNotLastZone>1</PageBreakNotLastZone><KeepTogetherZoneID>K</KeepTogetherZoneID>"
      "<DefinedFormulaVHID>11</DefinedFormulaVHID>"));
  CReportZone& zone = report.Zone(0);
  EXPECT_STREQ(zone.GetInternalReportZoneName(), L"Zone");
  EXPECT_EQ(zone.GetTextElementCount(), 1);
  ASSERT_EQ(zone.GetValueHolderCount(), 5);
  EXPECT_NE(dynamic_cast<CCopyValueHolder*>(zone.GetValueHolderAt(0)), nullptr);
  EXPECT_NE(dynamic_cast<CFormulaValueHolder*>(zone.GetValueHolderAt(1)), nullptr);
  EXPECT_NE(dynamic_cast<CDynamicValueHolder*>(zone.GetValueHolderAt(3)), nullptr);
  EXPECT_NE(dynamic_cast<CSumValueHolder*>(zone.GetValueHolderAt(4)), nullptr);
  EXPECT_EQ(zone.GetPictureElementCount(), 1);
  EXPECT_EQ(zone.GetRectangleElementCount(), 1);
  EXPECT_EQ(zone.GetLineElementCount(), 1);
  EXPECT_TRUE(zone.GetFooterZone());
  EXPECT_FALSE(zone.GetZoneCanBreak());
  EXPECT_EQ(zone.GetPageBreakNrLinesKeep(), 5);
  EXPECT_TRUE(zone.GetPageBreakNotLastZone());
  ASSERT_EQ(zone.GetZonesKeepTogetherCount(), 1);
  EXPECT_STREQ(zone.GetZonesKeepTogetherAt(0), L"K");
  EXPECT_EQ(zone.GetDefinedFormulaValueHoldersCount(), 1);
}

TEST(ReportZone, ReadsDefaultsForWhatIsNotThere) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(""));
  EXPECT_TRUE(report.Zone(0).GetZoneCanBreak());
  EXPECT_EQ(report.Zone(0).GetPageBreakNrLinesKeep(), 2);
  EXPECT_FALSE(report.Zone(0).GetFooterZone());
  EXPECT_FALSE(report.Zone(0).GetPageBreakNotLastZone());
}

TEST(ReportZone, AnElementOutOfPlaceEndsTheReading) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone("<VHID>2</VHID><TxID>3</TxID><FooterZone>1</FooterZone>"));
  EXPECT_EQ(report.Zone(0).GetValueHolderCount(), 1);
  EXPECT_EQ(report.Zone(0).GetTextElementCount(), 0);
  EXPECT_FALSE(report.Zone(0).GetFooterZone());
}

TEST(ReportZone, GroupsCellsWithTheirElements) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(
      "<TableCellID>2</TableCellID><VHID>3</VHID><FormulaVHID>4</FormulaVHID><SumVHID>5</SumVHID><DynVHID>6</"
      "DynVHID>"
      "<TxID>7</TxID><CopyVHID>8</CopyVHID><TableCellID>9</TableCellID><TxID>10</TxID>",
      "<TableCell><TableCellID>2</TableCellID><Placeable/><TableID>1</TableID><RowIndex>0</RowIndex>"
      "<ColIndex>0</ColIndex></TableCell>"
      "<TableCell><TableCellID>9</TableCellID><Placeable/><TableID>1</TableID><RowIndex>0</RowIndex>"
      "<ColIndex>1</ColIndex></TableCell>"));
  CReportZone& zone = report.Zone(0);
  ASSERT_EQ(zone.GetTableCellCount(), 2);
  CTableCell* cell = zone.GetTableCellAt(0);
  ASSERT_EQ(cell->GetCellElementCount(), 6);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(cell->GetCellElementAt(i)->GetTableCell(), cell);
  EXPECT_EQ(zone.GetTableCellAt(1)->GetCellElementCount(), 1);
  EXPECT_EQ(zone.GetTextElementCount(), 0);
  EXPECT_EQ(zone.GetValueHolderCount(), 0);
  ASSERT_EQ(zone.GetFormulaValueHoldersInTableCellsCount(), 1);
  EXPECT_EQ(zone.GetFormulaValueHoldersInTableCellsAt(0), cell->GetCellElementAt(1));
}

TEST(ReportZone, FixedCopiedFieldsInCellsAreNotListed) {
  LoadedReport report;
  report.LoadReportText(
      ReportOfOneZone("<TableCellID>2</TableCellID><CopyVHID>3</CopyVHID><SumVHID>4</SumVHID><VHID>5</"
                      "VHID><DynVHID>6</DynVHID>"));
  CReportZone& zone = report.Zone(0);
  const CTableCell* cell = zone.GetTableCellAt(0);
  ASSERT_EQ(zone.GetValueHoldersInTableCellsCount(), 3);
  EXPECT_EQ(zone.GetValueHoldersInTableCellsAt(0), cell->GetCellElementAt(1));
  EXPECT_EQ(zone.GetValueHoldersInTableCellsAt(1), cell->GetCellElementAt(2));
  EXPECT_EQ(zone.GetValueHoldersInTableCellsAt(2), cell->GetCellElementAt(3));
}

TEST(ReportZone, FixedFillingTheListsFromCellsTakesCopiedFieldsToo) {
  CReportZone zone;
  auto* cell = new CTableCell;
  zone.AddTableCell(nullptr);
  zone.AddTableCell(cell);
  cell->AddCellElement(new CCopyValueHolder);
  cell->AddCellElement(new CText);
  cell->AddCellElement(nullptr);
  cell->AddCellElement(new CFormulaValueHolder);
  cell->AddCellElement(new CSumValueHolder);
  zone.FillValueHoldersInTableCells();
  zone.FillValueHoldersInTableCells();
  ASSERT_EQ(zone.GetValueHoldersInTableCellsCount(), 2) << "the lists are emptied first";
  EXPECT_EQ(zone.GetValueHoldersInTableCellsAt(0), cell->GetCellElementAt(0));
  EXPECT_EQ(zone.GetValueHoldersInTableCellsAt(1), cell->GetCellElementAt(4));
  ASSERT_EQ(zone.GetFormulaValueHoldersInTableCellsCount(), 1);
  EXPECT_EQ(zone.GetFormulaValueHoldersInTableCellsAt(0), cell->GetCellElementAt(3));
}

TEST(ReportZone, FixedLoadingTwiceDoublesAllListsButTwo) {
  LoadedReport report;
  const std::string record =
      "<ReportZone><ZoneID>1</ZoneID><InternalName>Second</InternalName><TxID>20</TxID><VHID>21</VHID>"
      "<PicID>22</PicID><RectID>23</RectID><LineID>24</LineID><TableCellID>25</TableCellID>"
      "<KeepTogetherZoneID>K2</KeepTogetherZoneID></ReportZone>";
  report.LoadReportText(
      ReportOfOneZone("<TxID>2</TxID><VHID>3</VHID><PicID>4</PicID><RectID>5</RectID><LineID>6</LineID>"
                      "<TableCellID>7</TableCellID><KeepTogetherZoneID>K1</KeepTogetherZoneID>"
                      "<KeepTogetherZoneID>K1b</KeepTogetherZoneID>",
                      record));
  CReportZone& zone = report.Zone(0);
  EXPECT_STREQ(zone.GetInternalReportZoneName(), L"Second");
  EXPECT_EQ(zone.GetTextElementCount(), 2);
  EXPECT_EQ(zone.GetValueHolderCount(), 2);
  EXPECT_EQ(zone.GetPictureElementCount(), 2);
  EXPECT_EQ(zone.GetRectangleElementCount(), 2);
  EXPECT_EQ(zone.GetLineElementCount(), 2);
  EXPECT_EQ(zone.GetTableCellCount(), 2);
  ASSERT_EQ(zone.GetZonesKeepTogetherCount(), 1);
  EXPECT_STREQ(zone.GetZonesKeepTogetherAt(0), L"K2");
}

TEST(ReportZone, FixedTheTwoListsAreEmptiedEvenIfNoElementFollows) {
  CReportZone zone;
  CIDManager ids;
  zebtest::LoadRecord(zone, ids,
                      "<ReportZone><KeepTogetherZoneID>K</KeepTogetherZoneID>"
                      "<DefinedFormulaVHID>2</DefinedFormulaVHID></ReportZone>");
  ASSERT_EQ(zone.GetZonesKeepTogetherCount(), 1);
  ASSERT_EQ(zone.GetDefinedFormulaValueHoldersCount(), 1);
  const std::unique_ptr<CFormulaValueHolder> defined(zone.GetDefinedFormulaValueHolderAt(0));
  zebtest::LoadRecord(zone, ids, "<ReportZone/>");
  EXPECT_EQ(zone.GetZonesKeepTogetherCount(), 0);
  EXPECT_EQ(zone.GetDefinedFormulaValueHoldersCount(), 0);
}

TEST(ReportZone, TakesObjectsThatTheIdentifiersKnow) {
  CReportZone zone;
  CIDManager ids;
  auto* named = new CValueHolder;
  ids.SetObjectWithID(5, named);
  EXPECT_EQ(zebtest::LoadRecord(zone, ids, "<ReportZone><ZoneID>9</ZoneID><VHID>5</VHID></ReportZone>"),
            true);
  ASSERT_EQ(zone.GetValueHolderCount(), 1);
  EXPECT_EQ(zone.GetValueHolderAt(0), named);
  EXPECT_EQ(ids.GetObjectFromID(9), &zone);
}

TEST(ReportZone, AFieldThatARelationNamedFirstIsTheOneInTheList) {
  CReportZone zone;
  CIDManager ids;
  CPlaceableRelation relation;
  zebtest::LoadRecord(relation, ids, "<PlRel><PlRelID>3</PlRelID><VHID>5</VHID></PlRel>");
  zebtest::LoadRecord(zone, ids, "<ReportZone><VHID>5</VHID><VHID>5</VHID></ReportZone>");
  ASSERT_EQ(zone.GetValueHolderCount(), 1);
  EXPECT_EQ(zone.GetValueHolderAt(0), relation.GetRelationObject());
}
