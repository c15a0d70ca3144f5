#include "placement/PlaceableRelation.h"

#include "model/CopyValueHolder.h"
#include "model/DynamicValueHolder.h"
#include "model/FormulaValueHolder.h"
#include "model/Line.h"
#include "model/ObjectBinding.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/ReportRootElement.h"
#include "model/SumValueHolder.h"
#include "model/TableCell.h"
#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <typeinfo>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

class PlaceableRelation : public ::testing::Test {
 protected:
  ~PlaceableRelation() override { CReportRootElement::ClearDeletedObjects(); }

  CIDManager m_IDs;
  CPlaceableRelation m_Relation;
};

void ExpectDefaults(const CPlaceableRelation& relation) {
  EXPECT_EQ(relation.GetSourceRelPt().GetRelationPoint(), 0);
  EXPECT_EQ(relation.GetDestRelPt().GetRelationPoint(), 0);
  EXPECT_EQ(relation.GetRefOffset().GetX(), 0.0F);
  EXPECT_EQ(relation.GetRefOffset().GetY(), 0.0F);
  EXPECT_EQ(relation.GetRelationObject(), nullptr);
  EXPECT_FALSE(relation.GetAdjustHeight());
}

TEST_F(PlaceableRelation, HasTheDefaults) { ExpectDefaults(m_Relation); }

TEST_F(PlaceableRelation, SetsItsFields) {
  CText text;
  CRelationPoint source;
  source.SetRelationPoint(RelationPointUpperRight);
  CRelationPoint destination;
  destination.SetRelationPoint(RelationPointLowerLeft);
  CSimplePoint offset;
  offset.SetX(1.0F);
  offset.SetY(2.0F);
  m_Relation.SetSourceRelPt(source);
  m_Relation.SetDestRelPt(destination);
  m_Relation.SetRefOffset(offset);
  m_Relation.SetRelationObject(&text);
  m_Relation.SetAdjustHeight(true);
  source.SetRelationPoint(RelationPointLowerRight);
  const CPlaceableRelation copy(m_Relation);
  CPlaceableRelation assigned;
  assigned = m_Relation;
  for (const CPlaceableRelation* relation : {&copy, const_cast<const CPlaceableRelation*>(&assigned)}) {
    EXPECT_EQ(relation->GetSourceRelPt().GetRelationPoint(), RelationPointUpperRight);
    EXPECT_EQ(relation->GetDestRelPt().GetRelationPoint(), RelationPointLowerLeft);
    EXPECT_EQ(relation->GetRefOffset().GetX(), 1.0F);
    EXPECT_EQ(relation->GetRefOffset().GetY(), 2.0F);
    EXPECT_EQ(relation->GetRelationObject(), &text);
    EXPECT_TRUE(relation->GetAdjustHeight());
  }
}

TEST_F(PlaceableRelation, IsMadeWithItsFields) {
  CText text;
  const std::unique_ptr<CPlaceableRelation> relation(
      CPlaceableRelation::CreatePlRel(RelationPointLowerRight, RelationPointUpperRight, 3.0F, -4.0F, &text));
  EXPECT_EQ(relation->GetSourceRelPt().GetRelationPoint(), RelationPointLowerRight);
  EXPECT_EQ(relation->GetDestRelPt().GetRelationPoint(), RelationPointUpperRight);
  EXPECT_EQ(relation->GetRefOffset().GetX(), 3.0F);
  EXPECT_EQ(relation->GetRefOffset().GetY(), -4.0F);
  EXPECT_EQ(relation->GetRelationObject(), &text);
  EXPECT_FALSE(relation->GetAdjustHeight());
}

TEST_F(PlaceableRelation, DefaultsWriteIdentifierAndTargetAlone) {
  CText text;
  m_Relation.SetRelationObject(&text);
  EXPECT_EQ(SaveRecord(m_Relation), "<PlRel><PlRelID>0</PlRelID><TxID>1</TxID></PlRel>");
}

TEST_F(PlaceableRelation, WritesEveryFieldInItsOrder) {
  CText text;
  const std::unique_ptr<CPlaceableRelation> relation(
      CPlaceableRelation::CreatePlRel(RelationPointUpperRight, RelationPointLowerLeft, 3.0F, -4.5F, &text));
  relation->SetAdjustHeight(true);
  EXPECT_EQ(SaveRecord(*relation),
            "<PlRel><PlRelID>0</PlRelID><TxID>1</TxID><SrcRelPt><RelPt>1</RelPt></SrcRelPt>"
            "<DestRelPt><RelPt>2</RelPt></DestRelPt>"
            "<RefOffsetPt><SimplePt><PtX>3.0</PtX><PtY>-4.5</PtY></SimplePt></RefOffsetPt>"
            "<AdjustHeight>1</AdjustHeight></PlRel>");
}

