// The expected values of the CJK fonts are typed apart from the tables; those of the standard fonts are read from the
// Adobe Core 14 AFM files.

#include "fonts/BuiltInFonts.h"

#include "fonts/FontData.h"
#include "fonts/FontInformation.h"
#include "fonts/Fonts.h"
#include "fonts/PostscriptFontMetrics.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr const char* kAFMFiles = "/usr/share/matplotlib/mpl-data/fonts/pdfcorefonts";

/// What an AFM file says.
struct AFM {
  std::map<std::string, std::vector<float>> Numbers;  // by keyword
  std::map<std::string, int> WidthsByName;
  std::map<int, int> WidthsByCode;

  int Number(const std::string& key, int absent) const {
    const auto found = Numbers.find(key);
    return found == Numbers.end() ? absent : static_cast<int>(found->second.at(0));
  }
};

AFM ReadAFM(const std::string& font) {
  std::ifstream file(fs::path(kAFMFiles) / (font + ".afm"));
  AFM afm;
  for (std::string line; std::getline(file, line);) {
    int code = 0;
    int width = 0;
    char name[64] = "";
    if (std::sscanf(line.c_str(), "C %d ; WX %d ; N %63s ;", &code, &width, name) == 3) {
      afm.WidthsByName[name] = width;
      afm.WidthsByCode[code] = width;
      continue;
    }
    std::istringstream words(line);
    std::string key;
    words >> key;
    for (float number = 0; words >> number;) afm.Numbers[key].push_back(number);
  }
  return afm;
}

std::wstring Wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }
std::string Narrow(const std::wstring& ascii) {
  std::string text;
  for (const wchar_t character : ascii) text += static_cast<char>(character);
  return text;
}

/// In their order.
constexpr std::array kStandardNames = {
    "Courier",     "Courier-Bold",   "Courier-BoldOblique",   "Courier-Oblique",
    "Helvetica",   "Helvetica-Bold", "Helvetica-BoldOblique", "Helvetica-Oblique",
    "Times-Roman", "Times-Bold",     "Times-BoldItalic",      "Times-Italic",
    "Symbol",      "ZapfDingbats"};

bool IsSymbolic(std::string_view font) { return font == "Symbol" || font == "ZapfDingbats"; }

/// A list of fonts and the metrics of its font at an index.
class StandardFont : public testing::TestWithParam<int> {
 protected:
  static void SetUpTestSuite() { ASSERT_TRUE(fs::exists(kAFMFiles)) << "install python-matplotlib-data"; }

  std::string Name() const { return kStandardNames[static_cast<std::size_t>(GetParam())]; }

  CFonts m_fonts{nullptr};
  const CFontMetrics& m_metrics = *m_fonts.GetFontAt(GetParam())->GetFontMetrics();
  AFM m_afm = ReadAFM(Name());
};

TEST_P(StandardFont, HasTheMeasuresOfItsFile) {
  const bool isSymbolic = IsSymbolic(Name());
  EXPECT_EQ(Narrow(m_metrics.GetBaseFont()), Name());
  EXPECT_EQ(m_metrics.GetAscender(), m_afm.Number("Ascender", 800));
  EXPECT_EQ(m_metrics.GetDescender(), m_afm.Number("Descender", -200));
  EXPECT_EQ(m_metrics.GetCapHeight(), m_afm.Number("CapHeight", 700));
  EXPECT_EQ(m_metrics.GetXHeight(), m_afm.Number("XHeight", 0));
  EXPECT_EQ(m_afm.Numbers.contains("Ascender"), !isSymbolic);
  const std::vector<float> box = {m_metrics.GetBBoxLLX(), m_metrics.GetBBoxLLY(), m_metrics.GetBBoxURX(),
                                  m_metrics.GetBBoxURY()};
  EXPECT_EQ(box, m_afm.Numbers.at("FontBBox"));
  EXPECT_EQ(m_metrics.GetUnderlinePosition(), -100);
  EXPECT_EQ(m_metrics.GetUnderlineThickness(), 50);
}

