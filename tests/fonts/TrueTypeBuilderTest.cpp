#include "support/Files.h"
#include "support/TempDir.h"
#include "support/TrueTypeBuilder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

// The fonts that tests make by hand must be fonts to others too: the OpenType Sanitizer, by which browsers refuse fonts,
// has to take them. (It cannot judge subsets, which have no character map.)

namespace {

using zebtest::TrueTypeBuilder;

class TrueTypeBuilderFonts : public testing::Test {
 protected:
  void SetUp() override {
    if (std::system("command -v ots-sanitize >/dev/null") != 0)
      GTEST_SKIP() << "ots-sanitize is not installed";
  }

  static bool IsTaken(const TrueTypeBuilder& font) {
    const zebtest::TempDir folder;
    zebtest::WriteBytes(folder.File("font.ttf"), font.Build());
    const std::string command =
        "ots-sanitize '" + folder.File("font.ttf").string() + "' '" + folder.File("out.ttf").string() + "'";
    return std::system(command.c_str()) == 0;
  }
};

}  // namespace

TEST_F(TrueTypeBuilderFonts, TheFontAsItStandsIsTaken) { EXPECT_TRUE(IsTaken({})); }

TEST_F(TrueTypeBuilderFonts, LongOffsetsAreTaken) {
  TrueTypeBuilder font;
  font.longLoca = true;
  EXPECT_TRUE(IsTaken(font));
}

TEST_F(TrueTypeBuilderFonts, SharedWidthsAreTaken) {
  TrueTypeBuilder font;
  font.metricsCount = 4;
  EXPECT_TRUE(IsTaken(font));
}

TEST_F(TrueTypeBuilderFonts, CompositesOfCompositesAreTaken) {
  TrueTypeBuilder font;
  font.glyphs.push_back({1300, 30, TrueTypeBuilder::Composite({3, 4})});
  font.glyphs.push_back({1300, 30, TrueTypeBuilder::Composite({5})});
  font.cmaps = {{3, 1, TrueTypeBuilder::Format4({{0x20, 0x20, 2U - 0x20U, 0}, {0x41, 0x44, 3U - 0x41U, 0}})}};
  EXPECT_TRUE(IsTaken(font));
}

TEST_F(TrueTypeBuilderFonts, MapsWithAnArrayOfGlyphsAreTaken) {
  TrueTypeBuilder font;
  // From the first range offset to the array: two words of range offsets.
  font.cmaps = {{3, 1, TrueTypeBuilder::Format4({{0x41, 0x43, 0, 4}}, {4, 3, 2})}};
  EXPECT_TRUE(IsTaken(font));
}

TEST_F(TrueTypeBuilderFonts, AFontWithALyingTableIsNot) {
  TrueTypeBuilder font;
  font.glyphCount = 4000;
  EXPECT_FALSE(IsTaken(font));
}
