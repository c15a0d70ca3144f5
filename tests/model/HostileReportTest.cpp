// Files that lie about identifiers and owners. Each must load without a crash, a leak or a double owner; the sanitizers
// watch, and the reports are ordered, saved and loaded again.

#include "model/CopyValueHolder.h"
#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/SumValueHolder.h"
#include "placement/PlaceableRelation.h"
#include "support/LoadedReport.h"

#include "foundation/KXException.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace {

using zebtest::LayoutOfOnePage;
using zebtest::LoadedReport;
using zebtest::ReportOfOneZone;
using zebtest::TextRecord;
using zebtest::ValueHolderRecord;

/// Orders all that there is; objects that cannot be ordered are no failure here.
void Order(LoadedReport& report) {
  for (int i = 0; report->GetReportDocument() != nullptr && i < report.Document().GetReportZoneCount(); ++i) {
    report.Zone(i).CalculateOrderedElements(false);
  }
  for (int i = 0; report->GetReportLayout() != nullptr && i < report.Layout().GetPageCount(); ++i) {
    try {
      report.Page(i).CalculateOrderedElements();
    } catch (const CKXException&) {
      continue;
    }
  }
}

void OrderSaveAndReload(LoadedReport& report) {
  Order(report);
  LoadedReport again;
  if (report->GetReportDocument() != nullptr) again.LoadReportText(report.SavedReport());
  if (report->GetReportLayout() != nullptr) again.LoadLayoutText(report.SavedLayout());
  Order(again);
}

}  // namespace

// Attack: one text in the zone's list twice, and in a cell as well.
TEST(HostileReport, AnObjectIsOwnedOnce) {
  LoadedReport report;
  report.LoadReportText(
      ReportOfOneZone("<TxID>2</TxID><TxID>2</TxID><TableCellID>3</TableCellID><TxID>2</TxID>"
                      "<TxID>4</TxID><TableCellID>3</TableCellID><TxID>5</TxID>",
                      TextRecord(2)));
  CReportZone& zone = report.Zone(0);
  EXPECT_EQ(zone.GetTextElementCount(), 1);
  ASSERT_EQ(zone.GetTableCellCount(), 1);
  EXPECT_EQ(zone.GetTableCellAt(0)->GetCellElementCount(), 2) << "a second group adds to the cell";
  OrderSaveAndReload(report);
}

// Attack: two zones claim the same objects.
TEST(HostileReport, AnObjectBelongsToOneZone) {
  LoadedReport report;
  report.LoadReportText(
      "<ReportRootElement><ReportDocument><ReportDocumentID>0</ReportDocumentID><ZoneID>1</ZoneID><ZoneID>2</"
      "ZoneID>"
      "</ReportDocument><ReportZone><ZoneID>1</ZoneID><VHID>3</VHID><TableCellID>4</TableCellID></ReportZone>"
      "<ReportZone><ZoneID>2</ZoneID><VHID>3</VHID><TableCellID>4</TableCellID></ReportZone></"
      "ReportRootElement>");
  EXPECT_EQ(report.Zone(0).GetValueHolderCount(), 1);
  EXPECT_EQ(report.Zone(1).GetValueHolderCount(), 0);
  EXPECT_EQ(report.Zone(0).GetTableCellCount(), 1);
  EXPECT_EQ(report.Zone(1).GetTableCellCount(), 0);
  OrderSaveAndReload(report);
}

// Attack: one identifier stands for the document, a zone, a text, a line and a relation.
TEST(HostileReport, AnIdentifierNamesOneClass) {
  LoadedReport report;
  report.LoadReportText(
      "<ReportRootElement><ReportDocument><ReportDocumentID>0</ReportDocumentID><ZoneID>0</ZoneID><ZoneID>1</"
      "ZoneID>"
      "</ReportDocument><ReportZone><ZoneID>1</ZoneID><TxID>1</TxID><VHID>0</VHID><VHID>2</VHID><PicID>2</"
      "PicID>"
      "<LineID>2</LineID><TableCellID>2</TableCellID><TxID>2</TxID></ReportZone>" +
      ValueHolderRecord(2, "<PlRelID>1</PlRelID>") + TextRecord(2) +
      "<Line><LineID>2</LineID><Placeable><PlRelID>0</PlRelID></Placeable></Line>"
      "<PlRel><PlRelID>2</PlRelID><LineID>2</LineID></PlRel></ReportRootElement>");
  EXPECT_EQ(report.Document().GetReportZoneCount(), 2);
  CReportZone& zone = report.Zone(1);
  EXPECT_EQ(zone.GetTextElementCount(), 1);
  EXPECT_EQ(zone.GetValueHolderCount(), 2);
  EXPECT_EQ(zone.GetPictureElementCount(), 1);
  EXPECT_EQ(zone.GetLineElementCount(), 1);
  ASSERT_EQ(zone.GetTableCellCount(), 1);
  EXPECT_EQ(zone.GetTableCellAt(0)->GetCellElementCount(), 1);
  OrderSaveAndReload(report);
}

