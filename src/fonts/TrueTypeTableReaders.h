#pragma once

#include "fonts/ByteReader.h"

#include <cstdint>

class CTrueTypeTabHMtx;
class CTrueTypeTabHead;
class CTrueTypeTabHhea;
class CTrueTypeTabLoca;
class CTrueTypeTabMaxp;
class CTrueTypeTabName;
class CTrueTypeTabOS2;
class CTrueTypeTabPCLT;
class CTrueTypeTabPost;

// The readers of single tables. Each takes the bytes of its table, no more, and says whether they hold what the table
// promises. None allocates more than the bytes of its table account for.
namespace zeb {

bool ReadHead(ByteReader in, CTrueTypeTabHead& table);
bool ReadHhea(ByteReader in, CTrueTypeTabHhea& table);
bool ReadMaxp(ByteReader in, CTrueTypeTabMaxp& table);
bool ReadOS2(ByteReader in, CTrueTypeTabOS2& table);
bool ReadPCLT(ByteReader in, CTrueTypeTabPCLT& table);

/// @param systemLanguage Windows language number of the second list of names
bool ReadName(ByteReader in, std::uint16_t systemLanguage, CTrueTypeTabName& table);

/// Reads the table and gives the glyphs their names. Strings that are not there leave names empty.
bool ReadPost(ByteReader in, CTrueTypeTabPost& table, CTrueTypeTabHMtx& glyphs);

/// Whether `hmtx` can hold the metrics that other tables promise.
/// @return the number of glyph records, the greater of both counts; 0 if it cannot
int CountGlyphs(ByteReader hmtx, int metricsCount, int glyphCount);
/// Reads the metrics of as many glyphs as CountGlyphs gave.
bool ReadHMtx(ByteReader in, int metricsCount, CTrueTypeTabHMtx& glyphs);

/// Reads where the glyphs begin and the last one ends. Offsets have to ascend within `glyf`.
bool ReadLoca(ByteReader in, bool longOffsets, int glyphCount, std::uint32_t glyfLength,
              CTrueTypeTabHMtx& glyphs, CTrueTypeTabLoca& table);

/// Reads the headers of the glyphs.
/// @param glyf all bytes of the file from the table's beginning on: the header of an empty last glyph lies behind the
///   table, and reads as zeros where the file ends
void ReadGlyphHeaders(ByteReader glyf, CTrueTypeTabHMtx& glyphs);

}  // namespace zeb