TEST_F(PlaceableRelation, OffsetIsWrittenIfOneOfItsNumbersIsNotZero) {
  CText text;
  m_Relation.SetRelationObject(&text);
  CSimplePoint offset;
  offset.SetX(1.0F);
  m_Relation.SetRefOffset(offset);
  EXPECT_NE(SaveRecord(m_Relation).find("<PtX>1.0</PtX><PtY>0.0</PtY>"), std::string::npos);
  offset.SetX(0.0F);
  offset.SetY(1.0F);
  m_Relation.SetRefOffset(offset);
  EXPECT_NE(SaveRecord(m_Relation).find("<PtX>0.0</PtX><PtY>1.0</PtY>"), std::string::npos);
}

template <class Target>
std::string TargetElement() {
  Target target;
  CPlaceableRelation relation;
  relation.SetRelationObject(&target);
  return SaveRecord(relation);
}

std::string WithTarget(const std::string& name) {
  return "<PlRel><PlRelID>0</PlRelID><" + name + ">1</" + name + "></PlRel>";
}

TEST_F(PlaceableRelation, ElementTellsTheClassOfTheTarget) {
  EXPECT_EQ(TargetElement<CValueHolder>(), WithTarget("VHID"));
  EXPECT_EQ(TargetElement<CFormulaValueHolder>(), WithTarget("VHID"));
  EXPECT_EQ(TargetElement<CSumValueHolder>(), WithTarget("VHID"));
  EXPECT_EQ(TargetElement<CDynamicValueHolder>(), WithTarget("VHID"));
  EXPECT_EQ(TargetElement<CCopyValueHolder>(), WithTarget("VHID"));
  EXPECT_EQ(TargetElement<CText>(), WithTarget("TxID"));
  EXPECT_EQ(TargetElement<CPicture>(), WithTarget("PicID"));
  EXPECT_EQ(TargetElement<CRectangle>(), WithTarget("RectID"));
  EXPECT_EQ(TargetElement<CLine>(), WithTarget("LineID"));
  EXPECT_EQ(TargetElement<CTableCell>(), WithTarget("TableCellID"));
}

TEST_F(PlaceableRelation, ZoneAndNullAreWrittenAsZoneAndPaperNotAtAll) {
  CPlaceable target;
  m_Relation.SetRelationObject(&target);
  EXPECT_EQ(SaveRecord(m_Relation), "<PlRel><PlRelID>0</PlRelID></PlRel>");
  target.SetIsZoneObject(true);
  EXPECT_EQ(SaveRecord(m_Relation), WithTarget("ZoneID"));
  m_Relation.SetRelationObject(nullptr);
  EXPECT_EQ(SaveRecord(m_Relation), WithTarget("ZoneID"));
}

TEST_F(PlaceableRelation, TargetOfARealClassKeepsItsElementAsAZoneObject) {
  CText text;
  text.SetIsZoneObject(true);
  m_Relation.SetRelationObject(&text);
  EXPECT_EQ(SaveRecord(m_Relation), WithTarget("TxID"));
}

TEST_F(PlaceableRelation, ReadsEveryFieldInItsOrder) {
  CText text;
  m_IDs.SetObjectWithID(9, &text);
  LoadRecord(m_Relation,
             "<PlRel><PlRelID>4</PlRelID><TxID>9</TxID><SrcRelPt><RelPt>1</RelPt></SrcRelPt>"
             "<DestRelPt><RelPt>2</RelPt></DestRelPt>"
             "<RefOffsetPt><SimplePt><PtX>3</PtX><PtY>-4.5</PtY></SimplePt></RefOffsetPt>"
             "<AdjustHeight>1</AdjustHeight></PlRel>",
             m_IDs);
  EXPECT_EQ(m_IDs.GetObjectFromID(4), &m_Relation);
  EXPECT_EQ(m_Relation.GetRelationObject(), &text);
  EXPECT_EQ(m_Relation.GetSourceRelPt().GetRelationPoint(), RelationPointUpperRight);
  EXPECT_EQ(m_Relation.GetDestRelPt().GetRelationPoint(), RelationPointLowerLeft);
  EXPECT_EQ(m_Relation.GetRefOffset().GetX(), 3.0F);
  EXPECT_EQ(m_Relation.GetRefOffset().GetY(), -4.5F);
  EXPECT_TRUE(m_Relation.GetAdjustHeight());
}

