#include "ZoneModel.h"
#include "foundation/KXException.h"

#include <gtest/gtest.h>

namespace {

class ZoneHeightGroups : public NamedObjects {
 protected:
  CText* Text(const std::string& name) {
    auto* text = Named(new CText, name);
    zone.AddTextElement(text);
    return text;
  }

  CTableCell* Cell(const std::string& name, int row, int column) {
    auto* cell = Named(new CTableCell, name);
    cell->SetTableID(1);
    cell->SetRowIndex(row);
    cell->SetColIndex(column);
    zone.AddTableCell(cell);
    return cell;
  }

  std::string Groups() { return GroupsOf(zone); }

  OpenZone zone;
};

TEST_F(ZoneHeightGroups, ReferenceInAGroupTakesTheElementIn) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  zone.AddHeightElements(a, b);
  zone.AddHeightElements(c, b);
  EXPECT_EQ(Groups(), "A B C");
}

TEST_F(ZoneHeightGroups, ElementInAGroupTakesTheReferenceIn) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  zone.AddHeightElements(a, b);
  zone.AddHeightElements(a, c);
  EXPECT_EQ(Groups(), "A B C");
}

TEST_F(ZoneHeightGroups, FixedGroupsAreNeverMerged) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  CText* d = Text("D");
  zone.AddHeightElements(a, b);
  zone.AddHeightElements(c, d);
  EXPECT_EQ(Groups(), "A B | C D");
  zone.AddHeightElements(a, d);
  EXPECT_EQ(Groups(), "A B D | C D");
  EXPECT_EQ(zone.GetHeightElementsCount(), 2);
}

TEST_F(ZoneHeightGroups, ElementOfALaterGroupComesIntoThatOfItsReference) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  CText* d = Text("D");
  zone.AddHeightElements(a, b);
  zone.AddHeightElements(c, d);
  zone.AddHeightElements(d, a);
  EXPECT_EQ(Groups(), "A B D | C D");
}

TEST_F(ZoneHeightGroups, AddingTheSamePairTwiceChangesNothing) {
  CText* a = Text("A");
  CText* b = Text("B");
  zone.AddHeightElements(a, b);
  zone.AddHeightElements(a, b);
  zone.AddHeightElements(b, a);
  EXPECT_EQ(Groups(), "A B");
}

TEST_F(ZoneHeightGroups, ObjectJoinedWithItselfIsAGroupOfOne) {
  CText* a = Text("A");
  zone.AddHeightElements(a, a);
  EXPECT_EQ(Groups(), "A");
  zone.AddHeightElements(a, a);
  EXPECT_EQ(Groups(), "A");
}

TEST_F(ZoneHeightGroups, HeightOfAnElementIsThatOfTheFirstGroupThatHoldsIt) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  CText* d = Text("D");
  EXPECT_EQ(zone.GetMaxHeightOfElement(a), 0.0F);
  zone.AddHeightElements(a, b);
  zone.AddHeightElements(c, d);
  zone.AddHeightElements(a, d);
  zone.GetHeightElementsAt(0)->SetElementHeight(a, 7.5F);
  zone.GetHeightElementsAt(1)->SetElementHeight(c, 20.0F);
  EXPECT_EQ(zone.GetMaxHeightOfElement(b), 7.5F);
  EXPECT_EQ(zone.GetMaxHeightOfElement(d), 7.5F);
  EXPECT_EQ(zone.GetMaxHeightOfElement(c), 20.0F);
  EXPECT_EQ(zone.GetMaxHeightOfElement(Text("E")), 0.0F);
}

TEST_F(ZoneHeightGroups, ObjectsAddedToAGroupDirectlyCount) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  CText* d = Text("D");
  zone.AddHeightElements(a, b);
  EXPECT_EQ(zone.GetMaxHeightOfElement(c), 0.0F);
  zone.GetHeightElementsAt(0)->AddElement(c);
  zone.GetHeightElementsAt(0)->SetElementHeight(c, 3.0F);
  EXPECT_EQ(zone.GetMaxHeightOfElement(c), 3.0F);
  zone.AddHeightElements(d, c);
  EXPECT_EQ(Groups(), "A B C D");
}

TEST_F(ZoneHeightGroups, AssignedGroupCounts) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  zone.AddHeightElements(a, b);
  EXPECT_EQ(zone.GetMaxHeightOfElement(a), 0.0F);
  CAdjustHeightElements other;
  other.AddElement(c);
  other.SetElementHeight(c, 4.0F);
  *zone.GetHeightElementsAt(0) = other;
  EXPECT_EQ(zone.GetMaxHeightOfElement(a), 0.0F);
  EXPECT_EQ(zone.GetMaxHeightOfElement(c), 4.0F);
}

TEST_F(ZoneHeightGroups, CopyOfAZoneSeesWhatJoinsTheSharedGroups) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  zone.AddHeightElements(a, b);
  zone.GetHeightElementsAt(0)->SetElementHeight(a, 5.0F);
  // Freed without its contents: those belong to the source.
  auto* copy = new CReportZone(zone);
  EXPECT_EQ(copy->GetMaxHeightOfElement(c), 0.0F);
  zone.AddHeightElements(c, b);
  EXPECT_EQ(copy->GetMaxHeightOfElement(c), 5.0F);
  EXPECT_EQ(zone.GetMaxHeightOfElement(c), 5.0F);
  *copy = CReportZone();
  delete copy;
}

