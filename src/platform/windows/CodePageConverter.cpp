#include "platform/CodePageConverter.h"

#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <array>

namespace zeb {

namespace {

/// The Windows page that stands in for a double-byte Macintosh page, as on every platform; any other page itself.
UINT NearestPage(int number) {
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
      return static_cast<UINT>(number);
  }
}

class SystemConverter : public CodePageConverter {
 public:
  explicit SystemConverter(UINT number) : m_uiNumber(number) {}

  std::optional<std::int32_t> Convert(std::span<const unsigned char> bytes) const override {
    if (bytes.empty() || bytes.size() > 2) return -1;
    if (bytes.size() == 1 && IsDBCSLeadByteEx(m_uiNumber, bytes[0]) != 0) return std::nullopt;
    std::array<char, 2> in = {};
    std::copy(bytes.begin(), bytes.end(), in.begin());
    std::array<wchar_t, 2> out = {};
    const int count =
        MultiByteToWideChar(m_uiNumber, MB_ERR_INVALID_CHARS, in.data(), static_cast<int>(bytes.size()),
                            out.data(), static_cast<int>(out.size()));
    return count == 1 ? static_cast<std::int32_t>(out[0]) : -1;
  }

 private:
  UINT m_uiNumber;
};

}  // namespace

std::unique_ptr<CodePageConverter> CodePageConverter::Open(int number) {
  const UINT page = NearestPage(number);
  CPINFO info = {};
  if (GetCPInfo(page, &info) == 0 || info.MaxCharSize > 2) return nullptr;
  return std::make_unique<SystemConverter>(page);
}

}  // namespace zeb
