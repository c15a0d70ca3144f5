// One report with every kind of object and no field at its default: nothing of it may get lost in its files.

#include "model/Border.h"
#include "model/Condition.h"
#include "model/CopyValueHolder.h"
#include "model/DefinedDynVH.h"
#include "model/DynamicValueHolder.h"
#include "model/LayoutRect.h"
#include "model/Line.h"
#include "model/Picture.h"
#include "model/RGBColor.h"
#include "model/Rectangle.h"
#include "model/SumValueHolder.h"
#include "placement/PlaceableRelation.h"
#include "support/LoadedReport.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

using zebtest::LoadedReport;

template <class Object>
Object* Placed(Object* object, int number, CPlaceable* target = nullptr) {
  object->SetWidth(static_cast<float>(number) + 0.25F);
  object->SetHeight(static_cast<float>(number) + 0.5F);
  object->SetKeepMinWidth(1.5F);
  auto* border = new CBorder;
  border->SetWidths(0.5F, 0, 0.25F, 1);
  border->SetDistances(1, 2, 3, 4);
  border->SetBaseLineToUpperDistance(7.5F);
  border->SetBaseLineToLowerDistance(2.5F);
  object->SetBorder(border);
  object->SetTextColor(0.5F, 0.25F, 1.0F);
  object->SetBackgroundColor(0.0F, 0.125F, 0.75F);
  auto* condition = new CCondition;
  condition->SetFormula(L"[PL.Skonto] > 0 & a < \"b\"");
  object->SetCondition(condition);
  if (target != nullptr) {
    auto* relation = CPlaceableRelation::CreatePlRel(static_cast<RelationPoint>(1),
                                                     static_cast<RelationPoint>(3), -1.5F, 2.25F, target);
    relation->SetAdjustHeight(true);
    object->SetPlaceableRelation(relation);
  }
  return object;
}

template <class Text>
Text* Worded(Text* text, int number, CPlaceable* target = nullptr) {
  Placed(text, number, target);
  text->SetTextContent(L"  Größe\r\n\t<&>  ");
  text->SetFontName(L"Times-Roman");
  text->SetFontSize(9.5F);
  text->SetLineSpacing(11.25F);
  text->SetUnderline(true);
  text->SetOverline(true);
  text->SetStrikeout(true);
  text->SetOrientation(static_cast<DOMOrientation>(2));
  text->SetTextEncoding(L"winansi1250");
  text->SetBold(700);
  text->SetItalic(true);
  return text;
}

template <class ValueHolder>
ValueHolder* Bound(ValueHolder* valueHolder, int number, CPlaceable* target = nullptr) {
  Worded(valueHolder, number, target);
  valueHolder->SetInternalKey((L"KEY." + std::to_wstring(number)).c_str());
  valueHolder->SetAlternativeTextBeforeVH(L"before ");
  valueHolder->SetAlternativeTextAfterVH(L" after");
  valueHolder->SetCharacterLimit(40);
  valueHolder->SetMultiline(false);
  valueHolder->SetCutLeft(true);
  valueHolder->SetNumberToText(true);
  valueHolder->SetValueHolderType(static_cast<CValueHolder::ValueHolderType>(8));
  valueHolder->SetAdjustGraphicToVHSize(true);
  valueHolder->SetKeepAspectRatio(true);
  valueHolder->SetPageBreakNrLinesMin(3);
  valueHolder->SetPageBreakNrLinesKeep(4);
  valueHolder->SetHasRTFContent(true);
  return valueHolder;
}

CFormulaValueHolder* Formula(int number, CPlaceable* target = nullptr) {
  auto* formula = Bound(new CFormulaValueHolder, number, target);
  formula->SetName(L"Betrag");
  formula->SetFormula(L"Menge * Preis");
  formula->SetRoundVHKey(L"PL.NksBetrag");
  formula->SetInternalDecimalPlaces(6);
  formula->SetResultIsEmptyIfVHEmpty(true);
  formula->SetResultIsEmptyIfNull(true);
  formula->SetResultIsBool(true);
  formula->InsertKeyAndType(L"Menge", static_cast<CValueHolder::ValueHolderType>(2));
  return formula;
}

CSumValueHolder* Sum(int number, CPlaceable* target = nullptr) {
  auto* sum = Bound(new CSumValueHolder, number, target);
  sum->SetName(L"Summe");
  sum->SetSumKey(L"FX.Betrag");
  sum->SetResetSumAfterPageEnd(true);
  sum->SetCumulative(true);
  return sum;
}

