#include "fonts/TrueTypeHMtx.h"

#include <algorithm>

CTrueTypeTabHMtx::CTrueTypeTabHMtx(int count)
    : m_pEntries(new CTrueTypeHMtxEntry[static_cast<std::size_t>(std::max(count, 0))]),
      m_iCount(std::max(count, 0)) {}

CTrueTypeTabHMtx::CTrueTypeTabHMtx(const CTrueTypeTabHMtx& other) = default;

CTrueTypeTabHMtx::~CTrueTypeTabHMtx() { delete[] m_pEntries; }

CTrueTypeTabHMtx& CTrueTypeTabHMtx::operator=(const CTrueTypeTabHMtx& other) = default;
