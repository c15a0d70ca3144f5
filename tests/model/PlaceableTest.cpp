#include "model/Placeable.h"

#include "model/Border.h"
#include "model/Condition.h"
#include "model/ObjectReference.h"
#include "model/RGBColor.h"
#include "model/TableCell.h"
#include "model/Text.h"
#include "placement/PlaceableRelation.h"
#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

TEST(Placeable, HasTheDefaults) {
  const CPlaceable placeable;
  EXPECT_EQ(placeable.GetPlaceableRelation(), nullptr);
  EXPECT_EQ(placeable.GetWidth(), 0.0F);
  EXPECT_EQ(placeable.GetHeight(), 0.0F);
  EXPECT_EQ(placeable.GetBorder(), nullptr);
  EXPECT_EQ(placeable.GetTextColor(), nullptr);
  EXPECT_EQ(placeable.GetBackgroundColor(), nullptr);
  EXPECT_FALSE(placeable.IsZoneObject());
  EXPECT_EQ(placeable.GetKeepMinWidth(), 0.0F);
  EXPECT_EQ(placeable.GetCondition(), nullptr);
  EXPECT_EQ(placeable.GetTableCell(), nullptr);
}

TEST(Placeable, SetsPlainFields) {
  CPlaceable placeable;
  CTableCell cell;
  placeable.SetWidth(1.0F);
  placeable.SetHeight(2.0F);
  placeable.SetKeepMinWidth(3.0F);
  placeable.SetIsZoneObject(true);
  placeable.SetTableCell(&cell);
  EXPECT_EQ(placeable.GetWidth(), 1.0F);
  EXPECT_EQ(placeable.GetHeight(), 2.0F);
  EXPECT_EQ(placeable.GetKeepMinWidth(), 3.0F);
  EXPECT_TRUE(placeable.IsZoneObject());
  EXPECT_EQ(placeable.GetTableCell(), &cell);
}

TEST(Placeable, SettersFreeWhatTheyReplace) {
  // The leak checker sees to the freeing.
  CPlaceable placeable;
  for (int i = 0; i < 2; ++i) {
    auto* const border = new CBorder;
    auto* const condition = new CCondition;
    auto* const textColor = new CRGBColor;
    auto* const backgroundColor = new CRGBColor;
    placeable.SetBorder(border);
    placeable.SetCondition(condition);
    placeable.SetTextColor(textColor);
    placeable.SetBackgroundColor(backgroundColor);
    EXPECT_EQ(placeable.GetBorder(), border);
    EXPECT_EQ(placeable.GetCondition(), condition);
    EXPECT_EQ(placeable.GetTextColor(), textColor);
    EXPECT_EQ(placeable.GetBackgroundColor(), backgroundColor);
  }
  placeable.SetBorder(nullptr);
  EXPECT_EQ(placeable.GetBorder(), nullptr);
}

TEST(Placeable, SettingThePresentObjectKeepsIt) {
  CPlaceable placeable;
  auto* const border = new CBorder;
  placeable.SetBorder(border);
  placeable.SetBorder(border);
  border->SetAllWidths(1.0F);
  EXPECT_TRUE(placeable.GetBorder()->HasBorder());
}

TEST(Placeable, FixedRelationSetterFreesNothing) {
  CPlaceable placeable;
  CPlaceableRelation first;
  placeable.SetPlaceableRelation(&first);
  placeable.SetPlaceableRelation(new CPlaceableRelation);
  EXPECT_NE(placeable.GetPlaceableRelation(), &first);
  EXPECT_EQ(first.GetRelationObject(), nullptr);
}

TEST(Placeable, ColourValuesMakeTheColourOrChangeThePresentOne) {
  CPlaceable placeable;
  placeable.SetTextColor(0.1F, 0.2F, 0.3F);
  placeable.SetBackgroundColor(0.4F, 0.5F, 0.6F);
  CRGBColor* const textColor = placeable.GetTextColor();
  CRGBColor* const backgroundColor = placeable.GetBackgroundColor();
  ASSERT_NE(textColor, nullptr);
  ASSERT_NE(backgroundColor, nullptr);
  EXPECT_EQ(textColor->GetGreen(), 0.2F);
  EXPECT_EQ(backgroundColor->GetBlue(), 0.6F);
  placeable.SetTextColor(0.7F, 0.8F, 0.9F);
  placeable.SetBackgroundColor(0.0F, 0.0F, 1.0F);
  EXPECT_EQ(placeable.GetTextColor(), textColor);
  EXPECT_EQ(placeable.GetBackgroundColor(), backgroundColor);
  EXPECT_EQ(textColor->GetRed(), 0.7F);
  EXPECT_EQ(backgroundColor->GetBlue(), 1.0F);
}

