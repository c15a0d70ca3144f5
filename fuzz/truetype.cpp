// TrueType fonts and collections: any bytes are refused, or give metrics that answer for every code, glyph and subset.

#include "fonts/FontData.h"
#include "fonts/FontInformation.h"
#include "fonts/FontMetrics.h"
#include "foundation/KXException.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

void UseFont(CFontMetrics& metrics) {
  unsigned sum = 0;
  for (int code = 0; code <= 0xFFFF; code += 13) sum += metrics.GetWidthAt(code);
  std::vector<unsigned char> glyphs(512);
  metrics.ConvertAllCodesToGlyphIDs(glyphs.data(), static_cast<int>(glyphs.size()));
  for (int i = 0; i < 40; ++i) {
    const unsigned short index = metrics.MapChar(static_cast<unsigned short>(metrics.GetFirstChar() + i));
    sum += metrics.GetWidthOfUsedGlyph(index);
  }
  const int length = metrics.GetFontData()->GetLength();
  const std::vector<unsigned char> before(metrics.GetFontData()->GetData(),
                                          metrics.GetFontData()->GetData() + length);
  CFontData* const source = metrics.GetFontData();
  metrics.CreateSubsetFont();
  // The source stays as it was.
  if (source->GetLength() != length || std::memcmp(source->GetData(), before.data(), before.size()) != 0)
    std::abort();
  if (sum == 1) std::abort();
}

void Read(const std::vector<unsigned char>& bytes, const wchar_t* name, bool unicode) {
  CFontInformation information(nullptr);
  try {
    // There is no data yet; this makes the metrics of the right kind.
    information.ReadTT(name, nullptr, nullptr, unicode, true, 400, false);
  } catch (const CKXException&) {
  }
  CFontMetrics& metrics = *information.GetFontMetrics();
  metrics.GetFontData()->AddFontMemData(const_cast<unsigned char*>(bytes.data()),
                                        static_cast<int>(bytes.size()));
  try {
    information.ReadTT(name, nullptr, nullptr, unicode, true, 700, true);
  } catch (const CKXException&) {
    if (metrics.GetTTFile() != nullptr) std::abort();
    return;
  }
  UseFont(metrics);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 1U << 20U) return 0;
  const std::vector<unsigned char> bytes(data, data + size);
  Read(bytes, L"Probe Regular", true);
  Read(bytes, L"Probe Regular", false);
  return 0;
}
