#include "JsonWriter.h"

#include "TextFormat.h"

#include <cmath>
#include <cstdint>

namespace zebreport {

namespace {

using Traits = std::char_traits<wchar_t>;

/// `\u` and four hexadecimal digits.
std::wstring Escaped(std::uint32_t control) {
  constexpr std::wstring_view kDigits = L"0123456789abcdef";
  return {L'\\', L'u', L'0', L'0', kDigits[control / 16], kDigits[control % 16]};
}

void AppendQuoted(std::wstring& text, std::wstring_view content) {
  text += L'"';
  for (const wchar_t character : content) {
    if (character == L'"' || character == L'\\') {
      text += L'\\';
      text += character;
    } else if (character == L'\n') {
      text += L"\\n";
    } else if (character == L'\r') {
      text += L"\\r";
    } else if (character == L'\t') {
      text += L"\\t";
    } else if (const std::uint32_t code = Traits::to_int_type(character); code < U' ') {
      text += Escaped(code);
    } else {
      text += character;
    }
  }
  text += L'"';
}

}  // namespace

void JsonWriter::End() {
  const Level level = m_levels.back();
  m_levels.pop_back();
  if (!level.isEmpty) NewLine();
  m_text += level.close;
  if (m_levels.empty()) m_text += L'\n';
}

JsonWriter& JsonWriter::Key(std::wstring_view key) {
  Separate();
  AppendQuoted(m_text, key);
  m_text += L": ";
  m_afterKey = true;
  return *this;
}

void JsonWriter::String(std::wstring_view text) {
  Separate();
  AppendQuoted(m_text, text);
}

void JsonWriter::Integer(int value) {
  Separate();
  m_text += std::to_wstring(value);
}

void JsonWriter::Number(double value) {
  if (!std::isfinite(value)) return Null();
  Separate();
  m_text += ExactNumber(value);
}

void JsonWriter::Bool(bool value) {
  Separate();
  m_text += value ? L"true" : L"false";
}

void JsonWriter::Null() {
  Separate();
  m_text += L"null";
}

void JsonWriter::Begin(wchar_t open, wchar_t close) {
  Separate();
  m_text += open;
  m_levels.push_back({close});
}

void JsonWriter::Separate() {
  if (m_afterKey) {
    m_afterKey = false;
    return;
  }
  if (m_levels.empty()) return;
  if (!m_levels.back().isEmpty) m_text += L',';
  m_levels.back().isEmpty = false;
  NewLine();
}

void JsonWriter::NewLine() {
  m_text += L'\n';
  m_text.append(m_levels.size() * 2, L' ');
}

}  // namespace zebreport
