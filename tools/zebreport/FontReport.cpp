#include "FontReport.h"

#include "TextFormat.h"
#include "TextTable.h"
#include "UnicodeBlocks.h"

#include <algorithm>
#include <cwchar>

namespace zebreport {

namespace {

std::wstring KindOf(const CFontMetrics& metrics) {
  switch (metrics.GetFontType()) {
    case CFontMetrics::FontTypeType1:
      return L"PostScript Type 1";
    case CFontMetrics::FontTypeOpenType:
      return L"OpenType with PostScript outlines";
    case CFontMetrics::FontTypeTrueType:
      return L"TrueType";
    case CFontMetrics::FontTypeCID:
      break;
  }
  return L"predefined CJK font";
}

std::wstring Flags(int flags) {
  struct Named {
    int bit;
    const wchar_t* name;
  };
  constexpr Named kNamed[] = {{0x1, L"fixed pitch"},    {0x2, L"serif"},         {0x4, L"symbolic"},
                              {0x8, L"script"},         {0x20, L"non-symbolic"}, {0x40, L"italic"},
                              {0x20000, L"small caps"}, {0x40000, L"bold"}};
  std::vector<std::wstring> parts;
  for (const Named& named : kNamed) {
    if ((flags & named.bit) != 0) parts.emplace_back(named.name);
  }
  return std::to_wstring(flags) + (parts.empty() ? L"" : L": " + Joined(parts));
}

/// What the font itself says of embedding it.
std::wstring EmbeddingRight(CFontMetrics& metrics) {
  const CTrueTypeFile* const file = metrics.GetTTFile();
  if (file == nullptr) return L"not said by the font";
  const unsigned right = file->GetTabOS2()->fsType;
  std::vector<std::wstring> parts;
  if ((right & 0xFU) == 0) parts.emplace_back(L"allowed, for installing too");
  if ((right & 2U) != 0) parts.emplace_back(L"restricted");
  if ((right & 4U) != 0) parts.emplace_back(L"allowed for viewing and printing");
  if ((right & 8U) != 0) parts.emplace_back(L"allowed for editing");
  if ((right & 0x100U) != 0) parts.emplace_back(L"no subsets");
  if ((right & 0x200U) != 0) parts.emplace_back(L"bitmaps only");
  return Joined(parts) + L" (fsType " + std::to_wstring(right) + L")";
}

std::wstring Numbers(std::initializer_list<float> values) {
  std::wstring text;
  for (const float value : values) text += (text.empty() ? L"" : L" ") + Number(value);
  return text;
}

void WriteNames(const OpenedFont& font, Lines& lines) {
  const CFontMetrics& metrics = font.Metrics();
  lines.Add(0, std::wstring(L"font ") + metrics.GetBaseFont());
  for (const std::wstring& file : font.Files()) lines.Add(1, L"file " + file);
  lines.Add(1, L"kind " + KindOf(metrics));
  lines.Add(1, L"family " + Quoted(metrics.GetFontFamilyName()));
  if (*metrics.GetTTName() != L'\0') lines.Add(1, L"PostScript name " + Quoted(metrics.GetTTName()));
  for (const std::wstring& name : metrics.GetLocalizedNames())
    lines.Add(1, L"localized name " + Quoted(name));
  lines.Add(
      1, L"encoding " + Quoted(metrics.GetEncoding()) + L", scheme " + Quoted(metrics.GetEncodingScheme()));
}

void WriteMetrics(const OpenedFont& font, Lines& lines) {
  CFontMetrics& metrics = font.Metrics();
  lines.Add(1, L"flags " + Flags(metrics.GetFlags()));
  lines.Add(1, L"bounding box " + Numbers({metrics.GetBBoxLLX(), metrics.GetBBoxLLY(), metrics.GetBBoxURX(),
                                           metrics.GetBBoxURY()}));
  lines.Add(1, L"ascender " + std::to_wstring(metrics.GetAscender()) + L", descender " +
                   std::to_wstring(metrics.GetDescender()) + L", cap height " +
                   std::to_wstring(metrics.GetCapHeight()) + L", x height " +
                   std::to_wstring(metrics.GetXHeight()));
  lines.Add(1, L"underline at " + std::to_wstring(metrics.GetUnderlinePosition()) + L", thickness " +
                   std::to_wstring(metrics.GetUnderlineThickness()));
  lines.Add(1, L"italic angle " + Number(metrics.GetItalicAngle()) + L", vertical stems " +
                   std::to_wstring(metrics.GetStemVW()) + (metrics.GetFixedPitch() ? L", fixed pitch" : L""));
  if (!metrics.GetBoldFont()) lines.Add(1, L"bold is imitated");
  if (!metrics.GetItalicFont()) lines.Add(1, L"italic is imitated");
  lines.Add(1, L"embedding " + EmbeddingRight(metrics));
  lines.Add(1, L"program of " + std::to_wstring(metrics.GetFontData()->GetLength()) + L" bytes");
}

void WriteCoverage(const OpenedFont& font, std::wstring& output) {
  const std::vector<unsigned short> characters = font.Characters();
  Lines(output).Add(1, std::to_wstring(characters.size()) + L" characters");
  TextTable table({L"block", L"characters", L"of"});
  for (const UnicodeBlock& block : UnicodeBlocks()) {
    const auto first = std::lower_bound(characters.begin(), characters.end(), block.first);
    const auto last = std::upper_bound(first, characters.end(), block.last);
    if (first == last) continue;
    table.AddRow({block.name, std::to_wstring(last - first), std::to_wstring(block.last - block.first + 1)});
  }
  table.AppendTo(output, 2);
}

std::wstring Hexadecimal(unsigned code) {
  wchar_t text[16] = {};
  std::swprintf(text, std::size(text), L"U+%04X", code);
  return text;
}

std::wstring GlyphName(CFontMetrics& metrics, unsigned short glyph) {
  const CTrueTypeFile* const file = metrics.GetTTFile();
  return file != nullptr ? file->GetTabHMtx()->GetEntryAt(glyph)->GetGlyphName()
                         : metrics.GetCharNameAt(glyph);
}

}  // namespace

void WriteFont(const OpenedFont& font, std::wstring& output) {
  Lines lines(output);
  WriteNames(font, lines);
  WriteMetrics(font, lines);
  WriteCoverage(font, output);
}

void WriteGlyphs(const OpenedFont& font, const std::wstring& text, std::wstring& output) {
  CFontMetrics& metrics = font.Metrics();
  const bool isTrueType = metrics.GetTTFile() != nullptr;
  TextTable table({L"character", L"code", isTrueType ? L"glyph" : L"byte", L"name", L"width", L"new index"});
  for (const wchar_t character : text) {
    const auto wide = static_cast<unsigned>(character);
    // Fonts are read by codes of 16 bits.
    const auto code = static_cast<unsigned short>(wide);
    unsigned short glyph = 0;
    if (wide > 0xFFFFU || !font.FindGlyph(code, glyph)) {
      table.AddRow({Quoted({character}), Hexadecimal(wide), L"none", L"", L"", L""});
      continue;
    }
    const int width = metrics.GetWidthAt(isTrueType ? code : glyph);
    table.AddRow({Quoted({character}), Hexadecimal(wide), std::to_wstring(glyph), GlyphName(metrics, glyph),
                  std::to_wstring(width), isTrueType ? std::to_wstring(metrics.MapChar(code)) : L""});
  }
  table.AppendTo(output, 0);
}

}  // namespace zebreport
