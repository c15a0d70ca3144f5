#include "ZoneModel.h"
#include "foundation/KXException.h"

#include <gtest/gtest.h>

namespace {

class PageOrder : public NamedObjects {
 protected:
  CText* Text(const std::string& name) {
    auto* text = Named(new CText, name);
    page.AddLayoutContent(text);
    return text;
  }

  std::string Order() {
    page.CalculateOrderedElements();
    return OrderOf(page);
  }

  std::string Predecessors(CPlaceable* object) { return PredecessorsOf(page, object); }

  OpenPage page;
};

TEST_F(PageOrder, OfAnEmptyPageIsEmptyAndCalculated) {
  EXPECT_EQ(Order(), "");
  Text("A");
  EXPECT_EQ(Order(), "");
}

TEST_F(PageOrder, FixedIsCalculatedOnceEvenIfContentIsAdded) {
  CText* a = Text("A");
  EXPECT_EQ(Order(), "A");
  Tie(*Text("B"), a);
  EXPECT_EQ(Order(), "A");
  EXPECT_EQ(Predecessors(a), "none");
}

TEST_F(PageOrder, ObjectsWithoutRelationKeepTheirOrder) {
  Text("A");
  Text("B");
  Text("C");
  EXPECT_EQ(Order(), "A B C");
}

TEST_F(PageOrder, FixedObjectsTiedToThePaperStandInFrontTheLatestFirst) {
  Text("X");
  CPlaceable* paper = page.GetPaperObject();
  Tie(*Text("A"), paper);
  Tie(*Text("B"), paper);
  EXPECT_EQ(Order(), "B A X");
  EXPECT_EQ(page.GetPredecessorsAt(paper), nullptr);
}

TEST_F(PageOrder, ZoneObjectIsAReferenceAsAnyOther) {
  CPlaceable* zoneObject = ZoneObject();
  Tie(*Text("A"), zoneObject);
  EXPECT_EQ(Order(), "zone A");
  EXPECT_EQ(Predecessors(zoneObject), "A");
}

TEST_F(PageOrder, ObjectGoesDirectlyBehindItsReference) {
  CText* a = Text("A");
  Text("free");
  Tie(*Text("B"), a);
  Tie(*Text("C"), a);
  // No siblings are passed over: C stands in front of B.
  EXPECT_EQ(Order(), "A C B free");
  EXPECT_EQ(Predecessors(a), "B C");
}

TEST_F(PageOrder, PredecessorsAreListedInTheOrderOfTheWalk) {
  CText* c = Text("C");
  CText* b = Text("B");
  CText* a = Text("A");
  CText* d = Text("D");
  Tie(*c, b);
  Tie(*b, a);
  Tie(*d, a);
  EXPECT_EQ(Order(), "A D B C");
  EXPECT_EQ(Predecessors(a), "B D");
  EXPECT_EQ(Predecessors(b), "C");
  EXPECT_EQ(Predecessors(c), "none");
  EXPECT_EQ(Predecessors(d), "none");
}

TEST_F(PageOrder, ChainIsFollowedToItsEnd) {
  CText* a = Text("A");
  CPlaceable* b = Foreign("B");
  CPlaceable* c = Foreign("C");
  Tie(*a, b);
  Tie(*b, c);
  EXPECT_EQ(Order(), "C B A");
  EXPECT_EQ(Predecessors(c), "B");
  EXPECT_EQ(Predecessors(b), "A");
}

TEST_F(PageOrder, NoRuleOfTablesHolds) {
  auto* cell = Named(new CTableCell, "cell");
  cell->SetRowIndex(1);
  cell->SetColIndex(1);
  page.AddLayoutContent(cell);
  Tie(*cell, Foreign("A"));
  EXPECT_EQ(Order(), "A cell");
}

TEST_F(PageOrder, ElementsOfCellsAreNotLookedAt) {
  auto* cell = Named(new CTableCell, "cell");
  CText inCell;
  cell->AddCellElement(&inCell);
  page.AddLayoutContent(cell);
  EXPECT_EQ(Order(), "cell");
}

TEST_F(PageOrder, ObjectListedTwiceIsPlacedOnce) {
  CText* a = Text("A");
  CText* b = Text("B");
  Tie(*b, a);
  page.AddLayoutContent(b);
  page.AddLayoutContent(nullptr);
  EXPECT_EQ(Order(), "A B");
  EXPECT_EQ(Predecessors(a), "B");
  page.SetLayoutContentAt(nullptr, 2);
}

TEST_F(PageOrder, RelationToNothingIsNoRelation) {
  Tie(*Text("A"), nullptr);
  Text("B");
  EXPECT_EQ(Order(), "A B");
}

TEST_F(PageOrder, ObjectTiedToItselfIsListedOnce) {
  CText* a = Text("A");
  Tie(*a, a);
  EXPECT_EQ(Order(), "A");
  EXPECT_EQ(Predecessors(a), "A");
}

TEST_F(PageOrder, CircleIsAlwaysAFailure) {
  CText* first = Text("first");
  CText* a = Text("A");
  CText* b = Text("B");
  Text("last");
  Tie(*a, b);
  Tie(*b, a);
  for (int i = 0; i < 2; ++i) {
    EXPECT_THROW(page.CalculateOrderedElements(), CKXException);
    EXPECT_EQ(OrderOf(page), "first B A");
    EXPECT_EQ(Predecessors(a), "B");
    EXPECT_EQ(Predecessors(b), "A");
  }
  Tie(*b, first);
  // A again lists B and itself at the end; B is behind what it is tied to.
  EXPECT_EQ(Order(), "first B A last");
  EXPECT_EQ(Predecessors(a), "none");
  EXPECT_EQ(Predecessors(first), "B");
}

TEST_F(PageOrder, ClearPredecessorsDeletesAllEntries) {
  CText* a = Text("A");
  Tie(*Text("B"), a);
  Order();
  EXPECT_EQ(Predecessors(a), "B");
  page.ClearPredecessors();
  EXPECT_EQ(page.GetPredecessorsAt(a), nullptr);
  EXPECT_EQ(OrderOf(page), "A B");
}

TEST_F(PageOrder, FindGivesTheIndexOfEachObject) {
  CText* a = Text("A");
  CText* b = Text("B");
  Tie(*a, b);
  EXPECT_EQ(page.FindOrderedElement(a), -1);
  page.CalculateOrderedElements();
  EXPECT_EQ(page.FindOrderedElement(b), 0);
  EXPECT_EQ(page.FindOrderedElement(a), 1);
  EXPECT_EQ(page.FindOrderedElement(page.GetPaperObject()), -1);
  EXPECT_EQ(page.GetOrderedElementAt(1), a);
}

TEST_F(PageOrder, OneWalkAddsAnObjectAndWhatItLeadsTo) {
  CText* a = Text("A");
  CText* b = Text("B");
  Tie(*a, b);
  page.AddRelationsToOrderVector(nullptr);
  page.AddRelationsToOrderVector(a);
  page.AddRelationsToOrderVector(a);
  EXPECT_EQ(OrderOf(page), "B A");
  EXPECT_EQ(Predecessors(b), "A");
  Tie(*b, a);
  EXPECT_THROW(page.AddRelationsToOrderVector(b), CKXException);
  EXPECT_EQ(OrderOf(page), "B A");
}

}  // namespace
