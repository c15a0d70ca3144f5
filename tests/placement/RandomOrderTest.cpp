#include "NaiveOrder.h"
#include "RandomModels.h"
#include "foundation/KXException.h"

#include <gtest/gtest.h>

#include <algorithm>

// Every fast way is held against the rules applied step by step, on many random models.

namespace {

template <class Owner>
std::vector<CPlaceable*> OrderOf(Owner& owner) {
  std::vector<CPlaceable*> order;
  order.reserve(static_cast<std::size_t>(owner.GetOrderedElementCount()));
  for (int i = 0; i < owner.GetOrderedElementCount(); ++i) order.push_back(owner.GetOrderedElementAt(i));
  return order;
}

std::vector<std::vector<CPlaceable*>> GroupsOf(const CReportZone& zone) {
  std::vector<std::vector<CPlaceable*>> groups;
  for (int i = 0; i < zone.GetHeightElementsCount(); ++i) {
    const CAdjustHeightElements* group = zone.GetHeightElementsAt(i);
    groups.emplace_back();
    for (int k = 0; k < group->GetElementCount(); ++k) groups.back().push_back(group->GetElementAt(k));
  }
  return groups;
}

template <class Owner>
void ExpectFindsAll(Owner& owner, const std::vector<CPlaceable*>& all,
                    const std::vector<CPlaceable*>& order) {
  for (const CPlaceable* object : all) {
    const auto found = std::find(order.begin(), order.end(), object);
    const int expected = found == order.end() ? -1 : static_cast<int>(found - order.begin());
    EXPECT_EQ(owner.FindOrderedElement(object), expected);
  }
}

bool Calculate(CReportZone& zone, bool throwIfNotSortable) {
  try {
    zone.CalculateOrderedElements(throwIfNotSortable);
    return true;
  } catch (const CKXException&) {
    return false;
  }
}

bool Calculate(CLayoutPage& page) {
  try {
    page.CalculateOrderedElements();
    return true;
  } catch (const CKXException&) {
    return false;
  }
}

bool AddRelations(OpenZone& zone, CPlaceable* element, bool throwIfNotSortable) {
  try {
    zone.AddRelationsToOrderVector(element, throwIfNotSortable);
    return true;
  } catch (const CKXException&) {
    return false;
  }
}

bool AddRelations(OpenPage& page, CPlaceable* element) {
  try {
    page.AddRelationsToOrderVector(element);
    return true;
  } catch (const CKXException&) {
    return false;
  }
}

void ExpectSameZone(RandomZone& model, const NaiveZoneOrder& naive) {
  EXPECT_EQ(OrderOf(model.Zone()), naive.order);
  EXPECT_EQ(GroupsOf(model.Zone()), naive.groups);
}

void ExpectHeightsOfFirstGroups(RandomZone& model, const NaiveZoneOrder& naive) {
  for (int i = 0; i < model.Zone().GetHeightElementsCount(); ++i) {
    CAdjustHeightElements* group = model.Zone().GetHeightElementsAt(i);
    group->SetElementHeight(group->GetElementAt(0), static_cast<float>(i + 1));
  }
  for (CPlaceable* object : model.AllObjects()) {
    float expected = 0.0F;
    for (std::size_t i = naive.groups.size(); i-- > 0;) {
      const auto& group = naive.groups[i];
      if (std::find(group.begin(), group.end(), object) != group.end()) expected = static_cast<float>(i + 1);
    }
    EXPECT_EQ(model.Zone().GetMaxHeightOfElement(object), expected);
  }
}

void CompareZone(unsigned seed, int maxObjects, int maxCells) {
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  RandomZone model(random, RandomShape(random, maxObjects, maxCells));
  const bool throwIfNotSortable = seed % 2 == 0;

  NaiveZoneOrder naive(model.Cells());
  const bool sortable = naive.AddAll(model.Elements(), throwIfNotSortable);
  EXPECT_EQ(Calculate(model.Zone(), throwIfNotSortable), sortable);
  ExpectSameZone(model, naive);
  ExpectFindsAll(model.Zone(), model.AllObjects(), naive.order);
  ExpectHeightsOfFirstGroups(model, naive);

  // A failed calculation starts afresh and fails in the same way; a successful one is not repeated.
  EXPECT_EQ(Calculate(model.Zone(), throwIfNotSortable), sortable);
  ExpectSameZone(model, naive);

  // Joining by hand goes on from the groups of the calculation.
  const std::vector<CPlaceable*> all = model.AllObjects();
  for (std::size_t i = 1; i < all.size(); i += 2) {
    naive.AddHeightElements(all[i], all[i - 1]);
    model.Zone().AddHeightElements(all[i], all[i - 1]);
  }
  EXPECT_EQ(GroupsOf(model.Zone()), naive.groups);
}

void CompareZoneStepByStep(unsigned seed) {
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  RandomZone model(random, RandomShape(random, 10, 8));
  NaiveZoneOrder naive(model.Cells());
  const std::vector<CPlaceable*> all = model.AllObjects();
  for (std::size_t i = 0; i < 3 * all.size(); ++i) {
    // Ties may change between two steps, so that nothing may be taken over from one to the next.
    if (i % 3 == 2) Tie(*all[i % all.size()], all[random() % all.size()], random() % 2 == 0);
    CPlaceable* element = all[random() % all.size()];
    const bool throwIfNotSortable = random() % 2 == 0;
    const bool sortable = naive.AddRelations(element, throwIfNotSortable);
    ASSERT_EQ(AddRelations(model.Zone(), element, throwIfNotSortable), sortable);
    ExpectSameZone(model, naive);
  }
}

void ExpectSamePage(RandomPage& model, const NaivePageOrder& naive) {
  EXPECT_EQ(OrderOf(model.Page()), naive.order);
  for (CPlaceable* object : model.AllObjects()) {
    const auto expected = naive.predecessors.find(object);
    const CPredecessors* predecessors = model.Page().GetPredecessorsAt(object);
    ASSERT_EQ(predecessors != nullptr, expected != naive.predecessors.end());
    if (predecessors == nullptr) continue;
    std::vector<CPlaceable*> actual;
    actual.reserve(static_cast<std::size_t>(predecessors->GetPredecessorCount()));
    for (int i = 0; i < predecessors->GetPredecessorCount(); ++i) {
      actual.push_back(predecessors->GetPredecessorAt(i));
    }
    EXPECT_EQ(actual, expected->second);
  }
}

void ComparePage(unsigned seed, int maxObjects) {
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  RandomPage model(random, RandomShape(random, maxObjects, 0));
  NaivePageOrder naive(model.Page().GetPaperObject());
  const bool sortable = naive.AddAll(model.Elements());
  EXPECT_EQ(Calculate(model.Page()), sortable);
  ExpectSamePage(model, naive);
  ExpectFindsAll(model.Page(), model.AllObjects(), naive.order);
  EXPECT_EQ(Calculate(model.Page()), sortable);
  ExpectSamePage(model, naive);
}

void ComparePageStepByStep(unsigned seed) {
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  RandomPage model(random, RandomShape(random, 10, 0));
  NaivePageOrder naive(model.Page().GetPaperObject());
  const std::vector<CPlaceable*> all = model.AllObjects();
  for (std::size_t i = 0; i < 3 * all.size(); ++i) {
    if (i % 3 == 2) Tie(*all[i % all.size()], all[random() % all.size()]);
    CPlaceable* element = all[random() % all.size()];
    const bool sortable = naive.AddRelations(element);
    ASSERT_EQ(AddRelations(model.Page(), element), sortable);
    ExpectSamePage(model, naive);
  }
}

TEST(RandomOrder, SmallZonesFollowTheRules) {
  for (unsigned seed = 0; seed < 10'000 && !HasFailure(); ++seed) CompareZone(seed, 12, 9);
}

TEST(RandomOrder, LargerZonesFollowTheRules) {
  for (unsigned seed = 0; seed < 300 && !HasFailure(); ++seed) CompareZone(seed, 200, 60);
}

TEST(RandomOrder, SingleWalksOfAZoneFollowTheRules) {
  for (unsigned seed = 0; seed < 1'000 && !HasFailure(); ++seed) CompareZoneStepByStep(seed);
}

TEST(RandomOrder, SmallPagesFollowTheRules) {
  for (unsigned seed = 0; seed < 10'000 && !HasFailure(); ++seed) ComparePage(seed, 12);
}

TEST(RandomOrder, LargerPagesFollowTheRules) {
  for (unsigned seed = 0; seed < 300 && !HasFailure(); ++seed) ComparePage(seed, 200);
}

TEST(RandomOrder, SingleWalksOfAPageFollowTheRules) {
  for (unsigned seed = 0; seed < 1'000 && !HasFailure(); ++seed) ComparePageStepByStep(seed);
}

}  // namespace
