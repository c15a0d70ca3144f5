#include "fonts/FontData.h"

#include "foundation/ErrorKeys.h"
#include "foundation/KXExceptionHandler.h"
#include "platform/FileHandle.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace {

constexpr int kDefaultChunk = 65535;

unsigned int LittleEndianWord(const unsigned char* bytes) {
  return bytes[0] | static_cast<unsigned int>(bytes[1]) << 8U | static_cast<unsigned int>(bytes[2]) << 16U |
         static_cast<unsigned int>(bytes[3]) << 24U;
}

[[noreturn]] void ThrowNoMoreMemory() {
  CKXExceptionHandler::GetInstance().ThrowException(zeb::ErrorKeys::NoMoreMemoryLeft);
  throw std::bad_alloc();
}

}  // namespace

CFontData::CFontData(bool growing) : CFontData(kDefaultChunk, growing) {}

CFontData::CFontData(int chunk, bool growing)
    : m_pBuffer(nullptr),
      m_iLength(0),
      m_iCapacity(0),
      m_iChunkSize(std::max(chunk, 1)),
      m_iLength1(0),
      m_iLength2(0),
      m_iLength3(0),
      m_iPos(0),
      m_bGrowing(growing) {
  Grow(1);
}

CFontData::CFontData(const CFontData& other) = default;

CFontData::~CFontData() {
  if (m_pKeeper == nullptr) std::free(m_pBuffer);
  delete m_pKeeper;
}

CFontData& CFontData::operator=(const CFontData& other) = default;

void CFontData::Resize(long long chunks) {
  const long long capacity = m_iCapacity + chunks * m_iChunkSize;
  if (capacity > INT_MAX) ThrowNoMoreMemory();
  const auto size = static_cast<std::size_t>(capacity);
  // A first block that the system gives zeroed need not be touched before it is used.
  const bool adopted = m_pBuffer != nullptr && m_pKeeper != nullptr;
  void* const buffer = m_pBuffer == nullptr || adopted ? std::calloc(size, 1) : std::realloc(m_pBuffer, size);
  if (buffer == nullptr) ThrowNoMoreMemory();
  if (adopted) std::memcpy(buffer, m_pBuffer, static_cast<std::size_t>(m_iCapacity));
  delete std::exchange(m_pKeeper, nullptr);
  m_pBuffer = static_cast<unsigned char*>(buffer);
  m_iCapacity = static_cast<int>(capacity);
}

void CFontData::AdoptContent(std::shared_ptr<void> keeper, unsigned char* bytes, int count) {
  if (m_iLength != 0 || m_iCapacity != kDefaultChunk || m_iChunkSize != kDefaultChunk) {
    AddFontMemData(bytes, count);
    return;
  }
  const long long growth = count > m_iCapacity ? count / m_iChunkSize + 1LL : 0;
  const long long capacity = m_iCapacity + growth * m_iChunkSize;
  if (capacity > INT_MAX) ThrowNoMoreMemory();
  auto* const kept = new std::shared_ptr<void>(std::move(keeper));
  std::free(m_pBuffer);
  m_pBuffer = bytes;
  m_pKeeper = kept;
  m_iLength = count;
  m_iCapacity = static_cast<int>(capacity);
}

void CFontData::Grow(long long chunks) {
  const int before = m_iCapacity;
  Resize(chunks);
  // The first block is zero already.
  if (before > 0) std::fill(m_pBuffer + before, m_pBuffer + m_iCapacity, static_cast<unsigned char>(0));
}

void CFontData::ReAllocFontData(int count) {
  // Fixed behaviour: the room is counted from the length, not from the cursor.
  if (static_cast<long long>(m_iLength) + count > m_iCapacity) Grow(count / m_iChunkSize + 1LL);
}

void CFontData::ReAllocFontDataPos(int pos, int count) {
  const long long end = static_cast<long long>(pos) + count;
  if (end > m_iCapacity) Grow(end / m_iChunkSize + 1);
}

void CFontData::MakeRoomAtCursor(int count) {
  ReAllocFontData(count);
  // A cursor behind the content needs more room than the content does.
  ReAllocFontDataPos(m_iPos, count);
}

