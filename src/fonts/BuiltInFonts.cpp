#include "fonts/BuiltInFonts.h"

#include "fonts/FontInformation.h"

#include <memory>

namespace zeb {

namespace {

constexpr int kCodes = 65536;
constexpr unsigned short kCJKWidth = 1000;

void SetMeasures(CFontMetrics& metrics, const FaceMeasures& measures) {
  metrics.SetAscender(measures.ascender);
  metrics.SetDescender(measures.descender);
  metrics.SetCapHeight(measures.capHeight);
  metrics.SetXHeight(measures.xHeight);
  metrics.SetBBoxLLX(measures.bbox[0]);
  metrics.SetBBoxLLY(measures.bbox[1]);
  metrics.SetBBoxURX(measures.bbox[2]);
  metrics.SetBBoxURY(measures.bbox[3]);
  metrics.SetUnderlineThickness(50);
}

void Fill(CFontMetrics& metrics, const StandardFontRow& row) {
  metrics.SetBaseFont(row.name);
  SetMeasures(metrics, row.measures);
  metrics.SetUnderlinePosition(-100);
  metrics.SetFontType(CFontMetrics::FontTypeType1);
  metrics.SetBase14Font(true);
  if (row.isFontSpecific) {
    metrics.SetEncoding(L"fontspecific");
    metrics.SetEncodingScheme(L"FontSpecific");
  }
  int code = 0;
  for (const unsigned short width : *row.widths) metrics.SetWidthAt(code++, width);
}

void Fill(CFontMetrics& metrics, const CJKFontRow& row) {
  metrics.SetBaseFont(row.name);
  metrics.SetCharColl(row.collection);
  SetMeasures(metrics, row.measures);
  metrics.SetUnderlinePosition(row.underlinePosition);
  metrics.SetFlags(row.flags);
  metrics.SetStemVW(row.stemVW);
  metrics.SetStemHW(row.stemHW);
  metrics.SetEncoding(L"cid");
  metrics.SetFontType(CFontMetrics::FontTypeCID);
  metrics.SetUnicodeFont(true);
  metrics.SetFixedPitch(true);
  metrics.SetCJKFont(true);
  for (int code = 0; code < kCodes; ++code) metrics.SetWidthAt(code, kCJKWidth);
}

}  // namespace

const wchar_t* BuiltInFonts::NameAt(std::size_t index) {
  return index < kStandardFontCount ? kStandardFonts[index].name : kCJKFonts[index - kStandardFontCount].name;
}

CFontInformation* BuiltInFonts::At(std::size_t index) {
  if (m_Made[index] == nullptr) {
    auto font = std::make_unique<CFontInformation>(m_pOwner);
    if (index < kStandardFontCount) {
      Fill(*font->GetFontMetrics(), kStandardFonts[index]);
    } else {
      Fill(*font->GetFontMetrics(), kCJKFonts[index - kStandardFontCount]);
    }
    m_Made[index] = font.release();
  }
  return m_Made[index];
}

}  // namespace zeb
