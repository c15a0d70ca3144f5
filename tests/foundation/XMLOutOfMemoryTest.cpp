// Every allocation of a reading and a writing fails once. The program's own allocations are replaced for that, so that
// these tests are a program of their own.

#include "support/FailingAllocations.h"
#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <new>
#include <string>

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
    zebtest::FailAllocation(allocation);
    try {
      action();
      if (!zebtest::StopFailing()) return reported;
    } catch (const CXMLException& exception) {
      zebtest::StopFailing();
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
