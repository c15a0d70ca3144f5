// Subsets of fonts: the font is all but the last bytes of the input, and those are the characters that are used. Whatever
// the font is, the subset comes out twice the same and the font is as it was before.

#include "fonts/ByteReader.h"
#include "fonts/FontData.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "fonts/TrueTypeReader.h"
#include "fonts/TrueTypeStatus.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

constexpr std::size_t kBytesOfCharacters = 64;
constexpr std::uint16_t kAlwaysThere = 3;
/// Where the directory says where `maxp` is; the same in every subset.
constexpr std::size_t kPlaceOfMaxp = 12 + 16 * 7 + 8;

std::vector<unsigned char> Contents(const CFontData& data) {
  return {data.GetData(), data.GetData() + data.GetLength()};
}

bool ReadFont(CTrueTypeFontMetrics& metrics, std::vector<std::uint8_t> bytes) {
  auto* const data = new CFontData(false);
  data->AddFontMemData(bytes.data(), static_cast<int>(bytes.size()));
  metrics.SetFontData(data, true);
  zeb::TrueTypeReader reader(metrics, {.unicode = true, .reuseData = true});
  return reader.Read() == zeb::kTrueTypeDone;
}

std::uint16_t NumberAt(const std::vector<unsigned char>& font, std::size_t place, std::size_t at) {
  zeb::ByteReader reader(font.data(), static_cast<std::ptrdiff_t>(font.size()));
  std::uint32_t offset = 0;
  std::uint16_t number = 0;
  if (!reader.Seek(place) || !reader.ReadU32BE(offset) || !reader.Seek(offset + at) ||
      !reader.ReadU16BE(number)) {
    std::abort();
  }
  return number;
}

std::vector<unsigned char> MakeSubset(CTrueTypeFontMetrics& metrics) {
  metrics.CreateSubsetFont();
  return Contents(*metrics.GetFontData());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::size_t fontSize = size - std::min(size, kBytesOfCharacters);
  CTrueTypeFontMetrics metrics;
  if (!ReadFont(metrics, {data, data + fontSize})) return 0;
  const CFontData& source = *metrics.GetFontData();
  const std::vector<unsigned char> before = Contents(source);

  for (std::size_t at = fontSize; at + 2 <= size; at += 2) {
    metrics.MapChar(static_cast<unsigned short>(data[at] * 256U + data[at + 1]));
  }
  const std::vector<unsigned char> subset = MakeSubset(metrics);
  if (Contents(source) != before) std::abort();
  // Of a font with a table of PostScript outlines there is none.
  if (metrics.GetUnicodeFont() && metrics.GetFontType() == CFontMetrics::FontTypeTrueType) {
    if (MakeSubset(metrics) != subset || Contents(source) != before) std::abort();
    if (NumberAt(subset, kPlaceOfMaxp, 4) < kAlwaysThere) std::abort();
  }
  return 0;
}
