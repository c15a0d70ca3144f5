#include "fonts/FontInformation.h"

#include "fonts/EncodingInformation.h"
#include "fonts/Encodings.h"
#include "fonts/FontData.h"
#include "fonts/Fonts.h"
#include "fonts/GlobalFontHandler.h"
#include "fonts/PDFCharCollName.h"
#include "fonts/PostscriptFontMetrics.h"
#include "fonts/ReadFont.h"
#include "fonts/TrueTypeFont.h"
#include "support/Files.h"
#include "support/KeepForever.h"
#include "support/RaisedKey.h"
#include "support/TempDir.h"
#include "support/VirtualSlot.h"
#include "support/WidePath.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

namespace fs = std::filesystem;
using zebtest::ReadFont;
using zebtest::TrueTypeFont;

TEST(FontInformation, BeginsWithPostScriptMetrics) {
  const CFontInformation font(nullptr);
  ASSERT_NE(font.GetFontMetrics(), nullptr);
  EXPECT_NE(dynamic_cast<CPostscriptFontMetrics*>(font.GetFontMetrics()), nullptr);
  EXPECT_EQ(font.GetFontMetrics()->GetFontType(), CFontMetrics::FontTypeTrueType);
  EXPECT_STREQ(font.GetFontMetrics()->GetEncoding(), L"winansi1252");
}

TEST(FontInformation, ACopySharesItsMetrics) {
  auto& source = zebtest::KeepForever(new CFontInformation(nullptr));
  const CFontInformation copy(source);
  EXPECT_EQ(copy.GetFontMetrics(), source.GetFontMetrics());
  auto& assigned = zebtest::KeepForever(new CFontInformation(nullptr));
  CFontMetrics* const before = assigned.GetFontMetrics();
  assigned = source;
  EXPECT_EQ(assigned.GetFontMetrics(), source.GetFontMetrics());
  // What was held before is not freed by the assignment.
  delete before;
}

TEST(FontInformation, ForwardsToTheEncodingsOfItsHandler) {
  const CGlobalFontHandler handler;
  const CFontInformation font(handler.GetFonts());
  EXPECT_EQ(font.GetEncodingInformation(L"winansi1252"),
            handler.GetEncodings()->FindEncoding(L"winansi1252"));
  EXPECT_NE(font.GetEncodingInformation(L"winansi1252"), nullptr);
  EXPECT_EQ(font.GetEncodingInformation(L"none"), nullptr);
  EXPECT_EQ(font.GetCharCollNameAt(CFontMetrics::CharCollJapan1),
            handler.GetEncodings()->GetCharCollNameAt(CFontMetrics::CharCollJapan1));
  EXPECT_NE(font.GetCharCollNameAt(CFontMetrics::CharCollJapan1), nullptr);
}

TEST(FontInformation, WithoutAListItKnowsNoEncodings) {
  const CFontInformation font(nullptr);
  EXPECT_EQ(font.GetEncodingInformation(L"winansi1252"), nullptr);
  EXPECT_EQ(font.GetCharCollNameAt(CFontMetrics::CharCollJapan1), nullptr);
}

TEST(FontInformation, MetricsAndProgramOfAPostScriptFontGoIntoOneObject) {
  ReadFont font;
  CFontMetrics* const metrics = font.Font().GetFontMetrics();
  ASSERT_EQ(font.AFMText("FontName Sample\nStartCharMetrics 1\nC 65 ; WX 7 ; N A ;\n"), L"");
  ASSERT_EQ(font.ProgramBytes(std::string_view("\x80\x01\x02\0\0\0ab\x80\x03", 10)), L"");
  EXPECT_EQ(font.Font().GetFontMetrics(), metrics);
  EXPECT_STREQ(metrics->GetBaseFont(), L"Sample");
  EXPECT_EQ(metrics->GetFontData()->GetLength1(), 2);
}

TEST(FontInformation, AReaderOfPostScriptFontsMakesItsMetricsAgain) {
  const zebtest::TempDir folder;
  const std::wstring afm = folder.WideFile("font.afm");
  zebtest::WriteFile(folder.File("font.afm"), "StartCharMetrics 1\nC 65 ; WX 7 ; N A ;\n");
  const fs::path data = fs::path(ZEB_TEST_DATA) / "fonts";
  struct Case {
    void (CFontInformation::*Read)(const wchar_t*);
    std::wstring Path;
  };
  for (const Case& reader : {Case{&CFontInformation::ReadAFM, afm},
                             {&CFontInformation::ReadPFM, zebtest::WidePath(data / "rsfs5.pfm")},
                             {&CFontInformation::ReadPFBPFA, zebtest::WidePath(data / "dummy-space.pfb")}}) {
    TrueTypeFont font{zebtest::TrueTypeBuilder()};
    CFontInformation& information = font.Information();
    const CFontMetrics* const trueType = information.GetFontMetrics();
    EXPECT_EQ(zebtest::RaisedKey([&] { (information.*reader.Read)(folder.WideFile("none").c_str()); }),
              L"ReadFileFailure");
    EXPECT_EQ(information.GetFontMetrics(), trueType) << "they become current behind the reading";
    EXPECT_EQ(zebtest::RaisedKey([&] { (information.*reader.Read)(reader.Path.c_str()); }), L"");
    EXPECT_NE(dynamic_cast<CPostscriptFontMetrics*>(information.GetFontMetrics()), nullptr);
    zebtest::FreeCharMetrics(*information.GetFontMetrics());
  }
}

TEST(FontInformation, TheFaceMayBeNamedByTheMetricsThatItReplaces) {
  CFontInformation font(nullptr);
  font.GetFontMetrics()->SetBaseFont(L"No Such Face");
  const std::wstring key = zebtest::RaisedKey(
      [&] { font.ReadTT(font.GetFontMetrics()->GetBaseFont(), nullptr, nullptr, true, false, 400, false); });
  EXPECT_EQ(key, L"TrueTypeCreationFailed");
  EXPECT_STREQ(font.GetFontMetrics()->GetBaseFont(), L"");
}

TEST(FontInformation, VirtualOperationsStandInTheirOrder) {
  // The destructor takes the first two places.
  EXPECT_TRUE(std::has_virtual_destructor_v<CFontInformation>);
  EXPECT_EQ(zebtest::VirtualSlot(&CFontInformation::Load), 2U);
  EXPECT_EQ(zebtest::VirtualSlot(&CFontInformation::Save), 3U);
}

// An attack: a file of more bytes than an `int` counts, of which the disk holds none.
TEST(FontInformation, FilesOfTwoGigabytesTakeNoMemory) {
  const zebtest::TempDir folder;
  zebtest::WriteFile(folder.File("huge"), "");
  fs::resize_file(folder.File("huge"), 2147483648U);
  const std::wstring path = folder.WideFile("huge");
  CFontInformation font(nullptr);
  const std::wstring key = L"NoMoreMemoryLeft";
  EXPECT_EQ(zebtest::RaisedKey([&] { font.ReadAFM(path.c_str()); }), key);
  EXPECT_EQ(zebtest::RaisedKey([&] { font.ReadPFM(path.c_str()); }), key);
  EXPECT_EQ(zebtest::RaisedKey([&] { font.ReadPFBPFA(path.c_str()); }), key);
  EXPECT_EQ(
      zebtest::RaisedKey([&] { font.ReadTT(nullptr, path.c_str(), nullptr, false, false, 400, false); }),
      key);
}

}  // namespace
