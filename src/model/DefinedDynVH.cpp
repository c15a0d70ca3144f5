#include "model/DefinedDynVH.h"

CDefinedDynVH::CDefinedDynVH() = default;
CDefinedDynVH::CDefinedDynVH(const CDefinedDynVH& other) = default;
CDefinedDynVH::~CDefinedDynVH() = default;
CDefinedDynVH& CDefinedDynVH::operator=(const CDefinedDynVH& other) = default;

bool CDefinedDynVH::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CDefinedDynVH::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }
