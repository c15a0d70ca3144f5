#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace zeb {

class CodePageConverter;

/// A code page of the character sets of RTF, by the number that Windows gives it.
///
/// Page 42 maps the bytes from 0x20 on onto U+F020 to U+F0FF. A page is made at its first use and kept for the process:
/// one table of 256 characters and, for a double-byte page, an open conversion and one table more for each lead byte that
/// was met.
class CodePage {
 public:
  /// @param number 0 for the system's default page; a page that the platform does not know lacks every byte
  static const CodePage& Of(int number);
  ~CodePage();
  CodePage(const CodePage&) = delete;
  CodePage& operator=(const CodePage&) = delete;

  /// What each byte stands for by itself. A byte that stands for nothing alone (a lead byte, a gap of the page) is its
  /// own value.
  const std::array<wchar_t, 256>& Characters() const { return m_Characters; }

  /// Converts two bytes in a row. Unless the first one is a lead byte, each stands for itself.
  /// @return how many characters they are: 1 or 2, 0 for a pair that the page does not have
  int ConvertPair(unsigned char first, unsigned char second, std::span<wchar_t, 2> characters) const;

  /// Converts bytes as a whole.
  /// @return nothing if the page lacks one of the bytes or pairs
  std::optional<std::wstring> Convert(std::span<const unsigned char> bytes) const;

 private:
  enum class ByteKind : unsigned char { Character, Lead, Gap };

  /// The code points of all pairs with one lead byte, -1 for pairs that the page does not have.
  using PairTable = std::array<std::int32_t, 256>;

  explicit CodePage(std::unique_ptr<CodePageConverter> converter);
  const PairTable& PairsOf(unsigned char lead) const;

  std::unique_ptr<CodePageConverter> m_pConverter;
  std::array<wchar_t, 256> m_Characters;
  std::array<ByteKind, 256> m_Kinds;
  mutable std::array<std::unique_ptr<const PairTable>, 256> m_Pairs;  // null until the lead byte is met
};

}  // namespace zeb