TEST_P(StandardFont, IsNeverEmbeddedAndHasNoDescriptor) {
  EXPECT_TRUE(m_metrics.GetBase14Font());
  EXPECT_FALSE(m_metrics.GetCJKFont());
  EXPECT_EQ(m_metrics.GetFontEmbedding(), CFontMetrics::EmbedNone);
  EXPECT_EQ(m_metrics.GetFontType(), CFontMetrics::FontTypeType1);
  EXPECT_EQ(m_metrics.GetFlags(), 0);
}

TEST_P(StandardFont, HasItsEncoding) {
  const bool isSymbolic = IsSymbolic(Name());
  EXPECT_STREQ(m_metrics.GetEncoding(), isSymbolic ? L"fontspecific" : L"winansi1252");
  EXPECT_STREQ(m_metrics.GetEncodingScheme(), isSymbolic ? L"FontSpecific" : L"");
  EXPECT_FALSE(m_metrics.GetSymbolFont());
  EXPECT_FALSE(m_metrics.GetUnicodeFont());
}

TEST_P(StandardFont, HasTheDefaultsInAllElse) {
  EXPECT_NE(dynamic_cast<const CPostscriptFontMetrics*>(&m_metrics), nullptr);
  EXPECT_EQ(m_metrics.GetItalicAngle(), 0);
  EXPECT_FALSE(m_metrics.GetFixedPitch());
  EXPECT_EQ(m_metrics.GetStemVW(), 0);
  EXPECT_EQ(m_metrics.GetStemHW(), 0);
  EXPECT_EQ(m_metrics.GetFirstChar(), 0);
  EXPECT_EQ(m_metrics.GetLastChar(), 256);
  EXPECT_EQ(m_metrics.GetBold(), 400);
  EXPECT_FALSE(m_metrics.GetItalic());
  EXPECT_STREQ(m_metrics.GetFontFamilyName(), L"");
  EXPECT_STREQ(m_metrics.GetTTName(), L"");
  EXPECT_EQ(m_metrics.GetLocalizedFontNameCount(), 0);
  EXPECT_EQ(m_metrics.GetFontCharMetricsCount(), 0);
  EXPECT_EQ(m_metrics.GetFontData()->GetLength(), 0);
}

TEST_P(StandardFont, HasTheWidthsOfItsFile) {
  for (int code = 0; code < 256; ++code) {
    int expected = 0;
    if (IsSymbolic(Name())) {
      const auto found = m_afm.WidthsByCode.find(code);
      expected = found != m_afm.WidthsByCode.end() ? found->second : Name() == "Symbol" ? 250 : 278;
    } else {
      const std::string glyph = Narrow(m_metrics.GetCharNameAt(code));
      expected = m_afm.WidthsByName.at(code < 32 ? "space" : glyph);
    }
    EXPECT_EQ(m_metrics.GetWidthAt(code), expected) << Name() << ' ' << code;
  }
  for (int code = 256; code < 65536; ++code) EXPECT_EQ(m_metrics.GetWidthAt(code), 0);
}

INSTANTIATE_TEST_SUITE_P(All, StandardFont, testing::Range(0, 14));

const CFontMetrics& MetricsOf(const CFonts& fonts, const wchar_t* name) {
  return *fonts.FindFont(name, 400, false)->GetFontMetrics();
}

TEST(StandardFontWidths, AreThoseOfTheSpaceBelow32) {
  const CFonts fonts(nullptr);
  for (const int code : {0, 9, 31}) {
    EXPECT_EQ(MetricsOf(fonts, L"Courier").GetWidthAt(code), 600);
    EXPECT_EQ(MetricsOf(fonts, L"Helvetica").GetWidthAt(code), 278);
    EXPECT_EQ(MetricsOf(fonts, L"Helvetica-BoldOblique").GetWidthAt(code), 278);
    EXPECT_EQ(MetricsOf(fonts, L"Times-Roman").GetWidthAt(code), 250);
    EXPECT_EQ(MetricsOf(fonts, L"Times-BoldItalic").GetWidthAt(code), 250);
    EXPECT_EQ(MetricsOf(fonts, L"Symbol").GetWidthAt(code), 250);
    EXPECT_EQ(MetricsOf(fonts, L"ZapfDingbats").GetWidthAt(code), 278);
  }
}

