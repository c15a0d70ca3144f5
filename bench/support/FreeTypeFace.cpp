#include "support/FreeTypeFace.h"

#include FT_ADVANCES_H

#include <cstdlib>
#include <iostream>
#include <vector>

namespace zebbench {

FreeTypeFace::FreeTypeFace(const std::string& path, long index) {
  if (FT_Init_FreeType(&m_pLibrary) == 0 && FT_New_Face(m_pLibrary, path.c_str(), index, &m_pFace) == 0)
    return;
  std::cerr << "bench: FreeType cannot open " << path << "; is the font installed?\n";
  std::exit(1);
}

FreeTypeFace::~FreeTypeFace() {
  FT_Done_Face(m_pFace);
  FT_Done_FreeType(m_pLibrary);
}

std::size_t FreeTypeFace::FetchMapAndAdvances() const {
  std::vector<FT_Fixed> advances(static_cast<std::size_t>(m_pFace->num_glyphs));
  if (FT_Get_Advances(m_pFace, 0, static_cast<FT_UInt>(m_pFace->num_glyphs), FT_LOAD_NO_SCALE,
                      advances.data()) != 0) {
    std::cerr << "bench: FreeType cannot give the advance widths.\n";
    std::exit(1);
  }
  std::size_t sum = 0;
  FT_UInt glyph = 0;
  for (FT_ULong code = FT_Get_First_Char(m_pFace, &glyph); glyph != 0;
       code = FT_Get_Next_Char(m_pFace, code, &glyph)) {
    sum += code + glyph + static_cast<std::size_t>(advances[glyph]);
  }
  return sum;
}

}  // namespace zebbench
