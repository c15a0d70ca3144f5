#include "fonts/GlobalFontHandler.h"

#include "fonts/EncodingInformation.h"
#include "fonts/Encodings.h"
#include "fonts/Fonts.h"

#include <memory>

CGlobalFontHandler::CGlobalFontHandler() : m_pFonts(nullptr), m_pEncodings(nullptr) {
  auto fonts = std::make_unique<CFonts>(this);
  m_pEncodings = new CEncodings(this);
  m_pFonts = fonts.release();
}

CGlobalFontHandler::CGlobalFontHandler(const CGlobalFontHandler& other) = default;

CGlobalFontHandler::~CGlobalFontHandler() {
  delete m_pFonts;
  delete m_pEncodings;
}

CGlobalFontHandler& CGlobalFontHandler::operator=(const CGlobalFontHandler& other) = default;

CFonts* CGlobalFontHandler::GetFonts() const { return m_pFonts; }

void CGlobalFontHandler::SetFonts(CFonts* fonts) { m_pFonts = fonts; }

CEncodings* CGlobalFontHandler::GetEncodings() const { return m_pEncodings; }

void CGlobalFontHandler::SetEncodings(CEncodings* encodings) { m_pEncodings = encodings; }

const wchar_t* CGlobalFontHandler::GetUniqueFontName(const wchar_t* name, int bold, bool italic) {
  return m_pFonts->GetUniqueFontName(name, bold, italic);
}

const wchar_t* CGlobalFontHandler::GetLocalizedFontName(const wchar_t* name, int bold, bool italic) {
  return m_pFonts->GetLocalizedFontName(name, bold, italic);
}

void CGlobalFontHandler::AddAnotherFontHandler(CGlobalFontHandler* other) {
  m_pFonts->TakeMissingFonts(*other->m_pFonts);
  // Fixed behaviour: the index rises although an entry left, so the one behind it is passed over.
  CEncodings& source = *other->m_pEncodings;
  for (int index = 0; index < source.GetEncodingCount(); ++index) {
    CEncodingInformation* const encoding = source.GetEncodingAt(index);
    if (m_pEncodings->FindEncoding(encoding->GetInternalName()) != nullptr) continue;
    m_pEncodings->AddEncoding(encoding);
    source.RemoveEncodingAt(index);
  }
}
