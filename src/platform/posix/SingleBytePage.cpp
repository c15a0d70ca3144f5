#include "platform/SingleBytePage.h"

#include <iconv.h>

#include <cerrno>
#include <map>
#include <optional>

namespace zeb {

namespace {

/// A conversion into the native order of 32-bit code points.
class Converter {
 public:
  explicit Converter(const std::string& name)
      : m_Handle(iconv_open(kIsLittleEndian ? "UTF-32LE" : "UTF-32BE", name.c_str())) {}
  ~Converter() {
    if (IsOpen()) iconv_close(m_Handle);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // NOLINTNEXTLINE(performance-no-int-to-ptr): the told value of a handle that could not be made
  bool IsOpen() const { return m_Handle != reinterpret_cast<iconv_t>(-1); }

  /// Converts one byte that stands alone.
  /// @return the code point, -1 for a byte without one, nothing if the byte is part of something longer
  std::optional<std::int32_t> Convert(unsigned char byte) const;

 private:
  static constexpr bool kIsLittleEndian = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__;

  iconv_t m_Handle;  // owned
};

std::optional<std::int32_t> Converter::Convert(unsigned char byte) const {
  char in = static_cast<char>(byte);
  std::array<char32_t, 4> out = {};
  char* inPosition = &in;
  std::size_t inLeft = 1;
  char* outPosition = reinterpret_cast<char*>(out.data());
  std::size_t outLeft = sizeof(out);
  iconv(m_Handle, nullptr, nullptr, nullptr, nullptr);
  if (iconv(m_Handle, &inPosition, &inLeft, &outPosition, &outLeft) == static_cast<std::size_t>(-1)) {
    if (errno == EILSEQ) return -1;
    return std::nullopt;
  }
  // Pages with combining marks hold a letter back until they know what follows.
  if (iconv(m_Handle, nullptr, nullptr, &outPosition, &outLeft) == static_cast<std::size_t>(-1))
    return std::nullopt;
  if (sizeof(out) - outLeft != sizeof(char32_t)) return std::nullopt;
  return static_cast<std::int32_t>(out[0]);
}

std::optional<SingleBytePage> MakePage(const std::string& name) {
  if (name.empty()) return std::nullopt;  // would be the encoding of the locale
  const Converter converter(name);
  if (!converter.IsOpen()) return std::nullopt;
  SingleBytePage page = {};
  for (std::size_t byte = 0; byte < page.size(); ++byte) {
    const std::optional<std::int32_t> codePoint = converter.Convert(static_cast<unsigned char>(byte));
    if (!codePoint) return std::nullopt;
    page[byte] = *codePoint;
  }
  return page;
}

}  // namespace

const SingleBytePage* FindSingleBytePage(const std::string& name) {
  static std::map<std::string, SingleBytePage> s_Pages;
  const auto known = s_Pages.find(name);
  if (known != s_Pages.end()) return &known->second;
  const std::optional<SingleBytePage> page = MakePage(name);
  return page ? &s_Pages.emplace(name, *page).first->second : nullptr;
}

}  // namespace zeb
