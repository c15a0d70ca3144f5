// PFB and PFA files: any bytes are read or refused, no program is longer than its file, and the segments never claim
// more than the program has.

#include "fonts/FontData.h"
#include "fonts/ReadFont.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zebtest::ReadFont font;
  const std::wstring key = font.ProgramBytes({reinterpret_cast<const char*>(data), size});
  if (!key.empty() && key != L"IncorrectPFAPFBFile") std::abort();
  const CFontData& program = *font->GetFontData();
  if (static_cast<std::size_t>(program.GetLength()) > size) std::abort();
  const int claimed = program.GetLength1() + program.GetLength2() + program.GetLength3();
  if (claimed > program.GetLength()) std::abort();
  return 0;
}