void CFontData::MoveCursor(long long pos) {
  m_iPos = static_cast<int>(std::clamp<long long>(pos, INT_MIN, INT_MAX));
}

void CFontData::AddFontData(int fileHandle, int count) {
  const int available = static_cast<int>(std::min<long long>(count, zeb::BytesLeftInFile(fileHandle)));
  if (available <= 0) return;
  ReAllocFontData(available);
  m_iLength += zeb::ReadFromFile(fileHandle, m_pBuffer + m_iLength, available);
}

void CFontData::AddFontMemData(void* data, int count) {
  if (data == nullptr || count <= 0) return;
  std::memcpy(ExtendContent(count), data, static_cast<std::size_t>(count));
}

unsigned char* CFontData::ExtendContent(int count) {
  const int before = m_iCapacity;
  const long long end = static_cast<long long>(m_iLength) + count;
  if (end > m_iCapacity) {
    Resize(count / m_iChunkSize + 1LL);
    std::fill(m_pBuffer + std::max<long long>(before, end), m_pBuffer + m_iCapacity,
              static_cast<unsigned char>(0));
  }
  unsigned char* const room = m_pBuffer + m_iLength;
  m_iLength += count;
  return room;
}

unsigned char* CFontData::GetData() const { return m_pBuffer; }
int CFontData::GetLength() const { return m_iLength; }

int CFontData::GetLength1() const { return m_iLength1; }
int CFontData::GetLength2() const { return m_iLength2; }
int CFontData::GetLength3() const { return m_iLength3; }
void CFontData::SetLength1(int length) { m_iLength1 = length; }
void CFontData::SetLength2(int length) { m_iLength2 = length; }
void CFontData::SetLength3(int length) { m_iLength3 = length; }
void CFontData::AddToLength1(int count) { m_iLength1 += count; }
void CFontData::AddToLength2(int count) { m_iLength2 += count; }
void CFontData::AddToLength3(int count) { m_iLength3 += count; }

void CFontData::ResetFontPos() { m_iPos = 0; }
int CFontData::Tell() const { return m_iPos; }

void CFontData::Seek(int pos) {
  if (m_bGrowing) ReAllocFontDataPos(pos, 0);
  m_iPos = pos;
  if (m_bGrowing) m_iLength = std::max(m_iLength, pos);
}

void CFontData::Skip(int count) {
  if (m_bGrowing) MakeRoomAtCursor(count);
  MoveCursor(static_cast<long long>(m_iPos) + count);
  // Fixed behaviour: the length grows although the cursor may move over bytes that are in the content already.
  if (m_bGrowing) m_iLength = std::max(m_iLength + count, 0);
}

void CFontData::ReadBytes(void* buffer, int count) {
  if (buffer == nullptr || count <= 0) return;
  CopyOut(m_iPos, count, static_cast<unsigned char*>(buffer));
  MoveCursor(static_cast<long long>(m_iPos) + count);
}

void CFontData::CopyOut(int pos, int count, unsigned char* target) const {
  const long long end = static_cast<long long>(pos) + count;
  const long long begin = std::max(pos, 0);
  const long long there = std::min<long long>(end, m_iCapacity);
  if (begin >= there) {
    std::fill_n(target, count, static_cast<unsigned char>(0));
    return;
  }
  // The target may lie in this very block, so what is there comes first, from wherever it lies.
  std::memmove(target + (begin - pos), m_pBuffer + begin, static_cast<std::size_t>(there - begin));
  std::fill_n(target, begin - pos, static_cast<unsigned char>(0));
  std::fill_n(target + (there - pos), end - there, static_cast<unsigned char>(0));
}

unsigned int CFontData::BigEndianAt(long long pos, int count) const {
  unsigned int value = 0;
  for (long long at = pos; at < pos + count; ++at) {
    value = value << 8U | (at >= 0 && at < m_iCapacity ? m_pBuffer[at] : 0U);
  }
  return value;
}

short CFontData::GetShort() { return static_cast<short>(GetUShort()); }

unsigned short CFontData::GetUShort() {
  const unsigned short value = GetUShortAtPos(m_iPos);
  MoveCursor(m_iPos + 2LL);
  return value;
}

int CFontData::GetInt() { return static_cast<int>(GetUInt()); }

