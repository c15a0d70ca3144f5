#include "fonts/FontInformation.h"

#include "fonts/Fonts.h"
#include "fonts/PostscriptFontMetrics.h"
#include "fonts/TrueTypeFontMetrics.h"

CFontInformation::CFontInformation(CFonts* owner)
    : m_pMetrics(nullptr), m_pPostscriptMetrics(nullptr), m_pTrueTypeMetrics(nullptr), m_pOwner(owner) {
  m_pMetrics = &PostscriptMetrics();
}

CFontInformation::CFontInformation(const CFontInformation& other) = default;

CFontInformation::~CFontInformation() {
  delete m_pPostscriptMetrics;
  delete m_pTrueTypeMetrics;
}

CFontInformation& CFontInformation::operator=(const CFontInformation& other) = default;

CFontMetrics* CFontInformation::GetFontMetrics() const { return m_pMetrics; }

CPDFCharCollName* CFontInformation::GetCharCollNameAt(CFontMetrics::CharColl collection) const {
  return m_pOwner == nullptr ? nullptr : m_pOwner->GetCharCollNameAt(collection);
}

CEncodingInformation* CFontInformation::GetEncodingInformation(const wchar_t* internalName) const {
  return m_pOwner == nullptr ? nullptr : m_pOwner->GetEncodingInformation(internalName);
}

CPostscriptFontMetrics& CFontInformation::PostscriptMetrics() {
  if (m_pPostscriptMetrics == nullptr) m_pPostscriptMetrics = new CPostscriptFontMetrics();
  return *m_pPostscriptMetrics;
}

void CFontInformation::ReadAFM(const wchar_t* path) {
  CPostscriptFontMetrics& metrics = PostscriptMetrics();
  metrics.ReadAFMFile(path);
  m_pMetrics = &metrics;
}

void CFontInformation::ReadPFM(const wchar_t* path) {
  CPostscriptFontMetrics& metrics = PostscriptMetrics();
  metrics.ReadPFMFile(path);
  m_pMetrics = &metrics;
}

void CFontInformation::ReadPFBPFA(const wchar_t* path) {
  CPostscriptFontMetrics& metrics = PostscriptMetrics();
  metrics.ReadPFBPFAFile(path);
  m_pMetrics = &metrics;
}
