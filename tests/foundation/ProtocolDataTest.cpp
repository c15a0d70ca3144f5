#include "foundation/ProtocolData.h"

#include "foundation/KXException.h"
#include "foundation/LogEntry.h"
#include "foundation/XMLManager.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

using zebtest::ReadFile;
using zebtest::TempDir;
using zebtest::WriteFile;

namespace {

std::string Saved(CProtocolData& protocol) {
  const TempDir dir;
  protocol.SaveProtocolData(dir.WideFile("protocol.xml").c_str());
  return ReadFile(dir.File("protocol.xml"));
}

std::string File(const std::string& content) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ProtocolData>\n" + content + "</ProtocolData>\n";
}

}  // namespace

TEST(LogEntry, HoldsLevelAndText) {
  const CLogEntry entry(-3, L"Zeile");
  EXPECT_EQ(entry.GetLevel(), -3);
  EXPECT_STREQ(entry.GetText(), L"Zeile");
  EXPECT_TRUE(std::has_virtual_destructor_v<CLogEntry>);
}

TEST(ProtocolData, BeginsAsASuccess) {
  const CProtocolData protocol;
  EXPECT_EQ(protocol.GetErrorNr(), 0);
  EXPECT_STREQ(protocol.GetErrorMessage(), L"Keine Fehler aufgetreten");
  EXPECT_EQ(protocol.GetLogEntryCount(), 0);
  EXPECT_TRUE(std::has_virtual_destructor_v<CProtocolData>);
}

TEST(ProtocolData, KeepsLogEntriesInTheOrderOfAdding) {
  CProtocolData protocol;
  protocol.AddLogEntry(2, L"zwei");
  protocol.AddLogEntry(1, L"eins");
  ASSERT_EQ(protocol.GetLogEntryCount(), 2);
  EXPECT_EQ(protocol.GetLogEntryAt(0)->GetLevel(), 2);
  EXPECT_STREQ(protocol.GetLogEntryAt(0)->GetText(), L"zwei");
  EXPECT_EQ(protocol.GetLogEntryAt(1)->GetLevel(), 1);
  EXPECT_STREQ(protocol.GetLogEntryAt(1)->GetText(), L"eins");
}

TEST(ProtocolData, ResultAndLogEntriesDoNotTouchEachOther) {
  CProtocolData protocol;
  protocol.AddLogEntry(9, L"schlimm");
  EXPECT_EQ(protocol.GetErrorNr(), 0);
  EXPECT_STREQ(protocol.GetErrorMessage(), L"Keine Fehler aufgetreten");
  protocol.SetError(17, L"Abbruch");
  EXPECT_EQ(protocol.GetErrorNr(), 17);
  EXPECT_STREQ(protocol.GetErrorMessage(), L"Abbruch");
  EXPECT_EQ(protocol.GetLogEntryCount(), 1);
}

TEST(ProtocolData, ANewRecordSavesItsDefaults) {
  CProtocolData protocol;
  EXPECT_EQ(Saved(protocol), File("  <VersionNr>1</VersionNr>\n"
                                  "  <ErrorNr>0</ErrorNr>\n"
                                  "  <ErrorMessage>Keine Fehler aufgetreten</ErrorMessage>\n"));
}

TEST(ProtocolData, SavesResultAndLogEntries) {
  CProtocolData protocol;
  protocol.SetError(-5, L"a < b & \u00FC");
  protocol.AddLogEntry(1, L"gleich");
  protocol.AddLogEntry(1, L"gleich");
  protocol.AddLogEntry(std::numeric_limits<int>::min(), L"zwei\nZeilen");
  EXPECT_EQ(Saved(protocol), File("  <VersionNr>1</VersionNr>\n"
                                  "  <ErrorNr>-5</ErrorNr>\n"
                                  "  <ErrorMessage>a &lt; b &amp; \xC3\xBC</ErrorMessage>\n"
                                  "  <LogEntry Level=\"1\">gleich</LogEntry>\n"
                                  "  <LogEntry Level=\"1\">gleich</LogEntry>\n"
                                  "  <LogEntry Level=\"-2147483648\">zwei\nZeilen</LogEntry>\n"));
}

TEST(ProtocolData, SavingReplacesAFile) {
  const TempDir dir;
  WriteFile(dir.File("protocol.xml"), std::string(10000, 'x'));
  CProtocolData protocol;
  protocol.SaveProtocolData(dir.WideFile("protocol.xml").c_str());
  EXPECT_EQ(ReadFile(dir.File("protocol.xml")), Saved(protocol));
}

TEST(ProtocolData, SavingThrowsWhatTheXMLFacilityReports) {
  const TempDir dir;
  CProtocolData protocol;
  protocol.SetError(4, L"Abbruch");
  try {
    protocol.SaveProtocolData((dir.WidePath() + L"/missing/protocol.xml").c_str());
    FAIL() << "nothing thrown";
  } catch (const CKXXMLException& exception) {
    EXPECT_EQ(exception.GetErrorNr(), zebxmln::CXMLException::CannotWrite);
    EXPECT_NE(std::wstring(exception.GetErrorMessage()).find(L"protocol.xml"), std::wstring::npos);
  }
  EXPECT_EQ(protocol.GetErrorNr(), 4);
  EXPECT_STREQ(protocol.GetErrorMessage(), L"Abbruch");
}

TEST(ProtocolData, CopiesShareTheLogEntriesFixed) {
  CProtocolData protocol;
  protocol.AddLogEntry(1, L"eins");
  protocol.SetError(3, L"Abbruch");
  CProtocolData copy(protocol);
  EXPECT_EQ(copy.GetErrorNr(), 3);
  EXPECT_STREQ(copy.GetErrorMessage(), L"Abbruch");
  ASSERT_EQ(copy.GetLogEntryCount(), 1);
  EXPECT_EQ(copy.GetLogEntryAt(0), protocol.GetLogEntryAt(0));
  // An assignment frees nothing: the copy lets go of the entry, which its source owns.
  copy = CProtocolData();
  EXPECT_EQ(copy.GetLogEntryCount(), 0);
  EXPECT_STREQ(protocol.GetLogEntryAt(0)->GetText(), L"eins");
}

TEST(ProtocolData, AssignmentSharesTheLogEntriesFixed) {
  CProtocolData source;
  source.AddLogEntry(1, L"eins");
  source.SetError(3, L"Abbruch");
  CProtocolData target;
  target = source;
  EXPECT_EQ(target.GetErrorNr(), 3);
  EXPECT_STREQ(target.GetErrorMessage(), L"Abbruch");
  ASSERT_EQ(target.GetLogEntryCount(), 1);
  EXPECT_EQ(target.GetLogEntryAt(0), source.GetLogEntryAt(0));
  source = CProtocolData();  // the entry is the target's now
}
