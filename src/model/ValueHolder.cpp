#include "model/ValueHolder.h"

CValueHolder::CValueHolder() = default;
CValueHolder::CValueHolder(const CValueHolder& other) = default;
CValueHolder::~CValueHolder() = default;
CValueHolder& CValueHolder::operator=(const CValueHolder& other) = default;

bool CValueHolder::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CValueHolder::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CValueHolder::IsFormulaValueHolder() const { return false; }
bool CValueHolder::IsSumValueHolder() const { return false; }
bool CValueHolder::IsDynamicValueHolder() const { return false; }
bool CValueHolder::IsCopyValueHolder() const { return false; }
