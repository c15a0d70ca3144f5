#include "fonts/FontMetrics.h"
#include "fonts/TrueTypeCMap.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeHMtx.h"

#include <cmath>
#include <limits>

namespace {

/// First code of the page in which the characters of a Windows symbol font lie.
constexpr int kSymbolPage = 0xF000;

int ToInt(float value) {
  // Only values that no font has reach the limits.
  if (!(value < 2147483648.0F)) return std::numeric_limits<int>::max();
  if (value < -2147483648.0F) return std::numeric_limits<int>::min();
  return static_cast<int>(value);
}

}  // namespace

unsigned short CFontMetrics::GetWidthAt(int index) const {
  // Fixed behaviour: only reading moves to the symbol page, so a symbol font with single-byte widths reads 0.
  // A sum beyond 16 bits wraps, as that of a code does.
  return m_rgusWidths[m_bSymbolFont && index < kSymbolPage ? (index + kSymbolPage) & 0xFFFF : index];
}

void CFontMetrics::SetWidthAt(int index, unsigned short width) { m_rgusWidths[index] = width; }

float CFontMetrics::GetEffectiveFontHeight(float size) const {
  return (m_fBBoxURY - m_fBBoxLLY) / 1000 * size;
}

int CFontMetrics::ConvertTTToPDF(int value) const {
  if (m_usUnitsPerEm == 0) return -1;
  const float scaled = static_cast<float>(value) * 1000.0F / static_cast<float>(m_usUnitsPerEm);
  return ToInt(scaled < 0 ? std::ceil(scaled - 0.5F) : std::floor(scaled + 0.5F));
}

void CFontMetrics::AddUnicodeToGlyphIndex(unsigned short code, unsigned short glyph) {
  unsigned short& number = m_rgusGlyphPages[code >> 8U];
  if (number == 0) {
    m_GlyphPages.emplace_back();
    number = static_cast<unsigned short>(m_GlyphPages.size());
  }
  GlyphPage& page = m_GlyphPages[number - 1U];
  bool& known = page.known[code & 0xFFU];
  if (known) return;
  known = true;
  page.glyphs[code & 0xFFU] = glyph;
}

bool CFontMetrics::FindGlyphIndex(unsigned short code, unsigned short& glyph) const {
  const int sum = m_bSymbolFont && code < kSymbolPage ? code + kSymbolPage : code;
  const auto wanted = static_cast<unsigned short>(sum);
  const unsigned short number = m_rgusGlyphPages[wanted >> 8U];
  if (number == 0) return false;
  const GlyphPage& page = m_GlyphPages[number - 1U];
  if (page.known[wanted & 0xFFU]) glyph = page.glyphs[wanted & 0xFFU];
  return page.known[wanted & 0xFFU];
}

bool CFontMetrics::FindUsedGlyphIndex(unsigned short glyph, unsigned short& newIndex) const {
  const auto found = m_GlyphToNewIndex.find(glyph);
  if (found == m_GlyphToNewIndex.end()) return false;
  newIndex = found->second;
  return true;
}

unsigned short CFontMetrics::MapChar(unsigned short code) {
  if (m_FontEmbedding != EmbedSubset) return code;
  unsigned short glyph = 0;
  unsigned short newIndex = 0;
  FindGlyphIndex(code, glyph);
  if (FindUsedGlyphIndex(glyph, newIndex)) return newIndex;
  newIndex = m_usNextNewIndex++;
  m_GlyphToNewIndex.emplace(glyph, newIndex);
  m_NewIndexToGlyph.emplace(newIndex, glyph);
  return newIndex;
}

unsigned short CFontMetrics::GetUsedGlyphsCount() const { return m_usNextNewIndex; }

unsigned short CFontMetrics::GetWidthOfUsedGlyph(unsigned short newIndex) {
  const auto found = m_NewIndexToGlyph.find(newIndex);
  CTrueTypeFile* file = GetTTFile();
  if (found == m_NewIndexToGlyph.end() || file == nullptr) return 0;
  const CTrueTypeTabHMtx* hmtx = file->GetTabHMtx();
  if (hmtx == nullptr || found->second >= hmtx->GetEntryCount()) return 0;
  return static_cast<unsigned short>(ConvertTTToPDF(hmtx->GetEntryAt(found->second)->GetAdvanceWidth()));
}

void CFontMetrics::ConvertAllCodesToGlyphIDs(unsigned char* buffer, int length) {
  CTrueTypeFile* file = GetTTFile();
  if (file == nullptr || file->GetTabCMap() == nullptr) return;
  const CTrueTypeCMap4* map = file->GetTabCMap()->GetCMap4();
  if (map == nullptr) return;
  for (int i = 0; i < length / 2; ++i) {
    const unsigned short glyph = map->GetGlyph(static_cast<unsigned short>(i));
    buffer[2 * i] = static_cast<unsigned char>(glyph >> 8U);
    buffer[2 * i + 1] = static_cast<unsigned char>(glyph);
  }
}