unsigned int CFontData::GetUInt() {
  const unsigned int value = BigEndianAt(m_iPos, 4);
  MoveCursor(m_iPos + 4LL);
  return value;
}

short CFontData::GetShortAtPos(int pos) const { return static_cast<short>(GetUShortAtPos(pos)); }

unsigned short CFontData::GetUShortAtPos(int pos) const {
  return static_cast<unsigned short>(BigEndianAt(pos, 2));
}

void CFontData::WriteByte(unsigned char value) { WriteBytes(&value, 1); }

void CFontData::WriteBytes(void* data, int count) {
  if (data == nullptr || count <= 0) return;
  MakeRoomAtCursor(count);
  if (m_iPos >= 0) std::memcpy(m_pBuffer + m_iPos, data, static_cast<std::size_t>(count));
  MoveCursor(static_cast<long long>(m_iPos) + count);
  m_iLength += count;
}

void CFontData::WriteUShort(unsigned short value) {
  WriteByte(static_cast<unsigned char>(value >> 8U));
  WriteByte(static_cast<unsigned char>(value));
}

void CFontData::WriteUInt(unsigned int value) {
  WriteUShort(static_cast<unsigned short>(value >> 16U));
  WriteUShort(static_cast<unsigned short>(value));
}

void CFontData::WriteByteAtPos(int pos, unsigned char value) { WriteBigEndianAtPos(pos, value, 1); }

void CFontData::WriteUShortAtPos(int pos, unsigned short value) { WriteBigEndianAtPos(pos, value, 2); }

void CFontData::WriteUIntAtPos(int pos, unsigned int value) { WriteBigEndianAtPos(pos, value, 4); }

void CFontData::WriteBigEndianAtPos(int pos, unsigned int value, int count) {
  if (pos < 0) return;
  ReAllocFontDataPos(pos, count);
  for (int i = 0; i < count; ++i) {
    m_pBuffer[pos + i] = static_cast<unsigned char>(value >> static_cast<unsigned>(8 * (count - 1 - i)));
  }
}

void CFontData::CopyBytesAtPos(int pos, int count, CFontData* target) {
  if (count <= 0) return;
  // Room comes before reading: where the target is this object, its block may move.
  target->MakeRoomAtCursor(count);
  if (target->m_iPos >= 0) CopyOut(pos, count, target->m_pBuffer + target->m_iPos);
  target->MoveCursor(static_cast<long long>(target->m_iPos) + count);
  target->m_iLength += count;
}

void CFontData::CreatePad4() {
  // Fixed behaviour: pads by the remainder, not by what is missing to a multiple of 4; 5 becomes 6, 7 becomes 10.
  const int padding = m_iLength % 4;
  if (padding == 0) return;
  ReAllocFontDataPos(std::max(m_iPos, m_iLength), padding);
  for (int i = 0; i < padding; ++i) WriteByteAtPos(m_iPos + i, 0);
  m_iPos += padding;
  m_iLength += padding;
}

unsigned int CFontData::GetLongCheckSum(int pos, int count) const {
  // Fixed behaviour: the remainder is added before rounding up, and the words are little-endian.
  const long long raised = static_cast<long long>(std::max(count, 0)) + std::max(count, 0) % 4;
  const long long end = std::min<long long>(pos + (raised + 3) / 4 * 4, m_iCapacity);
  unsigned int sum = 0;
  long long at = std::max(pos, 0);
  if (at == pos) {
    for (; at + 4 <= end; at += 4) sum += LittleEndianWord(m_pBuffer + at);
  }
  for (; at < end; ++at) {
    sum += static_cast<unsigned int>(m_pBuffer[at]) << static_cast<unsigned>((at - pos) % 4 * 8);
  }
  return sum;
}

void CFontData::CreateCheckSumAdjustment(int pos) {
  WriteUIntAtPos(pos, 0xB1B0AFBAU - GetLongCheckSum(0, m_iLength));
}

int CFontData::CalcMaxPow2(int n) const {
  int counter = 1;
  for (long long value = 2; value < n; value *= 2) ++counter;
  return counter - 1;
}

int CFontData::Log2(int n) const {
  // A number without a logarithm gives the lowest int, on every machine.
  return n > 0 ? static_cast<int>(std::log(n) / std::log(2.0)) : INT_MIN;
}
