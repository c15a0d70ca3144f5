#include "platform/InstalledFont.h"

#include "support/FontMachine.h"
#include "support/TrueTypeBuilder.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

using zebtest::FontMachine;
using zebtest::TrueTypeBuilder;

TrueTypeBuilder Face(const std::wstring& family, const std::wstring& style, unsigned weight, bool italic) {
  TrueTypeBuilder font;
  font.names = {{3, 1, 1033, 1, family},
                {3, 1, 1033, 2, style},
                {3, 1, 1033, 4, family + L" " + style},
                {3, 1, 1033, 6, L"Face"}};
  font.weightClass = weight;
  font.fsSelection = (weight >= 700 ? 0x20U : 0U) | (italic ? 1U : 0U);
  return font;
}

/// The bytes that the system gives for a face; none if it has no such face.
std::vector<unsigned char> Ask(const std::wstring& name, int weight = 400, bool italic = false) {
  zeb::InstalledFont font;
  if (!font.Open({name, weight, italic, false})) return {};
  std::vector<unsigned char> bytes(static_cast<std::size_t>(font.Size()));
  EXPECT_TRUE(font.Read(std::as_writable_bytes(std::span(bytes))));
  return bytes;
}

TEST(InstalledFont, IsFoundByFamilyOrFullNameIgnoringCase) {
  const FontMachine machine;
  const std::vector<unsigned char> bytes = Face(L"Werkdruck", L"Regular", 400, false).Build();
  machine.Install("w.ttf", bytes);
  EXPECT_EQ(Ask(L"Werkdruck"), bytes);
  EXPECT_EQ(Ask(L"wERKDRUCK"), bytes);
  EXPECT_EQ(Ask(L"Werkdruck Regular"), bytes);
  EXPECT_EQ(Ask(L"@Werkdruck"), bytes);
}

TEST(InstalledFont, AnotherFaceNeverStandsIn) {
  const FontMachine machine;
  machine.Install("w.ttf", Face(L"Werkdruck", L"Regular", 400, false).Build());
  for (const wchar_t* name : {L"Werk", L"Werkdruck Bold", L"Regular", L"Werkdruck ", L"sans-serif", L"x"}) {
    EXPECT_TRUE(Ask(name).empty()) << testing::PrintToString(name);
  }
}

TEST(InstalledFont, AMachineWithoutFontsHasNone) {
  const FontMachine machine;
  EXPECT_TRUE(Ask(L"Werkdruck").empty());
}

TEST(InstalledFont, WeightAndSlantChooseWithinTheFamily) {
  const FontMachine machine;
  const auto regular = Face(L"Werkdruck", L"Regular", 400, false).Build();
  const auto bold = Face(L"Werkdruck", L"Bold", 700, false).Build();
  const auto italic = Face(L"Werkdruck", L"Italic", 400, true).Build();
  const auto boldItalic = Face(L"Werkdruck", L"Bold Italic", 700, true).Build();
  machine.Install("a.ttf", boldItalic);
  machine.Install("b.ttf", italic);
  machine.Install("c.ttf", bold);
  machine.Install("d.ttf", regular);
  EXPECT_EQ(Ask(L"Werkdruck", 400, false), regular);
  EXPECT_EQ(Ask(L"Werkdruck", 700, false), bold);
  EXPECT_EQ(Ask(L"Werkdruck", 900, false), bold);
  EXPECT_EQ(Ask(L"Werkdruck", 100, false), regular);
  EXPECT_EQ(Ask(L"Werkdruck", 400, true), italic);
  EXPECT_EQ(Ask(L"Werkdruck", 700, true), boldItalic);
  // A full name names one face, whatever the style.
  EXPECT_EQ(Ask(L"Werkdruck Bold", 400, true), bold);
}

TEST(InstalledFont, ACollectionIsGivenWhole) {
  const FontMachine machine;
  const auto bytes = TrueTypeBuilder::BuildCollection(
      {Face(L"Werkdruck", L"Regular", 400, false), Face(L"Handschrift", L"Regular", 400, false)});
  machine.Install("both.ttc", bytes);
  EXPECT_EQ(Ask(L"Handschrift"), bytes);
  EXPECT_EQ(Ask(L"Werkdruck"), bytes);
}

TEST(InstalledFont, AFontThatIsInstalledLaterIsFound) {
  const auto bytes = Face(L"Werkdruck", L"Regular", 400, false).Build();
  {
    const FontMachine machine;
    EXPECT_TRUE(Ask(L"Werkdruck").empty());
  }
  const FontMachine other;
  other.Install("w.ttf", bytes);
  EXPECT_EQ(Ask(L"Werkdruck"), bytes);
}

TEST(InstalledFont, LookingUpIsQuick) {
  Ask(L"Werkdruck");
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 20; ++i) Ask(L"Werkdruck");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

}  // namespace
