#include "reporttypes/ReportType.h"

#include "reporttypes/AvailableVH.h"
#include "reporttypes/ReportTypeZone.h"
#include "support/Files.h"
#include "support/KeepForever.h"
#include "support/TempDir.h"
#include "support/XMLFailure.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <type_traits>

namespace {

const std::filesystem::path kCatalogue = std::filesystem::path(ZEB_EXAMPLES) / "catalogue";

std::wstring Sample(const char* name) { return zebtest::WidePath(kCatalogue / name); }

class ReportTypeFile : public testing::Test {
 protected:
  std::wstring Write(const std::string& rootChildren) const {
    zebtest::WriteFile(m_dir.File("type.xml"),
                       "<ReportTypeRootElement>" + rootChildren + "</ReportTypeRootElement>");
    return m_dir.WideFile("type.xml");
  }
  std::string Saved(CReportType& type) const {
    type.SaveReportType(m_dir.WideFile("saved.xml").c_str());
    return zebtest::ReadFile(m_dir.File("saved.xml"));
  }

  zebtest::TempDir m_dir;
};

std::string Document(const std::string& children) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ReportTypeRootElement>\n" + children +
         "</ReportTypeRootElement>\n";
}

}  // namespace

TEST_F(ReportTypeFile, OfANewTypeHoldsTheThreeFieldsAndNoZone) {
  CReportType type;
  EXPECT_EQ(Saved(type), Document("  <VersionNr>2</VersionNr>\n"
                                  "  <ReportVersionNr>-1</ReportVersionNr>\n"
                                  "  <ReportType/>\n"));
}

TEST_F(ReportTypeFile, OfTheSampleComesBackByteForByte) {
  CReportType type;
  type.LoadReportType(Sample("reporttype.xml").c_str());
  EXPECT_EQ(Saved(type), zebtest::ReadFile(kCatalogue / "reporttype.xml"));
}

TEST_F(ReportTypeFile, OfGeneration2IsReadWhole) {
  CReportType type;
  type.LoadReportType(Sample("reporttype.xml").c_str());
  EXPECT_STREQ(type.GetReportType(), L"Rechnung");
  EXPECT_EQ(type.GetReportVersionNr(), 7);
  ASSERT_EQ(type.GetReportTypeZonesCount(), 6);
  const CReportTypeZone* head = type.GetReportTypeZoneAt(0);
  EXPECT_STREQ(head->GetInternalName(), L"Kopf");
  ASSERT_EQ(head->GetEquivalentInternalNameCount(), 1);
  EXPECT_STREQ(head->GetEquivalentInternalNameAt(0), L"Briefkopf");
  EXPECT_STREQ(head->GetExternalName(), L"Kopf");
  EXPECT_STREQ(head->GetExternalDescription(), L"Anschrift, Rechnungsdaten und Anrede; einmal am Anfang");
  EXPECT_FALSE(head->GetFooterZone());
  const CAvailableVH* city = head->GetAvailableValueHolderAt(4);
  EXPECT_STREQ(city->GetInternalName(), L"AD.Ort");
  EXPECT_STREQ(city->GetExternalName(), L"Ort");
  EXPECT_STREQ(city->GetExternalDescription(), L"");
  EXPECT_EQ(city->GetValueHolderType(), 1);
}

TEST_F(ReportTypeFile, OfGeneration1HoldsTheSameZonesAndValueHolders) {
  CReportType older;
  CReportType newer;
  older.LoadReportType(Sample("reporttype_v1.xml").c_str());
  newer.LoadReportType(Sample("reporttype.xml").c_str());
  ASSERT_EQ(older.GetReportTypeZonesCount(), newer.GetReportTypeZonesCount());
  for (int z = 0; z < older.GetReportTypeZonesCount(); ++z) {
    const CReportTypeZone* a = older.GetReportTypeZoneAt(z);
    const CReportTypeZone* b = newer.GetReportTypeZoneAt(z);
    EXPECT_STREQ(a->GetInternalName(), b->GetInternalName());
    EXPECT_STREQ(a->GetExternalName(), b->GetExternalName());
    EXPECT_STREQ(a->GetExternalDescription(), b->GetExternalDescription());
    EXPECT_EQ(a->GetEquivalentInternalNameCount(), 0);
    EXPECT_FALSE(a->GetFooterZone());
    ASSERT_EQ(a->GetAvailableValueHolderCount(), b->GetAvailableValueHolderCount());
    for (int v = 0; v < a->GetAvailableValueHolderCount(); ++v) {
      EXPECT_STREQ(a->GetAvailableValueHolderAt(v)->GetInternalName(),
                   b->GetAvailableValueHolderAt(v)->GetInternalName());
      EXPECT_EQ(a->GetAvailableValueHolderAt(v)->GetValueHolderType(),
                b->GetAvailableValueHolderAt(v)->GetValueHolderType());
    }
  }
}

