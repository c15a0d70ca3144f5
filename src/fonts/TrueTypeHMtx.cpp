#include "fonts/TrueTypeHMtx.h"

#include "fonts/TrueTypeGlyphs.h"

const wchar_t* CTrueTypeHMtxEntry::GetGlyphName() const {
  if (m_pGlyphName == nullptr) m_pGlyphName = m_pGlyphs->NameOf(m_iGlyph);
  return m_pGlyphName;
}

std::vector<unsigned short> CTrueTypeHMtxEntry::GetCodes() const {
  std::vector<unsigned short> codes;
  if (m_pGlyphs != nullptr) codes = m_pGlyphs->CodesOf(m_iGlyph);
  codes.insert(codes.end(), m_rgusAddedCodes.begin(), m_rgusAddedCodes.end());
  return codes;
}

void CTrueTypeHMtxEntry::AddCode(unsigned short code) { m_rgusAddedCodes.push_back(code); }

CTrueTypeTabHMtx::CTrueTypeTabHMtx(int count) : m_pGlyphs(new zeb::TrueTypeGlyphs(count)) {}

CTrueTypeTabHMtx::CTrueTypeTabHMtx(const CTrueTypeTabHMtx& other) = default;

CTrueTypeTabHMtx::~CTrueTypeTabHMtx() { delete m_pGlyphs; }

CTrueTypeTabHMtx& CTrueTypeTabHMtx::operator=(const CTrueTypeTabHMtx& other) = default;

CTrueTypeHMtxEntry* CTrueTypeTabHMtx::GetEntryAt(int glyph) const { return &m_pGlyphs->RecordAt(glyph); }

int CTrueTypeTabHMtx::GetEntryCount() const { return m_pGlyphs->Count(); }

unsigned int CTrueTypeTabHMtx::GetGlyphOffsetAt(int glyph) const { return m_pGlyphs->OffsetAt(glyph); }
