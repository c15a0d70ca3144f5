#include "fonts/FontPoolEntry.h"

#include "fonts/FontData.h"

#include <cstddef>

CFontPoolEntry::CFontPoolEntry() = default;
CFontPoolEntry::CFontPoolEntry(const CFontPoolEntry& other) = default;
CFontPoolEntry::~CFontPoolEntry() { delete m_pFontData; }
CFontPoolEntry& CFontPoolEntry::operator=(const CFontPoolEntry& other) = default;

int CFontPoolEntry::GetBold() const { return m_iBold; }
void CFontPoolEntry::SetBold(int weight) { m_iBold = weight; }

bool CFontPoolEntry::GetItalic() const { return m_bItalic; }
void CFontPoolEntry::SetItalic(bool italic) { m_bItalic = italic; }

const wchar_t* CFontPoolEntry::GetFontName() const { return m_strFontName.c_str(); }
void CFontPoolEntry::SetFontName(const wchar_t* name) { m_strFontName = name; }

const wchar_t* CFontPoolEntry::GetFontFamilyName() const { return m_strFontFamilyName.c_str(); }
void CFontPoolEntry::SetFontFamilyName(const wchar_t* name) { m_strFontFamilyName = name; }

CFontData* CFontPoolEntry::GetFontData() const { return m_pFontData; }
void CFontPoolEntry::SetFontData(CFontData* data) { m_pFontData = data; }

void CFontPoolEntry::AddLocalizedFontName(const wchar_t* name) { m_rgstrLocalizedNames.emplace_back(name); }

const wchar_t* CFontPoolEntry::GetLocalizedFontNameAt(int index) const {
  return m_rgstrLocalizedNames[static_cast<std::size_t>(index)].c_str();
}

int CFontPoolEntry::GetLocalizedFontNameCount() const {
  return static_cast<int>(m_rgstrLocalizedNames.size());
}
