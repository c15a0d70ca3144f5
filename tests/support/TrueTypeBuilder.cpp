#include "support/TrueTypeBuilder.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace zebtest {

namespace {

using Bytes = std::vector<unsigned char>;

Bytes MakeHead(const TrueTypeBuilder& font) {
  FontBytes out;
  out.U32(0x00010000).U32(0x00010000).U32(0).U32(0x5F0F3CF5).U16(0).U16(font.unitsPerEm).Zeros(16);
  out.S16(font.xMin).S16(font.yMin).S16(font.xMax).S16(font.yMax);
  return out.U16(0).U16(8).S16(2).S16(font.longLoca ? 1 : 0).S16(0).Bytes();
}

unsigned CountMetrics(const TrueTypeBuilder& font) {
  return font.metricsCount.value_or(static_cast<unsigned>(font.glyphs.size()));
}

Bytes MakeHhea(const TrueTypeBuilder& font) {
  FontBytes out;
  out.U32(0x00010000).S16(font.hheaAscender).S16(font.hheaDescender).S16(font.lineGap).U16(1300);
  return out.Zeros(22).U16(CountMetrics(font)).Bytes();
}

Bytes MakeMaxp(const TrueTypeBuilder& font) {
  return FontBytes()
      .U32(0x00010000)
      .U16(font.glyphCount.value_or(static_cast<unsigned>(font.glyphs.size())))
      .U16s({4, 1, 4, 1, 2, 0, 0, 0, 0, 0, 0, 1, 1})
      .Bytes();
}

Bytes MakeHmtx(const TrueTypeBuilder& font) {
  FontBytes out;
  for (std::size_t i = 0; i < font.glyphs.size(); ++i) {
    if (i < CountMetrics(font)) out.U16(font.glyphs[i].width);
    out.S16(font.glyphs[i].bearing);
  }
  return out.Bytes();
}

Bytes MakeGlyf(const TrueTypeBuilder& font) {
  FontBytes out;
  for (const TrueTypeBuilder::Glyph& glyph : font.glyphs) out.Append(glyph.outline);
  return out.Bytes();
}

Bytes MakeLoca(const TrueTypeBuilder& font) {
  FontBytes out;
  std::size_t offset = 0;
  const auto put = [&] {
    if (font.longLoca) {
      out.U32(static_cast<std::uint32_t>(offset));
    } else {
      out.U16(static_cast<unsigned>(offset / 2));
    }
  };
  put();
  for (const TrueTypeBuilder::Glyph& glyph : font.glyphs) {
    offset += glyph.outline.size();
    put();
  }
  return out.Bytes();
}

Bytes MakeName(const TrueTypeBuilder& font) {
  FontBytes records;
  FontBytes strings;
  for (const TrueTypeBuilder::Name& name : font.names) {
    records.U16(name.platform).U16(name.encoding).U16(name.language).U16(name.id);
    records.U16(static_cast<unsigned>(2 * name.text.size())).U16(static_cast<unsigned>(strings.Size()));
    strings.Utf16(name.text);
  }
  FontBytes out;
  out.U16(0).U16(static_cast<unsigned>(font.names.size())).U16(static_cast<unsigned>(6 + records.Size()));
  return out.Append(records.Bytes()).Append(strings.Bytes()).Bytes();
}

Bytes MakePost(const TrueTypeBuilder& font) {
  FontBytes out;
  out.U32(0x00030000).U32(static_cast<std::uint32_t>(font.italicAngle)).S16(font.underlinePosition);
  return out.S16(font.underlineThickness).U32(font.isFixedPitch).Zeros(16).Bytes();
}

Bytes MakeOS2(const TrueTypeBuilder& font) {
  FontBytes out;
  out.U16(font.os2Version).S16(600).U16(font.weightClass).U16(5).U16(font.fsType).Zeros(20).S16(0);
  out.Zeros(10).Zeros(16).Ascii("PROB").U16(font.fsSelection).U16(font.firstCharIndex).U16(0x42);
  out.S16(font.typoAscender).S16(font.typoDescender).S16(90).U16(font.winAscent).U16(font.winDescent);
  if (font.os2Version >= 1) out.U32(1).U32(0);
  if (font.os2Version >= 2) out.S16(font.sxHeight).S16(font.sCapHeight).U16(0).U16(0x20).U16(1);
  return out.Bytes();
}

Bytes MakeCMap(const TrueTypeBuilder& font) {
  FontBytes records;
  FontBytes subtables;
  const std::size_t start = 4 + 8 * font.cmaps.size();
  for (const TrueTypeBuilder::CMapSubtable& map : font.cmaps) {
    records.U16(map.platform).U16(map.encoding).U32(static_cast<std::uint32_t>(start + subtables.Size()));
    subtables.Append(map.bytes);
  }
  FontBytes out;
  out.U16(0).U16(static_cast<unsigned>(font.cmaps.size()));
  return out.Append(records.Bytes()).Append(subtables.Bytes()).Bytes();
}

}  // namespace

