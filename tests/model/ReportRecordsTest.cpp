#include "model/ReportRecords.h"

#include "model/Border.h"
#include "model/CopyValueHolder.h"
#include "model/DynamicValueHolder.h"
#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/SumValueHolder.h"
#include "placement/PlaceableRelation.h"
#include "support/LoadedReport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using zebtest::LoadedReport;
using zebtest::ReportOfOneZone;
using zebtest::TextRecord;
using zebtest::ValueHolderRecord;

const std::string kOldDistances =
    "<Border><LeftDistance>1.0</LeftDistance><UpperDistance>4.0</UpperDistance><RightDistance>2.0</"
    "RightDistance>"
    "<LowerDistance>3.0</LowerDistance></Border>";

std::string Outer(const std::string& name, int id, const std::string& placeable = "",
                  const std::string& more = "") {
  return "<" + name + ">" + ValueHolderRecord(id, placeable) + more + "</" + name + ">";
}

void ExpectUpgraded(const CPlaceable& object, bool upgraded) {
  const CBorder* border = object.GetBorder();
  ASSERT_NE(border, nullptr);
  EXPECT_EQ(border->GetBaseLineToUpperDistance(), upgraded ? 4.0F : 0.0F);
  EXPECT_EQ(border->GetBaseLineToLowerDistance(), upgraded ? 3.0F : 0.0F);
  EXPECT_EQ(border->GetUpperTextDistance(), upgraded ? 0.0F : 4.0F);
  EXPECT_EQ(border->GetLowerTextDistance(), upgraded ? 0.0F : 3.0F);
  EXPECT_EQ(border->GetLeftTextDistance(), 1.0F);
  EXPECT_EQ(border->GetRightTextDistance(), 2.0F);
}

void TieTo(CPlaceable& object, CPlaceable* target) {
  object.SetPlaceableRelation(
      CPlaceableRelation::CreatePlRel(RelationPoint{}, RelationPoint{}, 0, 0, target));
}

/// Names of the children of the root, in order, each run of equal ones once.
std::vector<std::string> RootChildren(const std::string& file) {
  std::vector<std::string> names;
  for (std::size_t at = file.find("\n  <"); at != std::string::npos; at = file.find("\n  <", at + 1)) {
    if (file[at + 4] == '/') continue;
    const std::string name = file.substr(at + 4, file.find_first_of("/>", at + 4) - at - 4);
    if (names.empty() || names.back() != name) names.push_back(name);
  }
  return names;
}

}  // namespace

TEST(ReportRecords, OldDistancesAreUpgradedButForCopiedFields) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(
      "<TxID>2</TxID><VHID>3</VHID><FormulaVHID>4</FormulaVHID><SumVHID>5</SumVHID><DynVHID>6</DynVHID>"
      "<CopyVHID>7</CopyVHID><LineID>8</LineID>",
      ValueHolderRecord(3, kOldDistances) + Outer("FormulaValueHolder", 4, kOldDistances) +
          Outer("SumValueHolder", 5, kOldDistances) + Outer("DynValueHolder", 6, kOldDistances) +
          Outer("CopyValueHolder", 7, kOldDistances) + TextRecord(2, kOldDistances) +
          "<Line><LineID>8</LineID><Placeable>" + kOldDistances + "</Placeable></Line>",
      1));
  CReportZone& zone = report.Zone(0);
  ExpectUpgraded(*zone.GetTextElementAt(0), true);
  for (int i = 0; i < 4; ++i) ExpectUpgraded(*zone.GetValueHolderAt(i), true);
  ExpectUpgraded(*zone.GetValueHolderAt(4), false);
}

TEST(ReportRecords, FixedCopiedFieldsAreNotUpgraded) {
  LoadedReport report;
  report.LoadReportText(
      ReportOfOneZone("<CopyVHID>7</CopyVHID>", Outer("CopyValueHolder", 7, kOldDistances), 1));
  ExpectUpgraded(*report.Zone(0).GetValueHolderAt(0), false);
}

