#include "fonts/ReadFont.h"
#include "support/Files.h"
#include "support/WidePath.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;
using zebtest::ReadFont;

const fs::path kTexFonts = "/usr/share/texlive/texmf-dist/fonts";

/// The bytes of a PFM file: codes 65 to 67, the width table at 220, the name "Sample" behind it.
class PFM {
 public:
  PFM() : m_bytes(233, '\0') {
    U16(0, 0x100).U16(74, 750).U8(80, 1).U16(83, 400).U8(85, 0).U8(90, 0x11).U16(93, 1100);
    U8(95, 65).U8(96, 67).U32(123, 220).U32(139, 226);
    U16(161, 700).U16(163, 480).U16(167, 210).U16(169, -150).U16(179, 100).U16(181, 50);
    Text(199, "PostScript").U16(220, 600).U16(222, 610).U16(224, 620).Text(226, "Sample");
  }

  PFM& U8(std::size_t at, int value) {
    m_bytes[at] = static_cast<char>(value);
    return *this;
  }
  PFM& U16(std::size_t at, int value) { return U8(at, value & 0xFF).U8(at + 1, (value >> 8) & 0xFF); }
  PFM& U32(std::size_t at, long long value) {
    return U16(at, static_cast<int>(value & 0xFFFF)).U16(at + 2, static_cast<int>((value >> 16) & 0xFFFF));
  }
  PFM& Text(std::size_t at, std::string_view text) {
    m_bytes.replace(at, text.size(), text);
    return *this;
  }
  PFM& Resize(std::size_t size) {
    m_bytes.resize(size, '\0');
    return *this;
  }
  const std::string& Bytes() const { return m_bytes; }

 private:
  std::string m_bytes;
};

TEST(PFMReader, EveryFieldIsTaken) {
  ReadFont font;
  ASSERT_EQ(font.PFMBytes(PFM().Bytes()), L"");
  EXPECT_STREQ(font->GetBaseFont(), L"Sample");
  EXPECT_STREQ(font->GetEncoding(), L"winansi1252");
  EXPECT_STREQ(font->GetEncodingScheme(), L"AdobeStandardEncoding");
  EXPECT_EQ(font->GetFontType(), CFontMetrics::FontTypeType1);
  EXPECT_EQ(font->GetStemVW(), 87) << "(400 / 65)^2 + 50 = 87.87";
  EXPECT_EQ(font->GetStemHW(), 0);
  EXPECT_EQ(font->GetItalicAngle(), -15.0F);
  EXPECT_EQ(font->GetCapHeight(), 700);
  EXPECT_EQ(font->GetXHeight(), 480);
  EXPECT_EQ(font->GetDescender(), -210);
  EXPECT_EQ(font->GetAscender(), 750);
  EXPECT_EQ(font->GetUnderlinePosition(), -100);
  EXPECT_EQ(font->GetUnderlineThickness(), 50);
  EXPECT_EQ(font->GetBBoxLLX(), -200.0F);
  EXPECT_EQ(font->GetBBoxLLY(), -210.0F);
  EXPECT_EQ(font->GetBBoxURX(), 1100.0F);
  EXPECT_EQ(font->GetBBoxURY(), 750.0F);
  EXPECT_FALSE(font->GetFixedPitch());
  EXPECT_EQ(font->GetFontCharMetricsCount(), 0);
}

TEST(PFMReader, WidthsOutsideOfTheTableAre250) {
  ReadFont font;
  font->SetWidthAt(256, 7);
  ASSERT_EQ(font.PFMBytes(PFM().Bytes()), L"");
  EXPECT_EQ(font->GetWidthAt(0), 250);
  EXPECT_EQ(font->GetWidthAt(64), 250);
  EXPECT_EQ(font->GetWidthAt(65), 600);
  EXPECT_EQ(font->GetWidthAt(66), 610);
  EXPECT_EQ(font->GetWidthAt(67), 620);
  EXPECT_EQ(font->GetWidthAt(68), 250);
  EXPECT_EQ(font->GetWidthAt(255), 250);
  EXPECT_EQ(font->GetWidthAt(256), 7);
}

TEST(PFMReader, BothVersionsAreRead) {
  for (const auto& [version, key] : {std::pair{0x100, L""},
                                     {0x200, L""},
                                     {0x101, L"IncorrectPFMFile"},
                                     {0x300, L"IncorrectPFMFile"},
                                     {0, L"IncorrectPFMFile"}}) {
    ReadFont font;
    EXPECT_EQ(font.PFMBytes(PFM().U16(0, version).Bytes()), key) << version;
  }
}

