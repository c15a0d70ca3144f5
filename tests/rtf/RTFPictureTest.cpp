#include "ZEBReportDocument.h"

#include "rtf/RecordingHandler.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace {

using zebtest::RTFReading;

/// Answers as it is told and remembers what it was asked.
class Converter final : public CPictureConvertHandler {
 public:
  explicit Converter(bool answer, std::string out = "", int length = -1)
      : m_bAnswer(answer), m_strOut(std::move(out)), m_iLength(length) {}

  bool ConvertPicture(int format, const void* data, int length, int reserved, void* out,
                      int* outLength) override {
    m_Formats.push_back(format);
    m_strIn.assign(static_cast<const char*>(data), static_cast<std::size_t>(length));
    m_iReserved = reserved;
    m_iRoom = *outLength;
    std::memcpy(out, m_strOut.data(), m_strOut.size());
    *outLength = m_iLength >= 0 ? m_iLength : static_cast<int>(m_strOut.size());
    return m_bAnswer;
  }

  std::vector<int> m_Formats;
  std::string m_strIn;
  int m_iReserved = -1;
  int m_iRoom = 0;

 private:
  bool m_bAnswer;
  std::string m_strOut;
  int m_iLength;
};

/// The pictures of all runs.
std::vector<std::string> Pictures(const RTFReading& reading) {
  std::vector<std::string> pictures;
  for (const auto& run : reading.Runs()) {
    if (run.m_bPicture) pictures.push_back(run.m_strPicture);
  }
  return pictures;
}

using Strings = std::vector<std::string>;

TEST(RTFPictureTest, PictureOfOtherFormatComesAtOnceWithTheTextBeforeIt) {
  const RTFReading reading(R"({a{\*\shppict{\pict\jpegblip\picwgoal20 414243}}b})");
  EXPECT_EQ(reading.Result(), 0);
  ASSERT_EQ(reading.Outline(), L"[a][b]");
  EXPECT_TRUE(reading.Runs()[0].m_bPicture);
  EXPECT_EQ(reading.Runs()[0].m_strPicture, "ABC");
  EXPECT_EQ(reading.Runs()[0].m_State.CharProps.JpegBlip, 1);
  EXPECT_EQ(reading.Runs()[0].m_State.CharProps.PicWidthGoal, 20);
  EXPECT_FALSE(reading.Runs()[1].m_bPicture);
  EXPECT_EQ(reading.Runs()[1].m_State.CharProps.PicWidthGoal, 0);
}

TEST(RTFPictureTest, PictureOfOtherFormatComesAtOnceInATable) {
  const RTFReading reading(R"({\trowd\cellx9\intbl a{\*\shppict{\pict\jpegblip 4142}}b\cell})");
  ASSERT_EQ(reading.Outline(), L"[a][b]P");
  EXPECT_EQ(reading.Runs()[0].m_strPicture, "AB");
  EXPECT_FALSE(reading.Runs()[1].m_bPicture);
}

TEST(RTFPictureTest, PictureSizesAreReported) {
  const RTFReading reading(R"({{\shppict{\pict\picw1\pich2\picwgoal3\pichgoal4\picscalex5\picscaley6 41}}})");
  ASSERT_EQ(reading.Runs().size(), 1U);
  const CCharacterProperties& props = reading.Runs()[0].m_State.CharProps;
  EXPECT_EQ(props.PicWidth, 1);
  EXPECT_EQ(props.PicHeight, 2);
  EXPECT_EQ(props.PicWidthGoal, 3);
  EXPECT_EQ(props.PicHeightGoal, 4);
  EXPECT_EQ(props.PicScaleX, 5);
  EXPECT_EQ(props.PicScaleY, 6);
}

