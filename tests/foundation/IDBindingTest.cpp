#include "foundation/IDBinding.h"

#include "foundation/IDManager.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using zeb::BoundObject;
using zeb::IDBinding;

constexpr zeb::ClassTag kText = 1;
constexpr zeb::ClassTag kLine = 2;

TEST(IDBinding, AnIdentifierRemembersItsClass) {
  CIDManager ids;
  IDBinding binding(ids);
  int text = 0;
  EXPECT_TRUE(binding.Bind(4, &text, kText));
  EXPECT_EQ(binding.Find(4, kText), &text);
  EXPECT_EQ(binding.Find(4, kLine), nullptr);
  EXPECT_EQ(binding.Find(4).Object, &text);
  EXPECT_EQ(binding.Find(4).Tag, kText);
}

TEST(IDBinding, AnIdentifierKeepsItsFirstObjectAndClass) {
  CIDManager ids;
  IDBinding binding(ids);
  int text = 0;
  int line = 0;
  EXPECT_TRUE(binding.Bind(4, &text, kText));
  EXPECT_FALSE(binding.Bind(4, &line, kLine));
  EXPECT_EQ(binding.Find(4, kText), &text);
  EXPECT_EQ(binding.Find(4, kLine), nullptr);
}

TEST(IDBinding, AnUnboundIdentifierGivesNothing) {
  CIDManager ids;
  const IDBinding binding(ids);
  EXPECT_FALSE(binding.IsBound(4));
  EXPECT_EQ(binding.Find(4).Object, nullptr);
  EXPECT_EQ(binding.Find(4, kText), nullptr);
}

TEST(IDBinding, SharesTheTableOfTheManager) {
  CIDManager ids;
  IDBinding binding(ids);
  int text = 0;
  int other = 0;
  binding.Bind(4, &text, kText);
  EXPECT_EQ(ids.GetObjectFromID(4), &text);
  ids.SetObjectWithID(4, &other);
  EXPECT_EQ(IDBinding(ids).Find(4, kText), &text);
}

TEST(IDBinding, AnObjectBoundWithoutClassMatchesEveryClass) {
  CIDManager ids;
  int object = 0;
  ids.SetObjectWithID(4, &object);
  const IDBinding binding(ids);
  EXPECT_EQ(binding.Find(4, kText), &object);
  EXPECT_EQ(binding.Find(4, kLine), &object);
  EXPECT_EQ(binding.Find(4).Tag, zeb::kUnknownClass);
}

TEST(IDBinding, AnObjectIsOwnedOnce) {
  CIDManager ids;
  IDBinding binding(ids);
  int object = 0;
  EXPECT_FALSE(binding.IsOwned(&object));
  EXPECT_TRUE(binding.Own(&object));
  EXPECT_TRUE(binding.IsOwned(&object));
  EXPECT_FALSE(binding.Own(&object));
}

TEST(IDBinding, GivesWhatOnlyRelationsNamedInTheirOrder) {
  CIDManager ids;
  IDBinding binding(ids);
  std::array<int, 4> objects = {};
  binding.NoteNamedByRelation(&objects[2], kText);
  binding.NoteNamedByRelation(&objects[0], kLine);
  binding.NoteNamedByRelation(&objects[1], kText);
  binding.NoteNamedByRelation(&objects[2], kText);
  EXPECT_TRUE(binding.Own(&objects[1]));
  EXPECT_TRUE(binding.Own(&objects[3]));
  binding.NoteNamedByRelation(&objects[3], kText);
  const std::vector<BoundObject> unowned = binding.UnownedNamedByRelations();
  ASSERT_EQ(unowned.size(), 2U);
  EXPECT_EQ(unowned[0].Object, &objects[2]);
  EXPECT_EQ(unowned[0].Tag, kText);
  EXPECT_EQ(unowned[1].Object, &objects[0]);
  EXPECT_EQ(unowned[1].Tag, kLine);
}

TEST(IDBinding, ResetForgetsOwnersAndRelations) {
  CIDManager ids;
  IDBinding binding(ids);
  int object = 0;
  binding.NoteNamedByRelation(&object, kText);
  binding.Own(&object);
  ids.Reset();
  EXPECT_FALSE(binding.IsOwned(&object));
  EXPECT_TRUE(binding.UnownedNamedByRelations().empty());
}

}  // namespace
