#include "foundation/IDManager.h"

#include "foundation/IDTables.h"
#include "foundation/ValueConversion.h"

#include <optional>

CIDManager::CIDManager() : m_pTables(std::make_unique<zeb::IDTables>()) {}

CIDManager::CIDManager(const CIDManager& other)
    : m_pTables(std::make_unique<zeb::IDTables>(*other.m_pTables)) {}

CIDManager::~CIDManager() = default;

CIDManager& CIDManager::operator=(const CIDManager& other) {
  if (this != &other) *m_pTables = *other.m_pTables;
  return *this;
}

int CIDManager::GetIDFromObject(void* object) { return m_pTables->IDFromObject(object); }

void CIDManager::GetIDStringFromObject(void* object, wchar_t* buffer) {
  IntToString(GetIDFromObject(object), buffer);
}

void* CIDManager::GetObjectFromID(int id) {
  const std::optional<zeb::BoundObject> bound = m_pTables->Find(id);
  return bound ? bound->Object : nullptr;
}

void CIDManager::SetObjectWithID(int id, void* object) { m_pTables->Bind(id, {object, zeb::kUnknownClass}); }

void CIDManager::Reset() { m_pTables->Reset(); }
