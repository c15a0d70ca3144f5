#include "rtf/RTFListTableEntry.h"

#include "rtf/RTFListLevelEntry.h"

#include <algorithm>

CRTFListTableEntry::CRTFListTableEntry()
    : m_rgpLevels(), m_iLevelCount(1), m_iListId(0), m_iLevelsAdded(0), m_iLs(0) {}

CRTFListTableEntry::CRTFListTableEntry(const CRTFListTableEntry& other) = default;

// Fixed behaviour: the stated count decides what is freed, not the number of levels that were added.
CRTFListTableEntry::~CRTFListTableEntry() {
  const int count = std::min(m_iLevelCount, kMaxLevels);
  for (int index = 0; index < count; ++index) delete GetListLevelEntryAt(index);
}

CRTFListTableEntry& CRTFListTableEntry::operator=(const CRTFListTableEntry& other) = default;

void CRTFListTableEntry::AddListLevelEntry(CRTFListLevelEntry* level) {
  if (m_iLevelsAdded >= kMaxLevels) return;
  SetListLevelEntryAt(m_iLevelsAdded, level);
  ++m_iLevelsAdded;
}

CRTFListLevelEntry* CRTFListTableEntry::GetListLevelEntryAt(int index) const {
  if (index < 0 || index >= kMaxLevels) return nullptr;
  return m_rgpLevels[static_cast<std::size_t>(index)];
}

void CRTFListTableEntry::SetListLevelEntryAt(int index, CRTFListLevelEntry* level) {
  if (index < 0 || index >= kMaxLevels) return;
  m_rgpLevels[static_cast<std::size_t>(index)] = level;
}

int CRTFListTableEntry::GetLevelCount() const { return m_iLevelCount; }
void CRTFListTableEntry::SetLevelCount(int levelCount) { m_iLevelCount = levelCount; }
int CRTFListTableEntry::GetListId() const { return m_iListId; }
void CRTFListTableEntry::SetListId(int listId) { m_iListId = listId; }
const wchar_t* CRTFListTableEntry::GetListName() const { return m_strName.c_str(); }
void CRTFListTableEntry::SetListName(const wchar_t* name) { m_strName = name == nullptr ? L"" : name; }
int CRTFListTableEntry::GetLs() const { return m_iLs; }
void CRTFListTableEntry::SetLs(int ls) { m_iLs = ls; }