TEST(PFMReader, AnotherDeviceIsIncorrect) {
  ReadFont font;
  EXPECT_EQ(font.PFMBytes(PFM().Text(199, "postScript").Bytes()), L"IncorrectPFMFile");
  EXPECT_EQ(font.PFMBytes(PFM().Text(199, "PostScripT").Bytes()), L"IncorrectPFMFile");
}

TEST(PFMReader, AFileThatStopsAnywhereIsReadOrRefused) {
  const std::string whole = PFM().Bytes();
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    ReadFont font;
    // Up to the last byte of the width table but one the file is too short for it.
    EXPECT_EQ(font.PFMBytes(whole.substr(0, length)), length < 225 ? L"IncorrectPFMFile" : L"") << length;
  }
}

TEST(PFMReader, AFileWithoutItsWholeDeviceNameIsIncorrect) {
  ReadFont font;
  const PFM empty = PFM().U8(95, 0).U8(96, 0).U32(123, 0).U32(139, 0);
  EXPECT_EQ(font.PFMBytes(PFM(empty).Resize(208).Bytes()), L"IncorrectPFMFile");
  EXPECT_EQ(font.PFMBytes(PFM(empty).Resize(209).Bytes()), L"");
}

TEST(PFMReader, FixedTheLastByteOfTheWidthTableMayBeMissing) {
  ReadFont font;
  ASSERT_EQ(font.PFMBytes(PFM().U16(224, 0x0203).Resize(225).Bytes()), L"");
  EXPECT_EQ(font->GetWidthAt(67), 3);
  EXPECT_STREQ(font->GetBaseFont(), L"");
}

// Attack: offsets behind the end of the file.
TEST(PFMReader, AWidthTableBehindTheFileIsIncorrect) {
  for (const long long offset : {229LL, 1000LL, 0x7FFFFFFFLL, 0x80000000LL, 0xFFFFFFFFLL, 0xFFFFFFFELL}) {
    ReadFont font;
    EXPECT_EQ(font.PFMBytes(PFM().U32(123, offset).Bytes()), L"IncorrectPFMFile") << offset;
  }
  ReadFont last;
  EXPECT_EQ(last.PFMBytes(PFM().U32(123, 228).Bytes()), L"");
}

TEST(PFMReader, ANameBehindTheFileIsEmpty) {
  for (const long long offset : {233LL, 0x7FFFFFFFLL, 0xFFFFFFFFLL}) {
    ReadFont font;
    font->SetBaseFont(L"before");
    ASSERT_EQ(font.PFMBytes(PFM().U32(139, offset).Bytes()), L"");
    EXPECT_STREQ(font->GetBaseFont(), L"");
  }
}

TEST(PFMReader, ANameWithoutEndEndsWithTheFile) {
  ReadFont font;
  ASSERT_EQ(font.PFMBytes(PFM().Resize(230).Bytes()), L"");
  EXPECT_STREQ(font->GetBaseFont(), L"Samp");
}

TEST(PFMReader, FixedANameIsWidenedWithItsSign) {
  ReadFont font;
  ASSERT_EQ(font.PFMBytes(PFM().Text(226, "S\xE4m").Bytes()), L"");
  EXPECT_STREQ(font->GetBaseFont(), L"S\xFFE4mple");
}

TEST(PFMReader, CharacterSets) {
  ReadFont symbol;
  ASSERT_EQ(symbol.PFMBytes(PFM().U8(85, 2).Bytes()), L"");
  EXPECT_STREQ(symbol->GetEncoding(), L"fontspecific");
  EXPECT_STREQ(symbol->GetEncodingScheme(), L"FontSpecific");
  EXPECT_EQ(symbol->GetFlags(), 0x4 | 0x40);
  for (const int charSet : {1, 128, 200, 255}) {
    ReadFont font;
    EXPECT_EQ(font.PFMBytes(PFM().U8(85, charSet).Bytes()), L"IncorrectPFMFile") << charSet;
    EXPECT_EQ(font.PFMBytes(PFM().U8(85, charSet).U8(90, 0x5F).Bytes()), L"") << charSet;
    EXPECT_STREQ(font->GetEncoding(), L"fontspecific");
  }
  ReadFont decorative;
  ASSERT_EQ(decorative.PFMBytes(PFM().U8(90, 0x50).Bytes()), L"");
  EXPECT_STREQ(decorative->GetEncoding(), L"fontspecific");
}

