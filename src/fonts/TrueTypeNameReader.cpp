#include "fonts/TrueTypeTableReaders.h"
#include "fonts/TrueTypeTables.h"

#include <cstddef>

namespace zeb {

namespace {

constexpr std::uint16_t kWindowsPlatform = 3;
constexpr std::uint16_t kUnicodeEncoding = 1;
constexpr std::uint16_t kEnglish = 1033;

struct NameRecord {
  std::uint16_t platform = 0;
  std::uint16_t encoding = 0;
  std::uint16_t language = 0;
  std::uint16_t nameID = 0;
  std::uint16_t length = 0;
  std::uint16_t offset = 0;

  bool Read(ByteReader& in) {
    return in.ReadU16BE(platform) && in.ReadU16BE(encoding) && in.ReadU16BE(language) &&
           in.ReadU16BE(nameID) && in.ReadU16BE(length) && in.ReadU16BE(offset);
  }

  bool IsOfUse() const {
    return nameID < CTrueTypeTabName::kNameCount && platform == kWindowsPlatform &&
           encoding <= kUnicodeEncoding;
  }
};

/// Reads the record's string into a slot, unless the slot is taken.
bool FillSlot(const ByteReader& strings, const NameRecord& record, std::wstring& slot) {
  if (!slot.empty()) return true;
  ByteReader in;
  if (!strings.Part(record.offset, record.length, in)) return false;
  slot.reserve(record.length / 2U);
  std::uint16_t unit = 0;
  while (in.ReadU16BE(unit)) slot.push_back(static_cast<wchar_t>(unit));
  return true;
}

}  // namespace

bool ReadName(ByteReader in, std::uint16_t systemLanguage, CTrueTypeTabName& table) {
  if (!in.ReadU16BE(table.format) || !in.ReadU16BE(table.count) || !in.ReadU16BE(table.stringOffset))
    return false;
  ByteReader strings;
  if (in.Size() < table.stringOffset ||
      !in.Part(table.stringOffset, in.Size() - table.stringOffset, strings)) {
    return false;
  }
  for (int index = 0; index < table.count; ++index) {
    NameRecord record;
    if (!record.Read(in)) return false;
    if (!record.IsOfUse()) continue;
    if (record.language == kEnglish && !FillSlot(strings, record, table.englishNames[record.nameID]))
      return false;
    if (record.language == systemLanguage && !FillSlot(strings, record, table.systemNames[record.nameID]))
      return false;
  }
  return true;
}

}  // namespace zeb