TEST(StandardFontWidths, AreThoseOfTheBulletAtUnusedCodes) {
  const CFonts fonts(nullptr);
  for (const int code : {127, 129, 141, 143, 144, 157}) {
    EXPECT_EQ(MetricsOf(fonts, L"Helvetica").GetWidthAt(code), 350);
    EXPECT_EQ(MetricsOf(fonts, L"Helvetica-Bold").GetWidthAt(code), 350);
    EXPECT_EQ(MetricsOf(fonts, L"Times-Italic").GetWidthAt(code), 350);
    EXPECT_EQ(MetricsOf(fonts, L"Courier-Bold").GetWidthAt(code), 600);
  }
}

TEST(StandardFontWidths, AreThoseOfWellKnownCharacters) {
  const CFonts fonts(nullptr);
  EXPECT_EQ(MetricsOf(fonts, L"Helvetica").GetWidthAt('A'), 667);
  EXPECT_EQ(MetricsOf(fonts, L"Helvetica").GetWidthAt(128), 556) << "Euro";
  EXPECT_EQ(MetricsOf(fonts, L"Helvetica-Bold").GetWidthAt('A'), 722);
  EXPECT_EQ(MetricsOf(fonts, L"Times-Roman").GetWidthAt('W'), 944);
  EXPECT_EQ(MetricsOf(fonts, L"Symbol").GetWidthAt('a'), 631) << "alpha";
  EXPECT_EQ(MetricsOf(fonts, L"ZapfDingbats").GetWidthAt(33), 974) << "a1";
}

/// A row of the predefined CJK fonts.
struct CJKRow {
  const wchar_t* Name;
  int Collection;
  int Ascender, Descender, CapHeight, XHeight;
  float LLX, LLY, URX, URY;
  int Flags, StemVW, StemHW;
};

constexpr CJKRow kCJKRows[] = {
    {L"HeiseiKakuGo-W5", 2, 752, -221, 737, 553, -92, -250, 1010, 922, 4, 114, 0},
    {L"HeiseiMin-W3", 2, 723, -241, 709, 450, -123, -257, 1001, 910, 6, 69, 0},
    {L"KozMinPro-Regular-Acro", 2, 752, -221, 737, 553, -195, -272, 1110, 1075, 6, 58, 0},
    {L"HYGoThic-Medium", 3, 752, -271, 737, 553, -6, -145, 1003, 880, 6, 58, 0},
    {L"HYSMyeongJo-Medium", 3, 752, -271, 737, 553, 0, -148, 1001, 880, 6, 58, 0},
    {L"HYSMyeongJoStd-Medium-Acro", 3, 752, -271, 737, 553, -28, -148, 1001, 880, 6, 58, 0},
    {L"MHei-Medium", 1, 752, -271, 737, 553, -45, -250, 1015, 887, 6, 58, 0},
    {L"MSung-Light", 1, 752, -271, 737, 553, -160, -259, 1015, 888, 6, 58, 0},
    {L"MSungStd-Light-Acro", 1, 752, -271, 737, 553, -160, -249, 1015, 1071, 6, 58, 0},
    {L"STSong-Light", 0, 857, -143, 857, 599, -250, -143, 600, 857, 4, 91, 91},
    {L"STSongStd-Light-Acro", 0, 880, -120, 626, 416, -134, -254, 1001, 905, 4, 71, 0},
};

