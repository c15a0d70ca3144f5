#include "rtf/ParserProbe.h"
#include "rtf/RTFParser.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>

namespace {

using Parser = CRTFParser;
using zebtest::ParserProbe;

/// While this lives, memory that is asked for without exceptions is not given.
class NoMemory {
 public:
  NoMemory() { s_bOn = true; }
  ~NoMemory() { s_bOn = false; }
  NoMemory(const NoMemory&) = delete;
  NoMemory& operator=(const NoMemory&) = delete;

  static bool IsOn() { return s_bOn; }

 private:
  inline static bool s_bOn = false;
};

}  // namespace

// Stands in for the one of the runtime, in this whole program.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  if (NoMemory::IsOn()) return nullptr;
  try {
    return ::operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

namespace {

TEST(RTFOutOfMemory, GroupWithoutMemoryEndsTheReading) {
  ParserProbe probe;
  const NoMemory none;
  EXPECT_EQ(probe.PushRtfState(), Parser::rtfNoMemory);
  EXPECT_EQ(probe.m_pStack, nullptr);
  EXPECT_EQ(probe.m_cGroup, 0);
}

TEST(RTFOutOfMemory, ResultWithoutMemoryIsHandedUp) {
  ParserProbe probe("a{b}");
  const NoMemory none;
  EXPECT_EQ(probe.RtfParse(), Parser::rtfNoMemory);
}

TEST(RTFOutOfMemory, PardWithoutMemoryEndsTheReading) {
  // Deep groups share their saved state; the first \pard in one of them needs a state of its own.
  ParserProbe probe(std::string(400, '{'));
  EXPECT_EQ(probe.RtfParse(), Parser::rtfUnmatchedBrace);
  const NoMemory none;
  EXPECT_EQ(probe.ParseSpecialProperty(Parser::ipropPard, 0), Parser::rtfNoMemory);
}

}  // namespace
