#pragma once

#include "rtf/RTFParser.h"

#include <array>

namespace zeb {

/// What a property row does with the value.
enum RTFAction : int {
  kSpecial = 0,  // calls ParseSpecialProperty
  kByte = 1,     // stores the low byte
  kInt = 2,      // stores the whole value
};

/// Which properties a row changes.
enum RTFArea : int {
  kCharacter = 0,
  kParagraph = 1,
  kSection = 2,
  kDocument = 3,
  kFont = 4,
};

/// The property table: row n belongs to IPROP n.
extern const std::array<CRTFParser::PropertyRow, 106> kRTFPropertyTable;

/// A field of a property object. One of the pointers is set, none if there is no such field or keywords do not reach
/// it.
struct RTFField {
  unsigned char* m_pByte = nullptr;      // observer
  signed char* m_pSignedByte = nullptr;  // observer
  int* m_pInt = nullptr;                 // observer
};

/// The field with a number, as property rows name it.
RTFField RTFFieldOf(CCharacterProperties& properties, int field);
RTFField RTFFieldOf(CParagraphProperties& properties, int field);
RTFField RTFFieldOf(CSectionProperties& properties, int field);
RTFField RTFFieldOf(CDocumentProperties& properties, int field);
RTFField RTFFieldOf(CFontProperties& properties, int field);

}  // namespace zeb
