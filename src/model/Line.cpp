#include "model/Line.h"

CLine::CLine() = default;
CLine::CLine(const CLine& other) = default;
CLine::~CLine() = default;
CLine& CLine::operator=(const CLine& other) = default;

bool CLine::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CLine::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }
