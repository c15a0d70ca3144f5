#include "platform/CodePageConverter.h"

#include "platform/posix/CodePageCorrections.h"
#include "platform/posix/Iconv.h"
#include "platform/posix/MacintoshPages.h"

#include <algorithm>
#include <array>
#include <string>

namespace zeb {

namespace {

/// The Windows page that stands in for a double-byte Macintosh page, of which there is none here; any other page itself.
int NearestPage(int number) {
  switch (number) {
    case 10001:
      return 932;  // Japanese
    case 10002:
      return 950;  // traditional Chinese
    case 10003:
      return 949;  // Korean
    case 10008:
      return 936;  // simplified Chinese
    default:
      return number;
  }
}

class MacintoshConverter : public CodePageConverter {
 public:
  explicit MacintoshConverter(const MacintoshPage& page) : m_Page(page) {}

  std::optional<std::int32_t> Convert(std::span<const unsigned char> bytes) const override {
    if (bytes.size() != 1) return -1;
    constexpr unsigned char kFirst = 0x80;
    if (bytes[0] < kFirst) return bytes[0];
    const char16_t character = m_Page.Characters[static_cast<std::size_t>(bytes[0] - kFirst)];
    return character == 0 ? -1 : std::int32_t{character};
  }

 private:
  const MacintoshPage& m_Page;
};

class IconvConverter : public CodePageConverter {
 public:
  explicit IconvConverter(int number) : m_iNumber(number), m_Iconv("CP" + std::to_string(number)) {}

  bool IsOpen() const { return m_Iconv.IsOpen(); }

  std::optional<std::int32_t> Convert(std::span<const unsigned char> bytes) const override {
    unsigned int number = 0;
    for (const unsigned char byte : bytes) number = number << 8U | byte;
    const auto* const correction = std::find_if(
        kCodePageCorrections.begin(), kCodePageCorrections.end(),
        [&](const CodePageCorrection& row) { return row.Page == m_iNumber && row.Bytes == number; });
    if (correction != kCodePageCorrections.end()) return correction->Character;
    return m_Iconv.Convert(bytes);
  }

 private:
  int m_iNumber;
  Iconv m_Iconv;
};

}  // namespace

std::unique_ptr<CodePageConverter> CodePageConverter::Open(int number) {
  const auto* const macintosh =
      std::find_if(kMacintoshPages.begin(), kMacintoshPages.end(),
                   [&](const MacintoshPage& page) { return page.Number == number; });
  if (macintosh != kMacintoshPages.end()) return std::make_unique<MacintoshConverter>(*macintosh);
  auto converter = std::make_unique<IconvConverter>(NearestPage(number));
  if (!converter->IsOpen()) return nullptr;
  return converter;
}

}  // namespace zeb
