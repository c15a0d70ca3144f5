#include "rtf/RTFListLevelEntry.h"
#include "rtf/RTFListTableEntry.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFStore.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The list table, the list override table, and the references of paragraphs to them.

namespace {

constexpr int kMaxLevels = 9;

/// What `\levelfollow` says of the end of a list text.
enum LevelFollow : unsigned char { followTab = 0, followBlank = 1 };

void EndIn(std::wstring& text, wchar_t last) {
  if (!text.empty() && text.back() != last) text += last;
}

void TakeLevels(CRTFListTableEntry& list, std::vector<CRTFListLevelEntry*>& levels) {
  for (int index = 0; index < kMaxLevels; ++index) {
    CRTFListLevelEntry* const level = list.GetListLevelEntryAt(index);
    if (level != nullptr) levels.push_back(level);
    list.SetListLevelEntryAt(index, nullptr);
  }
}

}  // namespace

void CRTFParser::BeginList() {
  auto list = std::make_unique<CRTFListTableEntry>();
  m_pStore->m_Tables.m_Lists.push_back(list.get());
  m_pCurList = list.release();
}

void CRTFParser::BeginListLevel() {
  auto level = std::make_unique<CRTFListLevelEntry>();
  m_pStore->m_Tables.m_Levels.push_back(level.get());
  m_pCurLevel = level.release();
}

void CRTFParser::EndListTable() {
  if (m_pCurList != nullptr) m_Lists.push_back(m_pCurList);
}

void CRTFParser::EndListOverrideTable() {
  if (m_pCurList != nullptr) m_ListOverrides.push_back(m_pCurList);
}

void CRTFParser::EndListLevel() {
  if (m_pCurLevel == nullptr || m_pCurList == nullptr) return;
  m_pCurLevel->SetCharProps(m_CharProps);
  m_pCurLevel->SetParProps(m_ParProps);
  m_pCurList->AddListLevelEntry(m_pCurLevel);
}

// Fixed behaviour: plain text of both is dropped before it comes here, so that only \u characters are in the buffer.
void CRTFParser::EndLevelText() {
  if (m_pCurLevel == nullptr) return;
  m_pCurLevel->SetLeveltext(m_NameBuffer.c_str());
  m_NameBuffer.clear();
}

void CRTFParser::EndLevelNumbers() {
  if (m_pCurLevel == nullptr) return;
  m_pCurLevel->SetLevelnumbers(m_NameBuffer.c_str());
  m_NameBuffer.clear();
}

void CRTFParser::EndListText() {
  if (m_pCurLevel != nullptr) {
    m_pCurLevel->SetFontListText(m_FontProps);
    if (m_pCurLevel->GetLevelfollow() == followTab) EndIn(m_NameBuffer, L'\t');
    if (m_pCurLevel->GetLevelfollow() == followBlank) EndIn(m_NameBuffer, L' ');
    m_pCurLevel->SetListText(m_NameBuffer.c_str());
  }
  m_NameBuffer.clear();
}

int CRTFParser::ParseListProperty(IPROP prop, int value) {
  // A list keyword means something in its destination only.
  switch (m_rds) {
    case rdsListTable:
      ParseListTableProperty(prop, value);
      return rtfOK;
    case rdsListLevel:
      ParseListLevelProperty(prop, value);
      return rtfOK;
    case rdsListOverrideTable:
      ParseListOverrideProperty(prop, value);
      return rtfOK;
    case rdsNorm:
      return ParseListReference(prop, value);
    default:
      return rtfOK;
  }
}

void CRTFParser::ParseListTableProperty(IPROP prop, int value) {
  if (prop == ipropList) {
    EndListTable();
    BeginList();
  }
  if (m_pCurList == nullptr) return;
  if (prop == ipropListSimple) m_pCurList->SetLevelCount(1);
  if (prop == ipropListHybrid) m_pCurList->SetLevelCount(kMaxLevels);
  if (prop == ipropListId) SetCurrentListId(value);
}

void CRTFParser::ParseListOverrideProperty(IPROP prop, int value) {
  if (prop == ipropListOverride) {
    EndListOverrideTable();
    BeginList();
  }
  if (m_pCurList == nullptr) return;
  if (prop == ipropListId) SetCurrentListId(value);
  if (prop == ipropListOverrideCount) m_pCurList->SetLevelCount(value);
  if (prop == ipropLs) {
    m_pCurList->SetLs(value);
    m_pStore->m_Tables.m_OverrideIndex.ChangeNumber(m_pCurList);
  }
}

void CRTFParser::SetCurrentListId(int listId) {
  m_pCurList->SetListId(listId);
  m_pStore->m_Tables.m_ListIndex.ChangeNumber(m_pCurList);
}

void CRTFParser::ParseListLevelProperty(IPROP prop, int value) {
  if (m_pCurLevel == nullptr) return;
  switch (prop) {
    case ipropLevelNfc:
    case ipropLevelNfcN:
    case ipropLevelNfcNAgain:
      m_pCurLevel->SetLevelnfc(static_cast<unsigned char>(value));
      break;
    case ipropLevelJc:
      m_pCurLevel->SetLeveljc(static_cast<unsigned char>(value));
      break;
    case ipropLevelFollow:
      m_pCurLevel->SetLevelfollow(static_cast<unsigned char>(value));
      break;
    case ipropLevelStartAt:
      m_pCurLevel->SetLevelstartat(static_cast<unsigned short>(value));
      break;
    case ipropLevelSpace:
      m_pCurLevel->SetLevelspace(value);
      break;
    case ipropLevelIndent:
      m_pCurLevel->SetLevelindent(value);
      break;
    default:
      break;
  }
}

int CRTFParser::ParseListReference(IPROP prop, int value) {
  if (prop == ipropIlvl) {
    if (m_pCurList != nullptr && value >= 0 && value < kMaxLevels) {
      m_pCurLevel = m_pCurList->GetListLevelEntryAt(value);
    }
    return rtfOK;
  }
  if (prop != ipropLs) return rtfOK;
  // Fixed behaviour: a reference that leads nowhere ends the reading.
  zeb::RTFDestinationTables& tables = m_pStore->m_Tables;
  const std::optional<std::size_t> override = tables.m_OverrideIndex.Find(m_ListOverrides, value);
  if (!override) return rtfBadTable;
  const int listId = m_ListOverrides[*override]->GetListId();
  const std::optional<std::size_t> list = tables.m_ListIndex.Find(m_Lists, listId);
  // A search without success has looked at the last list.
  if (list || !m_Lists.empty()) m_pCurList = list ? m_Lists[*list] : m_Lists.back();
  return list ? rtfOK : rtfBadTable;
}

void CRTFParser::FreeLists() {
  // A list frees the levels that it counts, and a level may be in two lists: so each gives up its levels first.
  zeb::RTFDestinationTables& tables = m_pStore->m_Tables;
  std::vector<CRTFListTableEntry*> lists = m_Lists;
  lists.insert(lists.end(), m_ListOverrides.begin(), m_ListOverrides.end());
  lists.insert(lists.end(), tables.m_Lists.begin(), tables.m_Lists.end());
  std::vector<CRTFListLevelEntry*> levels = tables.m_Levels;
  for (CRTFListTableEntry* const list : lists) TakeLevels(*list, levels);
  m_Lists.clear();
  m_ListOverrides.clear();
  tables.m_Lists.clear();
  tables.m_Levels.clear();
  zeb::DeleteOnce(lists);
  zeb::DeleteOnce(levels);
}
