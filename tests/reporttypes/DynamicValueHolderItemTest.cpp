#include "reporttypes/DynamicValueHolderItem.h"

#include "reporttypes/DynamicValueHolderAttribute.h"
#include "reporttypes/DynamicValueHolderType.h"
#include "support/KeepForever.h"
#include "support/NodeRecord.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

using zebtest::LoadNode;
using zebtest::SaveNode;

namespace {

using Item = CDynamicValueHolderItem;
using Kind = CDynamicValueHolderType;
using Attribute = CDynamicValueHolderAttribute;
using Strings = std::vector<std::wstring>;

constexpr auto kItem =
    "<Type><Name>Kind</Name><Prefix>K.</Prefix></Type>"
    "<Attribute><InternalKey>B</InternalKey><Name>second</Name></Attribute>"
    "<Attribute><InternalKey>A</InternalKey><Name>first</Name></Attribute>";

/// The attributes as `KEY NAME`.
Strings Attributes(Item& item) {
  Strings all;
  for (int i = 0; i < item.GetDynVHAttributeCount(); ++i) {
    const Attribute& attribute = *item.GetDynVHAttributeAt(i);
    all.push_back(attribute.GetInternalKey() + (L' ' + std::wstring(attribute.GetName())));
  }
  return all;
}

}  // namespace

TEST(DynamicValueHolderItem, VirtualOperationsStandInTheirOrder) {
  static_assert(std::has_virtual_destructor_v<Item>);
  EXPECT_EQ(zebtest::VirtualSlot(&Item::Load), 2U);
  EXPECT_EQ(zebtest::VirtualSlot(&Item::Save), 3U);
}

// Kind and attribute have no virtual destructor in front of their operations.
TEST(DynamicValueHolderItem, FixedVirtualOperationsOfKindAndAttributeStandFirst) {
  static_assert(!std::has_virtual_destructor_v<Kind> && !std::has_virtual_destructor_v<Attribute>);
  EXPECT_EQ(zebtest::VirtualSlot(&Kind::Load), 0U);
  EXPECT_EQ(zebtest::VirtualSlot(&Kind::Save), 1U);
  EXPECT_EQ(zebtest::VirtualSlot(&Attribute::Load), 0U);
  EXPECT_EQ(zebtest::VirtualSlot(&Attribute::Save), 1U);
}

TEST(DynamicValueHolderItem, OffersItsOperationsUnderTheirSignatures) {
  static_assert(std::is_same_v<decltype(&Item::GetDynVHType), Kind* (Item::*)() const>);
  static_assert(std::is_same_v<decltype(&Item::SetDynVHType), void (Item::*)(Kind*)>);
  static_assert(std::is_same_v<decltype(&Item::AddDynVHAttribute), void (Item::*)(Attribute*)>);
  static_assert(std::is_same_v<decltype(&Item::GetDynVHAttributeAt), Attribute* (Item::*)(int)>);
  static_assert(std::is_same_v<decltype(&Item::GetDynVHAttributeCount), int (Item::*)() const>);
}

TEST(DynamicValueHolderItem, StartsWithoutKindAndAttributes) {
  Item item;
  EXPECT_EQ(item.GetDynVHType(), nullptr);
  EXPECT_EQ(item.GetDynVHAttributeCount(), 0);
  EXPECT_EQ(SaveNode(item), "<Type/>");
}

TEST(DynamicValueHolderItem, KeepsKindAndOrderOfAttributes) {
  Item item;
  LoadNode(item, kItem);
  EXPECT_STREQ(item.GetDynVHType()->GetName(), L"Kind");
  EXPECT_STREQ(item.GetDynVHType()->GetPrefix(), L"K.");
  EXPECT_EQ(Attributes(item), (Strings{L"B second", L"A first"}));
  EXPECT_EQ(SaveNode(item), kItem);
}

TEST(DynamicValueHolderItem, ReadsItsKindOnlyAsTheFirstChild) {
  Item late;
  LoadNode(late, "<Attribute><InternalKey>A</InternalKey></Attribute><Type/><Attribute/>");
  EXPECT_EQ(late.GetDynVHType(), nullptr);
  EXPECT_EQ(Attributes(late), Strings{L"A "}) << "the kind out of its place ends the walk";
  Item unknown;
  LoadNode(unknown, "<Unknown/><Type/><Attribute/>");
  EXPECT_EQ(unknown.GetDynVHType(), nullptr);
  EXPECT_EQ(unknown.GetDynVHAttributeCount(), 0);
  Item twice;
  LoadNode(twice, "<Type><Name>one</Name></Type><Type><Name>two</Name></Type><Attribute/>");
  EXPECT_STREQ(twice.GetDynVHType()->GetName(), L"one");
  EXPECT_EQ(twice.GetDynVHAttributeCount(), 0);
}

