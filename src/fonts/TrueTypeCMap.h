#pragma once

#include "platform/Export.h"

namespace zeb {
class TrueTypeCMapReader;
}

/// A character map of the format 0 or 6, as Macintosh fonts have it: glyphs indexed by code.
///
/// The object owns its array; copies share it, and only one of them may be destroyed.
class ZEB_EXPORT CTrueTypeCMap0_6 {
 public:
  CTrueTypeCMap0_6();
  CTrueTypeCMap0_6(const CTrueTypeCMap0_6& other);
  virtual ~CTrueTypeCMap0_6();
  CTrueTypeCMap0_6& operator=(const CTrueTypeCMap0_6& other);

  /// 0 or 6.
  unsigned short GetFormat() const;
  unsigned short GetLength() const;
  unsigned short GetVersion() const;
  /// 0 in format 0.
  unsigned short GetFirstCode() const;
  /// 256 in format 0.
  unsigned short GetEntryCount() const;
  /// The glyph of a code; 0 outside of the map.
  unsigned short GetGlyph(unsigned short code) const;

 private:
  friend class zeb::TrueTypeCMapReader;

  unsigned short m_usFormat = 0;
  unsigned short m_usLength = 0;
  unsigned short m_usVersion = 0;
  unsigned short m_usFirstCode = 0;
  unsigned short m_usEntryCount = 0;
  unsigned short* m_pGlyphs = nullptr;  // owned, shared by copies; first code + entry count of them
};

/// A character map of the format 4, as Windows fonts have it: segments of codes.
///
/// The object owns its arrays; copies share them, and only one of them may be destroyed.
class ZEB_EXPORT CTrueTypeCMap4 {
 public:
  CTrueTypeCMap4();
  CTrueTypeCMap4(const CTrueTypeCMap4& other);
  virtual ~CTrueTypeCMap4();
  CTrueTypeCMap4& operator=(const CTrueTypeCMap4& other);

  /// 0 for a symbol font, 1 for Unicode.
  unsigned short GetEncodingID() const;
  /// 4; another number if the subtable has another format, which is not tested.
  unsigned short GetFormat() const;
  unsigned short GetLength() const;
  unsigned short GetVersion() const;
  unsigned short GetSegCountX2() const;
  unsigned short GetSearchRange() const;
  unsigned short GetEntrySelector() const;
  unsigned short GetRangeShift() const;

  /// Half of segCountX2; a map that was read has at least one segment.
  int GetSegCount() const { return m_usSegCountX2 / 2; }
  /// @param segment 0 up to the count of segments less one, not checked; here and below
  unsigned short GetEndCodeAt(int segment) const { return m_pEndCode[segment]; }
  unsigned short GetStartCodeAt(int segment) const { return m_pStartCode[segment]; }
  unsigned short GetIdDeltaAt(int segment) const;
  unsigned short GetIdRangeOffsetAt(int segment) const;
  int GetGlyphIdCount() const;
  /// @param index 0 up to the count of glyph ids less one, not checked
  unsigned short GetGlyphIdAt(int index) const;

  /// The glyph of a code, 0 if there is none. The first segment whose end is not below the code decides, segment 0 if
  /// there is none, also where segments are not in ascending order.
  unsigned short GetGlyph(unsigned short code) const;
  /// The first segment, in order, whose end is not below the code; 0 if there is none.
  int FindSegment(unsigned short code) const;
  /// The glyph that a segment gives to a code; 0 if it has none.
  unsigned short GetGlyphOfSegment(int segment, unsigned short code) const {
    const int start = m_pStartCode[segment];
    if (code < start) return 0;
    const int rangeOffset = m_pIdRangeOffset[segment];
    if (rangeOffset == 0) return static_cast<unsigned short>(code + m_pIdDelta[segment]);
    const int index = rangeOffset / 2 + (code - start) + (segment - GetSegCount());
    if (index < 0 || index >= m_iGlyphIdCount) return 0;
    const unsigned short glyph = m_pGlyphIdArray[index];
    return glyph == 0 ? glyph : static_cast<unsigned short>(glyph + m_pIdDelta[segment]);
  }

 private:
  friend class zeb::TrueTypeCMapReader;

  unsigned short m_usEncodingID = 0;
  unsigned short m_usFormat = 0;
  unsigned short m_usLength = 0;
  unsigned short m_usVersion = 0;
  unsigned short m_usSegCountX2 = 0;
  unsigned short m_usSearchRange = 0;
  unsigned short m_usEntrySelector = 0;
  unsigned short m_usRangeShift = 0;
  unsigned short* m_pEndCode = nullptr;        // owned, shared by copies; so are the arrays below
  unsigned short* m_pStartCode = nullptr;      //
  unsigned short* m_pIdDelta = nullptr;        //
  unsigned short* m_pIdRangeOffset = nullptr;  //
  unsigned short* m_pGlyphIdArray = nullptr;   //
  unsigned short* m_pGreatestEnd = nullptr;    // of each segment and all before it
  int m_iGlyphIdCount = 0;
};

/// The table `cmap`: the subtables that are of use here.
///
/// The object owns the maps; copies share them, and only one of them may be destroyed.
class ZEB_EXPORT CTrueTypeTabCMap {
 public:
  CTrueTypeTabCMap();
  CTrueTypeTabCMap(const CTrueTypeTabCMap& other);
  virtual ~CTrueTypeTabCMap();
  CTrueTypeTabCMap& operator=(const CTrueTypeTabCMap& other);

  unsigned short GetVersion() const;
  /// Subtables that the table names, those that are passed over included.
  unsigned short GetSubtableCount() const;
  /// The Windows character map; null if there is none.
  CTrueTypeCMap4* GetCMap4() const;
  /// The Macintosh Roman character map; null if there is none.
  CTrueTypeCMap0_6* GetCMap0_6() const;

 private:
  friend class zeb::TrueTypeCMapReader;

  unsigned short m_usVersion = 0;
  unsigned short m_usSubtableCount = 0;
  CTrueTypeCMap4* m_pCMap4 = nullptr;      // owned, shared by copies
  CTrueTypeCMap0_6* m_pCMap0_6 = nullptr;  // owned, shared by copies
};
