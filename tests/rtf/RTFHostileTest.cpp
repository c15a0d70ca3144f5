#include "ZEBReportDocument.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

// Documents that are made to hurt: deep, long, or with numbers that promise more than there is. Each must end, with the
// told result, in time and memory that go with its length.

namespace {

/// Counts what it gets and keeps nothing else.
class CountingHandler final : public CContextChangedHandler {
 public:
  void OnContextChanged(const wchar_t* text, CRTFContext* context) override {
    ++m_Runs;
    m_Characters += std::wstring_view(text).size();
    if (context->Picture != nullptr) ++m_Pictures;
    m_Rows = context->State->DocProps.Rows.size();
  }
  void OnBookmark(std::wstring /*name*/, bool /*start*/) override { ++m_Bookmarks; }

  std::size_t m_Runs = 0;
  std::size_t m_Characters = 0;
  std::size_t m_Pictures = 0;
  std::size_t m_Bookmarks = 0;
  std::size_t m_Rows = 0;  // at the last run
};

class RTFHostileTest : public ::testing::Test {
 protected:
  int Read(std::string data) {
    m_Data = std::move(data);
    CRTFParser parser(reinterpret_cast<unsigned char*>(m_Data.data()), static_cast<int>(m_Data.size()),
                      &m_Handler, nullptr);
    return parser.RtfParse();
  }

  CountingHandler m_Handler;
  std::string m_Data;
};

std::string Repeated(std::string_view piece, int count) {
  std::string text;
  text.reserve(piece.size() * static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) text += piece;
  return text;
}

constexpr int kMillion = 1000000;

TEST_F(RTFHostileTest, HostileMillionNestedGroups) {
  EXPECT_EQ(Read(Repeated("{", kMillion) + "x" + Repeated("}", kMillion)), CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Runs, 1U);
}

TEST_F(RTFHostileTest, HostileMillionGroupsThatStayOpen) {
  EXPECT_EQ(Read(Repeated("{", kMillion)), CRTFParser::rtfUnmatchedBrace);
}

TEST_F(RTFHostileTest, HostileMillionClosingBraces) {
  EXPECT_EQ(Read(Repeated("}", kMillion)), CRTFParser::rtfStackUnderflow);
}

TEST_F(RTFHostileTest, HostileNestedGroupsThatAllDiffer) {
  const int depth = 100000;
  EXPECT_EQ(Read(Repeated("{\\b x{\\b0 y", depth / 2) + Repeated("}", depth)), CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Characters, static_cast<std::size_t>(depth));
}

TEST_F(RTFHostileTest, HostileNestedSkippedGroups) {
  EXPECT_EQ(Read("{{\\*\\unknown" + Repeated("{\\b a", kMillion / 10) + Repeated("}", kMillion / 10) + "}x}"),
            CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Characters, 1U);
}

TEST_F(RTFHostileTest, HostileFontTable) {
  const int count = 32761;
  std::string data = "{{\\fonttbl";
  for (int i = 0; i < count; ++i) {
    data += "{\\f" + std::to_string(i) + "\\fcharset" + std::to_string(i % 256) + " Font" +
            std::to_string(i) + ";}";
  }
  data += "}x}";
  CRTFParser parser(reinterpret_cast<unsigned char*>(data.data()), static_cast<int>(data.size()), &m_Handler,
                    nullptr);
  ASSERT_EQ(parser.RtfParse(), CRTFParser::rtfOK);
  for (int i = 0; i < count; ++i) {
    const CRTFFont* font = parser.GetFontAtID(i);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(font->GetFontFaceName(), L"Font" + std::to_wstring(i));
    EXPECT_EQ(font->GetFontCharSet(), i % 256);
  }
  EXPECT_EQ(parser.GetFontAtID(count), nullptr);
}

TEST_F(RTFHostileTest, HostileColourTable) {
  EXPECT_EQ(Read("{{\\colortbl" + Repeated(";", kMillion / 4) + "}x}"), CRTFParser::rtfOK);
}

TEST_F(RTFHostileTest, HostileLongDocument) {
  const std::string_view paragraph =
      "\\pard\\qj\\li360{\\b Bold} and {\\i italic} text with \\'e4\\'f6\\'fc, \\u8364? and {\\f1\\fs30 "
      "fonts}.\\par\r\n";
  const int count = 10 * kMillion / static_cast<int>(paragraph.size());
  EXPECT_EQ(Read("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Courier;}}" + Repeated(paragraph, count) + "}"),
            CRTFParser::rtfOK);
  EXPECT_GE(m_Handler.m_Runs, static_cast<std::size_t>(count));
}

TEST_F(RTFHostileTest, HostileCountsOfRawBytes) {
  for (const char* count :
       {"2147483647", "2147483648", "4294967295", "99999999999999999999", "-2147483648"}) {
    EXPECT_EQ(Read("{a\\bin" + std::string(count) + " bcd}}}{{{"), CRTFParser::rtfUnmatchedBrace) << count;
  }
  EXPECT_EQ(Read("{\\bin"), CRTFParser::rtfUnmatchedBrace);
  // Of a negative count the sign has no effect.
  EXPECT_EQ(Read("{a\\bin-1 }}"), CRTFParser::rtfOK);
}

TEST_F(RTFHostileTest, HostileCountOfRawBytesInSkippedGroup) {
  EXPECT_EQ(Read("{{\\*\\unknown\\bin2000000000 }}"), CRTFParser::rtfUnmatchedBrace);
}

TEST_F(RTFHostileTest, HostileRowsAtEveryRun) {
  // Every group and every run would copy a list of rows that grows.
  const int count = 20000;
  EXPECT_EQ(Read("{" + Repeated("\\trowd\\cellx1{\\line}", count) + "}"), CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Runs, static_cast<std::size_t>(count));
  EXPECT_EQ(m_Handler.m_Rows, static_cast<std::size_t>(count));
}

TEST_F(RTFHostileTest, HostileRowsInNestedGroups) {
  const int depth = 50000;
  EXPECT_EQ(Read(Repeated("{\\trowd\\cellx1\\line", depth) + Repeated("}\\line", depth)), CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Runs, 2U * depth);
  EXPECT_EQ(m_Handler.m_Rows, 0U);
}

TEST_F(RTFHostileTest, HostileTablesEndInADeepGroup) {
  // Every end of a table empties it in all saved groups.
  const int count = 100000;
  EXPECT_EQ(
      Read(Repeated("{\\trowd", count) + Repeated("{\\intbl x\\cell\\row}", count) + Repeated("}", count)),
      CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Runs, 2U * count);
}

TEST_F(RTFHostileTest, HostileCellsOfOneRow) {
  const int count = 100000;
  EXPECT_EQ(Read("{\\trowd" + Repeated("\\cellx1", count) + "\\intbl" + Repeated("\\cell", count + 1) + "}"),
            CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Runs, count + 2U);
}

TEST_F(RTFHostileTest, HostileLongCell) {
  EXPECT_EQ(Read("{\\trowd\\cellx1\\intbl" + Repeated("{\\b x}\\par", kMillion / 4) + "\\cell}"),
            CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Runs, 1U);
}

TEST_F(RTFHostileTest, HostileTabStops) {
  EXPECT_EQ(Read("{" + Repeated("\\tx2147483647{", kMillion / 10) + Repeated("}", kMillion / 10) + "}"),
            CRTFParser::rtfOK);
}

TEST_F(RTFHostileTest, HostileSmallPictures) {
  const int count = 20000;
  EXPECT_EQ(Read("{" + Repeated("{\\shppict{\\pict 4}}", count) + "}"), CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Pictures, static_cast<std::size_t>(count));
}

TEST_F(RTFHostileTest, HostilePictureWithoutEnd) {
  EXPECT_EQ(Read("{\\shppict{\\pict " + std::string(std::size_t{4} * kMillion, 'f')),
            CRTFParser::rtfUnmatchedBrace);
  EXPECT_EQ(m_Handler.m_Pictures, 1U);
}

TEST_F(RTFHostileTest, HostilePictureOfRawBytes) {
  // The first raw byte starts the picture, ends it and is read again, so that it counts twice.
  EXPECT_EQ(Read("{\\shppict{\\pict\\bin4 {}{}}"), CRTFParser::rtfOK);
}

TEST_F(RTFHostileTest, HostileHexByteInPicture) {
  // The byte is held back to the brace, which is then read a second time.
  EXPECT_EQ(Read("{\\shppict{\\pict\\'41}"), CRTFParser::rtfOK);
}

TEST_F(RTFHostileTest, HostileBookmarkNames) {
  EXPECT_EQ(Read("{{\\bkmkstart " + std::string(std::size_t{2} * kMillion, 'n') + "}" +
                 Repeated("{\\bkmkend x}", 50000) + "}"),
            CRTFParser::rtfOK);
  EXPECT_EQ(m_Handler.m_Bookmarks, 50001U);
}

TEST_F(RTFHostileTest, HostileEveryPrefixOfADocument) {
  const std::string document =
      "{\\rtf1{\\fonttbl{\\f0\\fcharset134 A;}}{\\colortbl;\\red1;}{\\stylesheet{\\s1\\b N;}}"
      "{\\listtable{\\list\\listid7{\\listlevel\\levelnfc23}}}{\\listoverridetable{"
      "\\listoverride\\listid7\\ls1}}"
      "\\s1{\\ls1\\ilvl0{\\listtext x}a\\'b0\\'a1\\u252?\\par}\\trowd\\clbrdrt\\brdrw1\\cellx9\\intbl "
      "b\\cell\\row\\pard"
      "{\\*\\shppict{\\pict\\pngblip\\picw1 8950}}{\\nonshppict{\\pict 01}}{\\bkmkstart n}{\\bkmkend "
      "n}\\bin3 {{{\\tx1}";
  for (std::size_t length = 0; length <= document.size(); ++length) {
    // A block of exactly that many bytes: reading behind it is seen.
    std::vector<unsigned char> data(document.begin(), document.begin() + static_cast<std::ptrdiff_t>(length));
    CRTFParser parser(data.data(), static_cast<int>(data.size()), &m_Handler, nullptr);
    const int result = parser.RtfParse();
    EXPECT_TRUE(result == CRTFParser::rtfOK || result == CRTFParser::rtfUnmatchedBrace ||
                result == CRTFParser::rtfEndOfData || result == CRTFParser::rtfBadTable)
        << length << ": " << result;
    if (length == document.size()) {
      EXPECT_EQ(result, CRTFParser::rtfOK);
    }
  }
}

}  // namespace
