#include "fonts/Fonts.h"

#include "fonts/EncodingInformation.h"
#include "fonts/Encodings.h"
#include "fonts/FontInformation.h"
#include "fonts/GlobalFontHandler.h"
#include "fonts/PDFCharCollName.h"
#include "support/KeepForever.h"
#include "support/ScopedFontPool.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace {

constexpr int kNormal = 400;
constexpr int kBoldWeight = 700;

struct Face {
  const wchar_t* Name;
  const wchar_t* Family = L"";
  int Bold = kNormal;
  bool Italic = false;
  std::vector<std::wstring> LocalizedNames = {};
};

/// Adds a font of a report.
CFontInformation* Add(CFonts& fonts, const Face& face) {
  auto* const font = new CFontInformation(&fonts);
  fonts.AddFont(font);
  CFontMetrics& metrics = *font->GetFontMetrics();
  metrics.SetBaseFont(face.Name);
  metrics.SetFontFamilyName(face.Family);
  metrics.SetBold(face.Bold);
  metrics.SetItalic(face.Italic);
  for (const std::wstring& name : face.LocalizedNames) metrics.AddLocalizedFontName(name.c_str());
  return font;
}

std::wstring NameOf(const CFontInformation* font) {
  return font == nullptr ? L"none" : font->GetFontMetrics()->GetBaseFont();
}

/// Stores a font in the pool of the process.
void Pool(const wchar_t* name, const std::vector<std::wstring>& localizedNames) {
  unsigned char byte = 0;
  CFontPool::GetInstance().SetFontData(name, L"", kNormal, false, &byte, 1, localizedNames);
}

static_assert(std::has_virtual_destructor_v<CFonts>);

class Fonts : public testing::Test {
 protected:
  CFontInformation* Find(const wchar_t* name, int bold = kNormal, bool italic = false) const {
    return m_fonts.FindFont(name, bold, italic);
  }
  const wchar_t* Localized(const wchar_t* name) { return m_fonts.GetLocalizedFontName(name, kNormal, false); }
  const wchar_t* Unique(const wchar_t* name) { return m_fonts.GetUniqueFontName(name, kNormal, false); }

  zebtest::ScopedFontPool m_pool;
  CFonts m_fonts{nullptr};
};

// The list

TEST_F(Fonts, StartWithTheStandardAndTheCJKFonts) {
  ASSERT_EQ(m_fonts.GetFontCount(), 25);
  EXPECT_EQ(NameOf(m_fonts.GetFontAt(0)), L"Courier");
  EXPECT_EQ(NameOf(m_fonts.GetFontAt(13)), L"ZapfDingbats");
  EXPECT_EQ(NameOf(m_fonts.GetFontAt(14)), L"HeiseiKakuGo-W5");
  EXPECT_EQ(NameOf(m_fonts.GetFontAt(24)), L"STSongStd-Light-Acro");
}

TEST_F(Fonts, AddTheBuiltInFontsOnce) {
  m_fonts.AddBase14FontInformations();
  m_fonts.AddCJKFontInformations();
  EXPECT_EQ(m_fonts.GetFontCount(), 25);
  m_fonts.RemoveFontAt(0);
  m_fonts.AddBase14FontInformations();
  EXPECT_EQ(m_fonts.GetFontCount(), 24);
}

TEST_F(Fonts, GiveTheSameObjectAtEveryQuestion) {
  EXPECT_EQ(m_fonts.GetFontAt(4), m_fonts.GetFontAt(4));
  EXPECT_EQ(Find(L"Helvetica"), m_fonts.GetFontAt(4));
}

TEST_F(Fonts, OfTwoListsAreTwoObjects) {
  const CFonts other(nullptr);
  EXPECT_NE(other.GetFontAt(4), m_fonts.GetFontAt(4));
  other.GetFontAt(4)->GetFontMetrics()->SetWidthAt('A', 1);
  EXPECT_EQ(m_fonts.GetFontAt(4)->GetFontMetrics()->GetWidthAt('A'), 667);
}

TEST_F(Fonts, AddedFontsStandAtTheEnd) {
  CFontInformation* const font = Add(m_fonts, {L"Sample"});
  EXPECT_EQ(m_fonts.GetFontCount(), 26);
  EXPECT_EQ(m_fonts.GetFontAt(25), font);
}

