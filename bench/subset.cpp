// Subsets of fonts for PDF files. Alone, with the font read already, beside HarfBuzz with its face open already, which is
// told to leave out all tables that ours leaves out and to keep the instructions, as ours does. And with the reading,
// beside FreeType, which opens the file and fetches its character map and all widths, but makes no subset. Times are those
// of the processor.

#include "fonts/FontData.h"
#include "fonts/FontInformation.h"
#include "support/FreeTypeFace.h"
#include "support/Libraries.h"
#include "support/Measuring.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#ifdef ZEB_HAS_HARFBUZZ
#include <hb-subset.h>
#endif

namespace {

using zebbench::Check;

struct Case {
  const char* name;
  std::string path;
  const wchar_t* face;  // of a collection; null for a file of one font
  std::vector<unsigned short> characters;
};

std::vector<unsigned short> Range(unsigned first, unsigned count, unsigned step) {
  std::vector<unsigned short> characters;
  for (unsigned i = 0; i < count; ++i) characters.push_back(static_cast<unsigned short>(first + i * step));
  return characters;
}

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = {
      {"dejavu_95", "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", nullptr, Range(0x20, 95, 1)},
      {"zenhei_2000", "/usr/share/fonts/truetype/wqy/wqy-zenhei.ttc", L"WenQuanYi Zen Hei",
       Range(0x4E00, 2000, 10)},
  };
  return cases;
}

// ---- Ours ----

void Read(CFontInformation& font, const Case& of) {
  const std::wstring path(of.path.begin(), of.path.end());
  font.ReadTT(of.face, of.face == nullptr ? path.c_str() : nullptr, nullptr, true, false, 400, false);
}

int MakeSubset(CFontInformation& font, const Case& of) {
  CFontMetrics& metrics = *font.GetFontMetrics();
  for (const unsigned short character : of.characters) metrics.MapChar(character);
  metrics.CreateSubsetFont();
  return metrics.GetFontData()->GetLength();
}

void MeasureSubset(benchmark::State& state, const Case& of) {
  int length = 0;
  for (auto _ : state) {
    // A font remembers what was used of it, so each subset needs one that was just read.
    CFontInformation font(nullptr);
    Read(font, of);
    const double start = zebbench::ProcessorSeconds();
    length = MakeSubset(font, of);
    state.SetIterationTime(zebbench::ProcessorSeconds() - start);
  }
  state.counters["bytes"] = length;
}

void MeasureReadAndSubset(benchmark::State& state, const Case& of) {
  for (auto _ : state) {
    CFontInformation font(nullptr);
    Read(font, of);
    benchmark::DoNotOptimize(MakeSubset(font, of));
  }
}

// ---- The peers ----

void MeasureFreeType(benchmark::State& state, const Case& of) {
  for (auto _ : state) {
    const zebbench::FreeTypeFace face(of.path);
    benchmark::DoNotOptimize(face.FetchMapAndAdvances());
  }
}

#ifdef ZEB_HAS_HARFBUZZ
constexpr const char* kKeptTables[] = {"cvt ", "fpgm", "glyf", "head", "hhea",
                                       "hmtx", "loca", "maxp", "prep"};

/// The tables that only the peer would write.
hb_set_t* DroppedTables(hb_face_t* face) {
  hb_set_t* const tags = hb_set_create();
  std::vector<hb_tag_t> all(hb_face_get_table_tags(face, 0, nullptr, nullptr));
  auto count = static_cast<unsigned>(all.size());
  hb_face_get_table_tags(face, 0, &count, all.data());
  for (const hb_tag_t tag : all) hb_set_add(tags, tag);
  for (const char* const kept : kKeptTables) hb_set_del(tags, hb_tag_from_string(kept, 4));
  return tags;
}

unsigned MakeHarfBuzzSubset(hb_face_t* face, const hb_set_t* dropped, const Case& of) {
  hb_subset_input_t* const input = hb_subset_input_create_or_fail();
  Check(input != nullptr, "hb_subset_input_create_or_fail");
  hb_subset_input_set_flags(input, HB_SUBSET_FLAGS_NOTDEF_OUTLINE);
  hb_set_union(hb_subset_input_set(input, HB_SUBSET_SETS_DROP_TABLE_TAG), dropped);
  hb_set_t* const characters = hb_subset_input_unicode_set(input);
  for (const unsigned short character : of.characters) hb_set_add(characters, character);
  hb_face_t* const subset = hb_subset_or_fail(face, input);
  Check(subset != nullptr, "hb_subset_or_fail");
  hb_blob_t* const content = hb_face_reference_blob(subset);
  const unsigned length = hb_blob_get_length(content);
  hb_blob_destroy(content);
  hb_face_destroy(subset);
  hb_subset_input_destroy(input);
  return length;
}

void MeasureHarfBuzz(benchmark::State& state, const Case& of) {
  hb_blob_t* const file = hb_blob_create_from_file_or_fail(of.path.c_str());
  Check(file != nullptr, "hb_blob_create_from_file_or_fail");
  hb_face_t* const face = hb_face_create(file, 0);
  hb_set_t* const dropped = DroppedTables(face);
  unsigned length = 0;
  for (auto _ : state) {
    const double start = zebbench::ProcessorSeconds();
    length = MakeHarfBuzzSubset(face, dropped, of);
    state.SetIterationTime(zebbench::ProcessorSeconds() - start);
  }
  state.counters["bytes"] = length;
  hb_set_destroy(dropped);
  hb_face_destroy(face);
  hb_blob_destroy(file);
}
#endif

void Register(const char* work, const Case& of, const char* who,
              void (*measure)(benchmark::State&, const Case&), bool timesItself) {
  const std::string name = std::string(work) + '/' + of.name + '/' + who;
  auto* const registered = benchmark::RegisterBenchmark(
      name.c_str(), [measure, &of](benchmark::State& state) { measure(state, of); });
  registered->Unit(benchmark::kMicrosecond);
  if (timesItself) registered->UseManualTime();
}

}  // namespace

int main(int argc, char** argv) {
  zebbench::KeepFreedMemory();
  for (const Case& of : Cases()) {
    if (!std::filesystem::exists(of.path)) continue;
    Register("subset", of, "ours", MeasureSubset, true);
#ifdef ZEB_HAS_HARFBUZZ
    Register("subset", of, "harfbuzz", MeasureHarfBuzz, true);
#endif
    Register("read", of, "ours_with_subset", MeasureReadAndSubset, false);
    Register("read", of, "freetype_without", MeasureFreeType, false);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
