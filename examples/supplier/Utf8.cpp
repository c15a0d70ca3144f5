#include "Utf8.h"

#include <cstdint>
#include <limits>
#include <stdexcept>

namespace supplier {

namespace {

constexpr std::uint32_t kLastCharacter = 0x10FFFF;
constexpr std::uint32_t kLastWide = std::numeric_limits<wchar_t>::max();  // more takes two of them

using Traits = std::char_traits<wchar_t>;

bool IsSurrogate(std::uint32_t code) { return code >= 0xD800 && code <= 0xDFFF; }

/// The number of bytes of a character by its first one, 0 if none begins so.
std::size_t LengthOf(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

/// The character at the front, which is taken away.
std::uint32_t TakeCharacter(std::string_view& bytes) {
  const auto first = static_cast<unsigned char>(bytes.front());
  const std::size_t length = LengthOf(first);
  std::uint32_t code = length <= 1 ? first : first & (0x7FU >> length);
  bool isGood = length > 0 && length <= bytes.size();
  for (std::size_t i = 1; isGood && i < length; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    isGood = (byte & 0xC0U) == 0x80;
    code = code << 6 | (byte & 0x3FU);
  }
  const bool isLong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  if (!isGood || isLong || IsSurrogate(code) || code > kLastCharacter) {
    throw std::runtime_error("the text is no UTF-8");
  }
  bytes.remove_prefix(length);
  return code;
}

}  // namespace

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring text;
  while (!bytes.empty()) {
    const std::uint32_t code = TakeCharacter(bytes);
    if (code <= kLastWide) {
      text += static_cast<wchar_t>(code);
    } else {
      text += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
      text += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
    }
  }
  return text;
}

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  const auto append = [&bytes](std::uint32_t byte) { bytes += static_cast<char>(byte); };
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint32_t code = Traits::to_int_type(text[i]);
    if (code >= 0xD800 && code < 0xDC00 && i + 1 < text.size()) {
      code = 0x10000 + ((code - 0xD800) << 10) + (Traits::to_int_type(text[++i]) - 0xDC00);
    }
    if (code < 0x80) {
      append(code);
      continue;
    }
    if (code < 0x800) {
      append(0xC0 | code >> 6);
    } else {
      append(code < 0x10000 ? 0xE0 | code >> 12 : 0xF0 | code >> 18);
      if (code >= 0x10000) append(0x80 | (code >> 12 & 0x3F));
      append(0x80 | (code >> 6 & 0x3F));
    }
    append(0x80 | (code & 0x3F));
  }
  return bytes;
}

std::wstring WidePath(const std::filesystem::path& path) {
  const std::u8string bytes = path.u8string();
  return FromUtf8(std::string(bytes.begin(), bytes.end()));
}

}  // namespace supplier
