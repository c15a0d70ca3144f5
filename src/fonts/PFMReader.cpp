#include "fonts/ByteReader.h"
#include "fonts/FontErrors.h"
#include "fonts/FontFile.h"
#include "fonts/PostscriptFontMetrics.h"
#include "foundation/ErrorKeys.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// The reader of Windows PFM files: little-endian numbers at fixed offsets, of any alignment.
//
// All bytes come through the bounds-checked reader. What an offset in the file points at beyond its end is zero, which
// only the last byte of the width table and the name can be.

namespace {

// Offsets in the file.
constexpr std::size_t kVersion = 0;
constexpr std::size_t kAscent = 74;
constexpr std::size_t kItalic = 80;
constexpr std::size_t kWeight = 83;
constexpr std::size_t kCharSet = 85;
constexpr std::size_t kPitchAndFamily = 90;
constexpr std::size_t kMaxWidth = 93;
constexpr std::size_t kFirstChar = 95;
constexpr std::size_t kLastChar = 96;
constexpr std::size_t kExtentTable = 123;
constexpr std::size_t kDriverInfo = 139;
constexpr std::size_t kCapHeight = 161;
constexpr std::size_t kXHeight = 163;
constexpr std::size_t kLowerCaseDescent = 167;
constexpr std::size_t kSlant = 169;
constexpr std::size_t kUnderlineOffset = 179;
constexpr std::size_t kUnderlineWidth = 181;
constexpr std::size_t kDeviceName = 199;

constexpr std::string_view kPostScript = "PostScript";

// Families, in the high four bits, and their flags in a PDF font descriptor.
constexpr int kFamilyRoman = 0x10;
constexpr int kFamilyScript = 0x40;
constexpr int kFamilyDecorative = 0x50;
constexpr int kFlagSerif = 2;
constexpr int kFlagScript = 8;

constexpr int kAnsiCharSet = 0;
constexpr int kSymbolCharSet = 2;

constexpr int kCodes = 256;
constexpr unsigned short kDefaultWidth = 250;
constexpr float kLeftOfBox = -200;

/// The numbers of a PFM file by their offsets.
class PFMFile {
 public:
  explicit PFMFile(std::span<const unsigned char> content) : m_Bytes(std::as_bytes(content)) {}

  int U8(std::size_t offset) const { return Number(&zeb::ByteReader::ReadU8, offset); }
  int U16(std::size_t offset) const { return Number(&zeb::ByteReader::ReadU16LE, offset); }
  int S16(std::size_t offset) const { return Number(&zeb::ByteReader::ReadS16LE, offset); }
  std::uint32_t U32(std::size_t offset) const {
    std::uint32_t value = 0;
    zeb::ByteReader reader = m_Bytes;
    return reader.Seek(offset) && reader.ReadU32LE(value) ? value : 0;
  }

  /// The bytes from an offset up to the first zero byte or the end.
  std::string Name(std::size_t offset) const {
    std::string name;
    zeb::ByteReader reader = m_Bytes;
    std::uint8_t byte = 0;
    if (!reader.Seek(offset)) return name;
    while (reader.ReadU8(byte) && byte != 0) name += static_cast<char>(byte);
    return name;
  }

  bool IsValid() const {
    const int version = U16(kVersion);
    if (version != 0x100 && version != 0x200) return false;
    zeb::ByteReader device;
    std::span<const std::byte> name;
    if (!m_Bytes.Part(kDeviceName, kPostScript.size(), device) ||
        !device.ReadSpan(kPostScript.size(), name)) {
      return false;
    }
    if (!std::ranges::equal(name, std::as_bytes(std::span(kPostScript)))) return false;
    const std::int64_t codes = U8(kLastChar) - U8(kFirstChar);
    // Fixed behaviour: one byte less than the table has is enough.
    return static_cast<std::int64_t>(m_Bytes.Size()) >= U32(kExtentTable) + codes * 2 + 1;
  }

  /// The width of a code that the table holds; a last byte that is missing is zero.
  unsigned short Width(int code) const {
    const std::size_t offset = U32(kExtentTable) + static_cast<std::size_t>(code - U8(kFirstChar)) * 2;
    return static_cast<unsigned short>(offset + 2 <= m_Bytes.Size() ? U16(offset) : U8(offset));
  }

