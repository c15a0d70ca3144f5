#include "platform/Unicode.h"
#include "rtf/RTFColor.h"
#include "rtf/RTFFont.h"
#include "rtf/RTFListLevelEntry.h"
#include "rtf/RTFListTableEntry.h"
#include "rtf/RecordingHandler.h"
#include "support/Files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Documents of real word processors, compared with the text that another reader finds in them. tests/data/rtf/README.md
// tells how both were made.
namespace {

namespace fs = std::filesystem;

using zebtest::RTFReading;

const fs::path kFolder = fs::path(ZEB_TEST_DATA) / "rtf";

std::vector<std::string> Documents() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kFolder)) {
    if (entry.path().extension() == ".rtf") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string Bytes(const std::string& name) { return zebtest::ReadFile(kFolder / (name + ".rtf")); }

bool IsBlank(wchar_t character) {
  return character == L' ' || character == L'\t' || character == L'\n' || character == L'\r';
}

/// The text of all runs, with a line end wherever a paragraph, line or table ends.
std::wstring TextOf(const RTFReading& reading) {
  std::wstring text;
  for (const zebtest::RTFRun& run : reading.Runs()) {
    text += run.m_strText;
    const CRTFContext& context = run.m_Context;
    if (context.ParagraphEnd != 0 || context.LineBreak != 0 || context.TableEnd != 0) text += L'\n';
  }
  return text;
}

/// What the other reader finds, in units of 16 bits, as characters beyond the basic plane are told.
std::wstring ExpectedText(const std::string& name) {
  std::wstring units;
  for (const wchar_t character : zeb::Utf8ToWide(zebtest::ReadFile(kFolder / (name + ".txt")))) {
    const auto code = static_cast<unsigned int>(character);
    if (code < 0x10000U) {
      units += character;
    } else {
      units += static_cast<wchar_t>(0xD800U + ((code - 0x10000U) >> 10U));
      units += static_cast<wchar_t>(0xDC00U + (code & 0x3FFU));
    }
  }
  return units;
}

/// White space of any length becomes one blank, and none at the ends.
std::wstring Normalised(const std::wstring& text) {
  std::wstring normalised;
  for (const wchar_t character : text) {
    if (!IsBlank(character)) {
      normalised += character;
    } else if (!normalised.empty() && normalised.back() != L' ') {
      normalised += L' ';
    }
  }
  if (normalised.ends_with(L' ')) normalised.pop_back();
  return normalised;
}

/// Red, green and blue.
std::string ColorOf(const CRTFColor* color) {
  if (color == nullptr) return "none";
  return std::to_string(color->GetRed()) + ' ' + std::to_string(color->GetGreen()) + ' ' +
         std::to_string(color->GetBlue());
}

class RTFDocuments : public testing::TestWithParam<std::string> {};

TEST_P(RTFDocuments, HasTheTextThatAnotherReaderFinds) {
  const RTFReading reading(Bytes(GetParam()));
  EXPECT_EQ(reading.Result(), 0);
  const std::wstring expected = Normalised(ExpectedText(GetParam()));
  EXPECT_GT(expected.size(), 20U);
  EXPECT_EQ(Normalised(TextOf(reading)), expected);
}

INSTANTIATE_TEST_SUITE_P(Samples, RTFDocuments, testing::ValuesIn(Documents()), [](const auto& test) {
  std::string name = test.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

/// A document that ends anywhere gives a code, and no text that the whole one does not have.
class CutRTFDocuments : public testing::TestWithParam<const char*> {};

TEST_P(CutRTFDocuments, EveryBeginningIsReadToACode) {
  const std::string whole = Bytes(GetParam());
  const std::wstring text = RTFReading(whole).Text();
  for (std::size_t length = 1; length < whole.find_last_of('}'); ++length) {
    const RTFReading reading(std::string_view(whole).substr(0, length));
    // In an open group or in an open keyword.
    EXPECT_TRUE(reading.Result() == 3 || reading.Result() == 7) << length << ": " << reading.Result();
    EXPECT_TRUE(text.starts_with(reading.Text())) << length;
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, CutRTFDocuments,
                         testing::Values("arabic-pandoc", "chinese-pandoc", "code-pandoc", "cyrillic-pandoc",
                                         "footnotes-pandoc", "headings-pandoc", "lists-pandoc",
                                         "symbols-pandoc", "table-pandoc", "sections-writer"),
                         [](const auto& test) { return "Sample" + std::to_string(test.index); });

/// The first run with exactly this text.
const zebtest::RTFRun& RunOf(const RTFReading& reading, const std::wstring& text) {
  for (const zebtest::RTFRun& run : reading.Runs()) {
    if (run.m_strText == text) return run;
  }
  ADD_FAILURE() << "no run " << zeb::WideToUtf8(text);
  return reading.Runs().front();
}

// The expected formatting is what sources/styles.html asks for.
TEST(RTFDocumentFormatting, FindsStylesAndColours) {
  const RTFReading reading(Bytes("styles-writer"));
  const zebtest::RTFRun& large = RunOf(reading, L"Large and red.");
  EXPECT_EQ(large.m_State.CharProps.FontSize, 48);
  EXPECT_EQ(ColorOf(large.m_Context.ForeColor), "204 0 0");
  EXPECT_EQ(RunOf(reading, L"bold").m_State.CharProps.Bold, 1);
  EXPECT_EQ(RunOf(reading, L"italic").m_State.CharProps.Italic, 1);
  EXPECT_EQ(RunOf(reading, L"underlined").m_State.CharProps.Underline, 1);
  EXPECT_EQ(RunOf(reading, L"struck").m_State.CharProps.Bold, 0);
  EXPECT_EQ(ColorOf(RunOf(reading, L"marked").m_Context.BackColor), "255 255 0");
  const zebtest::RTFRun& blue = RunOf(reading, L"blue");
  EXPECT_EQ(ColorOf(blue.m_Context.ForeColor), "0 0 255");
  ASSERT_NE(blue.m_Context.Font, nullptr);
  EXPECT_STREQ(blue.m_Context.Font->GetFontFaceName(), L"Liberation Mono");
  EXPECT_EQ(RunOf(reading, L"In the middle").m_State.ParProps.Justification, 2);
  EXPECT_EQ(RunOf(reading, L"On the right").m_State.ParProps.Justification, 1);
  const zebtest::RTFRun& fixedWidth = RunOf(reading, L"fixed   width");
  ASSERT_NE(fixedWidth.m_Context.Font, nullptr);
  EXPECT_STREQ(fixedWidth.m_Context.Font->GetFontFaceName(), L"Liberation Mono");
}

// 2 and 3 centimetres are 1134 and 1701 twips.
TEST(RTFDocumentFormatting, FindsIndents) {
  const RTFReading reading(Bytes("styles-writer"));
  for (const zebtest::RTFRun& run : reading.Runs()) {
    if (!run.m_strText.starts_with(L"An indented")) continue;
    EXPECT_EQ(run.m_State.ParProps.LeftIndent, 1134);
    EXPECT_EQ(run.m_State.ParProps.RightIndent, 1701);
    EXPECT_EQ(run.m_State.ParProps.Justification, 3);
    return;
  }
  FAIL();
}

TEST(RTFDocumentFormatting, FindsTabsBookmarksAndPositions) {
  const RTFReading reading(Bytes("sections-writer"));
  const zebtest::RTFRun& tabs = RunOf(reading, L"a\tb\tc\td");
  ASSERT_EQ(tabs.m_State.ParProps.TabCount, 3);
  constexpr int kKinds[] = {0, 1, 2};
  for (int index = 0; index < 3; ++index) {
    const CRTFTabStop& stop = std::as_const(tabs.m_State.ParProps.Tabs)[index];
    EXPECT_NEAR(stop.Position, (index + 1) * 2268, 1);  // 4 centimetres
    EXPECT_EQ(stop.Kind, kKinds[index]);
  }
  EXPECT_EQ(RunOf(reading, L"high").m_State.CharProps.Superscript, 1);
  EXPECT_EQ(RunOf(reading, L"low").m_State.CharProps.Subscript, 1);
  EXPECT_EQ(RunOf(reading, L"end").m_Context.LineBreak, 1);
  using Bookmarks = std::vector<std::pair<std::wstring, bool>>;
  EXPECT_EQ(reading.Bookmarks(), (Bookmarks{{L"place", true}, {L"place", false}}));
}

TEST(RTFDocumentFormatting, FindsThePicture) {
  const RTFReading reading(Bytes("image-writer"));
  int pictures = 0;
  for (const zebtest::RTFRun& run : reading.Runs()) {
    if (!run.m_bPicture) continue;
    ++pictures;
    EXPECT_TRUE(run.m_strPicture.starts_with("\x89PNG\r\n\x1A\n"));
    EXPECT_NE(run.m_strPicture.find("IEND"), std::string::npos);
  }
  EXPECT_EQ(pictures, 1);
}

TEST(RTFDocumentFormatting, FindsLists) {
  const RTFReading reading(Bytes("nestedlists-writer"));
  EXPECT_EQ(RunOf(reading, L"Before").m_Context.List, nullptr);
  const CRTFListTableEntry* const letters = RunOf(reading, L"alpha").m_Context.List;
  const CRTFListTableEntry* const numbers = RunOf(reading, L"five").m_Context.List;
  const CRTFListTableEntry* const dots = RunOf(reading, L"dot").m_Context.List;
  ASSERT_NE(letters, nullptr);
  ASSERT_NE(numbers, nullptr);
  ASSERT_NE(dots, nullptr);
  EXPECT_NE(letters, numbers);
  EXPECT_NE(numbers, dots);
  EXPECT_EQ(RunOf(reading, L"deepest").m_Context.List, letters);
  ASSERT_NE(letters->GetListLevelEntryAt(1), nullptr);
  EXPECT_EQ(letters->GetListLevelEntryAt(0)->GetLevelnfc(), 3);   // upper-case letters
  EXPECT_EQ(letters->GetListLevelEntryAt(1)->GetLevelnfc(), 2);   // lower-case Roman numbers
  EXPECT_EQ(letters->GetListLevelEntryAt(2)->GetLevelnfc(), 0);   // numbers
  EXPECT_EQ(letters->GetListLevelEntryAt(3)->GetLevelnfc(), 23);  // bullets
  EXPECT_EQ(numbers->GetListLevelEntryAt(0)->GetLevelstartat(), 5);
}

}  // namespace