TEST(Placeable, FixedCopySharesWhatTheSourceOwns) {
  CPlaceable source;
  CTableCell cell;
  source.SetWidth(1.0F);
  source.SetHeight(2.0F);
  source.SetKeepMinWidth(3.0F);
  source.SetIsZoneObject(true);
  source.SetTableCell(&cell);
  source.SetBorder(new CBorder);
  source.SetCondition(new CCondition);
  source.SetTextColor(1.0F, 0.0F, 0.0F);
  source.SetBackgroundColor(0.0F, 1.0F, 0.0F);
  source.SetPlaceableRelation(new CPlaceableRelation);
  {
    const CPlaceable copy(source);
    EXPECT_EQ(copy.GetWidth(), 1.0F);
    EXPECT_EQ(copy.GetHeight(), 2.0F);
    EXPECT_EQ(copy.GetKeepMinWidth(), 3.0F);
    EXPECT_TRUE(copy.IsZoneObject());
    EXPECT_EQ(copy.GetTableCell(), &cell);
    EXPECT_EQ(copy.GetBorder(), source.GetBorder());
    EXPECT_EQ(copy.GetCondition(), source.GetCondition());
    EXPECT_EQ(copy.GetTextColor(), source.GetTextColor());
    EXPECT_EQ(copy.GetBackgroundColor(), source.GetBackgroundColor());
    EXPECT_EQ(copy.GetPlaceableRelation(), source.GetPlaceableRelation());
    // Assignment frees nothing: the copy alone owns the objects from here on.
    source = CPlaceable();
    EXPECT_EQ(source.GetBorder(), nullptr);
    EXPECT_EQ(source.GetWidth(), 0.0F);
  }
}

TEST(Placeable, DefaultWritesItsIdentifierAlone) {
  CPlaceable placeable;
  EXPECT_EQ(SaveRecord(placeable), "<Placeable><PlID>0</PlID></Placeable>");
}

TEST(Placeable, WritesEveryFieldInItsOrder) {
  CPlaceable placeable;
  placeable.SetPlaceableRelation(new CPlaceableRelation);
  placeable.SetWidth(10.5F);
  placeable.SetHeight(-20.0F);
  placeable.SetBorder(new CBorder);
  placeable.GetBorder()->SetLeftBorderWidth(1.0F);
  placeable.SetTextColor(1.0F, 0.0F, 0.0F);
  placeable.SetBackgroundColor(0.0F, 0.0F, 0.5F);
  placeable.SetKeepMinWidth(3.0F);
  placeable.SetCondition(new CCondition);
  placeable.GetCondition()->SetFormula(L"a > 1");
  EXPECT_EQ(SaveRecord(placeable),
            "<Placeable><PlID>0</PlID><PlRelID>1</PlRelID><Width>10.5</Width><Height>-20.0</Height>"
            "<Border><LeftWidth>1.0</LeftWidth></Border>"
            "<TextColor><Color><RGBRed>1.0</RGBRed></Color></TextColor>"
            "<BackgroundColor><Color><RGBBlue>0.5</RGBBlue></Color></BackgroundColor>"
            "<KeepMinWidth>3.0</KeepMinWidth><Condition><Formula>a &gt; 1</Formula></Condition></Placeable>");
}

TEST(Placeable, ReadsEveryFieldInItsOrder) {
  CPlaceable placeable;
  LoadRecord(placeable,
             "<Placeable><PlID>4</PlID><PlRelID>5</PlRelID><Width>10.5</Width><Height>-20</Height>"
             "<Border><LeftWidth>1</LeftWidth></Border>"
             "<TextColor><Color><RGBRed>1</RGBRed></Color></TextColor>"
             "<BackgroundColor><Color><RGBBlue>0.5</RGBBlue></Color></BackgroundColor>"
             "<KeepMinWidth>3</KeepMinWidth><Condition><Formula>a &gt; 1</Formula></Condition></Placeable>");
  ASSERT_NE(placeable.GetPlaceableRelation(), nullptr);
  EXPECT_EQ(placeable.GetWidth(), 10.5F);
  EXPECT_EQ(placeable.GetHeight(), -20.0F);
  ASSERT_NE(placeable.GetBorder(), nullptr);
  EXPECT_EQ(placeable.GetBorder()->GetLeftBorderWidth(), 1.0F);
  ASSERT_NE(placeable.GetTextColor(), nullptr);
  EXPECT_EQ(placeable.GetTextColor()->GetRed(), 1.0F);
  ASSERT_NE(placeable.GetBackgroundColor(), nullptr);
  EXPECT_EQ(placeable.GetBackgroundColor()->GetBlue(), 0.5F);
  EXPECT_EQ(placeable.GetKeepMinWidth(), 3.0F);
  ASSERT_NE(placeable.GetCondition(), nullptr);
  EXPECT_STREQ(placeable.GetCondition()->GetFormula(), L"a > 1");
}