TEST(RTFPictureTest, PictureOutsideOfBothWrappersIsDropped) {
  const RTFReading reading(R"({{\pict\pngblip 89}x})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Outline(), L"[x]");
  EXPECT_EQ(Pictures(reading), Strings{});
}

TEST(RTFPictureTest, MetafileWithoutConverterWaitsForTheNextCall) {
  // The picture's own group is that call.
  const RTFReading reading(R"({a{\*\shppict{\pict\emfblip 4142}}b})");
  ASSERT_EQ(reading.Outline(), L"[a][b]");
  EXPECT_EQ(reading.Runs()[0].m_strPicture, "AB");
  // In a table the end of a group is none; the next call is that of the cell.
  const RTFReading cell(R"({\trowd\cellx9\intbl a{\*\shppict{\pict\emfblip 4142}}b\cell})");
  ASSERT_EQ(cell.Outline(), L"[ab]P");
  EXPECT_EQ(cell.Runs()[0].m_strPicture, "AB");
}

TEST(RTFPictureTest, FallbackBehindPictureIsDropped) {
  const RTFReading reading(R"({{\*\shppict{\pict 41}}{\nonshppict{\pict 42}}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Pictures(reading), Strings{"A"});
}

TEST(RTFPictureTest, FallbackWithoutPictureIsRead) {
  const RTFReading reading(R"({{\nonshppict{\pict 42}}})");
  EXPECT_EQ(Pictures(reading), Strings{"B"});
}

TEST(RTFPictureTest, OneFallbackIsDroppedForEachPicture) {
  const RTFReading reading(
      R"({{\*\shppict{\pict 41}}{\nonshppict{\pict 42}}{\nonshppict{\pict 43}}{\*\shppict{\pict 44}}})");
  EXPECT_EQ(Pictures(reading), (Strings{"A", "C", "D"}));
}

TEST(RTFPictureTest, FallbackKeywordTakesThePictureBackFromItsWrapper) {
  const RTFReading reading(R"({{\*\shppict{\pict 41}}{\*\shppict\nonshppict{\pict 42}}})");
  EXPECT_EQ(Pictures(reading), Strings{"A"});
}

TEST(RTFPictureTest, WrapperCountsForOnePicture) {
  const RTFReading reading(R"({{\*\shppict{\pict 41}{\pict 42}}})");
  EXPECT_EQ(Pictures(reading), Strings{"A"});
}

TEST(RTFPictureTest, PictureKeywordTakesThePictureBackFromTheFallback) {
  const RTFReading reading(R"({{\nonshppict\shppict{\pict 41}{\pict 42}}{\nonshppict{\pict 43}}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Pictures(reading), Strings{"A"});
}

TEST(RTFPictureTest, LineEndsBetweenDigitsAreSkipped) {
  const RTFReading reading("{{\\*\\shppict{\\pict 4\r\n1\n4\r2\r\n}}}");
  EXPECT_EQ(Pictures(reading), Strings{"AB"});
}

TEST(RTFPictureTest, DigitsOfBothCasesCount) {
  const RTFReading reading(R"({{\*\shppict{\pict fFaA0b}}})");
  EXPECT_EQ(Pictures(reading), Strings{"\xFF\xAA\x0B"});
}

TEST(RTFPictureTest, HalfAByteIsDropped) {
  const RTFReading reading(R"({{\*\shppict{\pict 414}}})");
  EXPECT_EQ(Pictures(reading), Strings{"A"});
}

TEST(RTFPictureTest, FixedDigitsAreNotChecked) {
  // "G" less "7" is 16 and "Z" less "7" is 35: 16 * 16 + 35 is 0x23 as a byte. "4 " is 64 + (32 - 55) = 41.
  const RTFReading reading(R"({{\*\shppict{\pict gZ4 }}})");
  EXPECT_EQ(Pictures(reading), Strings{"\x23\x29"});
}

TEST(RTFPictureTest, KeywordBehindTheDigitsEndsThePicture) {
  const RTFReading reading(R"({{\*\shppict{\pict 41\bliptag7 42}}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Pictures(reading), Strings{"A"});
}

TEST(RTFPictureTest, GroupBehindTheDigitsEndsThePicture) {
  const RTFReading reading(R"({{\*\shppict{\pict 41{\*\blipuid 42}43}}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Pictures(reading), Strings{"A"});
}

TEST(RTFPictureTest, EndOfDataEndsThePicture) {
  const RTFReading reading(R"({{\*\shppict{\pict 4142)");
  EXPECT_EQ(reading.Result(), CRTFParser::rtfUnmatchedBrace);
  EXPECT_EQ(Pictures(reading), Strings{"AB"});
}

TEST(RTFPictureTest, ZeroByteEndsThePictureAndTheData) {
  const RTFReading reading(std::string("{{\\*\\shppict{\\pict 4142\0}}}x", 28));
  EXPECT_EQ(reading.Result(), CRTFParser::rtfUnmatchedBrace);
  EXPECT_EQ(Pictures(reading), Strings{"AB"});
}

TEST(RTFPictureTest, StoreOfNoBytesCountsAsAPicture) {
  // A single digit gives no byte.
  const RTFReading reading(R"({{\*\shppict{\pict 4}}})");
  ASSERT_EQ(reading.Runs().size(), 1U);
  EXPECT_TRUE(reading.Runs()[0].m_bPicture);
  EXPECT_EQ(reading.Runs()[0].m_strPicture, "");
  EXPECT_EQ(reading.Runs()[0].m_strText, L"");
}

TEST(RTFPictureTest, SecondPictureReplacesOneThatStillWaits) {
  const RTFReading reading(
      R"({\trowd\cellx9\intbl{\*\shppict{\pict\emfblip 41}}{\*\shppict{\pict\emfblip 42}}\cell})");
  EXPECT_EQ(Pictures(reading), Strings{"B"});
}

TEST(RTFPictureTest, PicturesInSkippedGroupsAreNotRead) {
  const RTFReading reading(R"({{\header{\*\shppict{\pict 41}}}x})");
  EXPECT_EQ(reading.Outline(), L"[x]");
  EXPECT_EQ(Pictures(reading), Strings{});
}

// Conversion.

TEST(RTFPictureTest, MetafileIsConverted) {
  Converter converter(true, "converted");
  const RTFReading reading(R"({a{\*\shppict{\pict\emfblip 4142}}})", &converter);
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(converter.m_Formats, std::vector<int>{5});
  EXPECT_EQ(converter.m_strIn, "AB");
  EXPECT_EQ(converter.m_iReserved, 0);
  EXPECT_EQ(converter.m_iRoom, 2097152);
  EXPECT_EQ(reading.Outline(), L"[a]");
  EXPECT_EQ(Pictures(reading), Strings{"converted"});
}

TEST(RTFPictureTest, PngIsConverted) {
  Converter converter(true, "x");
  const RTFReading reading(R"({{\*\shppict{\pict\pngblip 4142}}})", &converter);
  EXPECT_EQ(converter.m_Formats, std::vector<int>{2});
  EXPECT_EQ(Pictures(reading), Strings{"x"});
}

TEST(RTFPictureTest, MetafileFlagGoesFirst) {
  Converter converter(true, "x");
  const RTFReading reading(R"({{\*\shppict{\pict\pngblip\emfblip 4142}}})", &converter);
  EXPECT_EQ(converter.m_Formats, std::vector<int>{5});
}

TEST(RTFPictureTest, OtherFormatsAreNotConverted) {
  Converter converter(true, "x");
  const RTFReading reading(R"({{\*\shppict{\pict\jpegblip 41}}{\*\shppict{\pict\wmetafile8 42}}})",
                           &converter);
  EXPECT_EQ(converter.m_Formats, std::vector<int>{});
  EXPECT_EQ(Pictures(reading), (Strings{"A", "B"}));
}

TEST(RTFPictureTest, RefusedConversionLeavesTheBytes) {
  Converter converter(false, "x");
  const RTFReading reading(R"({a{\*\shppict{\pict\pngblip 4142}}b})", &converter);
  EXPECT_EQ(converter.m_Formats, std::vector<int>{2});
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Outline(), L"[a][b]");
  EXPECT_EQ(Pictures(reading), Strings{"AB"});
}

TEST(RTFPictureTest, ConvertedPictureComesAtOnceInATable) {
  Converter converter(true, "x");
  const RTFReading reading(R"({\trowd\cellx9\intbl a{\*\shppict{\pict\pngblip 4142}}b\cell})", &converter);
  ASSERT_EQ(reading.Outline(), L"[a][b]P");
  EXPECT_EQ(reading.Runs()[0].m_strPicture, "x");
  EXPECT_FALSE(reading.Runs()[1].m_bPicture);
}

TEST(RTFPictureTest, ConversionMayFillTheWholeRoom) {
  Converter converter(true, std::string(2097152, 'p'));
  const RTFReading reading(R"({{\*\shppict{\pict\pngblip 41}}})", &converter);
  ASSERT_EQ(Pictures(reading).size(), 1U);
  EXPECT_EQ(Pictures(reading)[0], std::string(2097152, 'p'));
}

TEST(RTFPictureTest, HostileConverterClaimsMoreThanTheRoom) {
  Converter converter(true, std::string(2097152, 'p'), 2097153);
  const RTFReading reading(R"({{\*\shppict{\pict\pngblip 41}}})", &converter);
  ASSERT_EQ(Pictures(reading).size(), 1U);
  EXPECT_EQ(Pictures(reading)[0].size(), 2097152U);
}

TEST(RTFPictureTest, ConversionToNothingIsAPictureOfNoBytes) {
  Converter converter(true, "");
  const RTFReading reading(R"({{\*\shppict{\pict\pngblip 41}}})", &converter);
  EXPECT_EQ(Pictures(reading), Strings{""});
}

TEST(RTFPictureTest, LongPictureIsComplete) {
  // Longer than the chunk by which a store grows.
  std::string data = "{{\\*\\shppict{\\pict ";
  std::string expected;
  for (int i = 0; i < 200000; ++i) {
    data += i % 2 == 0 ? "41" : "42";
    expected += i % 2 == 0 ? 'A' : 'B';
    if (i % 64 == 63) data += "\r\n";
  }
  const RTFReading reading(data + "}}}");
  ASSERT_EQ(Pictures(reading).size(), 1U);
  EXPECT_TRUE(Pictures(reading)[0] == expected);
}

TEST(RTFPictureTest, DigitsWithoutLineEndsAreComplete) {
  // Around the number of bytes that are read at once, with and without a digit too many.
  for (const std::size_t bytes : {511U, 512U, 513U, 1024U, 1025U}) {
    std::string digits;
    for (std::size_t i = 0; i < bytes; ++i) digits += "4a";
    const std::string head = "{{\\*\\shppict{\\pict ";
    EXPECT_EQ(Pictures(RTFReading(head + digits + "}}}")), Strings{std::string(bytes, 'J')}) << bytes;
    EXPECT_EQ(Pictures(RTFReading(head + digits + "4}}}")), Strings{std::string(bytes, 'J')}) << bytes;
    EXPECT_EQ(Pictures(RTFReading(head + digits)), Strings{std::string(bytes, 'J')}) << bytes;
    EXPECT_EQ(Pictures(RTFReading(head + digits + "4")), Strings{std::string(bytes, 'J')}) << bytes;
  }
}

TEST(RTFPictureTest, EveryByteCountsAsItsDigit) {
  // Upper-cased, less "0" if it is a digit and less "7" if not.
  for (int byte = 1; byte < 256; ++byte) {
    const char ch = static_cast<char>(byte);
    if (std::strchr("\r\n\\{}", ch) != nullptr) continue;
    const int upper = byte >= 'a' && byte <= 'z' ? byte - 32 : byte;
    const int value = upper - (upper >= '0' && upper <= '9' ? 48 : 55);
    const std::string expected = {static_cast<char>(value * 16 + 1), static_cast<char>(32 + value)};
    const std::string body = {'0', '0', ch, '1', '2', ch};
    EXPECT_EQ(Pictures(RTFReading("{{\\*\\shppict{\\pict\n" + body + "}}}")), Strings{'\0' + expected})
        << byte;
  }
}

TEST(RTFPictureTest, HexBytesInFrontOfTheDigitsAreNotPartOfThem) {
  // The first pair of them ends at the digit 2, where the picture begins.
  const RTFReading reading(R"({{\*\shppict{\pict \'41\'424344}}})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Pictures(reading), Strings{"$4"});
}

}  // namespace
