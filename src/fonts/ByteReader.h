#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace zeb {

/// The one cursor over the bytes of a file.
///
/// Every operation says whether it succeeded. One that fails moves nothing and leaves its output as it is. No
/// byte outside of the span is ever touched: a count is compared with what is left (`count > size - offset`),
/// which cannot overflow since the offset never exceeds the size. Numbers are assembled from bytes, so
/// alignment and byte order of the machine play no part.
class ByteReader {
 public:
  ByteReader() = default;
  explicit ByteReader(std::span<const std::byte> bytes) : m_Bytes(bytes) {}
  /// @param data may be null if `size` is 0; a negative size counts as 0
  ByteReader(const unsigned char* data, std::ptrdiff_t size)
      : m_Bytes(std::as_bytes(std::span(data, size > 0 ? static_cast<std::size_t>(size) : 0))) {}

  std::size_t Size() const { return m_Bytes.size(); }
  std::size_t Offset() const { return m_uOffset; }
  std::size_t Left() const { return m_Bytes.size() - m_uOffset; }
  bool AtEnd() const { return m_uOffset == m_Bytes.size(); }

  /// Moves to an offset from the start; the end itself is allowed.
  [[nodiscard]] bool Seek(std::size_t offset) {
    if (offset > m_Bytes.size()) return false;
    m_uOffset = offset;
    return true;
  }
  [[nodiscard]] bool Skip(std::size_t count) {
    if (count > Left()) return false;
    m_uOffset += count;
    return true;
  }

  [[nodiscard]] bool ReadU8(std::uint8_t& value) { return ReadBE<1>(value); }
  [[nodiscard]] bool ReadS8(std::int8_t& value) { return ReadBE<1>(value); }
  [[nodiscard]] bool ReadU16BE(std::uint16_t& value) { return ReadBE<2>(value); }
  [[nodiscard]] bool ReadS16BE(std::int16_t& value) { return ReadBE<2>(value); }
  [[nodiscard]] bool ReadU24BE(std::uint32_t& value) { return ReadBE<3>(value); }
  [[nodiscard]] bool ReadU32BE(std::uint32_t& value) { return ReadBE<4>(value); }
  [[nodiscard]] bool ReadS32BE(std::int32_t& value) { return ReadBE<4>(value); }
  [[nodiscard]] bool ReadU16LE(std::uint16_t& value) { return ReadLE<2>(value); }
  [[nodiscard]] bool ReadS16LE(std::int16_t& value) { return ReadLE<2>(value); }
  [[nodiscard]] bool ReadU32LE(std::uint32_t& value) { return ReadLE<4>(value); }
  [[nodiscard]] bool ReadS32LE(std::int32_t& value) { return ReadLE<4>(value); }

  /// The next `count` bytes, without a copy.
  [[nodiscard]] bool ReadSpan(std::size_t count, std::span<const std::byte>& bytes) {
    if (count > Left()) return false;
    bytes = m_Bytes.subspan(m_uOffset, count);
    m_uOffset += count;
    return true;
  }
  /// A reader of `length` bytes from `offset` on, whatever this one's cursor is.
  [[nodiscard]] bool Part(std::size_t offset, std::size_t length, ByteReader& part) const {
    if (offset > m_Bytes.size() || length > m_Bytes.size() - offset) return false;
    part = ByteReader(m_Bytes.subspan(offset, length));
    return true;
  }

 private:
  template <std::size_t Count, class Number>
  [[nodiscard]] bool ReadBE(Number& value) {
    if (Count > Left()) return false;
    std::uint32_t read = 0;
    for (std::size_t i = 0; i < Count; ++i) read = read << 8U | At(i);
    m_uOffset += Count;
    value = static_cast<Number>(read);
    return true;
  }
  template <std::size_t Count, class Number>
  [[nodiscard]] bool ReadLE(Number& value) {
    if (Count > Left()) return false;
    std::uint32_t read = 0;
    for (std::size_t i = Count; i > 0; --i) read = read << 8U | At(i - 1);
    m_uOffset += Count;
    value = static_cast<Number>(read);
    return true;
  }
  std::uint32_t At(std::size_t index) const {
    return std::to_integer<std::uint32_t>(m_Bytes[m_uOffset + index]);
  }

  std::span<const std::byte> m_Bytes;
  std::size_t m_uOffset = 0;
};

}  // namespace zeb
