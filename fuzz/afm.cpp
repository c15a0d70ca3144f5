// AFM files: any bytes are read or refused, in memory in proportion to them, and the object reads again.

#include "fonts/ReadFont.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zebtest::ReadFont font;
  const std::wstring key = font.AFMText({reinterpret_cast<const char*>(data), size});
  if (static_cast<std::size_t>(font->GetFontCharMetricsCount()) > size / 3 + 1) std::abort();
  if (key == L"NoCharMetrics" && font->GetFontCharMetricsCount() > 0) std::abort();
  if (font.AFMText("StartCharMetrics 1\nC 65 ; WX 7 ; N A ;\n") != L"") std::abort();
  return 0;
}