TEST(ReportRecords, DistancesOfTheCurrentVersionStay) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone("<TxID>2</TxID>", TextRecord(2, kOldDistances)));
  ExpectUpgraded(*report.Zone(0).GetTextElementAt(0), false);
}

TEST(ReportRecords, DefinedAndCellFieldsAreUpgradedToo) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(
      "<TableCellID>2</TableCellID><VHID>3</VHID><TxID>4</TxID><DefinedFormulaVHID>5</DefinedFormulaVHID>",
      ValueHolderRecord(3, kOldDistances) + Outer("FormulaValueHolder", 5, kOldDistances) +
          TextRecord(4, kOldDistances),
      1));
  CTableCell* cell = report.Zone(0).GetTableCellAt(0);
  ExpectUpgraded(*cell->GetCellElementAt(0), true);
  ExpectUpgraded(*cell->GetCellElementAt(1), true);
  ExpectUpgraded(*report.Zone(0).GetDefinedFormulaValueHolderAt(0), true);
}

TEST(ReportRecords, CopiedFieldsRebuildTheTableOfTheDocument) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(
      "<CopyVHID>2</CopyVHID><CopyVHID>3</CopyVHID>",
      Outer("CopyValueHolder", 2, "", "<RefZoneID>Kopf</RefZoneID><RefVHID>BE.Nummer</RefVHID>") +
          Outer("CopyValueHolder", 3, "", "<RefZoneID>Kopf</RefZoneID><RefVHID>BE.Datum</RefVHID>")));
  EXPECT_TRUE(report.Document().FindCopyValueHolderKey(L"Kopf", L"BE.Nummer"));
  EXPECT_TRUE(report.Document().FindCopyValueHolderKey(L"Kopf", L"BE.Datum"));
  EXPECT_FALSE(report.Document().FindCopyValueHolderKey(L"Kopf", L"BE.Name"));
}

TEST(ReportRecords, AnElementOfWidth0MakesACellVariable) {
  const auto isVariable = [](const std::string& firstWidth, const std::string& secondWidth) {
    LoadedReport report;
    report.LoadReportText(ReportOfOneZone(
        "<TableCellID>2</TableCellID><TxID>3</TxID><TxID>4</TxID>",
        TextRecord(3, firstWidth) + TextRecord(4, secondWidth) +
            "<TableCell><TableCellID>2</TableCellID><Placeable/><TableID>0</TableID></TableCell>"));
    return report.Zone(0).GetTableCellAt(0)->HasVariableWidthElements();
  };
  EXPECT_TRUE(isVariable("", ""));
  EXPECT_TRUE(isVariable("<Width>5.0</Width>", "<Width>0.0</Width>"));
  EXPECT_FALSE(isVariable("<Width>5.0</Width>", "<Width>-1.0</Width>"));
}

TEST(ReportRecords, ACellWithoutARecordIsNotVariable) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone("<TableCellID>2</TableCellID><TxID>3</TxID>", TextRecord(3)));
  EXPECT_FALSE(report.Zone(0).GetTableCellAt(0)->HasVariableWidthElements());
}

TEST(ReportRecords, ValueHoldersOfAllKindsStandInAnyMixture) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(
      "<VHID>2</VHID><SumVHID>3</SumVHID><VHID>4</VHID><DynVHID>5</DynVHID>",
      Outer("DynValueHolder", 5, "", "<Name>D</Name>") + ValueHolderRecord(4, "", "four") +
          Outer("SumValueHolder", 3, "", "<Name>S</Name>") + ValueHolderRecord(2, "", "two")));
  CReportZone& zone = report.Zone(0);
  EXPECT_STREQ(zone.GetValueHolderAt(0)->GetInternalKey(), L"two");
  EXPECT_STREQ(dynamic_cast<CSumValueHolder*>(zone.GetValueHolderAt(1))->GetName(), L"S");
  EXPECT_STREQ(zone.GetValueHolderAt(2)->GetInternalKey(), L"four");
  EXPECT_STREQ(dynamic_cast<CDynamicValueHolder*>(zone.GetValueHolderAt(3))->GetName(), L"D");
}

