#include "model/Rectangle.h"

CRectangle::CRectangle() = default;
CRectangle::CRectangle(const CRectangle& other) = default;
CRectangle::~CRectangle() = default;
CRectangle& CRectangle::operator=(const CRectangle& other) = default;

bool CRectangle::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CRectangle::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }
