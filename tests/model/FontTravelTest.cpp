// A report with a TrueType font goes from a machine that has the font to one that has not.

#include "fonts/FontData.h"
#include "fonts/FontInformation.h"
#include "fonts/Fonts.h"
#include "fonts/GlobalFontHandler.h"
#include "model/Border.h"
#include "model/Text.h"
#include "support/LoadedReport.h"
#include "support/RaisedKey.h"
#include "support/ScopedEnvironment.h"
#include "support/ScopedFontPool.h"
#include "support/XMLFailure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace {

using zebtest::LoadedReport;
using zebtest::ScopedEnvironment;
using zebtest::ScopedFontPool;

constexpr const wchar_t* kFont = L"DejaVu Sans Mono";

/// While it lives, the system has no fonts.
class MachineWithoutFonts {
 public:
  MachineWithoutFonts() {
    zebtest::WriteFile(m_folder.File("fonts.conf"),
                       "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig/>");
  }

 private:
  zebtest::TempDir m_folder;
  ScopedEnvironment m_fonts{"FONTCONFIG_FILE", m_folder.File("fonts.conf").string()};
};

CFontInformation& AddInstalled(CGlobalFontHandler& handler, const wchar_t* name, bool unicode = true) {
  auto* const font = new CFontInformation(handler.GetFonts());
  handler.GetFonts()->AddFont(font);
  font->ReadTT(name, nullptr, nullptr, unicode, false, 400, false);
  return *font;
}

std::string ReportText(const std::string& font) {
  return zebtest::ReportOfOneZone(
      "<TxID>2</TxID>",
      zebtest::TextRecord(2, "", "<FontName>" + font + "</FontName><FontSize>10.0</FontSize>"));
}

std::string LayoutText(const std::string& font) {
  return zebtest::LayoutOfOnePage(zebtest::TextRecord(2, "", "<FontName>" + font + "</FontName>"));
}

CFontMetrics& MetricsOf(const CGlobalFontHandler& handler) {
  return *handler.GetFonts()->GetFontAt(25)->GetFontMetrics();
}

void ExpectSameMeasures(const CFontMetrics& one, const CFontMetrics& other) {
  EXPECT_STREQ(one.GetBaseFont(), other.GetBaseFont());
  EXPECT_STREQ(one.GetFontFamilyName(), other.GetFontFamilyName());
  EXPECT_STREQ(one.GetTTName(), other.GetTTName());
  EXPECT_STREQ(one.GetEncoding(), other.GetEncoding());
  EXPECT_STREQ(one.GetEncodingScheme(), other.GetEncodingScheme());
  EXPECT_EQ(one.GetFlags(), other.GetFlags());
  EXPECT_EQ(one.GetFontType(), other.GetFontType());
  EXPECT_EQ(one.GetFontEmbedding(), other.GetFontEmbedding());
  EXPECT_EQ(one.GetUnicodeFont(), other.GetUnicodeFont());
  EXPECT_EQ(one.GetItalicAngle(), other.GetItalicAngle());
  EXPECT_EQ(one.GetFixedPitch(), other.GetFixedPitch());
  EXPECT_EQ(one.GetBBoxLLX(), other.GetBBoxLLX());
  EXPECT_EQ(one.GetBBoxLLY(), other.GetBBoxLLY());
  EXPECT_EQ(one.GetBBoxURX(), other.GetBBoxURX());
  EXPECT_EQ(one.GetBBoxURY(), other.GetBBoxURY());
  EXPECT_EQ(one.GetAscender(), other.GetAscender());
  EXPECT_EQ(one.GetDescender(), other.GetDescender());
  EXPECT_EQ(one.GetCapHeight(), other.GetCapHeight());
  EXPECT_EQ(one.GetXHeight(), other.GetXHeight());
  EXPECT_EQ(one.GetStemVW(), other.GetStemVW());
  EXPECT_EQ(one.GetUnderlinePosition(), other.GetUnderlinePosition());
  EXPECT_EQ(one.GetUnderlineThickness(), other.GetUnderlineThickness());
}

/// Widths, glyphs and program.
void ExpectSameProgram(CFontMetrics& one, CFontMetrics& other) {
  for (int code = 0; code < 65536; ++code) ASSERT_EQ(one.GetWidthAt(code), other.GetWidthAt(code)) << code;
  for (const wchar_t character : {L' ', L'A', L'\xE4', L'\x20AC', L'\x4E00'}) {
    const auto code = static_cast<unsigned short>(character);
    EXPECT_EQ(one.MapChar(code), other.MapChar(code)) << code;
  }
  const CFontData& program = *one.GetFontData();
  const CFontData& otherProgram = *other.GetFontData();
  ASSERT_EQ(program.GetLength(), otherProgram.GetLength());
  EXPECT_TRUE(std::equal(program.GetData(), program.GetData() + program.GetLength(), otherProgram.GetData()));
}

class FontTravelOfBothKinds : public testing::TestWithParam<bool> {};

TEST_P(FontTravelOfBothKinds, TheFontOfAReportComesFromThePool) {
  const ScopedFontPool pool;
  LoadedReport report;
  report.LoadReportText(ReportText("DejaVu Sans Mono"));
  CFontInformation& sent = AddInstalled(*report.Document().GetFontHandler(), kFont, GetParam());
  const std::string file = report.SavedReport();
  pool->DeleteFontPool();

  const MachineWithoutFonts elsewhere;
  LoadedReport loaded;
  loaded.LoadReportText(file);
  CFontMetrics& received = MetricsOf(*loaded.Document().GetFontHandler());
  ExpectSameMeasures(*sent.GetFontMetrics(), received);
  ExpectSameProgram(*sent.GetFontMetrics(), received);
  EXPECT_EQ(loaded.SavedReport(), file);
}

TEST_P(FontTravelOfBothKinds, TheFontOfALayoutComesFromThePool) {
  const ScopedFontPool pool;
  LoadedReport report;
  report.LoadLayoutText(LayoutText("DejaVu Sans Mono"));
  CFontInformation& sent = AddInstalled(*report.Layout().GetFontHandler(), kFont, GetParam());
  const std::string file = report.SavedLayout();
  pool->DeleteFontPool();

  const MachineWithoutFonts elsewhere;
  LoadedReport loaded;
  loaded.LoadLayoutText(file);
  CFontMetrics& received = MetricsOf(*loaded.Layout().GetFontHandler());
  ExpectSameMeasures(*sent.GetFontMetrics(), received);
  ExpectSameProgram(*sent.GetFontMetrics(), received);
}

INSTANTIATE_TEST_SUITE_P(UnicodeOrNot, FontTravelOfBothKinds, testing::Bool());

/// The file of a report whose font went into no pool.
std::string FileWithoutPool() {
  LoadedReport report;
  report.LoadReportText(ReportText("DejaVu Sans Mono"));
  AddInstalled(*report.Document().GetFontHandler(), kFont);
  return report.SavedReport();
}

TEST(FontTravel, WithoutPoolAndFontTheReportIsRefusedWithTheNameOfTheFont) {
  const std::string file = FileWithoutPool();
  const MachineWithoutFonts elsewhere;
  LoadedReport loaded;
  const zebtest::Raised raised = zebtest::RaisedBy([&] { loaded.LoadReportText(file); });
  EXPECT_EQ(raised.Key, L"FontPoolIncomplete");
  EXPECT_TRUE(raised.Message.ends_with(L"\nDejaVu Sans Mono")) << testing::PrintToString(raised.Message);
}

TEST(FontTravel, APoolWithoutTheFontIsNoHelp) {
  const std::string file = FileWithoutPool();
  const ScopedFontPool pool;
  const MachineWithoutFonts elsewhere;
  LoadedReport loaded;
  EXPECT_EQ(zebtest::RaisedKey([&] { loaded.LoadReportText(file); }), L"FontPoolIncomplete");
}

TEST(FontTravel, AnInstalledFontNeedsNoPoolAndFillsIt) {
  const std::string file = FileWithoutPool();
  const ScopedFontPool pool;
  LoadedReport loaded;
  loaded.LoadReportText(file);
  const CFontMetrics& metrics = MetricsOf(*loaded.Document().GetFontHandler());
  EXPECT_STREQ(metrics.GetBaseFont(), kFont);
  EXPECT_EQ(metrics.GetFontData(), pool->GetFontData(kFont));
  EXPECT_TRUE(std::filesystem::exists(pool.Folder().File("DejaVu Sans Mono.fd")));
}

