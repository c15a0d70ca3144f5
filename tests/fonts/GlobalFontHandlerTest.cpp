#include "fonts/GlobalFontHandler.h"

#include "fonts/EncodingInformation.h"
#include "fonts/Encodings.h"
#include "fonts/FontInformation.h"
#include "fonts/Fonts.h"
#include "support/KeepForever.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace {

CFontInformation* AddFont(CGlobalFontHandler& handler, const wchar_t* name, const wchar_t* family = L"") {
  auto* const font = new CFontInformation(handler.GetFonts());
  font->GetFontMetrics()->SetBaseFont(name);
  font->GetFontMetrics()->SetFontFamilyName(family);
  handler.GetFonts()->AddFont(font);
  return font;
}

CEncodingInformation* AddEncoding(CGlobalFontHandler& handler, const wchar_t* name) {
  auto* const encoding = new CEncodingInformation(handler.GetEncodings());
  encoding->SetInternalName(name);
  handler.GetEncodings()->AddEncoding(encoding);
  return encoding;
}

using Names = std::vector<std::wstring>;

/// The names of the fonts behind the built-in ones.
Names FontsOf(const CGlobalFontHandler& handler) {
  Names names;
  for (int index = 25; index < handler.GetFonts()->GetFontCount(); ++index) {
    names.emplace_back(handler.GetFonts()->GetFontAt(index)->GetFontMetrics()->GetBaseFont());
  }
  return names;
}

/// The names of the encodings behind the 55 standard ones.
Names EncodingsOf(const CGlobalFontHandler& handler) {
  Names names;
  for (int index = 55; index < handler.GetEncodings()->GetEncodingCount(); ++index) {
    names.emplace_back(handler.GetEncodings()->GetEncodingAt(index)->GetInternalName());
  }
  return names;
}

static_assert(std::has_virtual_destructor_v<CGlobalFontHandler>);

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

TEST(GlobalFontHandler, FixedAnAssignedHandlerSharesFontsAndEncodingsAndFreesNothing) {
  const CGlobalFontHandler source;
  CGlobalFontHandler& target = zebtest::KeepForever(new CGlobalFontHandler);
  const std::unique_ptr<CFonts> fonts(target.GetFonts());
  const std::unique_ptr<CEncodings> encodings(target.GetEncodings());
  target = source;
  EXPECT_EQ(target.GetFonts(), source.GetFonts());
  EXPECT_EQ(target.GetEncodings(), source.GetEncodings());
}

TEST(GlobalFontHandler, ForwardsFontNames) {
  CGlobalFontHandler handler;
  AddFont(handler, L"Sample")->GetFontMetrics()->AddLocalizedFontName(L"Muster");
  EXPECT_STREQ(handler.GetLocalizedFontName(L"Sample", 400, false), L"Muster");
  EXPECT_STREQ(handler.GetUniqueFontName(L"Muster", 400, false), L"Sample");
}

TEST(GlobalFontHandler, MergingMovesAFontThatIsMissing) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  CFontInformation* const font = AddFont(other, L"Sample");
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(handler.GetFonts()->GetFontCount(), 26);
  EXPECT_EQ(handler.GetFonts()->GetFontAt(25), font);
  EXPECT_EQ(other.GetFonts()->GetFontCount(), 25);
}

TEST(GlobalFontHandler, MergingLeavesTheBuiltInFonts) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  const std::unique_ptr<CFontInformation> removed(handler.GetFonts()->GetFontAt(4));
  const std::unique_ptr<CFontInformation> removedCJK(handler.GetFonts()->GetFontAt(14));
  handler.GetFonts()->RemoveFontAt(14);
  handler.GetFonts()->RemoveFontAt(4);
  other.GetFonts()->GetFontAt(4);
  other.GetFonts()->GetFontAt(14);
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(handler.GetFonts()->GetFontCount(), 23);
  EXPECT_EQ(other.GetFonts()->GetFontCount(), 25);
}

