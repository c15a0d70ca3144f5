// RTF texts, read from memory with a handler that counts what it gets: long runs of plain text, heavily formatted text, a
// text of hex pairs in code page 936, and a text with pictures. Beside a bare loop that only counts braces and backslashes
// in the same bytes, and beside programs that a user would call instead; these are measured as whole processes.

#include "rtf/ContextChangedHandler.h"
#include "rtf/RTFContext.h"
#include "rtf/RTFParser.h"
#include "support/Measuring.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cwchar>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr const char* kHead =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}{\\f1\\fnil\\fcharset134 "
    "SimSun;}}"
    "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\\uc1\\pard\\f0\\fs20 ";

/// The document that repeats a piece until it has that many bytes.
std::string Document(const std::function<std::string(int)>& piece, std::size_t bytes) {
  std::string text = kHead;
  for (int i = 0; text.size() < bytes; ++i) text += piece(i);
  return text + "}\n";
}

std::string Plain(int number) {
  return "Paragraph " + std::to_string(number) +
         ": the quick brown fox jumps over the lazy dog, and no one in the office minds; the report of the "
         "day is as "
         "long as ever and\r\nnobody has time to read it from its beginning to its end, which is a pity "
         "since it is "
         "well written, has been proofread by two people and holds all the numbers that the board asked for "
         "in its "
         "last meeting.\\par\r\n";
}

std::string Formatted(int number) {
  return "{\\b Item " + std::to_string(number) +
         "}: {\\i in \\cf1 stock\\cf0 , } \\ul price\\ulnone  {\\fs28 12,50} EUR\\super 1\\nosupersub , "
         "{\\f1\\cf2\\b\\i special} offer\\line\\pard\\li360\\qj delivered in {\\b 14} days\\par\r\n";
}

std::string Chinese(int number) {
  // Simplified Chinese in pairs of hex bytes, as word processors write it.
  std::string text = "\\f1 ";
  for (int i = 0; i < 40; ++i) {
    static constexpr const char* kDigits = "0123456789abcdef";
    const int row = 0xB0 + (number + i) % 40;
    const int cell = 0xA1 + (number * 7 + i * 3) % 90;
    for (const int byte : {row, cell}) {
      text += "\\'";
      text += kDigits[byte / 16];
      text += kDigits[byte % 16];
    }
  }
  return text + "\\par\r\n";
}

std::string Picture(int number) {
  // 64 KB of picture data in lines of 128 digits.
  std::string text = "{\\*\\shppict{\\pict\\jpegblip\\picw100\\pich100\r\n";
  for (int line = 0; line < 1024; ++line) {
    for (int digit = 0; digit < 128; ++digit)
      text += "0123456789abcdef"[(number + line * 31 + digit * 7) % 16];
    text += "\r\n";
  }
  return text + "}}\\par\r\n";
}

struct Text {
  const char* name;
  std::string data;
  std::string forPrograms;  // shorter, since some of them take minutes for the whole
};

Text TextOf(const char* name, const std::function<std::string(int)>& piece) {
  constexpr std::size_t kMegabyte = std::size_t{1} << 20;
  return {name, Document(piece, 10 * kMegabyte), Document(piece, kMegabyte)};
}

const std::vector<Text>& Texts() {
  static const std::vector<Text> texts = {TextOf("plain", Plain), TextOf("formatted", Formatted),
                                          TextOf("chinese", Chinese), TextOf("pictures", Picture)};
  return texts;
}

class Counter : public CContextChangedHandler {
 public:
  void OnContextChanged(const wchar_t* text, CRTFContext*) override {
    ++m_uRuns;
    m_uFirst += static_cast<std::size_t>(*text);
  }

  std::size_t m_uRuns = 0;
  std::size_t m_uFirst = 0;
};

void ReadText(benchmark::State& state, const Text& text) {
  std::vector<unsigned char> data(text.data.begin(), text.data.end());
  std::size_t runs = 0;
  for (auto _ : state) {
    Counter counter;
    CRTFParser parser(data.data(), static_cast<int>(data.size()), &counter, nullptr);
    if (parser.RtfParse() != CRTFParser::rtfOK) state.SkipWithError("the document does not read");
    runs = counter.m_uRuns;
    benchmark::DoNotOptimize(counter.m_uFirst);
  }
  state.counters["runs"] = static_cast<double>(runs);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(data.size()));
}

/// What no reader can do without: each byte is looked at once.
void CountMarks(benchmark::State& state, const Text& text) {
  for (auto _ : state) {
    std::size_t marks = 0;
    for (const char byte : text.data) {
      if (byte == '{' || byte == '}' || byte == '\\') ++marks;
    }
    benchmark::DoNotOptimize(marks);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.data.size()));
}

/// A program that turns the document into plain text, from start to end of its process.
void RunProgram(benchmark::State& state, const Text& text, const std::string& command) {
  const zebbench::ScratchFolder folder;
  const auto path = folder.Path() / "document.rtf";
  std::ofstream(path, std::ios::binary) << text.forPrograms;
  // A picture that the program writes into its folder goes with the folder.
  const std::string line =
      "cd '" + folder.Path().string() + "' && " + command + " document.rtf >output.txt 2>/dev/null";
  for (auto _ : state) {
    if (std::system(line.c_str()) != 0) state.SkipWithError("the program fails");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.forPrograms.size()));
}

bool IsInstalled(const std::string& program) {
  return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const std::vector<std::pair<std::string, std::string>> programs = {{"unrtf", "unrtf --text"},
                                                                     {"pandoc", "pandoc -f rtf -t plain"}};
  for (const Text& text : Texts()) {
    const std::string name = text.name;
    benchmark::RegisterBenchmark((name + "/zeb").c_str(), ReadText, text)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((name + "/marks").c_str(), CountMarks, text)->Unit(benchmark::kMillisecond);
    for (const auto& [program, command] : programs) {
      if (!IsInstalled(program)) {
        std::cerr << "bench_rtf: " << program << " is not installed and left out\n";
        continue;
      }
      benchmark::RegisterBenchmark((name + "/" + program).c_str(), RunProgram, text, command)
          ->Unit(benchmark::kMillisecond)
          ->UseRealTime()
          ->Iterations(1);
    }
  }
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
