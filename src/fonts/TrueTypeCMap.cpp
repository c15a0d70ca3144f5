#include "fonts/TrueTypeCMap.h"

#include <algorithm>

CTrueTypeCMap0_6::CTrueTypeCMap0_6() = default;

CTrueTypeCMap0_6::CTrueTypeCMap0_6(const CTrueTypeCMap0_6& other) = default;

CTrueTypeCMap0_6::~CTrueTypeCMap0_6() { delete[] m_pGlyphs; }

CTrueTypeCMap0_6& CTrueTypeCMap0_6::operator=(const CTrueTypeCMap0_6& other) = default;

unsigned short CTrueTypeCMap0_6::GetFormat() const { return m_usFormat; }
unsigned short CTrueTypeCMap0_6::GetLength() const { return m_usLength; }
unsigned short CTrueTypeCMap0_6::GetVersion() const { return m_usVersion; }
unsigned short CTrueTypeCMap0_6::GetFirstCode() const { return m_usFirstCode; }
unsigned short CTrueTypeCMap0_6::GetEntryCount() const { return m_usEntryCount; }

unsigned short CTrueTypeCMap0_6::GetGlyph(unsigned short code) const {
  return code < m_usFirstCode + m_usEntryCount ? m_pGlyphs[code] : static_cast<unsigned short>(0);
}

CTrueTypeCMap4::CTrueTypeCMap4() = default;

CTrueTypeCMap4::CTrueTypeCMap4(const CTrueTypeCMap4& other) = default;

CTrueTypeCMap4::~CTrueTypeCMap4() {
  delete[] m_pEndCode;
  delete[] m_pStartCode;
  delete[] m_pIdDelta;
  delete[] m_pIdRangeOffset;
  delete[] m_pGlyphIdArray;
  delete[] m_pGreatestEnd;
}

CTrueTypeCMap4& CTrueTypeCMap4::operator=(const CTrueTypeCMap4& other) = default;

unsigned short CTrueTypeCMap4::GetEncodingID() const { return m_usEncodingID; }
unsigned short CTrueTypeCMap4::GetFormat() const { return m_usFormat; }
unsigned short CTrueTypeCMap4::GetLength() const { return m_usLength; }
unsigned short CTrueTypeCMap4::GetVersion() const { return m_usVersion; }
unsigned short CTrueTypeCMap4::GetSegCountX2() const { return m_usSegCountX2; }
unsigned short CTrueTypeCMap4::GetSearchRange() const { return m_usSearchRange; }
unsigned short CTrueTypeCMap4::GetEntrySelector() const { return m_usEntrySelector; }
unsigned short CTrueTypeCMap4::GetRangeShift() const { return m_usRangeShift; }

unsigned short CTrueTypeCMap4::GetIdDeltaAt(int segment) const { return m_pIdDelta[segment]; }
unsigned short CTrueTypeCMap4::GetIdRangeOffsetAt(int segment) const { return m_pIdRangeOffset[segment]; }
int CTrueTypeCMap4::GetGlyphIdCount() const { return m_iGlyphIdCount; }
unsigned short CTrueTypeCMap4::GetGlyphIdAt(int index) const { return m_pGlyphIdArray[index]; }

unsigned short CTrueTypeCMap4::GetGlyph(unsigned short code) const {
  return GetSegCount() > 0 ? GetGlyphOfSegment(FindSegment(code), code) : static_cast<unsigned short>(0);
}

int CTrueTypeCMap4::FindSegment(unsigned short code) const {
  // The first segment that ends at the code or behind it is also the first one at which the greatest end so far does,
  // and the greatest ends ascend where the ends themselves need not.
  const unsigned short* const last = m_pGreatestEnd + GetSegCount();
  const unsigned short* const found = std::lower_bound<const unsigned short*>(m_pGreatestEnd, last, code);
  // Fixed behaviour: a code behind all segments belongs to segment 0.
  return found != last ? static_cast<int>(found - m_pGreatestEnd) : 0;
}

CTrueTypeTabCMap::CTrueTypeTabCMap() = default;

CTrueTypeTabCMap::CTrueTypeTabCMap(const CTrueTypeTabCMap& other) = default;

CTrueTypeTabCMap::~CTrueTypeTabCMap() {
  delete m_pCMap4;
  delete m_pCMap0_6;
}

CTrueTypeTabCMap& CTrueTypeTabCMap::operator=(const CTrueTypeTabCMap& other) = default;

unsigned short CTrueTypeTabCMap::GetVersion() const { return m_usVersion; }
unsigned short CTrueTypeTabCMap::GetSubtableCount() const { return m_usSubtableCount; }
CTrueTypeCMap4* CTrueTypeTabCMap::GetCMap4() const { return m_pCMap4; }
CTrueTypeCMap0_6* CTrueTypeTabCMap::GetCMap0_6() const { return m_pCMap0_6; }
