// Fonts by face name, on machines whose fonts the test decides.

#include "fonts/FontData.h"
#include "fonts/TrueTypeFont.h"
#include "support/FontMachine.h"

#include <gtest/gtest.h>

namespace {

using zebtest::FontBytes;
using zebtest::FontMachine;
using zebtest::TrueTypeBuilder;
using zebtest::TrueTypeFont;

std::wstring Failure(const wchar_t* name) {
  TrueTypeFont font;
  font.ReadFace(name);
  return font.Failure();
}

TEST(TrueTypeFace, IsReadByFamilyOrFullName) {
  const FontMachine machine;
  const std::vector<unsigned char> bytes = TrueTypeBuilder().Build();
  machine.Install("probe.ttf", bytes);
  for (const wchar_t* name : {L"Probe", L"PROBE REGULAR", L"@Probe"}) {
    TrueTypeFont font;
    font.ReadFace(name, {nullptr, true});
    ASSERT_EQ(font.Failure(), L"");
    EXPECT_STREQ(font.Metrics().GetBaseFont(), L"Probe Regular");
    EXPECT_EQ(font.Metrics().GetFontType(), CFontMetrics::FontTypeTrueType);
    EXPECT_EQ(font.Metrics().GetFontData()->GetLength(), static_cast<int>(bytes.size()));
  }
}

TEST(TrueTypeFace, ThatIsNotInstalledFails) {
  const FontMachine machine;
  machine.Install("probe.ttf", TrueTypeBuilder().Build());
  EXPECT_EQ(Failure(L"Prob"), L"TrueTypeCreationFailed");
  EXPECT_EQ(Failure(L"Helvetica"), L"TrueTypeCreationFailed");
}

TEST(TrueTypeFace, OfACollectionNeedsItsFullName) {
  const FontMachine machine;
  TrueTypeBuilder other;
  other.names = {{3, 1, 1033, 1, L"Other"}, {3, 1, 1033, 2, L"Regular"}, {3, 1, 1033, 4, L"Other Full"}};
  other.glyphs[3].width = 2048;
  machine.Install("both.ttc", TrueTypeBuilder::BuildCollection({TrueTypeBuilder(), other}));
  TrueTypeFont font;
  font.ReadFace(L"Other Full");
  ASSERT_EQ(font.Failure(), L"");
  EXPECT_STREQ(font.Metrics().GetBaseFont(), L"Other Full");
  EXPECT_EQ(font.Metrics().GetWidthAt('A'), 1000);
  // The family finds the file, but no font in it has that full name.
  EXPECT_EQ(Failure(L"Other"), L"TrueTypeCreationFailed");
}

TEST(TrueTypeFace, OfAnotherKindOfFileIsIncorrect) {
  const FontMachine machine;
  TrueTypeBuilder font;
  font.version = 0x74727565;  // "true"
  machine.Install("true.ttf", font.Build());
  EXPECT_EQ(Failure(L"Probe"), L"IncorrectTrueTypeFile");
}

TEST(TrueTypeFace, StyleChoosesTheFile) {
  const FontMachine machine;
  machine.Install("regular.ttf", TrueTypeBuilder().Build());
  TrueTypeBuilder bold;
  bold.names[1].text = L"Bold";
  bold.names[2].text = L"Probe Bold";
  bold.weightClass = 700;
  bold.fsSelection = 0x20;
  machine.Install("bold.ttf", bold.Build());
  TrueTypeFont font;
  font.ReadFace(L"Probe", {nullptr, true, 700, false});
  EXPECT_STREQ(font.Metrics().GetBaseFont(), L"Probe Bold");
  EXPECT_TRUE(font.Metrics().GetBoldFont());
}

}  // namespace
