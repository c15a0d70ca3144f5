#include "model/SimplePoint.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"

namespace {

constexpr zeb::ElementName kSimplePt = L"SimplePt";
constexpr zeb::ElementName kPtX = L"PtX";
constexpr zeb::ElementName kPtY = L"PtY";

}  // namespace

CSimplePoint::CSimplePoint() = default;
CSimplePoint::CSimplePoint(const CSimplePoint& other) = default;
CSimplePoint::~CSimplePoint() = default;
CSimplePoint& CSimplePoint::operator=(const CSimplePoint& other) = default;

bool CSimplePoint::Load(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zebxmln::CXMLNode* const point = zeb::RecordReader(node).Take(kSimplePt);
  if (point == nullptr) return true;
  zeb::RecordReader reader(point);
  reader.Read(kPtX, m_fX);
  reader.Read(kPtY, m_fY);
  return true;
}

bool CSimplePoint::Save(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordWriter writer(node, kSimplePt);
  writer.Write(kPtX, m_fX);
  writer.Write(kPtY, m_fY);
  return true;
}
