#include "placement/RelationPoint.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"

namespace {

constexpr zeb::ElementName kRelPt = L"RelPt";

}  // namespace

CRelationPoint::CRelationPoint() = default;
CRelationPoint::CRelationPoint(const CRelationPoint& other) = default;
CRelationPoint::~CRelationPoint() = default;
CRelationPoint& CRelationPoint::operator=(const CRelationPoint& other) = default;

bool CRelationPoint::Load(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  int point = 0;
  if (zeb::RecordReader(node).Read(kRelPt, point)) m_eRelationPoint = static_cast<RelationPoint>(point);
  return true;
}

bool CRelationPoint::Save(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordWriter(node).Write(kRelPt, static_cast<int>(m_eRelationPoint));
  return true;
}
