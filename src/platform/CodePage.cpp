#include "platform/CodePage.h"

#include "platform/CodePageConverter.h"
#include "platform/SystemLanguage.h"

#include <cstdint>
#include <map>
#include <utility>

namespace zeb {

namespace {

constexpr int kSymbolPage = 42;

/// The page of fonts with signs instead of letters: a corner of the private use area.
class SymbolConverter : public CodePageConverter {
 public:
  std::optional<std::int32_t> Convert(std::span<const unsigned char> bytes) const override {
    if (bytes.size() != 1) return -1;
    constexpr unsigned char kFirst = 0x20;
    constexpr std::int32_t kPrivateUse = 0xF000;
    return bytes[0] < kFirst ? bytes[0] : kPrivateUse + bytes[0];
  }
};

std::unique_ptr<CodePageConverter> OpenConverter(int number) {
  if (number == kSymbolPage) return std::make_unique<SymbolConverter>();
  return CodePageConverter::Open(number);
}

}  // namespace

CodePage::CodePage(std::unique_ptr<CodePageConverter> converter)
    : m_pConverter(std::move(converter)), m_Characters(), m_Kinds() {
  for (std::size_t byte = 0; byte < m_Characters.size(); ++byte) {
    const auto value = static_cast<unsigned char>(byte);
    // A page that the platform does not know is one of gaps.
    const std::optional<std::int32_t> code =
        m_pConverter != nullptr ? m_pConverter->Convert({&value, 1}) : std::int32_t{-1};
    m_Characters[byte] = static_cast<wchar_t>(code.value_or(-1) < 0 ? value : *code);
    m_Kinds[byte] = !code ? ByteKind::Lead : *code < 0 ? ByteKind::Gap : ByteKind::Character;
  }
}

CodePage::~CodePage() = default;

const CodePage& CodePage::Of(int number) {
  static std::map<int, std::unique_ptr<CodePage>> s_Pages;
  if (number == 0) number = SystemCodePage();
  const auto known = s_Pages.find(number);
  if (known != s_Pages.end()) return *known->second;
  std::unique_ptr<CodePage> page(new CodePage(OpenConverter(number)));
  return *s_Pages.emplace(number, std::move(page)).first->second;
}

const CodePage::PairTable& CodePage::PairsOf(unsigned char lead) const {
  std::unique_ptr<const PairTable>& known = m_Pairs[lead];
  if (known == nullptr) {
    auto table = std::make_unique<PairTable>();
    for (std::size_t second = 0; second < table->size(); ++second) {
      const std::array<unsigned char, 2> bytes = {lead, static_cast<unsigned char>(second)};
      (*table)[second] = m_pConverter->Convert(bytes).value_or(-1);
    }
    known = std::move(table);
  }
  return *known;
}

int CodePage::ConvertPair(unsigned char first, unsigned char second, std::span<wchar_t, 2> characters) const {
  if (m_Kinds[first] != ByteKind::Lead) {
    characters[0] = m_Characters[first];
    characters[1] = m_Characters[second];
    return 2;
  }
  const std::int32_t code = PairsOf(first)[second];
  if (code < 0) return 0;
  characters[0] = static_cast<wchar_t>(code);
  return 1;
}

std::optional<std::wstring> CodePage::Convert(std::span<const unsigned char> bytes) const {
  std::wstring text;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const unsigned char byte = bytes[at];
    wchar_t character = m_Characters[byte];
    if (m_Kinds[byte] == ByteKind::Gap) return std::nullopt;
    if (m_Kinds[byte] == ByteKind::Lead) {
      if (++at == bytes.size()) return std::nullopt;
      std::array<wchar_t, 2> characters = {};
      if (ConvertPair(byte, bytes[at], characters) != 1) return std::nullopt;
      character = characters[0];
    }
    text.push_back(character);
  }
  return text;
}

}  // namespace zeb