TEST_F(ReportTypeFile, OfGeneration1WithTwoValueHoldersLoadsThemWithTheirTypes) {
  CReportType type;
  type.LoadReportType(
      Write("<VersionNr>1</VersionNr><ReportTypeZone>"
            "<InternalReportTypeZoneName>Z</InternalReportTypeZoneName>"
            "<ReportTypeZoneAvailableValueHolder><InternalName>A</InternalName>"
            "<AvailableValueHolderType>2</AvailableValueHolderType></ReportTypeZoneAvailableValueHolder>"
            "<ReportTypeZoneAvailableValueHolder><InternalName>B</InternalName>"
            "<AvailableValueHolderType>77</AvailableValueHolderType></ReportTypeZoneAvailableValueHolder>"
            "</ReportTypeZone>")
          .c_str());
  ASSERT_EQ(type.GetReportTypeZonesCount(), 1);
  const CReportTypeZone* zone = type.GetReportTypeZoneAt(0);
  ASSERT_EQ(zone->GetAvailableValueHolderCount(), 2);
  EXPECT_STREQ(zone->GetAvailableValueHolderAt(0)->GetInternalName(), L"A");
  EXPECT_EQ(zone->GetAvailableValueHolderAt(0)->GetValueHolderType(), 2);
  EXPECT_STREQ(zone->GetAvailableValueHolderAt(1)->GetInternalName(), L"B");
  EXPECT_EQ(zone->GetAvailableValueHolderAt(1)->GetValueHolderType(), 77);
}

TEST_F(ReportTypeFile, FixedOfGeneration1IsSavedUnderItsOldNumberWithNewNames) {
  CReportType type;
  type.LoadReportType(
      Write("<VersionNr>1</VersionNr><ReportVersionNr>4</ReportVersionNr><ReportType>T</ReportType>"
            "<ReportTypeZone><InternalReportTypeZoneName>Z</InternalReportTypeZoneName></ReportTypeZone>")
          .c_str());
  EXPECT_EQ(Saved(type), Document("  <VersionNr>1</VersionNr>\n"
                                  "  <ReportVersionNr>4</ReportVersionNr>\n"
                                  "  <ReportType>T</ReportType>\n"
                                  "  <ReportTypeZone>\n"
                                  "    <InternalName>Z</InternalName>\n"
                                  "    <ExternalName/>\n"
                                  "    <ExternalDescription/>\n"
                                  "  </ReportTypeZone>\n"));
  CReportType again;
  again.LoadReportType(m_dir.WideFile("saved.xml").c_str());
  ASSERT_EQ(again.GetReportTypeZonesCount(), 1);
  EXPECT_STREQ(again.GetReportTypeZoneAt(0)->GetInternalName(), L"");
}

// Under the number of the new generation the saved sample says all that the old one said.
TEST_F(ReportTypeFile, OfTheOldSampleIsSavedWholeInNewNames) {
  CReportType older;
  older.LoadReportType(Sample("reporttype_v1.xml").c_str());
  std::string saved = Saved(older);
  const std::string number = "<VersionNr>1</VersionNr>";
  ASSERT_NE(saved.find(number), std::string::npos);
  saved.replace(saved.find(number), number.size(), "<VersionNr>2</VersionNr>");
  zebtest::WriteFile(m_dir.File("newer.xml"), saved);
  CReportType newer;
  newer.LoadReportType(m_dir.WideFile("newer.xml").c_str());
  EXPECT_EQ(Saved(newer), saved);
  ASSERT_EQ(newer.GetReportTypeZonesCount(), 6);
  EXPECT_STREQ(newer.GetReportTypeZoneAt(2)->GetInternalName(), L"Position");
  ASSERT_EQ(newer.GetReportTypeZoneAt(2)->GetAvailableValueHolderCount(), 9);
  EXPECT_STREQ(newer.GetReportTypeZoneAt(2)->GetAvailableValueHolderAt(8)->GetInternalName(),
               L"PL.StueckJePalette");
}

