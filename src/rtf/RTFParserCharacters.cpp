#include "foundation/ErrorKeys.h"
#include "foundation/KXExceptionHandler.h"
#include "platform/CodePage.h"
#include "platform/File.h"
#include "rtf/RTFCharSets.h"
#include "rtf/RTFFont.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFStore.h"

#include <array>
#include <climits>
#include <cstddef>
#include <string>
#include <vector>

// From bytes to characters, and where each character goes.

namespace {

/// Character codes of RTF are 16 bits wide.
wchar_t Low16Bits(unsigned int code) { return static_cast<wchar_t>(code & 0xFFFFU); }

void LoadCMapFile(CIDMapping& mapping, const wchar_t* name) {
  const std::wstring path = CKXExceptionHandler::GetInstance().GetExceptionNamePath() + std::wstring(name);
  std::vector<std::byte> content;
  if (zeb::ReadWholeFile(path, content) != zeb::FileStatus::Ok || content.size() > INT_MAX) {
    CKXExceptionHandler::GetInstance().ThrowException(zeb::ErrorKeys::ReadFileFailure, path.c_str());
    return;
  }
  mapping.LoadCMap(reinterpret_cast<unsigned char*>(content.data()), static_cast<int>(content.size()));
}

}  // namespace

const zeb::CodePage& CRTFParser::CurrentCodePage() {
  const CRTFFont* const font = GetFontAtID(m_FontProps.FontId);
  const int charSet = font != nullptr ? font->GetFontCharSet() : zeb::kRTFDefaultCharSet;
  zeb::RTFDestinationTables& tables = m_pStore->m_Tables;
  if (tables.m_pCodePage == nullptr || tables.m_iCodePageCharSet != charSet) {
    tables.m_pCodePage = &zeb::CodePage::Of(zeb::CodePageOfCharSet(charSet));
    tables.m_iCodePageCharSet = charSet;
  }
  return *tables.m_pCodePage;
}

const wchar_t* CRTFParser::PlainByteCharacters() { return CurrentCodePage().Characters().data(); }

void CRTFParser::ParseMultiByteCharacter(unsigned char byte) {
  ParseUnicodeChar(PlainByteCharacters()[byte]);
}

void CRTFParser::ParseMultiByteCharacter(char* bytes, int count) {
  const auto first = static_cast<unsigned char>(bytes[0]);
  const auto second = static_cast<unsigned char>(bytes[1]);
  const zeb::CodePage& page = CurrentCodePage();
  std::array<wchar_t, 2> characters = {page.Characters()[first], L'\0'};
  int converted = 1;
  if (count == 2) converted = page.ConvertPair(first, second, characters);
  if (converted == 0) {
    characters = {static_cast<wchar_t>(first), static_cast<wchar_t>(second)};
    converted = 2;
  }
  for (int index = 0; index < converted; ++index) {
    const wchar_t character = characters[static_cast<std::size_t>(index)];
    if (character != L'\0') ParseUnicodeChar(character);
  }
  bytes[0] = 0;
  bytes[1] = 0;
}

void CRTFParser::CountRawByte() {
  if (m_ris == risBin && --m_cbBin < 1) m_ris = risNorm;
}

int CRTFParser::ParseChar(unsigned char ch) {
  // Elsewhere it makes no difference whether a character was a single byte.
  if (m_rds != rdsNorm && m_rds != rdsListText) return ParseUnicodeChar(static_cast<wchar_t>(ch));
  CountRawByte();
  return PrintChar(ch);
}

int CRTFParser::ParseUnicodeChar(wchar_t ch) {
  CountRawByte();
  switch (m_rds) {
    case rdsNorm:
    case rdsListText:
      return PrintUnicodeChar(ch);
    case rdsFontEntry:
    case rdsStyleEntry:
      m_NameBuffer += ch;
      break;
    case rdsColorTable:
      if (ch == L';') EndColor();
      break;
    case rdsPicture:
      ParsePictureByte();
      break;
    case rdsBookmarkStart:
    case rdsBookmarkEnd:
      m_BookmarkBuffer += ch;
      break;
    default:
      break;
  }
  return rtfOK;
}

int CRTFParser::PrintUnicodeChar(wchar_t ch) {
  // A zero character would end the text for its reader.
  if (ch == L'\0') return rtfOK;
  switch (m_rds) {
    case rdsFontEntry:
    case rdsLevelText:
    case rdsLevelNumbers:
    case rdsListText:
    case rdsStyleEntry:
      m_NameBuffer += ch;
      break;
    case rdsBookmarkStart:
    case rdsBookmarkEnd:
      m_BookmarkBuffer += ch;
      break;
    case rdsPnTextBefore:
      m_PnBefore += ch;
      break;
    case rdsPnTextAfter:
      m_PnAfter += ch;
      break;
    case rdsPn:
    case rdsColorTable:
      break;
    default:
      m_TextBuffer += ch;
      break;
  }
  return rtfOK;
}

int CRTFParser::PrintChar(unsigned char ch) {
  const auto character = static_cast<wchar_t>(ch);
  switch (m_rds) {
    case rdsLevelText:
    case rdsLevelNumbers:
    case rdsListText:
    case rdsPn:
    case rdsBookmarkStart:
    case rdsBookmarkEnd:
    case rdsPnTextBefore:
    case rdsPnTextAfter:
      return PrintUnicodeChar(character);
    default:
      break;
  }
  // Fixed behaviour: in names of fonts and styles and in a table of colours as well, this goes into the text.
  m_TextBuffer += character;
  if (m_ParProps.InTable != 0) NoteCellFormatting();
  return rtfOK;
}

void CRTFParser::NoteCellFormatting() {
  m_CellFont = static_cast<unsigned short>(m_FontProps.FontId);
  m_CellFontSize = static_cast<unsigned short>(m_CharProps.FontSize);
  m_CellBold = m_CharProps.Bold;
  m_CellItalic = m_CharProps.Italic;
  m_CellSuper = m_CharProps.Superscript;
  m_CellSub = m_CharProps.Subscript;
}

int CRTFParser::ParseUnicodeProperty(int value) {
  // Fixed behaviour: \uc0 counts as 1.
  m_cSkip = m_CharProps.UnicodeSkip != 0 ? m_CharProps.UnicodeSkip : 1;
  // Fixed behaviour: any run of question marks and one semicolon among them are swallowed.
  int semicolons = 0;
  for (unsigned char ch = GetChar(); ch == '?' || ch == ';'; ch = GetChar()) {
    if (ch == ';') {
      m_cSkip = 0;
      if (++semicolons > 1) break;
    } else if (m_cSkip > 0) {
      --m_cSkip;
    }
  }
  UnGetChar();
  return PrintUnicodeChar(Low16Bits(static_cast<unsigned int>(value)));
}

void CRTFParser::ReadBigFiveMapping() {
  if (m_BigFiveRead) return;
  LoadCMapFile(m_CMaps[2], L"ETen-B5-H");
  LoadCMapFile(m_CMaps[3], L"Adobe-CNS1-UCS2");
  m_BigFiveRead = true;
}

void CRTFParser::ReadGB2312Mapping() {
  if (m_GB2312Read) return;
  LoadCMapFile(m_CMaps[0], L"GB-EUC-H");
  LoadCMapFile(m_CMaps[1], L"Adobe-GB1-UCS2");
  m_GB2312Read = true;
}
