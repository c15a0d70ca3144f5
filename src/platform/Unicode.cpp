#include "platform/Unicode.h"

#include <algorithm>

namespace zeb {

namespace {

constexpr bool kWideIsUtf16 = sizeof(wchar_t) == 2;

bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// The number of bytes that a lead byte announces, 0 for one that begins no sequence.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC2) return 0;
  if (lead < 0xE0) return 2;
  if (lead < 0xF0) return 3;
  return lead < 0xF5 ? 4 : 0;
}

/// Decodes one sequence and moves behind it, or behind one byte if it is malformed.
char32_t DecodeSequence(std::string_view utf8, std::size_t& position) {
  const auto lead = static_cast<unsigned char>(utf8[position]);
  const std::size_t length = SequenceLength(lead);
  if (length == 0 || length > utf8.size() - position) {
    ++position;
    return kReplacementCharacter;
  }
  static constexpr unsigned char kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  static constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  char32_t codePoint = lead & kLeadBits[length];
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(utf8[position + i]);
    if ((byte & 0xC0) != 0x80) {
      ++position;
      return kReplacementCharacter;
    }
    codePoint = codePoint << 6 | (byte & 0x3F);
  }
  if (codePoint < kLeast[length] || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF)) {
    ++position;
    return kReplacementCharacter;
  }
  position += length;
  return codePoint;
}

}  // namespace

std::size_t DecodeUtf8(std::string_view utf8, wchar_t* wide) {
  std::size_t count = 0;
  for (std::size_t position = 0; position < utf8.size();) {
    const auto byte = static_cast<unsigned char>(utf8[position]);
    if (byte < 0x80) {
      wide[count++] = static_cast<wchar_t>(byte);
      ++position;
      continue;
    }
    const char32_t codePoint = DecodeSequence(utf8, position);
    if (kWideIsUtf16 && codePoint > 0xFFFF) {
      wide[count++] = static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10));
      wide[count++] = static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
    } else {
      wide[count++] = static_cast<wchar_t>(codePoint);
    }
  }
  return count;
}

std::wstring Utf8ToWide(std::string_view utf8) {
  std::wstring wide(utf8.size(), L'\0');
  wide.resize(DecodeUtf8(utf8, wide.data()));
  return wide;
}

char32_t NextCodePoint(std::wstring_view wide, std::size_t& position) {
  const auto unit = static_cast<char32_t>(wide[position++]);
  if (IsHighSurrogate(unit) && position < wide.size()) {
    const auto next = static_cast<char32_t>(wide[position]);
    if (IsLowSurrogate(next)) {
      ++position;
      return 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00);
    }
  }
  return IsHighSurrogate(unit) || IsLowSurrogate(unit) || unit > 0x10FFFF ? kReplacementCharacter : unit;
}

bool SurvivesUtf8(std::wstring_view wide) {
  for (std::size_t position = 0; position < wide.size();) {
    const auto unit = static_cast<char32_t>(wide[position]);
    if (unit < 0xD800) {
      ++position;
      continue;
    }
    const std::size_t start = position;
    const char32_t codePoint = NextCodePoint(wide, position);
    if (kWideIsUtf16 ? position - start == 1 && codePoint != unit : codePoint != unit) return false;
  }
  return true;
}

void AppendUtf8(std::string& utf8, char32_t codePoint) {
  if (codePoint < 0x80) {
    utf8.push_back(static_cast<char>(codePoint));
  } else if (codePoint < 0x800) {
    utf8.push_back(static_cast<char>(0xC0 | codePoint >> 6));
    utf8.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
  } else if (codePoint < 0x10000) {
    utf8.push_back(static_cast<char>(0xE0 | codePoint >> 12));
    utf8.push_back(static_cast<char>(0x80 | (codePoint >> 6 & 0x3F)));
    utf8.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
  } else {
    utf8.push_back(static_cast<char>(0xF0 | codePoint >> 18));
    utf8.push_back(static_cast<char>(0x80 | (codePoint >> 12 & 0x3F)));
    utf8.push_back(static_cast<char>(0x80 | (codePoint >> 6 & 0x3F)));
    utf8.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
  }
}

std::string WideToUtf8(std::wstring_view wide) {
  std::string utf8;
  utf8.reserve(wide.size());
  for (std::size_t position = 0; position < wide.size();) AppendUtf8(utf8, NextCodePoint(wide, position));
  return utf8;
}

}  // namespace zeb
