#include "rtf/RTFListLevelEntry.h"

#include <utility>

namespace {

std::wstring TextOf(const wchar_t* text) { return text == nullptr ? std::wstring() : std::wstring(text); }

}  // namespace

CRTFListLevelEntry::CRTFListLevelEntry()
    : m_cLevelnfc(0),
      m_cLeveljc(0),
      m_cLevelfollow(0),
      m_uiLevelstartat(0),
      m_iLevelspace(0),
      m_iLevelindent(0) {}

CRTFListLevelEntry::CRTFListLevelEntry(const CRTFListLevelEntry& other) = default;

CRTFListLevelEntry::~CRTFListLevelEntry() = default;

CRTFListLevelEntry& CRTFListLevelEntry::operator=(const CRTFListLevelEntry& other) = default;

unsigned char CRTFListLevelEntry::GetLevelnfc() const { return m_cLevelnfc; }
void CRTFListLevelEntry::SetLevelnfc(unsigned char levelnfc) { m_cLevelnfc = levelnfc; }
unsigned char CRTFListLevelEntry::GetLeveljc() const { return m_cLeveljc; }
void CRTFListLevelEntry::SetLeveljc(unsigned char leveljc) { m_cLeveljc = leveljc; }
unsigned char CRTFListLevelEntry::GetLevelfollow() const { return m_cLevelfollow; }
void CRTFListLevelEntry::SetLevelfollow(unsigned char levelfollow) { m_cLevelfollow = levelfollow; }
unsigned short CRTFListLevelEntry::GetLevelstartat() const { return m_uiLevelstartat; }
void CRTFListLevelEntry::SetLevelstartat(unsigned short levelstartat) { m_uiLevelstartat = levelstartat; }
int CRTFListLevelEntry::GetLevelspace() const { return m_iLevelspace; }
void CRTFListLevelEntry::SetLevelspace(int levelspace) { m_iLevelspace = levelspace; }
int CRTFListLevelEntry::GetLevelindent() const { return m_iLevelindent; }
void CRTFListLevelEntry::SetLevelindent(int levelindent) { m_iLevelindent = levelindent; }

const wchar_t* CRTFListLevelEntry::GetLeveltext() const { return m_strLeveltext.c_str(); }
void CRTFListLevelEntry::SetLeveltext(const wchar_t* leveltext) { m_strLeveltext = TextOf(leveltext); }
const wchar_t* CRTFListLevelEntry::GetLevelnumbers() const { return m_strLevelnumbers.c_str(); }
void CRTFListLevelEntry::SetLevelnumbers(const wchar_t* levelnumbers) {
  m_strLevelnumbers = TextOf(levelnumbers);
}

CCharacterProperties CRTFListLevelEntry::GetCharProps() const { return m_CharProps; }
void CRTFListLevelEntry::SetCharProps(CCharacterProperties charProps) { m_CharProps = charProps; }
CParagraphProperties CRTFListLevelEntry::GetParProps() const { return m_ParProps; }
void CRTFListLevelEntry::SetParProps(CParagraphProperties parProps) { m_ParProps = std::move(parProps); }

const wchar_t* CRTFListLevelEntry::GetListText() const { return m_strListText.c_str(); }
void CRTFListLevelEntry::SetListText(const wchar_t* listText) { m_strListText = TextOf(listText); }
CFontProperties CRTFListLevelEntry::GetFontListText() const { return m_FontListText; }
void CRTFListLevelEntry::SetFontListText(CFontProperties fontListText) { m_FontListText = fontListText; }