 private:
  template <class Value>
  int Number(bool (zeb::ByteReader::*read)(Value&), std::size_t offset) const {
    Value value = 0;
    zeb::ByteReader reader = m_Bytes;
    return reader.Seek(offset) && (reader.*read)(value) ? value : 0;
  }

  zeb::ByteReader m_Bytes;
};

/// The width of the vertical stems of a weight, as usual for PDF files.
int StemOfWeight(int weight) {
  const float relative = static_cast<float>(weight) / 65.0F;
  return static_cast<int>(relative * relative + 50.0F);
}

/// The character set that counts.
int CharSetOf(const PFMFile& file) {
  return (file.U8(kPitchAndFamily) & 0xF0) == kFamilyDecorative ? kSymbolCharSet : file.U8(kCharSet);
}

void TakeEncoding(CFontMetrics& metrics, int charSet) {
  if (charSet != kAnsiCharSet && charSet != kSymbolCharSet) {
    zeb::ThrowFontError(zeb::ErrorKeys::IncorrectPFMFile);
  }
  metrics.SetEncoding(charSet == kAnsiCharSet ? L"winansi1252" : L"fontspecific");
  metrics.SetEncodingScheme(charSet == kAnsiCharSet ? L"AdobeStandardEncoding" : L"FontSpecific");
}

void TakeName(CFontMetrics& metrics, const std::string& name) {
  std::wstring wide(name.size() + 1, L'\0');
  CFontMetrics::AnsiToUnicode(name.c_str(), wide.data());
  metrics.SetBaseFont(wide.c_str());
}

void TakeWidths(CFontMetrics& metrics, const PFMFile& file) {
  for (int code = 0; code < kCodes; ++code) metrics.SetWidthAt(code, kDefaultWidth);
  const int first = file.U8(kFirstChar);
  const int last = file.U8(kLastChar);
  bool isFixed = true;
  for (int code = first; code <= last; ++code) {
    const unsigned short width = file.Width(code);
    metrics.SetWidthAt(code, width);
    isFixed = isFixed && width == file.Width(first);
  }
  metrics.SetFixedPitch(isFixed);
}

void TakeHeights(CFontMetrics& metrics, const PFMFile& file) {
  metrics.SetCapHeight(file.S16(kCapHeight));
  metrics.SetXHeight(file.S16(kXHeight));
  metrics.SetDescender(std::min(-file.S16(kLowerCaseDescent), 0));
  metrics.SetAscender(file.U16(kAscent));
  metrics.SetUnderlinePosition(-file.S16(kUnderlineOffset));
  metrics.SetUnderlineThickness(file.S16(kUnderlineWidth));
  // The box is never turned round: its left and lower sides are not above zero, the other two not below.
  metrics.SetBBoxLLX(kLeftOfBox);
  metrics.SetBBoxLLY(static_cast<float>(metrics.GetDescender()));
  metrics.SetBBoxURX(static_cast<float>(file.U16(kMaxWidth)));
  metrics.SetBBoxURY(static_cast<float>(metrics.GetAscender()));
}

}  // namespace

void CPostscriptFontMetrics::ReadPFMFile(const wchar_t* path) {
  const std::vector<unsigned char> content = zeb::ReadFontFile(path, m_iFileHandle);
  const PFMFile file(content);
  if (!file.IsValid()) zeb::ThrowFontError(zeb::ErrorKeys::IncorrectPFMFile);
  InitFontInformation();
  SetFontType(FontTypeType1);
  SetStemVW(StemOfWeight(file.U16(kWeight)));
  // Fixed behaviour: the flags of the family last only in a file that is refused; the last step replaces them.
  const int family = file.U8(kPitchAndFamily) & 0xF0;
  if (family == kFamilyRoman) SetFlags(kFlagSerif);
  if (family == kFamilyScript) SetFlags(kFlagScript);
  TakeEncoding(*this, CharSetOf(file));
  TakeName(*this, file.Name(file.U32(kDriverInfo)));
  TakeWidths(*this, file);
  SetItalicAngle(file.U8(kItalic) != 0 ? static_cast<float>(file.S16(kSlant)) / 10.0F : 0.0F);
  TakeHeights(*this, file);
  BuildFontDescriptorFlag();
}
