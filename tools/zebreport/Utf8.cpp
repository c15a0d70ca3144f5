#include "Utf8.h"

#include "Failure.h"

#include <cstdint>
#include <filesystem>

namespace zebreport {

namespace {

using Traits = std::char_traits<wchar_t>;

constexpr std::uint32_t kReplacement = 0xFFFD;

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
    } else if (IsLeading(character) || IsTrailing(character) || character > 0x10FFFF) {
      character = kReplacement;
    }
    AppendUtf8(bytes, character);
  }
  return bytes;
}

std::wstring FromUtf8(std::string_view bytes) {
  try {
    return std::filesystem::path(std::u8string(bytes.begin(), bytes.end())).wstring();
  } catch (const std::exception&) {
    throw UsageFailure(L"an argument is no UTF-8 text; write it in a UTF-8 terminal.");
  }
}

}  // namespace zebreport
