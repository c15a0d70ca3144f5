#include "platform/FileMapping.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using zeb::FileMapping;
using zebtest::TempDir;
using zebtest::WidePath;

/// A file of the system that the tests of fonts need anyhow.
const std::filesystem::path kSystemFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

std::vector<unsigned char> Contents(const FileMapping& mapping) {
  std::vector<unsigned char> bytes;
  for (const std::byte byte : mapping.Bytes()) bytes.push_back(std::to_integer<unsigned char>(byte));
  return bytes;
}

class MappedFile : public testing::Test {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(kSystemFile)) GTEST_SKIP() << kSystemFile << " is not installed";
  }
};

TEST_F(MappedFile, HasTheBytesOfTheFileAndZerosBehindThem) {
  constexpr std::size_t kZeros = 100'000;
  const auto mapping = FileMapping::Open(WidePath(kSystemFile), kZeros);
  ASSERT_NE(mapping, nullptr);
  EXPECT_EQ(Contents(*mapping), zebtest::ReadBytes(kSystemFile));
  const std::byte* const end = mapping->Bytes().data() + mapping->Bytes().size();
  EXPECT_TRUE(std::all_of(end, end + kZeros, [](std::byte byte) { return byte == std::byte{0}; }));
}

TEST_F(MappedFile, KeepsWhatIsWrittenToItself) {
  const auto changed = FileMapping::Open(WidePath(kSystemFile), 10);
  ASSERT_NE(changed, nullptr);
  std::fill(changed->Bytes().begin(), changed->Bytes().end() + 10, std::byte{0x5A});
  const auto other = FileMapping::Open(WidePath(kSystemFile), 10);
  ASSERT_NE(other, nullptr);
  EXPECT_EQ(Contents(*other), zebtest::ReadBytes(kSystemFile));
  EXPECT_EQ(changed->Bytes().front(), std::byte{0x5A});
}

TEST_F(MappedFile, IsFoundThroughLinks) {
  const TempDir folder;
  std::filesystem::create_symlink(kSystemFile, folder.File("link"));
  EXPECT_NE(FileMapping::Open(folder.WideFile("link"), 0), nullptr);
}

TEST(FileMapping, LeavesFilesThatOthersMayChangeToReaders) {
  const TempDir folder;
  zebtest::WriteFile(folder.File("font.ttf"), "bytes");
  EXPECT_EQ(FileMapping::Open(folder.WideFile("font.ttf"), 0), nullptr);
  // Not even by a way round.
  EXPECT_EQ(FileMapping::Open(L"/usr/share/../.." + folder.WideFile("font.ttf"), 0), nullptr);
}

TEST(FileMapping, IsNoneOfWhatIsNoFile) {
  EXPECT_EQ(FileMapping::Open(L"", 0), nullptr);
  EXPECT_EQ(FileMapping::Open(L"/usr/share", 0), nullptr);
  EXPECT_EQ(FileMapping::Open(L"/usr/share/fonts", 0), nullptr);
  EXPECT_EQ(FileMapping::Open(L"/usr/share/there-is-no-such-file", 0), nullptr);
}

}  // namespace