TEST_F(PlaceableRelation, EmptyRecordKeepsTheDefaults) {
  LoadRecord(m_Relation, "<PlRel/>", m_IDs);
  ExpectDefaults(m_Relation);
}

TEST_F(PlaceableRelation, ReadingEndsAtAnElementOutOfOrder) {
  LoadRecord(m_Relation,
             "<PlRel><PlRelID>4</PlRelID><DestRelPt><RelPt>2</RelPt></DestRelPt><SrcRelPt><RelPt>1</RelPt></"
             "SrcRelPt>"
             "<AdjustHeight>1</AdjustHeight></PlRel>",
             m_IDs);
  EXPECT_EQ(m_Relation.GetDestRelPt().GetRelationPoint(), RelationPointLowerLeft);
  EXPECT_EQ(m_Relation.GetSourceRelPt().GetRelationPoint(), RelationPointUpperLeft);
  EXPECT_FALSE(m_Relation.GetAdjustHeight());
}

TEST_F(PlaceableRelation, UnknownElementEndsTheReading) {
  LoadRecord(m_Relation, "<PlRel><PlRelID>4</PlRelID><Other/><AdjustHeight>1</AdjustHeight></PlRel>", m_IDs);
  EXPECT_FALSE(m_Relation.GetAdjustHeight());
}

TEST_F(PlaceableRelation, KnownIdentifierKeepsItsRelation) {
  CPlaceableRelation known;
  m_IDs.SetObjectWithID(4, &known);
  LoadRecord(m_Relation, "<PlRel><PlRelID>4</PlRelID><AdjustHeight>1</AdjustHeight></PlRel>", m_IDs);
  EXPECT_EQ(m_IDs.GetObjectFromID(4), &known);
  EXPECT_TRUE(m_Relation.GetAdjustHeight());
}

/// Loads a relation to an unknown object and gives what it made.
std::unique_ptr<CPlaceable> MadeTarget(const std::string& element) {
  CIDManager ids;
  CPlaceableRelation relation;
  LoadRecord(relation, "<PlRel><PlRelID>4</PlRelID><" + element + ">9</" + element + "></PlRel>", ids);
  CPlaceable* const target = relation.GetRelationObject();
  EXPECT_EQ(ids.GetObjectFromID(9), target) << element;
  const auto unowned = zeb::IDBinding(ids).UnownedNamedByRelations();
  EXPECT_EQ(unowned.size(), 1U) << element;
  return std::unique_ptr<CPlaceable>(target);
}

TEST_F(PlaceableRelation, UnknownTargetIsMadeOfTheClassThatTheElementTells) {
  const auto typeOf = [](const std::string& element) -> const std::type_info& {
    const std::unique_ptr<CPlaceable> target = MadeTarget(element);
    const CPlaceable& object = *target;
    EXPECT_FALSE(object.IsZoneObject());
    return typeid(object);
  };
  EXPECT_EQ(typeOf("VHID"), typeid(CValueHolder));
  EXPECT_EQ(typeOf("TxID"), typeid(CText));
  EXPECT_EQ(typeOf("PicID"), typeid(CPicture));
  EXPECT_EQ(typeOf("RectID"), typeid(CRectangle));
  EXPECT_EQ(typeOf("LineID"), typeid(CLine));
  EXPECT_EQ(typeOf("TableCellID"), typeid(CTableCell));
}

TEST_F(PlaceableRelation, ReferenceNamesOfZonesAreNoTargets) {
  LoadRecord(m_Relation,
             "<PlRel><PlRelID>4</PlRelID><FormulaVHID>9</FormulaVHID><AdjustHeight>1</AdjustHeight></PlRel>",
             m_IDs);
  EXPECT_EQ(m_Relation.GetRelationObject(), nullptr);
  EXPECT_FALSE(m_Relation.GetAdjustHeight());
}

TEST_F(PlaceableRelation, TargetThatIsReadLaterIsFilledByItsOwnRecord) {
  LoadRecord(m_Relation, "<PlRel><PlRelID>4</PlRelID><TxID>9</TxID></PlRel>", m_IDs);
  const std::unique_ptr<CPlaceable> target(m_Relation.GetRelationObject());
  ASSERT_EQ(m_IDs.GetObjectFromID(9), target.get());
  LoadRecord(*target, "<Text><TxID>9</TxID><TextContent>loaded</TextContent></Text>", m_IDs);
  EXPECT_STREQ(dynamic_cast<CText&>(*m_Relation.GetRelationObject()).GetTextContent(), L"loaded");
}

