// Members whose bodies follow. Each line goes when its body comes.
#include "rtf/RTFParser.h"

CRTFFont* CRTFParser::GetFontAtID(int) const { return nullptr; }
CRTFColor* CRTFParser::GetColorAtID(int) const { return nullptr; }
CRTFStyleSheet* CRTFParser::GetStyleSheetAtID(int) const { return nullptr; }
void CRTFParser::ParseMultiByteCharacter(unsigned char byte) { ParseUnicodeChar(byte); }
void CRTFParser::ParseMultiByteCharacter(char* bytes, int count) {
  for (int i = 0; i < count; ++i) ParseUnicodeChar(static_cast<unsigned char>(bytes[i]));
  bytes[0] = bytes[1] = 0;
}
int CRTFParser::ParseUnicodeChar(wchar_t ch) { return ParseChar(static_cast<unsigned char>(ch)); }
int CRTFParser::PrintChar(unsigned char ch) {
  m_TextBuffer += static_cast<wchar_t>(ch);
  return rtfOK;
}
int CRTFParser::PrintUnicodeChar(wchar_t ch) {
  m_TextBuffer += ch;
  return rtfOK;
}
void CRTFParser::ReadBigFiveMapping() {}
void CRTFParser::ReadGB2312Mapping() {}
void CRTFParser::BeginFontEntry() {}
void CRTFParser::BeginStyleEntry() {}
void CRTFParser::BeginColorTable() {}
void CRTFParser::BeginListLevel() {}
void CRTFParser::EndFontEntry() { m_NameBuffer.clear(); }
void CRTFParser::EndStyleEntry() { m_NameBuffer.clear(); }
void CRTFParser::EndColor() {}
void CRTFParser::EndColorTable() {}
void CRTFParser::EndListTable() {}
void CRTFParser::EndListLevel() {}
void CRTFParser::EndLevelText() {}
void CRTFParser::EndLevelNumbers() {}
void CRTFParser::EndListOverrideTable() {}
void CRTFParser::EndListText() {}
int CRTFParser::ParseListProperty(IPROP, int) { return rtfOK; }
void CRTFParser::FreeDestinationTables() {}
int CRTFParser::ParseUnicodeProperty(int) { return rtfOK; }
const wchar_t* CRTFParser::PlainByteCharacters() {
  static const std::wstring kBytes = [] {
    std::wstring bytes(256, L'\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<wchar_t>(i);
    return bytes;
  }();
  return kBytes.data();
}
