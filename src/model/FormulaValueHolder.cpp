#include "model/FormulaValueHolder.h"

CFormulaValueHolder::CFormulaValueHolder() : m_strRoundVHKey(L"PL.Nks2") {}
CFormulaValueHolder::CFormulaValueHolder(const CFormulaValueHolder& other) = default;
CFormulaValueHolder::~CFormulaValueHolder() = default;
CFormulaValueHolder& CFormulaValueHolder::operator=(const CFormulaValueHolder& other) = default;

bool CFormulaValueHolder::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CFormulaValueHolder::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CFormulaValueHolder::IsFormulaValueHolder() const { return true; }

void CFormulaValueHolder::InsertKeyAndType(const wchar_t* key, ValueHolderType type) {
  m_mapKeyToType.emplace(key, type);
}

CFormulaValueHolder::ValueHolderType CFormulaValueHolder::GetTypeFromKey(const wchar_t* key) const {
  const auto found = m_mapKeyToType.find(key);
  return found == m_mapKeyToType.end() ? VHTypeText : found->second;
}

void CFormulaValueHolder::ClearKeyToType() { m_mapKeyToType.clear(); }
