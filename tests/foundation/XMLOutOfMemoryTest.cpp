// Every allocation of a reading and a writing fails once. The program's own allocations are replaced for that, so that
// these tests are a program of their own.

#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <iterator>
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

using zebxmln::CXMLDocument;
using zebxmln::CXMLException;
using zebxmln::CXMLManager;

/// Runs an action with each of its allocations failing once.
/// @param check is run after each failure that was reported
/// @return how many failures were reported, each with the code of too little memory
template <class Action, class Check>
int FailEachAllocation(Action action, Check check) {
  int reported = 0;
  for (int allocation = 0;; ++allocation) {
    s_iAllocationsUntilFailure = allocation;
    try {
      action();
      const bool anyFailed = s_iAllocationsUntilFailure == kNever;
      s_iAllocationsUntilFailure = kNever;
      if (!anyFailed) return reported;
    } catch (const CXMLException& exception) {
      s_iAllocationsUntilFailure = kNever;
      EXPECT_EQ(exception.GetErrorCode(), CXMLException::OutOfMemory);
      check();
      ++reported;
    } catch (const std::bad_alloc&) {
      // The path itself could not be copied.
      check();
    }
  }
}

int FailEachAllocationOfReading(const std::string& text) {
  const zebtest::TempDir folder;
  zebtest::WriteFile(folder.File("text.xml"), text);
  const std::wstring path = folder.WideFile("text.xml");
  return FailEachAllocation(
      [&] {
        CXMLDocument* document =
            CXMLManager::GetInstance().LoadDocument(path.c_str(), true, false, nullptr, false, false);
        document->DestroyDocument();
      },
      [] {});
}

TEST(XMLOutOfMemory, IsReportedWhereverAReadingMeetsIt) {
  EXPECT_GT(FailEachAllocationOfReading("<R><A>text</A><B><C/><C/></B></R>"), 5);
}

TEST(XMLOutOfMemory, IsReportedAtTheStartOfAnEmptyRoot) { EXPECT_GT(FailEachAllocationOfReading("<R/>"), 3); }

TEST(XMLOutOfMemory, IsReportedAndLeavesTheOldFileWhereverAWritingMeetsIt) {
  const zebtest::TempDir folder;
  const std::wstring path = folder.WideFile("text.xml");
  const zebtest::DocumentPointer document = zebtest::LoadText("<R><A>text</A><B><C/><C/></B></R>");
  zebtest::WriteFile(folder.File("text.xml"), "old");
  const int reported = FailEachAllocation(
      [&] { document->SaveDocumentToFile(path.c_str(), true); },
      [&] {
        EXPECT_EQ(zebtest::ReadFile(folder.File("text.xml")), "old");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
      });
  EXPECT_GT(reported, 2);
  EXPECT_NE(zebtest::ReadFile(folder.File("text.xml")), "old");
}

}  // namespace
