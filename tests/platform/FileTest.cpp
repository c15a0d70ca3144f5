#include "platform/File.h"

#include "support/Files.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

using zeb::FileStatus;
using zeb::InputFile;
using zeb::ReplacingFile;
using zebtest::ReadFile;
using zebtest::TempDir;
using zebtest::WriteFile;

std::span<const std::byte> Bytes(std::string_view text) { return std::as_bytes(std::span(text)); }

std::string Text(const std::vector<std::byte>& bytes) {
  std::string text;
  for (const std::byte byte : bytes) text.push_back(static_cast<char>(byte));
  return text;
}

std::vector<std::string> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

FileStatus Replace(const std::wstring& path, std::string_view content) {
  ReplacingFile file;
  FileStatus status = file.Open(path);
  if (status == FileStatus::Ok) status = file.Write(Bytes(content));
  return status == FileStatus::Ok ? file.Commit() : status;
}

mode_t ModeOf(const fs::path& path) {
  struct stat info = {};
  EXPECT_EQ(stat(path.c_str(), &info), 0);
  return info.st_mode & 07777;
}

TEST(FileNames, AreJoinedWithASlash) { EXPECT_EQ(zeb::kPathSeparator, L'/'); }

TEST(FileNames, BothSeparatorsPartFolders) {
  EXPECT_TRUE(zeb::IsPathSeparator(L'/'));
  EXPECT_TRUE(zeb::IsPathSeparator(L'\\'));
  EXPECT_FALSE(zeb::IsPathSeparator(L':'));
}

TEST(FileNames, HoldAllButSeparatorsAndNul) {
  for (const wchar_t character : {L'/', L'\\', L'\0'}) EXPECT_FALSE(zeb::IsFileNameCharacter(character));
  for (const wchar_t character : {L'a', L'.', L' ', L':', L'\x1', L'\xE4', L'\xFFFD'}) {
    EXPECT_TRUE(zeb::IsFileNameCharacter(character));
  }
}

TEST(ReadWholeFile, GivesAllBytes) {
  const TempDir folder;
  std::vector<std::byte> content;
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{65536}, std::size_t{300001}}) {
    const std::string text(size, 'x');
    WriteFile(folder.File("a"), text);
    EXPECT_EQ(zeb::ReadWholeFile(folder.WideFile("a"), content), FileStatus::Ok);
    EXPECT_EQ(Text(content), text);
  }
}

TEST(ReadWholeFile, ReadsFilesThatDoNotKnowTheirLength) {
  std::vector<std::byte> content;
  EXPECT_EQ(zeb::ReadWholeFile(L"/proc/self/status", content), FileStatus::Ok);
  EXPECT_TRUE(Text(content).starts_with("Name:"));
}

TEST(ReadWholeFile, SaysWhyItCannot) {
  const TempDir folder;
  std::vector<std::byte> content(3);
  EXPECT_EQ(zeb::ReadWholeFile(folder.WideFile("missing"), content), FileStatus::NotFound);
  EXPECT_TRUE(content.empty());
  EXPECT_EQ(zeb::ReadWholeFile(L"", content), FileStatus::NotFound);
  EXPECT_EQ(zeb::ReadWholeFile(folder.WidePath(), content), FileStatus::NotAFile);
  WriteFile(folder.File("a"), "x");
  EXPECT_EQ(zeb::ReadWholeFile(folder.WideFile("a") + L"/b", content), FileStatus::NotFound);
  EXPECT_EQ(zeb::ReadWholeFile(folder.WideFile("a") + std::wstring(1, L'\0') + L"b", content),
            FileStatus::NotFound);
}

// A device without an end and a pipe without a writer must not hold the process.
TEST(ReadWholeFile, ReadsNoDeviceAndNoPipe) {
  const TempDir folder;
  std::vector<std::byte> content;
  EXPECT_EQ(zeb::ReadWholeFile(L"/dev/zero", content), FileStatus::NotAFile);
  ASSERT_EQ(mkfifo(folder.File("pipe").c_str(), 0600), 0);
  EXPECT_EQ(zeb::ReadWholeFile(folder.WideFile("pipe"), content), FileStatus::NotAFile);
}

TEST(ReadWholeFile, TakesBothSeparatorsAndUnicodeNames) {
  const TempDir folder;
  fs::create_directory(
      folder.File("Gr\xC3\xBC\xC3\x9F"
                  "e"));
  WriteFile(folder.File("Gr\xC3\xBC\xC3\x9F"
                        "e") /
                "\xF0\x9F\x98\x80.txt",
            "x");
  std::vector<std::byte> content;
  EXPECT_EQ(zeb::ReadWholeFile(folder.WidePath() + L"\\Gr\u00FC\u00DFe\\\U0001F600.txt", content),
            FileStatus::Ok);
  EXPECT_EQ(zeb::ReadWholeFile(folder.WidePath() + L"/Gr\u00FC\u00DFe\\/\U0001F600.txt", content),
            FileStatus::Ok);
  EXPECT_EQ(Text(content), "x");
}

