#include "placement/RelationPoint.h"

CRelationPoint::CRelationPoint() = default;
CRelationPoint::CRelationPoint(const CRelationPoint& other) = default;
CRelationPoint::~CRelationPoint() = default;
CRelationPoint& CRelationPoint::operator=(const CRelationPoint& other) = default;

bool CRelationPoint::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CRelationPoint::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }
