#pragma once

#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string_view>

// Classes of a formula's characters, for code that reads many of them. They answer what CFormulaParser's static
// character classes answer for a character of a text: letters, digits and blanks of the ASCII range are the same in
// every locale, those up to 255 are asked of the locale, and nothing above 255 belongs to a class.
namespace zeb {

/// What a character of the ASCII range can be; flags.
enum CharacterClass : std::uint8_t {
  kNoClass = 0,
  kLetter = 1,
  kDigit = 2,
  kBlank = 4,
  kCommentMark = 8,
};

constexpr std::array<std::uint8_t, 128> MakeCharacterClasses() {
  std::array<std::uint8_t, 128> classes{};
  for (std::size_t c = 'a'; c <= 'z'; ++c) classes[c] = kLetter;
  for (std::size_t c = 'A'; c <= 'Z'; ++c) classes[c] = kLetter;
  for (std::size_t c = '0'; c <= '9'; ++c) classes[c] = kDigit;
  for (const char c : {' ', '\t', '\n', '\v', '\f', '\r'}) classes[static_cast<unsigned char>(c)] = kBlank;
  for (const char c : {'{', '}', '\''}) classes[static_cast<unsigned char>(c)] = kCommentMark;
  return classes;
}

inline constexpr std::array<std::uint8_t, 128> kCharacterClasses = MakeCharacterClasses();

/// A character as the value that the standard library's classes take, or 256, which belongs to none of them.
constexpr int ClassifiableCharacter(wchar_t c) {
  return static_cast<char32_t>(c) <= 255 ? static_cast<int>(c) : 256;
}

constexpr bool IsAscii(wchar_t c) { return static_cast<char32_t>(c) < 128; }

inline std::uint8_t AsciiClass(wchar_t c) { return kCharacterClasses[static_cast<char32_t>(c)]; }

inline bool IsLetter(wchar_t c) {
  if (IsAscii(c)) return AsciiClass(c) == kLetter;
  const int code = ClassifiableCharacter(c);
  return code <= 255 && std::isalpha(code) != 0;
}

inline bool IsDigit(wchar_t c) {
  if (IsAscii(c)) return AsciiClass(c) == kDigit;
  const int code = ClassifiableCharacter(c);
  return code <= 255 && std::isdigit(code) != 0;
}

inline bool IsLetterOrDigit(wchar_t c) {
  if (IsAscii(c)) return (AsciiClass(c) & (kLetter | kDigit)) != 0;
  const int code = ClassifiableCharacter(c);
  return code <= 255 && std::isalnum(code) != 0;
}

inline bool IsBlank(wchar_t c) {
  if (IsAscii(c)) return AsciiClass(c) == kBlank;
  const int code = ClassifiableCharacter(c);
  return code <= 255 && std::isspace(code) != 0;
}

/// Whether the walk over blanks and comments can have something to do at a character.
inline bool MayBeSkipped(wchar_t c) { return !IsAscii(c) || (AsciiClass(c) & (kBlank | kCommentMark)) != 0; }

/// Whether a text is a word of the language, which is written in small ASCII letters and digits; case is ignored.
constexpr bool IsWord(std::wstring_view text, std::string_view word) {
  if (text.size() != word.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t c =
        text[i] >= L'A' && text[i] <= L'Z' ? static_cast<wchar_t>(text[i] + (L'a' - L'A')) : text[i];
    if (c != static_cast<wchar_t>(word[i])) return false;
  }
  return true;
}

}  // namespace zeb