TEST(PFMReader, FixedTheFlagsOfTheFamilyAreLostUnlessTheFileIsRefused) {
  for (const auto& [family, flag] : {std::pair{0x11, 2}, {0x4F, 8}, {0x20, 0}, {0x30, 0}}) {
    ReadFont font;
    EXPECT_EQ(font.PFMBytes(PFM().U8(90, family).Bytes()), L"");
    EXPECT_EQ(font->GetFlags(), 0x20 | 0x40) << family;
    EXPECT_EQ(font.PFMBytes(PFM().U8(90, family).U8(85, 128).Bytes()), L"IncorrectPFMFile");
    EXPECT_EQ(font->GetFlags(), flag) << family;
  }
}

TEST(PFMReader, TheStemFollowsTheWeight) {
  for (const auto& [weight, stem] : {std::pair{0, 50}, {65, 51}, {400, 87}, {700, 165}, {65535, 1016579}}) {
    ReadFont font;
    ASSERT_EQ(font.PFMBytes(PFM().U16(83, weight).Bytes()), L"");
    EXPECT_EQ(font->GetStemVW(), stem) << weight;
  }
}

TEST(PFMReader, EqualWidthsMeanFixedPitch) {
  ReadFont font;
  ASSERT_EQ(font.PFMBytes(PFM().U16(222, 600).U16(224, 600).Bytes()), L"");
  EXPECT_TRUE(font->GetFixedPitch());
  EXPECT_EQ(font->GetFlags(), 0x1 | 0x20 | 0x40);
  ReadFont last;
  ASSERT_EQ(last.PFMBytes(PFM().U16(222, 600).U16(224, 601).Bytes()), L"");
  EXPECT_FALSE(last->GetFixedPitch());
  ReadFont one;
  ASSERT_EQ(one.PFMBytes(PFM().U8(96, 65).Bytes()), L"");
  EXPECT_TRUE(one->GetFixedPitch());
}

// Attack: the last code lies in front of the first.
TEST(PFMReader, AnEmptyRangeOfCodesHasNoWidthsAndCountsAsFixed) {
  ReadFont font;
  ASSERT_EQ(font.PFMBytes(PFM().U8(95, 255).U8(96, 0).U32(123, 500).Bytes()), L"");
  EXPECT_EQ(font->GetWidthAt(65), 250);
  EXPECT_EQ(font->GetWidthAt(255), 250);
  EXPECT_TRUE(font->GetFixedPitch());
}

TEST(PFMReader, ASlantCountsOnlyInAnItalicFont) {
  ReadFont upright;
  ASSERT_EQ(upright.PFMBytes(PFM().U8(80, 0).Bytes()), L"");
  EXPECT_EQ(upright->GetItalicAngle(), 0.0F);
  EXPECT_EQ(upright->GetFlags(), 0x20);
  ReadFont positive;
  ASSERT_EQ(positive.PFMBytes(PFM().U8(80, 255).U16(169, 123).Bytes()), L"");
  EXPECT_EQ(positive->GetItalicAngle(), 12.3F);
}

TEST(PFMReader, APositiveDescenderIsZero) {
  ReadFont font;
  ASSERT_EQ(font.PFMBytes(PFM().U16(167, -210).Bytes()), L"");
  EXPECT_EQ(font->GetDescender(), 0);
  EXPECT_EQ(font->GetBBoxLLY(), 0.0F);
}

TEST(PFMReader, SignedAndUnsignedFields) {
  ReadFont font;
  ASSERT_EQ(font.PFMBytes(PFM()
                              .U16(74, 0xFFFF)
                              .U16(93, 0xFFFF)
                              .U16(161, -1)
                              .U16(163, -2)
                              .U16(179, -3)
                              .U16(181, -4)
                              .U16(167, -32768)
                              .Bytes()),
            L"");
  EXPECT_EQ(font->GetAscender(), 65535);
  EXPECT_EQ(font->GetBBoxURX(), 65535.0F);
  EXPECT_EQ(font->GetBBoxURY(), 65535.0F);
  EXPECT_EQ(font->GetCapHeight(), -1);
  EXPECT_EQ(font->GetXHeight(), -2);
  EXPECT_EQ(font->GetUnderlinePosition(), 3);
  EXPECT_EQ(font->GetUnderlineThickness(), -4);
  EXPECT_EQ(font->GetDescender(), 0);
}

