#pragma once

#include "platform/Export.h"

#include <vector>

namespace zeb {
class TrueTypeGlyphs;
class TrueTypeReader;
}  // namespace zeb

/// What is known of one glyph of a TrueType font, from all of its tables. A record of a font lives as long as its table, and
/// a copy of it may be used as long.
class ZEB_EXPORT CTrueTypeHMtxEntry {
 public:
  /// In font units.
  unsigned short GetAdvanceWidth() const { return m_usAdvanceWidth; }
  void SetAdvanceWidth(unsigned short width) { m_usAdvanceWidth = width; }
  /// In font units.
  short GetLeftSideBearing() const { return m_sLeftSideBearing; }
  void SetLeftSideBearing(short bearing) { m_sLeftSideBearing = bearing; }
  /// From `post`; empty if the table has no names.
  const wchar_t* GetGlyphName() const;
  /// Sets the name without copying it: it has to live as long as the entry.
  /// @param name null counts as empty
  void SetGlyphName(const wchar_t* name) { m_pGlyphName = name != nullptr ? name : L""; }
  /// The index of the name in `post` format 2.
  unsigned short GetNameIndex() const { return m_usNameIndex; }
  void SetNameIndex(unsigned short index) { m_usNameIndex = index; }
  /// The character codes that map to the glyph, in the order in which they were found.
  std::vector<unsigned short> GetCodes() const;
  void AddCode(unsigned short code);
  /// Negative for a composite glyph. An empty glyph has this and the box of glyph 0; an empty last one has what the bytes
  /// behind it say.
  short GetNumberOfContours() const { return m_sNumberOfContours; }
  void SetNumberOfContours(short count) { m_sNumberOfContours = count; }
  /// The glyph's bounding box in font units.
  short GetXMin() const { return m_sXMin; }
  void SetXMin(short value) { m_sXMin = value; }
  short GetYMin() const { return m_sYMin; }
  void SetYMin(short value) { m_sYMin = value; }
  short GetXMax() const { return m_sXMax; }
  void SetXMax(short value) { m_sXMax = value; }
  short GetYMax() const { return m_sYMax; }
  void SetYMax(short value) { m_sYMax = value; }
  /// Where the glyph begins in `glyf`, in bytes.
  unsigned int GetGlyphOffset() const { return m_uGlyphOffset; }
  void SetGlyphOffset(unsigned int offset) { m_uGlyphOffset = offset; }

 private:
  friend class zeb::TrueTypeGlyphs;

  zeb::TrueTypeGlyphs* m_pGlyphs = nullptr;  // observer; null for a record of no font
  int m_iGlyph = 0;
  unsigned short m_usAdvanceWidth = 0;
  short m_sLeftSideBearing = 0;
  unsigned short m_usNameIndex = 0;
  mutable const wchar_t* m_pGlyphName = L"";     // observer; null as long as the font was not asked
  std::vector<unsigned short> m_rgusAddedCodes;  // behind those of the font
  short m_sNumberOfContours = 0;
  short m_sXMin = 0;
  short m_sYMin = 0;
  short m_sXMax = 0;
  short m_sYMax = 0;
  unsigned int m_uGlyphOffset = 0;
};

/// The table `hmtx`: the record of every glyph, indexed by glyph number. A font with more metrics than glyphs has an
/// empty glyph for each of the metrics that are left over.
///
/// An entry is made when it is first asked for, so asking is for one thread at a time.
///
/// The object owns its entries; copies share them, and only one of them may be destroyed.
class ZEB_EXPORT CTrueTypeTabHMtx {
 public:
  /// @param count of the entries, which start with zeros
  explicit CTrueTypeTabHMtx(int count);
  CTrueTypeTabHMtx(const CTrueTypeTabHMtx& other);
  /// Frees the entries.
  virtual ~CTrueTypeTabHMtx();
  /// As the copy constructor. What this object held is not freed.
  CTrueTypeTabHMtx& operator=(const CTrueTypeTabHMtx& other);

  /// @param glyph 0 up to the count less one, not checked
  CTrueTypeHMtxEntry* GetEntryAt(int glyph) const;
  int GetEntryCount() const;
  /// Where a glyph begins in `glyf`, in bytes, as its entry says.
  unsigned int GetGlyphOffsetAt(int glyph) const;

 private:
  friend class zeb::TrueTypeReader;

  zeb::TrueTypeGlyphs* m_pGlyphs;  // owned, shared by copies
};
