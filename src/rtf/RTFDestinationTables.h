#pragma once

#include "rtf/RTFColor.h"
#include "rtf/RTFFont.h"
#include "rtf/RTFListIndex.h"
#include "rtf/RTFListLevelEntry.h"
#include "rtf/RTFListTableEntry.h"
#include "rtf/RTFStyleSheet.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace zeb {

class CodePage;

/// Frees objects that are named once or several times.
template <class Object>
void DeleteOnce(std::vector<Object*>& objects) {
  std::sort(objects.begin(), objects.end(), std::less<>());
  objects.erase(std::unique(objects.begin(), objects.end()), objects.end());
  for (Object* const object : objects) delete object;
  objects.clear();
}

/// What a parser owns of the tables of a document beside its maps and vectors.
///
/// A font, style or colour is pending until its group or semicolon puts it into its map; a second one with the same
/// number never gets there and is freed. Lists and levels are referred to from many places (two vectors, slots of
/// lists, saved states, the current ones), so each is owned here, once.
struct RTFDestinationTables {
  std::unique_ptr<CRTFFont> m_pPendingFont;
  std::unique_ptr<CRTFStyleSheet> m_pPendingStyle;
  std::unique_ptr<CRTFColor> m_pPendingColor;
  std::vector<CRTFListTableEntry*> m_Lists;   // owned
  std::vector<CRTFListLevelEntry*> m_Levels;  // owned
  RTFListIndex m_ListIndex{&CRTFListTableEntry::GetListId};
  RTFListIndex m_OverrideIndex{&CRTFListTableEntry::GetLs};
  /// The code page of the latest text and the character set that it belongs to.
  const CodePage* m_pCodePage = nullptr;  // observer
  int m_iCodePageCharSet = 0;
};

}  // namespace zeb