TEST_F(ReportTypeFile, WithoutVersionCountsAsGeneration2) {
  CReportType type;
  type.LoadReportType(
      Write("<ReportType>T</ReportType><ReportTypeZone><InternalName>Z</InternalName></ReportTypeZone>")
          .c_str());
  EXPECT_STREQ(type.GetReportType(), L"T");
  ASSERT_EQ(type.GetReportTypeZonesCount(), 1);
  EXPECT_STREQ(type.GetReportTypeZoneAt(0)->GetInternalName(), L"Z");
}

TEST_F(ReportTypeFile, FixedOrderOfTheFirstFieldsDecidesWhatIsRead) {
  CReportType type;
  type.LoadReportType(Write("<VersionNr>2</VersionNr><ReportType>T</ReportType>"
                            "<ReportVersionNr>4</ReportVersionNr><ReportTypeZone/>")
                          .c_str());
  EXPECT_STREQ(type.GetReportType(), L"T");
  EXPECT_EQ(type.GetReportVersionNr(), -1);
  EXPECT_EQ(type.GetReportTypeZonesCount(), 0);
}

TEST_F(ReportTypeFile, EndsItsZonesAtTheFirstOtherElement) {
  CReportType type;
  type.LoadReportType(Write("<ReportTypeZone/><Other/><ReportTypeZone/>").c_str());
  EXPECT_EQ(type.GetReportTypeZonesCount(), 1);
}

TEST_F(ReportTypeFile, DoesNotTestTheRootsName) {
  zebtest::WriteFile(m_dir.File("type.xml"), "<Any><ReportType>T</ReportType></Any>");
  CReportType type;
  type.LoadReportType(m_dir.WideFile("type.xml").c_str());
  EXPECT_STREQ(type.GetReportType(), L"T");
}

TEST_F(ReportTypeFile, WritesFooterZoneOnlyIfTrue) {
  CReportType type;
  auto* zone = new CReportTypeZone;
  zone->SetInternalName(L"Z");
  zone->SetFooterZone(true);
  type.AddReportTypeZone(zone);
  EXPECT_NE(Saved(type).find("<FooterZone>1</FooterZone>"), std::string::npos);
  zone->SetFooterZone(false);
  EXPECT_EQ(Saved(type).find("FooterZone"), std::string::npos);
}

TEST_F(ReportTypeFile, ReadsAZoneWithoutFooterZoneAsNone) {
  CReportType type;
  type.LoadReportType(Write("<ReportTypeZone><InternalName>Z</InternalName></ReportTypeZone>"
                            "<ReportTypeZone><FooterZone>2</FooterZone></ReportTypeZone>")
                          .c_str());
  EXPECT_FALSE(type.GetReportTypeZoneAt(0)->GetFooterZone());
  EXPECT_TRUE(type.GetReportTypeZoneAt(1)->GetFooterZone());
}

TEST_F(ReportTypeFile, LoadedTwiceDoublesTheZones) {
  CReportType type;
  type.LoadReportType(Sample("reporttype.xml").c_str());
  type.LoadReportType(Sample("reporttype.xml").c_str());
  EXPECT_EQ(type.GetReportTypeZonesCount(), 12);
}

