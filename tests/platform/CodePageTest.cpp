#include "platform/CodePage.h"

#include "support/ScopedEnvironment.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

// The expected characters are those of Python's codecs of the same pages (cp1252, johab, mac_greek, ...), which were
// made from the mapping files that the Unicode Consortium publishes. Hebrew and Thai Macintosh characters, which
// Python lacks, are from Apple's files there. scripts/tables/sum-code-pages prints the sums.
namespace {

using zeb::CodePage;

wchar_t CharacterOf(int page, unsigned char byte) { return CodePage::Of(page).Characters()[byte]; }

/// The characters of a pair; empty if the page does not have it.
std::wstring Pair(int page, unsigned char first, unsigned char second) {
  std::array<wchar_t, 2> characters = {};
  const int count = CodePage::Of(page).ConvertPair(first, second, characters);
  return {characters.data(), static_cast<std::size_t>(count)};
}

std::optional<std::wstring> Convert(int page, std::initializer_list<unsigned char> bytes) {
  return CodePage::Of(page).Convert(std::vector<unsigned char>(bytes));
}

TEST(CodePage, KnowsEverySingleBytePage) {
  struct Row {
    int page;
    unsigned char byte;
    int character;
  };
  constexpr Row kRows[] = {
      {437, 0x80, 0x00C7},   {437, 0xE1, 0x00DF},   {437, 0xDB, 0x2588},   {850, 0xE1, 0x00DF},
      {850, 0xD5, 0x0131},   {874, 0xA1, 0x0E01},   {874, 0x80, 0x20AC},   {874, 0xDF, 0x0E3F},
      {1250, 0xB9, 0x0105},  {1250, 0xE8, 0x010D},  {1250, 0x8A, 0x0160},  {1251, 0xC0, 0x0410},
      {1251, 0xFF, 0x044F},  {1251, 0x88, 0x20AC},  {1252, 0x80, 0x20AC},  {1252, 0xE4, 0x00E4},
      {1252, 0x9F, 0x0178},  {1253, 0xC1, 0x0391},  {1253, 0xFE, 0x03CE},  {1254, 0xF0, 0x011F},
      {1254, 0xDD, 0x0130},  {1255, 0xE0, 0x05D0},  {1255, 0xC0, 0x05B0},  {1255, 0xA4, 0x20AA},
      {1256, 0xC7, 0x0627},  {1256, 0xED, 0x064A},  {1257, 0xE0, 0x0105},  {1257, 0xDE, 0x017D},
      {1258, 0xCC, 0x0300},  {1258, 0xF0, 0x0111},  {1258, 0xFE, 0x20AB},  {10000, 0x80, 0x00C4},
      {10000, 0xDB, 0x20AC}, {10000, 0xF0, 0xF8FF}, {10004, 0xC7, 0x0627}, {10004, 0xAC, 0x060C},
      {10004, 0x8C, 0x00AB}, {10005, 0xE0, 0x05D0}, {10005, 0xFA, 0x05EA}, {10005, 0xA6, 0x20AA},
      {10006, 0xB5, 0x0392}, {10006, 0xE1, 0x03B1}, {10006, 0x9C, 0x20AC}, {10007, 0x80, 0x0410},
      {10007, 0xDF, 0x044F}, {10007, 0xFF, 0x20AC}, {10021, 0xA1, 0x0E01}, {10021, 0xDF, 0x0E3F},
      {10021, 0x80, 0x00AB}, {10029, 0x81, 0x0100}, {10029, 0x8B, 0x010D}, {10029, 0xFF, 0x02C7},
      {10081, 0xDA, 0x011E}, {10081, 0xDC, 0x0130}, {10081, 0xDE, 0x015E},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(CharacterOf(row.page, row.byte), static_cast<wchar_t>(row.character))
        << row.page << ' ' << int{row.byte};
    EXPECT_EQ(CharacterOf(row.page, 'A'), L'A') << row.page;
    EXPECT_EQ(Pair(row.page, row.byte, 'z'), std::wstring({static_cast<wchar_t>(row.character), L'z'}));
  }
}

TEST(CodePage, HasWholeSingleBytePagesAsPublished) {
  struct Row {
    int page;
    std::uint32_t sum;
  };
  constexpr Row kRows[] = {
      {437, 0x077C1EDCU},   {850, 0x03AC0C0BU},   {874, 0x049A3D83U},   {1250, 0x01993AB6U},
      {1251, 0x02946CA3U},  {1252, 0x0185A160U},  {1253, 0x023F35AFU},  {1254, 0x01864847U},
      {1255, 0x02AF3478U},  {1256, 0x02EBE9E3U},  {1257, 0x0193D170U},  {1258, 0x01AFD475U},
      {10000, 0x05FCE18CU}, {10004, 0x01BE2EC2U}, {10006, 0x02707FBFU}, {10007, 0x0335C0EAU},
      {10029, 0x0297CB10U}, {10081, 0x04CCC3F4U},
  };
  for (const Row& row : kRows) {
    std::uint32_t sum = 0;
    for (std::uint32_t byte = 0; byte < 256; ++byte)
      sum += byte * static_cast<std::uint32_t>(CharacterOf(row.page, static_cast<unsigned char>(byte)));
    EXPECT_EQ(sum, row.sum) << row.page;
  }
}

TEST(CodePage, KnowsEveryDoubleBytePage) {
  struct Row {
    int page;
    unsigned char lead;
    unsigned char trail;
    int character;
  };
  constexpr Row kRows[] = {
      {932, 0x83, 0x41, 0x30A2},  {932, 0x82, 0xA0, 0x3042},  {932, 0x93, 0xFA, 0x65E5},
      {932, 0xFB, 0xFC, 0x9AD9},  {936, 0xB0, 0xA1, 0x554A},  {936, 0xC4, 0xE3, 0x4F60},
      {936, 0x81, 0x40, 0x4E02},  {949, 0xB0, 0xA1, 0xAC00},  {949, 0xC7, 0xD1, 0xD55C},
      {949, 0x81, 0x41, 0xAC02},  {950, 0xA4, 0x40, 0x4E00},  {950, 0xA4, 0xA4, 0x4E2D},
      {950, 0xA1, 0x45, 0x2027},  {950, 0xA3, 0xE1, 0x20AC},  {1361, 0x88, 0x61, 0xAC00},
      {1361, 0xD0, 0x65, 0xD55C}, {1361, 0xD9, 0xBF, 0x2667}, {1361, 0x84, 0x42, 0x3131},
      {1361, 0x84, 0x59, 0x314A}, {1361, 0xE0, 0xA1, 0x5323},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(Pair(row.page, row.lead, row.trail), std::wstring(1, static_cast<wchar_t>(row.character)))
        << row.page << ' ' << int{row.lead} << ' ' << int{row.trail};
    EXPECT_EQ(CharacterOf(row.page, 'A'), L'A');
    EXPECT_EQ(CharacterOf(row.page, '\\'), L'\\') << row.page;
  }
}

TEST(CodePage, HasWholeDoubleBytePagesAsPublished) {
  struct Range {
    unsigned int first;
    unsigned int last;
  };
  struct Row {
    int page;
    int count;
    std::uint32_t sum;
    std::vector<Range> leads;
    Range leftOut;  // where Python and Windows differ
  };
  const Row rows[] = {
      {932, 9604, 0x0A0109E9U, {{0x81, 0x9F}, {0xE0, 0xFC}}, {1, 0}},
      {936, 21791, 0xB40574FFU, {{0x81, 0xFE}}, {1, 0}},
      {949, 17048, 0xA6045ECDU, {{0x81, 0xFE}}, {1, 0}},
      {950, 13503, 0x2BC72AF2U, {{0xA1, 0xF9}}, {0xC6A1, 0xC8FE}},
      {1361, 17065, 0x602CE2FCU, {{0x84, 0xD3}, {0xD8, 0xDE}, {0xE0, 0xF9}}, {0xD9E8, 0xD9E8}},
  };
  for (const Row& row : rows) {
    int count = 0;
    std::uint32_t sum = 0;
    for (const Range& leads : row.leads) {
      for (unsigned int pair = leads.first << 8U; pair < (leads.last + 1) << 8U; ++pair) {
        if (row.leftOut.first <= pair && pair <= row.leftOut.last) continue;
        const std::wstring text =
            Pair(row.page, static_cast<unsigned char>(pair >> 8U), static_cast<unsigned char>(pair & 0xFFU));
        if (text.size() != 1) continue;
        ++count;
        sum += pair * static_cast<std::uint32_t>(text[0]);
      }
    }
    EXPECT_EQ(count, row.count) << row.page;
    EXPECT_EQ(sum, row.sum) << row.page;
  }
}

TEST(CodePage, TakesTheNearestWindowsPageForDoubleByteMacintoshPages) {
  EXPECT_EQ(Pair(10001, 0x82, 0xA0), L"\x3042");
  EXPECT_EQ(Pair(10002, 0xA4, 0xA4), L"\x4E2D");
  EXPECT_EQ(Pair(10003, 0xB0, 0xA1), L"\xAC00");
  EXPECT_EQ(Pair(10008, 0xC4, 0xE3), L"\x4F60");
}

TEST(CodePage, MapsSymbolsOntoThePrivateUseArea) {
  EXPECT_EQ(CharacterOf(42, 0x00), 0x00);
  EXPECT_EQ(CharacterOf(42, 0x1F), 0x1F);
  EXPECT_EQ(CharacterOf(42, 0x20), static_cast<wchar_t>(0xF020));
  EXPECT_EQ(CharacterOf(42, 0xFF), static_cast<wchar_t>(0xF0FF));
  EXPECT_EQ(Pair(42, 0xB7, 0x09), L"\xF0B7\x09");
}

TEST(CodePage, LetsABytesGapStandForItself) {
  EXPECT_EQ(CharacterOf(1252, 0x81), 0x81);
  EXPECT_EQ(CharacterOf(1253, 0xD2), 0xD2);
  EXPECT_EQ(CharacterOf(932, 0x83), 0x83);
  EXPECT_EQ(CharacterOf(10005, 0xC0), 0xC0);
  EXPECT_EQ(CharacterOf(10021, 0xFF), 0xFF);
}

// No page of ours composes: a letter and a mark behind it stay two characters.
TEST(CodePage, KeepsCombiningMarksApart) { EXPECT_EQ(Pair(1258, 'A', 0xCC), L"A\x300"); }

TEST(CodePage, TellsPairsOfSingleBytesFromCharacters) {
  EXPECT_EQ(Pair(932, 'A', 0x83), L"A\x83");
  EXPECT_EQ(Pair(932, 0xB1, 0xB2), L"\xFF71\xFF72");
  EXPECT_EQ(Pair(932, 0xB1, 0x83), L"\xFF71\x83");
}

TEST(CodePage, HasNoCharacterForABadPair) {
  EXPECT_EQ(Pair(932, 0x83, 0x20), L"");
  EXPECT_EQ(Pair(936, 0xB0, 0x00), L"");
  EXPECT_EQ(Pair(949, 0x81, 0x20), L"");
}

TEST(CodePage, ConvertsBytesAsAWhole) {
  EXPECT_EQ(Convert(936, {0xCB, 0xCE, 'a', 0xCC, 0xE5}), L"\x5B8B\x61\x4F53");
  EXPECT_EQ(Convert(1252, {0xE4, 'b'}), L"\xE4\x62");
  EXPECT_EQ(Convert(936, {}), L"");
  EXPECT_EQ(Convert(936, {'a', 0xCB}), std::nullopt);
  EXPECT_EQ(Convert(936, {'a', 0xCB, 0x20}), std::nullopt);
  EXPECT_EQ(Convert(936, {0xFF, 'a'}), std::nullopt);
}

TEST(CodePage, TakesTheSystemsPageForZero) {
  {
    const zebtest::ScopedEnvironment language("LC_ALL", "ru_RU.UTF-8");
    EXPECT_EQ(CharacterOf(0, 0xC0), 0x410);
  }
  {
    const zebtest::ScopedEnvironment language("LC_ALL", "ja_JP.UTF-8");
    EXPECT_EQ(Pair(0, 0x82, 0xA0), L"\x3042");
  }
  const zebtest::ScopedEnvironment language("LC_ALL", "C");
  EXPECT_EQ(CharacterOf(0, 0x80), 0x20AC);
}

TEST(CodePage, AnUnknownPageLacksEveryByte) {
  EXPECT_EQ(CharacterOf(4711, 0x80), 0x80);
  EXPECT_EQ(CharacterOf(4711, 'A'), L'A');
  EXPECT_EQ(Pair(4711, 0x80, 0xE4), L"\x80\xE4");
  EXPECT_EQ(Convert(4711, {'A'}), std::nullopt);
}

TEST(CodePage, MakesAPageOnce) { EXPECT_EQ(&CodePage::Of(1251), &CodePage::Of(1251)); }

}  // namespace
