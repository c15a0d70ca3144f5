#include "ZoneModel.h"
#include "foundation/KXException.h"

#include <gtest/gtest.h>

#include <vector>

// Reports of a hostile size: neither the stack nor the time may grow out of proportion.

namespace {

constexpr int kMany = 100'000;

std::vector<CText*> AddTexts(CReportZone& zone, int count) {
  std::vector<CText*> texts;
  for (int i = 0; i < count; ++i) {
    texts.push_back(new CText);
    zone.AddTextElement(texts.back());
  }
  return texts;
}

std::vector<CText*> AddTexts(CLayoutPage& page, int count) {
  std::vector<CText*> texts;
  for (int i = 0; i < count; ++i) {
    texts.push_back(new CText);
    page.AddLayoutContent(texts.back());
  }
  return texts;
}

// Each is tied to the next one: the first walk follows the whole chain.
void Chain(const std::vector<CText*>& texts, bool adjustHeight) {
  for (std::size_t i = 1; i < texts.size(); ++i) Tie(*texts[i - 1], texts[i], adjustHeight);
}

// Each is tied to the one before.
void ChainBack(const std::vector<CText*>& texts, bool adjustHeight) {
  for (std::size_t i = 1; i < texts.size(); ++i) Tie(*texts[i], texts[i - 1], adjustHeight);
}

template <class Owner>
void ExpectOrder(Owner& owner, const std::vector<CText*>& texts, bool reversed) {
  ASSERT_EQ(owner.GetOrderedElementCount(), kMany);
  for (int i = 0; i < kMany; ++i) {
    const CText* expected = texts[static_cast<std::size_t>(reversed ? kMany - 1 - i : i)];
    ASSERT_EQ(owner.GetOrderedElementAt(i), expected);
    ASSERT_EQ(owner.FindOrderedElement(expected), i);
  }
}

TEST(LargeOrder, ChainOfAZone) {
  CReportZone zone;
  const auto texts = AddTexts(zone, kMany);
  Chain(texts, true);
  zone.CalculateOrderedElements(true);
  ExpectOrder(zone, texts, true);
  ASSERT_EQ(zone.GetHeightElementsCount(), 1);
  EXPECT_EQ(zone.GetHeightElementsAt(0)->GetElementCount(), kMany);
}

TEST(LargeOrder, ReversedChainOfAZone) {
  CReportZone zone;
  const auto texts = AddTexts(zone, kMany);
  ChainBack(texts, true);
  zone.CalculateOrderedElements(true);
  ExpectOrder(zone, texts, false);
  EXPECT_EQ(zone.GetHeightElementsCount(), 1);
}

TEST(LargeOrder, SiblingsOfAZone) {
  CReportZone zone;
  const auto texts = AddTexts(zone, kMany);
  for (std::size_t i = 1; i < texts.size(); ++i) Tie(*texts[i], texts[0], true);
  zone.CalculateOrderedElements(true);
  ExpectOrder(zone, texts, false);
  CAdjustHeightElements* group = zone.GetHeightElementsAt(0);
  ASSERT_EQ(group->GetElementCount(), kMany);
  for (int i = 0; i < kMany; ++i)
    group->SetElementHeight(texts[static_cast<std::size_t>(i)], static_cast<float>(i));
  EXPECT_EQ(zone.GetMaxHeightOfElement(texts[0]), static_cast<float>(kMany - 1));
}

TEST(LargeOrder, ManyHeightGroups) {
  CReportZone zone;
  const auto texts = AddTexts(zone, kMany);
  for (std::size_t i = 1; i < texts.size(); i += 2) Tie(*texts[i], texts[i - 1], true);
  zone.CalculateOrderedElements(true);
  ASSERT_EQ(zone.GetHeightElementsCount(), kMany / 2);
  for (int i = 0; i < kMany; ++i) {
    CText* text = texts[static_cast<std::size_t>(i)];
    zone.GetHeightElementsAt(i / 2)->SetElementHeight(text, static_cast<float>(i));
    ASSERT_EQ(zone.GetMaxHeightOfElement(text), static_cast<float>(i));
  }
}

// Two groups on one chain: each walk moves their border by one, and goes the long way to the chain's foot for it.
TEST(LargeOrder, ChainInTwoHeightGroups) {
  CReportZone zone;
  const auto texts = AddTexts(zone, kMany);
  ChainBack(texts, true);
  CText foot;
  CText middle;
  CText head;
  CText first;
  Tie(first, &foot, true);
  Tie(middle, &foot, true);
  Tie(head, &middle, true);
  Tie(*texts[0], &head, true);
  zone.SetTextElementAt(&first, 0);
  zone.CalculateOrderedElements(true);
  // The walk from the text of number k takes that of number k - 3 into the first group.
  ASSERT_EQ(zone.GetHeightElementsCount(), 2);
  EXPECT_EQ(zone.GetHeightElementsAt(0)->GetElementCount(), kMany + 1);
  EXPECT_EQ(zone.GetHeightElementsAt(0)->GetElementAt(kMany), texts[kMany - 4]);
  EXPECT_EQ(zone.GetHeightElementsAt(1)->GetElementCount(), kMany + 2);
  zone.SetTextElementAt(texts[0], 0);
}

TEST(LargeOrder, CircleOfAZone) {
  CReportZone zone;
  const auto texts = AddTexts(zone, kMany);
  Chain(texts, true);
  Tie(*texts.back(), texts.front(), true);
  EXPECT_THROW(zone.CalculateOrderedElements(true), CKXException);
  ExpectOrder(zone, texts, true);
  zone.CalculateOrderedElements(false);
  ExpectOrder(zone, texts, true);
}

TEST(LargeOrder, ElementsTiedToTheZone) {
  CReportZone zone;
  CPlaceable zoneObject;
  zoneObject.SetIsZoneObject(true);
  const auto texts = AddTexts(zone, kMany);
  for (CText* text : texts) Tie(*text, &zoneObject, true);
  zone.CalculateOrderedElements(true);
  ExpectOrder(zone, texts, true);
}

TEST(LargeOrder, CellsOfATable) {
  CReportZone zone;
  CText reference;
  std::vector<CTableCell*> cells;
  for (int i = 0; i < kMany; ++i) {
    cells.push_back(new CTableCell);
    cells.back()->SetTableID(1);
    cells.back()->SetRowIndex(i / 10);
    cells.back()->SetColIndex(i % 10);
    Tie(*cells.back(), &reference, true);
  }
  for (CTableCell* cell : cells) zone.AddTableCell(cell);
  zone.CalculateOrderedElements(true);
  ASSERT_EQ(zone.GetOrderedElementCount(), kMany + 1);
  EXPECT_EQ(zone.GetOrderedElementAt(0), &reference);
  for (int i = 0; i < kMany; ++i) {
    ASSERT_EQ(zone.GetOrderedElementAt(i + 1), cells[static_cast<std::size_t>(i)]);
  }
  EXPECT_EQ(zone.GetHeightElementsAt(0)->GetElementCount(), kMany + 1);
}

TEST(LargeOrder, ChainOfAPage) {
  CLayoutPage page(nullptr);
  const auto texts = AddTexts(page, kMany);
  Chain(texts, false);
  page.CalculateOrderedElements();
  ExpectOrder(page, texts, true);
  EXPECT_EQ(page.GetPredecessorsAt(texts[1])->GetPredecessorAt(0), texts[0]);
}

TEST(LargeOrder, ReversedChainOfAPage) {
  CLayoutPage page(nullptr);
  const auto texts = AddTexts(page, kMany);
  ChainBack(texts, false);
  page.CalculateOrderedElements();
  ExpectOrder(page, texts, false);
}

TEST(LargeOrder, SiblingsOfAPage) {
  CLayoutPage page(nullptr);
  const auto texts = AddTexts(page, kMany);
  for (std::size_t i = 1; i < texts.size(); ++i) Tie(*texts[i], texts[0]);
  page.CalculateOrderedElements();
  EXPECT_EQ(page.GetOrderedElementAt(0), texts[0]);
  EXPECT_EQ(page.GetOrderedElementAt(1), texts.back());
  EXPECT_EQ(page.GetOrderedElementAt(kMany - 1), texts[1]);
  EXPECT_EQ(page.GetPredecessorsAt(texts[0])->GetPredecessorCount(), kMany - 1);
}

TEST(LargeOrder, CircleOfAPage) {
  CLayoutPage page(nullptr);
  const auto texts = AddTexts(page, kMany);
  Chain(texts, false);
  Tie(*texts.back(), texts.front());
  EXPECT_THROW(page.CalculateOrderedElements(), CKXException);
  ExpectOrder(page, texts, true);
}

}  // namespace
