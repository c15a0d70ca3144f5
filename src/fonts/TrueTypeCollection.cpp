#include "fonts/TrueTypeCollection.h"

#include "fonts/FontLimits.h"
#include "fonts/NameComparison.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeTableReaders.h"
#include "fonts/TrueTypeTables.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace zeb {

namespace {

constexpr std::uint32_t kCollectionTag = 0x74746366;  // "ttcf"
constexpr std::uint32_t kNameTag = 0x6E616D65;        // "name"
constexpr std::size_t kFullName = 4;
constexpr std::size_t kDirEntSize = 16;

struct DirectoryRecord {
  std::uint32_t tag = 0;
  std::uint32_t checkSum = 0;
  std::uint32_t offset = 0;
  std::uint32_t length = 0;

  bool Read(ByteReader& in) {
    return in.ReadU32BE(tag) && in.ReadU32BE(checkSum) && in.ReadU32BE(offset) && in.ReadU32BE(length);
  }
};

/// Goes to the first entry of the directory at an offset.
/// @return whether all entries lie within the file
bool SeekDirectory(ByteReader& in, std::uint32_t offset, int& count) {
  std::uint32_t version = 0;
  std::uint16_t tables = 0;
  if (!in.Seek(offset) || !in.ReadU32BE(version) || !in.ReadU16BE(tables) || !in.Skip(6)) return false;
  count = tables;
  return in.Left() / kDirEntSize >= tables;
}

bool FindNames(const ByteReader& file, std::uint32_t offset, ByteReader& names) {
  ByteReader in = file;
  int count = 0;
  if (!SeekDirectory(in, offset, count)) return false;
  DirectoryRecord record;
  for (int index = 0; index < count && record.Read(in); ++index) {
    if (record.tag == kNameTag) return file.Part(record.offset, record.length, names);
  }
  return false;
}

bool HasFullName(const ByteReader& file, std::uint32_t offset, std::wstring_view name,
                 std::uint16_t systemLanguage) {
  ByteReader table;
  CTrueTypeTabName names;
  if (!FindNames(file, offset, table) || !ReadName(table, systemLanguage, names)) return false;
  return AreEqualIgnoringCase(names.englishNames[kFullName], name) ||
         AreEqualIgnoringCase(names.systemNames[kFullName], name);
}

}  // namespace

std::unique_ptr<CTrueTypeFile> ReadDirectory(const ByteReader& file, std::uint32_t offset) {
  ByteReader in = file;
  int count = 0;
  if (!SeekDirectory(in, offset, count)) return nullptr;
  auto directory = std::make_unique<CTrueTypeFile>();
  DirectoryRecord record;
  for (int index = 0; index < count && record.Read(in); ++index) {
    const char tag[] = {static_cast<char>(record.tag >> 24U), static_cast<char>(record.tag >> 16U),
                        static_cast<char>(record.tag >> 8U), static_cast<char>(record.tag), '\0'};
    auto entry = std::make_unique<CTrueTypeDirEnt>(tag, record.checkSum, record.offset, record.length);
    directory->AddDirEnt(entry.get());
    (void)entry.release();
  }
  return directory;
}

std::int64_t FindCollectionFont(const wchar_t* faceName, const ByteReader& file,
                                std::uint16_t systemLanguage) {
  ByteReader in = file;
  std::uint32_t tag = 0;
  std::uint32_t version = 0;
  std::int32_t count = 0;
  if (!in.ReadU32BE(tag) || tag != kCollectionTag) return -1;
  if (faceName == nullptr || !in.ReadU32BE(version) || !in.ReadS32BE(count)) return 0;
  const std::wstring_view name = WithoutVerticalMark(faceName);
  for (int index = 0; index < std::min(count, kMostFontsOfCollection); ++index) {
    std::uint32_t offset = 0;
    if (!in.ReadU32BE(offset)) return 0;
    if (HasFullName(file, offset, name, systemLanguage)) return offset;
  }
  return 0;
}

}  // namespace zeb
