// TrueType fonts read in full: metrics, names, character map and widths. FreeType opens the same font, chooses its
// Unicode map and fetches all advances; once from the file, which both map into memory, and once from bytes that were read.
// `map` adds the walk over all characters, which ours has done when it ends.

#include "fonts/FontInformation.h"
#include "fonts/FontMetrics.h"
#include "support/Measuring.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

#ifdef ZEB_HAS_FREETYPE
#include <ft2build.h>
#include FT_ADVANCES_H
#include FT_FREETYPE_H
#endif

namespace {

struct Font {
  const char* name;
  std::string file;
  const wchar_t* face;  ///< of a collection; null for a file of one font
  long index;           ///< of the face in the collection
};

const std::vector<Font>& Fonts() {
  static const std::vector<Font> fonts = {
      {"DejaVuSans", "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", nullptr, 0},
      {"wqy-zenhei", "/usr/share/fonts/truetype/wqy/wqy-zenhei.ttc", L"WenQuanYi Zen Hei", 0},
      {"uming", "/usr/share/fonts/truetype/arphic/uming.ttc", L"AR PL UMing CN", 0},
  };
  return fonts;
}

void ReadOurs(const Font& font) {
  CFontInformation information(nullptr);
  const std::wstring path(font.file.begin(), font.file.end());
  information.ReadTT(font.face, font.face != nullptr ? nullptr : path.c_str(), nullptr, true, false, 400,
                     false);
  benchmark::DoNotOptimize(information.GetFontMetrics()->GetWidthAt('A'));
}

#ifdef ZEB_HAS_FREETYPE
/// The parts of a reading by FreeType.
enum class Source { File, Memory };
enum class Characters { Leave, Walk };

std::vector<FT_Byte> ReadFile(const std::string& path) {
  std::vector<FT_Byte> bytes(std::filesystem::file_size(path));
  std::ifstream(path, std::ios::binary)
      .read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

void ReadFreeType(const Font& font, Source source, Characters characters) {
  FT_Library library = nullptr;
  FT_Face face = nullptr;
  std::vector<FT_Byte> bytes;
  if (FT_Init_FreeType(&library) != 0) std::abort();
  FT_Error error = 0;
  if (source == Source::File) {
    error = FT_New_Face(library, font.file.c_str(), font.index, &face);
  } else {
    bytes = ReadFile(font.file);
    error = FT_New_Memory_Face(library, bytes.data(), static_cast<FT_Long>(bytes.size()), font.index, &face);
  }
  if (error != 0 || FT_Select_Charmap(face, FT_ENCODING_UNICODE) != 0) std::abort();
  std::vector<FT_Fixed> advances(static_cast<std::size_t>(face->num_glyphs));
  FT_Get_Advances(face, 0, static_cast<FT_UInt>(face->num_glyphs), FT_LOAD_NO_SCALE, advances.data());
  benchmark::DoNotOptimize(advances.data());
  if (characters == Characters::Walk) {
    std::map<FT_ULong, FT_UInt> glyphs;
    FT_UInt glyph = 0;
    for (FT_ULong code = FT_Get_First_Char(face, &glyph); glyph != 0;
         code = FT_Get_Next_Char(face, code, &glyph)) {
      glyphs.emplace_hint(glyphs.end(), code, glyph);
    }
    benchmark::DoNotOptimize(glyphs);
  }
  FT_Done_Face(face);
  FT_Done_FreeType(library);
}
#endif

using Action = std::function<void()>;

void Measure(benchmark::State& state, const Font& font, const std::string& peakArguments, const Action& act) {
  for (auto _ : state) act();
  const double megabytes = static_cast<double>(std::filesystem::file_size(font.file)) / 1048576;
  state.counters["file_MB"] = megabytes;
  state.counters["peak_MB"] = zebbench::RunAlone(peakArguments);
}

void Register(const std::string& name, const Font& font, const Action& act) {
  benchmark::RegisterBenchmark((std::string(font.name) + "/" + name).c_str(), [&font, name,
                                                                               act](benchmark::State& state) {
    Measure(state, font, "--peak " + std::string(font.name) + "/" + name, act);
  })->Unit(benchmark::kMillisecond);
}

std::map<std::string, Action> ActionsOf(const Font& font) {
  std::map<std::string, Action> actions = {{"zeb", [&font] { ReadOurs(font); }}};
#ifdef ZEB_HAS_FREETYPE
  actions["freetype_file"] = [&font] { ReadFreeType(font, Source::File, Characters::Leave); };
  actions["freetype_file_map"] = [&font] { ReadFreeType(font, Source::File, Characters::Walk); };
  actions["freetype_memory"] = [&font] { ReadFreeType(font, Source::Memory, Characters::Leave); };
  actions["freetype_memory_map"] = [&font] { ReadFreeType(font, Source::Memory, Characters::Walk); };
#endif
  actions["nothing"] = [] {};
  return actions;
}

/// Does one thing once in this process and prints the memory that it took at most.
int PrintPeak(const std::string& wanted) {
  for (const Font& font : Fonts()) {
    for (const auto& [name, act] : ActionsOf(font)) {
      if (std::string(font.name) + "/" + name != wanted) continue;
      act();
      std::printf("%f\n", zebbench::PeakMegabytes());
      return 0;
    }
  }
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 3 && std::strcmp(argv[1], "--peak") == 0) return PrintPeak(argv[2]);
  zebbench::KeepFreedMemory();
  for (const Font& font : Fonts()) {
    if (!std::filesystem::exists(font.file)) continue;
    for (const auto& [name, act] : ActionsOf(font)) Register(name, font, act);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
