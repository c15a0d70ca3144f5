#pragma once

#include "foundation/RecordReader.h"

class CFontInformation;
class CGlobalFontHandler;
class CIDManager;

// The records of fonts and encodings in the files of documents and layouts.
namespace zeb {

/// The element with which the font records of a document or layout begin.
inline constexpr ElementName kFontInformation = L"FontInformation";

/// Encodings that are taken from one file. A record of a few bytes makes an entry of several thousand; what lies
/// beyond is stepped over.
inline constexpr int kMostEncodingsOfFile = 1000;

/// Fonts that are taken from one file. However short its record is, one takes some 200 KiB, and a TrueType font its parsed
/// tables and, without the font pool, the program as well. What lies beyond is stepped over.
inline constexpr int kMostFontsOfFile = 250;

/// Bytes of programs that the fonts of one file read from the operating system and the pool does not keep. Each font has
/// bytes of its own then, also if it is the same font again. One font more ends the reading. Programs that stay in the
/// files of the system do not count.
inline constexpr long long kMostSystemBytesOfFile = 256LL * 1024 * 1024;

/// The length of a program that a font's Load read from the operating system and the pool does not keep; else 0.
int BytesFromSystem(const CFontInformation& font);

/// Reads the font records and, behind them, the encoding records that stand at the cursor, into the handler's lists.
/// Errors: "FontPoolIncomplete" with the name of a TrueType font whose program is nowhere; "NoMoreMemoryLeft" beyond
/// kMostSystemBytesOfFile; those of CFontInformation::ReadTT.
/// @throws zebxmln::CXMLException if the pool cannot write the file of a program that came from the operating system
void ReadFontRecords(RecordReader& reader, CGlobalFontHandler& handler, CIDManager& ids);

/// Writes the handler's fonts and encodings, other than the built-in ones, under the node.
void WriteFontRecords(zebxmln::CXMLNode* node, CGlobalFontHandler& handler, CIDManager& ids);

/// Frees the records of the characters of the handler's fonts, which nobody owns. For a handler that is about to end
/// before any caller could see it.
void FreeCharacters(const CGlobalFontHandler& handler);

}  // namespace zeb
