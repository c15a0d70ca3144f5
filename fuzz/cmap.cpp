// CMap resources: any bytes are read to their end, and the answers in both directions belong together.

#include "fonts/CIDMapping.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<unsigned char> bytes(data, data + size);
  CIDMapping mapping;
  mapping.LoadCMap(bytes.data(), static_cast<int>(bytes.size()));
  const CIDMapping once = mapping;
  // Every mapping is there already, so a second reading changes no answer.
  mapping.LoadCMap(bytes.data(), static_cast<int>(bytes.size()));
  for (int key = -300; key < 70000; key += 7) {
    if (once.GetCIDFromCode(key) != mapping.GetCIDFromCode(key)) std::abort();
    if (once.GetCodeFromCID(key) != mapping.GetCodeFromCID(key)) std::abort();
  }
  return 0;
}
