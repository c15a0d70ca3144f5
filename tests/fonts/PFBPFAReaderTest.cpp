#include "fonts/FontData.h"
#include "fonts/ReadFont.h"
#include "support/Files.h"
#include "support/ScopedFontPool.h"
#include "support/WidePath.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;
using zebtest::ReadFont;

struct Program {
  std::string Bytes;
  int Length1 = 0;
  int Length2 = 0;
  int Length3 = 0;

  bool operator==(const Program&) const = default;
};

void PrintTo(const Program& program, std::ostream* out) {
  *out << testing::PrintToString(program.Bytes) << ' ' << program.Length1 << ' ' << program.Length2 << ' '
       << program.Length3;
}

Program ProgramOf(CFontMetrics& metrics) {
  const CFontData& data = *metrics.GetFontData();
  return {{data.GetData(), data.GetData() + data.GetLength()},
          data.GetLength1(),
          data.GetLength2(),
          data.GetLength3()};
}

/// The program that a file of these bytes gives.
Program Read(std::string_view bytes) {
  ReadFont font;
  EXPECT_EQ(font.ProgramBytes(bytes), L"");
  return ProgramOf(font.Metrics());
}

std::string Header(int type, std::size_t length) {
  std::string header = {'\x80', static_cast<char>(type)};
  for (unsigned shift = 0; shift < 32; shift += 8) header += static_cast<char>((length >> shift) & 0xFFU);
  return header;
}

std::string Segment(int type, std::string_view bytes) {
  return Header(type, bytes.size()) + std::string(bytes);
}

const std::string kEnd = "\x80\x03";

TEST(PFBReader, ThreeSegmentsGiveTheThreeLengths) {
  EXPECT_EQ(Read(Segment(1, "text") + Segment(2, "binary") + Segment(1, "end") + kEnd + "behind"),
            (Program{"textbinaryend", 4, 6, 3}));
}

TEST(PFBReader, TheBinarySegmentMayStandFirst) {
  EXPECT_EQ(Read(Segment(2, "binary") + Segment(1, "text") + Segment(1, "end") + kEnd),
            (Program{"binarytextend", 4, 6, 3}));
}

TEST(PFBReader, FixedTheLastTextBehindBothIsTheThirdLength) {
  EXPECT_EQ(Read(Segment(1, "text") + Segment(2, "binary") + Segment(1, "one") + Segment(1, "three") + kEnd),
            (Program{"textbinaryonethree", 4, 6, 5}));
}

TEST(PFBReader, FixedASecondBinarySegmentIsSearchedForHeaders) {
  // The length 4 of the second one is passed over as two pairs, its bytes as two more.
  EXPECT_EQ(Read(Segment(1, "text") + Segment(2, "binary") + Segment(2, "more") + Segment(1, "end") + kEnd),
            (Program{"textbinaryend", 4, 6, 3}));
  // Of odd length it brings everything behind it out of step.
  EXPECT_EQ(Read(Segment(1, "text") + Segment(2, "binary") + Segment(2, "mor") + Segment(1, "end") + kEnd),
            (Program{"textbinary", 4, 6, 0}));
}

TEST(PFBReader, FixedASecondTextInFrontOfTheBinaryIsPassedOver) {
  EXPECT_EQ(Read(Segment(1, "text") + Segment(1, "more") + Segment(2, "binary") + kEnd),
            (Program{"textbinary", 4, 6, 0}));
}

TEST(PFBReader, EmptySegmentsCount) {
  EXPECT_EQ(Read(Segment(1, "") + Segment(2, "") + Segment(1, "end") + kEnd), (Program{"end", 0, 0, 3}));
}

TEST(PFBReader, AnEndInFrontOfAllSegmentsEndsIt) {
  EXPECT_EQ(Read(kEnd + Segment(1, "text") + kEnd), (Program{}));
}

TEST(PFBReader, FixedPairsOfOtherTypesArePassedOverWithoutALength) {
  const std::string other = "\x80\x05";
  EXPECT_EQ(Read(other + "xy" + Segment(1, "text") + other + Segment(2, "binary") + kEnd),
            (Program{"textbinary", 4, 6, 0}));
}

// Attack: no end.
TEST(PFBReader, WithoutAnAlignedEndTheFileEndsIt) {
  EXPECT_EQ(Read(Segment(1, "text") + std::string(100001, 'x')), (Program{"text", 4, 0, 0}));
  EXPECT_EQ(Read(Segment(1, "text") + "x" + kEnd + Segment(2, "binary")), (Program{"text", 4, 0, 0}));
  EXPECT_EQ(Read("\x80"), (Program{}));
}

