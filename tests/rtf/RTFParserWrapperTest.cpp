#include "rtf/RTFParserWrapper.h"

#include "rtf/PictureConvertHandler.h"
#include "rtf/RTFParser.h"
#include "rtf/RecordingHandler.h"
#include "support/KeepForever.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace {

using zebtest::KeepForever;
using zebtest::RecordingHandler;

static_assert(std::has_virtual_destructor_v<CRTFParserWrapper>);

/// Counts the pictures that it refuses.
class RefusingConverter final : public CPictureConvertHandler {
 public:
  bool ConvertPicture(int format, const void* /*data*/, int length, int /*reserved*/, void* /*out*/,
                      int* /*outLength*/) override {
    ++m_iCalls;
    m_iFormat = format;
    m_iLength = length;
    return false;
  }

  int m_iCalls = 0;
  int m_iFormat = -1;
  int m_iLength = -1;
};

unsigned char* BytesOf(std::string& text) { return reinterpret_cast<unsigned char*>(text.data()); }

TEST(RTFParserWrapper, ForwardsToAParserWithItsArguments) {
  std::string data = "{\\rtf1 abc}";
  RecordingHandler handler;
  auto& wrapper =
      KeepForever(new CRTFParserWrapper(BytesOf(data), static_cast<int>(data.size()), &handler, nullptr));
  EXPECT_EQ(wrapper.RtfParse(), CRTFParser::rtfOK);
  EXPECT_EQ(handler.Text(), L"abc");
}

TEST(RTFParserWrapper, HandsOnThePictureHandler) {
  std::string data = "{{\\*\\shppict{\\pict\\pngblip 8950}}}";
  RecordingHandler handler;
  RefusingConverter converter;
  auto& wrapper =
      KeepForever(new CRTFParserWrapper(BytesOf(data), static_cast<int>(data.size()), &handler, &converter));
  EXPECT_EQ(wrapper.RtfParse(), CRTFParser::rtfOK);
  EXPECT_EQ(converter.m_iCalls, 1);
  EXPECT_EQ(converter.m_iFormat, 2);
  EXPECT_EQ(converter.m_iLength, 2);
}

TEST(RTFParserWrapper, HandsOnTheResultCode) {
  std::string data = "{";
  auto& wrapper =
      KeepForever(new CRTFParserWrapper(BytesOf(data), static_cast<int>(data.size()), nullptr, nullptr));
  EXPECT_EQ(wrapper.RtfParse(), CRTFParser::rtfUnmatchedBrace);
}

TEST(RTFParserWrapper, FixedDestructorLeavesTheParserToCopies) {
  std::string data = "{\\rtf1 abc}";
  RecordingHandler handler;
  auto* wrapper = new CRTFParserWrapper(BytesOf(data), static_cast<int>(data.size()), &handler, nullptr);
  auto& copy = KeepForever(new CRTFParserWrapper(*wrapper));
  delete wrapper;
  EXPECT_EQ(copy.RtfParse(), CRTFParser::rtfOK);
  EXPECT_EQ(handler.Text(), L"abc");
}

TEST(RTFParserWrapper, AssignmentSharesTheParser) {
  std::string data = "{\\rtf1 abc}";
  RecordingHandler handler;
  auto& source =
      KeepForever(new CRTFParserWrapper(BytesOf(data), static_cast<int>(data.size()), &handler, nullptr));
  auto& replaced = KeepForever(new CRTFParserWrapper(nullptr, 0, nullptr, nullptr));
  auto& target = KeepForever(new CRTFParserWrapper(replaced));
  target = source;
  EXPECT_EQ(target.RtfParse(), CRTFParser::rtfOK);
  EXPECT_EQ(handler.Text(), L"abc");
  // The parser has read once: nothing is left for a second reading.
  EXPECT_EQ(source.RtfParse(), CRTFParser::rtfOK);
  EXPECT_EQ(handler.m_Runs.size(), 1U);
}

}  // namespace
