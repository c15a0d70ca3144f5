#pragma once

#include "platform/Export.h"

#include <cstddef>
#include <memory>

class CFontInformation;

namespace zeb {
class TrueTypeReader;
int BytesFromSystem(const CFontInformation& font);
}  // namespace zeb

/// A growing block of bytes with a cursor. It holds a font program (or a picture) as read, is parsed in place
/// with big-endian readers, and is the target into which a subset font program is assembled.
///
/// Length, capacity and cursor change independently of each other, as each operation says. Reads never leave
/// the block: a byte that is not there reads as zero. The block starts zeroed and grows zeroed.
///
/// Errors: "NoMoreMemoryLeft" if the block cannot be made or cannot grow.
class ZEB_EXPORT CFontData {
 public:
  /// Unit of growth and first capacity are 65,535 bytes.
  /// @param growing whether Seek and Skip extend the content (a buffer that is being written)
  explicit CFontData(bool growing);
  /// @param chunk unit of growth and first capacity in bytes; below 1 counts as 1
  /// @param growing whether Seek and Skip extend the content
  CFontData(int chunk, bool growing);
  /// Copies every field and shares the block: both objects would free it, so only one of them may be
  /// destroyed.
  CFontData(const CFontData& other);
  virtual ~CFontData();
  /// As the copy constructor. The block that this object held is not freed.
  CFontData& operator=(const CFontData& other);

  /// Appends up to `count` bytes from an open file that can seek; the length grows by what the file gave. The
  /// cursor stays.
  void AddFontData(int fileHandle, int count);
  /// Appends `count` bytes from memory outside of this block. The cursor stays.
  void AddFontMemData(void* data, int count);
  /// The block; valid until it grows.
  unsigned char* GetData() const;
  /// Bytes of content.
  int GetLength() const;

  /// The three segment lengths of a Type 1 font program, in bytes; 0 at the start.
  int GetLength1() const;
  int GetLength2() const;
  int GetLength3() const;
  void SetLength1(int length);
  void SetLength2(int length);
  void SetLength3(int length);
  void AddToLength1(int count);
  void AddToLength2(int count);
  void AddToLength3(int count);

  /// Moves the cursor to the start.
  void ResetFontPos();
  /// The cursor's offset.
  int Tell() const;
  /// Moves the cursor to an offset. A growing buffer makes room for it and its length rises to it.
  void Seek(int pos);
  /// Moves the cursor on by `count`. A growing buffer makes room and its length grows by `count`,
  /// wherever the cursor stood.
  void Skip(int count);

  /// Copies bytes from the cursor on, which moves behind them.
  void ReadBytes(void* buffer, int count);
  /// Big-endian numbers at the cursor, which moves behind them.
  short GetShort();
  unsigned short GetUShort();
  int GetInt();
  unsigned int GetUInt();
  /// Big-endian numbers at an offset; the cursor stays.
  short GetShortAtPos(int pos) const;
  unsigned short GetUShortAtPos(int pos) const;

  /// Stores at the cursor; cursor and length grow by what was stored. Numbers are big-endian.
  void WriteByte(unsigned char value);
  /// @param data memory outside of this block, which may move
  void WriteBytes(void* data, int count);
  void WriteUShort(unsigned short value);
  void WriteUInt(unsigned int value);
  /// Makes room for an offset and stores there, big-endian; cursor and length stay.
  void WriteByteAtPos(int pos, unsigned char value);
  void WriteUShortAtPos(int pos, unsigned short value);
  void WriteUIntAtPos(int pos, unsigned int value);
  /// Writes `count` bytes from `pos` of this block to the target, at the target's cursor.
  void CopyBytesAtPos(int pos, int count, CFontData* target);

  /// Stores as many zero bytes at the cursor as the length exceeds a multiple of 4 by; cursor and length
  /// grow.
  void CreatePad4();
  /// The 32-bit wrapping sum of little-endian words from `pos` on. A count that is not a multiple of 4
  /// is raised by its remainder and then rounded up to a multiple of 4.
  unsigned int GetLongCheckSum(int pos, int count) const;
  /// Stores 0xB1B0AFBA less the check sum of the whole content at `pos`, big-endian.
  void CreateCheckSumAdjustment(int pos);
  /// The largest exponent of a power of two that lies below `n`; 0 for every `n` up to 2: 9 gives 3, 8 gives 2.
  int CalcMaxPow2(int n) const;
  /// The binary logarithm, truncated.
  int Log2(int n) const;

 protected:
  /// Makes room for `count` bytes behind the content: if they exceed the capacity, it grows by
  /// count / chunk + 1 chunks.
  void ReAllocFontData(int count);
  /// Makes room for `count` bytes at `pos`: if they exceed the capacity, it grows by
  /// (pos + count) / chunk + 1 chunks.
  void ReAllocFontDataPos(int pos, int count);

  unsigned char* m_pBuffer;  // owned, shared by copies; not from malloc if it has a keeper
  int m_iLength;
  int m_iCapacity;
  int m_iChunkSize;
  int m_iLength1;
  int m_iLength2;
  int m_iLength3;
  int m_iPos;
  bool m_bGrowing;

 private:
  friend class zeb::TrueTypeReader;
  friend class CFontMetrics;
  friend int zeb::BytesFromSystem(const CFontInformation& font);

  /// As much as the growth of a new object can leave behind the content.
  static constexpr std::size_t kZerosBehindContent = std::size_t{2} * 65535;

  void Resize(long long chunks);
  void Grow(long long chunks);
  /// Adds bytes of any value to the content, which the caller fills in place at once; gives the first one.
  unsigned char* ExtendContent(int count);
  /// Makes bytes the content, as if they had been added. They stay where they are if this object is as new.
  /// @param keeper keeps the bytes and kZerosBehindContent zeros behind them
  void AdoptContent(std::shared_ptr<void> keeper, unsigned char* bytes, int count);
  void MakeRoomAtCursor(int count);
  unsigned int BigEndianAt(long long pos, int count) const;
  void WriteBigEndianAtPos(int pos, unsigned int value, int count);
  void CopyOut(int pos, int count, unsigned char* target) const;
  void MoveCursor(long long pos);

  std::shared_ptr<void>* m_pKeeper = nullptr;  // owned, shared by copies; of the block, if that was adopted
};
