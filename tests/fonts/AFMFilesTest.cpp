#include "fonts/ReadFont.h"
#include "support/Files.h"
#include "support/WidePath.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

// Real AFM files against what their lines say, read line by line by the test itself.

namespace {

namespace fs = std::filesystem;
using zebtest::ReadFont;

const fs::path kAdobeFolder = "/usr/share/matplotlib/mpl-data/fonts/pdfcorefonts";

/// What the lines of an AFM file say.
struct Lines {
  std::map<std::string, std::string> Global;
  std::map<std::string, int> WidthOfName;
  std::vector<std::string> Names;
  int Ligatures = 0;
  bool UsesOnlyKnownWords = true;
};

constexpr const char* kUnknownWords[] = {"MetricsSets", "MappingScheme", "EscChar",  "IsBaseFont",
                                         "VVector",     "IsFixedV",      "IsCIDFont"};

void ReadCharacter(const std::string& line, Lines& lines) {
  std::istringstream fields(line);
  int width = 0;
  for (std::string field; std::getline(fields, field, ';');) {
    std::istringstream words(field);
    std::string key;
    words >> key;
    if (key == "WX") words >> width;
    if (key == "L") ++lines.Ligatures;
    if (key == "N") {
      std::string name;
      words >> name;
      lines.Names.push_back(name);
      lines.WidthOfName.emplace(name, width);
    }
  }
}

Lines ReadLines(const fs::path& path) {
  Lines lines;
  std::istringstream in(zebtest::ReadFile(path));
  bool characters = false;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    std::istringstream words(line);
    std::string key;
    words >> key;
    if (key == "EndCharMetrics") break;
    if (characters && key == "C") {
      ReadCharacter(line, lines);
    } else if (key == "StartCharMetrics") {
      characters = true;
    } else if (!characters) {
      std::getline(words >> std::ws, lines.Global[key]);
      if (std::ranges::find(kUnknownWords, key) != std::end(kUnknownWords)) lines.UsesOnlyKnownWords = false;
    }
  }
  return lines;
}

int Number(const Lines& lines, const char* key, int none) {
  const auto found = lines.Global.find(key);
  return found == lines.Global.end() ? none : static_cast<int>(std::stod(found->second));
}

void ExpectGlobal(CFontMetrics& font, Lines& lines) {
  EXPECT_EQ(std::wstring(font.GetBaseFont()), zebtest::Widen(lines.Global["FontName"]));
  EXPECT_EQ(font.GetAscender(), Number(lines, "Ascender", 800));
  EXPECT_EQ(font.GetDescender(), Number(lines, "Descender", -200));
  EXPECT_EQ(font.GetCapHeight(), Number(lines, "CapHeight", 700));
  EXPECT_EQ(font.GetXHeight(), Number(lines, "XHeight", 0));
  EXPECT_EQ(font.GetStemHW(), Number(lines, "StdHW", 0));
  EXPECT_EQ(font.GetUnderlinePosition(), Number(lines, "UnderlinePosition", -100));
  EXPECT_EQ(font.GetUnderlineThickness(), Number(lines, "UnderlineThickness", 50));
  EXPECT_EQ(font.GetItalicAngle(), std::stof(lines.Global["ItalicAngle"]));
  EXPECT_EQ(font.GetFixedPitch(), lines.Global["IsFixedPitch"].starts_with("true"));
  const int stem = Number(lines, "StdVW", 0);
  EXPECT_EQ(font.GetStemVW(), stem == 0 ? font.GetStemVW() : stem);
  std::istringstream box(lines.Global["FontBBox"]);
  for (const float value : {font.GetBBoxLLX(), font.GetBBoxLLY(), font.GetBBoxURX(), font.GetBBoxURY()}) {
    float expected = 0;
    box >> expected;
    EXPECT_EQ(value, expected);
  }
}

