#include "model/Condition.h"

CCondition::CCondition() = default;
CCondition::CCondition(const CCondition& other) = default;
CCondition::~CCondition() = default;
CCondition& CCondition::operator=(const CCondition& other) = default;

bool CCondition::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CCondition::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

void CCondition::InsertKeyAndType(const wchar_t* key, ConditionVHType type) {
  m_mapKeyToType.emplace(key, type);
}

CCondition::ConditionVHType CCondition::GetTypeFromKey(const wchar_t* key) const {
  const auto found = m_mapKeyToType.find(key);
  return found == m_mapKeyToType.end() ? ConditionVHTypeText : found->second;
}

void CCondition::ClearKeyToType() { m_mapKeyToType.clear(); }