TEST_F(ReportTypeFile, HoldsAnEmptyNodeForANullZoneAndNoneForANullValueHolder) {
  CReportType type;
  type.AddReportTypeZone(nullptr);
  auto* zone = new CReportTypeZone;
  zone->AddAvailableValueHolder(nullptr);
  type.AddReportTypeZone(zone);
  EXPECT_EQ(Saved(type), Document("  <VersionNr>2</VersionNr>\n"
                                  "  <ReportVersionNr>-1</ReportVersionNr>\n"
                                  "  <ReportType/>\n"
                                  "  <ReportTypeZone/>\n"
                                  "  <ReportTypeZone>\n"
                                  "    <InternalName/>\n"
                                  "    <ExternalName/>\n"
                                  "    <ExternalDescription/>\n"
                                  "  </ReportTypeZone>\n"));
}

TEST_F(ReportTypeFile, HoldsWhatACallerPutTogether) {
  CReportType type;
  type.SetReportType(L"T");
  auto* zone = new CReportTypeZone;
  zone->SetInternalName(L"Z");
  zone->AddEquivalentInternalName(L"Y");
  zone->AddEquivalentInternalName(L"Y");
  zone->SetExternalName(L"Zone");
  zone->SetExternalDescription(L"D");
  auto* valueHolder = new CAvailableVH;
  EXPECT_EQ(valueHolder->GetValueHolderType(), 0);
  valueHolder->SetInternalName(L"K");
  valueHolder->SetExternalName(L"N");
  valueHolder->SetExternalDescription(L"E");
  valueHolder->SetValueHolderType(static_cast<CAvailableVH::AvailableValueHolderType>(8));
  zone->AddAvailableValueHolder(valueHolder);
  type.AddReportTypeZone(zone);
  EXPECT_EQ(Saved(type), Document("  <VersionNr>2</VersionNr>\n"
                                  "  <ReportVersionNr>-1</ReportVersionNr>\n"
                                  "  <ReportType>T</ReportType>\n"
                                  "  <ReportTypeZone>\n"
                                  "    <InternalName>Z</InternalName>\n"
                                  "    <EquivalentInternalName>Y</EquivalentInternalName>\n"
                                  "    <EquivalentInternalName>Y</EquivalentInternalName>\n"
                                  "    <ExternalName>Zone</ExternalName>\n"
                                  "    <ExternalDescription>D</ExternalDescription>\n"
                                  "    <VH>\n"
                                  "      <Key>K</Key>\n"
                                  "      <Name>N</Name>\n"
                                  "      <Desc>E</Desc>\n"
                                  "      <Type>8</Type>\n"
                                  "    </VH>\n"
                                  "  </ReportTypeZone>\n"));
}

TEST_F(ReportTypeFile, ReadsZonesInTheNamesOfItsVersion) {
  const std::string oldZone =
      "<ReportTypeZone><InternalReportTypeZoneName>Z</InternalReportTypeZoneName></ReportTypeZone>";
  const std::string newZone = "<ReportTypeZone><InternalName>Z</InternalName></ReportTypeZone>";
  for (const char* version : {"1", "0", "-1", "none"}) {
    CReportType type;
    type.LoadReportType(
        Write(std::string("<VersionNr>") + version + "</VersionNr>" + oldZone + newZone).c_str());
    ASSERT_EQ(type.GetReportTypeZonesCount(), 2) << version;
    EXPECT_STREQ(type.GetReportTypeZoneAt(0)->GetInternalName(), L"Z") << version;
    EXPECT_STREQ(type.GetReportTypeZoneAt(1)->GetInternalName(), L"") << version;
  }
  for (const char* version : {"2", "3"}) {
    CReportType type;
    type.LoadReportType(
        Write(std::string("<VersionNr>") + version + "</VersionNr>" + oldZone + newZone).c_str());
    ASSERT_EQ(type.GetReportTypeZonesCount(), 2) << version;
    EXPECT_STREQ(type.GetReportTypeZoneAt(0)->GetInternalName(), L"") << version;
    EXPECT_STREQ(type.GetReportTypeZoneAt(1)->GetInternalName(), L"Z") << version;
  }
}

TEST_F(ReportTypeFile, FixedVersionNumberStaysForALoadThatNamesNone) {
  CReportType type;
  type.LoadReportType(Write("<VersionNr>1</VersionNr>").c_str());
  type.LoadReportType(Write("<ReportTypeZone><InternalName>Z</InternalName></ReportTypeZone>").c_str());
  ASSERT_EQ(type.GetReportTypeZonesCount(), 1);
  EXPECT_STREQ(type.GetReportTypeZoneAt(0)->GetInternalName(), L"");
}

