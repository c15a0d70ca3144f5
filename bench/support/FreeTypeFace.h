#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstddef>
#include <string>

namespace zebbench {

/// A font file that FreeType has open. Ends the program with a message if it cannot be opened.
class FreeTypeFace {
 public:
  /// @param index of the font in a collection, 0 otherwise
  explicit FreeTypeFace(const std::string& path, long index = 0);
  ~FreeTypeFace();
  FreeTypeFace(const FreeTypeFace&) = delete;
  FreeTypeFace& operator=(const FreeTypeFace&) = delete;

  FT_Face Get() const { return m_pFace; }

  /// Fetches every character with its glyph and the advance widths of all glyphs, in font units: what the library
  /// holds when it has read a font.
  /// @return a number that depends on all of them
  std::size_t FetchMapAndAdvances() const;

 private:
  FT_Library m_pLibrary = nullptr;  // owned
  FT_Face m_pFace = nullptr;        // owned
};

}  // namespace zebbench
