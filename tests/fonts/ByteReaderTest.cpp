#include "fonts/ByteReader.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>

namespace {

using zeb::ByteReader;

constexpr std::array<unsigned char, 8> kBytes = {0x81, 0x92, 0xA3, 0xB4, 0x05, 0x16, 0x27, 0x38};

ByteReader Reader() { return {kBytes.data(), std::ssize(kBytes)}; }

TEST(ByteReader, ReadsBigEndianNumbers) {
  ByteReader reader = Reader();
  std::uint16_t u16 = 0;
  std::uint32_t u32 = 0;
  EXPECT_TRUE(reader.ReadU16BE(u16));
  EXPECT_EQ(u16, 0x8192);
  EXPECT_TRUE(reader.ReadU32BE(u32));
  EXPECT_EQ(u32, 0xA3B40516U);
  EXPECT_EQ(reader.Offset(), 6U);
  EXPECT_EQ(reader.Left(), 2U);
}

TEST(ByteReader, ReadsLittleEndianNumbers) {
  ByteReader reader = Reader();
  std::uint16_t u16 = 0;
  std::uint32_t u32 = 0;
  EXPECT_TRUE(reader.ReadU16LE(u16));
  EXPECT_EQ(u16, 0x9281);
  EXPECT_TRUE(reader.ReadU32LE(u32));
  EXPECT_EQ(u32, 0x1605B4A3U);
}

TEST(ByteReader, ReadsSignedNumbers) {
  std::int8_t s8 = 0;
  std::int16_t s16 = 0;
  std::int32_t s32 = 0;
  ByteReader bytes = Reader();
  EXPECT_TRUE(bytes.ReadS8(s8));
  EXPECT_EQ(s8, -127);
  EXPECT_TRUE(bytes.ReadS16BE(s16));
  EXPECT_EQ(s16, -0x6D5D);  // 0x92A3
  ByteReader words = Reader();
  EXPECT_TRUE(words.ReadS16LE(s16));
  EXPECT_EQ(s16, -0x6D7F);  // 0x9281
  ByteReader big = Reader();
  EXPECT_TRUE(big.ReadS32BE(s32));
  EXPECT_EQ(s32, -0x7E6D5C4C);  // 0x8192A3B4
  ByteReader little = Reader();
  EXPECT_TRUE(little.ReadS32LE(s32));
  EXPECT_EQ(s32, -0x4B5C6D7F);  // 0xB4A39281
}

TEST(ByteReader, ReadsBytesAndTriples) {
  ByteReader reader = Reader();
  std::uint8_t u8 = 0;
  std::uint32_t u24 = 0;
  EXPECT_TRUE(reader.ReadU8(u8));
  EXPECT_EQ(u8, 0x81);
  EXPECT_TRUE(reader.ReadU24BE(u24));
  EXPECT_EQ(u24, 0x92A3B4U);
}

TEST(ByteReader, AReadPastTheEndFailsAndMovesNothing) {
  ByteReader reader = Reader();
  ASSERT_TRUE(reader.Seek(7));
  std::uint16_t u16 = 5;
  std::uint32_t u32 = 6;
  std::int16_t s16 = 7;
  std::int32_t s32 = 8;
  EXPECT_FALSE(reader.ReadU16BE(u16));
  EXPECT_FALSE(reader.ReadU16LE(u16));
  EXPECT_FALSE(reader.ReadU24BE(u32));
  EXPECT_FALSE(reader.ReadU32BE(u32));
  EXPECT_FALSE(reader.ReadU32LE(u32));
  EXPECT_FALSE(reader.ReadS16BE(s16));
  EXPECT_FALSE(reader.ReadS16LE(s16));
  EXPECT_FALSE(reader.ReadS32BE(s32));
  EXPECT_FALSE(reader.ReadS32LE(s32));
  EXPECT_EQ(u16, 5);
  EXPECT_EQ(u32, 6U);
  EXPECT_EQ(s16, 7);
  EXPECT_EQ(s32, 8);
  EXPECT_EQ(reader.Offset(), 7U);
  std::uint8_t u8 = 0;
  std::int8_t s8 = 9;
  EXPECT_TRUE(reader.ReadU8(u8));
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_FALSE(reader.ReadU8(u8));
  EXPECT_FALSE(reader.ReadS8(s8));
  EXPECT_EQ(u8, 0x38);
  EXPECT_EQ(s8, 9);
}

TEST(ByteReader, SeekAndSkipReachTheEndAndNoFurther) {
  ByteReader reader = Reader();
  EXPECT_TRUE(reader.Seek(8));
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_FALSE(reader.Seek(9));
  EXPECT_EQ(reader.Offset(), 8U);
  EXPECT_TRUE(reader.Seek(2));
  EXPECT_TRUE(reader.Skip(6));
  EXPECT_TRUE(reader.Skip(0));
  EXPECT_FALSE(reader.Skip(1));
}

TEST(ByteReader, CountsThatWouldOverflowFail) {
  constexpr auto kHuge = std::numeric_limits<std::size_t>::max();
  ByteReader reader = Reader();
  ByteReader part;
  std::span<const std::byte> bytes;
  ASSERT_TRUE(reader.Seek(4));
  EXPECT_FALSE(reader.Skip(kHuge));
  EXPECT_FALSE(reader.Skip(kHuge - 3));
  EXPECT_FALSE(reader.ReadSpan(kHuge, bytes));
  EXPECT_FALSE(reader.Part(4, kHuge - 3, part));
  EXPECT_FALSE(reader.Part(kHuge, 1, part));
  EXPECT_EQ(reader.Offset(), 4U);
}

TEST(ByteReader, SpansAndPartsShowTheBytes) {
  ByteReader reader = Reader();
  std::span<const std::byte> bytes;
  ASSERT_TRUE(reader.ReadSpan(3, bytes));
  EXPECT_EQ(bytes.size(), 3U);
  EXPECT_EQ(bytes[2], std::byte{0xA3});
  ByteReader part;
  ASSERT_TRUE(reader.Part(1, 2, part));
  EXPECT_EQ(part.Size(), 2U);
  std::uint16_t value = 0;
  EXPECT_TRUE(part.ReadU16BE(value));
  EXPECT_EQ(value, 0x92A3);
  EXPECT_TRUE(part.AtEnd());
  EXPECT_TRUE(reader.Part(8, 0, part));
  EXPECT_FALSE(reader.Part(8, 1, part));
}

TEST(ByteReader, NothingIsReadFromNothing) {
  ByteReader none;
  ByteReader null(nullptr, 0);
  ByteReader negative(kBytes.data(), -1);
  std::uint8_t value = 0;
  for (ByteReader* reader : {&none, &null, &negative}) {
    EXPECT_EQ(reader->Size(), 0U);
    EXPECT_FALSE(reader->ReadU8(value));
    EXPECT_TRUE(reader->AtEnd());
  }
}

}  // namespace
