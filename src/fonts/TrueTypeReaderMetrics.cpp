#include "fonts/FontData.h"
#include "fonts/TrueTypeCMap.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "fonts/TrueTypeGlyphs.h"
#include "fonts/TrueTypeReader.h"
#include "fonts/TrueTypeTables.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace zeb {

namespace {

// Name ids.
constexpr std::size_t kFamilyName = 1;
constexpr std::size_t kFullName = 4;
constexpr std::size_t kPostScriptName = 6;

// Encoding ids of Windows character maps.
constexpr int kSymbolEncoding = 0;
constexpr int kUnicodeEncoding = 1;

constexpr unsigned kEmbeddingForbidden = 2;
constexpr unsigned kItalicSelection = 1;
constexpr unsigned kBoldSelection = 32;

constexpr int kNormalWeight = 400;
constexpr int kBoldWeight = 700;
constexpr int kImitatedStem = 165;
constexpr float kImitatedAngle = -12.0F;

constexpr int kSymbolicFlag = 4;
constexpr int kLastSingleByte = 255;

}  // namespace

TrueTypeStatus TrueTypeReader::FillMetrics() {
  // Fixed behaviour: only the value 2 forbids, not the bit.
  if (m_pFile->GetTabOS2()->fsType == kEmbeddingForbidden) return kTrueTypeEmbeddingForbidden;
  const CTrueTypeCMap4* const map = m_pFile->GetTabCMap()->GetCMap4();
  if (m_pFile->GetTabHead()->unitsPerEm == 0 || map == nullptr) return kTrueTypeIncorrect;
  // The last segment only ends the list, so one alone has no codes.
  if (m_request.unicode && map->GetSegCount() < 2) return kTrueTypeIncorrect;
  FillNames();
  FillStyle();
  FillHeights();
  ChooseEncoding(*map);
  FillWidths(*map);
  m_metrics.BuildFontDescriptorFlag();
  m_metrics.SetUnicodeFont(m_request.unicode && m_metrics.m_strEncoding == L"cid");
  m_metrics.m_pFontData->ResetFontPos();
  return kTrueTypeDone;
}

void TrueTypeReader::FillNames() {
  const CTrueTypeTabName& names = *m_pFile->GetTabName();
  m_metrics.SetBaseFont(names.englishNames[kFullName].c_str());
  m_metrics.SetFontFamilyName(names.englishNames[kFamilyName].c_str());
  const std::wstring& postScriptName = names.englishNames[kPostScriptName];
  m_metrics.SetTTName(postScriptName.empty() ? m_metrics.GetBaseFont() : postScriptName.c_str());
  m_metrics.AddLocalizedFontName(names.systemNames[kFullName].c_str());
}

void TrueTypeReader::FillStyle() {
  const CTrueTypeTabOS2& os2 = *m_pFile->GetTabOS2();
  const CTrueTypeTabPost& post = *m_pFile->GetTabPost();
  const float weight = static_cast<float>(os2.usWeightClass) / 65.0F;
  m_metrics.SetStemVW(static_cast<int>(weight * weight + 50.0F));
  m_metrics.SetItalicAngle(static_cast<float>(post.italicAngle));
  m_metrics.SetFixedPitch(post.isFixedPitch != 0);
  m_metrics.m_usUnitsPerEm = m_pFile->GetTabHead()->unitsPerEm;
  if (m_request.bold != kNormalWeight) {
    if (m_request.bold < kBoldWeight || (os2.fsSelection & kBoldSelection) == 0) {
      m_metrics.SetStemVW(kImitatedStem);
      m_metrics.SetBoldFont(false);
    }
    m_metrics.SetBold(m_request.bold);
  }
  if (m_request.italic) {
    if ((os2.fsSelection & kItalicSelection) == 0) {
      m_metrics.SetItalicAngle(kImitatedAngle);
      m_metrics.SetItalicFont(false);
    }
    m_metrics.SetItalic(true);
  }
}

void TrueTypeReader::FillHeights() {
  const auto toPDF = [&](int value) { return m_metrics.ConvertTTToPDF(value); };
  const CTrueTypeTabHead& head = *m_pFile->GetTabHead();
  const CTrueTypeTabHhea& hhea = *m_pFile->GetTabHhea();
  const CTrueTypeTabOS2& os2 = *m_pFile->GetTabOS2();
  const CTrueTypeTabPost& post = *m_pFile->GetTabPost();
  const CTrueTypeTabPCLT* const pclt = m_pFile->GetTabPCLT();
  m_metrics.SetBBoxLLX(static_cast<float>(toPDF(head.xMin)));
  m_metrics.SetBBoxLLY(static_cast<float>(toPDF(head.yMin)));
  m_metrics.SetBBoxURX(static_cast<float>(toPDF(head.xMax)));
  m_metrics.SetBBoxURY(static_cast<float>(toPDF(head.yMax)));
  m_metrics.SetUnderlinePosition(toPDF(post.underlinePosition));
  m_metrics.SetUnderlineThickness(toPDF(post.underlineThickness));
  const int ascender = toPDF(os2.sTypoAscender != 0 ? os2.sTypoAscender : hhea.ascender);
  m_metrics.SetAscender(ascender);
  m_metrics.SetDescender(toPDF(os2.sTypoDescender != 0 ? os2.sTypoDescender : hhea.descender));
  // Versions below 2 were read as 0.
  const int capFallback = pclt != nullptr ? toPDF(pclt->capHeight) : ascender;
  m_metrics.SetCapHeight(os2.sCapHeight != 0 ? toPDF(os2.sCapHeight) : capFallback);
  const int xFallback = pclt != nullptr ? toPDF(pclt->xHeight) : static_cast<int>(ascender * 0.66);
  m_metrics.SetXHeight(os2.sxHeight != 0 ? toPDF(os2.sxHeight) : xFallback);
}

void TrueTypeReader::ChooseEncoding(const CTrueTypeCMap4& map) {
  if (map.GetEncodingID() == kSymbolEncoding) {
    m_metrics.SetFlags(m_metrics.GetFlags() | kSymbolicFlag);
    m_metrics.SetEncoding(L"fontspecific");
    m_metrics.SetEncodingScheme(L"FontSpecific");
    m_metrics.SetSymbolFont(true);
  } else if (m_request.unicode) {
    m_metrics.SetEncoding(L"cid");
    m_metrics.SetEncodingScheme(L"Identity-H");
    m_metrics.SetCharColl(CFontMetrics::CharCollIdentity);
  } else if (m_request.encoding == nullptr || m_encoding == L"winansi1252") {
    m_metrics.SetEncodingScheme(L"AdobeStandardEncoding");
    m_metrics.SetEncoding(L"winansi1252");
  } else if (m_encoding == L"1250") {
    m_metrics.SetEncodingScheme(L"AdobeStandardEncoding");
    m_metrics.SetEncoding(L"winansi1250");
  }
}

void TrueTypeReader::FillWidths(const CTrueTypeCMap4& map) {
  if (m_request.unicode) {
    m_metrics.SetFirstChar(map.GetStartCodeAt(0));
    // Fixed behaviour: the segment before the last one ends the range, also where segments are in no order.
    m_metrics.SetLastChar(map.GetEndCodeAt(map.GetSegCount() - 2));
    FillWidthsOfSegments(map);
  } else {
    m_metrics.SetFirstChar(0);
    m_metrics.SetLastChar(kLastSingleByte);
    FillWidthsOfBytes(map);
  }
}

void TrueTypeReader::FillWidthsOfBytes(const CTrueTypeCMap4& map) {
  const bool symbolic = map.GetEncodingID() == kSymbolEncoding;
  const int symbolPage = m_pFile->GetTabOS2()->usFirstCharIndex & 0xFF00;
  for (int code = 0; code <= kLastSingleByte; ++code) {
    const int meaning = symbolic ? symbolPage + code : m_metrics.GetUnicodeAt(code);
    SetWidth(code, map.GetGlyph(static_cast<unsigned short>(meaning)));
  }
}

void TrueTypeReader::FillWidthsOfSegments(const CTrueTypeCMap4& map) {
  const int last = m_metrics.GetLastChar();
  const unsigned short none = WidthOf(0);
  const auto fillGap = [&](int first, int end) {
    if (first < end) std::fill(m_metrics.m_rgusWidths + first, m_metrics.m_rgusWidths + end, none);
  };
  // As codes ascend, the first segment that does not end before the code only moves forward.
  int code = m_metrics.GetFirstChar();
  for (int segment = 0; segment < map.GetSegCount() && code <= last; ++segment) {
    const int end = std::min<int>(map.GetEndCodeAt(segment), last) + 1;
    const int start = std::min<int>(map.GetStartCodeAt(segment), end);
    fillGap(code, start);
    for (code = std::max(code, start); code < end; ++code)
      SetWidth(code, map.GetGlyphOfSegment(segment, static_cast<unsigned short>(code)));
  }
  // Fixed behaviour: a code behind all segments belongs to segment 0.
  for (; code <= last; ++code) SetWidth(code, map.GetGlyphOfSegment(0, static_cast<unsigned short>(code)));
}

unsigned short TrueTypeReader::WidthOf(int glyph) {
  const unsigned short advance = m_pGlyphs->AdvanceWidthOf(glyph);
  // Neighbours often have one width.
  if (advance != m_usAdvance) {
    m_usAdvance = advance;
    // Fixed behaviour: truncated, where other values are rounded.
    m_usWidth = static_cast<unsigned short>(advance * 1000 / m_metrics.m_usUnitsPerEm);
  }
  return m_usWidth;
}

void TrueTypeReader::SetWidth(int code, int glyph) {
  // Fixed behaviour: a glyph behind the last one is the last one.
  glyph = std::min(glyph, m_pGlyphs->Count() - 1);
  m_metrics.m_rgusWidths[code] = WidthOf(glyph);
  if (glyph == 0) return;
  const auto character = static_cast<unsigned short>(code);
  m_pGlyphs->AddCode(character, static_cast<std::uint16_t>(glyph));
  m_metrics.AddUnicodeToGlyphIndex(character, static_cast<unsigned short>(glyph));
}

}  // namespace zeb
