#include "reporttypes/ReportDescription.h"

#include "support/NodeRecord.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <type_traits>

using zebtest::LoadNode;
using zebtest::SaveNode;

namespace {

constexpr auto kGeneration1 =
    "<ReportType>T</ReportType><ReportName>N</ReportName>"
    "<ReportDescriptionSubDirectory>folder</ReportDescriptionSubDirectory>"
    "<ReportDescriptionFileName>f.xml</ReportDescriptionFileName>";
constexpr auto kGeneration2 =
    "<ReportType>T</ReportType><ReportName>N</ReportName><FileName>f.xml</FileName>";

/// An entry that the children are read into.
class LoadedEntry : public CReportDescription {
 public:
  LoadedEntry(int version, const char* children) {
    SetVersionNr(version);
    LoadNode(*this, children);
  }
};

void ExpectFields(const CReportDescription& entry, const wchar_t* type, const wchar_t* name,
                  const wchar_t* file) {
  EXPECT_STREQ(entry.GetReportType(), type);
  EXPECT_STREQ(entry.GetReportName(), name);
  EXPECT_STREQ(entry.GetFileName(), file);
}

}  // namespace

TEST(ReportDescription, VirtualOperationsStandInTheirOrder) {
  static_assert(std::has_virtual_destructor_v<CReportDescription>);
  EXPECT_EQ(zebtest::VirtualSlot(&CReportDescription::Load), 2U);
  EXPECT_EQ(zebtest::VirtualSlot(&CReportDescription::Save), 3U);
}

TEST(ReportDescription, WritesAllFieldsAlways) {
  CReportDescription entry;
  ExpectFields(entry, L"", L"", L"");
  EXPECT_EQ(SaveNode(entry), "<ReportType/><ReportName/><FileName/>");
}

TEST(ReportDescription, FixedGeneration1FolderIsPassedOver) {
  for (const int version : {-1, 0, 1}) {
    LoadedEntry entry(version, kGeneration1);
    ExpectFields(entry, L"T", L"N", L"f.xml");
    EXPECT_EQ(SaveNode(entry), kGeneration2) << "and the folder is not written";
  }
  ExpectFields(LoadedEntry(1, "<ReportDescriptionFileName>f</ReportDescriptionFileName>"), L"", L"", L"f");
  ExpectFields(LoadedEntry(1, "<ReportDescriptionSubDirectory>d</ReportDescriptionSubDirectory>"), L"", L"",
               L"");
}

TEST(ReportDescription, ReadsTheNamesOfItsVersion) {
  for (const int version : {2, 3}) {
    ExpectFields(LoadedEntry(version, kGeneration2), L"T", L"N", L"f.xml");
    ExpectFields(LoadedEntry(version, kGeneration1), L"T", L"N", L"");
  }
  ExpectFields(LoadedEntry(1, kGeneration2), L"T", L"N", L"");
}

TEST(ReportDescription, ReadsEachFieldOnlyAtItsPlace) {
  ExpectFields(LoadedEntry(2, "<ReportName>N</ReportName><ReportType>T</ReportType><FileName>f</FileName>"),
               L"", L"N", L"");
  ExpectFields(LoadedEntry(2, "<FileName>f</FileName>"), L"", L"", L"f");
  ExpectFields(LoadedEntry(1,
                           "<ReportDescriptionFileName>f</ReportDescriptionFileName>"
                           "<ReportDescriptionSubDirectory>d</ReportDescriptionSubDirectory>"),
               L"", L"", L"f");
  ExpectFields(LoadedEntry(2, "<Unknown/><ReportType>T</ReportType>"), L"", L"", L"");
}

TEST(ReportDescription, CopiesHaveTextsOfTheirOwn) {
  LoadedEntry source(2, kGeneration2);
  CReportDescription copy = source;
  CReportDescription assigned;
  assigned = source;
  source.SetReportType(L"other");
  source.SetReportName(L"other");
  source.SetFileName(L"other");
  for (CReportDescription* each : {&copy, &assigned}) {
    ExpectFields(*each, L"T", L"N", L"f.xml");
    LoadNode(*each, "<FileName>again</FileName>");
    EXPECT_STREQ(each->GetFileName(), L"again") << "the version number is copied too";
  }
}
