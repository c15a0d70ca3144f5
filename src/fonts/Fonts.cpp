#include "fonts/Fonts.h"

CFonts::CFonts(CGlobalFontHandler* owner) : m_pOwner(owner) {}

CFonts::CFonts(const CFonts& other) = default;

CFonts::~CFonts() = default;

CFonts& CFonts::operator=(const CFonts& other) = default;

const wchar_t* CFonts::GetUniqueFontName(const wchar_t* /*name*/, int /*bold*/, bool /*italic*/) {
  return nullptr;
}

const wchar_t* CFonts::GetLocalizedFontName(const wchar_t* /*name*/, int /*bold*/, bool /*italic*/) {
  return nullptr;
}