TEST(Placeable, EmptyRecordKeepsTheDefaults) {
  CPlaceable placeable;
  LoadRecord(placeable, "<Placeable/>");
  EXPECT_EQ(SaveRecord(placeable), "<Placeable><PlID>0</PlID></Placeable>");
}

TEST(Placeable, ReadingEndsAtAnElementOutOfOrder) {
  CPlaceable placeable;
  LoadRecord(placeable,
             "<Placeable><PlID>0</PlID><Height>2</Height><Width>1</Width>"
             "<KeepMinWidth>3</KeepMinWidth></Placeable>");
  EXPECT_EQ(placeable.GetHeight(), 2.0F);
  EXPECT_EQ(placeable.GetWidth(), 0.0F);
  EXPECT_EQ(placeable.GetKeepMinWidth(), 0.0F);
}

TEST(Placeable, ReadingEndsAtAnUnknownElement) {
  CPlaceable placeable;
  LoadRecord(placeable, "<Placeable><PlID>0</PlID><Depth>9</Depth><Width>1</Width></Placeable>");
  EXPECT_EQ(placeable.GetWidth(), 0.0F);
}

TEST(Placeable, BorderOfZerosIsNotWritten) {
  CPlaceable placeable;
  placeable.SetBorder(new CBorder);
  const std::string record = SaveRecord(placeable);
  EXPECT_EQ(record, "<Placeable><PlID>0</PlID></Placeable>");
  CPlaceable loaded;
  LoadRecord(loaded, record);
  EXPECT_EQ(loaded.GetBorder(), nullptr);
}

TEST(Placeable, BlackTextAndWhiteBackgroundLeaveNoTrace) {
  CPlaceable placeable;
  placeable.SetTextColor(0.0F, 0.0F, 0.0F);
  placeable.SetBackgroundColor(1.0F, 1.0F, 1.0F);
  const std::string record = SaveRecord(placeable);
  EXPECT_EQ(record, "<Placeable><PlID>0</PlID></Placeable>");
  CPlaceable loaded;
  LoadRecord(loaded, record);
  EXPECT_EQ(loaded.GetTextColor(), nullptr);
  EXPECT_EQ(loaded.GetBackgroundColor(), nullptr);
}

TEST(Placeable, WhiteTextAndBlackBackgroundAreWritten) {
  CPlaceable placeable;
  placeable.SetTextColor(1.0F, 1.0F, 1.0F);
  placeable.SetBackgroundColor(0.0F, 0.0F, 0.0F);
  const std::string record = SaveRecord(placeable);
  EXPECT_EQ(
      record,
      "<Placeable><PlID>0</PlID><TextColor><Color><RGBRed>1.0</RGBRed><RGBGreen>1.0</RGBGreen>"
      "<RGBBlue>1.0</RGBBlue></Color></TextColor><BackgroundColor><Color/></BackgroundColor></Placeable>");
  CPlaceable loaded;
  LoadRecord(loaded, record);
  ASSERT_NE(loaded.GetTextColor(), nullptr);
  EXPECT_TRUE(loaded.GetTextColor()->IsDefaultBackgroundColor());
  ASSERT_NE(loaded.GetBackgroundColor(), nullptr);
  EXPECT_TRUE(loaded.GetBackgroundColor()->IsDefaultTextColor());
}

TEST(Placeable, FixedNegativeLeastWidthIsNotWrittenButNegativeSizeIs) {
  CPlaceable placeable;
  placeable.SetKeepMinWidth(-3.0F);
  placeable.SetWidth(-1.0F);
  EXPECT_EQ(SaveRecord(placeable), "<Placeable><PlID>0</PlID><Width>-1.0</Width></Placeable>");
}

