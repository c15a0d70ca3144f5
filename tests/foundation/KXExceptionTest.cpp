#include "foundation/KXException.h"

#include <gtest/gtest.h>

#include <string>

TEST(KXException, KeepsNumberAndMessage) {
  const CKXFileException exception(2001, L"Datei");
  CKXException copy = exception;  // NOLINT(cppcoreguidelines-slicing): exceptions are copied by value
  EXPECT_EQ(copy.GetErrorNr(), 2001);
  EXPECT_STREQ(copy.GetErrorMessage(), L"Datei");
  EXPECT_NE(copy.GetErrorMessage(), exception.GetErrorMessage());
  copy = CKXException(-1, L"");
  EXPECT_EQ(copy.GetErrorNr(), -1);
  EXPECT_STREQ(copy.GetErrorMessage(), L"");
}

TEST(KXException, KeepsAtMost4095CharactersOfAMessage) {
  EXPECT_EQ(std::wstring(CKXException(1, std::wstring(4095, L'x').c_str()).GetErrorMessage()).size(), 4095U);
  EXPECT_EQ(std::wstring(CKXException(1, std::wstring(4096, L'x').c_str()).GetErrorMessage()).size(), 4095U);
}
