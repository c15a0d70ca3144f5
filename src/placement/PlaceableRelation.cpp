#include "placement/PlaceableRelation.h"

#include <memory>

CPlaceableRelation::CPlaceableRelation() = default;
CPlaceableRelation::CPlaceableRelation(const CPlaceableRelation& other) = default;
CPlaceableRelation::~CPlaceableRelation() = default;
CPlaceableRelation& CPlaceableRelation::operator=(const CPlaceableRelation& other) = default;

bool CPlaceableRelation::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CPlaceableRelation::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

CPlaceableRelation* CPlaceableRelation::CreatePlRel(RelationPoint source, RelationPoint destination,
                                                    float offsetX, float offsetY,
                                                    CPlaceable* relationObject) {
  auto relation = std::make_unique<CPlaceableRelation>();
  relation->m_SourceRelPt.SetRelationPoint(source);
  relation->m_DestRelPt.SetRelationPoint(destination);
  relation->m_RefOffset.SetX(offsetX);
  relation->m_RefOffset.SetY(offsetY);
  relation->m_pRelationObject = relationObject;
  return relation.release();
}
