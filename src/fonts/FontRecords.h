#pragma once

#include "foundation/RecordReader.h"

class CGlobalFontHandler;
class CIDManager;

// The records of fonts and encodings in the files of documents and layouts.
namespace zeb {

/// The element with which the font records of a document or layout begin.
inline constexpr ElementName kFontInformation = L"FontInformation";

/// Encodings that are taken from one file. A record of a few bytes makes an entry of several thousand; what lies
/// beyond is stepped over.
inline constexpr int kMostEncodingsOfFile = 1000;

/// Fonts that are taken from one file: each takes some 200 KiB, however short its record is. What lies beyond is stepped
/// over.
inline constexpr int kMostFontsOfFile = 250;

/// Reads the font records and, behind them, the encoding records that stand at the cursor, into the handler's lists.
/// Errors: "FontPoolIncomplete" with the name of a TrueType font whose program is nowhere; those of
/// CFontInformation::ReadTT.
void ReadFontRecords(RecordReader& reader, CGlobalFontHandler& handler, CIDManager& ids);

/// Writes the handler's fonts and encodings, other than the built-in ones, under the node.
void WriteFontRecords(zebxmln::CXMLNode* node, CGlobalFontHandler& handler, CIDManager& ids);

/// Frees the records of the characters of the handler's fonts, which nobody owns. For a handler that is about to end
/// before any caller could see it.
void FreeCharacters(const CGlobalFontHandler& handler);

}  // namespace zeb