TEST(ReportRecords, RecordsOfUnknownIdentifiersAreSkipped) {
  LoadedReport report;
  report.LoadReportText(
      ReportOfOneZone("<TxID>2</TxID>", "<ReportZone><ZoneID>77</ZoneID></ReportZone>" +
                                            ValueHolderRecord(78) + TextRecord(79) + "<Text/>" +
                                            TextRecord(2, "", "<TextContent>found</TextContent>")));
  EXPECT_STREQ(report.Zone(0).GetTextElementAt(0)->GetTextContent(), L"found");
}

TEST(ReportRecords, AnIdentifierThatIsNoNumberIsIdentifier0) {
  LoadedReport report;
  report.LoadReportText(
      "<ReportRootElement><ReportDocument><ZoneID>zero</ZoneID></ReportDocument>"
      "<ReportZone><ZoneID>0</ZoneID><InternalName>found</InternalName></ReportZone></ReportRootElement>");
  EXPECT_STREQ(report.Zone(0).GetInternalReportZoneName(), L"found");
}

TEST(ReportRecords, AnUnknownElementEndsTheReading) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone("<TxID>2</TxID><LineID>3</LineID>",
                                        "<Foreign/>" + TextRecord(2, "", "<TextContent>lost</TextContent>")));
  EXPECT_STREQ(report.Zone(0).GetTextElementAt(0)->GetTextContent(), L"");
}

TEST(ReportRecords, AGroupOutOfPlaceEndsTheReading) {
  LoadedReport report;
  report.LoadReportText(ReportOfOneZone(
      "<TxID>2</TxID><VHID>3</VHID>",
      TextRecord(2, "", "<TextContent>read</TextContent>") + ValueHolderRecord(3, "", "lost")));
  EXPECT_STREQ(report.Zone(0).GetTextElementAt(0)->GetTextContent(), L"read");
  EXPECT_STREQ(report.Zone(0).GetValueHolderAt(0)->GetInternalKey(), L"");
}

TEST(ReportRecords, WithoutADocumentAllRecordsAreSkipped) {
  LoadedReport report;
  report.LoadReportText("<ReportRootElement><VersionNr>1</VersionNr>" + ValueHolderRecord(0) + TextRecord(1) +
                        "<PlRel><PlRelID>2</PlRelID><ZoneID>3</ZoneID></PlRel></ReportRootElement>");
  EXPECT_EQ(report->GetReportDocument(), nullptr);
}

TEST(ReportRecords, AreWrittenInTheOrderOfReading) {
  LoadedReport report;
  auto* document = new CReportDocument;
  report->SetReportDocument(document);
  for (int i = 0; i < 2; ++i) {
    auto* zone = new CReportZone;
    document->AddReportZone(zone);
    zone->AddTextElement(new CText);
    zone->AddValueHolder(new CValueHolder);
    zone->AddValueHolder(new CFormulaValueHolder);
    zone->AddPictureElement(new CPicture);
    zone->AddRectangleElement(new CRectangle);
    zone->AddLineElement(new CLine);
    zone->AddTableCell(new CTableCell);
    TieTo(*zone->GetLineElementAt(0), nullptr);
  }
  const std::string file = report.SavedReport();
  EXPECT_EQ(RootChildren(file), (std::vector<std::string>{
                                    "VersionNr", "ReportType", "ReportDocument", "ReportZone", "ValueHolder",
                                    "FormulaValueHolder", "ValueHolder", "FormulaValueHolder", "Text",
                                    "Picture", "Rectangle", "Line", "TableCell", "PlRel"}));
}

