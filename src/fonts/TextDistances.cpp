// The distances of the lines of a text element, by the metrics of its font. The only place where the fonts reach for
// the model.

#include "fonts/TextDistances.h"

#include "fonts/FontInformation.h"
#include "fonts/Fonts.h"
#include "fonts/GlobalFontHandler.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "fonts/TrueTypeTables.h"
#include "model/Border.h"
#include "model/Text.h"

#include <algorithm>
#include <cmath>

namespace {

CFontMetrics* FindMetrics(const CFonts& fonts, const CText& text) {
  const CFontInformation* const font = fonts.FindFont(text.GetFontName(), text.GetBold(), text.GetItalic());
  return font == nullptr ? nullptr : font->GetFontMetrics();
}

void SetDistances(CText& text, const zeb::LineExtent& extent) {
  if (text.GetBorder() == nullptr) text.SetBorder(new CBorder);
  const float size = text.GetFontSize();
  text.GetBorder()->SetBaseLineToUpperDistance(extent.above / 1000.0F * size);
  text.GetBorder()->SetBaseLineToLowerDistance(extent.below / 1000.0F * size);
  text.SetLineSpacing((extent.above + extent.below) / 1000.0F * size);
}

}  // namespace

namespace zeb {

LineExtent ExtentByTables(CTrueTypeFontMetrics& metrics) {
  const CTrueTypeFile* const file = metrics.GetTTFile();
  const CTrueTypeTabOS2* const os2 = file == nullptr ? nullptr : file->GetTabOS2();
  const CTrueTypeTabHhea* const hhea = file == nullptr ? nullptr : file->GetTabHhea();
  if (os2 == nullptr || hhea == nullptr) return ExtentByBox(metrics);
  const int ascent = metrics.ConvertTTToPDF(os2->usWinAscent);
  const int descent = metrics.ConvertTTToPDF(os2->usWinDescent);
  const int ascender = metrics.ConvertTTToPDF(hhea->ascender);
  const int descender = metrics.ConvertTTToPDF(hhea->descender);
  const int gap = metrics.ConvertTTToPDF(hhea->lineGap);
  const int extra = std::max(gap - (ascent + descent - (ascender - descender)), 0);
  return {static_cast<float>(ascent + extra), static_cast<float>(descent)};
}

LineExtent ExtentByBox(const CFontMetrics& metrics) {
  return {metrics.GetBBoxURY(), std::fabs(metrics.GetBBoxLLY())};
}

}  // namespace zeb

void CGlobalFontHandler::CalculateOptimalTextDistances(CText* text) {
  CFontMetrics* const metrics = FindMetrics(*m_pFonts, *text);
  if (metrics == nullptr) return;
  auto* const trueType = dynamic_cast<CTrueTypeFontMetrics*>(metrics);
  if (trueType == nullptr || trueType->GetTTFile() == nullptr) {
    CalculateOptimalTextDistancesForTables(text);
    return;
  }
  SetDistances(*text, zeb::ExtentByTables(*trueType));
}

void CGlobalFontHandler::CalculateOptimalTextDistancesForTables(CText* text) {
  const CFontMetrics* const metrics = FindMetrics(*m_pFonts, *text);
  if (metrics != nullptr) SetDistances(*text, zeb::ExtentByBox(*metrics));
}