TEST(InputFile, ReadsInPieces) {
  const TempDir folder;
  WriteFile(folder.File("a"), "abcdefg");
  InputFile file;
  ASSERT_EQ(file.Open(folder.WideFile("a")), FileStatus::Ok);
  EXPECT_EQ(file.Size(), 7U);
  std::vector<std::byte> buffer(4);
  std::size_t count = 0;
  EXPECT_EQ(file.Read(buffer, count), FileStatus::Ok);
  EXPECT_EQ(count, 4U);
  EXPECT_EQ(Text(buffer), "abcd");
  EXPECT_EQ(file.Read(buffer, count), FileStatus::Ok);
  EXPECT_EQ(count, 3U);
  EXPECT_EQ(file.Read(buffer, count), FileStatus::Ok);
  EXPECT_EQ(count, 0U);
}

TEST(ReplacingFile, MakesANewFileWithThePermissionsOfTheProcess) {
  const TempDir folder;
  const mode_t mask = umask(027);
  EXPECT_EQ(Replace(folder.WideFile("new"), "content"), FileStatus::Ok);
  umask(mask);
  EXPECT_EQ(ReadFile(folder.File("new")), "content");
  EXPECT_EQ(ModeOf(folder.File("new")), 0640U);
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"new"}));
}

TEST(ReplacingFile, KeepsThePermissionsOfTheOldFile) {
  const TempDir folder;
  for (const mode_t mode : {mode_t{0600}, mode_t{0666}, mode_t{0755}, mode_t{0220}}) {
    WriteFile(folder.File("a"), "old");
    ASSERT_EQ(chmod(folder.File("a").c_str(), mode), 0);
    EXPECT_EQ(Replace(folder.WideFile("a"), "new"), FileStatus::Ok);
    EXPECT_EQ(ModeOf(folder.File("a")), mode);
    fs::remove(folder.File("a"));
  }
}

TEST(ReplacingFile, TheOldFileStandsUntilTheNewOneIsWhole) {
  const TempDir folder;
  WriteFile(folder.File("a"), "old");
  {
    ReplacingFile file;
    ASSERT_EQ(file.Open(folder.WideFile("a")), FileStatus::Ok);
    ASSERT_EQ(file.Write(Bytes("new")), FileStatus::Ok);
    EXPECT_EQ(ReadFile(folder.File("a")), "old");
    EXPECT_EQ(NamesIn(folder.Path()).size(), 2U);
  }
  EXPECT_EQ(ReadFile(folder.File("a")), "old");
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"a"}));
}

TEST(ReplacingFile, RefusesATargetWithoutWriteBitsBeforeAnythingIsWritten) {
  const TempDir folder;
  WriteFile(folder.File("a"), "old");
  ASSERT_EQ(chmod(folder.File("a").c_str(), 0555), 0);
  ReplacingFile file;
  EXPECT_EQ(file.Open(folder.WideFile("a")), FileStatus::ReadOnly);
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"a"}));
  EXPECT_EQ(ReadFile(folder.File("a")), "old");
}

TEST(ReplacingFile, ReplacesWhatALinkPointsAt) {
  const TempDir folder;
  fs::create_directory(folder.File("sub"));
  WriteFile(folder.File("sub") / "a", "old");
  fs::create_symlink("sub/a", folder.File("relative"));
  fs::create_symlink(folder.File("relative"), folder.File("absolute"));
  EXPECT_EQ(Replace(folder.WideFile("absolute"), "new"), FileStatus::Ok);
  EXPECT_EQ(ReadFile(folder.File("sub") / "a"), "new");
  EXPECT_EQ(fs::read_symlink(folder.File("absolute")), folder.File("relative"));
  EXPECT_EQ(fs::read_symlink(folder.File("relative")), "sub/a");
  EXPECT_EQ(NamesIn(folder.File("sub")), (std::vector<std::string>{"a"}));
}

TEST(ReplacingFile, MakesWhatADanglingLinkPointsAt) {
  const TempDir folder;
  fs::create_symlink("missing", folder.File("link"));
  EXPECT_EQ(Replace(folder.WideFile("link"), "new"), FileStatus::Ok);
  EXPECT_TRUE(fs::is_symlink(folder.File("link")));
  EXPECT_EQ(ReadFile(folder.File("missing")), "new");
}

TEST(ReplacingFile, RefusesAReadOnlyTargetBehindALink) {
  const TempDir folder;
  WriteFile(folder.File("a"), "old");
  ASSERT_EQ(chmod(folder.File("a").c_str(), 0444), 0);
  fs::create_symlink("a", folder.File("link"));
  EXPECT_EQ(Replace(folder.WideFile("link"), "new"), FileStatus::ReadOnly);
  EXPECT_EQ(ReadFile(folder.File("a")), "old");
}

TEST(ReplacingFile, EndsAtLinksThatPointAtEachOther) {
  const TempDir folder;
  fs::create_symlink("b", folder.File("a"));
  fs::create_symlink("a", folder.File("b"));
  EXPECT_NE(Replace(folder.WideFile("a"), "new"), FileStatus::Ok);
}

