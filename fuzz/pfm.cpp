// PFM files: any bytes are read or refused, and the object reads again.

#include "fonts/ReadFont.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zebtest::ReadFont font;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::wstring key = font.PFMBytes(bytes);
  if (!key.empty() && key != L"IncorrectPFMFile") std::abort();
  if (font->GetDescender() > 0) std::abort();
  if (font.PFMBytes(bytes) != key) std::abort();
  return 0;
}
