#include "placement/ReportOrderedElement.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ReportOrderedElement, StartsAsValueHolder) {
  const CReportOrderedElement element;
  EXPECT_TRUE(element.IsValueHolder());
  EXPECT_FALSE(element.IsText());
  EXPECT_FALSE(element.IsOtherElement());
}

TEST(ReportOrderedElement, TakesTextAndBecomesText) {
  CReportOrderedElement element;
  element.SetTextContent(L"Summe");
  EXPECT_TRUE(element.IsText());
  EXPECT_FALSE(element.IsValueHolder());
  EXPECT_FALSE(element.IsOtherElement());
  EXPECT_STREQ(element.GetTextContent(), L"Summe");
}

TEST(ReportOrderedElement, TakesKeyAndBecomesValueHolderAgain) {
  CReportOrderedElement element;
  element.SetTextContent(L"Summe");
  element.SetValueHolderKey(L"Betrag");
  EXPECT_TRUE(element.IsValueHolder());
  EXPECT_FALSE(element.IsText());
  EXPECT_STREQ(element.GetValueHolderKey(), L"Betrag");
}

TEST(ReportOrderedElement, NullChangesNothing) {
  CReportOrderedElement element;
  element.SetValueHolderKey(L"Betrag");
  element.SetTextContent(nullptr);
  EXPECT_TRUE(element.IsValueHolder());
  element.SetOtherElement();
  element.SetValueHolderKey(nullptr);
  element.SetTextContent(nullptr);
  EXPECT_TRUE(element.IsOtherElement());
  EXPECT_STREQ(element.GetValueHolderKey(), L"Betrag");
}

TEST(ReportOrderedElement, FixedOtherElementKeepsBothTexts) {
  CReportOrderedElement element;
  element.SetValueHolderKey(L"Betrag");
  element.SetTextContent(L"Summe");
  element.SetOtherElement();
  EXPECT_TRUE(element.IsOtherElement());
  EXPECT_FALSE(element.IsValueHolder());
  EXPECT_FALSE(element.IsText());
  EXPECT_STREQ(element.GetValueHolderKey(), L"Betrag");
  EXPECT_STREQ(element.GetTextContent(), L"Summe");
}

TEST(ReportOrderedElement, KeepsTextsWholeWhateverTheirLength) {
  const std::wstring key(100'000, L'k');
  const std::wstring text(200'000, L't');
  CReportOrderedElement element;
  element.SetValueHolderKey(key.c_str());
  element.SetTextContent(text.c_str());
  EXPECT_EQ(element.GetValueHolderKey(), key);
  EXPECT_EQ(element.GetTextContent(), text);
}

TEST(ReportOrderedElement, CopiesByValue) {
  CReportOrderedElement element;
  element.SetTextContent(L"Summe");
  const CReportOrderedElement copy = element;
  CReportOrderedElement assigned;
  assigned = element;
  element.SetTextContent(L"anders");
  element.SetOtherElement();
  EXPECT_TRUE(copy.IsText());
  EXPECT_STREQ(copy.GetTextContent(), L"Summe");
  EXPECT_TRUE(assigned.IsText());
  EXPECT_STREQ(assigned.GetTextContent(), L"Summe");
}

}  // namespace
