#include "model/SimplePoint.h"

CSimplePoint::CSimplePoint() = default;
CSimplePoint::CSimplePoint(const CSimplePoint& other) = default;
CSimplePoint::~CSimplePoint() = default;
CSimplePoint& CSimplePoint::operator=(const CSimplePoint& other) = default;

bool CSimplePoint::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CSimplePoint::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }
