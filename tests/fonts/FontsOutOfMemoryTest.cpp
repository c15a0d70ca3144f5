// Every allocation of a reading fails once. The program's own allocations are replaced for that, so that this is a program
// of its own.

#include "fonts/FontData.h"
#include "fonts/FontInformation.h"
#include "fonts/FontMetrics.h"
#include "foundation/KXException.h"
#include "support/FailingAllocations.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <string>

namespace {

const std::wstring kSystemFont = L"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

/// @return whether the reading went through before the allocation came that was to fail
bool ReadWithFailure(const std::wstring& path, int allocation) {
  CFontInformation font(nullptr);
  zebtest::FailAllocation(allocation);
  try {
    font.ReadTT(nullptr, path.c_str(), nullptr, true, false, 400, false);
  } catch (const std::bad_alloc&) {
    // What the records of the font are made of.
  } catch (const CKXException&) {
    // The block of its bytes.
  }
  const bool through = !zebtest::StopFailing();
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