TEST(FontTravel, APoolThatCannotBeWrittenFailsTheSaving) {
  LoadedReport report;
  report.LoadReportText(ReportText("DejaVu Sans Mono"));
  AddInstalled(*report.Document().GetFontHandler(), kFont);
  const ScopedFontPool pool;
  pool->SetFontPoolPath(pool.Folder().WideFile("missing").c_str());
  EXPECT_EQ(zebtest::RaisedFailure([&] { report.SavedReport(); }).Number,
            zebxmln::CXMLException::CannotWrite);
}

TEST(FontTravel, APoolThatCannotBeWrittenFailsTheLoadingOfAnInstalledFont) {
  const std::string file = FileWithoutPool();
  const ScopedFontPool pool;
  pool->SetFontPoolPath(pool.Folder().WideFile("missing").c_str());
  LoadedReport loaded;
  EXPECT_EQ(zebtest::RaisedFailure([&] { loaded.LoadReportText(file); }).Number,
            zebxmln::CXMLException::CannotWrite);
}

TEST(FontTravel, TheDistancesOfATextAreTheSameThere) {
  const ScopedFontPool pool;
  LoadedReport report;
  report.LoadReportText(ReportText("DejaVu Sans Mono"));
  AddInstalled(*report.Document().GetFontHandler(), kFont);
  const std::string file = report.SavedReport();
  pool->DeleteFontPool();

  const MachineWithoutFonts elsewhere;
  LoadedReport loaded;
  loaded.LoadReportText(file);
  CText& text = *loaded.Zone(0).GetTextElementAt(0);
  loaded.Document().GetFontHandler()->CalculateOptimalTextDistances(&text);
  ASSERT_NE(text.GetBorder(), nullptr);
  // In an em of 2048 the Windows heights are 1901 and 483; there is no gap.
  EXPECT_FLOAT_EQ(text.GetBorder()->GetBaseLineToUpperDistance(), 9.28F);
  EXPECT_FLOAT_EQ(text.GetBorder()->GetBaseLineToLowerDistance(), 2.36F);
}

// Files hold the unique name of a font, memory the name in the language of the machine.

TEST(FontTravel, ATextShowsTheNameOfItsFontInTheLanguageOfTheMachine) {
  const ScopedFontPool pool;
  std::string file;
  {
    const ScopedEnvironment language("LC_ALL", "de_DE.UTF-8");
    LoadedReport report;
    report.LoadReportText(ReportText("IPAGothic"));
    AddInstalled(*report.Document().GetFontHandler(), L"IPAGothic");
    file = report.SavedReport();
  }
  EXPECT_NE(file.find("<FontName>IPAGothic</FontName>"), std::string::npos);
  const ScopedEnvironment language("LC_ALL", "ja_JP.UTF-8");
  LoadedReport loaded;
  loaded.LoadReportText(file);
  const CText& text = *loaded.Zone(0).GetTextElementAt(0);
  EXPECT_STREQ(text.GetFontName(), L"IPA\x30B4\x30B7\x30C3\x30AF");
  EXPECT_EQ(loaded.SavedReport(), file);
  EXPECT_STREQ(text.GetFontName(), L"IPAGothic");
}

TEST(FontTravel, ATextOfAPageShowsTheNameOfItsFontInTheLanguageOfTheMachine) {
  const ScopedFontPool pool;
  const ScopedEnvironment language("LC_ALL", "ja_JP.UTF-8");
  LoadedReport report;
  report.LoadLayoutText(LayoutText("IPAGothic"));
  AddInstalled(*report.Layout().GetFontHandler(), L"IPAGothic");
  const std::string file = report.SavedLayout();
  LoadedReport loaded;
  loaded.LoadLayoutText(file);
  const auto* text = dynamic_cast<CText*>(loaded.Page(0).GetLayoutContentAt(0));
  ASSERT_NE(text, nullptr);
  EXPECT_STREQ(text->GetFontName(), L"IPA\x30B4\x30B7\x30C3\x30AF");
  EXPECT_EQ(loaded.SavedLayout(), file);
}

}  // namespace