// Attack: lengths that lie.
TEST(PFBReader, ALengthCountsAsFarAsTheBytesAreThere) {
  for (const std::size_t length : {5ULL, 0x7FFFFFFFULL, 0x80000000ULL, 0xFFFFFFFFULL}) {
    EXPECT_EQ(Read(Header(1, length) + "text"), (Program{"text", 4, 0, 0})) << length;
    EXPECT_EQ(Read(Segment(1, "text") + Header(2, length) + "bin"), (Program{"textbin", 4, 3, 0})) << length;
  }
}

TEST(PFBReader, AFileThatStopsAnywhereGivesWhatIsThere) {
  const std::string whole = Segment(1, "text") + Segment(2, "binary") + Segment(1, "end") + kEnd;
  const std::string content = "textbinaryend";
  for (std::size_t length = 1; length <= whole.size(); ++length) {
    const Program program = Read(whole.substr(0, length));
    EXPECT_EQ(program.Bytes, content.substr(0, program.Bytes.size())) << length;
    EXPECT_EQ(program.Length1 + program.Length2 + program.Length3, static_cast<int>(program.Bytes.size()));
  }
}

/// What a line of the clear text leaves: as many bytes of its 16-bit characters as it has characters.
std::string Halved(std::string_view line) {
  std::string bytes;
  for (std::size_t i = 0; i < line.size(); ++i) bytes += i % 2 == 0 ? line[i / 2] : '\0';
  return bytes;
}

TEST(PFAReader, FixedALineIsAppendedAsTheFirstBytesOfItsWideCharacters) {
  EXPECT_EQ(Read("%!PS\n"), (Program{std::string("%\0!\0P", 5), 5, 0, 0}));
  EXPECT_EQ(Read("abc\n"), (Program{std::string("a\0b\0", 4), 4, 0, 0}));
  EXPECT_EQ(Read("\n"), (Program{"\n", 1, 0, 0}));
}

TEST(PFAReader, LinesOfAllThreeParts) {
  const std::string zeros(512, '0');
  EXPECT_EQ(Read("%!\ncurrentfile eexec\n0aFf10\n20\n" + zeros + "\ncleartomark\n"),
            (Program{Halved("%!\n") + Halved("currentfile eexec\n") + std::string("\x0A\0\xFF", 3) + "\x20" +
                         Halved(zeros + "\n") + Halved("cleartomark\n"),
                     3 + 18, 3 + 1, 513 + 12}));
}

TEST(PFAReader, LineEnds) {
  // CR LF and CR count as one character.
  EXPECT_EQ(Read("ab\r\n"), (Program{Halved("ab\n"), 3, 0, 0}));
  EXPECT_EQ(Read("ab\rcd\r"), (Program{Halved("ab\n") + Halved("cd\n"), 6, 0, 0}));
  EXPECT_EQ(Read("\r\r\n\n"), (Program{"\n\n\n", 3, 0, 0}));
}

TEST(PFAReader, ALineThatTheEndOfTheFileCutsOffIsDropped) {
  EXPECT_EQ(Read("ab\ncd"), (Program{Halved("ab\n"), 3, 0, 0}));
  EXPECT_EQ(Read("cd"), (Program{}));
  EXPECT_EQ(Read(""), (Program{}));
}

TEST(PFAReader, LeadingBlanksOfALineAreDropped) {
  EXPECT_EQ(Read(" \t ab c \n"), (Program{Halved("ab c \n"), 6, 0, 0}));
  EXPECT_EQ(Read("  \n"), (Program{"\n", 1, 0, 0}));
  EXPECT_EQ(Read(" currentfile eexec dup\n 41\n"),
            (Program{Halved("currentfile eexec dup\n") + "A", 22, 1, 0}));
}

TEST(PFAReader, OnlyALineThatBeginsSoStartsTheEncryptedPart) {
  EXPECT_EQ(Read("dup currentfile eexec\n41\n").Length2, 0);
  EXPECT_EQ(Read("currentfile  eexec\n41\n").Length2, 0);
  EXPECT_EQ(Read("Currentfile eexec\n41\n").Length2, 0);
  EXPECT_EQ(Read("currentfile eexecution\n41\n").Length2, 1);
}

TEST(PFAReader, ALineOfZerosOfAnyLengthIsTheTrailer) {
  EXPECT_EQ(Read("currentfile eexec\n0\n"),
            (Program{Halved("currentfile eexec\n") + Halved("0\n"), 18, 0, 2}));
  EXPECT_EQ(Read("00\nab\n"), (Program{Halved("00\n") + Halved("ab\n"), 0, 0, 6}))
      << "from the clear text too";
  EXPECT_EQ(Read("currentfile eexec\n00 \n").Length3, 0);
  EXPECT_EQ(Read("currentfile eexec\n\n").Length3, 0);
}

