#include "platform/Registry.h"

#include <gtest/gtest.h>

#if !defined(_WIN32)

namespace {

TEST(Registry, ASystemWithoutOneAnswersNotFound) {
  std::wstring name = L"name";
  std::wstring text = L"text";
  EXPECT_EQ(zeb::MachineRegistryKey(), nullptr);
  EXPECT_EQ(zeb::OpenRegistryKey(zeb::MachineRegistryKey(), L"Software"), nullptr);
  EXPECT_FALSE(zeb::ReadRegistryValueAt(nullptr, 0, name, text));
  EXPECT_FALSE(zeb::ReadRegistryText(nullptr, L"Software", L"Name", text));
  EXPECT_FALSE(zeb::FindSpecialFolder(20, text));
  EXPECT_FALSE(zeb::IsWindowsNT());
  zeb::CloseRegistryKey(nullptr);
  EXPECT_EQ(name, L"name");
  EXPECT_EQ(text, L"text");
}

}  // namespace

#endif