void ExpectCharacters(ReadFont& font, const Lines& lines) {
  ASSERT_EQ(font->GetFontCharMetricsCount(), static_cast<int>(lines.Names.size()));
  int ligatures = 0;
  for (int i = 0; i < font->GetFontCharMetricsCount(); ++i) {
    EXPECT_EQ(std::wstring(font.Record(i).GetName()),
              zebtest::Widen(lines.Names[static_cast<std::size_t>(i)]));
    ligatures += font.Record(i).GetLigatureCount();
  }
  EXPECT_EQ(ligatures, lines.Ligatures);
  const auto space = lines.WidthOfName.find("space");
  const int none = space == lines.WidthOfName.end() ? 250 : space->second;
  for (int code = 0; code < 256; ++code) {
    const std::wstring name = font->GetCharNameAt(code);
    const auto found = lines.WidthOfName.find(std::string(name.begin(), name.end()));
    EXPECT_EQ(font->GetWidthAt(code), found == lines.WidthOfName.end() ? none : found->second) << code;
  }
}

void ExpectWhatItsLinesSay(const fs::path& path) {
  SCOPED_TRACE(path.string());
  Lines lines = ReadLines(path);
  ReadFont font;
  if (!lines.UsesOnlyKnownWords) {
    EXPECT_EQ(font.AFM(path), L"WrongGlobalIndentifier");
    return;
  }
  ASSERT_EQ(font.AFM(path), L"");
  ExpectGlobal(font.Metrics(), lines);
  ExpectCharacters(font, lines);
}

int ExpectOfFolder(const fs::path& folder) {
  int count = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".afm") continue;
    ExpectWhatItsLinesSay(entry.path());
    ++count;
  }
  return count;
}

TEST(AFMFiles, TheFourteenAdobeFontsGiveWhatTheirLinesSay) {
  if (!fs::exists(kAdobeFolder)) GTEST_SKIP() << "the package python-matplotlib-data is not installed";
  EXPECT_EQ(ExpectOfFolder(kAdobeFolder), 14);
}

TEST(AFMFiles, OtherFontsGiveWhatTheirLinesSay) {
  int count = 0;
  for (const char* const folder :
       {"/usr/share/matplotlib/mpl-data/fonts/afm", "/usr/share/fonts/type1/urw-base35",
        "/usr/share/fonts/type1/texlive-fonts-recommended"}) {
    if (fs::exists(folder)) count += ExpectOfFolder(folder);
  }
  if (count == 0) GTEST_SKIP() << "no package with AFM files is installed";
}

TEST(AFMFiles, KnownNumbersOfHelveticaBoldOblique) {
  if (!fs::exists(kAdobeFolder)) GTEST_SKIP() << "the package python-matplotlib-data is not installed";
  ReadFont font;
  ASSERT_EQ(font.AFM(kAdobeFolder / "Helvetica-BoldOblique.afm"), L"");
  EXPECT_STREQ(font->GetBaseFont(), L"Helvetica-BoldOblique");
  EXPECT_STREQ(font->GetEncodingScheme(), L"AdobeStandardEncoding");
  EXPECT_EQ(font->GetItalicAngle(), -12.0F);
  EXPECT_EQ(font->GetStemVW(), 140);
  EXPECT_EQ(font->GetStemHW(), 118);
  EXPECT_EQ(font->GetFontCharMetricsCount(), 315);
  EXPECT_EQ(font->GetWidthAt('A'), 722);
  EXPECT_EQ(font->GetWidthAt(0x80), 556) << "Euro";
  EXPECT_EQ(font->GetWidthAt(0xE4), 556) << "adieresis";
  EXPECT_EQ(font->GetFlags(), 0x20 | 0x40 | 0x40000);
}

TEST(AFMFiles, FixedSymbolHasTheWidthOfItsSpaceWhereWinAnsiNamesNoGlyphOfIt) {
  if (!fs::exists(kAdobeFolder)) GTEST_SKIP() << "the package python-matplotlib-data is not installed";
  ReadFont font;
  ASSERT_EQ(font.AFM(kAdobeFolder / "Symbol.afm"), L"");
  EXPECT_STREQ(font->GetEncodingScheme(), L"FontSpecific");
  EXPECT_EQ(font->GetWidthAt('A'), 250) << "Symbol has Alpha there, under another name";
  EXPECT_EQ(font->GetWidthAt('+'), 549);
}

}  // namespace