FontBytes& FontBytes::U8(unsigned value) {
  m_bytes.push_back(static_cast<unsigned char>(value));
  return *this;
}

FontBytes& FontBytes::U16(unsigned value) { return U8(value >> 8U).U8(value); }

FontBytes& FontBytes::U32(std::uint32_t value) { return U16(value >> 16U).U16(value); }

FontBytes& FontBytes::U16s(std::initializer_list<unsigned> values) {
  for (const unsigned value : values) U16(value);
  return *this;
}

FontBytes& FontBytes::Zeros(std::size_t count) {
  m_bytes.resize(m_bytes.size() + count);
  return *this;
}

FontBytes& FontBytes::Ascii(std::string_view text) {
  m_bytes.insert(m_bytes.end(), text.begin(), text.end());
  return *this;
}

FontBytes& FontBytes::Utf16(std::wstring_view text) {
  for (const wchar_t unit : text) U16(static_cast<unsigned>(unit));
  return *this;
}

FontBytes& FontBytes::Append(const std::vector<unsigned char>& bytes) {
  m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
  return *this;
}

FontBytes& FontBytes::PatchU16(std::size_t at, unsigned value) {
  m_bytes.at(at) = static_cast<unsigned char>(value >> 8U);
  m_bytes.at(at + 1) = static_cast<unsigned char>(value);
  return *this;
}

FontBytes& FontBytes::PatchU32(std::size_t at, std::uint32_t value) {
  return PatchU16(at, value >> 16U).PatchU16(at + 2, value & 0xFFFFU);
}

TrueTypeBuilder::TrueTypeBuilder()
    : glyphs({{1000, 50, Box(50, 0, 950, 1400)},
              {0, 0, {}},
              {500, 0, {}},
              {1200, 20, Box(20, -10, 1180, 1410)},
              {1300, 30, Composite({3})}}),
      names({{3, 1, 1033, 1, L"Probe"},
             {3, 1, 1033, 2, L"Regular"},
             {3, 1, 1033, 4, L"Probe Regular"},
             {3, 1, 1033, 6, L"Probe-Regular"}}),
      cmaps({{3, 1, Format4({{0x20, 0x20, 2U - 0x20U, 0}, {0x41, 0x42, 3U - 0x41U, 0}})}}) {}

void TrueTypeBuilder::Replace(const std::string& tag, std::vector<unsigned char> bytes) {
  m_replaced[tag] = std::move(bytes);
}

void TrueTypeBuilder::Remove(const std::string& tag) { m_removed.push_back(tag); }

std::map<std::string, Bytes> TrueTypeBuilder::Tables() const {
  std::map<std::string, Bytes> tables = {{"OS/2", MakeOS2(*this)},  {"cmap", MakeCMap(*this)},
                                         {"glyf", MakeGlyf(*this)}, {"head", MakeHead(*this)},
                                         {"hhea", MakeHhea(*this)}, {"hmtx", MakeHmtx(*this)},
                                         {"loca", MakeLoca(*this)}, {"maxp", MakeMaxp(*this)},
                                         {"name", MakeName(*this)}, {"post", MakePost(*this)}};
  for (const auto& [tag, bytes] : m_replaced) tables[tag] = bytes;
  for (const std::string& tag : m_removed) tables.erase(tag);
  return tables;
}

