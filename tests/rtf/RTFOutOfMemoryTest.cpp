#include "rtf/ContextChangedHandler.h"
#include "rtf/ParserProbe.h"
#include "rtf/PictureConvertHandler.h"
#include "rtf/RTFParser.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
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

/// While this lives, so many more pieces of memory are given, and then none.
class LittleMemory {
 public:
  explicit LittleMemory(int pieces) { s_iLeft = pieces; }
  ~LittleMemory() { s_iLeft = kNoLimit; }
  LittleMemory(const LittleMemory&) = delete;
  LittleMemory& operator=(const LittleMemory&) = delete;

  static bool Take() {
    if (s_iLeft == kNoLimit) return true;
    if (s_iLeft == 0) return false;
    --s_iLeft;
    return true;
  }

 private:
  static constexpr int kNoLimit = -1;
  inline static int s_iLeft = kNoLimit;
};

}  // namespace

// Stand in for those of the runtime, in this whole program.
void* operator new(std::size_t size) {
  void* const memory = LittleMemory::Take() ? std::malloc(size > 0 ? size : 1) : nullptr;
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

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

/// Takes all and keeps nothing.
class Forgetful : public CContextChangedHandler, public CPictureConvertHandler {
 public:
  void OnContextChanged(const wchar_t* /*text*/, CRTFContext* /*context*/) override {}
  bool ConvertPicture(int /*format*/, const void* /*data*/, int /*length*/, int /*reserved*/, void* /*out*/,
                      int* outLength) override {
    *outLength = 100000;
    return true;
  }
};

/// Reads a document while so many more pieces of memory are given.
int ResultWith(int pieces, std::string document) {
  Forgetful handler;
  Parser parser(reinterpret_cast<unsigned char*>(document.data()), static_cast<int>(document.size()),
                &handler, &handler);
  const LittleMemory little(pieces);
  return parser.RtfParse();
}

TEST(RTFOutOfMemory, EveryPieceOfMemoryMayBeTheLast) {
  const std::string document =
      "{\\rtf1\\ansicpg936{\\fonttbl{\\f0\\fcharset0 Arial with a long name;}{\\f1\\fcharset134 \\u52174?;}}"
      "{\\colortbl;\\red255;}{\\stylesheet{\\s1\\tx5\\b Heading with a long name;}}"
      "{\\*\\listtable{\\list{\\listlevel{\\leveltext\\u65?}}\\listid7}{\\list\\listid8}}"
      "{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}{\\listoverride\\listid8\\ls2}}"
      "\\ls1\\ilvl0{\\listtext a number that is long}\\tx9 text of more than a few "
      "letters\\f1\\'b0\\'a1{\\tx10 x}\\par"
      "{\\*\\bkmkstart a bookmark with a long name}{\\*\\shppict{\\pict\\pngblip 89504e47}}"
      "\\trowd\\clbrdrt\\brdrw5\\cellx100\\trowd\\cellx200\\intbl x\\cell\\row\\pard" +
      std::string(300, '{') + "\\pard" + std::string(300, '}') + "}";
  ASSERT_EQ(ResultWith(1000000, document), Parser::rtfOK);
  int pieces = 0;
  while (ResultWith(pieces, document) != Parser::rtfOK) {
    ASSERT_EQ(ResultWith(pieces, document), Parser::rtfNoMemory) << pieces;
    ++pieces;
  }
  EXPECT_GT(pieces, 100);
}

/// Has too little memory itself.
class Failing : public CContextChangedHandler, public CPictureConvertHandler {
 public:
  void OnContextChanged(const wchar_t* text, CRTFContext* /*context*/) override {
    if (text[0] == L'x') throw std::bad_alloc();
  }
  void OnBookmark(std::wstring /*name*/, bool /*start*/) override { throw std::bad_alloc(); }
  bool ConvertPicture(int /*format*/, const void* /*data*/, int /*length*/, int /*reserved*/, void* /*out*/,
                      int* /*outLength*/) override {
    throw std::bad_alloc();
  }
};

TEST(RTFOutOfMemory, WhatAHandlerThrowsIsHandedUp) {
  for (const char* const text :
       {"{x}", "{\\bkmkstart a}", "{\\bkmkend a}", "{\\shppict{\\pict\\pngblip 41}}", "{a\\par x\\par}"}) {
    std::string data = text;
    Failing handler;
    Parser parser(reinterpret_cast<unsigned char*>(data.data()), static_cast<int>(data.size()), &handler,
                  &handler);
    EXPECT_THROW(parser.RtfParse(), std::bad_alloc) << text;
  }
}

}  // namespace