TEST_F(Fonts, ARemovedFontIsTheCallers) {
  const std::unique_ptr<CFontInformation> added(Add(m_fonts, {L"Sample"}));
  const std::unique_ptr<CFontInformation> builtIn(m_fonts.GetFontAt(4));
  m_fonts.RemoveFontAt(25);
  m_fonts.RemoveFontAt(4);
  EXPECT_EQ(m_fonts.GetFontCount(), 24);
  EXPECT_EQ(NameOf(m_fonts.GetFontAt(4)), L"Helvetica-Bold");
  EXPECT_EQ(Find(L"Helvetica"), nullptr);
  EXPECT_EQ(Find(L"Sample"), nullptr);
  EXPECT_EQ(NameOf(builtIn.get()), L"Helvetica");
}

TEST_F(Fonts, FixedACopySharesTheFonts) {
  Add(m_fonts, {L"Sample"});
  const CFonts& copy = zebtest::KeepForever(new CFonts(m_fonts));
  CFonts& assigned = zebtest::KeepForever(new CFonts(nullptr));
  assigned = m_fonts;
  // Also those that are first asked for by a copy.
  CFontInformation* const courier = copy.GetFontAt(0);
  EXPECT_EQ(m_fonts.GetFontAt(0), courier);
  for (int index = 0; index < 26; ++index) {
    EXPECT_EQ(copy.GetFontAt(index), m_fonts.GetFontAt(index));
    EXPECT_EQ(assigned.GetFontAt(index), m_fonts.GetFontAt(index));
  }
}

TEST_F(Fonts, FixedACopyTakesTheAnswersAndTheOwner) {
  CGlobalFontHandler handler;
  CFonts& fonts = *handler.GetFonts();
  ASSERT_EQ(fonts.GetLocalizedFontName(L"Unknown", kNormal, false), nullptr);
  ASSERT_STREQ(fonts.GetUniqueFontName(L"helvetica", kNormal, false), L"helvetica");
  CFonts& copy = zebtest::KeepForever(new CFonts(fonts));
  CFonts& assigned = zebtest::KeepForever(new CFonts(nullptr));
  assigned = fonts;
  for (CFonts* const other : {&copy, &assigned}) {
    EXPECT_STREQ(other->GetLocalizedFontName(L"Unknown", kNormal, false), L"Unknown");
    other->RemoveFontAt(4);
    EXPECT_STREQ(other->GetUniqueFontName(L"helvetica", kNormal, false), L"helvetica");
    EXPECT_EQ(other->GetEncodingInformation(L"winansi1252"),
              handler.GetEncodings()->FindEncoding(L"winansi1252"));
    other->AddBase14FontInformations();
    other->AddCJKFontInformations();
    EXPECT_EQ(other->GetFontCount(), 24);
  }
  EXPECT_EQ(fonts.GetFontCount(), 25);
}

TEST_F(Fonts, ForwardToTheEncodingsOfTheHandler) {
  CGlobalFontHandler handler;
  const CFonts& fonts = *handler.GetFonts();
  EXPECT_EQ(fonts.GetEncodingInformation(L"winansi1252"),
            handler.GetEncodings()->FindEncoding(L"winansi1252"));
  EXPECT_NE(fonts.GetEncodingInformation(L"winansi1252"), nullptr);
  EXPECT_EQ(fonts.GetEncodingInformation(L"WINANSI1252"), nullptr);
  EXPECT_STREQ(fonts.GetCharCollNameAt(CFontMetrics::CharCollKorea1)->GetOrdering(), L"Korea1");
}

TEST_F(Fonts, TheBuiltInFontsAskTheHandlerOfTheirList) {
  const CGlobalFontHandler handler;
  CEncodingInformation* const encoding = handler.GetEncodings()->FindEncoding(L"winansi1252");
  ASSERT_NE(encoding, nullptr);
  EXPECT_EQ(handler.GetFonts()->GetFontAt(4)->GetEncodingInformation(L"winansi1252"), encoding);
  EXPECT_EQ(handler.GetFonts()->GetFontAt(14)->GetEncodingInformation(L"winansi1252"), encoding);
}

