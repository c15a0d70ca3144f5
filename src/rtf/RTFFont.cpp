#include "rtf/RTFFont.h"

CRTFFont::CRTFFont()
    : m_iCharSet(0), m_iWidth(0), m_iHeight(0), m_cFamily(0), m_cPitch(0), m_cAttributes(0) {}

CRTFFont::CRTFFont(const CRTFFont& other) = default;

CRTFFont::~CRTFFont() = default;

CRTFFont& CRTFFont::operator=(const CRTFFont& other) = default;

const wchar_t* CRTFFont::GetFontFaceName() const { return m_strFaceName.c_str(); }
void CRTFFont::SetFontFaceName(const wchar_t* faceName) {
  m_strFaceName = faceName == nullptr ? L"" : faceName;
}
int CRTFFont::GetFontCharSet() const { return m_iCharSet; }
void CRTFFont::SetFontCharSet(int charSet) { m_iCharSet = charSet; }
int CRTFFont::GetFontWidth() const { return m_iWidth; }
void CRTFFont::SetFontWidht(int width) { m_iWidth = width; }
int CRTFFont::GetFontHeight() const { return m_iHeight; }
void CRTFFont::SetFontHeight(int height) { m_iHeight = height; }
char CRTFFont::GetFontFamily() const { return m_cFamily; }
void CRTFFont::SetFontFamily(char family) { m_cFamily = family; }
char CRTFFont::GetFontPitch() const { return m_cPitch; }
void CRTFFont::SetFontPitch(char pitch) { m_cPitch = pitch; }
char CRTFFont::GetAttributes() const { return m_cAttributes; }
void CRTFFont::SetFontAttributes(char attributes) { m_cAttributes = attributes; }
