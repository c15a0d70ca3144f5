#include "fonts/TrueTypeGlyphs.h"

#include <algorithm>
#include <cstddef>

namespace zeb {

namespace {

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

  void Store(CTrueTypeHMtxEntry& record) const {
    record.SetNumberOfContours(numberOfContours);
    record.SetXMin(xMin);
    record.SetYMin(yMin);
    record.SetXMax(xMax);
    record.SetYMax(yMax);
  }
};

/// What the file has of a header; the rest is zero.
GlyphHeader ReadHeader(ByteReader in, std::size_t offset) {
  GlyphHeader header;
  if (in.Seek(offset)) static_cast<void>(header.Read(in));
  return header;
}

}  // namespace

TrueTypeGlyphs::TrueTypeGlyphs(int count) : m_iCount(std::max(count, 0)) {}

TrueTypeGlyphs::~TrueTypeGlyphs() = default;

int TrueTypeGlyphs::CountIn(const ByteReader& hmtx, int metricsCount, int glyphCount) {
  const int bearings = std::max(glyphCount - metricsCount, 0);
  const auto needed = kMetricLength * static_cast<std::size_t>(metricsCount) +
                      kBearingLength * static_cast<std::size_t>(bearings);
  if (metricsCount == 0 || hmtx.Size() < needed) return 0;
  return std::max(metricsCount, glyphCount);
}

void TrueTypeGlyphs::SetMetrics(const ByteReader& in, int metricsCount) {
  m_HMtx = in;
  m_iMetricsCount = metricsCount;
}

bool TrueTypeGlyphs::SetLocations(const ByteReader& in, bool longOffsets, int glyphCount,
                                  std::uint32_t glyfLength) {
  m_Loca = in;
  m_bLongOffsets = longOffsets;
  m_iLocatedCount = glyphCount;
  const std::size_t needed =
      (longOffsets ? std::size_t{4} : std::size_t{2}) * (static_cast<std::size_t>(glyphCount) + 1);
  if (in.Size() < needed) return false;
  for (int glyph = 0; glyph <= glyphCount; ++glyph) {
    const std::uint32_t offset = ReadLocation(glyph);
    if (offset < m_uEndOffset || offset > glyfLength) return false;
    m_uEndOffset = offset;
  }
  return true;
}

std::uint32_t TrueTypeGlyphs::ReadLocation(int index) const {
  ByteReader in = m_Loca;
  const auto place = static_cast<std::size_t>(index);
  if (!m_bLongOffsets) return 2U * NumberAt(in, 2 * place);
  std::uint32_t offset = 0;
  return in.Seek(4 * place) && in.ReadU32BE(offset) ? offset : 0U;
}

std::uint32_t TrueTypeGlyphs::OffsetAt(int glyph) const {
  const CTrueTypeHMtxEntry* const record =
      m_rgpRecords.empty() ? nullptr : m_rgpRecords[static_cast<std::size_t>(glyph)];
  if (record != nullptr) return record->GetGlyphOffset();
  // Metrics without a glyph: an empty one at the end.
  return glyph < m_iLocatedCount ? ReadLocation(glyph) : m_uEndOffset;
}

CTrueTypeHMtxEntry& TrueTypeGlyphs::RecordAt(int glyph) {
  if (m_rgpRecords.empty()) m_rgpRecords.resize(static_cast<std::size_t>(m_iCount));
  CTrueTypeHMtxEntry*& record = m_rgpRecords[static_cast<std::size_t>(glyph)];
  if (record == nullptr) record = &MakeRecord(glyph);
  return *record;
}

CTrueTypeHMtxEntry& TrueTypeGlyphs::MakeRecord(int glyph) {
  CTrueTypeHMtxEntry& record = m_Records.emplace_back();
  record.m_pGlyphs = this;
  record.m_pGlyphName = nullptr;
  record.m_iGlyph = glyph;
  const int bearing = glyph - m_iMetricsCount;
  const std::size_t place = bearing < 0 ? kMetricLength * static_cast<std::size_t>(glyph) + 2
                                        : kMetricLength * static_cast<std::size_t>(m_iMetricsCount) +
                                              kBearingLength * static_cast<std::size_t>(bearing);
  record.SetAdvanceWidth(AdvanceWidthOf(glyph));
  record.SetLeftSideBearing(static_cast<short>(NumberAt(m_HMtx, place)));
  record.SetNameIndex(m_Names.IndexOf(glyph));
  record.SetGlyphOffset(OffsetAt(glyph));
  // Fixed behaviour: an empty glyph has the header of glyph 0, but the last one is read whether it is empty or not.
  const int described = IsEmpty(glyph) ? 0 : glyph;
  if (!IsEmpty(described)) ReadHeader(m_Glyf, OffsetAt(described)).Store(record);
  return record;
}

bool TrueTypeGlyphs::IsEmpty(int glyph) const {
  return glyph < m_iCount - 1 && OffsetAt(glyph) == OffsetAt(glyph + 1);
}

void TrueTypeGlyphs::MakeAll() {
  m_Names.MakeText();
  for (int glyph = 0; glyph < m_iCount; ++glyph) RecordAt(glyph).GetGlyphName();
  // Nobody reads them any more.
  m_HMtx = m_Loca = m_Glyf = ByteReader();
  m_Names.ForgetBytes();
}

std::vector<unsigned short> TrueTypeGlyphs::CodesOf(int glyph) {
  if (m_rguFirstCode.empty()) SortCodes();
  const auto number = static_cast<std::size_t>(glyph);
  const auto at = [&](std::size_t index) { return m_rgusSortedCodes.begin() + m_rguFirstCode[index]; };
  return {at(number), at(number + 1)};
}

void TrueTypeGlyphs::SortCodes() {
  // Counts the codes of each glyph, and puts each code where those of smaller glyphs end.
  std::vector<std::uint32_t> next(static_cast<std::size_t>(m_iCount) + 1);
  for (const CodeOfGlyph& noted : m_Codes) ++next[noted.glyph + std::size_t{1}];
  for (std::size_t glyph = 1; glyph < next.size(); ++glyph) next[glyph] += next[glyph - 1];
  m_rguFirstCode = next;
  m_rgusSortedCodes.resize(m_Codes.size());
  for (const CodeOfGlyph& noted : m_Codes) m_rgusSortedCodes[next[noted.glyph]++] = noted.code;
}

}  // namespace zeb