TEST(ReplacingFile, ReplacesRegularFilesOnly) {
  const TempDir folder;
  EXPECT_EQ(Replace(folder.WidePath(), "new"), FileStatus::NotAFile);
  EXPECT_EQ(Replace(L"/dev/null", "new"), FileStatus::NotAFile);
  EXPECT_EQ(Replace(L"", "new"), FileStatus::NotFound);
  EXPECT_EQ(Replace(folder.WideFile("missing") + L"\\a", "new"), FileStatus::NotFound);
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(ReplacingFile, TakesANameAsLongAsNamesCanBe) {
  const TempDir folder;
  const std::string name(255, 'n');
  EXPECT_EQ(Replace(folder.WideFile(name), "new"), FileStatus::Ok);
  EXPECT_EQ(ReadFile(folder.File(name)), "new");
  EXPECT_NE(Replace(folder.WideFile(name + "n"), "new"), FileStatus::Ok);
}

TEST(ReplacingFile, PassesTemporaryFilesOfOthersBy) {
  const TempDir folder;
  ReplacingFile first;
  ReplacingFile second;
  ASSERT_EQ(first.Open(folder.WideFile("a")), FileStatus::Ok);
  ASSERT_EQ(second.Open(folder.WideFile("a")), FileStatus::Ok);
  EXPECT_EQ(first.Write(Bytes("first")), FileStatus::Ok);
  EXPECT_EQ(second.Write(Bytes("second")), FileStatus::Ok);
  EXPECT_EQ(second.Commit(), FileStatus::Ok);
  EXPECT_EQ(ReadFile(folder.File("a")), "second");
  EXPECT_EQ(first.Commit(), FileStatus::Ok);
  EXPECT_EQ(ReadFile(folder.File("a")), "first");
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"a"}));
}

TEST(ReplacingFile, ReplacesAFileOfTheWorkingFolder) {
  const TempDir folder;
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  EXPECT_EQ(Replace(L"a", "new"), FileStatus::Ok);
  fs::current_path(before);
  EXPECT_EQ(ReadFile(folder.File("a")), "new");
}

TEST(IsReadOnlyFile, LooksAtTheWriteBitsOnly) {
  const TempDir folder;
  WriteFile(folder.File("a"), "x");
  for (const mode_t mode : {mode_t{0444}, mode_t{0555}, mode_t{0}}) {
    ASSERT_EQ(chmod(folder.File("a").c_str(), mode), 0);
    EXPECT_TRUE(zeb::IsReadOnlyFile(folder.WideFile("a")));
  }
  for (const mode_t mode : {mode_t{0644}, mode_t{0020}, mode_t{0002}}) {
    ASSERT_EQ(chmod(folder.File("a").c_str(), mode), 0);
    EXPECT_FALSE(zeb::IsReadOnlyFile(folder.WideFile("a")));
  }
  EXPECT_FALSE(zeb::IsReadOnlyFile(folder.WideFile("missing")));
  EXPECT_FALSE(zeb::IsReadOnlyFile(L""));
}

TEST(ListFiles, GivesTheNamesOfFilesInOrder) {
  const TempDir folder;
  for (const char* name : {"b.fd", "a.fd", "B.fd", ".hidden", "\xC3\xA4.fd"})
    WriteFile(folder.File(name), "");
  fs::create_directory(folder.File("sub"));
  fs::create_symlink("a.fd", folder.File("link.fd"));
  fs::create_symlink("missing", folder.File("dangling.fd"));
  std::vector<std::wstring> names;
  EXPECT_EQ(zeb::ListFiles(folder.WidePath(), names), FileStatus::Ok);
  EXPECT_EQ(names,
            (std::vector<std::wstring>{L".hidden", L"B.fd", L"a.fd", L"b.fd", L"link.fd", L"\u00E4.fd"}));
  EXPECT_EQ(zeb::ListFiles(folder.WidePath() + L"\\", names), FileStatus::Ok);
  EXPECT_EQ(names.size(), 6U);
}

TEST(ListFiles, SaysThatThereIsNoFolder) {
  const TempDir folder;
  std::vector<std::wstring> names = {L"old"};
  EXPECT_EQ(zeb::ListFiles(folder.WideFile("missing"), names), FileStatus::NotFound);
  EXPECT_TRUE(names.empty());
  WriteFile(folder.File("a"), "");
  EXPECT_EQ(zeb::ListFiles(folder.WideFile("a"), names), FileStatus::NotFound);
}

TEST(DescribeFileStatus, SaysTheSecondHalfOfASentence) {
  EXPECT_STREQ(zeb::DescribeFileStatus(FileStatus::NotFound), L"it does not exist");
  EXPECT_STREQ(zeb::DescribeFileStatus(FileStatus::AccessDenied), L"permission is denied");
  EXPECT_STREQ(zeb::DescribeFileStatus(FileStatus::ReadOnly), L"it is read-only");
  EXPECT_STREQ(zeb::DescribeFileStatus(FileStatus::NotAFile), L"it is not a regular file");
  EXPECT_STREQ(zeb::DescribeFileStatus(FileStatus::NoSpace), L"there is no space left");
  EXPECT_STREQ(zeb::DescribeFileStatus(FileStatus::Failed), L"the system reports a failure");
}

}  // namespace
