#include "platform/posix/Iconv.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace zeb {

namespace {

constexpr bool kIsLittleEndian = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__;
constexpr auto kFailed = static_cast<std::size_t>(-1);

}  // namespace

Iconv::Iconv(const std::string& name)
    : m_pHandle(iconv_open(kIsLittleEndian ? "UTF-32LE" : "UTF-32BE", name.c_str())) {}

Iconv::~Iconv() {
  if (IsOpen()) iconv_close(m_pHandle);
}

// NOLINTNEXTLINE(performance-no-int-to-ptr): the told value of a handle that could not be made
bool Iconv::IsOpen() const { return m_pHandle != reinterpret_cast<iconv_t>(-1); }

std::optional<std::int32_t> Iconv::Convert(std::span<const unsigned char> bytes) const {
  std::array<char, 4> in = {};
  if (bytes.size() > in.size()) return std::nullopt;
  // Bounded once more, since the optimizer of GCC 12 loses sight of the check above and warns.
  std::copy_n(bytes.begin(), std::min(bytes.size(), in.size()), in.begin());
  std::array<char32_t, 4> out = {};
  char* inPosition = in.data();
  std::size_t inLeft = bytes.size();
  char* outPosition = reinterpret_cast<char*>(out.data());
  std::size_t outLeft = sizeof(out);
  iconv(m_pHandle, nullptr, nullptr, nullptr, nullptr);
  if (iconv(m_pHandle, &inPosition, &inLeft, &outPosition, &outLeft) == kFailed) {
    if (errno == EILSEQ) return -1;
    return std::nullopt;
  }
  // Pages with combining marks hold a letter back until they know what follows.
  if (iconv(m_pHandle, nullptr, nullptr, &outPosition, &outLeft) == kFailed) return std::nullopt;
  if (sizeof(out) - outLeft != sizeof(char32_t)) return std::nullopt;
  return static_cast<std::int32_t>(out[0]);
}

}  // namespace zeb