TEST(PFMReader, ARefusedFileLeavesTheObjectReadyForAnother) {
  ReadFont font;
  font->SetAscender(5);
  EXPECT_EQ(font.PFMBytes("no font"), L"IncorrectPFMFile");
  EXPECT_EQ(font->GetAscender(), 5) << "a file that is none resets nothing";
  EXPECT_EQ(font.PFM(font.Dir().File("none.pfm")), L"ReadFileFailure");
  EXPECT_EQ(font.PFM(font.Dir().Path()), L"ReadFileFailure");
  EXPECT_EQ(zebtest::RaisedKey([&] { font.Font().ReadPFM(nullptr); }), L"WrongParameter");
  EXPECT_EQ(zebtest::RaisedKey([&] { font.Font().ReadPFM(L""); }), L"WrongParameter");
  EXPECT_EQ(font.PFMBytes(PFM().Bytes()), L"");
}

TEST(PFMReader, MetricsWithAnOpenFileAreRefused) {
  ReadFont font;
  zebtest::Busy::Set(font.Metrics(), 0);
  EXPECT_EQ(font.PFMBytes(PFM().Bytes()), L"WrongParameter");
  zebtest::Busy::Set(font.Metrics(), -1);
  EXPECT_EQ(font.PFMBytes(PFM().Bytes()), L"");
}

// The numbers below were taken from the files with a second reader.

TEST(PFMReader, AScriptFace) {
  ReadFont font;
  ASSERT_EQ(font.PFM(fs::path(ZEB_TEST_DATA) / "fonts" / "rsfs5.pfm"), L"");
  EXPECT_STREQ(font->GetBaseFont(), L"rsfs5");
  EXPECT_STREQ(font->GetEncoding(), L"fontspecific");
  EXPECT_EQ(font->GetAscender(), 731);
  EXPECT_EQ(font->GetDescender(), -200);
  EXPECT_EQ(font->GetCapHeight(), 731);
  EXPECT_EQ(font->GetXHeight(), 233);
  EXPECT_EQ(font->GetItalicAngle(), -12.0F);
  EXPECT_EQ(font->GetBBoxURX(), 1455.0F);
  EXPECT_EQ(font->GetUnderlinePosition(), -100);
  EXPECT_EQ(font->GetUnderlineThickness(), 50);
  EXPECT_EQ(font->GetStemVW(), 87);
  EXPECT_EQ(font->GetWidthAt(64), 250);
  EXPECT_EQ(font->GetWidthAt(65), 1108);
  EXPECT_EQ(font->GetWidthAt(69), 826);
  EXPECT_EQ(font->GetWidthAt(91), 300);
  EXPECT_EQ(font->GetFlags(), 0x4 | 0x40);
}

TEST(PFMReader, FixedAFontWhoseDeviceNameStandsElsewhereIsIncorrect) {
  ReadFont font;
  EXPECT_EQ(font.PFM(fs::path(ZEB_TEST_DATA) / "fonts" / "cmtt10.pfm"), L"IncorrectPFMFile");
}

/// The widths of an AFM file by code.
std::map<int, int> WidthsOfCodes(const fs::path& afm) {
  std::map<int, int> widths;
  std::istringstream in(zebtest::ReadFile(afm));
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string c;
    std::string semicolon;
    std::string wx;
    int code = 0;
    int width = 0;
    if (words >> c >> code >> semicolon >> wx >> width && c == "C" && wx == "WX" && code >= 0) {
      widths.emplace(code, width);
    }
  }
  return widths;
}

/// The AFM file that stands beside a PFM file in the other tree.
fs::path AFMOf(const fs::path& pfm) {
  fs::path afm = kTexFonts / "afm" / fs::relative(pfm, kTexFonts / "type1");
  return afm.replace_extension(".afm");
}

TEST(PFMReader, RealFontsHaveTheWidthsOfTheirAFM) {
  if (!fs::exists(kTexFonts / "type1"))
    GTEST_SKIP() << "the package texlive-fonts-recommended is not installed";
  int count = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kTexFonts / "type1")) {
    if (entry.path().extension() != ".pfm") continue;
    ReadFont font;
    const bool isPostScript = zebtest::ReadFile(entry.path()).substr(199, 10) == "PostScript";
    const std::wstring key = font.PFM(entry.path());
    if (!isPostScript || !key.empty()) {
      EXPECT_EQ(key, L"IncorrectPFMFile") << entry.path();
      continue;
    }
    // In the Windows character set a code is another glyph than in the AFM, but for the letters.
    const bool isSymbol = std::wstring_view(font->GetEncoding()) == L"fontspecific";
    for (const auto& [code, width] : WidthsOfCodes(AFMOf(entry.path()))) {
      if (isSymbol ? code > 0 : code >= 'A' && code <= 'Z') {
        EXPECT_NEAR(font->GetWidthAt(code), width, 1) << entry.path() << ' ' << code;
      }
    }
    ++count;
  }
  EXPECT_GT(count, 0);
}

}  // namespace
