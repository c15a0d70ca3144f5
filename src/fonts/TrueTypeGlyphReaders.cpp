#include "fonts/TrueTypeHMtx.h"
#include "fonts/TrueTypeTableReaders.h"
#include "fonts/TrueTypeTables.h"

#include <algorithm>
#include <cstddef>

namespace zeb {

namespace {

bool ReadLocation(ByteReader& in, bool longOffsets, std::uint32_t& offset) {
  if (longOffsets) return in.ReadU32BE(offset);
  std::uint16_t half = 0;
  if (!in.ReadU16BE(half)) return false;
  offset = 2U * half;
  return true;
}

struct GlyphHeader {
  std::int16_t numberOfContours = 0;
  std::int16_t xMin = 0;
  std::int16_t yMin = 0;
  std::int16_t xMax = 0;
  std::int16_t yMax = 0;

  bool Read(ByteReader& in) {
    return in.ReadS16BE(numberOfContours) && in.ReadS16BE(xMin) && in.ReadS16BE(yMin) && in.ReadS16BE(xMax) &&
           in.ReadS16BE(yMax);
  }
};

/// What the file has of a header; the rest is zero.
GlyphHeader ReadHeader(ByteReader in, std::size_t offset) {
  GlyphHeader header;
  if (in.Seek(offset) && !header.Read(in)) return header;
  return header;
}

void Store(const GlyphHeader& header, CTrueTypeHMtxEntry& entry) {
  entry.SetNumberOfContours(header.numberOfContours);
  entry.SetXMin(header.xMin);
  entry.SetYMin(header.yMin);
  entry.SetXMax(header.xMax);
  entry.SetYMax(header.yMax);
}

}  // namespace

int CountGlyphs(ByteReader hmtx, int metricsCount, int glyphCount) {
  const int bearings = std::max(glyphCount - metricsCount, 0);
  const auto needed = static_cast<std::size_t>(4 * metricsCount + 2 * bearings);
  if (metricsCount == 0 || hmtx.Size() < needed) return 0;
  return std::max(metricsCount, glyphCount);
}

bool ReadHMtx(ByteReader in, int metricsCount, CTrueTypeTabHMtx& glyphs) {
  std::uint16_t width = 0;
  for (int glyph = 0; glyph < glyphs.GetEntryCount(); ++glyph) {
    std::int16_t bearing = 0;
    if (glyph < metricsCount && !in.ReadU16BE(width)) return false;
    if (!in.ReadS16BE(bearing)) return false;
    glyphs.GetEntryAt(glyph)->SetAdvanceWidth(width);
    glyphs.GetEntryAt(glyph)->SetLeftSideBearing(bearing);
  }
  return true;
}

bool ReadLoca(ByteReader in, bool longOffsets, int glyphCount, std::uint32_t glyfLength,
              CTrueTypeTabHMtx& glyphs, CTrueTypeTabLoca& table) {
  std::uint32_t before = 0;
  for (int glyph = 0; glyph <= glyphCount; ++glyph) {
    std::uint32_t offset = 0;
    if (!ReadLocation(in, longOffsets, offset) || offset < before || offset > glyfLength) return false;
    if (glyph < glyphCount) glyphs.GetEntryAt(glyph)->SetGlyphOffset(offset);
    before = offset;
  }
  table.endOffset = before;
  // Metrics without a glyph: an empty one at the end.
  for (int glyph = glyphCount; glyph < glyphs.GetEntryCount(); ++glyph) {
    glyphs.GetEntryAt(glyph)->SetGlyphOffset(before);
  }
  return true;
}

void ReadGlyphHeaders(ByteReader glyf, CTrueTypeTabHMtx& glyphs) {
  const int last = glyphs.GetEntryCount() - 1;
  GlyphHeader first;
  for (int glyph = 0; glyph <= last; ++glyph) {
    CTrueTypeHMtxEntry& entry = *glyphs.GetEntryAt(glyph);
    // Fixed behaviour: an empty glyph has the header of glyph 0, but the last one is read whether it is empty or not.
    const bool empty =
        glyph < last && entry.GetGlyphOffset() == glyphs.GetEntryAt(glyph + 1)->GetGlyphOffset();
    const GlyphHeader header = empty ? first : ReadHeader(glyf, entry.GetGlyphOffset());
    if (glyph == 0) first = header;
    Store(header, entry);
  }
}

}  // namespace zeb
