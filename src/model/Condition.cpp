#include "model/Condition.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"
#include "model/KeyToType.h"

CCondition::CCondition() = default;
CCondition::CCondition(const CCondition& other) = default;
CCondition::~CCondition() = default;
CCondition& CCondition::operator=(const CCondition& other) = default;

bool CCondition::Load(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordReader reader(node);
  reader.Read(zeb::Elements::Formula, m_strFormula);
  zeb::ReadKeyToType(reader, m_mapKeyToType);
  return true;
}

bool CCondition::Save(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordWriter writer(node);
  writer.Write(zeb::Elements::Formula, m_strFormula);
  zeb::WriteKeyToType(writer, m_mapKeyToType);
  return true;
}

void CCondition::InsertKeyAndType(const wchar_t* key, ConditionVHType type) {
  m_mapKeyToType.emplace(key, type);
}

CCondition::ConditionVHType CCondition::GetTypeFromKey(const wchar_t* key) const {
  const auto found = m_mapKeyToType.find(key);
  return found == m_mapKeyToType.end() ? ConditionVHTypeText : found->second;
}

void CCondition::ClearKeyToType() { m_mapKeyToType.clear(); }
