#pragma once

#include "foundation/RecordReader.h"
#include "model/RecordIdentifier.h"

namespace zeb {

/// A kind of record of a report file: its element, and the element of its identifier.
struct RecordName {
  ElementName Record;
  ElementName Identifier;
  IdentifierPlace Place;
};

inline constexpr RecordName kZoneRecord{L"ReportZone", L"ZoneID", IdentifierPlace::FirstChild};
inline constexpr RecordName kValueHolderRecord{L"ValueHolder", L"VHID", IdentifierPlace::FirstChild};
inline constexpr RecordName kFormulaRecord{L"FormulaValueHolder", L"VHID",
                                           IdentifierPlace::FirstChildOfFirstChild};
inline constexpr RecordName kSumRecord{L"SumValueHolder", L"VHID", IdentifierPlace::FirstChildOfFirstChild};
inline constexpr RecordName kDynamicRecord{L"DynValueHolder", L"VHID",
                                           IdentifierPlace::FirstChildOfFirstChild};
inline constexpr RecordName kCopyRecord{L"CopyValueHolder", L"VHID", IdentifierPlace::FirstChildOfFirstChild};
inline constexpr RecordName kTextRecord{L"Text", L"TxID", IdentifierPlace::FirstChild};
inline constexpr RecordName kPictureRecord{L"Picture", L"PicID", IdentifierPlace::FirstChild};
inline constexpr RecordName kRectangleRecord{L"Rectangle", L"RectID", IdentifierPlace::FirstChild};
inline constexpr RecordName kLineRecord{L"Line", L"LineID", IdentifierPlace::FirstChild};
inline constexpr RecordName kTableCellRecord{L"TableCell", L"TableCellID", IdentifierPlace::FirstChild};
inline constexpr RecordName kRelationRecord{L"PlRel", L"PlRelID", IdentifierPlace::FirstChild};

}  // namespace zeb