TEST(PFAReader, OnlyAnotherEexecLeavesTheTrailer) {
  EXPECT_EQ(
      Read("0\n41\ncurrentfile eexec\n41\n"),
      (Program{Halved("0\n") + Halved("41\n") + Halved("currentfile eexec\n") + "A", 0, 1, 2 + 3 + 18}));
}

TEST(PFAReader, NoHexadecimalDigitIsIncorrect) {
  for (const char* const line : {"G0", "0G", "41 4-", "g0", "4\x80"}) {
    ReadFont font;
    EXPECT_EQ(font.ProgramBytes("ab\ncurrentfile eexec\n41\n" + std::string(line) + "\n"),
              L"IncorrectPFAPFBFile")
        << line;
    EXPECT_EQ(ProgramOf(font.Metrics()).Length2, 1) << "what was in front of it stays";
  }
}

TEST(PFAReader, FixedWhitespaceCountsInAPairLikeALetter) {
  // ' ' - '7' is -23: the pair is -23 * 16 + 10, of which 8 bits count.
  EXPECT_EQ(Read("currentfile eexec\n4 \n").Bytes.back(), static_cast<char>(4 * 16 + (' ' - '7')));
  EXPECT_EQ(Read("currentfile eexec\n41 A\n"),
            (Program{Halved("currentfile eexec\n") + std::string("A\0", 2), 18, 2, 0}));
}

TEST(PFAReader, FixedADigitThatIsLeftOverMakesAPairWithTheLineEnd) {
  EXPECT_EQ(Read("currentfile eexec\n4\n"),
            (Program{Halved("currentfile eexec\n") + static_cast<char>(4 * 16 + ('\n' - '7')), 18, 1, 0}));
}

// Attack: a line longer than any buffer.
TEST(PFAReader, LinesOfAnyLength) {
  const std::string text(100000, 'x');
  EXPECT_EQ(Read(text + "\n"), (Program{Halved(text + "\n"), 100001, 0, 0}));
  std::string hex;
  for (int i = 0; i < 3000; ++i) hex += "41";
  EXPECT_EQ(Read("currentfile eexec\n" + hex + "\n"),
            (Program{Halved("currentfile eexec\n") + Halved(std::string(3000, 'A')), 18, 3000, 0}));
}

TEST(PFBPFAReader, TheMetricsStay) {
  ReadFont font;
  font->SetAscender(5);
  font->SetBaseFont(L"Sample");
  font->SetEncoding(L"mine");
  ASSERT_EQ(font.ProgramBytes(Segment(1, "text") + kEnd), L"");
  EXPECT_EQ(font->GetAscender(), 5);
  EXPECT_STREQ(font->GetBaseFont(), L"Sample");
  EXPECT_STREQ(font->GetEncoding(), L"mine");
}

TEST(PFBPFAReader, ASecondProgramReplacesTheFirst) {
  ReadFont font;
  ASSERT_EQ(font.ProgramBytes(Segment(1, "text") + Segment(2, "binary") + kEnd), L"");
  ASSERT_EQ(font.ProgramBytes("ab\n"), L"");
  EXPECT_EQ(ProgramOf(font.Metrics()), (Program{Halved("ab\n"), 3, 0, 0}));
}

TEST(PFBPFAReader, Failures) {
  ReadFont font;
  ASSERT_EQ(font.ProgramBytes(Segment(1, "text") + kEnd), L"");
  EXPECT_EQ(zebtest::RaisedKey([&] { font.Font().ReadPFBPFA(nullptr); }), L"WrongParameter");
  EXPECT_EQ(zebtest::RaisedKey([&] { font.Font().ReadPFBPFA(L""); }), L"WrongParameter");
  EXPECT_EQ(font.Program(font.Dir().File("none")), L"ReadFileFailure");
  EXPECT_EQ(font.Program(font.Dir().Path()), L"ReadFileFailure");
  EXPECT_EQ(ProgramOf(font.Metrics()).Bytes, "text") << "the program stays";
  EXPECT_EQ(font.ProgramBytes("currentfile eexec\nx\n"), L"IncorrectPFAPFBFile");
  EXPECT_EQ(font.ProgramBytes(Segment(1, "again") + kEnd), L"");
}

TEST(PFBPFAReader, MetricsWithAnOpenFileAreRefused) {
  ReadFont font;
  zebtest::Busy::Set(font.Metrics(), 0);
  EXPECT_EQ(font.ProgramBytes(Segment(1, "text") + kEnd), L"WrongParameter");
  zebtest::Busy::Set(font.Metrics(), -1);
  EXPECT_EQ(font.ProgramBytes(Segment(1, "text") + kEnd), L"");
}

