#include "Utf8.h"

#include "Failure.h"

#include <cstdint>
#include <limits>

namespace zebreport {

namespace {

using Traits = std::char_traits<wchar_t>;

constexpr std::uint32_t kReplacement = 0xFFFD;
constexpr std::uint32_t kLastCharacter = 0x10FFFF;
constexpr std::uint32_t kLastWide = std::numeric_limits<wchar_t>::max();  // more takes two of them

bool IsLeading(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsTrailing(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void AppendUtf8(std::string& bytes, std::uint32_t character) {
  const auto append = [&bytes](std::uint32_t byte) { bytes.push_back(static_cast<char>(byte)); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0 | (character >> 6));
    append(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    append(0xE0 | (character >> 12));
    append(0x80 | ((character >> 6) & 0x3F));
    append(0x80 | (character & 0x3F));
  } else {
    append(0xF0 | (character >> 18));
    append(0x80 | ((character >> 12) & 0x3F));
    append(0x80 | ((character >> 6) & 0x3F));
    append(0x80 | (character & 0x3F));
  }
}

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
  std::uint32_t character = length <= 1 ? first : first & (0x7FU >> length);
  bool isGood = length > 0 && length <= bytes.size();
  for (std::size_t i = 1; isGood && i < length; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    isGood = (byte & 0xC0U) == 0x80;
    character = character << 6 | (byte & 0x3FU);
  }
  const bool isLong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
  if (!isGood || isLong || IsLeading(character) || IsTrailing(character) || character > kLastCharacter) {
    throw UsageFailure(L"an argument is no UTF-8 text; write it in a UTF-8 terminal.");
  }
  bytes.remove_prefix(length);
  return character;
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint32_t character = Traits::to_int_type(text[i]);
    const std::uint32_t next = i + 1 < text.size() ? Traits::to_int_type(text[i + 1]) : 0;
    if (IsLeading(character) && IsTrailing(next)) {
      character = 0x10000 + ((character - 0xD800) << 10) + (next - 0xDC00);
      ++i;
    } else if (IsLeading(character) || IsTrailing(character) || character > kLastCharacter) {
      character = kReplacement;
    }
    AppendUtf8(bytes, character);
  }
  return bytes;
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring text;
  while (!bytes.empty()) {
    const std::uint32_t character = TakeCharacter(bytes);
    if (character <= kLastWide) {
      text += static_cast<wchar_t>(character);
    } else {
      text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
      text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
  }
  return text;
}

std::filesystem::path ToPath(const std::wstring& text) {
  const std::string bytes = ToUtf8(text);
  return {std::u8string(bytes.begin(), bytes.end())};
}

std::wstring FromPath(const std::filesystem::path& path) {
  const std::u8string bytes = path.u8string();
  return FromUtf8(std::string(bytes.begin(), bytes.end()));
}

}  // namespace zebreport
