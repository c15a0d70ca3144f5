#include "fonts/TrueTypeHMtx.h"

#include <algorithm>
#include <utility>

std::vector<unsigned short> CTrueTypeHMtxEntry::GetCodes() const {
  std::vector<unsigned short> codes;
  if (m_bHasCode) codes.push_back(m_usFirstCode);
  codes.insert(codes.end(), m_rgusMoreCodes.begin(), m_rgusMoreCodes.end());
  return codes;
}

void CTrueTypeHMtxEntry::AddCode(unsigned short code) {
  if (m_bHasCode) {
    m_rgusMoreCodes.push_back(code);
    return;
  }
  m_usFirstCode = code;
  m_bHasCode = true;
}

CTrueTypeTabHMtx::CTrueTypeTabHMtx(int count)
    : m_pEntries(new CTrueTypeHMtxEntry[static_cast<std::size_t>(std::max(count, 0))]),
      m_iCount(std::max(count, 0)) {}

CTrueTypeTabHMtx::CTrueTypeTabHMtx(const CTrueTypeTabHMtx& other) = default;

CTrueTypeTabHMtx::~CTrueTypeTabHMtx() {
  delete[] m_pEntries;
  delete[] m_pGlyphNames;
}

CTrueTypeTabHMtx& CTrueTypeTabHMtx::operator=(const CTrueTypeTabHMtx& other) = default;

void CTrueTypeTabHMtx::SetGlyphNames(wchar_t* names) { delete[] std::exchange(m_pGlyphNames, names); }
