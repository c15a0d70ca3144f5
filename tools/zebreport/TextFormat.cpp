#include "TextFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cwchar>

namespace zebreport {

namespace {

constexpr std::size_t kShortLength = 40;
constexpr std::size_t kLongestCutName = 60;
constexpr std::size_t kLongestBeginning = 255;
constexpr int kDecimals = 6;

}  // namespace

std::wstring Number(float value) {
  // Room for the greatest float and its decimals.
  std::array<char, 64> digits{};
  char* end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, kDecimals)
          .ptr;
  std::wstring text(digits.data(), end);
  if (text.find(L'.') != std::wstring::npos) {
    text.erase(text.find_last_not_of(L'0') + 1);
    if (text.back() == L'.') text.pop_back();
  }
  return text == L"-0" ? L"0" : text;
}

std::wstring ExactNumber(double value) {
  std::array<char, 64> digits{};
  const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  return {static_cast<const char*>(digits.data()), end};
}

std::wstring Quoted(const std::wstring& text) {
  std::wstring quoted = L"\"";
  for (const wchar_t character : text) {
    switch (character) {
      case L'\n':
        quoted += L"\\n";
        break;
      case L'\r':
        quoted += L"\\r";
        break;
      case L'\t':
        quoted += L"\\t";
        break;
      case L'"':
      case L'\\':
        quoted += L'\\';
        quoted += character;
        break;
      default:
        quoted += character;
    }
  }
  return quoted + L"\"";
}

std::wstring QuotedIfNeeded(const std::wstring& text) {
  const bool isPlain =
      !text.empty() && text.front() != L' ' && text.back() != L' ' &&
      std::none_of(text.begin(), text.end(), [](wchar_t c) { return c < L' ' || c == L'"'; });
  return isPlain ? text : Quoted(text);
}

std::wstring CutName(const std::wstring& name) {
  return name.size() <= kLongestCutName ? name : name.substr(0, kLongestCutName) + L'\x2026';
}

std::wstring Beginning(const wchar_t* text) { return {text, wcsnlen(text, kLongestBeginning)}; }

std::wstring QuotedShort(const std::wstring& text) {
  return text.size() <= kShortLength ? Quoted(text) : Quoted(text.substr(0, kShortLength)) + L"...";
}

std::wstring Joined(const std::vector<std::wstring>& parts) {
  std::wstring joined;
  for (const std::wstring& part : parts) {
    if (!joined.empty()) joined += L", ";
    joined += part;
  }
  return joined;
}

std::wstring JoinedNames(std::vector<std::wstring> names) {
  for (std::wstring& name : names) {
    name = name.find(L',') == std::wstring::npos ? QuotedIfNeeded(name) : Quoted(name);
  }
  return Joined(names);
}

void Lines::Add(int level, const std::wstring& line) {
  m_text.append(static_cast<std::size_t>(level) * 2, L' ');
  m_text += line;
  m_text += L'\n';
}

}  // namespace zebreport
