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
