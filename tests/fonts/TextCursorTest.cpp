#include "fonts/TextCursor.h"

#include <gtest/gtest.h>

namespace {

constexpr unsigned char kText[] = {'a', 0xFF};

TEST(TextCursor, ReadsToTheEnd) {
  zeb::TextCursor cursor(kText, 2);
  unsigned char character = 0;
  EXPECT_TRUE(cursor.Peek(character));
  EXPECT_EQ(cursor.Offset(), 0U);
  EXPECT_TRUE(cursor.Next(character));
  EXPECT_EQ(character, 'a');
  EXPECT_EQ(cursor.Left(), 1U);
  EXPECT_TRUE(cursor.Next(character));
  EXPECT_EQ(character, 0xFF);
  EXPECT_TRUE(cursor.AtEnd());
  EXPECT_FALSE(cursor.Next(character));
  EXPECT_FALSE(cursor.Peek(character));
  EXPECT_EQ(character, 0xFF);
}

TEST(TextCursor, StepsBackToTheStartAndNoFurther) {
  zeb::TextCursor cursor(kText, 2);
  unsigned char character = 0;
  cursor.StepBack();
  EXPECT_TRUE(cursor.Next(character));
  cursor.StepBack();
  EXPECT_EQ(cursor.Offset(), 0U);
}

TEST(TextCursor, MovedToTheEndItReadsNothing) {
  zeb::TextCursor cursor(kText, 2);
  unsigned char character = 7;
  cursor.MoveToEnd();
  EXPECT_FALSE(cursor.Next(character));
  EXPECT_EQ(character, 7);
}

TEST(TextCursor, NothingIsReadFromNothing) {
  unsigned char character = 7;
  EXPECT_FALSE(zeb::TextCursor().Next(character));
  EXPECT_FALSE(zeb::TextCursor(nullptr, 0).Next(character));
  EXPECT_FALSE(zeb::TextCursor(kText, -5).Next(character));
}

}  // namespace