TEST(Placeable, FixedConditionIsReplacedWhereBorderAndColoursAreLoadedInto) {
  CPlaceable placeable;
  placeable.SetBorder(new CBorder);
  placeable.GetBorder()->SetAllWidths(2.0F);
  placeable.SetTextColor(0.1F, 0.2F, 0.3F);
  placeable.SetBackgroundColor(0.4F, 0.5F, 0.6F);
  placeable.SetCondition(new CCondition);
  placeable.GetCondition()->SetFormula(L"old");
  placeable.GetCondition()->InsertKeyAndType(L"Key", CCondition::ConditionVHTypeDate);
  CBorder* const border = placeable.GetBorder();
  CRGBColor* const textColor = placeable.GetTextColor();
  CRGBColor* const backgroundColor = placeable.GetBackgroundColor();
  LoadRecord(placeable,
             "<Placeable><PlID>0</PlID><Border><UpperWidth>5</UpperWidth></Border>"
             "<TextColor><Color><RGBGreen>1</RGBGreen></Color></TextColor>"
             "<BackgroundColor><Color/></BackgroundColor><Condition/></Placeable>");
  EXPECT_EQ(placeable.GetBorder(), border);
  EXPECT_EQ(border->GetLeftBorderWidth(), 2.0F);
  EXPECT_EQ(border->GetUpperBorderWidth(), 5.0F);
  EXPECT_EQ(placeable.GetTextColor(), textColor);
  EXPECT_EQ(textColor->GetRed(), 0.1F);
  EXPECT_EQ(textColor->GetGreen(), 1.0F);
  EXPECT_EQ(placeable.GetBackgroundColor(), backgroundColor);
  EXPECT_EQ(backgroundColor->GetBlue(), 0.6F);
  ASSERT_NE(placeable.GetCondition(), nullptr);
  EXPECT_STREQ(placeable.GetCondition()->GetFormula(), L"");
  EXPECT_TRUE(placeable.GetCondition()->GetKeyToTypeMap().empty());
}

TEST(Placeable, OneObjectAndItsRelationKeepTheirNumbers) {
  CPlaceable first;
  CPlaceable second;
  second.SetPlaceableRelation(new CPlaceableRelation);
  CIDManager ids;
  EXPECT_EQ(SaveRecord(first, ids), "<Placeable><PlID>0</PlID></Placeable>");
  EXPECT_EQ(SaveRecord(second, ids), "<Placeable><PlID>1</PlID><PlRelID>2</PlRelID></Placeable>");
  EXPECT_EQ(SaveRecord(first, ids), "<Placeable><PlID>0</PlID></Placeable>");
}

TEST(Placeable, BindsItselfIfTheIdentifierIsUnknown) {
  CIDManager ids;
  CPlaceable placeable;
  LoadRecord(placeable, "<Placeable><PlID>7</PlID></Placeable>", ids);
  EXPECT_EQ(ids.GetObjectFromID(7), &placeable);
  CPlaceable other;
  LoadRecord(other, "<Placeable><PlID>7</PlID><Width>1</Width></Placeable>", ids);
  EXPECT_EQ(ids.GetObjectFromID(7), &placeable);
  EXPECT_EQ(other.GetWidth(), 1.0F);
}

TEST(Placeable, IdentifierThatIsNoNumberIsZero) {
  CIDManager ids;
  CPlaceable placeable;
  LoadRecord(placeable, "<Placeable><PlID>abc</PlID></Placeable>", ids);
  EXPECT_EQ(ids.GetObjectFromID(0), &placeable);
}

TEST(Placeable, TakesTheRelationThatTheIdentifierNames) {
  CIDManager ids;
  auto* const relation = new CPlaceableRelation;
  ids.SetObjectWithID(3, relation);
  CPlaceable placeable;
  LoadRecord(placeable, "<Placeable><PlID>1</PlID><PlRelID>3</PlRelID></Placeable>", ids);
  EXPECT_EQ(placeable.GetPlaceableRelation(), relation);
}

TEST(Placeable, RelationRecordFillsTheRelationThatTheObjectMade) {
  CIDManager ids;
  CPlaceable placeable;
  LoadRecord(placeable, "<Placeable><PlID>1</PlID><PlRelID>3</PlRelID></Placeable>", ids);
  ASSERT_NE(placeable.GetPlaceableRelation(), nullptr);
  EXPECT_EQ(ids.GetObjectFromID(3), placeable.GetPlaceableRelation());
}

