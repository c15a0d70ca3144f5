#include "model/SumValueHolder.h"

CSumValueHolder::CSumValueHolder() = default;
CSumValueHolder::CSumValueHolder(const CSumValueHolder& other) = default;
CSumValueHolder::~CSumValueHolder() = default;
CSumValueHolder& CSumValueHolder::operator=(const CSumValueHolder& other) = default;

bool CSumValueHolder::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CSumValueHolder::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CSumValueHolder::IsSumValueHolder() const { return true; }
