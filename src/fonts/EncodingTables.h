#pragma once

#include <array>

namespace zeb {

/// What a single-byte code means: its Unicode value and its Adobe glyph name; 0 and empty for an unused code.
struct EncodingRow {
  unsigned short unicode;
  const wchar_t* name;
};

/// One row for each code.
using EncodingTable = std::array<EncodingRow, 256>;

/// Windows code page 1252 with the glyph names of PDF's WinAnsiEncoding. Unused codes from 127 on are bullets.
extern const EncodingTable kWinAnsiEncoding;
/// Windows code page 1250 with Adobe glyph names.
extern const EncodingTable kCP1250Encoding;

}  // namespace zeb