Bytes TrueTypeBuilder::BuildAt(std::size_t offset) const {
  const std::map<std::string, Bytes> tables = Tables();
  FontBytes directory;
  directory.U32(version).U16(static_cast<unsigned>(tables.size())).U16s({128, 3, 32});
  FontBytes content;
  const std::size_t start = offset + 12 + 16 * tables.size();
  for (const auto& [tag, bytes] : tables) {
    directory.Ascii(tag).U32(0).U32(static_cast<std::uint32_t>(start + content.Size()));
    directory.U32(static_cast<std::uint32_t>(bytes.size()));
    content.Append(bytes).Zeros((4 - bytes.size() % 4) % 4);
  }
  return directory.Append(content.Bytes()).Bytes();
}

Bytes TrueTypeBuilder::Build() const { return BuildAt(0); }

Bytes TrueTypeBuilder::BuildCollection(const std::vector<TrueTypeBuilder>& fonts) {
  FontBytes header;
  FontBytes content;
  const std::size_t start = 12 + 4 * fonts.size();
  header.Ascii("ttcf").U32(0x00010000).U32(static_cast<std::uint32_t>(fonts.size()));
  for (const TrueTypeBuilder& font : fonts) {
    const std::size_t offset = start + content.Size();
    header.U32(static_cast<std::uint32_t>(offset));
    content.Append(font.BuildAt(offset));
  }
  return header.Append(content.Bytes()).Bytes();
}

Bytes TrueTypeBuilder::Box(int xMin, int yMin, int xMax, int yMax) {
  FontBytes out;
  out.S16(1).S16(xMin).S16(yMin).S16(xMax).S16(yMax).U16(3).U16(0).U8(1).U8(1).U8(1).U8(1);
  for (const int x : {xMin, xMax - xMin, 0, xMin - xMax}) out.S16(x);
  for (const int y : {yMin, 0, yMax - yMin, 0}) out.S16(y);
  return out.Bytes();
}

Bytes TrueTypeBuilder::Composite(const std::vector<unsigned>& parts) {
  constexpr unsigned kWordsAndXY = 0x0003;
  constexpr unsigned kMore = 0x0020;
  FontBytes out;
  out.S16(-1).S16(0).S16(0).S16(1000).S16(1000);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    out.U16(kWordsAndXY | (i + 1 < parts.size() ? kMore : 0U)).U16(parts[i]).S16(0).S16(0);
  }
  return out.Bytes();
}

Bytes TrueTypeBuilder::Format4(std::vector<Segment> segments, const std::vector<unsigned>& glyphIds) {
  segments.push_back({0xFFFF, 0xFFFF, 1, 0});
  const auto count = static_cast<unsigned>(segments.size());
  FontBytes out;
  out.U16(4).U16(16 + 8 * count + 2 * static_cast<unsigned>(glyphIds.size())).U16(0).U16(2 * count);
  // Fields for a binary search: the greatest power of two, its exponent and what is left over.
  const unsigned power = std::bit_floor(count);
  out.U16s({2 * power, static_cast<unsigned>(std::bit_width(power)) - 1, 2 * (count - power)});
  for (const Segment& segment : segments) out.U16(segment.end);
  out.U16(0);
  for (const Segment& segment : segments) out.U16(segment.start);
  for (const Segment& segment : segments) out.U16(segment.delta);
  for (const Segment& segment : segments) out.U16(segment.rangeOffset);
  for (const unsigned glyph : glyphIds) out.U16(glyph);
  return out.Bytes();
}

TablePlace FindTable(const Bytes& font, std::string_view tag) {
  const auto number = [&](std::size_t at) {
    return static_cast<std::size_t>(font.at(at)) << 24U | static_cast<std::size_t>(font.at(at + 1)) << 16U |
           static_cast<std::size_t>(font.at(at + 2)) << 8U | font.at(at + 3);
  };
  for (std::size_t at = 12; at + 16 <= font.size(); at += 16) {
    if (std::equal(tag.begin(), tag.end(), font.begin() + static_cast<std::ptrdiff_t>(at))) {
      return {at, number(at + 8), number(at + 12)};
    }
  }
  throw std::runtime_error("the font has no table " + std::string(tag));
}

}  // namespace zebtest
