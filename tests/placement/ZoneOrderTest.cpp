#include "ZoneModel.h"
#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"
#include "support/WidePath.h"

#include <gtest/gtest.h>

namespace {

class ZoneOrder : public NamedObjects {
 protected:
  CText* Text(const std::string& name) {
    auto* text = Named(new CText, name);
    zone.AddTextElement(text);
    return text;
  }

  CValueHolder* Holder(const std::string& name) {
    auto* holder = Named(new CValueHolder, name);
    zone.AddValueHolder(holder);
    return holder;
  }

  CTableCell* Cell(const std::string& name, int row, int column, int table = 1) {
    auto* cell = Named(new CTableCell, name);
    cell->SetTableID(table);
    cell->SetRowIndex(row);
    cell->SetColIndex(column);
    zone.AddTableCell(cell);
    return cell;
  }

  std::string Order(bool throwIfNotSortable = true) {
    zone.CalculateOrderedElements(throwIfNotSortable);
    return OrderOf(zone);
  }

  OpenZone zone;
};

TEST_F(ZoneOrder, OfAnEmptyZoneIsEmptyAndCalculated) {
  EXPECT_EQ(Order(), "");
  EXPECT_EQ(zone.GetOrderedElementCount(), 0);
  Text("A");
  EXPECT_EQ(Order(), "");
}

TEST_F(ZoneOrder, GettersDoNotCalculate) {
  CText* a = Text("A");
  EXPECT_EQ(zone.GetOrderedElementCount(), 0);
  EXPECT_EQ(zone.FindOrderedElement(a), -1);
}

TEST_F(ZoneOrder, FixedIsCalculatedOnceEvenIfElementsAreAdded) {
  Text("A");
  EXPECT_EQ(Order(), "A");
  Text("B");
  EXPECT_EQ(Order(), "A");
}

TEST_F(ZoneOrder, ElementsWithoutRelationKeepTheirOrder) {
  Text("A");
  Text("B");
  Text("C");
  EXPECT_EQ(Order(), "A B C");
}

TEST_F(ZoneOrder, CollectionsFollowEachOther) {
  CTableCell* cell = Cell("cell", 0, 0);
  cell->AddCellElement(Named(new CText, "inCell1"));
  cell->AddCellElement(Named(new CValueHolder, "inCell2"));
  CTableCell* second = Cell("cell2", 0, 1);
  second->AddCellElement(Named(new CText, "inCell3"));
  zone.AddLineElement(Named(new CLine, "line"));
  zone.AddRectangleElement(Named(new CRectangle, "rectangle"));
  zone.AddPictureElement(Named(new CPicture, "picture"));
  Holder("holder");
  Text("text");
  EXPECT_EQ(Order(), "text holder picture rectangle line cell inCell1 inCell2 cell2 inCell3");
}

TEST_F(ZoneOrder, CellsComeInTheOrderOfTableRowAndColumn) {
  Cell("c101", 0, 1);
  Cell("c100", 0, 0);
  Cell("c055", 5, 5, 0);
  EXPECT_EQ(Order(), "c055 c100 c101");
}

TEST_F(ZoneOrder, FixedElementsTiedToTheZoneStandInFrontTheLatestFirst) {
  CPlaceable* zoneObject = ZoneObject();
  Text("X");
  Tie(*Text("A"), zoneObject);
  Tie(*Text("B"), zoneObject);
  EXPECT_EQ(Order(), "B A X");
}

TEST_F(ZoneOrder, ReferenceListedByItsUserStaysWhereItIs) {
  CText* b = Text("B");
  CText* a = Text("A");
  Tie(*a, ZoneObject());
  Tie(*b, a);
  EXPECT_EQ(Order(), "A B");
}

TEST_F(ZoneOrder, SiblingsStandBehindEachOther) {
  CText* a = Text("A");
  Tie(*Text("B"), a);
  Tie(*Text("C"), a);
  Tie(*Text("D"), a);
  EXPECT_EQ(Order(), "A B C D");
}

TEST_F(ZoneOrder, FixedScanPassesOverTheFirstElementWithAnotherReference) {
  CText* a = Text("A");
  CText* z = Text("Z");
  CText* x = Text("X");
  CPlaceable* zoneObject = ZoneObject();
  Tie(*a, zoneObject);
  Tie(*z, zoneObject);
  Tie(*x, z);
  // At X's turn the list holds Z and then A, which is tied to something else than Z.
  EXPECT_EQ(Order(), "Z A X");
}

TEST_F(ZoneOrder, ScanStopsBehindTheFirstStrangerOnly) {
  CPlaceable* zoneObject = ZoneObject();
  CText* a = Text("A");
  CText* b = Text("B");
  CText* z = Text("Z");
  for (CText* text : {a, b, z}) Tie(*text, zoneObject);
  Tie(*Text("X"), z);
  EXPECT_EQ(Order(), "Z B X A");
}

TEST_F(ZoneOrder, ScanEndsAtAnElementWithoutRelation) {
  CText* a = Text("A");
  Text("free");
  Tie(*Text("B"), a);
  EXPECT_EQ(Order(), "A B free");
}

TEST_F(ZoneOrder, ScanEndsAtAnElementWhoseRelationNamesNothing) {
  CText* a = Text("A");
  Tie(*Text("loose"), nullptr);
  Tie(*Text("B"), a);
  EXPECT_EQ(Order(), "A B loose");
}

TEST_F(ZoneOrder, ScanBehindAStrangerMayLeaveTheSiblings) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  CText* d = Text("D");
  Tie(*b, a);
  Tie(*c, a);
  Tie(*d, b);
  CText* e = Text("E");
  Tie(*e, a);
  // D lands behind C, the first one that is not tied to B; E behind D, the first one that is not tied to A.
  EXPECT_EQ(Order(), "A B C D E");
}

