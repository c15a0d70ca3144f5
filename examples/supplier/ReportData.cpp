#include "ReportData.h"

#include "Utf8.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

namespace supplier {

namespace {

/// The tokens of a JSON text.
class JsonTokens {
 public:
  explicit JsonTokens(std::string_view text) : m_text(text) {}

  [[noreturn]] void Fail(const std::string& what) const {
    throw std::runtime_error("data, byte " + std::to_string(m_position) + ": " + what + " is expected here");
  }

  /// Takes a sign such as `{`, if it stands here.
  bool TakeSign(char sign) {
    SkipBlanks();
    if (Peek() != sign) return false;
    ++m_position;
    return true;
  }
  void Expect(char sign) {
    if (!TakeSign(sign)) Fail(std::string("a '") + sign + "'");
  }
  bool StandsAtString() {
    SkipBlanks();
    return Peek() == '"';
  }

  std::wstring TakeString() {
    Expect('"');
    std::string bytes;
    while (Peek() != '"') {
      if (m_position >= m_text.size()) Fail("a closing quote");
      if (Peek() == '\\') {
        ++m_position;
        TakeEscape(bytes);
      } else {
        bytes += m_text[m_position++];
      }
    }
    ++m_position;
    return FromUtf8(bytes);
  }

  Value TakeNumber() {
    SkipBlanks();
    Value value;
    value.kind = Value::Kind::Number;
    const std::string_view rest = m_text.substr(m_position);
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value.number);
    if (error != std::errc{}) Fail("a number");
    const std::string_view digits = rest.substr(0, static_cast<std::size_t>(end - rest.data()));
    m_position += digits.size();
    const std::size_t point = digits.find('.');
    if (point != std::string_view::npos) value.decimals = static_cast<int>(digits.size() - point - 1);
    return value;
  }

  void ExpectEnd() {
    SkipBlanks();
    if (m_position != m_text.size()) Fail("the end");
  }

 private:
  char Peek() const { return m_position < m_text.size() ? m_text[m_position] : '\0'; }
  void SkipBlanks() {
    while (Peek() == ' ' || Peek() == '\n' || Peek() == '\r' || Peek() == '\t') ++m_position;
  }

  void TakeEscape(std::string& bytes) {
    constexpr std::string_view kEscapes = "\"\\/bfnrt";
    constexpr std::string_view kMeanings = "\"\\/\b\f\n\r\t";
    const char sign = Peek();
    ++m_position;
    if (sign == 'u') {
      bytes += ToUtf8(TakeUnits());
    } else if (const std::size_t index = kEscapes.find(sign); index != std::string_view::npos) {
      bytes += kMeanings[index];
    } else {
      Fail("an escape");
    }
  }

  /// A character that is written as one unit of UTF-16 or as two.
  std::wstring TakeUnits() {
    const unsigned first = TakeHexadecimal();
    if (first < 0xD800 || first > 0xDFFF) return {static_cast<wchar_t>(first)};
    if (first > 0xDBFF || !m_text.substr(m_position).starts_with("\\u")) Fail("a pair of surrogates");
    m_position += 2;
    const unsigned second = TakeHexadecimal();
    if (second < 0xDC00 || second > 0xDFFF) Fail("a pair of surrogates");
    return {static_cast<wchar_t>(first), static_cast<wchar_t>(second)};
  }

  unsigned TakeHexadecimal() {
    unsigned code = 0;
    const std::string_view digits = m_text.substr(std::min(m_position, m_text.size())).substr(0, 4);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    if (error != std::errc{} || digits.size() != 4 || end != digits.data() + 4)
      Fail("a code of four hexadecimal digits");
    m_position += 4;
    return code;
  }

  std::string_view m_text;
  std::size_t m_position = 0;
};

/// Calls `takeMember` with each name of an object, whose value it takes.
template <class TakeMember>
void TakeObject(JsonTokens& tokens, TakeMember takeMember) {
  tokens.Expect('{');
  if (tokens.TakeSign('}')) return;
  do {
    const std::wstring name = tokens.TakeString();
    tokens.Expect(':');
    takeMember(name);
  } while (tokens.TakeSign(','));
  tokens.Expect('}');
}

Value TakeValue(JsonTokens& tokens) {
  Value value;
  if (tokens.StandsAtString()) {
    value.text = tokens.TakeString();
    return value;
  }
  if (!tokens.TakeSign('{')) return tokens.TakeNumber();
  value.kind = Value::Kind::File;
  if (tokens.TakeString() != L"file") tokens.Fail("the member \"file\"");
  tokens.Expect(':');
  value.text = tokens.TakeString();
  tokens.Expect('}');
  return value;
}

Row TakeRow(JsonTokens& tokens) {
  Row row;
  TakeObject(tokens, [&](const std::wstring& key) { row[key] = TakeValue(tokens); });
  return row;
}

std::vector<Row> TakeRows(JsonTokens& tokens) {
  std::vector<Row> rows;
  tokens.Expect('[');
  if (tokens.TakeSign(']')) return rows;
  do {
    rows.push_back(TakeRow(tokens));
  } while (tokens.TakeSign(','));
  tokens.Expect(']');
  return rows;
}

ReportData TakeData(JsonTokens& tokens) {
  ReportData data;
  TakeObject(tokens, [&](const std::wstring& name) {
    if (name == L"report") {
      data.report = tokens.TakeString();
    } else if (name == L"layout") {
      data.layout = tokens.TakeString();
    } else if (name == L"global") {
      data.global = TakeRow(tokens);
    } else if (name == L"zones") {
      TakeObject(tokens, [&](const std::wstring& zone) { data.zones.emplace_back(zone, TakeRows(tokens)); });
    } else {
      tokens.Fail("report, layout, global or zones");
    }
  });
  tokens.ExpectEnd();
  return data;
}

}  // namespace

ReportData ReadReportData(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error(file.string() + " cannot be read");
  const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  JsonTokens tokens(text);
  return TakeData(tokens);
}

}  // namespace supplier
