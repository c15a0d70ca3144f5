#include "fonts/MacGlyphNames.h"
#include "fonts/TrueTypeGlyphNames.h"
#include "fonts/TrueTypeTableReaders.h"
#include "fonts/TrueTypeTables.h"

namespace zeb {

namespace {

constexpr std::uint32_t kStandardNames = 0x10000;
constexpr std::uint32_t kOwnNames = 0x20000;

}  // namespace

bool ReadPost(ByteReader in, CTrueTypeTabPost& table, TrueTypeGlyphNames& names) {
  std::int32_t angle = 0;
  if (!in.ReadU32BE(table.version) || !in.ReadS32BE(angle) || !in.ReadS16BE(table.underlinePosition) ||
      !in.ReadS16BE(table.underlineThickness) || !in.ReadU32BE(table.isFixedPitch) ||
      !in.ReadU32BE(table.minMemType42) || !in.ReadU32BE(table.maxMemType42) ||
      !in.ReadU32BE(table.minMemType1) || !in.ReadU32BE(table.maxMemType1)) {
    return false;
  }
  table.italicAngle = angle / 65536.0;
  if (table.version != kStandardNames && table.version != kOwnNames) return true;
  table.standardNames.assign(kMacGlyphNames.begin(), kMacGlyphNames.end());
  if (table.version == kOwnNames) return names.SetOwn(in);
  names.SetStandard();
  return true;
}

}  // namespace zeb