TEST_F(ZoneOrder, ChainIsFollowedToItsEnd) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  CText* d = Text("D");
  Tie(*a, b);
  Tie(*b, c);
  Tie(*c, d);
  EXPECT_EQ(Order(), "D C B A");
}

TEST_F(ZoneOrder, UnlistedReferenceIsInsertedDirectlyInFront) {
  Text("first");
  CText* a = Text("A");
  CPlaceable* b = Foreign("B");
  CPlaceable* c = Foreign("C");
  Tie(*a, b);
  Tie(*b, c);
  EXPECT_EQ(Order(), "first C B A");
}

TEST_F(ZoneOrder, ReferenceOfAnotherZoneEntersTheList) {
  CPlaceable* other = Foreign("other");
  Tie(*Text("A"), other);
  EXPECT_EQ(Order(), "other A");
  EXPECT_EQ(zone.FindOrderedElement(other), 0);
}

TEST_F(ZoneOrder, ReferenceTiedToTheZoneKeepsThePlaceInFrontOfItsUser) {
  Text("first");
  CText* a = Text("A");
  CPlaceable* b = Foreign("B");
  Tie(*a, b);
  Tie(*b, ZoneObject());
  EXPECT_EQ(Order(), "first B A");
}

TEST_F(ZoneOrder, ElementListedTwiceIsPlacedOnce) {
  CText* a = Text("A");
  CText* b = Text("B");
  Tie(*b, a);
  zone.AddTextElement(b);
  zone.AddTextElement(a);
  EXPECT_EQ(Order(), "A B");
  zone.SetTextElementAt(nullptr, 2);
  zone.SetTextElementAt(nullptr, 3);
}

TEST_F(ZoneOrder, NullEntriesArePassedOver) {
  zone.AddTextElement(nullptr);
  Text("A");
  zone.AddLineElement(nullptr);
  Cell("cell", 0, 0)->AddCellElement(nullptr);
  EXPECT_EQ(Order(), "A cell");
}

TEST_F(ZoneOrder, RelationToNothingIsNoRelation) {
  CText* a = Text("A");
  Tie(*a, nullptr, true);
  Text("B");
  EXPECT_EQ(Order(), "A B");
  EXPECT_EQ(zone.GetHeightElementsCount(), 0);
}

TEST_F(ZoneOrder, ElementTiedToItselfIsListedOnce) {
  CText* a = Text("A");
  Tie(*a, a);
  Tie(*Text("B"), a);
  EXPECT_EQ(Order(), "A B");
}

TEST_F(ZoneOrder, CircleIsAFailure) {
  CText* a = Text("A");
  CText* b = Text("B");
  Tie(*a, b);
  Tie(*b, a);
  EXPECT_THROW(zone.CalculateOrderedElements(true), CKXException);
  EXPECT_EQ(OrderOf(zone), "B A");
}

TEST_F(ZoneOrder, CircleIsTheFailureOfItsKey) {
  CKXExceptionHandler::GetInstance().SetExceptionPathName(zebtest::Widen(ZEB_SHARE).c_str());
  CText* a = Text("A");
  CText* b = Text("B");
  Tie(*a, b);
  Tie(*b, a);
  try {
    zone.CalculateOrderedElements(true);
    ADD_FAILURE() << "nothing thrown";
  } catch (const CKXReportDocumentException& exception) {
    EXPECT_EQ(exception.GetErrorNr(), 2001);
  }
}

