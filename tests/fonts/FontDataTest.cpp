#include "fonts/FontData.h"

#include "foundation/KXException.h"
#include "support/RaisedKey.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

namespace {

/// Shows what is protected.
class OpenFontData : public CFontData {
 public:
  using CFontData::CFontData;
  using CFontData::ReAllocFontData;
  using CFontData::ReAllocFontDataPos;

  int Capacity() const { return m_iCapacity; }
};

using Bytes = std::vector<unsigned char>;

Bytes Content(const CFontData& data) { return {data.GetData(), data.GetData() + data.GetLength()}; }

void Append(CFontData& data, Bytes bytes) {
  data.AddFontMemData(bytes.data(), static_cast<int>(bytes.size()));
}

Bytes Counting(int count) {
  Bytes bytes(static_cast<std::size_t>(count));
  std::iota(bytes.begin(), bytes.end(), static_cast<unsigned char>(1));
  return bytes;
}

/// An open file with these bytes.
class OpenFile {
 public:
  explicit OpenFile(const std::string& bytes) : m_pFile(std::tmpfile()) {
    std::fwrite(bytes.data(), 1, bytes.size(), m_pFile);
    std::rewind(m_pFile);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { std::fclose(m_pFile); }

  int Handle() const { return fileno(m_pFile); }

 private:
  std::FILE* m_pFile;  // owned
};

TEST(FontData, StartsEmptyWithTheDefaultChunk) {
  const OpenFontData data(false);
  EXPECT_EQ(data.Capacity(), 65535);
  EXPECT_EQ(data.GetLength(), 0);
  EXPECT_EQ(data.Tell(), 0);
  EXPECT_EQ(data.GetLength1(), 0);
  EXPECT_EQ(data.GetLength2(), 0);
  EXPECT_EQ(data.GetLength3(), 0);
  EXPECT_NE(data.GetData(), nullptr);
}

TEST(FontData, StartsWithTheChunkThatIsGiven) { EXPECT_EQ(OpenFontData(10, true).Capacity(), 10); }

TEST(FontData, AChunkBelowOneCountsAsOne) {
  EXPECT_EQ(OpenFontData(0, true).Capacity(), 1);
  EXPECT_EQ(OpenFontData(-7, true).Capacity(), 1);
}

TEST(FontData, OneByteMoreThanTheCapacityGrowsByOneChunkAndKeepsTheCursor) {
  OpenFontData data(4, true);
  for (unsigned char byte = 1; byte <= 4; ++byte) data.WriteByte(byte);
  EXPECT_EQ(data.Capacity(), 4);
  EXPECT_EQ(data.Tell(), 4);
  data.WriteByte(5);
  EXPECT_EQ(data.Capacity(), 8);
  EXPECT_EQ(data.Tell(), 5);
  EXPECT_EQ(Content(data), Counting(5));
}

TEST(FontData, GrowsByWholeChunksOfTheCount) {
  OpenFontData data(10, false);
  data.ReAllocFontData(10);
  EXPECT_EQ(data.Capacity(), 10);
  data.ReAllocFontData(11);  // 11 / 10 + 1 chunks
  EXPECT_EQ(data.Capacity(), 30);
  data.ReAllocFontData(40);  // 40 / 10 + 1 chunks
  EXPECT_EQ(data.Capacity(), 80);
}

TEST(FontData, WhatIsAppendedGrowsByWholeChunksOfZeros) {
  OpenFontData data(10, false);
  Append(data, Counting(12));  // 12 / 10 + 1 chunks
  EXPECT_EQ(data.Capacity(), 30);
  EXPECT_EQ(data.GetUShortAtPos(12), 0);
  EXPECT_EQ(data.GetUShortAtPos(28), 0);
  OpenFontData fresh(10, false);
  Append(fresh, Counting(25));  // 25 / 10 + 1 chunks
  EXPECT_EQ(fresh.Capacity(), 40);
  EXPECT_EQ(Content(fresh), Counting(25));
}

TEST(FontData, FixedRoomIsCountedFromTheLengthAndNotFromTheCursor) {
  OpenFontData data(10, false);
  Append(data, Counting(8));
  EXPECT_EQ(data.Tell(), 0);
  data.ReAllocFontData(2);
  EXPECT_EQ(data.Capacity(), 10);
  data.ReAllocFontData(3);
  EXPECT_EQ(data.Capacity(), 20);
}

TEST(FontData, GrowthForAPositionCountsThePositionIn) {
  OpenFontData data(10, false);
  data.ReAllocFontDataPos(6, 4);
  EXPECT_EQ(data.Capacity(), 10);
  data.ReAllocFontDataPos(7, 4);  // 11 / 10 + 1 chunks
  EXPECT_EQ(data.Capacity(), 30);
  data.ReAllocFontDataPos(30, 0);
  EXPECT_EQ(data.Capacity(), 30);
  data.ReAllocFontDataPos(31, 0);  // 31 / 10 + 1 chunks
  EXPECT_EQ(data.Capacity(), 70);
}

TEST(FontData, AppendsFromMemoryWithoutMovingTheCursor) {
  CFontData data(4, false);
  Append(data, {1, 2, 3});
  Append(data, {4, 5, 6});
  EXPECT_EQ(data.Tell(), 0);
  EXPECT_EQ(Content(data), Counting(6));
}

TEST(FontData, AppendingNothingChangesNothing) {
  OpenFontData data(4, false);
  unsigned char byte = 1;
  data.AddFontMemData(&byte, 0);
  data.AddFontMemData(&byte, -1);
  data.AddFontMemData(nullptr, 5);
  EXPECT_EQ(data.GetLength(), 0);
  EXPECT_EQ(data.Capacity(), 4);
}

TEST(FontData, AppendsFromAFileAtItsPosition) {
  const OpenFile file("abcdefgh");
  CFontData data(4, false);
  data.AddFontData(file.Handle(), 3);
  data.AddFontData(file.Handle(), 2);
  EXPECT_EQ(data.GetLength(), 5);
  EXPECT_EQ(data.Tell(), 0);
  EXPECT_EQ(Content(data), (Bytes{'a', 'b', 'c', 'd', 'e'}));
}

// An attack: a length in a file that no file could hold.
TEST(FontData, OfAFileOnlyWhatIsThereCounts) {
  const OpenFile file("abc");
  OpenFontData data(10, false);
  data.AddFontData(file.Handle(), INT_MAX);
  EXPECT_EQ(data.GetLength(), 3);
  EXPECT_EQ(data.Capacity(), 10);
  data.AddFontData(file.Handle(), 5);
  data.AddFontData(file.Handle(), -5);
  data.AddFontData(-1, 5);
  EXPECT_EQ(data.GetLength(), 3);
}

TEST(FontData, KeepsTheSegmentLengths) {
  CFontData data(false);
  data.SetLength1(10);
  data.SetLength2(20);
  data.SetLength3(30);
  data.AddToLength1(1);
  data.AddToLength2(2);
  data.AddToLength3(3);
  EXPECT_EQ(data.GetLength1(), 11);
  EXPECT_EQ(data.GetLength2(), 22);
  EXPECT_EQ(data.GetLength3(), 33);
}

TEST(FontData, ReadsBigEndianNumbersAtTheCursor) {
  CFontData data(false);
  Append(data, {0x80, 0x01, 0xFF, 0xFE, 0x12, 0x34, 0x56, 0x78, 0xFF, 0xFF, 0xFF, 0xFD});
  EXPECT_EQ(data.GetUShort(), 0x8001);
  EXPECT_EQ(data.GetShort(), -2);
  EXPECT_EQ(data.Tell(), 4);
  EXPECT_EQ(data.GetUInt(), 0x12345678U);
  EXPECT_EQ(data.GetInt(), -3);
  EXPECT_EQ(data.Tell(), 12);
  data.ResetFontPos();
  EXPECT_EQ(data.Tell(), 0);
  EXPECT_EQ(data.GetShort(), -32767);
}

TEST(FontData, ReadsAtAnOffsetWithoutMovingTheCursor) {
  CFontData data(false);
  Append(data, {1, 2, 0xFF, 0xFE});
  data.Seek(1);
  EXPECT_EQ(data.GetUShortAtPos(2), 0xFFFE);
  EXPECT_EQ(data.GetShortAtPos(2), -2);
  EXPECT_EQ(data.GetUShortAtPos(0), 0x0102);
  EXPECT_EQ(data.Tell(), 1);
}

TEST(FontData, ReadsBytesAndMovesTheCursor) {
  CFontData data(false);
  Append(data, Counting(6));
  data.Seek(2);
  Bytes read(3);
  data.ReadBytes(read.data(), 3);
  EXPECT_EQ(read, (Bytes{3, 4, 5}));
  EXPECT_EQ(data.Tell(), 5);
  data.ReadBytes(read.data(), 0);
  data.ReadBytes(read.data(), -1);
  EXPECT_EQ(data.Tell(), 5);
}

TEST(FontData, WhatIsNotThereReadsAsZero) {
  CFontData data(2, false);
  Append(data, {0xAB, 0xCD});
  EXPECT_EQ(data.GetUShortAtPos(1), 0xCD00);
  EXPECT_EQ(data.GetUShortAtPos(-1), 0x00AB);
  EXPECT_EQ(data.GetUShortAtPos(INT_MAX), 0);
  EXPECT_EQ(data.GetUShortAtPos(INT_MIN), 0);
  data.Seek(-1);
  EXPECT_EQ(data.GetUInt(), 0x00ABCD00U);
  EXPECT_EQ(data.Tell(), 3);
  data.Seek(INT_MAX);
  EXPECT_EQ(data.GetUInt(), 0U);
  EXPECT_EQ(data.Tell(), INT_MAX);
  Bytes read(6, 9);
  data.Seek(-2);
  data.ReadBytes(read.data(), 6);
  EXPECT_EQ(read, (Bytes{0, 0, 0xAB, 0xCD, 0, 0}));
}

TEST(FontData, SeekAndSkipOnlyMoveTheCursorOfABufferThatDoesNotGrow) {
  OpenFontData data(4, false);
  Append(data, Counting(2));
  data.Seek(100);
  EXPECT_EQ(data.Tell(), 100);
  data.Skip(20);
  EXPECT_EQ(data.Tell(), 120);
  data.Skip(-119);
  EXPECT_EQ(data.Tell(), 1);
  EXPECT_EQ(data.GetLength(), 2);
  EXPECT_EQ(data.Capacity(), 4);
}

TEST(FontData, SeekExtendsAGrowingBuffer) {
  OpenFontData data(4, true);
  data.Seek(4);
  EXPECT_EQ(data.Capacity(), 4);
  EXPECT_EQ(data.GetLength(), 4);
  data.Seek(5);  // 5 / 4 + 1 chunks
  EXPECT_EQ(data.Capacity(), 12);
  EXPECT_EQ(data.GetLength(), 5);
  data.Seek(1);
  EXPECT_EQ(data.GetLength(), 5);
  EXPECT_EQ(data.Tell(), 1);
}

TEST(FontData, SkipExtendsAGrowingBuffer) {
  OpenFontData data(4, true);
  data.Skip(6);  // 6 / 4 + 1 chunks
  EXPECT_EQ(data.Capacity(), 12);
  EXPECT_EQ(data.GetLength(), 6);
  EXPECT_EQ(data.Tell(), 6);
  EXPECT_EQ(Content(data), Bytes(6));
}

TEST(FontData, FixedSkipOverBytesOfTheContentAddsToTheLength) {
  CFontData data(true);
  data.WriteUInt(0x01020304);
  data.Seek(0);
  data.Skip(3);
  EXPECT_EQ(data.Tell(), 3);
  EXPECT_EQ(data.GetLength(), 7);
}

TEST(FontData, WritesBigEndianNumbersAtTheCursor) {
  CFontData data(true);
  Bytes block = {7, 8};
  data.WriteByte(1);
  data.WriteUShort(0x0203);
  data.WriteUInt(0xF4F5F6F7);
  data.WriteBytes(block.data(), 2);
  EXPECT_EQ(Content(data), (Bytes{1, 2, 3, 0xF4, 0xF5, 0xF6, 0xF7, 7, 8}));
  EXPECT_EQ(data.Tell(), 9);
}

TEST(FontData, FixedWritingOverBytesOfTheContentAddsToTheLength) {
  CFontData data(true);
  data.WriteUInt(0x01020304);
  data.Seek(1);
  data.WriteByte(9);
  EXPECT_EQ(data.Tell(), 2);
  EXPECT_EQ(data.GetLength(), 5);
  EXPECT_EQ(Content(data), (Bytes{1, 9, 3, 4, 0}));
}

TEST(FontData, WritingAtAPositionLeavesCursorAndLength) {
  OpenFontData data(4, true);
  data.WriteUInt(0);
  data.WriteUIntAtPos(20, 0x01020304);  // 24 / 4 + 1 chunks
  EXPECT_EQ(data.Capacity(), 32);
  EXPECT_EQ(data.GetLength(), 4);
  EXPECT_EQ(data.Tell(), 4);
  data.WriteUShortAtPos(1, 0x0506);
  data.WriteByteAtPos(3, 7);
  EXPECT_EQ(Content(data), (Bytes{0, 5, 6, 7}));
  data.Seek(24);
  EXPECT_EQ(data.GetLength(), 24);
  EXPECT_EQ(data.GetUShortAtPos(22), 0x0304);
}

TEST(FontData, WritingBeforeTheStartStoresNothing) {
  CFontData data(true);
  data.WriteUIntAtPos(-1, 0xFFFFFFFF);
  data.WriteByteAtPos(INT_MIN, 0xFF);
  EXPECT_EQ(data.GetUShortAtPos(0), 0);
  EXPECT_EQ(data.GetLength(), 0);
}

TEST(FontData, WritingAtACursorBehindTheContentStaysInTheBlock) {
  CFontData data(4, false);
  data.Seek(100);
  data.WriteByte(7);
  EXPECT_EQ(data.Tell(), 101);
  EXPECT_EQ(data.GetLength(), 1);
  EXPECT_EQ(data.GetUShortAtPos(99), 7);
}

TEST(FontData, CopiesBytesToTheCursorOfTheTarget) {
  CFontData source(false);
  Append(source, Counting(6));
  CFontData target(true);
  target.WriteByte(9);
  source.CopyBytesAtPos(2, 3, &target);
  EXPECT_EQ(Content(target), (Bytes{9, 3, 4, 5}));
  EXPECT_EQ(target.Tell(), 4);
  EXPECT_EQ(source.Tell(), 0);
  source.CopyBytesAtPos(2, 0, &target);
  source.CopyBytesAtPos(2, -4, &target);
  EXPECT_EQ(target.GetLength(), 4);
}

TEST(FontData, CopiesIntoItselfAcrossAGrowth) {
  CFontData data(4, true);
  data.WriteUInt(0x01020304);
  data.CopyBytesAtPos(0, 4, &data);
  EXPECT_EQ(Content(data), (Bytes{1, 2, 3, 4, 1, 2, 3, 4}));
}

TEST(FontData, CopiesIntoItselfWhereBothOverlap) {
  CFontData forward(true);
  Bytes block = Counting(6);
  forward.WriteBytes(block.data(), 6);
  forward.Seek(2);
  forward.CopyBytesAtPos(0, 4, &forward);
  EXPECT_EQ(Content(forward), (Bytes{1, 2, 1, 2, 3, 4, 0, 0, 0, 0}));
  CFontData backward(true);
  backward.WriteBytes(block.data(), 6);
  backward.Seek(0);
  backward.CopyBytesAtPos(2, 4, &backward);
  EXPECT_EQ(Content(backward), (Bytes{3, 4, 5, 6, 5, 6, 0, 0, 0, 0}));
}

TEST(FontData, CopiesIntoItselfWithZeroForWhatIsNotThere) {
  CFontData before(true);
  before.WriteUInt(0x01020304);
  before.Seek(0);
  before.CopyBytesAtPos(-2, 4, &before);
  EXPECT_EQ(Content(before), (Bytes{0, 0, 1, 2, 0, 0, 0, 0}));
  CFontData behind(4, true);
  behind.WriteUInt(0x01020304);
  behind.CopyBytesAtPos(3, 3, &behind);
  EXPECT_EQ(Content(behind), (Bytes{1, 2, 3, 4, 4, 0, 0}));
}

TEST(FontData, CopiesIntoItselfInFrontOfTheStartAreNotStored) {
  CFontData data(false);
  Append(data, Counting(4));
  data.Seek(-3);
  data.CopyBytesAtPos(0, 2, &data);
  EXPECT_EQ(data.Tell(), -1);
  EXPECT_EQ(Content(data), (Bytes{1, 2, 3, 4, 0, 0}));
}

TEST(FontData, CopiesZeroForWhatIsNotThere) {
  CFontData source(2, false);
  Append(source, {1, 2});
  CFontData target(true);
  source.CopyBytesAtPos(1, 3, &target);
  source.CopyBytesAtPos(-2, 3, &target);
  source.CopyBytesAtPos(500, 1, &target);
  source.CopyBytesAtPos(-500, 1, &target);
  EXPECT_EQ(Content(target), (Bytes{2, 0, 0, 0, 0, 1, 0, 0}));
}

TEST(FontData, FixedPaddingIsTheRemainder) {
  for (const auto& [length, padded] :
       std::vector<std::pair<int, int>>{{0, 0}, {3, 6}, {4, 4}, {5, 6}, {6, 8}, {7, 10}, {8, 8}}) {
    CFontData data(true);
    data.Seek(length);
    data.CreatePad4();
    EXPECT_EQ(data.GetLength(), padded) << length;
    EXPECT_EQ(data.Tell(), padded) << length;
  }
}

TEST(FontData, PaddingStoresZerosAtTheCursor) {
  CFontData data(true);
  Bytes block = {1, 2, 3, 4, 5, 6};
  data.WriteBytes(block.data(), 6);
  data.Seek(1);
  data.CreatePad4();
  EXPECT_EQ(data.Tell(), 3);
  EXPECT_EQ(Content(data), (Bytes{1, 0, 0, 4, 5, 6, 0, 0}));
}

TEST(FontData, PaddingAtTheCapacityStaysInTheBlock) {
  OpenFontData data(7, true);
  data.Seek(7);
  data.CreatePad4();
  EXPECT_EQ(data.GetLength(), 10);
  EXPECT_GE(data.Capacity(), 10);
}

TEST(FontData, FixedCheckSumsAreLittleEndianWithTheRemainderAddedFirst) {
  CFontData data(false);
  Append(data, {1, 0, 0, 0, 0x10, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0});
  EXPECT_EQ(data.GetLongCheckSum(0, 0), 0U);
  EXPECT_EQ(data.GetLongCheckSum(0, 4), 1U);
  EXPECT_EQ(data.GetLongCheckSum(0, 1), 1U);      // 2 rounds up to one word
  EXPECT_EQ(data.GetLongCheckSum(0, 2), 1U);      // 4
  EXPECT_EQ(data.GetLongCheckSum(0, 3), 0x11U);   // 6 rounds up to two words
  EXPECT_EQ(data.GetLongCheckSum(0, 5), 0x11U);   // 6
  EXPECT_EQ(data.GetLongCheckSum(0, 6), 0x11U);   // 8
  EXPECT_EQ(data.GetLongCheckSum(0, 7), 0x111U);  // 10 rounds up to three words
  EXPECT_EQ(data.GetLongCheckSum(0, 8), 0x11U);
  EXPECT_EQ(data.GetLongCheckSum(4, 12), 0x10110U);
  EXPECT_EQ(data.GetLongCheckSum(0, -4), 0U);
}

TEST(FontData, CheckSumsWrapAt32Bits) {
  CFontData data(false);
  Append(data, {0xFF, 0xFF, 0xFF, 0xFF, 2, 0, 0, 0});
  EXPECT_EQ(data.GetLongCheckSum(0, 8), 1U);
}

TEST(FontData, CheckSumsTakeZeroForWhatIsNotThere) {
  CFontData data(5, false);
  Append(data, {1, 0, 0, 0, 2});
  EXPECT_EQ(data.GetLongCheckSum(0, 5), 3U);
  EXPECT_EQ(data.GetLongCheckSum(0, INT_MAX), 3U);
  EXPECT_EQ(data.GetLongCheckSum(INT_MAX, INT_MAX), 0U);
  EXPECT_EQ(data.GetLongCheckSum(-4, 8), 1U);
}

TEST(FontData, CheckSumsTakeInWhatWasWrittenBehindTheLength) {
  CFontData data(true);
  data.WriteUShortAtPos(2, 0x0304);
  EXPECT_EQ(data.GetLength(), 0);
  EXPECT_EQ(data.GetLongCheckSum(0, 4), 0x04030000U);
}

TEST(FontData, TheAdjustmentIsStoredBigEndian) {
  CFontData data(true);
  data.WriteUInt(0x01000000);  // little-endian 1
  data.WriteUInt(0);
  data.CreateCheckSumAdjustment(4);
  EXPECT_EQ(Content(data), (Bytes{1, 0, 0, 0, 0xB1, 0xB0, 0xAF, 0xB9}));
}

TEST(FontData, FixedMaxPow2OfAPowerOfTwoIsOneLess) {
  const CFontData data(false);
  for (const auto& [n, expected] : std::vector<std::pair<int, int>>{
           {INT_MIN, 0}, {0, 0}, {1, 0}, {2, 0}, {3, 1}, {4, 1}, {5, 2}, {8, 2}, {9, 3}, {INT_MAX, 30}}) {
    EXPECT_EQ(data.CalcMaxPow2(n), expected) << n;
  }
}

TEST(FontData, LogarithmsAreTruncated) {
  const CFontData data(false);
  for (const auto& [n, expected] : std::vector<std::pair<int, int>>{
           {1, 0}, {2, 1}, {3, 1}, {4, 2}, {8, 3}, {9, 3}, {1023, 9}, {1024, 10}, {1 << 30, 30}}) {
    EXPECT_EQ(data.Log2(n), expected) << n;
  }
  EXPECT_EQ(data.Log2(0), INT_MIN);
  EXPECT_EQ(data.Log2(-1), INT_MIN);
}

TEST(FontData, GrowthBeyondTheLargestIntegerIsRefused) {
  OpenFontData data(4, true);
  data.WriteUInt(7);
  EXPECT_THROW(data.WriteUIntAtPos(INT_MAX, 0), CKXException);
  EXPECT_THROW(data.Seek(INT_MAX), CKXException);
  EXPECT_THROW(data.ReAllocFontData(INT_MAX), CKXException);
  EXPECT_EQ(data.Capacity(), 4);
  EXPECT_EQ(data.GetLength(), 4);
  EXPECT_EQ(data.Tell(), 4);
}

TEST(FontData, GrowthThatIsRefusedRaisesItsKey) {
  OpenFontData data(4, true);
  Append(data, Counting(4));
  const std::wstring key = L"NoMoreMemoryLeft";
  EXPECT_EQ(zebtest::RaisedKey([&] { data.Seek(INT_MAX); }), key);
  EXPECT_EQ(zebtest::RaisedKey([&] { data.Skip(INT_MAX); }), key);
  EXPECT_EQ(zebtest::RaisedKey([&] { data.WriteUIntAtPos(INT_MAX, 0); }), key);
  EXPECT_EQ(zebtest::RaisedKey([&] { data.ReAllocFontData(INT_MAX); }), key);
  EXPECT_EQ(zebtest::RaisedKey([&] { data.ReAllocFontDataPos(INT_MAX, 0); }), key);
  EXPECT_EQ(zebtest::RaisedKey([&] { data.CopyBytesAtPos(0, INT_MAX, &data); }), key);
  EXPECT_EQ(Content(data), Counting(4));
  try {
    data.Seek(INT_MAX);
  } catch (const CKXException& exception) {
    EXPECT_EQ(exception.GetErrorNr(), 1001);
  }
}

TEST(FontData, FixedCopiesShareTheBlock) {
  CFontData source(true);
  source.WriteUInt(0x01020304);
  source.SetLength1(5);
  // Only one of them may be destroyed; the memory of the copies is released without their destructors.
  alignas(CFontData) std::byte copyRoom[sizeof(CFontData)];
  alignas(CFontData) std::byte assignedRoom[sizeof(CFontData)];
  const CFontData* copy = new (copyRoom) CFontData(source);
  auto* assigned = new (assignedRoom) CFontData(true);
  const std::unique_ptr<CFontData> former(new CFontData(*assigned));
  *assigned = source;
  for (const CFontData* shared : {copy, static_cast<const CFontData*>(assigned)}) {
    EXPECT_EQ(shared->GetData(), source.GetData());
    EXPECT_EQ(shared->GetLength(), 4);
    EXPECT_EQ(shared->Tell(), 4);
    EXPECT_EQ(shared->GetLength1(), 5);
  }
}

}  // namespace
