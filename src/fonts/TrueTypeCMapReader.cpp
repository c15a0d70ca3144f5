#include "fonts/TrueTypeCMapReader.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>

namespace zeb {

namespace {

constexpr std::uint16_t kMacintosh = 1;
constexpr std::uint16_t kWindows = 3;
constexpr std::uint16_t kUnicode = 1;

struct CMapRecord {
  std::uint16_t platform = 0;
  std::uint16_t encoding = 0;
  std::uint32_t offset = 0;

  bool Read(ByteReader& in) {
    return in.ReadU16BE(platform) && in.ReadU16BE(encoding) && in.ReadU32BE(offset);
  }
};

/// The subtable from its offset to the end of the table.
bool SubtableAt(const ByteReader& table, std::uint32_t offset, ByteReader& subtable) {
  return offset <= table.Size() && table.Part(offset, table.Size() - offset, subtable);
}

unsigned short* ReadNumbers(ByteReader& in, std::size_t count) {
  std::span<const std::byte> bytes;
  if (!in.ReadSpan(2 * count, bytes)) return nullptr;
  auto* const numbers = new unsigned short[count];
  ByteReader part(bytes);
  for (std::size_t i = 0; i < count && part.ReadU16BE(numbers[i]);) ++i;
  return numbers;
}

/// The first length bytes of a subtable.
bool CutToLength(ByteReader& subtable, std::size_t length) {
  const ByteReader whole = subtable;
  return whole.Part(0, length, subtable);
}

}  // namespace

bool TrueTypeCMapReader::Read(ByteReader table, CTrueTypeTabCMap& result) {
  ByteReader in = table;
  if (!in.ReadU16BE(result.m_usVersion) || !in.ReadU16BE(result.m_usSubtableCount)) return false;
  std::optional<CMapRecord> windows;
  std::optional<CMapRecord> macintosh;
  for (int index = 0; index < result.m_usSubtableCount; ++index) {
    CMapRecord record;
    if (!record.Read(in)) return false;
    if (record.platform == kWindows && record.encoding <= kUnicode) windows = record;
    if (record.platform != kMacintosh || record.encoding != 0) continue;
    ByteReader subtable;
    std::uint16_t format = 0;
    if (!SubtableAt(table, record.offset, subtable) || !subtable.ReadU16BE(format)) return false;
    if (format == 0 || format == 6) macintosh = record;
  }
  ByteReader subtable;
  if (windows) {
    result.m_pCMap4 = new CTrueTypeCMap4();
    // Fixed behaviour: the format is not looked at; a map of another one is read as if it were of format 4.
    if (!SubtableAt(table, windows->offset, subtable) ||
        !ReadCMap4(subtable, windows->encoding, *result.m_pCMap4)) {
      return false;
    }
  }
  if (!macintosh) return true;
  result.m_pCMap0_6 = new CTrueTypeCMap0_6();
  std::uint16_t format = 0;
  if (!SubtableAt(table, macintosh->offset, subtable) || !ByteReader(subtable).ReadU16BE(format))
    return false;
  return format == 0 ? ReadFormat0(subtable, *result.m_pCMap0_6) : ReadFormat6(subtable, *result.m_pCMap0_6);
}

bool TrueTypeCMapReader::ReadCMap4(ByteReader in, std::uint16_t encodingID, CTrueTypeCMap4& map) {
  map.m_usEncodingID = encodingID;
  return in.ReadU16BE(map.m_usFormat) && in.ReadU16BE(map.m_usLength) && in.ReadU16BE(map.m_usVersion) &&
         in.ReadU16BE(map.m_usSegCountX2) && in.ReadU16BE(map.m_usSearchRange) &&
         in.ReadU16BE(map.m_usEntrySelector) && in.ReadU16BE(map.m_usRangeShift) &&
         CutToLength(in, map.m_usLength) && in.Seek(14) && ReadSegments(in, map);
}

bool TrueTypeCMapReader::ReadSegments(ByteReader& in, CTrueTypeCMap4& map) {
  constexpr int kHeaderAndPadding = 16;
  const int count = map.GetSegCount();
  const int glyphBytes = map.m_usLength - kHeaderAndPadding - 8 * count;
  if (count == 0 || glyphBytes < 0) return false;
  const auto segments = static_cast<std::size_t>(count);
  map.m_pEndCode = ReadNumbers(in, segments);
  if (!in.Skip(2)) return false;
  map.m_pStartCode = ReadNumbers(in, segments);
  map.m_pIdDelta = ReadNumbers(in, segments);
  map.m_pIdRangeOffset = ReadNumbers(in, segments);
  map.m_iGlyphIdCount = glyphBytes / 2;
  map.m_pGlyphIdArray = ReadNumbers(in, static_cast<std::size_t>(map.m_iGlyphIdCount));
  map.m_pGreatestEnd = new unsigned short[segments];
  unsigned short greatest = 0;
  for (std::size_t i = 0; i < segments; ++i) {
    greatest = std::max(greatest, map.m_pEndCode[i]);
    map.m_pGreatestEnd[i] = greatest;
  }
  return true;
}

bool TrueTypeCMapReader::ReadFormat0(ByteReader in, CTrueTypeCMap0_6& map) {
  constexpr std::uint16_t kCodes = 256;
  std::span<const std::byte> bytes;
  if (!in.ReadU16BE(map.m_usFormat) || !in.ReadU16BE(map.m_usLength) || !in.ReadU16BE(map.m_usVersion) ||
      !in.ReadSpan(kCodes, bytes)) {
    return false;
  }
  map.m_usEntryCount = kCodes;
  map.m_pGlyphs = new unsigned short[kCodes];
  std::transform(bytes.begin(), bytes.end(), map.m_pGlyphs,
                 [](std::byte byte) { return std::to_integer<unsigned short>(byte); });
  return true;
}

bool TrueTypeCMapReader::ReadFormat6(ByteReader in, CTrueTypeCMap0_6& map) {
  std::span<const std::byte> bytes;
  if (!in.ReadU16BE(map.m_usFormat) || !in.ReadU16BE(map.m_usLength) || !in.ReadU16BE(map.m_usVersion) ||
      !in.ReadU16BE(map.m_usFirstCode) || !in.ReadU16BE(map.m_usEntryCount) ||
      !in.ReadSpan(std::size_t{2} * map.m_usEntryCount, bytes)) {
    return false;
  }
  const std::size_t size = std::size_t{map.m_usFirstCode} + map.m_usEntryCount;
  map.m_pGlyphs = new unsigned short[size]();
  ByteReader glyphs(bytes);
  for (std::size_t code = map.m_usFirstCode; code < size && glyphs.ReadU16BE(map.m_pGlyphs[code]);) ++code;
  return true;
}

}  // namespace zeb
