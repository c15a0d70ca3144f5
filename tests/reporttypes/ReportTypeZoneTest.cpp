#include "reporttypes/ReportTypeZone.h"

#include "reporttypes/AvailableVH.h"
#include "support/KeepForever.h"
#include "support/NodeRecord.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

using zebtest::LoadNode;
using zebtest::SaveNode;

namespace {

constexpr auto kGeneration1 =
    "<InternalReportTypeZoneName>Z</InternalReportTypeZoneName>"
    "<ExternalReportTypeZoneName>Zone</ExternalReportTypeZoneName>"
    "<ExternalReportTypeZoneDescription>D</ExternalReportTypeZoneDescription>"
    "<ReportTypeZoneAvailableValueHolder><InternalName>A</InternalName>"
    "<AvailableValueHolderType>2</AvailableValueHolderType></ReportTypeZoneAvailableValueHolder>"
    "<ReportTypeZoneAvailableValueHolder><InternalName>B</InternalName>"
    "<AvailableValueHolderType>8</AvailableValueHolderType></ReportTypeZoneAvailableValueHolder>";
constexpr auto kGeneration2 =
    "<InternalName>Z</InternalName><EquivalentInternalName>Y</EquivalentInternalName>"
    "<EquivalentInternalName>X</EquivalentInternalName><ExternalName>Zone</ExternalName>"
    "<ExternalDescription>D</ExternalDescription><FooterZone>1</FooterZone>"
    "<VH><Key>A</Key><Name/><Desc/><Type>2</Type></VH><VH><Key>B</Key><Name/><Desc/><Type>8</Type></VH>";

using Strings = std::vector<std::wstring>;

Strings EquivalentNames(const CReportTypeZone& zone) {
  Strings names;
  for (int i = 0; i < zone.GetEquivalentInternalNameCount(); ++i) {
    names.emplace_back(zone.GetEquivalentInternalNameAt(i));
  }
  return names;
}

/// The value holders as `KEY TYPE`.
Strings ValueHolders(const CReportTypeZone& zone) {
  Strings all;
  for (int i = 0; i < zone.GetAvailableValueHolderCount(); ++i) {
    const CAvailableVH& valueHolder = *zone.GetAvailableValueHolderAt(i);
    all.push_back(valueHolder.GetInternalName() + (L' ' + std::to_wstring(valueHolder.GetValueHolderType())));
  }
  return all;
}

/// A zone that the children are read into.
class LoadedZone : public CReportTypeZone {
 public:
  LoadedZone(int version, const std::string& children) {
    SetVersionNr(version);
    LoadNode(*this, children);
  }
};

}  // namespace

TEST(ReportTypeZone, VirtualOperationsStandInTheirOrder) {
  static_assert(std::has_virtual_destructor_v<CReportTypeZone>);
  EXPECT_EQ(zebtest::VirtualSlot(&CReportTypeZone::Load), 2U);
  EXPECT_EQ(zebtest::VirtualSlot(&CReportTypeZone::Save), 3U);
}

TEST(ReportTypeZone, OffersItsOperationsUnderTheirSignatures) {
  using Zone = CReportTypeZone;
  static_assert(std::is_same_v<decltype(&Zone::Load), bool (Zone::*)(zebxmln::CXMLNode*)>);
  static_assert(std::is_same_v<decltype(&Zone::Save), bool (Zone::*)(zebxmln::CXMLNode*)>);
  static_assert(
      std::is_same_v<decltype(&Zone::GetEquivalentInternalNameAt), const wchar_t* (Zone::*)(int) const>);
  static_assert(std::is_same_v<decltype(&Zone::GetEquivalentInternalNameCount), int (Zone::*)() const>);
  static_assert(
      std::is_same_v<decltype(&Zone::GetAvailableValueHolderAt), CAvailableVH* (Zone::*)(int) const>);
  static_assert(std::is_same_v<decltype(&Zone::GetAvailableValueHolderCount), int (Zone::*)() const>);
  static_assert(std::is_same_v<decltype(&Zone::AddAvailableValueHolder), void (Zone::*)(CAvailableVH*)>);
}

TEST(ReportTypeZone, StartsEmpty) {
  CReportTypeZone zone;
  EXPECT_STREQ(zone.GetInternalName(), L"");
  EXPECT_STREQ(zone.GetExternalName(), L"");
  EXPECT_STREQ(zone.GetExternalDescription(), L"");
  EXPECT_FALSE(zone.GetFooterZone());
  EXPECT_EQ(zone.GetEquivalentInternalNameCount(), 0);
  EXPECT_EQ(zone.GetAvailableValueHolderCount(), 0);
  EXPECT_EQ(SaveNode(zone), "<InternalName/><ExternalName/><ExternalDescription/>");
}

TEST(ReportTypeZone, ReadsGeneration2Whole) {
  for (const int version : {2, 3}) {
    LoadedZone zone(version, kGeneration2);
    EXPECT_STREQ(zone.GetInternalName(), L"Z");
    EXPECT_EQ(EquivalentNames(zone), (Strings{L"Y", L"X"}));
    EXPECT_STREQ(zone.GetExternalName(), L"Zone");
    EXPECT_STREQ(zone.GetExternalDescription(), L"D");
    EXPECT_TRUE(zone.GetFooterZone());
    EXPECT_EQ(ValueHolders(zone), (Strings{L"A 2", L"B 8"}));
    EXPECT_EQ(SaveNode(zone), kGeneration2);
  }
}