TEST_F(Fonts, WithoutAHandlerThereAreNoEncodings) {
  EXPECT_EQ(m_fonts.GetEncodingInformation(L"winansi1252"), nullptr);
  EXPECT_EQ(m_fonts.GetCharCollNameAt(CFontMetrics::CharCollKorea1), nullptr);
}

// FindFont

TEST_F(Fonts, ANullOrEmptyNameIsNoFont) {
  Add(m_fonts, {L"", L""});
  EXPECT_EQ(Find(nullptr), nullptr);
  EXPECT_EQ(Find(L""), nullptr);
  EXPECT_EQ(Find(L"@"), nullptr);
}

TEST_F(Fonts, FixedAUniqueNameIsFoundInAnyStyle) {
  EXPECT_EQ(NameOf(Find(L"helvetica", kBoldWeight, true)), L"Helvetica");
  EXPECT_EQ(NameOf(Find(L"HYGOTHIC-MEDIUM", kBoldWeight, true)), L"HYGoThic-Medium");
  Add(m_fonts, {L"Sample Bold", L"Sample", kBoldWeight});
  EXPECT_EQ(NameOf(Find(L"SAMPLE BOLD", 123, true)), L"Sample Bold");
}

TEST_F(Fonts, TheMarkOfAVerticalFontDoesNotCount) {
  EXPECT_EQ(NameOf(Find(L"@HeiseiMin-W3")), L"HeiseiMin-W3");
  Add(m_fonts, {L"Sample", L"Samples", kNormal, false, {L"Muster"}});
  EXPECT_EQ(NameOf(Find(L"@samples")), L"Sample");
  EXPECT_EQ(NameOf(Find(L"@Muster")), L"Sample");
}

TEST_F(Fonts, FixedASecondMarkCountsButInLocalizedNames) {
  Add(m_fonts, {L"Sample", L"Samples", kNormal, false, {L"Muster"}});
  EXPECT_EQ(Find(L"@@Sample"), nullptr);
  EXPECT_EQ(Find(L"@@Samples"), nullptr);
  EXPECT_EQ(NameOf(Find(L"@@Muster")), L"Sample");
}

TEST_F(Fonts, AFamilyIsFoundInItsStyle) {
  Add(m_fonts, {L"Sample Regular", L"Sample"});
  Add(m_fonts, {L"Sample Bold", L"Sample", kBoldWeight});
  Add(m_fonts, {L"Sample Italic", L"Sample", kNormal, true});
  EXPECT_EQ(NameOf(Find(L"sample", kNormal, false)), L"Sample Regular");
  EXPECT_EQ(NameOf(Find(L"Sample", kBoldWeight, false)), L"Sample Bold");
  EXPECT_EQ(NameOf(Find(L"Sample", kNormal, true)), L"Sample Italic");
  EXPECT_EQ(Find(L"Sample", kBoldWeight, true), nullptr);
  EXPECT_EQ(Find(L"Sample", 699, false), nullptr);
}

TEST_F(Fonts, AUniqueNameThatIsTheFamilysNeedsTheStyle) {
  Add(m_fonts, {L"Sample", L"SAMPLE"});
  EXPECT_EQ(NameOf(Find(L"Sample", kNormal, false)), L"Sample");
  EXPECT_EQ(Find(L"Sample", kBoldWeight, false), nullptr);
}

TEST_F(Fonts, AMissingStyleOfAFamilyIsFoundByALocalizedName) {
  Add(m_fonts, {L"Sample", L"Sample"});
  Add(m_fonts, {L"Other", L"Other", kNormal, false, {L"Sample"}});
  EXPECT_EQ(NameOf(Find(L"Sample", kBoldWeight, false)), L"Other");
}

TEST_F(Fonts, LocalizedNamesComeLastAndWithTheirCase) {
  Add(m_fonts, {L"First", L"", kNormal, false, {L"Muster", L"Zweiter"}});
  Add(m_fonts, {L"Zweiter"});
  Add(m_fonts, {L"Third", L"", kNormal, false, {L"Muster"}});
  EXPECT_EQ(NameOf(Find(L"Muster", kBoldWeight, true)), L"First");
  EXPECT_EQ(NameOf(Find(L"Zweiter")), L"Zweiter");
  EXPECT_EQ(Find(L"MUSTER"), nullptr);
}

TEST_F(Fonts, TheFirstOfTheListCounts) {
  CFontInformation* const first = Add(m_fonts, {L"Sample"});
  Add(m_fonts, {L"Sample"});
  Add(m_fonts, {L"Helvetica"});
  EXPECT_EQ(Find(L"Sample"), first);
  EXPECT_EQ(Find(L"Helvetica"), m_fonts.GetFontAt(4));
}

TEST_F(Fonts, ABuiltInFontIsFoundByTheNamesThatItHasNow) {
  CFontMetrics& metrics = *m_fonts.GetFontAt(4)->GetFontMetrics();
  metrics.SetBaseFont(L"Changed");
  metrics.AddLocalizedFontName(L"Anders");
  EXPECT_EQ(Find(L"Helvetica"), nullptr);
  EXPECT_EQ(Find(L"Changed"), m_fonts.GetFontAt(4));
  EXPECT_EQ(Find(L"Anders"), m_fonts.GetFontAt(4));
}

// GetLocalizedFontName

TEST_F(Fonts, ABuiltInFontIsKnownByTheNameAsAskedFor) {
  for (const wchar_t* name : {L"Helvetica", L"@heLVetica", L"MHei-Medium"}) {
    const wchar_t* const answer = Localized(name);
    EXPECT_STREQ(answer, name);
    EXPECT_EQ(Localized(name), answer);
  }
}

TEST_F(Fonts, ALocalizedNameIsTheFirstThatDoesNotContainTheName) {
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Sample Text", L"Muster", L"Anders"}});
  EXPECT_STREQ(Localized(L"Sample"), L"Muster");
  EXPECT_STREQ(Localized(L"@Sample"), L"Muster");
  EXPECT_STREQ(Localized(L"Muster"), L"Sample Text");
}

TEST_F(Fonts, AContainedNameIsComparedWithItsCase) {
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"SAMPLE TEXT"}});
  EXPECT_STREQ(Localized(L"Sample"), L"SAMPLE TEXT");
}

TEST_F(Fonts, AFontWhoseLocalizedNamesAllContainTheNameIsSoughtInThePool) {
  Add(m_fonts, {L"Muster", L"", kNormal, false, {L"Muster Text"}});
  Pool(L"Sample", {L"muster"});
  EXPECT_STREQ(Localized(L"Muster"), L"Sample");
}

TEST_F(Fonts, AnUnknownFontIsSoughtInThePool) {
  Pool(L"Sample", {L"Muster"});
  EXPECT_STREQ(Localized(L"muster"), L"Sample");
  m_pool->DeleteFontPool();
  EXPECT_STREQ(Localized(L"muster"), L"Sample") << "what is answered stays so";
}

TEST_F(Fonts, TheListComesBeforeThePool) {
  Pool(L"Other", {L"Sample", L"Helvetica"});
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Muster"}});
  EXPECT_STREQ(Localized(L"Sample"), L"Muster");
  EXPECT_STREQ(Localized(L"Helvetica"), L"Helvetica");
  EXPECT_STREQ(Unique(L"Helvetica"), L"Helvetica");
}

TEST_F(Fonts, OfAFontWithoutLocalizedNamesThePoolMayKnowAnother) {
  Pool(L"Other", {L"Sample"});
  Add(m_fonts, {L"Sample"});
  EXPECT_STREQ(Unique(L"Sample"), L"Sample");
  EXPECT_STREQ(Localized(L"Sample"), L"Other");
}

TEST_F(Fonts, FixedTheFirstQuestionForAnUnknownFontGivesNull) {
  EXPECT_EQ(Localized(L"Unknown"), nullptr);
  EXPECT_STREQ(Localized(L"Unknown"), L"Unknown");
  EXPECT_EQ(Localized(L""), nullptr);
  EXPECT_STREQ(Localized(L""), L"");
  EXPECT_EQ(Localized(L"@"), nullptr);
  EXPECT_STREQ(Localized(L"@"), L"@");
}

TEST_F(Fonts, FixedAFontWithoutLocalizedNamesIsNullAtFirst) {
  Add(m_fonts, {L"Sample"});
  EXPECT_EQ(Localized(L"Sample"), nullptr);
  EXPECT_STREQ(Localized(L"Sample"), L"Sample");
}

TEST_F(Fonts, FixedAnswersAreNotTakenBack) {
  EXPECT_EQ(Localized(L"Sample"), nullptr);
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Muster"}});
  EXPECT_STREQ(Localized(L"Sample"), L"Sample");
}

