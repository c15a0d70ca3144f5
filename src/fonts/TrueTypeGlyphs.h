#pragma once

#include "fonts/ByteReader.h"
#include "fonts/TrueTypeGlyphNames.h"
#include "fonts/TrueTypeHMtx.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <utility>
#include <vector>

namespace zeb {

/// The glyphs of a TrueType font. Their tables are checked to the end when the font is read; the record of a glyph is
/// made of them when it is first asked for, as a font has tens of thousands and a document uses a few.
///
/// The tables are those of the OpenType specification. Their bytes have to stay until MakeAll was called, or are kept.
class TrueTypeGlyphs {
 public:
  /// @param count of the glyphs; a negative one counts as 0. Without tables all fields of their records are zeros.
  explicit TrueTypeGlyphs(int count);
  ~TrueTypeGlyphs();
  TrueTypeGlyphs(const TrueTypeGlyphs&) = delete;
  TrueTypeGlyphs& operator=(const TrueTypeGlyphs&) = delete;

  int Count() const { return m_iCount; }
  /// The record of a glyph.
  /// @param glyph 0 up to the count less one, not checked; here and below
  CTrueTypeHMtxEntry& RecordAt(int glyph);
  /// The offset in the glyph's record, which is not made for that.
  std::uint32_t OffsetAt(int glyph) const;
  /// What the font says of the glyph's width, in font units.
  std::uint16_t AdvanceWidthOf(int glyph) const {
    // The last width holds for all glyphs behind it.
    const int metric = std::min(glyph, m_iMetricsCount - 1);
    return metric >= 0 ? NumberAt(m_HMtx, kMetricLength * static_cast<std::size_t>(metric))
                       : std::uint16_t{0};
  }
  const wchar_t* NameOf(int glyph) { return m_Names.NameOf(glyph); }
  /// The codes that were noted for the glyph, in ascending order.
  std::vector<unsigned short> CodesOf(int glyph);

  // The tables. The answers are whether the bytes hold what the table promises.

  /// How many glyphs `hmtx` describes, the greater of both counts; 0 if it is too short for them.
  static int CountIn(const ByteReader& hmtx, int metricsCount, int glyphCount);
  /// @param in has what CountIn looked for
  void SetMetrics(const ByteReader& in, int metricsCount);
  /// Offsets have to ascend within `glyf`.
  bool SetLocations(const ByteReader& in, bool longOffsets, int glyphCount, std::uint32_t glyfLength);
  /// @param in all bytes of the file from the table's beginning on: the header of an empty last glyph lies behind the
  ///   table, and reads as zeros where the file ends
  void SetHeaders(const ByteReader& in) { m_Glyf = in; }
  TrueTypeGlyphNames& Names() { return m_Names; }
  /// Where the last glyph ends in `glyf`.
  std::uint32_t EndOffset() const { return m_uEndOffset; }

  /// Notes that a code has a glyph. Codes come in ascending order.
  void AddCode(std::uint16_t code, std::uint16_t glyph) { m_Codes.push_back({code, glyph}); }

  /// The bytes of the tables stay as long as this object.
  void KeepBytes(std::shared_ptr<void> keeper) { m_pKeeper = std::move(keeper); }
  /// Makes all records, so that the bytes of the tables may go.
  void MakeAll();

 private:
  struct CodeOfGlyph {
    std::uint16_t code;
    std::uint16_t glyph;
  };

  static constexpr std::size_t kMetricLength = 4;
  static constexpr std::size_t kBearingLength = 2;

  /// A number in a table; 0 if it is not there.
  static std::uint16_t NumberAt(ByteReader in, std::size_t offset) {
    std::uint16_t number = 0;
    return in.Seek(offset) && in.ReadU16BE(number) ? number : std::uint16_t{0};
  }
  CTrueTypeHMtxEntry& MakeRecord(int glyph);
  std::uint32_t ReadLocation(int index) const;
  bool IsEmpty(int glyph) const;
  void SortCodes();

  int m_iCount;
  std::shared_ptr<void> m_pKeeper;  // of the bytes; null if others keep them
  ByteReader m_HMtx;
  int m_iMetricsCount = 0;
  ByteReader m_Loca;
  bool m_bLongOffsets = false;
  int m_iLocatedCount = 0;
  std::uint32_t m_uEndOffset = 0;
  ByteReader m_Glyf;
  TrueTypeGlyphNames m_Names;
  std::vector<CodeOfGlyph> m_Codes;

  std::deque<CTrueTypeHMtxEntry> m_Records;       // in the order in which they were made
  std::vector<CTrueTypeHMtxEntry*> m_rgpRecords;  // observers, by glyph; empty as long as none was made
  std::vector<unsigned short> m_rgusSortedCodes;  // by their glyphs; empty as long as no codes were asked for
  std::vector<std::uint32_t> m_rguFirstCode;  // of each glyph, an index into the vector above; and the end
};

}  // namespace zeb
