// Every allocation of a reading fails once. The program's own allocations are replaced for that, so that this is a program
// of its own.

#include "fonts/FontData.h"
#include "fonts/FontInformation.h"
#include "fonts/FontMetrics.h"
#include "foundation/KXException.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <new>
#include <string>

namespace {

constexpr int kNever = -1;
int s_iAllocationsUntilFailure = kNever;

}  // namespace

void* operator new(std::size_t size) {
  if (s_iAllocationsUntilFailure == 0) {
    s_iAllocationsUntilFailure = kNever;
    throw std::bad_alloc();
  }
  if (s_iAllocationsUntilFailure > 0) --s_iAllocationsUntilFailure;
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace {

const std::wstring kSystemFont = L"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

/// @return whether the reading went through before the allocation came that was to fail
bool ReadWithFailure(const std::wstring& path, int allocation) {
  CFontInformation font(nullptr);
  s_iAllocationsUntilFailure = allocation;
  try {
    font.ReadTT(nullptr, path.c_str(), nullptr, true, false, 400, false);
  } catch (const std::bad_alloc&) {
  } catch (const CKXException&) {
  }
  const bool through = s_iAllocationsUntilFailure != kNever;
  s_iAllocationsUntilFailure = kNever;
  // Whatever is left answers.
  EXPECT_GE(font.GetFontMetrics()->GetFontData()->GetLength(), 0);
  return through;
}

TEST(FontsOutOfMemory, LeaveFontsThatCanBeDestroyed) {
  if (!std::filesystem::exists(kSystemFont)) GTEST_SKIP() << "the font DejaVu Sans is not installed";
  int failures = 0;
  while (!ReadWithFailure(kSystemFont, failures)) ++failures;
  EXPECT_GT(failures, 20);
}

}  // namespace
