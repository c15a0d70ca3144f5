#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8 and the platform's wide characters (UTF-16 on Windows, UTF-32 elsewhere).
namespace zeb {

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// Turns UTF-8 into wide characters; a sequence that is malformed becomes U+FFFD.
/// @param wide has room for `utf8.size()` characters
/// @return the number of characters that were written
std::size_t DecodeUtf8(std::string_view utf8, wchar_t* wide);
std::wstring Utf8ToWide(std::string_view utf8);

/// The code point at `position`, which moves behind it. A surrogate pair counts as one code point on every platform; a
/// lone surrogate and anything beyond U+10FFFF are U+FFFD.
char32_t NextCodePoint(std::wstring_view wide, std::size_t& position);
/// Whether UTF-8 can carry the text there and back unchanged: it has no character that NextCodePoint changes.
bool SurvivesUtf8(std::wstring_view wide);

/// Appends a code point up to U+10FFFF.
void AppendUtf8(std::string& utf8, char32_t codePoint);
std::string WideToUtf8(std::wstring_view wide);

}  // namespace zeb