TEST_F(ZoneHeightGroups, ClearDeletesAllGroups) {
  CText* a = Text("A");
  CText* b = Text("B");
  zone.AddHeightElements(a, b);
  zone.GetHeightElementsAt(0)->SetElementHeight(a, 5.0F);
  zone.ClearHeightElements();
  EXPECT_EQ(zone.GetHeightElementsCount(), 0);
  EXPECT_EQ(zone.GetMaxHeightOfElement(a), 0.0F);
  zone.AddHeightElements(b, a);
  EXPECT_EQ(Groups(), "B A");
  EXPECT_EQ(zone.GetMaxHeightOfElement(a), 0.0F);
}

TEST_F(ZoneHeightGroups, CalculationMakesGroupsOfTiesWithAdjustedHeight) {
  CText* a = Text("A");
  CText* b = Text("B");
  CText* c = Text("C");
  Tie(*b, a, true);
  Tie(*c, a, true);
  zone.CalculateOrderedElements(true);
  EXPECT_EQ(Groups(), "B A C");
}

TEST_F(ZoneHeightGroups, OtherTiesMakeNoGroup) {
  CText* a = Text("A");
  Tie(*Text("B"), a, false);
  Tie(*Text("C"), ZoneObject(), true);
  Tie(*Text("D"), nullptr, true);
  zone.CalculateOrderedElements(true);
  EXPECT_EQ(Groups(), "");
}

TEST_F(ZoneHeightGroups, CalculationClearsEarlierGroups) {
  CText* a = Text("A");
  CText* b = Text("B");
  zone.AddHeightElements(a, b);
  zone.CalculateOrderedElements(true);
  EXPECT_EQ(Groups(), "");
  zone.AddHeightElements(a, b);
  zone.CalculateOrderedElements(true);
  EXPECT_EQ(Groups(), "A B");
}

TEST_F(ZoneHeightGroups, InnerCellsJoinTheirReferenceWithoutListingIt) {
  CPlaceable* reference = Foreign("R");
  Cell("first", 0, 0);
  Tie(*Cell("inner", 0, 1), reference, true);
  Tie(*Cell("inner2", 0, 2), ZoneObject(), true);
  Cell("last", 0, 3);
  zone.CalculateOrderedElements(true);
  EXPECT_EQ(Groups(), "inner R");
  EXPECT_EQ(OrderOf(zone), "first inner inner2 last");
}

TEST_F(ZoneHeightGroups, ElementTiedToItselfIsAGroupOfOne) {
  CText* a = Text("A");
  Tie(*a, a, true);
  zone.CalculateOrderedElements(true);
  EXPECT_EQ(Groups(), "A");
}

TEST_F(ZoneHeightGroups, PairThatCannotBeSortedIsJoined) {
  CText* a = Text("A");
  CText* b = Text("B");
  Tie(*a, b);
  Tie(*b, a, true);
  EXPECT_THROW(zone.CalculateOrderedElements(true), CKXException);
  EXPECT_EQ(Groups(), "B A");
  zone.CalculateOrderedElements(false);
  EXPECT_EQ(Groups(), "B A");
}

// A chain whose members come in from the middle outwards: 2, then 4, then 6. Each walk follows the chain to its end
// and moves what stands on the border of two groups into the earlier one.
TEST_F(ZoneHeightGroups, FixedEachWalkMovesTheBorderOfTwoGroupsByOne) {
  CPlaceable* p0 = Foreign("0");
  CPlaceable* p1 = Foreign("1");
  CText* p2 = Text("2");
  CPlaceable* p3 = Foreign("3");
  CText* p4 = Text("4");
  CPlaceable* p5 = Foreign("5");
  CText* p6 = Text("6");
  Tie(*p1, p0, true);
  Tie(*p2, p1, true);
  Tie(*p3, p2, true);
  Tie(*p4, p3, true);
  Tie(*p5, p4, true);
  Tie(*p6, p5, true);
  zone.CalculateOrderedElements(true);
  EXPECT_EQ(Groups(), "2 1 0 3 4 | 4 3 5 | 6 5");
}

TEST_F(ZoneHeightGroups, ElementListedTwiceIsFollowedTwice) {
  CPlaceable* p0 = Foreign("0");
  CText* p1 = Text("1");
  CPlaceable* p2 = Foreign("2");
  CPlaceable* p3 = Foreign("3");
  CText* p4 = Text("4");
  Tie(*p1, p0, true);
  Tie(*p2, p1, true);
  Tie(*p3, p2, true);
  Tie(*p4, p3, true);
  zone.AddTextElement(p4);
  zone.CalculateOrderedElements(true);
  // First walk from 4: a group of 4, 3 and 2, of which 2 comes into that of 1. Second walk: 3 does too.
  EXPECT_EQ(Groups(), "1 0 2 3 | 4 3 2");
  zone.SetTextElementAt(nullptr, 2);
}

// The end of a circle is joined again each time: r leads to z over q, and z back to r.
TEST_F(ZoneHeightGroups, EndOfACircleIsJoinedWithEachWalk) {
  CPlaceable* q = Foreign("q");
  CPlaceable* z = Foreign("z");
  Cell("first", 0, 0);
  CTableCell* inner = Cell("inner", 0, 1);
  Cell("last", 0, 2);
  auto* r = Named(new CText, "r");
  auto* e = Named(new CText, "e");
  inner->AddCellElement(r);
  inner->AddCellElement(e);
  Tie(*inner, e, true);
  Tie(*r, q, false);
  Tie(*q, z, true);
  Tie(*z, r, true);
  Tie(*e, r, true);
  zone.CalculateOrderedElements(false);
  EXPECT_EQ(Groups(), "inner e r z | q z r");
}

}  // namespace
