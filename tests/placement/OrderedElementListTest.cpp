#include "placement/OrderedElementList.h"

#include "model/Text.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

class OrderedElementListTest : public testing::Test {
 protected:
  void ExpectElements(const zeb::OrderedElementList& list, const std::vector<int>& expected) {
    ASSERT_EQ(list.Size(), static_cast<int>(expected.size()));
    for (int i = 0; i < list.Size(); ++i) {
      CText* text = &m_Texts[static_cast<std::size_t>(expected[static_cast<std::size_t>(i)])];
      EXPECT_EQ(list.At(i), text);
      EXPECT_EQ(list.Find(text), i);
    }
  }

  std::vector<CPlaceable*> All() {
    std::vector<CPlaceable*> all;
    for (CText& text : m_Texts) all.push_back(&text);
    return all;
  }

  std::vector<CText> m_Texts = std::vector<CText>(100);
};

TEST_F(OrderedElementListTest, StartsEmpty) {
  const zeb::OrderedElementList list;
  EXPECT_EQ(list.Size(), 0);
  EXPECT_EQ(list.Find(m_Texts.data()), -1);
}

TEST_F(OrderedElementListTest, TakesElementsAtEveryPlace) {
  zeb::OrderedElementList list;
  list.Append(&m_Texts[2]);
  list.Insert(0, &m_Texts[0]);
  list.Insert(1, &m_Texts[1]);
  list.Insert(3, &m_Texts[3]);
  ExpectElements(list, {0, 1, 2, 3});
}

TEST_F(OrderedElementListTest, FindsElementsOfAWholeOrder) {
  zeb::OrderedElementList list;
  list.Assign(All());
  ASSERT_EQ(list.Size(), 100);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(list.Find(&m_Texts[static_cast<std::size_t>(i)]), i);
  const CText stranger;
  EXPECT_EQ(list.Find(&stranger), -1);
}

TEST_F(OrderedElementListTest, FindsElementsThatAnInsertionMoved) {
  zeb::OrderedElementList list;
  list.Assign(All());
  EXPECT_EQ(list.Find(&m_Texts[50]), 50);
  CText first;
  list.Insert(0, &first);
  EXPECT_EQ(list.Find(&first), 0);
  EXPECT_EQ(list.Find(&m_Texts[50]), 51);
}

TEST_F(OrderedElementListTest, CopiesByValue) {
  zeb::OrderedElementList list;
  list.Assign(All());
  EXPECT_EQ(list.Find(&m_Texts[7]), 7);
  const zeb::OrderedElementList copy = list;
  list.Clear();
  EXPECT_EQ(list.Size(), 0);
  EXPECT_EQ(list.Find(&m_Texts[7]), -1);
  EXPECT_EQ(copy.Size(), 100);
  EXPECT_EQ(copy.Find(&m_Texts[7]), 7);
}

}  // namespace
