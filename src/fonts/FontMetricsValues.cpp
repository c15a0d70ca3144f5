#include "fonts/FontMetrics.h"

// The plain values: one getter and one setter each.

const wchar_t* CFontMetrics::GetBaseFont() const { return m_strBaseFont.c_str(); }

void CFontMetrics::SetBaseFont(const wchar_t* name) { m_strBaseFont = name; }

const wchar_t* CFontMetrics::GetFontFamilyName() const { return m_strFontFamilyName.c_str(); }

void CFontMetrics::SetFontFamilyName(const wchar_t* name) { m_strFontFamilyName = name; }

const wchar_t* CFontMetrics::GetTTName() const { return m_strTTName.c_str(); }

void CFontMetrics::SetTTName(const wchar_t* name) { m_strTTName = name; }

const wchar_t* CFontMetrics::GetEncoding() const { return m_strEncoding.c_str(); }

void CFontMetrics::SetEncoding(const wchar_t* name) { m_strEncoding = name; }

const wchar_t* CFontMetrics::GetEncodingScheme() const { return m_strEncodingScheme.c_str(); }

void CFontMetrics::SetEncodingScheme(const wchar_t* name) { m_strEncodingScheme = name; }

const wchar_t* CFontMetrics::GetFontBoldName() const { return m_strFontBoldName.c_str(); }

void CFontMetrics::SetFontBoldName(const wchar_t* name) { m_strFontBoldName = name; }

const wchar_t* CFontMetrics::GetFontItalicName() const { return m_strFontItalicName.c_str(); }

void CFontMetrics::SetFontItalicName(const wchar_t* name) { m_strFontItalicName = name; }

const wchar_t* CFontMetrics::GetFontBoldItalicName() const { return m_strFontBoldItalicName.c_str(); }

void CFontMetrics::SetFontBoldItalicName(const wchar_t* name) { m_strFontBoldItalicName = name; }

CFontMetrics::FontType CFontMetrics::GetFontType() const { return m_FontType; }

void CFontMetrics::SetFontType(FontType type) { m_FontType = type; }

int CFontMetrics::GetFlags() const { return m_iFlags; }

void CFontMetrics::SetFlags(int flags) { m_iFlags = flags; }

float CFontMetrics::GetItalicAngle() const { return m_fItalicAngle; }

void CFontMetrics::SetItalicAngle(float angle) { m_fItalicAngle = angle; }

bool CFontMetrics::GetFixedPitch() const { return m_bFixedPitch; }

void CFontMetrics::SetFixedPitch(bool fixedPitch) { m_bFixedPitch = fixedPitch; }

float CFontMetrics::GetBBoxLLX() const { return m_fBBoxLLX; }

void CFontMetrics::SetBBoxLLX(float value) { m_fBBoxLLX = value; }

float CFontMetrics::GetBBoxLLY() const { return m_fBBoxLLY; }

void CFontMetrics::SetBBoxLLY(float value) { m_fBBoxLLY = value; }

float CFontMetrics::GetBBoxURX() const { return m_fBBoxURX; }

void CFontMetrics::SetBBoxURX(float value) { m_fBBoxURX = value; }

float CFontMetrics::GetBBoxURY() const { return m_fBBoxURY; }

void CFontMetrics::SetBBoxURY(float value) { m_fBBoxURY = value; }

int CFontMetrics::GetUnderlinePosition() const { return m_iUnderlinePosition; }

void CFontMetrics::SetUnderlinePosition(int value) { m_iUnderlinePosition = value; }

int CFontMetrics::GetUnderlineThickness() const { return m_iUnderlineThickness; }

void CFontMetrics::SetUnderlineThickness(int value) { m_iUnderlineThickness = value; }

int CFontMetrics::GetCapHeight() const { return m_iCapHeight; }

void CFontMetrics::SetCapHeight(int value) { m_iCapHeight = value; }

int CFontMetrics::GetXHeight() const { return m_iXHeight; }

void CFontMetrics::SetXHeight(int value) { m_iXHeight = value; }

int CFontMetrics::GetAscender() const { return m_iAscender; }

void CFontMetrics::SetAscender(int value) { m_iAscender = value; }

int CFontMetrics::GetDescender() const { return m_iDescender; }

void CFontMetrics::SetDescender(int value) { m_iDescender = value; }

int CFontMetrics::GetStemVW() const { return m_iStemVW; }

void CFontMetrics::SetStemVW(int value) { m_iStemVW = value; }

int CFontMetrics::GetStemHW() const { return m_iStemHW; }

void CFontMetrics::SetStemHW(int value) { m_iStemHW = value; }

int CFontMetrics::GetFirstChar() const { return m_iFirstChar; }

void CFontMetrics::SetFirstChar(int code) { m_iFirstChar = code; }

int CFontMetrics::GetLastChar() const { return m_iLastChar; }

void CFontMetrics::SetLastChar(int code) { m_iLastChar = code; }

int CFontMetrics::GetBold() const { return m_iBold; }

void CFontMetrics::SetBold(int weight) { m_iBold = weight; }

bool CFontMetrics::GetItalic() const { return m_bItalic; }

void CFontMetrics::SetItalic(bool italic) { m_bItalic = italic; }

bool CFontMetrics::GetBoldFont() const { return m_bBoldFont; }

void CFontMetrics::SetBoldFont(bool bold) { m_bBoldFont = bold; }

bool CFontMetrics::GetItalicFont() const { return m_bItalicFont; }

void CFontMetrics::SetItalicFont(bool italic) { m_bItalicFont = italic; }

bool CFontMetrics::GetSymbolFont() const { return m_bSymbolFont; }

void CFontMetrics::SetSymbolFont(bool symbolFont) { m_bSymbolFont = symbolFont; }

bool CFontMetrics::GetUnicodeFont() const { return m_bUnicodeFont; }

void CFontMetrics::SetUnicodeFont(bool unicodeFont) { m_bUnicodeFont = unicodeFont; }

CFontMetrics::CharColl CFontMetrics::GetCharColl() const { return m_CharColl; }

void CFontMetrics::SetCharColl(CharColl collection) { m_CharColl = collection; }

unsigned short CFontMetrics::GetUnicodeAt(int code) const { return m_rgusUnicodes[code]; }

void CFontMetrics::SetUnicodeAt(int code, unsigned short unicode) { m_rgusUnicodes[code] = unicode; }

const wchar_t* CFontMetrics::GetCharNameAt(int code) const {
  const auto own = m_OwnCharNames.find(code);
  return own != m_OwnCharNames.end() ? own->second.c_str() : m_rgpCharNames[static_cast<std::size_t>(code)];
}

void CFontMetrics::SetCharNameAt(int code, const wchar_t* name) { m_OwnCharNames[code] = name; }