CDynamicValueHolder* Dynamic(int number, CPlaceable* target = nullptr) {
  auto* dynamic = Bound(new CDynamicValueHolder, number, target);
  dynamic->SetName(L"Farbe");
  return dynamic;
}

CCopyValueHolder* Copy(int number, CPlaceable* target = nullptr) {
  auto* copy = Bound(new CCopyValueHolder, number, target);
  copy->SetRefZoneID(L"Kopf");
  copy->SetRefVHID(L"KEY.1");
  return copy;
}

CPicture* Picture(int number, CPlaceable* target = nullptr) {
  auto* picture = Placed(new CPicture, number, target);
  std::array<unsigned char, 5> bytes{0, 255, 1, 128, 10};
  picture->LoadPictureFromMem(bytes.data(), static_cast<int>(bytes.size()));
  return picture;
}

CLine* Line(int number, CPlaceable* target = nullptr) {
  auto* line = Placed(new CLine, number, target);
  line->SetExtendToReportZoneEnd(true);
  line->SetExtendToLayoutFooter(true);
  return line;
}

CTableCell* Cell(int column, CPlaceable* target = nullptr) {
  auto* cell = Placed(new CTableCell, column, target);
  cell->SetTableID(3);
  cell->SetRowIndex(1);
  cell->SetColIndex(column);
  return cell;
}

void FillZone(CReportZone& zone) {
  zone.SetInternalReportZoneName(L"Position & Rest");
  auto* placeholder = new CPlaceable;
  placeholder->SetIsZoneObject(true);
  CReportRootElement::AddDeletableObject(placeholder);
  auto* text = Worded(new CText, 1, placeholder);
  zone.AddTextElement(text);
  auto* valueHolder = Bound(new CValueHolder, 2, text);
  zone.AddValueHolder(valueHolder);
  zone.AddValueHolder(Formula(3, valueHolder));
  zone.AddValueHolder(Sum(4, placeholder));
  zone.AddValueHolder(Dynamic(5, valueHolder));
  zone.AddValueHolder(Copy(6, text));
  zone.AddPictureElement(Picture(7, text));
  auto* rectangle = Placed(new CRectangle, 8, zone.GetPictureElementAt(0));
  zone.AddRectangleElement(rectangle);
  zone.AddLineElement(Line(9, rectangle));
  CTableCell* first = Cell(0, zone.GetLineElementAt(0));
  CTableCell* second = Cell(1, first);
  zone.AddTableCell(second);
  zone.AddTableCell(first);
  for (CPlaceable* element : {static_cast<CPlaceable*>(Worded(new CText, 10, first)),
                              static_cast<CPlaceable*>(Bound(new CValueHolder, 11, first)),
                              static_cast<CPlaceable*>(Formula(12)), static_cast<CPlaceable*>(Sum(13)),
                              static_cast<CPlaceable*>(Dynamic(14)), static_cast<CPlaceable*>(Copy(15))}) {
    first->AddCellElement(element);
  }
  zone.SetFooterZone(true);
  zone.SetZoneCanBreak(false);
  zone.SetPageBreakNrLinesKeep(-1);
  zone.SetPageBreakNotLastZone(true);
  zone.AddZonesKeepTogether(L"Fuss");
  zone.AddZonesKeepTogether(L"");
  zone.AddDefinedFormulaValueHolder(Formula(16));
}

void FillPage(CLayoutPage& page) {
  page.SetPaperRect(new LayoutRect(0, 842, 595.25F, 0));
  page.SetBorderRect(new LayoutRect(57, 740, 538, 120));
  auto* text = Worded(new CText, 1, page.GetPaperObject());
  page.AddLayoutContent(text);
  page.AddLayoutContent(Bound(new CValueHolder, 2, text));
  page.AddLayoutContent(Formula(3, text));
  page.AddLayoutContent(Sum(4, text));
  page.AddLayoutContent(Dynamic(5, text));
  page.AddLayoutContent(Picture(6, text));
  page.AddLayoutContent(Placed(new CRectangle, 7, text));
  page.AddLayoutContent(Line(8, text));
  CTableCell* cell = Cell(0);
  page.AddLayoutContent(cell);
  cell->AddCellElement(Worded(new CText, 9));
  cell->AddCellElement(Bound(new CValueHolder, 10));
  cell->AddCellElement(Formula(11));
}

