#include "platform/CodePageConverter.h"

#include "platform/windows/Windows.h"

#include <algorithm>
#include <array>

namespace zeb {

namespace {

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
  const auto page = static_cast<UINT>(number);
  CPINFO info = {};
  if (GetCPInfo(page, &info) == 0 || info.MaxCharSize > 2) return nullptr;
  return std::make_unique<SystemConverter>(page);
}

}  // namespace zeb
