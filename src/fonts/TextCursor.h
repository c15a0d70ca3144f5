#pragma once

#include <cstddef>
#include <span>

namespace zeb {

/// The one cursor over the characters of a font's text file (AFM, PFA, CMap): one byte, one character.
/// It never leaves its span; at the end there is simply no next character.
class TextCursor {
 public:
  TextCursor() = default;
  explicit TextCursor(std::span<const std::byte> bytes) : m_Bytes(bytes) {}
  /// @param data may be null if `size` is 0; a negative size counts as 0
  TextCursor(const unsigned char* data, std::ptrdiff_t size)
      : m_Bytes(std::as_bytes(std::span(data, size > 0 ? static_cast<std::size_t>(size) : 0))) {}

  bool AtEnd() const { return m_uOffset == m_Bytes.size(); }
  std::size_t Offset() const { return m_uOffset; }
  std::size_t Left() const { return m_Bytes.size() - m_uOffset; }

  /// The next character, which stays the next one.
  [[nodiscard]] bool Peek(unsigned char& character) const {
    if (AtEnd()) return false;
    character = std::to_integer<unsigned char>(m_Bytes[m_uOffset]);
    return true;
  }
  /// The next character; the cursor moves behind it.
  [[nodiscard]] bool Next(unsigned char& character) {
    if (!Peek(character)) return false;
    ++m_uOffset;
    return true;
  }
  /// Moves back by one character; nothing at the start.
  void StepBack() {
    if (m_uOffset > 0) --m_uOffset;
  }
  /// Moves behind the last character: nothing more is read.
  void MoveToEnd() { m_uOffset = m_Bytes.size(); }

 private:
  std::span<const std::byte> m_Bytes;
  std::size_t m_uOffset = 0;
};

}  // namespace zeb
