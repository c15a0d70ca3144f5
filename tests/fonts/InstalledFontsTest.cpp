// What is read from the TrueType fonts of this machine is what FreeType reads from them.

#include "fonts/FontData.h"
#include "fonts/TrueTypeCMap.h"
#include "fonts/TrueTypeFont.h"
#include "fonts/TrueTypeHMtx.h"
#include "fonts/TrueTypeTables.h"

#include <ft2build.h>
#include <gtest/gtest.h>

#include FT_ADVANCES_H
#include FT_FREETYPE_H
#include FT_SFNT_NAMES_H
#include FT_TRUETYPE_TABLES_H
#include FT_TRUETYPE_TAGS_H

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <map>
#include <memory>

namespace {

using zebtest::TrueTypeFont;

struct FaceDeleter {
  void operator()(FT_Face face) const { FT_Done_Face(face); }
};
using Face = std::unique_ptr<FT_FaceRec, FaceDeleter>;

FT_Library FreeType() {
  static const std::unique_ptr<FT_LibraryRec_, FT_Error (*)(FT_Library)> library(
      [] {
        FT_Library made = nullptr;
        FT_Init_FreeType(&made);
        return made;
      }(),
      FT_Done_FreeType);
  return library.get();
}

Face OpenFace(const std::filesystem::path& path, FT_Long index) {
  FT_Face face = nullptr;
  return FT_New_Face(FreeType(), path.c_str(), index, &face) == 0 ? Face(face) : nullptr;
}

/// The files of a kind under a folder, that of the system's fonts if none is named.
std::vector<std::filesystem::path> FontFiles(const std::string& extension,
                                             const char* folder = "/usr/share/fonts") {
  std::vector<std::filesystem::path> files;
  std::error_code ignored;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder, ignored)) {
    if (entry.is_regular_file() && entry.path().extension() == extension) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

/// The first Windows name of that id in US English.
std::wstring NameOf(FT_Face face, unsigned id) {
  for (FT_UInt index = 0; index < FT_Get_Sfnt_Name_Count(face); ++index) {
    FT_SfntName name = {};
    if (FT_Get_Sfnt_Name(face, index, &name) != 0 || name.platform_id != 3 || name.encoding_id > 1) continue;
    if (name.language_id != 1033 || name.name_id != id || name.string_len == 0) continue;
    std::wstring text;
    for (FT_UInt at = 0; at + 1 < name.string_len; at += 2) {
      text += static_cast<wchar_t>(name.string[at] << 8 | name.string[at + 1]);
    }
    return text;
  }
  return {};
}

/// The Windows map that counts: the last one of Unicode or symbols.
FT_CharMap WindowsMap(FT_Face face) {
  FT_CharMap found = nullptr;
  for (int index = 0; index < face->num_charmaps; ++index) {
    const FT_CharMap map = face->charmaps[index];
    if (map->platform_id == 3 && map->encoding_id <= 1) found = map;
  }
  return found;
}

int Rounded(FT_Face face, int value) {
  return static_cast<int>(
      std::round(static_cast<float>(value) * 1000.0F / static_cast<float>(face->units_per_EM)));
}

void CompareNames(const CFontMetrics& metrics, FT_Face face) {
  EXPECT_EQ(std::wstring(metrics.GetBaseFont()), NameOf(face, 4));
  EXPECT_EQ(std::wstring(metrics.GetFontFamilyName()), NameOf(face, 1));
  EXPECT_EQ(std::wstring(metrics.GetTTName()), NameOf(face, 6).empty() ? NameOf(face, 4) : NameOf(face, 6));
}

void CompareMetrics(const CFontMetrics& metrics, FT_Face face) {
  const auto* const os2 = static_cast<TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  const auto* const hhea = static_cast<TT_HoriHeader*>(FT_Get_Sfnt_Table(face, FT_SFNT_HHEA));
  const auto* const post = static_cast<TT_Postscript*>(FT_Get_Sfnt_Table(face, FT_SFNT_POST));
  EXPECT_EQ(static_cast<int>(metrics.GetBBoxLLX()), Rounded(face, static_cast<int>(face->bbox.xMin)));
  EXPECT_EQ(static_cast<int>(metrics.GetBBoxLLY()), Rounded(face, static_cast<int>(face->bbox.yMin)));
  EXPECT_EQ(static_cast<int>(metrics.GetBBoxURX()), Rounded(face, static_cast<int>(face->bbox.xMax)));
  EXPECT_EQ(static_cast<int>(metrics.GetBBoxURY()), Rounded(face, static_cast<int>(face->bbox.yMax)));
  const int ascender = Rounded(face, os2->sTypoAscender != 0 ? os2->sTypoAscender : hhea->Ascender);
  EXPECT_EQ(metrics.GetAscender(), ascender);
  EXPECT_EQ(metrics.GetDescender(),
            Rounded(face, os2->sTypoDescender != 0 ? os2->sTypoDescender : hhea->Descender));
  if (os2->version >= 2 && os2->sCapHeight != 0) {
    EXPECT_EQ(metrics.GetCapHeight(), Rounded(face, os2->sCapHeight));
  }
  if (os2->version >= 2 && os2->sxHeight != 0) {
    EXPECT_EQ(metrics.GetXHeight(), Rounded(face, os2->sxHeight));
  }
  EXPECT_EQ(metrics.GetUnderlinePosition(), Rounded(face, post->underlinePosition));
  EXPECT_EQ(metrics.GetUnderlineThickness(), Rounded(face, post->underlineThickness));
  EXPECT_EQ(metrics.GetFixedPitch(), post->isFixedPitch != 0);
  EXPECT_NEAR(metrics.GetItalicAngle(), static_cast<double>(post->italicAngle) / 65536.0, 1e-4);
}

/// The name of a glyph as FreeType has it, with the standard names that are others here.
std::wstring GlyphName(FT_Face face, FT_UInt glyph) {
  static const std::map<std::wstring, std::wstring> others = {{L"nonmarkingreturn", L"CR"},
                                                              {L"nonbreakingspace", L"nbspace"},
                                                              {L"apple", L"applelogo"},
                                                              {L"Idotaccent", L"Idot"},
                                                              {L"dcroat", L"dmacron"}};
  char text[300] = {};
  if (FT_Get_Glyph_Name(face, glyph, text, sizeof text) != 0) return {};
  const std::wstring name = zebtest::Widen(text);
  const auto other = others.find(name);
  return other != others.end() ? other->second : name;
}

void CompareGlyphs(const CTrueTypeFile& file, FT_Face face) {
  const CTrueTypeTabHMtx& glyphs = *file.GetTabHMtx();
  ASSERT_GE(glyphs.GetEntryCount(), static_cast<int>(face->num_glyphs));
  const auto count = static_cast<FT_UInt>(face->num_glyphs);
  std::vector<FT_Fixed> advances(count);
  ASSERT_EQ(FT_Get_Advances(face, 0, count, FT_LOAD_NO_SCALE, advances.data()), 0);
  const bool named = !file.GetTabPost()->standardNames.empty() && FT_HAS_GLYPH_NAMES(face);
  for (FT_UInt glyph = 0; glyph < count; ++glyph) {
    const CTrueTypeHMtxEntry& entry = *glyphs.GetEntryAt(static_cast<int>(glyph));
    ASSERT_EQ(entry.GetAdvanceWidth(), advances[glyph]) << glyph;
    // A standard name of the font's own is as FreeType says it.
    if (named && entry.GetNameIndex() < 258) {
      ASSERT_EQ(std::wstring(entry.GetGlyphName()), GlyphName(face, glyph)) << glyph;
    } else if (named) {
      char text[300] = {};
      FT_Get_Glyph_Name(face, glyph, text, sizeof text);
      ASSERT_EQ(std::wstring(entry.GetGlyphName()), zebtest::Widen(text)) << glyph;
    }
  }
}

/// The outlines' places from the raw table.
void CompareLocations(const CTrueTypeFile& file, FT_Face face) {
  FT_ULong length = 0;
  ASSERT_EQ(FT_Load_Sfnt_Table(face, TTAG_loca, 0, nullptr, &length), 0);
  std::vector<FT_Byte> loca(length);
  ASSERT_EQ(FT_Load_Sfnt_Table(face, TTAG_loca, 0, loca.data(), &length), 0);
  const bool isLong = file.GetTabHead()->indexToLocFormat == 1;
  const auto at = [&](std::size_t glyph) {
    const std::size_t i = glyph * (isLong ? 4 : 2);
    const unsigned high = static_cast<unsigned>(loca.at(i)) << 8U | loca.at(i + 1);
    return isLong ? high << 16U | static_cast<unsigned>(loca.at(i + 2)) << 8U | loca.at(i + 3) : 2 * high;
  };
  const auto count = static_cast<std::size_t>(face->num_glyphs);
  for (std::size_t glyph = 0; glyph < count; ++glyph) {
    ASSERT_EQ(file.GetTabHMtx()->GetEntryAt(static_cast<int>(glyph))->GetGlyphOffset(), at(glyph)) << glyph;
  }
  EXPECT_EQ(file.GetTabLoca()->endOffset, at(count));
}

void CompareCharacters(TrueTypeFont& font, FT_Face face) {
  const FT_CharMap map = WindowsMap(face);
  ASSERT_NE(map, nullptr);
  ASSERT_EQ(FT_Set_Charmap(face, map), 0);
  const CFontMetrics& metrics = font.Metrics();
  const CTrueTypeCMap4& ours = *font.File().GetTabCMap()->GetCMap4();
  EXPECT_EQ(ours.GetEncodingID(), map->encoding_id);
  const CTrueTypeTabHMtx& glyphs = *font.File().GetTabHMtx();
  for (int code = 0; code <= 0xFFFE; ++code) {
    const auto character = static_cast<unsigned short>(code);
    const FT_UInt wanted = FT_Get_Char_Index(face, static_cast<FT_ULong>(code));
    const unsigned short glyph = ours.GetGlyph(character);
    ASSERT_EQ(glyph < face->num_glyphs ? glyph : 0, wanted) << code;
    if (code < metrics.GetFirstChar() || code > metrics.GetLastChar()) continue;
    const int width =
        glyphs.GetEntryAt(static_cast<int>(wanted))->GetAdvanceWidth() * 1000 / face->units_per_EM;
    ASSERT_EQ(metrics.GetWidthAt(code), width) << code;
    unsigned short found = 0;
    ASSERT_EQ(metrics.FindGlyphIndex(character, found), wanted != 0) << code;
    ASSERT_EQ(found, wanted) << code;
  }
}

void Compare(TrueTypeFont& font, FT_Face face) {
  CompareNames(font.Metrics(), face);
  CompareMetrics(font.Metrics(), face);
  CompareGlyphs(font.File(), face);
  CompareLocations(font.File(), face);
  CompareCharacters(font, face);
}

bool IsEmbeddingForbidden(FT_Face face) {
  const auto* const os2 = static_cast<TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  return os2 != nullptr && os2->fsType == 2;
}

class InstalledFonts : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(InstalledFonts, AreReadAsFreeTypeReadsThem) {
  const Face face = OpenFace(GetParam(), 0);
  ASSERT_NE(face, nullptr);
  TrueTypeFont font;
  font.ReadFile(zebtest::WidePath(GetParam()), {nullptr, true});
  if (IsEmbeddingForbidden(face.get())) {
    EXPECT_EQ(font.Failure(), L"FontEmbeddingNotAllowed");
    return;
  }
  ASSERT_EQ(font.Failure(), L"");
  Compare(font, face.get());
}

std::string TestName(const testing::TestParamInfo<std::filesystem::path>& info) {
  std::string name = info.param.filename().string();
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return std::to_string(info.index) + "_" + name;
}

INSTANTIATE_TEST_SUITE_P(TrueType, InstalledFonts, testing::ValuesIn(FontFiles(".ttf")), TestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(InstalledFonts);

class InstalledFontsCollections : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(InstalledFontsCollections, AreReadByFullName) {
  const Face first = OpenFace(GetParam(), 0);
  ASSERT_NE(first, nullptr);
  for (FT_Long index = 0; index < first->num_faces; ++index) {
    const Face face = OpenFace(GetParam(), index);
    ASSERT_NE(face, nullptr);
    const std::wstring name = NameOf(face.get(), 4);
    if (name.size() > 32) continue;
    TrueTypeFont font;
    font.ReadFace(name, {nullptr, true});
    FT_ULong length = 0;
    if (FT_Load_Sfnt_Table(face.get(), TTAG_glyf, 0, nullptr, &length) != 0) {
      EXPECT_EQ(font.Failure(), L"TrueTypeCreationFailed");
      continue;
    }
    ASSERT_EQ(font.Failure(), L"") << testing::PrintToString(name);
    EXPECT_EQ(static_cast<std::uintmax_t>(font.Metrics().GetFontData()->GetLength()),
              std::filesystem::file_size(GetParam()));
    Compare(font, face.get());
  }
}

INSTANTIATE_TEST_SUITE_P(TrueType, InstalledFontsCollections, testing::ValuesIn(FontFiles(".ttc")), TestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(InstalledFontsCollections);

/// A font of PostScript outlines. It has no table `glyf`, so it is refused wherever it comes from.
class InstalledFontsPostScript : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(InstalledFontsPostScript, AreRefused) {
  const Face face = OpenFace(GetParam(), 0);
  ASSERT_NE(face, nullptr);
  TrueTypeFont byPath;
  byPath.ReadFile(zebtest::WidePath(GetParam()));
  EXPECT_EQ(byPath.Failure(), L"TrueTypeCreationFailed");
  EXPECT_EQ(byPath.Metrics().GetFontType(), CFontMetrics::FontTypeOpenType);
  EXPECT_EQ(byPath.Metrics().GetTTFile(), nullptr);
  const std::wstring name = NameOf(face.get(), 4);
  if (name.empty() || name.size() > 32) return;
  TrueTypeFont byName;
  byName.ReadFace(name);
  EXPECT_EQ(byName.Failure(), L"TrueTypeCreationFailed") << testing::PrintToString(name);
  EXPECT_EQ(byName.Metrics().GetFontType(), CFontMetrics::FontTypeOpenType);
}

INSTANTIATE_TEST_SUITE_P(OpenType, InstalledFontsPostScript,
                         testing::ValuesIn(FontFiles(".otf", "/usr/share/fonts/opentype/urw-base35")),
                         TestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(InstalledFontsPostScript);

TEST(InstalledFontsByName, GiveTheFileOfTheFace) {
  const std::filesystem::path file = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf";
  if (!std::filesystem::exists(file)) GTEST_SKIP() << "DejaVu Sans is not installed.";
  TrueTypeFont font;
  font.ReadFace(L"DejaVu Sans", {nullptr, true, 700, false});
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_STREQ(font.Metrics().GetBaseFont(), L"DejaVu Sans Bold");
  EXPECT_EQ(static_cast<std::uintmax_t>(font.Metrics().GetFontData()->GetLength()),
            std::filesystem::file_size(file));
}

}  // namespace
