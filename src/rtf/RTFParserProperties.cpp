#include "rtf/RTFParser.h"

#include "rtf/RTFColor.h"
#include "rtf/RTFPropertyTable.h"
#include "rtf/RTFState.h"
#include "rtf/RTFStyleSheet.h"

#include <cstddef>

namespace {

constexpr unsigned kLowByte = 0xFF;

int StoredByte(const zeb::RTFField& field) {
  if (field.m_pByte != nullptr) return *field.m_pByte;
  if (field.m_pSignedByte != nullptr) return *field.m_pSignedByte;
  return static_cast<int>(static_cast<unsigned>(*field.m_pInt) & kLowByte);
}

void StoreByte(const zeb::RTFField& field, int value) {
  const unsigned byte = static_cast<unsigned>(value) & kLowByte;
  if (field.m_pByte != nullptr) {
    *field.m_pByte = static_cast<unsigned char>(byte);
  } else if (field.m_pSignedByte != nullptr) {
    *field.m_pSignedByte = static_cast<signed char>(byte);
  } else {
    // Fixed behaviour: only the low byte of a number changes. A font size above 255 half points wraps.
    *field.m_pInt = static_cast<int>((static_cast<unsigned>(*field.m_pInt) & ~kLowByte) | byte);
  }
}

/// Keywords that are known so that they are no failure.
bool IsIgnored(CRTFParser::IPROP prop) {
  return prop == CRTFParser::ipropRowBorderHorizontal || prop == CRTFParser::ipropRowBorderVertical ||
         prop == CRTFParser::ipropBorderSingle || prop == CRTFParser::ipropListName ||
         prop == CRTFParser::ipropListOverrideFormat;
}

/// Whether a special property describes or fills rows and cells. Two among them only store a number.
bool IsOfTables(CRTFParser::IPROP prop) {
  return prop >= CRTFParser::ipropInTable && prop <= CRTFParser::ipropBorderWidth &&
         prop != CRTFParser::ipropRowLeft && prop != CRTFParser::ipropRowHeader;
}

bool IsOfLists(CRTFParser::IPROP prop) {
  return prop >= CRTFParser::ipropList && prop <= CRTFParser::ipropIlvl;
}

}  // namespace

int CRTFParser::ApplyPropChange(IPROP prop, int value) {
  if (m_rds == rdsSkip) return rtfOK;
  if (prop < 0 || static_cast<std::size_t>(prop) >= zeb::kRTFPropertyTable.size()) return rtfBadTable;
  const PropertyRow& row = m_pPropTable[prop];
  if (row.Action == zeb::kSpecial) return ParseSpecialProperty(prop, value);

  const zeb::RTFField field = FieldOf(row);
  const bool isByte = row.Action == zeb::kByte;
  const bool isReached = field.m_pInt != nullptr || (isByte && (field.m_pByte || field.m_pSignedByte));
  if (!isReached || (!isByte && row.Action != zeb::kInt)) return rtfBadTable;

  const int stored = isByte ? StoredByte(field) : *field.m_pInt;
  if (stored != value && PropCanChangeContext(prop)) CloseRunOutsideTable();
  if (isByte) {
    StoreByte(field, value);
  } else {
    *field.m_pInt = value;
  }
  return rtfOK;
}

zeb::RTFField CRTFParser::FieldOf(const PropertyRow& row) {
  switch (row.Area) {
    case zeb::kCharacter:
      return zeb::RTFFieldOf(m_CharProps, row.Field);
    case zeb::kParagraph:
      return zeb::RTFFieldOf(m_ParProps, row.Field);
    case zeb::kSection:
      return zeb::RTFFieldOf(m_SecProps, row.Field);
    case zeb::kDocument:
      return zeb::RTFFieldOf(m_DocProps, row.Field);
    case zeb::kFont:
      return zeb::RTFFieldOf(m_FontProps, row.Field);
    default:
      return {};
  }
}

void CRTFParser::CloseRunOutsideTable() {
  if (m_ParProps.InTable == 0) ContextHasChanged(false, false, false);
}

int CRTFParser::ParseSpecialProperty(IPROP prop, int value) {
  switch (prop) {
    case ipropNoSuperSub:
      return EndSuperAndSubscript();
    case ipropPard:
      return ResetParagraph();
    case ipropPlain:
      m_CharProps = CCharacterProperties();
      return rtfOK;
    case ipropSectd:
      m_SecProps = CSectionProperties();
      return rtfOK;
    case ipropPar:
      return ParseParagraphEnd();
    case ipropUnicode:
      return ParseUnicodeProperty(value);
    case ipropLine:
      ContextHasChanged(false, true, false);
      return rtfOK;
    case ipropStyle:
      return ParseStyleProperty(value);
    case ipropRed:
    case ipropGreen:
    case ipropBlue:
      return ParseColorProperty(prop, value);
    case ipropTabStop:
      return ParseTabStop(value);
    case ipropShpPict:
    case ipropNonShpPict:
      return ParsePictureProperty(prop);
    default:
      break;
  }
  if (IsIgnored(prop)) return rtfOK;
  if (IsOfTables(prop)) return ParseTableProperty(prop, value);
  if (IsOfLists(prop)) return ParseListProperty(prop, value);
  // Fixed behaviour: \listoverridestartat ends the reading.
  return rtfBadTable;
}

int CRTFParser::EndSuperAndSubscript() {
  if (m_CharProps.Superscript != 0 || m_CharProps.Subscript != 0) CloseRunOutsideTable();
  m_CharProps.Superscript = 0;
  m_CharProps.Subscript = 0;
  return rtfOK;
}

int CRTFParser::ResetParagraph() {
  if (m_ParProps.InTable != 0) ContextHasChanged(false, false, true);
  m_ParProps = CParagraphProperties();
  // Fixed behaviour: the indents stay reset when the group ends.
  if (m_pStack == nullptr) return rtfOK;
  CRTFState* state = StateOfTopGroup();
  if (state == nullptr) return rtfNoMemory;
  state->ParProps.LeftIndent = 0;
  state->ParProps.RightIndent = 0;
  state->ParProps.FirstIndent = 0;
  return rtfOK;
}

int CRTFParser::ParseStyleProperty(int value) {
  if (m_rds == rdsStyleEntry) {
    if (m_pCurStyle != nullptr) m_pCurStyle->SetStyleSheetIndex(value);
    return rtfOK;
  }
  m_pCurStyle = GetStyleSheetAtID(value);
  if (m_pCurStyle == nullptr) return rtfOK;
  const unsigned char inTable = m_ParProps.InTable;
  m_CharProps = m_pCurStyle->GetCharProps();
  m_SecProps = m_pCurStyle->GetSecProps();
  m_ParProps = m_pCurStyle->GetParProps();
  m_FontProps = m_pCurStyle->GetFontProps();
  m_ParProps.InTable = inTable;
  return rtfOK;
}

int CRTFParser::ParseColorProperty(IPROP prop, int value) {
  // Fixed behaviour: a part of a colour outside of the colour table ends the reading.
  if (m_rds != rdsColorTable) return rtfBadTable;
  if (m_pCurColor == nullptr) BeginColorTable();
  const auto part = static_cast<unsigned char>(value);
  if (prop == ipropRed) m_pCurColor->SetRed(part);
  if (prop == ipropGreen) m_pCurColor->SetGreen(part);
  if (prop == ipropBlue) m_pCurColor->SetBlue(part);
  return rtfOK;
}
