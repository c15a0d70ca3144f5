#include "foundation/Base64.h"

#include <array>
#include <cstdint>

namespace zeb {

namespace {

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char kPadding = '=';

/// Values of digits; what is no digit, by kind.
constexpr std::uint8_t kBlank = 0xFE;
constexpr std::uint8_t kNoDigit = 0xFF;

constexpr std::array<std::uint8_t, 256> MakeDigits() {
  std::array<std::uint8_t, 256> digits = {};
  digits.fill(kNoDigit);
  for (const char blank : {' ', '\t', '\n', '\r'}) digits[static_cast<unsigned char>(blank)] = kBlank;
  for (std::size_t i = 0; i < kAlphabet.size(); ++i) {
    digits[static_cast<unsigned char>(kAlphabet[i])] = static_cast<std::uint8_t>(i);
  }
  return digits;
}

constexpr std::array<std::uint8_t, 256> kDigits = MakeDigits();

char Digit(std::uint32_t bits) { return kAlphabet[bits & 0x3F]; }

/// Whether the end of a text, from its first padding on, closes a group of four that has `digits` digits.
bool IsEnd(std::string_view end, std::size_t digits) {
  std::size_t padding = 0;
  for (const char character : end) {
    if (character == kPadding) {
      ++padding;
    } else if (kDigits[static_cast<unsigned char>(character)] != kBlank) {
      return false;
    }
  }
  return padding == 0 ? digits == 0 : digits >= 2 && digits + padding == 4;
}

}  // namespace

std::string EncodeBase64(std::span<const std::byte> bytes) {
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (; bytes.size() >= 3; bytes = bytes.subspan(3)) {
    const auto bits = std::to_integer<std::uint32_t>(bytes[0]) << 16 |
                      std::to_integer<std::uint32_t>(bytes[1]) << 8 |
                      std::to_integer<std::uint32_t>(bytes[2]);
    text.push_back(Digit(bits >> 18));
    text.push_back(Digit(bits >> 12));
    text.push_back(Digit(bits >> 6));
    text.push_back(Digit(bits));
  }
  if (bytes.empty()) return text;
  const auto first = std::to_integer<std::uint32_t>(bytes[0]);
  const auto second = bytes.size() > 1 ? std::to_integer<std::uint32_t>(bytes[1]) : 0;
  const std::uint32_t bits = first << 16 | second << 8;
  text.push_back(Digit(bits >> 18));
  text.push_back(Digit(bits >> 12));
  text.push_back(bytes.size() > 1 ? Digit(bits >> 6) : kPadding);
  text.push_back(kPadding);
  return text;
}

std::optional<std::vector<std::byte>> DecodeBase64(std::string_view text) {
  std::vector<std::byte> bytes;
  bytes.reserve(text.size() / 4 * 3);
  std::uint32_t bits = 0;
  std::size_t digits = 0;
  std::size_t position = 0;
  for (; position < text.size() && text[position] != kPadding; ++position) {
    const std::uint8_t digit = kDigits[static_cast<unsigned char>(text[position])];
    if (digit == kBlank) continue;
    if (digit == kNoDigit) return std::nullopt;
    bits = bits << 6 | digit;
    if (++digits < 4) continue;
    bytes.push_back(static_cast<std::byte>(bits >> 16 & 0xFF));
    bytes.push_back(static_cast<std::byte>(bits >> 8 & 0xFF));
    bytes.push_back(static_cast<std::byte>(bits & 0xFF));
    digits = 0;
  }
  if (!IsEnd(text.substr(position), digits)) return std::nullopt;
  if (digits == 3) bits >>= 2;
  if (digits == 3) bytes.push_back(static_cast<std::byte>(bits >> 8 & 0xFF));
  if (digits == 3) bytes.push_back(static_cast<std::byte>(bits & 0xFF));
  if (digits == 2) bytes.push_back(static_cast<std::byte>(bits >> 4 & 0xFF));
  return bytes;
}

}  // namespace zeb