TEST(Placeable, SecondLoadOfOneRecordKeepsTheRelation) {
  CIDManager ids;
  CPlaceable placeable;
  LoadRecord(placeable, "<Placeable><PlID>1</PlID><PlRelID>3</PlRelID></Placeable>", ids);
  CPlaceableRelation* const relation = placeable.GetPlaceableRelation();
  LoadRecord(placeable, "<Placeable><PlID>1</PlID><PlRelID>3</PlRelID></Placeable>", ids);
  EXPECT_EQ(placeable.GetPlaceableRelation(), relation);
}

// Attack: two objects name one relation, which both would free.
TEST(Placeable, RelationOfAnotherObjectIsNotTaken) {
  CIDManager ids;
  CPlaceable first;
  CPlaceable second;
  LoadRecord(first, "<Placeable><PlID>1</PlID><PlRelID>3</PlRelID></Placeable>", ids);
  LoadRecord(second, "<Placeable><PlID>2</PlID><PlRelID>3</PlRelID><Width>5</Width></Placeable>", ids);
  EXPECT_NE(first.GetPlaceableRelation(), nullptr);
  EXPECT_EQ(second.GetPlaceableRelation(), nullptr);
  EXPECT_EQ(second.GetWidth(), 5.0F);
}

// Attack: the relation's identifier is that of a placed object.
TEST(Placeable, RelationIdentifierOfAnotherClassCountsAsUnknown) {
  CIDManager ids;
  CPlaceable placeable;
  LoadRecord(placeable, "<Placeable><PlID>1</PlID><PlRelID>1</PlRelID></Placeable>", ids);
  ASSERT_NE(placeable.GetPlaceableRelation(), nullptr);
  EXPECT_EQ(placeable.GetPlaceableRelation()->GetRelationObject(), nullptr);
  EXPECT_EQ(ids.GetObjectFromID(1), &placeable);
}

// Attack: records of one object with ever other relations, of which it could free the last one only.
TEST(Placeable, SecondRelationOfOneReadingIsNotTaken) {
  CIDManager ids;
  CPlaceable placeable;
  LoadRecord(placeable, "<Placeable><PlID>1</PlID><PlRelID>2</PlRelID></Placeable>", ids);
  CPlaceableRelation* const relation = placeable.GetPlaceableRelation();
  LoadRecord(placeable, "<Placeable><PlID>1</PlID><PlRelID>3</PlRelID></Placeable>", ids);
  EXPECT_EQ(placeable.GetPlaceableRelation(), relation);
  EXPECT_EQ(ids.GetObjectFromID(3), nullptr);
}

TEST(Placeable, UpgradeMovesUpperAndLowerDistances) {
  CPlaceable placeable;
  placeable.SetBorder(new CBorder);
  CBorder& border = *placeable.GetBorder();
  border.SetAllWidths(9.0F);
  border.SetDistances(1.0F, 2.0F, 3.0F, 4.0F);
  placeable.UpdateTextDistancesToVersion2();
  EXPECT_EQ(border.GetBaseLineToUpperDistance(), 2.0F);
  EXPECT_EQ(border.GetBaseLineToLowerDistance(), 4.0F);
  EXPECT_EQ(border.GetUpperTextDistance(), 0.0F);
  EXPECT_EQ(border.GetLowerTextDistance(), 0.0F);
  EXPECT_EQ(border.GetLeftTextDistance(), 1.0F);
  EXPECT_EQ(border.GetRightTextDistance(), 3.0F);
  EXPECT_EQ(border.GetUpperBorderWidth(), 9.0F);
}

TEST(Placeable, FixedUpgradeOverwritesBaseLineDistances) {
  CPlaceable placeable;
  placeable.SetBorder(new CBorder);
  CBorder& border = *placeable.GetBorder();
  border.SetBaseLineToUpperDistance(5.0F);
  border.SetBaseLineToLowerDistance(6.0F);
  placeable.UpdateTextDistancesToVersion2();
  EXPECT_EQ(border.GetBaseLineToUpperDistance(), 0.0F);
  EXPECT_EQ(border.GetBaseLineToLowerDistance(), 0.0F);
}

TEST(Placeable, UpgradeWithoutABorderDoesNothing) {
  CPlaceable placeable;
  placeable.UpdateTextDistancesToVersion2();
  EXPECT_EQ(placeable.GetBorder(), nullptr);
}

static_assert(std::has_virtual_destructor_v<CPlaceable>);

}  // namespace