TEST_F(Fonts, AnswersAreByTheNameAsAskedFor) {
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Muster"}});
  EXPECT_STREQ(Localized(L"Sample"), L"Muster");
  EXPECT_STREQ(Localized(L"sample"), L"Muster");
  EXPECT_EQ(Localized(L"samples"), nullptr);
}

TEST_F(Fonts, FixedAnswersIgnoreTheStyle) {
  Add(m_fonts, {L"Sample Regular", L"Sample", kNormal, false, {L"Muster"}});
  Add(m_fonts, {L"Sample Bold", L"Sample", kBoldWeight, false, {L"Fett"}});
  EXPECT_STREQ(m_fonts.GetLocalizedFontName(L"Sample", kBoldWeight, false), L"Fett");
  EXPECT_STREQ(m_fonts.GetLocalizedFontName(L"Sample", kNormal, false), L"Fett");
}

TEST_F(Fonts, AnswersOutliveTheFont) {
  const std::unique_ptr<CFontInformation> font(Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Muster"}}));
  EXPECT_STREQ(Localized(L"Sample"), L"Muster");
  EXPECT_STREQ(Unique(L"Muster"), L"Sample");
  m_fonts.RemoveFontAt(25);
  EXPECT_STREQ(Localized(L"Sample"), L"Muster");
  EXPECT_STREQ(Unique(L"Muster"), L"Sample");
}

TEST_F(Fonts, ANullNameHasNoOther) {
  EXPECT_EQ(Localized(nullptr), nullptr);
  EXPECT_EQ(Unique(nullptr), nullptr);
}

// Fonts that are never embedded

TEST_F(Fonts, ABuiltInFontKeepsItsNameThoughItHasLocalizedOnes) {
  m_fonts.GetFontAt(4)->GetFontMetrics()->AddLocalizedFontName(L"Anders");
  EXPECT_STREQ(Localized(L"Helvetica"), L"Helvetica");
  EXPECT_STREQ(Unique(L"Anders"), L"Anders");
}

TEST_F(Fonts, AnAddedFontThatIsMarkedAsBuiltInKeepsItsNameThoughItHasLocalizedOnes) {
  for (void (CFontMetrics::*const mark)(bool) : {&CFontMetrics::SetCJKFont, &CFontMetrics::SetBase14Font}) {
    CFonts fonts(nullptr);
    CFontInformation* const font = Add(fonts, {L"Sample", L"", kNormal, false, {L"Muster"}});
    (font->GetFontMetrics()->*mark)(true);
    EXPECT_STREQ(fonts.GetLocalizedFontName(L"Sample", kNormal, false), L"Sample");
    EXPECT_STREQ(fonts.GetUniqueFontName(L"Muster", kNormal, false), L"Muster");
  }
}

// GetUniqueFontName

TEST_F(Fonts, ABuiltInFontIsStoredByTheNameAsAskedFor) {
  for (const wchar_t* name : {L"Helvetica", L"@heLVetica", L"MHei-Medium"}) {
    const wchar_t* const answer = Unique(name);
    EXPECT_STREQ(answer, name);
    EXPECT_EQ(Unique(name), answer);
  }
}

TEST_F(Fonts, AFontWithoutLocalizedNamesIsStoredByTheNameAsAskedFor) {
  Add(m_fonts, {L"Sample", L"Samples"});
  EXPECT_STREQ(Unique(L"samples"), L"samples");
}

TEST_F(Fonts, ALocalizedNameGivesTheUniqueOne) {
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Anders", L"Muster"}});
  EXPECT_STREQ(Unique(L"Muster"), L"Sample");
  EXPECT_STREQ(Unique(L"@Anders"), L"Sample");
}

TEST_F(Fonts, ALocalizedNameInAnotherCaseGivesTheUniqueOne) {
  Add(m_fonts, {L"Sample", L"MUSTER", kNormal, false, {L"Muster"}});
  EXPECT_STREQ(Unique(L"muster"), L"Sample");
}

TEST_F(Fonts, FixedAPartOfALocalizedNameIsNullAtFirst) {
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Sample Text"}});
  EXPECT_EQ(Unique(L"Sample"), nullptr);
  EXPECT_STREQ(Unique(L"Sample"), L"Sample");
}

TEST_F(Fonts, APartOfALocalizedNameIsNotSoughtElsewhere) {
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Sample Text"}});
  Pool(L"Other", {L"Sample"});
  EXPECT_EQ(Unique(L"Sample"), nullptr);
}

TEST_F(Fonts, APartInAnotherCaseIsSoughtInThePool) {
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"SAMPLE TEXT"}});
  Pool(L"Other", {L"Sample"});
  EXPECT_STREQ(Unique(L"Sample"), L"Other");
}

