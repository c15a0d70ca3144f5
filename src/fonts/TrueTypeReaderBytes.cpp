#include "fonts/FontData.h"
#include "fonts/TrueTypeCollection.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "fonts/TrueTypeReader.h"
#include "platform/File.h"
#include "platform/FileMapping.h"
#include "platform/InstalledFont.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <span>
#include <utility>

namespace zeb {

namespace {

constexpr std::size_t kLongestFaceName = 32;
constexpr std::uint64_t kSmallestFont = 10;
constexpr std::uint32_t kTrueTypeVersion = 0x00010000;
constexpr std::uint32_t kOpenTypeTag = 0x4F54544F;    // "OTTO"
constexpr std::uint32_t kCollectionTag = 0x74746366;  // "ttcf"

}  // namespace

TrueTypeStatus TrueTypeReader::FetchBytes() {
  if (m_request.filePath != nullptr) return FetchFile();
  if (m_request.faceName != nullptr && !m_request.reuseData) return FetchInstalledFont();
  return m_request.reuseData ? FindFontInData() : kTrueTypeBadArguments;
}

CFontData& TrueTypeReader::MakeFontData() {
  CFontData*& data = m_metrics.m_pFontData;
  if (data == nullptr || data->GetLength() != 0 || !m_metrics.m_bFontDataOwner) {
    // Another font's program, or that of a font that was refused. The pool's data stays the pool's.
    if (m_metrics.m_bFontDataOwner) delete std::exchange(data, nullptr);
    data = new CFontData(false);
    m_metrics.m_bFontDataOwner = true;
    delete std::exchange(m_metrics.m_pSubsetData, nullptr);
  }
  return *data;
}

std::span<std::byte> TrueTypeReader::MakeRoomForFont(int size) {
  CFontData& data = MakeFontData();
  unsigned char* const room = data.ExtendContent(size);
  m_bytes = ByteReader(data.GetData(), data.GetLength());
  return std::as_writable_bytes(std::span(room, static_cast<std::size_t>(size)));
}

bool TrueTypeReader::TakeMapping(std::shared_ptr<FileMapping> mapping) {
  if (!mapping || mapping->Bytes().size() > INT_MAX) return false;
  CFontData& data = MakeFontData();
  const std::span<std::byte> bytes = mapping->Bytes();
  data.AdoptContent(std::move(mapping), reinterpret_cast<unsigned char*>(bytes.data()),
                    static_cast<int>(bytes.size()));
  m_bytes = ByteReader(data.GetData(), data.GetLength());
  return true;
}

TrueTypeStatus TrueTypeReader::FetchFile() {
  if (*m_request.filePath == L'\0' || m_metrics.m_iFileHandle != -1) return kTrueTypeBadArguments;
  if (TakeMapping(FileMapping::Open(m_request.filePath, CFontData::kZerosBehindContent))) {
    m_metrics.SetFontType(CFontMetrics::FontTypeTrueType);
    return kTrueTypeDone;
  }
  InputFile file;
  if (file.Open(m_request.filePath) != FileStatus::Ok || file.Size() == 0) return kTrueTypeUnreadableFile;
  if (file.Size() > INT_MAX) return kTrueTypeNoMemory;
  m_metrics.SetFontType(CFontMetrics::FontTypeTrueType);
  const std::span<std::byte> room = MakeRoomForFont(static_cast<int>(file.Size()));
  std::size_t count = 0;
  const FileStatus status = file.Read(room, count);
  std::fill(room.begin() + static_cast<std::ptrdiff_t>(count), room.end(), std::byte{0});
  // Fixed behaviour: a collection is not looked into here, so it lacks every table.
  return status == FileStatus::Ok && count == room.size() ? kTrueTypeDone : kTrueTypeUnreadableFile;
}

TrueTypeStatus TrueTypeReader::FetchInstalledFont() {
  const std::wstring_view name = m_request.faceName;
  if (name.empty() || name.size() > kLongestFaceName) return kTrueTypeBadArguments;
  InstalledFont font;
  if (!font.Open({std::wstring(name), m_request.bold, m_request.italic, m_encoding == L"1250"}))
    return kTrueTypeNotThere;
  if (font.Size() < kSmallestFont) return kTrueTypeNotThere;
  if (font.Size() > INT_MAX) return kTrueTypeNoMemory;
  if (!TakeMapping(font.Map(CFontData::kZerosBehindContent))) {
    const std::span<std::byte> room = MakeRoomForFont(static_cast<int>(font.Size()));
    if (!font.Read(room)) {
      std::fill(room.begin(), room.end(), std::byte{0});
      return kTrueTypeNotThere;
    }
  }
  std::uint32_t tag = 0;
  if (!ByteReader(m_bytes).ReadU32BE(tag)) return kTrueTypeIncorrect;
  if (tag == kOpenTypeTag) {
    m_metrics.SetFontType(CFontMetrics::FontTypeOpenType);
    return kTrueTypeDone;
  }
  m_metrics.SetFontType(CFontMetrics::FontTypeTrueType);
  if (tag == kTrueTypeVersion) return kTrueTypeDone;
  return tag == kCollectionTag ? FindFontInData() : kTrueTypeIncorrect;
}

TrueTypeStatus TrueTypeReader::FindFontInData() {
  CFontData* const data = m_metrics.m_pFontData;
  if (data == nullptr) return kTrueTypeIncorrect;
  data->ResetFontPos();
  m_bytes = ByteReader(data->GetData(), data->GetLength());
  const std::int64_t offset = FindCollectionFont(m_request.faceName, m_bytes, m_usLanguage);
  if (offset == 0) return kTrueTypeNotThere;
  m_uFontOffset = offset > 0 ? static_cast<std::uint32_t>(offset) : 0;
  m_metrics.SetFontType(CFontMetrics::FontTypeTrueType);
  return kTrueTypeDone;
}

}  // namespace zeb