class CJKFont : public testing::TestWithParam<int> {
 protected:
  CFonts m_fonts{nullptr};
  const CFontMetrics& m_metrics = *m_fonts.GetFontAt(14 + GetParam())->GetFontMetrics();
  const CJKRow& m_row = kCJKRows[GetParam()];
};

TEST_P(CJKFont, HasItsMeasures) {
  EXPECT_STREQ(m_metrics.GetBaseFont(), m_row.Name);
  EXPECT_EQ(m_metrics.GetCharColl(), m_row.Collection);
  EXPECT_EQ(m_metrics.GetAscender(), m_row.Ascender);
  EXPECT_EQ(m_metrics.GetDescender(), m_row.Descender);
  EXPECT_EQ(m_metrics.GetCapHeight(), m_row.CapHeight);
  EXPECT_EQ(m_metrics.GetXHeight(), m_row.XHeight);
  EXPECT_EQ(m_metrics.GetBBoxLLX(), m_row.LLX);
  EXPECT_EQ(m_metrics.GetBBoxLLY(), m_row.LLY);
  EXPECT_EQ(m_metrics.GetBBoxURX(), m_row.URX);
  EXPECT_EQ(m_metrics.GetBBoxURY(), m_row.URY);
  EXPECT_EQ(m_metrics.GetFlags(), m_row.Flags);
  EXPECT_EQ(m_metrics.GetStemVW(), m_row.StemVW);
  EXPECT_EQ(m_metrics.GetStemHW(), m_row.StemHW);
  EXPECT_EQ(m_metrics.GetUnderlinePosition(), GetParam() == 10 ? -75 : -100);
  EXPECT_EQ(m_metrics.GetUnderlineThickness(), 50);
}

TEST_P(CJKFont, IsAFontOfTwoByteCodesAndNeverEmbedded) {
  EXPECT_STREQ(m_metrics.GetEncoding(), L"cid");
  EXPECT_STREQ(m_metrics.GetEncodingScheme(), L"");
  EXPECT_EQ(m_metrics.GetFontType(), CFontMetrics::FontTypeCID);
  EXPECT_TRUE(m_metrics.GetUnicodeFont());
  EXPECT_TRUE(m_metrics.GetFixedPitch());
  EXPECT_TRUE(m_metrics.GetCJKFont());
  EXPECT_FALSE(m_metrics.GetBase14Font());
  EXPECT_EQ(m_metrics.GetFontEmbedding(), CFontMetrics::EmbedNone);
  EXPECT_EQ(m_metrics.GetItalicAngle(), 0);
  EXPECT_STREQ(m_metrics.GetFontFamilyName(), L"");
}

TEST_P(CJKFont, EveryCodeIsOneEmWide) {
  for (int code = 0; code < 65536; ++code) ASSERT_EQ(m_metrics.GetWidthAt(code), 1000) << code;
}

INSTANTIATE_TEST_SUITE_P(All, CJKFont, testing::Range(0, 11));

TEST(BuiltInFonts, AreMadeWhenTheyAreAskedFor) {
  CFonts fonts(nullptr);
  zeb::BuiltInFonts builtIn(&fonts);
  EXPECT_EQ(builtIn.MadeAt(4), nullptr);
  CFontInformation* const font = builtIn.At(4);
  EXPECT_EQ(builtIn.At(4), font);
  EXPECT_EQ(builtIn.MadeAt(4), font);
  EXPECT_EQ(builtIn.MadeAt(5), nullptr);
  delete font;
}

TEST(BuiltInFonts, HaveTheirNamesBefore) {
  for (std::size_t i = 0; i < kStandardNames.size(); ++i) {
    EXPECT_EQ(zeb::BuiltInFonts::NameAt(i), Wide(kStandardNames[i]));
  }
  for (std::size_t i = 0; i < std::size(kCJKRows); ++i) {
    EXPECT_STREQ(zeb::BuiltInFonts::NameAt(14 + i), kCJKRows[i].Name);
  }
}

}  // namespace