TEST_F(ReportTypeFile, ThatIsMissingOrMalformedIsAnXMLExceptionOfTheSameNumberAndMessage) {
  CReportType type;
  const auto load = [&](const std::wstring& file) {
    return zebtest::RaisedFailure([&] { type.LoadReportType(file.c_str()); });
  };
  const std::wstring missing = m_dir.WideFile("missing.xml");
  EXPECT_EQ(load(missing), zebtest::FailureOfLoading(missing));
  EXPECT_EQ(load(missing).Number, 1);
  const std::wstring open = Write("<open>");
  EXPECT_EQ(load(open), zebtest::FailureOfLoading(open));
  EXPECT_EQ(load(open).Number, 2);
}

TEST_F(ReportTypeFile, ThatCannotBeWrittenIsAnXMLException) {
  CReportType type;
  const auto save = [&](const std::wstring& file) {
    return zebtest::RaisedFailure([&] { type.SaveReportType(file.c_str()); });
  };
  EXPECT_EQ(save(m_dir.WideFile("no/folder.xml")),
            zebtest::FailureOfSaving(L"ReportTypeRootElement", m_dir.WideFile("no/folder.xml")));
  EXPECT_EQ(save(m_dir.WideFile("no/folder.xml")).Number, 3);
  zebtest::WriteFile(m_dir.File("old.xml"), "old");
  std::filesystem::permissions(m_dir.File("old.xml"), std::filesystem::perms::owner_read);
  EXPECT_EQ(save(m_dir.WideFile("old.xml")).Number, 4);
  EXPECT_EQ(zebtest::ReadFile(m_dir.File("old.xml")), "old");
}

TEST_F(ReportTypeFile, FixedCopiesAreSavedUnderTheVersionNumberOfTheirSource) {
  CReportType source;
  source.LoadReportType(Write("<VersionNr>1</VersionNr><ReportVersionNr>4</ReportVersionNr>").c_str());
  CReportType copy = source;
  CReportType assigned;
  assigned = source;
  for (CReportType* each : {&copy, &assigned}) {
    EXPECT_EQ(Saved(*each), Document("  <VersionNr>1</VersionNr>\n"
                                     "  <ReportVersionNr>4</ReportVersionNr>\n"
                                     "  <ReportType/>\n"));
  }
}

TEST(ReportType, CopiesShareTheZones) {
  CReportType type;
  type.SetReportType(L"T");
  type.AddReportTypeZone(new CReportTypeZone);
  auto& copy = zebtest::KeepForever(new CReportType(type));
  auto& assigned = zebtest::KeepForever(new CReportType);
  assigned = type;
  type.SetReportType(L"other");
  type.AddReportTypeZone(new CReportTypeZone);
  for (const CReportType* each : {&copy, &assigned}) {
    ASSERT_EQ(each->GetReportTypeZonesCount(), 1);
    EXPECT_EQ(each->GetReportTypeZoneAt(0), type.GetReportTypeZoneAt(0));
    EXPECT_STREQ(each->GetReportType(), L"T");
  }
}

TEST(ReportType, OffersItsOperationsUnderTheirSignatures) {
  static_assert(std::has_virtual_destructor_v<CReportType>);
  static_assert(
      std::is_same_v<decltype(&CReportType::LoadReportType), void (CReportType::*)(const wchar_t*)>);
  static_assert(
      std::is_same_v<decltype(&CReportType::SaveReportType), void (CReportType::*)(const wchar_t*)>);
  static_assert(
      std::is_same_v<decltype(&CReportType::AddReportTypeZone), void (CReportType::*)(CReportTypeZone*)>);
  static_assert(std::is_same_v<decltype(&CReportType::GetReportTypeZoneAt),
                               CReportTypeZone* (CReportType::*)(int) const>);
  static_assert(
      std::is_same_v<decltype(&CReportType::GetReportTypeZonesCount), int (CReportType::*)() const>);
  static_assert(std::is_same_v<decltype(&CReportType::GetReportVersionNr), int (CReportType::*)() const>);
}
