#pragma once

#include "platform/Export.h"

#include <array>
#include <string>

class CRTFListLevelEntry;

/// A list of the list table of an RTF text, or an override of one: up to nine levels, null at the start.
///
/// It owns its first GetLevelCount levels; copies share them, so a copy must not be destroyed beside its source. The
/// reader's own lists give up their levels before they are destroyed, since it owns every level itself.
class ZEB_EXPORT CRTFListTableEntry {
 public:
  CRTFListTableEntry();
  CRTFListTableEntry(const CRTFListTableEntry& other);
  virtual ~CRTFListTableEntry();
  CRTFListTableEntry& operator=(const CRTFListTableEntry& other);

  /// Stores a level behind those that were added before. A tenth level is refused and stays the caller's.
  void AddListLevelEntry(CRTFListLevelEntry* level);
  /// @param index from 0 to 8
  /// @return null for a level that is not there and for any other index
  CRTFListLevelEntry* GetListLevelEntryAt(int index) const;
  /// Replaces a level without freeing it. An index outside 0 to 8 changes nothing.
  void SetListLevelEntryAt(int index, CRTFListLevelEntry* level);
  /// How many levels the list says to have, 1 at the start; not tied to how many were added.
  int GetLevelCount() const;
  void SetLevelCount(int levelCount);
  int GetListId() const;
  void SetListId(int listId);
  /// Valid until the name is set anew.
  const wchar_t* GetListName() const;
  /// Copies the name; null counts as empty.
  void SetListName(const wchar_t* name);
  /// The number by which paragraphs refer to an override.
  int GetLs() const;
  void SetLs(int ls);

 private:
  static constexpr int kMaxLevels = 9;

  std::array<CRTFListLevelEntry*, kMaxLevels> m_rgpLevels;  // owned up to the level count, shared by copies
  int m_iLevelCount;
  std::wstring m_strName;
  int m_iListId;
  int m_iLevelsAdded;
  int m_iLs;
};