/// The segments of a well-formed PFB file, walked through by their headers.
Program WalkHeaders(const std::string& bytes) {
  Program program;
  int* const lengths[] = {&program.Length1, &program.Length2, &program.Length3};
  std::size_t at = 0;
  for (int index = 0; bytes.at(at + 1) != 3; ++index) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      length |= static_cast<std::size_t>(static_cast<unsigned char>(bytes.at(at + 2 + i))) << (8 * i);
    }
    program.Bytes += bytes.substr(at + 6, length);
    if (index < 3) *lengths[index] = static_cast<int>(length);
    at += 6 + length;
  }
  return program;
}

TEST(PFBReader, ARealFont) {
  ReadFont font;
  const fs::path path = fs::path(ZEB_TEST_DATA) / "fonts" / "dummy-space.pfb";
  ASSERT_EQ(font.Program(path), L"");
  const Program program = ProgramOf(font.Metrics());
  EXPECT_EQ(program.Length1, 843);
  EXPECT_EQ(program.Length2, 1013);
  EXPECT_EQ(program.Length3, 533);
  EXPECT_EQ(program, WalkHeaders(zebtest::ReadFile(path)));
}

TEST(PFBReader, RealFontsGiveTheSegmentsOfTheirHeaders) {
  int count = 0;
  for (const char* const folder :
       {"/usr/share/fonts/type1/urw-base35", "/usr/share/texlive/texmf-dist/fonts/type1/urw"}) {
    if (!fs::exists(folder)) continue;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
      if (entry.path().extension() != ".pfb" || entry.file_size() > 200000) continue;
      ReadFont font;
      ASSERT_EQ(font.Program(entry.path()), L"") << entry.path();
      EXPECT_TRUE(ProgramOf(font.Metrics()) == WalkHeaders(zebtest::ReadFile(entry.path()))) << entry.path();
      ++count;
    }
  }
  if (count == 0) GTEST_SKIP() << "no package with PFB files is installed";
}

TEST(PFBReader, AProgramOfThePoolStaysWhole) {
  const zebtest::ScopedFontPool pool;
  std::vector<unsigned char> bytes = {7, 8, 9};
  pool->SetFontData(L"S", L"S", 400, false, bytes.data(), 3, {});
  CFontData* const ofPool = pool->GetFontData(L"S");
  ReadFont font;
  font->SetFontData(ofPool, false);
  ASSERT_EQ(font.ProgramBytes(Segment(1, "text") + kEnd), L"");
  EXPECT_EQ(ProgramOf(font.Metrics()), (Program{"text", 4, 0, 0}));
  ASSERT_EQ(pool->GetFontData(L"S"), ofPool);
  ASSERT_EQ(ofPool->GetLength(), 3);
  EXPECT_EQ(std::vector<unsigned char>(ofPool->GetData(), ofPool->GetData() + 3), bytes);
  EXPECT_EQ(ofPool->GetLength1(), 0);
}

/// How many blanks stand at the beginnings of lines.
int LeadingBlanks(std::string_view text) {
  int count = 0;
  bool isLineStart = true;
  for (const char c : text) {
    isLineStart = isLineStart && c == ' ';
    count += isLineStart ? 1 : 0;
    isLineStart = isLineStart || c == '\r' || c == '\n';
  }
  return count;
}

TEST(PFAReader, ARealFontHasTheLengthsOfItsPFBWithoutLeadingBlanks) {
  if (std::system("command -v t1ascii >/dev/null") != 0)
    GTEST_SKIP() << "the package t1utils is not installed";
  ReadFont font;
  const fs::path pfb = fs::path(ZEB_TEST_DATA) / "fonts" / "dummy-space.pfb";
  const fs::path pfa = font.Dir().File("font.pfa");
  ASSERT_EQ(std::system(("t1ascii " + pfb.string() + " " + pfa.string()).c_str()), 0);
  ASSERT_EQ(font.Program(pfa), L"");
  const Program program = ProgramOf(font.Metrics());
  EXPECT_EQ(program.Length1, 843 - LeadingBlanks(WalkHeaders(zebtest::ReadFile(pfb)).Bytes.substr(0, 843)));
  EXPECT_EQ(program.Length2, 1013);
  EXPECT_EQ(program.Length3, 8 * 65 + 12) << "eight lines of 64 zeros and cleartomark";
  EXPECT_EQ(static_cast<int>(program.Bytes.size()), program.Length1 + program.Length2 + program.Length3);
}

}  // namespace