TEST_F(PlaceableRelation, ZoneTargetIsAPlaceholderOfTheDeletableList) {
  LoadRecord(m_Relation, "<PlRel><PlRelID>4</PlRelID><ZoneID>9</ZoneID></PlRel>", m_IDs);
  CPlaceable* const target = m_Relation.GetRelationObject();
  ASSERT_NE(target, nullptr);
  EXPECT_TRUE(target->IsZoneObject());
  const CPlaceable& object = *target;
  EXPECT_EQ(typeid(object), typeid(CPlaceable));
  EXPECT_EQ(m_IDs.GetObjectFromID(9), target);
  EXPECT_TRUE(zeb::IDBinding(m_IDs).UnownedNamedByRelations().empty());
}

// Two entries in the deletable list would be freed twice.
TEST_F(PlaceableRelation, RelationsToOneZoneShareThePlaceholder) {
  CPlaceableRelation other;
  LoadRecord(m_Relation, "<PlRel><PlRelID>4</PlRelID><ZoneID>9</ZoneID></PlRel>", m_IDs);
  LoadRecord(other, "<PlRel><PlRelID>5</PlRelID><ZoneID>9</ZoneID></PlRel>", m_IDs);
  EXPECT_NE(m_Relation.GetRelationObject(), nullptr);
  EXPECT_EQ(m_Relation.GetRelationObject(), other.GetRelationObject());
}

TEST_F(PlaceableRelation, FixedZoneElementMarksAKnownObjectToo) {
  CText text;
  m_IDs.SetObjectWithID(9, &text);
  LoadRecord(m_Relation, "<PlRel><PlRelID>4</PlRelID><ZoneID>9</ZoneID></PlRel>", m_IDs);
  EXPECT_EQ(m_Relation.GetRelationObject(), &text);
  EXPECT_TRUE(text.IsZoneObject());
}

TEST_F(PlaceableRelation, BaseFindsADerivedTarget) {
  CFormulaValueHolder formula;
  zeb::IDBinding binding(m_IDs);
  zeb::BindObject(binding, 9, &formula);
  LoadRecord(m_Relation, "<PlRel><PlRelID>4</PlRelID><VHID>9</VHID></PlRel>", m_IDs);
  EXPECT_EQ(m_Relation.GetRelationObject(), &formula);
  CPlaceableRelation other;
  LoadRecord(other, "<PlRel><PlRelID>5</PlRelID><TxID>9</TxID></PlRel>", m_IDs);
  EXPECT_EQ(other.GetRelationObject(), &formula);
}

// Attack: the target's identifier is that of an object of another class, in every combination of kinds.
TEST_F(PlaceableRelation, TargetOfAnotherClassStaysNull) {
  CText text;
  CPicture picture;
  int zone = 0;
  CPlaceableRelation relation;
  zeb::IDBinding binding(m_IDs);
  zeb::BindObject(binding, 1, &text);
  zeb::BindObject(binding, 2, &picture);
  binding.Bind(3, &zone, zeb::kZoneTag);
  zeb::BindObject(binding, 4, &relation);
  for (const char* const target : {"<VHID>1</VHID>", "<PicID>1</PicID>", "<TableCellID>1</TableCellID>",
                                   "<TxID>2</TxID>", "<TxID>3</TxID>", "<ZoneID>3</ZoneID>",
                                   "<ZoneID>4</ZoneID>", "<LineID>4</LineID>", "<TxID>5</TxID>"}) {
    CPlaceableRelation tied;
    LoadRecord(tied,
               "<PlRel><PlRelID>5</PlRelID>" + std::string(target) + "<AdjustHeight>1</AdjustHeight></PlRel>",
               m_IDs);
    EXPECT_EQ(tied.GetRelationObject(), nullptr) << target;
    EXPECT_TRUE(tied.GetAdjustHeight()) << target;
  }
  EXPECT_EQ(m_IDs.GetObjectFromID(1), &text);
  EXPECT_TRUE(binding.UnownedNamedByRelations().empty());
}

TEST_F(PlaceableRelation, DestructionLeavesTheTargetAlone) {
  CText text;
  {
    const std::unique_ptr<CPlaceableRelation> relation(
        CPlaceableRelation::CreatePlRel(RelationPointUpperLeft, RelationPointUpperLeft, 0.0F, 0.0F, &text));
  }
  text.SetTextContent(L"alive");
  EXPECT_STREQ(text.GetTextContent(), L"alive");
}

}  // namespace
