#pragma once

#include "foundation/RecordReader.h"

// Names of elements that more than one class reads or writes. Names of a single class stand in its own file.
namespace zeb::Elements {

// Identifiers: of the record that they open, and in references to it.
inline constexpr ElementName PlID = L"PlID";
inline constexpr ElementName PlRelID = L"PlRelID";
inline constexpr ElementName TxID = L"TxID";
inline constexpr ElementName VHID = L"VHID";
inline constexpr ElementName PicID = L"PicID";
inline constexpr ElementName RectID = L"RectID";
inline constexpr ElementName LineID = L"LineID";
inline constexpr ElementName TableCellID = L"TableCellID";
inline constexpr ElementName ZoneID = L"ZoneID";

// Records.
inline constexpr ElementName Placeable = L"Placeable";
inline constexpr ElementName Text = L"Text";
inline constexpr ElementName ValueHolder = L"ValueHolder";
inline constexpr ElementName FormulaValueHolder = L"FormulaValueHolder";
inline constexpr ElementName SumValueHolder = L"SumValueHolder";
inline constexpr ElementName DynValueHolder = L"DynValueHolder";
inline constexpr ElementName CopyValueHolder = L"CopyValueHolder";
inline constexpr ElementName Picture = L"Picture";
inline constexpr ElementName Rectangle = L"Rectangle";
inline constexpr ElementName Line = L"Line";
inline constexpr ElementName TableCell = L"TableCell";
inline constexpr ElementName PlRel = L"PlRel";
inline constexpr ElementName DefinedDynVH = L"DefinedDynVH";

// Fields.
inline constexpr ElementName Name = L"Name";
inline constexpr ElementName Formula = L"Formula";
inline constexpr ElementName InternalKey = L"InternalKey";
inline constexpr ElementName VHType = L"VHType";

}  // namespace zeb::Elements
