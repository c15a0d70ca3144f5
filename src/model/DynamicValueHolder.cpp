#include "model/DynamicValueHolder.h"

CDynamicValueHolder::CDynamicValueHolder() = default;
CDynamicValueHolder::CDynamicValueHolder(const CDynamicValueHolder& other) = default;
CDynamicValueHolder::~CDynamicValueHolder() = default;
CDynamicValueHolder& CDynamicValueHolder::operator=(const CDynamicValueHolder& other) = default;

bool CDynamicValueHolder::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CDynamicValueHolder::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CDynamicValueHolder::IsDynamicValueHolder() const { return true; }
