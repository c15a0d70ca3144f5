#include "rtf/RTFStyleSheet.h"

#include <utility>

CRTFStyleSheet::CRTFStyleSheet() : m_iIndex(0) {}

CRTFStyleSheet::CRTFStyleSheet(const CRTFStyleSheet& other) = default;

CRTFStyleSheet::~CRTFStyleSheet() = default;

CRTFStyleSheet& CRTFStyleSheet::operator=(const CRTFStyleSheet& other) = default;

CCharacterProperties CRTFStyleSheet::GetCharProps() const { return m_CharProps; }
void CRTFStyleSheet::SetCharProps(CCharacterProperties charProps) { m_CharProps = charProps; }
CSectionProperties CRTFStyleSheet::GetSecProps() const { return m_SecProps; }
void CRTFStyleSheet::SetSecProps(CSectionProperties secProps) { m_SecProps = secProps; }
CParagraphProperties CRTFStyleSheet::GetParProps() const { return m_ParProps; }
void CRTFStyleSheet::SetParProps(CParagraphProperties parProps) { m_ParProps = std::move(parProps); }
CFontProperties CRTFStyleSheet::GetFontProps() const { return m_FontProps; }
void CRTFStyleSheet::SetFontProps(CFontProperties fontProps) { m_FontProps = fontProps; }
int CRTFStyleSheet::GetStyleSheetIndex() const { return m_iIndex; }
void CRTFStyleSheet::SetStyleSheetIndex(int index) { m_iIndex = index; }
const wchar_t* CRTFStyleSheet::GetStyleSheetName() const { return m_strName.c_str(); }
void CRTFStyleSheet::SetStyleSheetName(const wchar_t* name) { m_strName = name == nullptr ? L"" : name; }
