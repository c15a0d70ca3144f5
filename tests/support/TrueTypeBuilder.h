#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zebtest {

/// Bytes put together from big-endian numbers.
class FontBytes {
 public:
  FontBytes& U8(unsigned value);
  FontBytes& U16(unsigned value);
  FontBytes& S16(int value) { return U16(static_cast<unsigned>(value)); }
  FontBytes& U32(std::uint32_t value);
  FontBytes& U16s(std::initializer_list<unsigned> values);
  FontBytes& Zeros(std::size_t count);
  FontBytes& Ascii(std::string_view text);
  /// The UTF-16 units of a text.
  FontBytes& Utf16(std::wstring_view text);
  FontBytes& Append(const std::vector<unsigned char>& bytes);
  /// Writes over two bytes that are there.
  FontBytes& PatchU16(std::size_t at, unsigned value);
  FontBytes& PatchU32(std::size_t at, std::uint32_t value);

  std::size_t Size() const { return m_bytes.size(); }
  const std::vector<unsigned char>& Bytes() const { return m_bytes; }

 private:
  std::vector<unsigned char> m_bytes;
};

/// A small TrueType font made by hand: change what the test is about, then Build().
///
/// As it stands: 2048 units per em; glyph 0 a box of width 1000, glyph 1 empty of width 0, glyph 2 empty of width 500
/// (space), glyph 3 a box of width 1200 (A), glyph 4 a composite of glyph 3 of width 1300 (B), all with metrics of
/// their own; names of the family "Probe"; a Windows Unicode map of space, A and B; `post` without names.
class TrueTypeBuilder {
 public:
  struct Glyph {
    unsigned width = 0;
    int bearing = 0;
    std::vector<unsigned char> outline;  ///< its bytes in `glyf`
  };
  struct Name {
    unsigned platform = 3;
    unsigned encoding = 1;
    unsigned language = 1033;
    unsigned id = 0;
    std::wstring text;
  };
  struct Segment {
    unsigned start = 0;
    unsigned end = 0;
    unsigned delta = 0;
    unsigned rangeOffset = 0;
  };
  struct CMapSubtable {
    unsigned platform = 3;
    unsigned encoding = 1;
    std::vector<unsigned char> bytes;
  };

  TrueTypeBuilder();

  std::uint32_t version = 0x00010000;
  unsigned unitsPerEm = 2048;
  int xMin = -100;
  int yMin = -500;
  int xMax = 1500;
  int yMax = 1600;
  bool longLoca = false;

  int hheaAscender = 1600;
  int hheaDescender = -400;
  int lineGap = 100;
  /// Glyphs with a width of their own; all if it is not set.
  std::optional<unsigned> metricsCount;
  /// What `maxp` says; the number of glyphs if it is not set.
  std::optional<unsigned> glyphCount;

  unsigned os2Version = 2;
  unsigned weightClass = 400;
  unsigned fsType = 0;
  unsigned fsSelection = 0x40;
  unsigned firstCharIndex = 0x20;
  int typoAscender = 1500;
  int typoDescender = -450;
  unsigned winAscent = 1700;
  unsigned winDescent = 500;
  int sxHeight = 1000;
  int sCapHeight = 1400;

  std::int32_t italicAngle = 0;  ///< 16.16
  int underlinePosition = -150;
  int underlineThickness = 100;
  std::uint32_t isFixedPitch = 0;

  std::vector<Glyph> glyphs;
  std::vector<Name> names;
  std::vector<CMapSubtable> cmaps;

  /// Puts bytes of its own in the place of a table, or adds one.
  void Replace(const std::string& tag, std::vector<unsigned char> bytes);
  /// Leaves a table out.
  void Remove(const std::string& tag);

  /// The tables by tag, without padding.
  std::map<std::string, std::vector<unsigned char>> Tables() const;
  /// The whole file, with tables in the order of their tags and padded to four bytes.
  std::vector<unsigned char> Build() const;

  /// Fonts in one collection file, each with tables of its own.
  static std::vector<unsigned char> BuildCollection(const std::vector<TrueTypeBuilder>& fonts);

  /// A box with four points.
  static std::vector<unsigned char> Box(int xMin, int yMin, int xMax, int yMax);
  /// A composite of glyphs, each moved by words, without scale.
  static std::vector<unsigned char> Composite(const std::vector<unsigned>& glyphs);
  /// A map of format 4; the end segment 0xFFFF is appended.
  static std::vector<unsigned char> Format4(std::vector<Segment> segments,
                                            const std::vector<unsigned>& glyphIds = {});

 private:
  std::vector<unsigned char> BuildAt(std::size_t offset) const;

  std::map<std::string, std::vector<unsigned char>> m_replaced;
  std::vector<std::string> m_removed;
};

/// Where a table begins in a file that Build() made, and how long it is.
struct TablePlace {
  std::size_t directoryEntry = 0;
  std::size_t offset = 0;
  std::size_t length = 0;
};
TablePlace FindTable(const std::vector<unsigned char>& font, std::string_view tag);

}  // namespace zebtest
