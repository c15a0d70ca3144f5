#include "rtf/RTFParserWrapper.h"

#include "rtf/RTFParser.h"
#include "rtf/RecordingHandler.h"
#include "support/KeepForever.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using zebtest::KeepForever;
using zebtest::RecordingHandler;

unsigned char* BytesOf(std::string& text) { return reinterpret_cast<unsigned char*>(text.data()); }

TEST(RTFParserWrapper, ForwardsToAParserWithItsArguments) {
  std::string data = "{\\rtf1 abc}";
  RecordingHandler handler;
  auto& wrapper =
      KeepForever(new CRTFParserWrapper(BytesOf(data), static_cast<int>(data.size()), &handler, nullptr));
  EXPECT_EQ(wrapper.RtfParse(), CRTFParser::rtfOK);
  EXPECT_EQ(handler.Text(), L"abc");
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