TEST(ReportRecords, ValueHoldersAreThoseOfTheZoneThenTheDefinedThenThoseOfTheCells) {
  LoadedReport report;
  auto* document = new CReportDocument;
  report->SetReportDocument(document);
  auto* zone = new CReportZone;
  document->AddReportZone(zone);
  const auto named = [](CValueHolder* valueHolder, const wchar_t* key) {
    valueHolder->SetInternalKey(key);
    return valueHolder;
  };
  auto* cell = new CTableCell;
  zone->AddTableCell(cell);
  cell->AddCellElement(new CText);
  cell->AddCellElement(named(new CValueHolder, L"inCell"));
  auto* defined = new CFormulaValueHolder;
  named(defined, L"defined");
  zone->AddDefinedFormulaValueHolder(defined);
  zone->AddValueHolder(named(new CValueHolder, L"placed"));
  const std::string file = report.SavedReport();
  EXPECT_TRUE(zebtest::StandsBefore(file, "<InternalKey>placed", "<InternalKey>defined"));
  EXPECT_TRUE(zebtest::StandsBefore(file, "<InternalKey>defined", "<InternalKey>inCell"));
  EXPECT_TRUE(zebtest::StandsBefore(file, "<InternalKey>inCell", "\n  <Text>"))
      << "texts of cells come with the texts";
}

TEST(ReportRecords, RelationsAreWrittenOncePerHolderInTheOrderOfTheirObjects) {
  LoadedReport report;
  auto* document = new CReportDocument;
  report->SetReportDocument(document);
  auto* zone = new CReportZone;
  document->AddReportZone(zone);
  auto* text = new CText;
  auto* valueHolder = new CValueHolder;
  auto* cell = new CTableCell;
  auto* inCell = new CText;
  zone->AddTextElement(text);
  zone->AddValueHolder(valueHolder);
  zone->AddTableCell(cell);
  cell->AddCellElement(inCell);
  TieTo(*text, valueHolder);
  TieTo(*valueHolder, nullptr);
  TieTo(*cell, text);
  TieTo(*inCell, cell);
  // Identifiers: document 0, zone 1, text 2, value holder 3, cell 4, its text 5; then each relation at its holder.
  EXPECT_NE(report.SavedReport().find(
                "  <PlRel>\n    <PlRelID>6</PlRelID>\n    <ZoneID>10</ZoneID>\n  </PlRel>\n"
                "  <PlRel>\n    <PlRelID>7</PlRelID>\n    <VHID>3</VHID>\n  </PlRel>\n"
                "  <PlRel>\n    <PlRelID>8</PlRelID>\n    <TableCellID>4</TableCellID>\n  </PlRel>\n"),
            std::string::npos)
      << report.SavedReport();
}

TEST(ReportRecords, FixedADefinedFormulasRelationIsNotWritten) {
  LoadedReport report;
  auto* document = new CReportDocument;
  report->SetReportDocument(document);
  auto* zone = new CReportZone;
  document->AddReportZone(zone);
  auto* defined = new CFormulaValueHolder;
  zone->AddDefinedFormulaValueHolder(defined);
  TieTo(*defined, nullptr);
  const std::string file = report.SavedReport();
  EXPECT_NE(file.find("<PlRelID>"), std::string::npos);
  EXPECT_EQ(file.find("<PlRel>"), std::string::npos);
}

TEST(ReportRecords, FixedARelationOfTwoHoldersIsWrittenTwice) {
  LoadedReport report;
  auto* document = new CReportDocument;
  report->SetReportDocument(document);
  auto* zone = new CReportZone;
  document->AddReportZone(zone);
  zone->AddLineElement(new CLine);
  zone->AddLineElement(new CLine);
  TieTo(*zone->GetLineElementAt(0), nullptr);
  zone->GetLineElementAt(1)->SetPlaceableRelation(zone->GetLineElementAt(0)->GetPlaceableRelation());
  const std::string file = report.SavedReport();
  zone->GetLineElementAt(1)->SetPlaceableRelation(nullptr);
  const auto first = file.find("<PlRel>");
  ASSERT_NE(first, std::string::npos);
  EXPECT_NE(file.find("<PlRel>", first + 1), std::string::npos);
}