TEST(GlobalFontHandler, MergingLeavesFontsThatAreMarkedAsBuiltIn) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  AddFont(other, L"Standard")->GetFontMetrics()->SetBase14Font(true);
  AddFont(other, L"Predefined")->GetFontMetrics()->SetCJKFont(true);
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(handler.GetFonts()->GetFontCount(), 25);
  EXPECT_EQ(FontsOf(other), (Names{L"Standard", L"Predefined"}));
}

TEST(GlobalFontHandler, MergingFindsAFontByItsLocalizedName) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  AddFont(handler, L"A")->GetFontMetrics()->AddLocalizedFontName(L"Sample");
  AddFont(other, L"Sample");
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(FontsOf(handler), Names{L"A"});
  EXPECT_EQ(FontsOf(other), Names{L"Sample"});
}

TEST(GlobalFontHandler, MergingLeavesAFontThatBothHave) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  AddFont(handler, L"SAMPLE");
  AddFont(other, L"Sample");
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(FontsOf(handler), Names{L"SAMPLE"});
  EXPECT_EQ(FontsOf(other), Names{L"Sample"});
}

TEST(GlobalFontHandler, MergingLooksForTheStyleOfAFamily) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  AddFont(handler, L"Sample", L"Sample");
  AddFont(other, L"Sample", L"Sample")->GetFontMetrics()->SetBold(700);
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(FontsOf(handler), (Names{L"Sample", L"Sample"}));
  EXPECT_EQ(FontsOf(other), Names{});
}

TEST(GlobalFontHandler, MergingLooksForTheSlantOfAFamily) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  AddFont(handler, L"Sample", L"Sample");
  AddFont(other, L"Sample", L"Sample")->GetFontMetrics()->SetItalic(true);
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(FontsOf(handler), (Names{L"Sample", L"Sample"}));
}

TEST(GlobalFontHandler, FixedMergingPassesOverWhatFollowsAMovedFont) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  for (const wchar_t* name : {L"A", L"B", L"C", L"D", L"E"}) AddFont(other, name);
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(FontsOf(handler), (Names{L"A", L"C", L"E"}));
  EXPECT_EQ(FontsOf(other), (Names{L"B", L"D"}));
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(FontsOf(handler), (Names{L"A", L"C", L"E", L"B"}));
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(FontsOf(handler), (Names{L"A", L"C", L"E", L"B", L"D"}));
  EXPECT_EQ(FontsOf(other), Names{});
}

TEST(GlobalFontHandler, FixedAMovedFontAsksTheOldHandler) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  CFontInformation* const font = AddFont(other, L"Sample");
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(font->GetEncodingInformation(L"winansi1252"), other.GetEncodings()->FindEncoding(L"winansi1252"));
}

TEST(GlobalFontHandler, MergingMovesEncodingsThatAreMissing) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  AddEncoding(handler, L"mine");
  AddEncoding(other, L"mine");
  CEncodingInformation* const theirs = AddEncoding(other, L"theirs");
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(EncodingsOf(handler), (Names{L"mine", L"theirs"}));
  EXPECT_EQ(EncodingsOf(other), Names{L"mine"});
  EXPECT_EQ(handler.GetEncodings()->FindEncoding(L"theirs"), theirs);
}

TEST(GlobalFontHandler, FixedMergingPassesOverWhatFollowsAMovedEncoding) {
  CGlobalFontHandler handler;
  CGlobalFontHandler other;
  for (const wchar_t* name : {L"a", L"b", L"c"}) AddEncoding(other, name);
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(EncodingsOf(handler), (Names{L"a", L"c"}));
  handler.AddAnotherFontHandler(&other);
  EXPECT_EQ(EncodingsOf(handler), (Names{L"a", L"c", L"b"}));
  EXPECT_EQ(EncodingsOf(other), Names{});
}

}  // namespace
