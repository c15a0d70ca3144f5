#include "fonts/ByteReader.h"

namespace zeb {

bool ByteReader::Seek(std::size_t offset) {
  if (offset > m_Bytes.size()) return false;
  m_uOffset = offset;
  return true;
}

bool ByteReader::Skip(std::size_t count) {
  if (count > Left()) return false;
  m_uOffset += count;
  return true;
}

bool ByteReader::ReadBE(std::size_t count, std::uint32_t& value) {
  std::span<const std::byte> bytes;
  if (!ReadSpan(count, bytes)) return false;
  value = 0;
  for (const std::byte byte : bytes) value = value << 8U | std::to_integer<std::uint32_t>(byte);
  return true;
}

bool ByteReader::ReadLE(std::size_t count, std::uint32_t& value) {
  std::span<const std::byte> bytes;
  if (!ReadSpan(count, bytes)) return false;
  value = 0;
  for (std::size_t i = 0; i < count; ++i) {
    value |= std::to_integer<std::uint32_t>(bytes[i]) << static_cast<std::uint32_t>(8 * i);
  }
  return true;
}

bool ByteReader::ReadU8(std::uint8_t& value) {
  std::uint32_t read = 0;
  if (!ReadBE(1, read)) return false;
  value = static_cast<std::uint8_t>(read);
  return true;
}

bool ByteReader::ReadS8(std::int8_t& value) {
  std::uint32_t read = 0;
  if (!ReadBE(1, read)) return false;
  value = static_cast<std::int8_t>(read);
  return true;
}

bool ByteReader::ReadU16BE(std::uint16_t& value) {
  std::uint32_t read = 0;
  if (!ReadBE(2, read)) return false;
  value = static_cast<std::uint16_t>(read);
  return true;
}

bool ByteReader::ReadS16BE(std::int16_t& value) {
  std::uint32_t read = 0;
  if (!ReadBE(2, read)) return false;
  value = static_cast<std::int16_t>(read);
  return true;
}

bool ByteReader::ReadU24BE(std::uint32_t& value) { return ReadBE(3, value); }

bool ByteReader::ReadU32BE(std::uint32_t& value) { return ReadBE(4, value); }

bool ByteReader::ReadS32BE(std::int32_t& value) {
  std::uint32_t read = 0;
  if (!ReadBE(4, read)) return false;
  value = static_cast<std::int32_t>(read);
  return true;
}

bool ByteReader::ReadU16LE(std::uint16_t& value) {
  std::uint32_t read = 0;
  if (!ReadLE(2, read)) return false;
  value = static_cast<std::uint16_t>(read);
  return true;
}

bool ByteReader::ReadS16LE(std::int16_t& value) {
  std::uint32_t read = 0;
  if (!ReadLE(2, read)) return false;
  value = static_cast<std::int16_t>(read);
  return true;
}

bool ByteReader::ReadU32LE(std::uint32_t& value) { return ReadLE(4, value); }

bool ByteReader::ReadS32LE(std::int32_t& value) {
  std::uint32_t read = 0;
  if (!ReadLE(4, read)) return false;
  value = static_cast<std::int32_t>(read);
  return true;
}

bool ByteReader::ReadSpan(std::size_t count, std::span<const std::byte>& bytes) {
  if (count > Left()) return false;
  bytes = m_Bytes.subspan(m_uOffset, count);
  m_uOffset += count;
  return true;
}

bool ByteReader::Part(std::size_t offset, std::size_t length, ByteReader& part) const {
  if (offset > m_Bytes.size() || length > m_Bytes.size() - offset) return false;
  part = ByteReader(m_Bytes.subspan(offset, length));
  return true;
}

}  // namespace zeb