TEST_F(ZoneOrder, FailedCalculationStartsAfresh) {
  Text("first");
  CText* a = Text("A");
  CText* b = Text("B");
  Text("last");
  Tie(*a, b, true);
  Tie(*b, a);
  for (int i = 0; i < 2; ++i) {
    EXPECT_THROW(zone.CalculateOrderedElements(true), CKXException);
    EXPECT_EQ(OrderOf(zone), "first B A");
    EXPECT_EQ(GroupsOf(zone), "A B");
  }
  Tie(*b, nullptr);
  EXPECT_EQ(Order(), "first B A last");
}

TEST_F(ZoneOrder, CircleIsPassedOverOnDemand) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  Tie(*a, b);
  Tie(*b, c);
  Tie(*c, a);
  Text("last");
  EXPECT_EQ(Order(false), "C B A last");
}

TEST_F(ZoneOrder, LongWayIntoACircleEnds) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  Tie(*a, b);
  Tie(*b, c);
  Tie(*c, b);
  EXPECT_THROW(zone.CalculateOrderedElements(true), CKXException);
  EXPECT_EQ(OrderOf(zone), "C B A");
  EXPECT_EQ(Order(false), "C B A");
}

TEST_F(ZoneOrder, InnerCellStandsDirectlyInFrontOfTheNextOne) {
  CTableCell* first = Cell("first", 0, 0);
  CTableCell* inner = Cell("inner", 0, 1);
  CTableCell* last = Cell("last", 0, 2);
  CText* text = Text("text");
  Tie(*text, last);
  Tie(*inner, Foreign("notPulledIn"));
  EXPECT_EQ(Order(), "inner last text first");
  EXPECT_EQ(first->GetPlaceableRelation(), nullptr);
}

TEST_F(ZoneOrder, InnerCellIsAppendedIfTheNextOneIsNotListed) {
  Cell("first", 0, 0);
  Tie(*Cell("inner", 0, 1), Foreign("notPulledIn"));
  Cell("last", 0, 2);
  EXPECT_EQ(Order(), "first inner last");
}

TEST_F(ZoneOrder, InnerCellPutsNoReferenceInAndIsNotFollowed) {
  CPlaceable* reference = Foreign("reference");
  Tie(*reference, Foreign("further"));
  Cell("first", 0, 0);
  CTableCell* inner = Cell("inner", 0, 1);
  Tie(*inner, reference);
  Cell("last", 0, 2);
  Tie(*Text("text"), inner);
  EXPECT_EQ(Order(), "inner text first last");
}

TEST_F(ZoneOrder, InnerCellTiedToTheZoneFollowsTheRuleOfTables) {
  Cell("first", 0, 0);
  Tie(*Cell("inner", 0, 1), ZoneObject());
  Cell("last", 0, 2);
  EXPECT_EQ(Order(), "first inner last");
}

TEST_F(ZoneOrder, FirstAndLastCellPullTheirReferenceIn) {
  Tie(*Cell("first", 0, 0), Foreign("A"));
  Cell("inner", 0, 1);
  Tie(*Cell("last", 0, 2), Foreign("B"));
  EXPECT_EQ(Order(), "A first inner B last");
}

TEST_F(ZoneOrder, CellWithBothIndexesBelowOneCountsAsFirst) {
  Tie(*Cell("noIndexes", -1, -1), Foreign("A"));
  Cell("inner", 0, 1);
  Cell("last", 0, 2);
  EXPECT_EQ(Order(), "A noIndexes inner last");
}

TEST_F(ZoneOrder, CellOfTheFirstRowOrTheFirstColumnAloneIsNoFirstCell) {
  Cell("c00", 0, 0);
  Tie(*Cell("c01", 0, 1), Foreign("A"));
  Tie(*Cell("c10", 1, 0), Foreign("B"));
  Cell("c11", 1, 1);
  EXPECT_EQ(Order(), "c00 c01 c10 c11");
}

TEST_F(ZoneOrder, FirstCellOfASecondTableFollowsTheGeneralRules) {
  Cell("t1c00", 0, 0, 1);
  Tie(*Cell("t2c00", 0, 0, 2), Foreign("A"));
  Cell("t2c01", 0, 1, 2);
  EXPECT_EQ(Order(), "t1c00 A t2c00 t2c01");
}

TEST_F(ZoneOrder, CellOfAnotherZoneWithANumberOfOursFollowsTheRuleOfTables) {
  Cell("c00", 0, 0);
  Cell("c01", 0, 1);
  Cell("c02", 0, 2);
  CTableCell foreign;
  Named(&foreign, "foreign");
  foreign.SetTableID(1);
  foreign.SetRowIndex(0);
  foreign.SetColIndex(1);
  CPlaceable* reference = Foreign("notPulledIn");
  Tie(foreign, reference);
  Tie(*Text("text"), &foreign);
  EXPECT_EQ(Order(), "foreign text c00 c01 c02");
}