TEST(DynamicValueHolderItem, ReadAgainHasTheLastKindAndAllAttributes) {
  Item item;
  LoadNode(item, kItem);
  LoadNode(item, "<Type><Name>other</Name></Type><Attribute/>");
  EXPECT_STREQ(item.GetDynVHType()->GetName(), L"other");
  EXPECT_STREQ(item.GetDynVHType()->GetPrefix(), L"");
  EXPECT_EQ(Attributes(item), (Strings{L"B second", L"A first", L" "}));
}

TEST(DynamicValueHolderItem, WritesNothingForANullAttribute) {
  Item item;
  item.AddDynVHAttribute(nullptr);
  item.AddDynVHAttribute(new Attribute);
  EXPECT_EQ(SaveNode(item), "<Type/><Attribute><InternalKey/><Name/></Attribute>");
}

TEST(DynamicValueHolderItem, FixedReplacedKindIsNotFreed) {
  Item item;
  const auto former = std::make_unique<Kind>();
  former->SetName(L"former");
  item.SetDynVHType(former.get());
  item.SetDynVHType(new Kind);
  EXPECT_STREQ(former->GetName(), L"former");
  EXPECT_STREQ(item.GetDynVHType()->GetName(), L"");
}

TEST(DynamicValueHolderItem, CopiesShareKindAndAttributes) {
  Item item;
  LoadNode(item, kItem);
  auto& copy = zebtest::KeepForever(new Item(item));
  auto& assigned = zebtest::KeepForever(new Item);
  assigned = item;
  item.AddDynVHAttribute(new Attribute);
  for (Item* each : {&copy, &assigned}) {
    EXPECT_EQ(each->GetDynVHType(), item.GetDynVHType());
    ASSERT_EQ(each->GetDynVHAttributeCount(), 2);
    EXPECT_EQ(each->GetDynVHAttributeAt(0), item.GetDynVHAttributeAt(0));
    EXPECT_EQ(each->GetDynVHAttributeAt(1), item.GetDynVHAttributeAt(1));
  }
}

TEST(DynamicValueHolderType, ReadsAndWritesItsFieldsInOrder) {
  Kind kind;
  EXPECT_STREQ(kind.GetName(), L"");
  EXPECT_STREQ(kind.GetPrefix(), L"");
  EXPECT_EQ(SaveNode(kind), "<Name/><Prefix/>");
  LoadNode(kind, "<Name>N</Name><Prefix>P.</Prefix>");
  EXPECT_EQ(SaveNode(kind), "<Name>N</Name><Prefix>P.</Prefix>");
  Kind turned;
  LoadNode(turned, "<Prefix>P.</Prefix><Name>N</Name>");
  EXPECT_STREQ(turned.GetPrefix(), L"P.");
  EXPECT_STREQ(turned.GetName(), L"");
}

TEST(DynamicValueHolderAttribute, ReadsAndWritesItsFieldsInOrder) {
  Attribute attribute;
  EXPECT_STREQ(attribute.GetInternalKey(), L"");
  EXPECT_STREQ(attribute.GetName(), L"");
  EXPECT_EQ(SaveNode(attribute), "<InternalKey/><Name/>");
  LoadNode(attribute, "<InternalKey>K</InternalKey><Name>N</Name>");
  EXPECT_EQ(SaveNode(attribute), "<InternalKey>K</InternalKey><Name>N</Name>");
  Attribute turned;
  LoadNode(turned, "<Name>N</Name><InternalKey>K</InternalKey>");
  EXPECT_STREQ(turned.GetName(), L"N");
  EXPECT_STREQ(turned.GetInternalKey(), L"");
}

TEST(DynamicValueHolderType, CopiesHaveTextsOfTheirOwn) {
  Kind source;
  source.SetName(L"N");
  source.SetPrefix(L"P.");
  const Kind copy = source;
  Kind assigned;
  assigned = source;
  source.SetName(L"other");
  source.SetPrefix(L"other");
  for (const Kind* each : {&copy, static_cast<const Kind*>(&assigned)}) {
    EXPECT_STREQ(each->GetName(), L"N");
    EXPECT_STREQ(each->GetPrefix(), L"P.");
  }
}

TEST(DynamicValueHolderAttribute, CopiesHaveTextsOfTheirOwn) {
  Attribute source;
  source.SetInternalKey(L"K");
  source.SetName(L"N");
  const Attribute copy = source;
  Attribute assigned;
  assigned = source;
  source.SetInternalKey(L"other");
  source.SetName(L"other");
  for (const Attribute* each : {&copy, static_cast<const Attribute*>(&assigned)}) {
    EXPECT_STREQ(each->GetInternalKey(), L"K");
    EXPECT_STREQ(each->GetName(), L"N");
  }
}
