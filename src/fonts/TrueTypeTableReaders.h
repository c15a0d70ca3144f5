#pragma once

#include "fonts/ByteReader.h"

#include <cstdint>

class CTrueTypeTabHead;
class CTrueTypeTabHhea;
class CTrueTypeTabMaxp;
class CTrueTypeTabName;
class CTrueTypeTabOS2;
class CTrueTypeTabPCLT;
class CTrueTypeTabPost;

// The readers of single tables. Each takes the bytes of its table, no more, and says whether they hold what the table
// promises. None allocates more than the bytes of its table account for.
namespace zeb {

class TrueTypeGlyphNames;

bool ReadHead(ByteReader in, CTrueTypeTabHead& table);
bool ReadHhea(ByteReader in, CTrueTypeTabHhea& table);
bool ReadMaxp(ByteReader in, CTrueTypeTabMaxp& table);
bool ReadOS2(ByteReader in, CTrueTypeTabOS2& table);
bool ReadPCLT(ByteReader in, CTrueTypeTabPCLT& table);

/// @param systemLanguage Windows language number of the second list of names
bool ReadName(ByteReader in, std::uint16_t systemLanguage, CTrueTypeTabName& table);

bool ReadPost(ByteReader in, CTrueTypeTabPost& table, TrueTypeGlyphNames& names);

}  // namespace zeb
