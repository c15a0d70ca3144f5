#include "model/CopyValueHolder.h"

CCopyValueHolder::CCopyValueHolder() = default;
CCopyValueHolder::CCopyValueHolder(const CCopyValueHolder& other) = default;
CCopyValueHolder::~CCopyValueHolder() = default;
CCopyValueHolder& CCopyValueHolder::operator=(const CCopyValueHolder& other) = default;

bool CCopyValueHolder::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CCopyValueHolder::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CCopyValueHolder::IsCopyValueHolder() const { return true; }
