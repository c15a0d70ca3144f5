#include "fonts/FontData.h"
#include "fonts/FontMetrics.h"
#include "fonts/TrueTypeFont.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

// Every glyph of a subset must be drawn as the font draws it. FreeType, which has no part in making the subset, is asked
// for both outlines.

namespace {

struct Case {
  const char* name;
  const char* path;
  const wchar_t* face;   ///< of a collection; null for a single font
  const char* fullName;  ///< of that face, as FreeType spells it
};

void PrintTo(const Case& which, std::ostream* out) { *out << which.name; }

struct FaceCloser {
  void operator()(FT_Face face) const { FT_Done_Face(face); }
};
using Face = std::unique_ptr<FT_FaceRec_, FaceCloser>;

class SubsetOutlines : public testing::TestWithParam<Case> {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(GetParam().path)) GTEST_SKIP() << GetParam().path << " is not installed";
    ASSERT_EQ(FT_Init_FreeType(&m_library), 0);
  }
  void TearDown() override {
    if (m_library != nullptr) FT_Done_FreeType(m_library);
  }

  Face Open(const char* path, FT_Long index) const {
    FT_Face face = nullptr;
    return Face(FT_New_Face(m_library, path, index, &face) == 0 ? face : nullptr);
  }
  Face Open(const CFontData& data) const {
    FT_Face face = nullptr;
    return Face(FT_New_Memory_Face(m_library, data.GetData(), data.GetLength(), 0, &face) == 0 ? face
                                                                                               : nullptr);
  }
  Face OpenSource() const {
    Face face = Open(GetParam().path, 0);
    if (GetParam().face == nullptr) return face;
    for (FT_Long i = 0; i < face->num_faces; ++i) {
      Face one = Open(GetParam().path, i);
      if (std::string(one->family_name) == GetParam().fullName) return one;
    }
    return nullptr;
  }

 private:
  FT_Library m_library = nullptr;
};

/// Characters of a font, spread over all that it has.
std::vector<unsigned short> SomeCharacters(FT_Face face, std::size_t most) {
  std::vector<unsigned short> all;
  FT_UInt glyph = 0;
  for (FT_ULong code = FT_Get_First_Char(face, &glyph); glyph != 0 && code <= 0xFFFF;
       code = FT_Get_Next_Char(face, code, &glyph)) {
    all.push_back(static_cast<unsigned short>(code));
  }
  const std::size_t step = std::max<std::size_t>(all.size() / most, 1);
  std::vector<unsigned short> some;
  for (std::size_t i = 0; i < all.size(); i += step) some.push_back(all[i]);
  return some;
}

/// A glyph's outline in font units, as text: where it differs, the failure shows both.
std::string Outline(FT_Face face, FT_UInt glyph) {
  if (FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE) != 0) return "cannot be loaded";
  const FT_Outline& outline = face->glyph->outline;
  std::string text = "advance " + std::to_string(face->glyph->metrics.horiAdvance) + ":";
  for (int i = 0; i < outline.n_points; ++i) {
    text += ' ' + std::to_string(outline.points[i].x) + ',' + std::to_string(outline.points[i].y) + '/' +
            std::to_string(FT_CURVE_TAG(outline.tags[i]));
  }
  for (int i = 0; i < outline.n_contours; ++i) text += " |" + std::to_string(outline.contours[i]);
  return text;
}

}  // namespace

TEST_P(SubsetOutlines, AreThoseOfTheFont) {
  const Face source = OpenSource();
  ASSERT_NE(source, nullptr);
  zebtest::TrueTypeFont font;
  if (GetParam().face == nullptr) {
    const std::string path = GetParam().path;
    font.ReadFile(std::wstring(path.begin(), path.end()), {.unicode = true});
  } else {
    font.ReadFace(GetParam().face, {.unicode = true});
  }
  ASSERT_EQ(font.Failure(), L"");

  for (const unsigned short code : SomeCharacters(source.get(), 1500)) font.Metrics().MapChar(code);
  font.Metrics().CreateSubsetFont();
  const Face subset = Open(*font.Metrics().GetFontData());
  ASSERT_NE(subset, nullptr);

  FT_Long compared = 0;
  for (FT_Long glyph = 0; glyph < source->num_glyphs; ++glyph) {
    unsigned short number = 0;
    if (!font.Metrics().FindUsedGlyphIndex(static_cast<unsigned short>(glyph), number)) continue;
    ASSERT_EQ(Outline(subset.get(), number), Outline(source.get(), static_cast<FT_UInt>(glyph)))
        << "glyph " << glyph << ", number " << number;
    ++compared;
  }
  EXPECT_EQ(compared, subset->num_glyphs);
  EXPECT_GT(compared, 500);
}

INSTANTIATE_TEST_SUITE_P(
    Fonts, SubsetOutlines,
    testing::Values(
        Case{"DejaVuSans", "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", nullptr, ""},
        Case{"DejaVuSerifBold", "/usr/share/fonts/truetype/dejavu/DejaVuSerif-Bold.ttf", nullptr, ""},
        Case{"LiberationSerif", "/usr/share/fonts/truetype/liberation/LiberationSerif-Regular.ttf", nullptr,
             ""},
        Case{"FreeSerif", "/usr/share/fonts/truetype/freefont/FreeSerif.ttf", nullptr, ""},
        Case{"FreeMono", "/usr/share/fonts/truetype/freefont/FreeMono.ttf", nullptr, ""},
        Case{"IPAGothic", "/usr/share/fonts/opentype/ipafont-gothic/ipag.ttf", nullptr, ""},
        Case{"UnBatang", "/usr/share/fonts/truetype/unfonts-core/UnBatang.ttf", nullptr, ""},
        Case{"ZenHei", "/usr/share/fonts/truetype/wqy/wqy-zenhei.ttc", L"WenQuanYi Zen Hei",
             "WenQuanYi Zen Hei"},
        Case{"UMing", "/usr/share/fonts/truetype/arphic/uming.ttc", L"AR PL UMing CN", "AR PL UMing CN"}),
    [](const testing::TestParamInfo<Case>& tested) { return std::string(tested.param.name); });
