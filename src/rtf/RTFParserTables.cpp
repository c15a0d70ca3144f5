#include "platform/CodePage.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFStore.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The tables in a document's header: fonts, styles and colours, and the freeing of all tables.

namespace {

template <class Entry>
Entry* EntryAt(const std::map<int, Entry*>& entries, int id) {
  const auto entry = entries.find(id);
  return entry == entries.end() ? nullptr : entry->second;
}

/// Puts an entry into its map. The first entry of a number stays; a pending one that comes too late is freed.
/// @return the entry if it is still there
template <class Entry>
Entry* Insert(std::map<int, Entry*>& entries, int id, Entry* entry, std::unique_ptr<Entry>& pending) {
  const bool inserted = entries.emplace(id, entry).second;
  if (entry != pending.get()) return entry;
  if (inserted) return pending.release();
  pending.reset();
  return nullptr;
}

/// Frees what a map owns. An entry of a group that other groups interrupted may stand under two numbers.
template <class Entry>
void FreeEntries(std::map<int, Entry*>& entries) {
  std::vector<Entry*> owned;
  owned.reserve(entries.size());
  for (const auto& [id, entry] : entries) owned.push_back(entry);
  entries.clear();
  zeb::DeleteOnce(owned);
}

void CutSemicolon(std::wstring& name) {
  if (name.ends_with(L';')) name.pop_back();
}

constexpr int kSimplifiedChinese = 936;

/// Names whose double-byte characters were taken for 16-bit characters get them back.
void RepairFontName(CRTFFont& font) {
  constexpr std::size_t kMostBytes = 255;
  constexpr wchar_t kGreatestByte = 255;
  std::vector<unsigned char> bytes;
  for (const wchar_t character : std::wstring(font.GetFontFaceName())) {
    if (character <= kGreatestByte) return;
    bytes.push_back(static_cast<unsigned char>(character >> 8));
    bytes.push_back(static_cast<unsigned char>(character));
  }
  bytes.resize(std::min(bytes.size(), kMostBytes));
  const std::optional<std::wstring> name = zeb::CodePage::Of(kSimplifiedChinese).Convert(bytes);
  if (name && !name->empty()) font.SetFontFaceName(name->c_str());
}

}  // namespace

CRTFFont* CRTFParser::GetFontAtID(int id) const { return EntryAt(m_Fonts, id); }
CRTFColor* CRTFParser::GetColorAtID(int id) const { return EntryAt(m_Colors, id); }
CRTFStyleSheet* CRTFParser::GetStyleSheetAtID(int id) const { return EntryAt(m_StyleSheets, id); }

void CRTFParser::BeginFontEntry() {
  m_pStore->m_Tables.m_pPendingFont = std::make_unique<CRTFFont>();
  m_pCurFont = m_pStore->m_Tables.m_pPendingFont.get();
}

void CRTFParser::EndFontEntry() {
  if (m_pCurFont != nullptr) {
    m_pCurFont->SetFontCharSet(m_FontProps.CharSet);
    CutSemicolon(m_NameBuffer);
    m_pCurFont->SetFontFaceName(m_NameBuffer.c_str());
    if (m_DocProps.AnsiCodePage == kSimplifiedChinese) RepairFontName(*m_pCurFont);
    m_pCurFont = Insert(m_Fonts, m_FontProps.FontId, m_pCurFont, m_pStore->m_Tables.m_pPendingFont);
  }
  m_NameBuffer.clear();
}

void CRTFParser::BeginStyleEntry() {
  m_pStore->m_Tables.m_pPendingStyle = std::make_unique<CRTFStyleSheet>();
  m_pCurStyle = m_pStore->m_Tables.m_pPendingStyle.get();
}

void CRTFParser::EndStyleEntry() {
  if (m_pCurStyle != nullptr) {
    m_pCurStyle->SetCharProps(m_CharProps);
    m_pCurStyle->SetSecProps(m_SecProps);
    m_pCurStyle->SetParProps(m_ParProps);
    m_pCurStyle->SetFontProps(m_FontProps);
    CutSemicolon(m_NameBuffer);
    m_pCurStyle->SetStyleSheetName(m_NameBuffer.c_str());
    m_pCurStyle = Insert(m_StyleSheets, m_pCurStyle->GetStyleSheetIndex(), m_pCurStyle,
                         m_pStore->m_Tables.m_pPendingStyle);
  }
  m_NameBuffer.clear();
}

void CRTFParser::BeginColorTable() {
  m_pStore->m_Tables.m_pPendingColor = std::make_unique<CRTFColor>();
  m_pCurColor = m_pStore->m_Tables.m_pPendingColor.get();
}

void CRTFParser::EndColor() {
  // A group that another colour table interrupted has no colour any more.
  if (m_pCurColor == nullptr) BeginColorTable();
  Insert(m_Colors, static_cast<int>(m_Colors.size()), m_pCurColor, m_pStore->m_Tables.m_pPendingColor);
  m_NameBuffer.clear();
  BeginColorTable();
}

void CRTFParser::EndColorTable() {
  m_pStore->m_Tables.m_pPendingColor.reset();
  m_pCurColor = nullptr;
}

void CRTFParser::FreeDestinationTables() {
  FreeEntries(m_Fonts);
  FreeEntries(m_StyleSheets);
  FreeEntries(m_Colors);
  FreeLists();
}