TEST(ReportTypeZone, ReadsGeneration1Whole) {
  for (const int version : {-1, 0, 1}) {
    const LoadedZone zone(version, kGeneration1);
    EXPECT_STREQ(zone.GetInternalName(), L"Z");
    EXPECT_EQ(EquivalentNames(zone), Strings{});
    EXPECT_STREQ(zone.GetExternalName(), L"Zone");
    EXPECT_STREQ(zone.GetExternalDescription(), L"D");
    EXPECT_FALSE(zone.GetFooterZone());
    EXPECT_EQ(ValueHolders(zone), (Strings{L"A 2", L"B 8"}));
  }
}

TEST(ReportTypeZone, FixedWithoutVersionNumberReadsGeneration1) {
  CReportTypeZone newer;
  LoadNode(newer, kGeneration2);
  EXPECT_STREQ(newer.GetInternalName(), L"");
  EXPECT_EQ(newer.GetAvailableValueHolderCount(), 0);
  CReportTypeZone older;
  LoadNode(older, kGeneration1);
  EXPECT_STREQ(older.GetInternalName(), L"Z");
  EXPECT_EQ(ValueHolders(older), (Strings{L"A 2", L"B 8"})) << "its value holders read generation 1 too";
}

TEST(ReportTypeZone, FixedIsSavedInNewNamesWhateverItsVersion) {
  LoadedZone zone(1, kGeneration1);
  EXPECT_EQ(SaveNode(zone),
            "<InternalName>Z</InternalName><ExternalName>Zone</ExternalName>"
            "<ExternalDescription>D</ExternalDescription>"
            "<VH><Key>A</Key><Name/><Desc/><Type>2</Type></VH>"
            "<VH><Key>B</Key><Name/><Desc/><Type>8</Type></VH>");
}

TEST(ReportTypeZone, HandsItsVersionNumberToItsValueHolders) {
  EXPECT_EQ(ValueHolders(LoadedZone(2, "<VH><InternalName>old</InternalName></VH>")), Strings{L" 0"});
  EXPECT_EQ(ValueHolders(LoadedZone(1,
                                    "<ReportTypeZoneAvailableValueHolder><Key>new</Key>"
                                    "</ReportTypeZoneAvailableValueHolder>")),
            Strings{L" 0"});
}

TEST(ReportTypeZone, ReadsNothingOfTheOtherGeneration) {
  const LoadedZone zone(2, kGeneration1);
  EXPECT_STREQ(zone.GetInternalName(), L"");
  EXPECT_STREQ(zone.GetExternalName(), L"");
  EXPECT_EQ(zone.GetAvailableValueHolderCount(), 0);
}

TEST(ReportTypeZone, ReadsEachFieldOnlyAtItsPlace) {
  const LoadedZone late(2,
                        "<InternalName>Z</InternalName><ExternalName>N</ExternalName>"
                        "<EquivalentInternalName>Y</EquivalentInternalName><VH><Key>A</Key></VH>");
  EXPECT_STREQ(late.GetExternalName(), L"N");
  EXPECT_EQ(EquivalentNames(late), Strings{});
  EXPECT_EQ(late.GetAvailableValueHolderCount(), 0) << "the name out of its place ends the walk";
  const LoadedZone broken(2, "<VH><Key>A</Key></VH><Other/><VH><Key>B</Key></VH>");
  EXPECT_EQ(ValueHolders(broken), Strings{L"A 0"});
  const LoadedZone oldBroken(1,
                             "<ReportTypeZoneAvailableValueHolder/><Other/>"
                             "<ReportTypeZoneAvailableValueHolder/>");
  EXPECT_EQ(oldBroken.GetAvailableValueHolderCount(), 1);
  const LoadedZone footerLast(2, "<VH><Key>A</Key></VH><FooterZone>1</FooterZone>");
  EXPECT_FALSE(footerLast.GetFooterZone());
}

TEST(ReportTypeZone, AppendsWhatIsReadAgain) {
  LoadedZone zone(2, kGeneration2);
  LoadNode(zone, kGeneration2);
  EXPECT_EQ(EquivalentNames(zone), (Strings{L"Y", L"X", L"Y", L"X"}));
  EXPECT_EQ(ValueHolders(zone), (Strings{L"A 2", L"B 8", L"A 2", L"B 8"}));
}

TEST(ReportTypeZone, KeepsCopiesOfEquivalentNames) {
  CReportTypeZone zone;
  std::wstring name = L"Y";
  zone.AddEquivalentInternalName(name.c_str());
  zone.AddEquivalentInternalName(name.c_str());
  name = L"changed";
  EXPECT_EQ(EquivalentNames(zone), (Strings{L"Y", L"Y"}));
}

TEST(ReportTypeZone, CopiesShareTheValueHoldersOnly) {
  LoadedZone zone(2, kGeneration2);
  auto& copy = zebtest::KeepForever(new CReportTypeZone(zone));
  auto& assigned = zebtest::KeepForever(new CReportTypeZone);
  assigned = zone;
  zone.SetInternalName(L"other");
  zone.AddEquivalentInternalName(L"W");
  zone.SetFooterZone(false);
  zone.AddAvailableValueHolder(new CAvailableVH);
  for (const CReportTypeZone* each : {&copy, &assigned}) {
    EXPECT_STREQ(each->GetInternalName(), L"Z");
    EXPECT_EQ(EquivalentNames(*each), (Strings{L"Y", L"X"}));
    EXPECT_STREQ(each->GetExternalName(), L"Zone");
    EXPECT_STREQ(each->GetExternalDescription(), L"D");
    EXPECT_TRUE(each->GetFooterZone());
    ASSERT_EQ(each->GetAvailableValueHolderCount(), 2);
    EXPECT_EQ(each->GetAvailableValueHolderAt(0), zone.GetAvailableValueHolderAt(0));
    EXPECT_EQ(each->GetAvailableValueHolderAt(1), zone.GetAvailableValueHolderAt(1));
  }
}