// Attack: a text's reference names a field, whose record would then stand among the texts on saving.
TEST(HostileReport, ATextReferenceToAFieldMakesATextOfItsOwn) {
  LoadedReport report;
  report.LoadReportText(
      "<ReportRootElement><ReportDocument><ZoneID>1</ZoneID><ZoneID>2</ZoneID></ReportDocument>"
      "<ReportZone><ZoneID>1</ZoneID><VHID>5</VHID></ReportZone>"
      "<ReportZone><ZoneID>2</ZoneID><TxID>5</TxID><LineID>6</LineID></ReportZone></ReportRootElement>");
  ASSERT_EQ(report.Zone(1).GetTextElementCount(), 1);
  EXPECT_EQ(dynamic_cast<CValueHolder*>(report.Zone(1).GetTextElementAt(0)), nullptr);
  LoadedReport again;
  again.LoadReportText(report.SavedReport());
  EXPECT_EQ(again.SavedReport(), report.SavedReport());
}

// Attack: objects that no list ever takes, named by relations of known objects.
TEST(HostileReport, ObjectsThatOnlyRelationsNameAreFreed) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone("<TxID>2</TxID><TxID>3</TxID>",
                                        TextRecord(2, "<PlRelID>10</PlRelID>") +
                                            TextRecord(3, "<PlRelID>11</PlRelID>") +
                                            "<PlRel><PlRelID>10</PlRelID><VHID>20</VHID></"
                                            "PlRel><PlRel><PlRelID>11</PlRelID><ZoneID>21</ZoneID></PlRel>"
                                            "<PlRel><PlRelID>10</PlRelID><PicID>22</PicID></PlRel>"));
  EXPECT_TRUE(
      report.Zone(0).GetTextElementAt(1)->GetPlaceableRelation()->GetRelationObject()->IsZoneObject());
  Order(report);
}

// Attack: the same on a page, and a failure of a later page passes while they are still unowned.
TEST(HostileReport, ObjectsThatOnlyRelationsNameAreFreedWhenAFailurePasses) {
  LoadedReport report;
  const std::string rect = "<LayoutRect/>";
  EXPECT_THROW(
      report.LoadLayoutText(
          "<ReportLayout><VersionNr>3</VersionNr><ReportLayoutID>0</ReportLayoutID>"
          "<FirstPageIndependent>1</FirstPageIndependent><LayoutPage>" +
          rect + rect + TextRecord(1, "<PlRelID>2</PlRelID>") +
          "<TableCell><TableCellID>3</TableCellID></TableCell>" + TextRecord(4) +
          "<PlRel><PlRelID>2</PlRelID><VHID>20</VHID></PlRel></LayoutPage><LayoutPage>" + rect + rect +
          "<TableCell><TableCellID>5</TableCellID></TableCell>" + TextRecord(6) +
          "<Picture><PicID>7</PicID><Placeable/><PictureDataLength>2000000000</PictureDataLength>"
          "<PictureData><BinaryData>AAAA</BinaryData></PictureData></Picture></LayoutPage></ReportLayout>"),
      CKXException);
  EXPECT_EQ(report->GetReportLayout(), nullptr);
}

// Attack: a picture that claims two billion bytes.
TEST(HostileReport, AFailureInARecordLeavesWhatWasBuilt) {
  LoadedReport report;
  EXPECT_THROW(
      report.LoadReportText(ReportOfOneZone(
          "<TxID>2</TxID><PicID>3</PicID>",
          TextRecord(2, "", "<TextContent>kept</TextContent>") +
              "<Picture><PicID>3</PicID><Placeable/><PictureDataLength>2000000000</PictureDataLength>"
              "<PictureData><BinaryData>AAAA</BinaryData></PictureData></Picture>")),
      CKXException);
  ASSERT_NE(report->GetReportDocument(), nullptr);
  EXPECT_STREQ(report.Zone(0).GetTextElementAt(0)->GetTextContent(), L"kept");
}

// Attack: one relation in the records of two objects; both would delete it.
TEST(HostileReport, ARelationBelongsToOneObject) {
  LoadedReport report;
  report.LoadReportText(
      ReportOfOneZone("<TxID>2</TxID><TxID>3</TxID>",
                      TextRecord(2, "<PlRelID>4</PlRelID>") + TextRecord(3, "<PlRelID>4</PlRelID>") +
                          TextRecord(3, "<PlRelID>5</PlRelID>") + TextRecord(3, "<PlRelID>6</PlRelID>") +
                          "<PlRel><PlRelID>4</PlRelID><TxID>3</TxID></PlRel>"
                          "<PlRel><PlRelID>6</PlRelID><TxID>3</TxID></PlRel>"));
  EXPECT_NE(report.Zone(0).GetTextElementAt(0)->GetPlaceableRelation(), nullptr);
  OrderSaveAndReload(report);
}

