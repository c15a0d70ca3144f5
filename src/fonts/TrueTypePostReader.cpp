#include "fonts/FontMetrics.h"
#include "fonts/MacGlyphNames.h"
#include "fonts/TrueTypeHMtx.h"
#include "fonts/TrueTypeTableReaders.h"
#include "fonts/TrueTypeTables.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace zeb {

namespace {

constexpr std::uint32_t kStandardNames = 0x10000;
constexpr std::uint32_t kOwnNames = 0x20000;

void NameGlyphsInOrder(CTrueTypeTabHMtx& glyphs) {
  const int count = std::min(glyphs.GetEntryCount(), static_cast<int>(kMacGlyphNames.size()));
  for (int glyph = 0; glyph < count; ++glyph) {
    glyphs.GetEntryAt(glyph)->SetGlyphName(kMacGlyphNames[static_cast<std::size_t>(glyph)]);
  }
}

/// The names of a font that are no standard ones, one behind the other with terminators.
struct OwnNames {
  std::unique_ptr<wchar_t[]> text;
  std::vector<const wchar_t*> names;
};

/// Reads one string for each index that is not of a standard name. Glyphs may share a name, so there can be fewer.
bool ReadOwnNames(ByteReader& in, std::size_t count, OwnNames& result) {
  // Each string takes its length byte and its bytes, and becomes its characters and a terminator.
  result.text.reset(new wchar_t[in.Left() + 1]);
  result.names.reserve(std::min(count, in.Left()));
  wchar_t* end = result.text.get();
  std::array<char, 256> ansi = {};
  while (result.names.size() < count && !in.AtEnd()) {
    std::uint8_t length = 0;
    std::span<const std::byte> bytes;
    if (!in.ReadU8(length) || !in.ReadSpan(length, bytes)) return false;
    char* const last = std::transform(bytes.begin(), bytes.end(), ansi.begin(), [](std::byte byte) {
      return static_cast<char>(std::to_integer<unsigned char>(byte));
    });
    *last = '\0';
    CFontMetrics::AnsiToUnicode(ansi.data(), end);
    result.names.push_back(end);
    end += length + 1;
  }
  return true;
}

void NameGlyph(CTrueTypeHMtxEntry& entry, const std::vector<const wchar_t*>& ownNames) {
  const std::size_t index = entry.GetNameIndex();
  if (index < kMacGlyphNames.size()) {
    entry.SetGlyphName(kMacGlyphNames[index]);
  } else if (index - kMacGlyphNames.size() < ownNames.size()) {
    entry.SetGlyphName(ownNames[index - kMacGlyphNames.size()]);
  }
}

bool NameGlyphsByIndex(ByteReader& in, CTrueTypeTabHMtx& glyphs) {
  std::uint16_t count = 0;
  if (!in.ReadU16BE(count) || in.Left() / 2 < count) return false;
  std::size_t ownNameCount = 0;
  for (int glyph = 0; glyph < count; ++glyph) {
    std::uint16_t index = 0;
    if (!in.ReadU16BE(index)) return false;
    if (index >= kMacGlyphNames.size()) ++ownNameCount;
    if (glyph < glyphs.GetEntryCount()) glyphs.GetEntryAt(glyph)->SetNameIndex(index);
  }
  OwnNames own;
  if (!ReadOwnNames(in, ownNameCount, own)) return false;
  for (int glyph = 0; glyph < std::min<int>(count, glyphs.GetEntryCount()); ++glyph) {
    NameGlyph(*glyphs.GetEntryAt(glyph), own.names);
  }
  glyphs.SetGlyphNames(own.text.release());
  return true;
}

}  // namespace

bool ReadPost(ByteReader in, CTrueTypeTabPost& table, CTrueTypeTabHMtx& glyphs) {
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
  if (table.version == kOwnNames) return NameGlyphsByIndex(in, glyphs);
  NameGlyphsInOrder(glyphs);
  return true;
}

}  // namespace zeb
