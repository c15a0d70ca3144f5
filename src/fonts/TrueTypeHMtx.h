#pragma once

#include "platform/Export.h"

#include <vector>

/// What is known of one glyph of a TrueType font, from all of its tables.
class ZEB_EXPORT CTrueTypeHMtxEntry {
 public:
  /// In font units.
  unsigned short GetAdvanceWidth() const { return m_usAdvanceWidth; }
  void SetAdvanceWidth(unsigned short width) { m_usAdvanceWidth = width; }
  /// In font units.
  short GetLeftSideBearing() const { return m_sLeftSideBearing; }
  void SetLeftSideBearing(short bearing) { m_sLeftSideBearing = bearing; }
  /// From `post`; empty if the table has no names.
  const wchar_t* GetGlyphName() const { return m_pGlyphName; }
  /// Sets the name without copying it: it has to live as long as the entry.
  void SetGlyphName(const wchar_t* name) { m_pGlyphName = name; }
  /// The index of the name in `post` format 2.
  unsigned short GetNameIndex() const { return m_usNameIndex; }
  void SetNameIndex(unsigned short index) { m_usNameIndex = index; }
  /// The character codes that map to the glyph, in the order in which they were found.
  std::vector<unsigned short> GetCodes() const;
  void AddCode(unsigned short code);
  /// Negative for a composite glyph.
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
  unsigned short m_usAdvanceWidth = 0;
  short m_sLeftSideBearing = 0;
  bool m_bHasCode = false;
  unsigned short m_usFirstCode = 0;  // of those that map to the glyph
  unsigned short m_usNameIndex = 0;
  const wchar_t* m_pGlyphName = L"";            // observer
  std::vector<unsigned short> m_rgusMoreCodes;  // behind the first one, which most glyphs have alone
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
  CTrueTypeHMtxEntry* GetEntryAt(int glyph) const { return m_pEntries + glyph; }
  int GetEntryCount() const { return m_iCount; }

  /// Keeps the text of names that entries point to. Takes ownership of an array; the earlier one is freed.
  void SetGlyphNames(wchar_t* names);

 private:
  CTrueTypeHMtxEntry* m_pEntries;    // owned, shared by copies; one block
  wchar_t* m_pGlyphNames = nullptr;  // owned, shared by copies
  int m_iCount;
};