// Attack: an object tied to itself, and two tied to each other.
TEST(HostileReport, TiesInACircleEnd) {
  LoadedReport report;
  report.LoadReportText(
      ReportOfOneZone("<TxID>2</TxID><TxID>3</TxID><TxID>4</TxID>",
                      TextRecord(2, "<PlRelID>12</PlRelID>") + TextRecord(3, "<PlRelID>13</PlRelID>") +
                          TextRecord(4, "<PlRelID>14</PlRelID>") +
                          "<PlRel><PlRelID>12</PlRelID><TxID>2</TxID><AdjustHeight>1</AdjustHeight></PlRel>"
                          "<PlRel><PlRelID>13</PlRelID><TxID>4</TxID></PlRel><PlRel><PlRelID>14</"
                          "PlRelID><TxID>3</TxID></PlRel>"));
  OrderSaveAndReload(report);
  EXPECT_EQ(report.Zone(0).GetOrderedElementCount(), 3);
}

// Attack: a defined formula that the zone places as well.
TEST(HostileReport, ADefinedFormulaCanBeAPlacedOne) {
  LoadedReport report;
  report.LoadReportText(
      ReportOfOneZone("<FormulaVHID>2</FormulaVHID><DefinedFormulaVHID>2</DefinedFormulaVHID>"
                      "<DefinedFormulaVHID>3</DefinedFormulaVHID>"
                      "<DefinedFormulaVHID>3</DefinedFormulaVHID>"));
  EXPECT_EQ(report.Zone(0).GetDefinedFormulaValueHoldersCount(), 3);
  EXPECT_EQ(report.Zone(0).GetDefinedFormulaValueHolderAt(0), report.Zone(0).GetValueHolderAt(0));
  OrderSaveAndReload(report);
}

// Attack: a second record of the zone empties the list of its defined formulas; two zones define one formula.
TEST(HostileReport, DefinedFormulasThatAreDroppedAgainAreFreed) {
  LoadedReport report;
  report.LoadReportText(
      "<ReportRootElement><ReportDocument><ReportDocumentID>0</ReportDocumentID><ZoneID>1</ZoneID><ZoneID>2</"
      "ZoneID>"
      "</ReportDocument><ReportZone><ZoneID>1</ZoneID><DefinedFormulaVHID>3</DefinedFormulaVHID>"
      "<DefinedFormulaVHID>4</DefinedFormulaVHID><DefinedFormulaVHID>0</DefinedFormulaVHID></ReportZone>"
      "<ReportZone><ZoneID>2</ZoneID><DefinedFormulaVHID>4</DefinedFormulaVHID></ReportZone>"
      "<ReportZone><ZoneID>1</ZoneID><DefinedFormulaVHID>4</DefinedFormulaVHID></ReportZone></"
      "ReportRootElement>");
  ASSERT_EQ(report.Zone(0).GetDefinedFormulaValueHoldersCount(), 1);
  EXPECT_EQ(report.Zone(0).GetDefinedFormulaValueHolderAt(0),
            report.Zone(1).GetDefinedFormulaValueHolderAt(0));
  OrderSaveAndReload(report);
}

// Attack: all objects of a page share one identifier, and relations name it.
TEST(HostileReport, PageObjectsOfOneIdentifier) {
  LoadedReport report;
  report.LoadLayoutText(
      LayoutOfOnePage(TextRecord(1, "<PlRelID>1</PlRelID>") + ValueHolderRecord(1) +
                      "<TableCell><TableCellID>1</TableCellID></TableCell>" + TextRecord(1) +
                      "<Line><LineID>1</LineID><Placeable><PlRelID>2</PlRelID></Placeable></Line>"
                      "<PlRel><PlRelID>1</PlRelID></PlRel>"
                      "<PlRel><PlRelID>2</PlRelID><TxID>1</TxID></PlRel>"));
  EXPECT_EQ(report.Page(0).GetLayoutContentCount(), 4);
  OrderSaveAndReload(report);
}

// 30,000 tied objects of a zone and as many on a page: reading and writing take time in proportion.
TEST(HostileReport, ManyObjectsAreReadAndWrittenInReasonableTime) {
  constexpr int kCount = 30'000;
  std::string references;
  std::string records;
  std::string relations;
  for (int i = 0; i < kCount; ++i) {
    const int id = 2 + 2 * i;
    references += "<LineID>" + std::to_string(id) + "</LineID>";
    const std::string relation = std::to_string(id + 1);
    records += "<Line><LineID>" + std::to_string(id) + "</LineID><Placeable><PlRelID>" + relation +
               "</PlRelID></Placeable></Line>";
    relations += "<PlRel><PlRelID>" + relation + "</PlRelID><ZoneID>1000000</ZoneID></PlRel>";
  }
  const auto begin = std::chrono::steady_clock::now();
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(references, records + relations));
  ASSERT_EQ(report.Zone(0).GetLineElementCount(), kCount);
  EXPECT_NE(report.Zone(0).GetLineElementAt(kCount - 1)->GetPlaceableRelation(), nullptr);
  EXPECT_FALSE(report.SavedReport().empty());
  report.LoadLayoutText(LayoutOfOnePage(records));
  ASSERT_EQ(report.Page(0).GetLayoutContentCount(), kCount);
  EXPECT_FALSE(report.SavedLayout().empty());
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(60));
}