TEST_F(Fonts, AnEqualNameBehindOneThatContainsItGivesTheUniqueOne) {
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Muster Text", L"Muster"}});
  EXPECT_STREQ(Unique(L"Muster"), L"Sample");
  EXPECT_STREQ(Unique(L"Muster"), L"Sample");
}

TEST_F(Fonts, AFontWithOtherLocalizedNamesIsSoughtInThePool) {
  Add(m_fonts, {L"Sample", L"", kNormal, false, {L"Muster"}});
  Pool(L"Other", {L"Sample"});
  EXPECT_STREQ(Unique(L"Sample"), L"Other");
}

TEST_F(Fonts, FixedUniqueNamesIgnoreTheStyleOnceAnswered) {
  Add(m_fonts, {L"Sample Regular", L"Sample", kNormal, false, {L"sample"}});
  Add(m_fonts, {L"Sample Bold", L"Sample", kBoldWeight, false, {L"SAMPLE"}});
  EXPECT_STREQ(m_fonts.GetUniqueFontName(L"Sample", kBoldWeight, false), L"Sample Bold");
  EXPECT_STREQ(m_fonts.GetUniqueFontName(L"Sample", kNormal, false), L"Sample Bold");
}

TEST_F(Fonts, AnUnknownNameIsSoughtInThePool) {
  Pool(L"Sample", {L"Muster"});
  EXPECT_STREQ(Unique(L"@MUSTER"), L"Sample");
  m_pool->DeleteFontPool();
  EXPECT_STREQ(Unique(L"@MUSTER"), L"Sample");
}

TEST_F(Fonts, ANameThatNobodyKnowsHasNoUniqueOne) {
  EXPECT_EQ(Unique(L"No such font at all"), nullptr);
  EXPECT_EQ(Unique(L"No such font at all"), nullptr);
  EXPECT_EQ(Unique(L""), nullptr);
}

TEST_F(Fonts, WhatIsUnknownMayBecomeKnown) {
  EXPECT_EQ(Unique(L"Muster 123"), nullptr);
  Pool(L"Sample", {L"Muster 123"});
  EXPECT_STREQ(Unique(L"Muster 123"), L"Sample");
}

TEST_F(Fonts, AnInstalledFontGivesItsFullName) {
  EXPECT_STREQ(Unique(L"dejavu sans mono"), L"DejaVu Sans Mono");
  EXPECT_STREQ(m_fonts.GetUniqueFontName(L"DejaVu Sans", kBoldWeight, false), L"DejaVu Sans Bold");
  EXPECT_STREQ(m_fonts.GetUniqueFontName(L"@dejavu sans", kNormal, true), L"DejaVu Sans Oblique");
  EXPECT_STREQ(Unique(L"IPA\x30B4\x30B7\x30C3\x30AF"), L"IPAGothic");
}

TEST_F(Fonts, AFontThatWasOnlyReadForItsNameIsNotInTheList) {
  const wchar_t* const answer = Unique(L"DejaVu Sans Mono");
  EXPECT_EQ(m_fonts.GetFontCount(), 25);
  EXPECT_EQ(Find(L"DejaVu Sans Mono"), nullptr);
  EXPECT_EQ(Unique(L"DejaVu Sans Mono"), answer) << "what is answered stays so";
}

TEST_F(Fonts, AnInstalledFontOfThePoolIsAskedOfThePool) {
  Pool(L"Sample", {L"DejaVu Sans Mono"});
  EXPECT_STREQ(Unique(L"DejaVu Sans Mono"), L"Sample");
}

TEST_F(Fonts, ANameThatIsTooLongForAFaceHasNoUniqueOne) {
  EXPECT_EQ(Unique(std::wstring(33, L'n').c_str()), nullptr);
}

}  // namespace
