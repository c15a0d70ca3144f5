#include "fonts/GlobalFontHandler.h"

#include "fonts/Encodings.h"
#include "fonts/Fonts.h"
#include "support/KeepForever.h"

#include <gtest/gtest.h>

#include <memory>

TEST(GlobalFontHandler, MakesItsFontsAndEncodings) {
  const CGlobalFontHandler handler;
  EXPECT_NE(handler.GetFonts(), nullptr);
  EXPECT_NE(handler.GetEncodings(), nullptr);
}

TEST(GlobalFontHandler, FixedSettersFreeNothing) {
  CGlobalFontHandler handler;
  const std::unique_ptr<CFonts> fonts(handler.GetFonts());
  const std::unique_ptr<CEncodings> encodings(handler.GetEncodings());
  auto* newFonts = new CFonts(&handler);
  auto* newEncodings = new CEncodings(&handler);
  handler.SetFonts(newFonts);
  handler.SetEncodings(newEncodings);
  EXPECT_EQ(handler.GetFonts(), newFonts);
  EXPECT_EQ(handler.GetEncodings(), newEncodings);
}

TEST(GlobalFontHandler, FixedACopySharesFontsAndEncodings) {
  const CGlobalFontHandler source;
  const CGlobalFontHandler& copy = zebtest::KeepForever(new CGlobalFontHandler(source));
  EXPECT_EQ(copy.GetFonts(), source.GetFonts());
  EXPECT_EQ(copy.GetEncodings(), source.GetEncodings());
}