TEST_F(ZoneOrder, CellOfAnotherTableFollowsTheGeneralRules) {
  Cell("c00", 0, 0);
  Cell("c01", 0, 1);
  CTableCell foreign;
  Named(&foreign, "foreign");
  foreign.SetTableID(7);
  foreign.SetRowIndex(3);
  foreign.SetColIndex(3);
  Tie(foreign, Foreign("pulledIn"));
  Tie(*Text("text"), &foreign);
  EXPECT_EQ(Order(), "pulledIn foreign text c00 c01");
}

TEST_F(ZoneOrder, EqualCellsLookAtTheSecondOfThem) {
  Cell("c00", 0, 0);
  CTableCell* a = Cell("A", 0, 1);
  CTableCell* b = Cell("B", 0, 1);
  Cell("last", 0, 2);
  Tie(*a, Foreign("x"));
  Tie(*b, Foreign("y"));
  // Sorted, B stands in front of A: the next cell of both is A.
  EXPECT_EQ(Order(), "c00 B A last");
}

TEST_F(ZoneOrder, CellPutAmongSiblingsIsAStrangerToThem) {
  CText* a = Text("A");
  Tie(*Text("B"), a);
  CTableCell* last = Cell("last", 0, 2);
  Tie(*last, a);
  Tie(*Text("C"), last);
  Cell("first", 0, 0);
  CTableCell* inner = Cell("inner", 0, 1);
  Tie(*inner, Foreign("other"));
  inner->AddCellElement(Named(new CText, "D"));
  Tie(*inner->GetCellElementAt(0), a);
  // The texts give A B last C, with two siblings behind A. The inner cell comes between them, so that D, tied to A
  // too, lands behind the inner cell.
  EXPECT_EQ(Order(), "A B inner D last C first");
}

TEST_F(ZoneOrder, SiblingsListedBeforeTheirReferenceCount) {
  CPlaceable* reference = Foreign("R");
  Cell("first", 0, 0);
  Tie(*Cell("inner", 0, 1), reference);
  CTableCell* last = Cell("last", 0, 2);
  Tie(*last, reference);
  last->AddCellElement(Named(new CText, "A"));
  Tie(*last->GetCellElementAt(0), reference);
  // The inner cell was listed before what it is tied to and stands in front of it.
  EXPECT_EQ(Order(), "first inner R last A");
}

TEST_F(ZoneOrder, FindGivesTheIndexOfEachElement) {
  CText* a = Text("A");
  CText* b = Text("B");
  Tie(*a, b);
  zone.CalculateOrderedElements(true);
  EXPECT_EQ(zone.FindOrderedElement(b), 0);
  EXPECT_EQ(zone.FindOrderedElement(a), 1);
  EXPECT_EQ(zone.FindOrderedElement(nullptr), -1);
  EXPECT_EQ(zone.GetOrderedElementAt(0), b);
  EXPECT_EQ(zone.GetOrderedElementAt(1), a);
}

TEST_F(ZoneOrder, CopyOfAZoneKeepsItsOrder) {
  Text("A");
  Text("B");
  Order();
  // Freed without its contents: those belong to the source.
  auto* copy = new CReportZone(zone);
  EXPECT_EQ(OrderOf(*copy), "A B");
  copy->AddTextElement(nullptr);
  copy->CalculateOrderedElements(true);
  EXPECT_EQ(OrderOf(*copy), "A B");
  *copy = CReportZone();
  EXPECT_EQ(OrderOf(*copy), "");
  delete copy;
  EXPECT_EQ(OrderOf(zone), "A B");
}

TEST_F(ZoneOrder, OneWalkAddsAnElementAndWhatItLeadsTo) {
  CText* a = Text("A");
  CText* b = Text("B");
  Tie(*a, b);
  zone.AddRelationsToOrderVector(nullptr, true);
  EXPECT_EQ(OrderOf(zone), "");
  zone.AddRelationsToOrderVector(a, true);
  EXPECT_EQ(OrderOf(zone), "B A");
  zone.AddRelationsToOrderVector(a, true);
  EXPECT_EQ(OrderOf(zone), "B A");
  Tie(*b, a);
  EXPECT_THROW(zone.AddRelationsToOrderVector(b, true), CKXException);
  zone.AddRelationsToOrderVector(b, false);
  EXPECT_EQ(OrderOf(zone), "B A");
}

}  // namespace