void Fill(LoadedReport& report) {
  auto* document = new CReportDocument;
  report->SetReportDocument(document);
  report->SetReportType(L"Rechnung <neu>");
  for (int i = 0; i < 2; ++i) {
    document->AddReportZone(new CReportZone);
    FillZone(*document->GetReportZoneAt(i));
  }
  document->AddDefinedDynVH(L"Farbe", L"Zusatzfeld");
  document->SetReportLayoutName(L"layout.xml");
  auto* layout = new CReportLayout;
  report->SetReportLayout(layout);
  layout->SetFirstPageIndependent(true);
  layout->SetEvenOddPagesIndependent(true);
  for (int i = 0; i < 3; ++i) FillPage(*layout->GetPageAt(i));
}

std::string SavedAs(LoadedReport& report, const std::string& name) {
  const std::wstring folder = report.Dir().WidePath() + L'\\';
  report->SaveReport((folder + L"report.xml").c_str(), (folder + L"layout.xml").c_str());
  return zebtest::ReadFile(report.Dir().File(name));
}

}  // namespace

// Objects have the same identifiers in every file, since each save reaches them in the same order.
TEST(ReportRoundTrip, FilesOfEveryKindOfObjectSettleAtOnce) {
  LoadedReport made;
  Fill(made);
  const std::string report = SavedAs(made, "report.xml");
  const std::string layout = SavedAs(made, "layout.xml");
  for (int round = 0; round < 2; ++round) {
    LoadedReport again;
    again.LoadReportText(report);
    again.LoadLayoutText(layout);
    EXPECT_EQ(SavedAs(again, "report.xml"), report);
    EXPECT_EQ(SavedAs(again, "layout.xml"), layout);
  }
}

TEST(ReportRoundTrip, EveryKindOfObjectComesBack) {
  LoadedReport made;
  Fill(made);
  LoadedReport again;
  again.LoadReportText(made.SavedReport());
  again.LoadLayoutText(made.SavedLayout());
  ASSERT_EQ(again.Document().GetReportZoneCount(), 2);
  CReportZone& zone = again.Zone(1);
  EXPECT_STREQ(again->GetReportType(), L"Rechnung <neu>");
  EXPECT_STREQ(zone.GetInternalReportZoneName(), L"Position & Rest");
  EXPECT_STREQ(zone.GetTextElementAt(0)->GetTextContent(), L"  Größe\r\n\t<&>  ");
  EXPECT_EQ(zone.GetValueHolderCount(), 5);
  EXPECT_EQ(zone.GetPictureElementAt(0)->GetPictureLength(), 5);
  EXPECT_EQ(zone.GetPictureElementAt(0)->GetPictureData()[1], 255);
  EXPECT_TRUE(zone.GetLineElementAt(0)->GetExtendToReportZoneEnd());
  ASSERT_EQ(zone.GetTableCellCount(), 2);
  EXPECT_EQ(zone.GetTableCellAt(0)->GetCellElementCount(), 6);
  EXPECT_EQ(zone.GetLineElementAt(0)->GetPlaceableRelation()->GetRelationObject(),
            zone.GetRectangleElementAt(0));
  EXPECT_TRUE(zone.GetTextElementAt(0)->GetPlaceableRelation()->GetRelationObject()->IsZoneObject());
  EXPECT_EQ(zone.GetTextElementAt(0)->GetPlaceableRelation()->GetRelationObject(),
            zone.GetValueHolderAt(2)->GetPlaceableRelation()->GetRelationObject());
  EXPECT_EQ(zone.GetPageBreakNrLinesKeep(), -1);
  EXPECT_EQ(zone.GetZonesKeepTogetherCount(), 2);
  EXPECT_EQ(zone.GetDefinedFormulaValueHoldersCount(), 1);
  ASSERT_EQ(again.Layout().GetPageCount(), 3);
  CLayoutPage& page = again.Page(2);
  EXPECT_EQ(page.GetLayoutContentCount(), 9);
  EXPECT_EQ(page.GetLayoutContentAt(0)->GetPlaceableRelation()->GetRelationObject(), page.GetPaperObject());
  EXPECT_EQ(page.GetLayoutContentAt(7)->GetPlaceableRelation()->GetRelationObject(),
            page.GetLayoutContentAt(0));
}

TEST(ReportRoundTrip, SavingTwiceGivesTheSameFile) {
  LoadedReport made;
  Fill(made);
  EXPECT_EQ(made.SavedReport(), made.SavedReport());
  EXPECT_EQ(made.SavedLayout(), made.SavedLayout());
}
