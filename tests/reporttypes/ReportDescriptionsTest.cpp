#include "reporttypes/ReportDescriptions.h"

#include "reporttypes/DynamicValueHolderAttribute.h"
#include "reporttypes/DynamicValueHolderItem.h"
#include "reporttypes/DynamicValueHolderType.h"
#include "reporttypes/ReportDescription.h"
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

class ReportDescriptionsFile : public testing::Test {
 protected:
  std::wstring Write(const std::string& rootChildren) const {
    zebtest::WriteFile(m_dir.File("catalogue.xml"), "<R>" + rootChildren + "</R>");
    return m_dir.WideFile("catalogue.xml");
  }
  std::string Saved(CReportDescriptions& descriptions) const {
    descriptions.SaveReportDescriptions(m_dir.WideFile("saved.xml").c_str());
    return zebtest::ReadFile(m_dir.File("saved.xml"));
  }

  zebtest::TempDir m_dir;
};

std::string Document(const std::string& children) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ReportDescriptionRootElement>\n" + children +
         "</ReportDescriptionRootElement>\n";
}

}  // namespace

TEST_F(ReportDescriptionsFile, OfAnEmptyCatalogueHoldsTheThreeFieldsOnly) {
  CReportDescriptions descriptions;
  EXPECT_EQ(Saved(descriptions), Document("  <VersionNr>2</VersionNr>\n"
                                          "  <ReportDescriptionVersionNr>-1</ReportDescriptionVersionNr>\n"
                                          "  <ProductFamily/>\n"));
}

TEST_F(ReportDescriptionsFile, OfTheSampleComesBackByteForByte) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(Sample("descriptions.xml").c_str());
  EXPECT_EQ(Saved(descriptions), zebtest::ReadFile(kCatalogue / "descriptions.xml"));
}

TEST_F(ReportDescriptionsFile, OfGeneration2IsReadWhole) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(Sample("descriptions.xml").c_str());
  EXPECT_STREQ(descriptions.GetProductFamily(), L"Handel & Bank");
  EXPECT_EQ(descriptions.GetReportDescriptionVersionNr(), 3);
  ASSERT_EQ(descriptions.GetReportDescriptionsCount(), 3);
  const CReportDescription* statement = descriptions.GetReportDescriptionAt(1);
  EXPECT_STREQ(statement->GetReportType(), L"Kontoauszug");
  EXPECT_STREQ(statement->GetReportName(), L"Kontoauszug (Polnisch, Griechisch, Bulgarisch)");
  EXPECT_STREQ(statement->GetFileName(), L"statement\\report.xml");
  ASSERT_EQ(descriptions.GetDynamicVHItemCount(), 3);
  CDynamicValueHolderItem* item = descriptions.GetDynamicVHItemAt(0);
  EXPECT_STREQ(item->GetDynVHType()->GetName(), L"Zusatzfeld");
  EXPECT_STREQ(item->GetDynVHType()->GetPrefix(), L"ZF.");
  EXPECT_EQ(descriptions.GetDynamicVHItemAt(2)->GetDynVHAttributeCount(), 0);
}

TEST_F(ReportDescriptionsFile, KeepsTheOrderOfAttributes) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(Sample("descriptions.xml").c_str());
  Saved(descriptions);
  CReportDescriptions again;
  again.LoadReportDescriptions(m_dir.WideFile("saved.xml").c_str());
  CDynamicValueHolderItem* item = again.GetDynamicVHItemAt(0);
  ASSERT_EQ(item->GetDynVHAttributeCount(), 2);
  EXPECT_STREQ(item->GetDynVHAttributeAt(0)->GetInternalKey(), L"Kostenstelle");
  EXPECT_STREQ(item->GetDynVHAttributeAt(1)->GetInternalKey(), L"Berater");
  EXPECT_STREQ(item->GetDynVHAttributeAt(1)->GetName(),
               L"Berater / \x03A3\x03CD\x03BC\x03B2\x03BF\x03C5\x03BB\x03BF\x03C2");
}

TEST_F(ReportDescriptionsFile, FixedGeneration1FolderIsNotJoinedWithTheFileName) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(Sample("descriptions_v1.xml").c_str());
  EXPECT_STREQ(descriptions.GetProductFamily(), L"Handel & Bank");
  EXPECT_EQ(descriptions.GetReportDescriptionVersionNr(), 2);
  ASSERT_EQ(descriptions.GetReportDescriptionsCount(), 3);
  EXPECT_STREQ(descriptions.GetReportDescriptionAt(2)->GetReportName(), L"Lieferschein \x00E4lterer Bauart");
  EXPECT_STREQ(descriptions.GetReportDescriptionAt(2)->GetFileName(), L"report.xml");
  EXPECT_EQ(descriptions.GetDynamicVHItemCount(), 1);
}

TEST_F(ReportDescriptionsFile, FixedGeneration1IsSavedUnderItsOldNumberWithNewNames) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(
      Write("<VersionNr>1</VersionNr><ReportProductFamily>F</ReportProductFamily>"
            "<ReportDescription><ReportType>T</ReportType><ReportName>N</ReportName>"
            "<ReportDescriptionFileName>f.xml</ReportDescriptionFileName></ReportDescription>")
          .c_str());
  EXPECT_EQ(Saved(descriptions), Document("  <VersionNr>1</VersionNr>\n"
                                          "  <ReportDescriptionVersionNr>-1</ReportDescriptionVersionNr>\n"
                                          "  <ProductFamily>F</ProductFamily>\n"
                                          "  <ReportDescription>\n"
                                          "    <ReportType>T</ReportType>\n"
                                          "    <ReportName>N</ReportName>\n"
                                          "    <FileName>f.xml</FileName>\n"
                                          "  </ReportDescription>\n"));
  CReportDescriptions again;
  again.LoadReportDescriptions(m_dir.WideFile("saved.xml").c_str());
  EXPECT_STREQ(again.GetProductFamily(), L"");
  EXPECT_EQ(again.GetReportDescriptionsCount(), 0);  // ProductFamily stands at the cursor and ends the walk
}

// Under the number of the new generation the saved sample says all that the old one said.
TEST_F(ReportDescriptionsFile, OfTheOldSampleIsSavedWholeInNewNames) {
  CReportDescriptions older;
  older.LoadReportDescriptions(Sample("descriptions_v1.xml").c_str());
  std::string saved = Saved(older);
  const std::string number = "<VersionNr>1</VersionNr>";
  ASSERT_NE(saved.find(number), std::string::npos);
  saved.replace(saved.find(number), number.size(), "<VersionNr>2</VersionNr>");
  zebtest::WriteFile(m_dir.File("newer.xml"), saved);
  CReportDescriptions newer;
  newer.LoadReportDescriptions(m_dir.WideFile("newer.xml").c_str());
  EXPECT_EQ(Saved(newer), saved);
  EXPECT_STREQ(newer.GetProductFamily(), L"Handel & Bank");
  ASSERT_EQ(newer.GetReportDescriptionsCount(), 3);
  EXPECT_STREQ(newer.GetReportDescriptionAt(2)->GetReportType(), L"Lieferschein");
  EXPECT_STREQ(newer.GetReportDescriptionAt(2)->GetFileName(), L"report.xml");
  EXPECT_EQ(newer.GetDynamicVHItemCount(), 1);
}

TEST_F(ReportDescriptionsFile, ItemWithoutTypeHasANullType) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(
      Write("<DynamicValueHolderConfig><DynamicValueHolderItem>"
            "<Attribute><InternalKey>K</InternalKey><Name>N</Name></Attribute>"
            "</DynamicValueHolderItem></DynamicValueHolderConfig>")
          .c_str());
  ASSERT_EQ(descriptions.GetDynamicVHItemCount(), 1);
  EXPECT_EQ(descriptions.GetDynamicVHItemAt(0)->GetDynVHType(), nullptr);
  ASSERT_EQ(descriptions.GetDynamicVHItemAt(0)->GetDynVHAttributeCount(), 1);
  EXPECT_STREQ(descriptions.GetDynamicVHItemAt(0)->GetDynVHAttributeAt(0)->GetInternalKey(), L"K");
}

TEST_F(ReportDescriptionsFile, ItemWithANullTypeWritesAnEmptyOne) {
  CReportDescriptions descriptions;
  descriptions.AddDynamicVHItem(nullptr);
  descriptions.AddDynamicVHItem(new CDynamicValueHolderItem);
  EXPECT_NE(Saved(descriptions)
                .find("  <DynamicValueHolderConfig>\n"
                      "    <DynamicValueHolderItem>\n"
                      "      <Type/>\n"
                      "    </DynamicValueHolderItem>\n"
                      "  </DynamicValueHolderConfig>\n"),
            std::string::npos);
}

TEST_F(ReportDescriptionsFile, HoldsWhatACallerPutTogether) {
  CReportDescriptions descriptions;
  descriptions.SetProductFamily(L"F");
  descriptions.AddReportDescription(nullptr);
  auto* entry = new CReportDescription;
  entry->SetReportType(L"T");
  entry->SetReportName(L"N");
  entry->SetFileName(L"f.xml");
  descriptions.AddReportDescription(entry);
  auto* item = new CDynamicValueHolderItem;
  auto* type = new CDynamicValueHolderType;
  type->SetName(L"Kind");
  type->SetPrefix(L"K.");
  item->SetDynVHType(type);
  auto* attribute = new CDynamicValueHolderAttribute;
  attribute->SetInternalKey(L"A");
  attribute->SetName(L"Attribute");
  item->AddDynVHAttribute(attribute);
  descriptions.AddDynamicVHItem(item);
  EXPECT_EQ(Saved(descriptions), Document("  <VersionNr>2</VersionNr>\n"
                                          "  <ReportDescriptionVersionNr>-1</ReportDescriptionVersionNr>\n"
                                          "  <ProductFamily>F</ProductFamily>\n"
                                          "  <ReportDescription/>\n"
                                          "  <ReportDescription>\n"
                                          "    <ReportType>T</ReportType>\n"
                                          "    <ReportName>N</ReportName>\n"
                                          "    <FileName>f.xml</FileName>\n"
                                          "  </ReportDescription>\n"
                                          "  <DynamicValueHolderConfig>\n"
                                          "    <DynamicValueHolderItem>\n"
                                          "      <Type>\n"
                                          "        <Name>Kind</Name>\n"
                                          "        <Prefix>K.</Prefix>\n"
                                          "      </Type>\n"
                                          "      <Attribute>\n"
                                          "        <InternalKey>A</InternalKey>\n"
                                          "        <Name>Attribute</Name>\n"
                                          "      </Attribute>\n"
                                          "    </DynamicValueHolderItem>\n"
                                          "  </DynamicValueHolderConfig>\n"));
}

TEST_F(ReportDescriptionsFile, EndsEachWalkAtTheFirstOtherElement) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(
      Write("<VersionNr>2</VersionNr><ReportDescription/><Other/><DynamicValueHolderConfig/>").c_str());
  EXPECT_EQ(descriptions.GetReportDescriptionsCount(), 1);
  descriptions.LoadReportDescriptions(
      Write("<DynamicValueHolderConfig><DynamicValueHolderItem/><Other/><DynamicValueHolderItem/>"
            "</DynamicValueHolderConfig>")
          .c_str());
  EXPECT_EQ(descriptions.GetDynamicVHItemCount(), 1);
}

TEST_F(ReportDescriptionsFile, LoadedTwiceDoublesEntriesAndItems) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(Sample("descriptions.xml").c_str());
  descriptions.LoadReportDescriptions(Sample("descriptions.xml").c_str());
  EXPECT_EQ(descriptions.GetReportDescriptionsCount(), 6);
  EXPECT_EQ(descriptions.GetDynamicVHItemCount(), 6);
}

// The version of the file before is still that of the object, so this one is read by the names of generation 1.
TEST_F(ReportDescriptionsFile, FixedVersionStaysForALoadThatNamesNone) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(Sample("descriptions_v1.xml").c_str());
  descriptions.LoadReportDescriptions(
      Write("<ReportDescription><FileName>f2</FileName></ReportDescription>").c_str());
  ASSERT_EQ(descriptions.GetReportDescriptionsCount(), 4);
  EXPECT_STREQ(descriptions.GetReportDescriptionAt(3)->GetFileName(), L"");
  EXPECT_STREQ(descriptions.GetProductFamily(), L"Handel & Bank");
}

TEST_F(ReportDescriptionsFile, WithoutVersionCountsAsGeneration2) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(
      Write("<ProductFamily>F</ProductFamily><ReportDescription><FileName>f</FileName></ReportDescription>")
          .c_str());
  EXPECT_STREQ(descriptions.GetProductFamily(), L"F");
  EXPECT_EQ(descriptions.GetReportDescriptionVersionNr(), -1);
  ASSERT_EQ(descriptions.GetReportDescriptionsCount(), 1);
  EXPECT_STREQ(descriptions.GetReportDescriptionAt(0)->GetFileName(), L"f");
}

TEST_F(ReportDescriptionsFile, ReadsTheProductFamilyUnderTheNameOfItsVersionOnly) {
  for (const char* version : {"1", "0", "-1", "none"}) {
    const std::string number = std::string("<VersionNr>") + version + "</VersionNr>";
    CReportDescriptions older;
    older.LoadReportDescriptions(Write(number + "<ReportProductFamily>F</ReportProductFamily>").c_str());
    EXPECT_STREQ(older.GetProductFamily(), L"F") << version;
    CReportDescriptions newNames;
    newNames.LoadReportDescriptions(Write(number + "<ProductFamily>F</ProductFamily>").c_str());
    EXPECT_STREQ(newNames.GetProductFamily(), L"") << version;
  }
  for (const char* version : {"2", "3"}) {
    const std::string number = std::string("<VersionNr>") + version + "</VersionNr>";
    CReportDescriptions newer;
    newer.LoadReportDescriptions(Write(number + "<ProductFamily>F</ProductFamily>").c_str());
    EXPECT_STREQ(newer.GetProductFamily(), L"F") << version;
    CReportDescriptions oldNames;
    oldNames.LoadReportDescriptions(
        Write(number + "<ReportProductFamily>F</ReportProductFamily><ReportDescription/>").c_str());
    EXPECT_STREQ(oldNames.GetProductFamily(), L"") << version;
    EXPECT_EQ(oldNames.GetReportDescriptionsCount(), 0) << version;
  }
}

TEST_F(ReportDescriptionsFile, FixedOrderOfTheFirstFieldsDecidesWhatIsRead) {
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(
      Write("<VersionNr>2</VersionNr><ProductFamily>F</ProductFamily>"
            "<ReportDescriptionVersionNr>4</ReportDescriptionVersionNr><ReportDescription/>")
          .c_str());
  EXPECT_STREQ(descriptions.GetProductFamily(), L"F");
  EXPECT_EQ(descriptions.GetReportDescriptionVersionNr(), -1);
  EXPECT_EQ(descriptions.GetReportDescriptionsCount(), 0);
}

TEST_F(ReportDescriptionsFile, HoldsAnEmptyConfigurationForANullItem) {
  CReportDescriptions descriptions;
  descriptions.AddDynamicVHItem(nullptr);
  EXPECT_EQ(Saved(descriptions), Document("  <VersionNr>2</VersionNr>\n"
                                          "  <ReportDescriptionVersionNr>-1</ReportDescriptionVersionNr>\n"
                                          "  <ProductFamily/>\n"
                                          "  <DynamicValueHolderConfig/>\n"));
}

TEST_F(ReportDescriptionsFile, ThatIsMissingOrMalformedIsAnXMLExceptionOfTheSameNumberAndMessage) {
  CReportDescriptions descriptions;
  const auto load = [&](const std::wstring& file) {
    return zebtest::RaisedFailure([&] { descriptions.LoadReportDescriptions(file.c_str()); });
  };
  const std::wstring missing = m_dir.WideFile("missing.xml");
  EXPECT_EQ(load(missing), zebtest::FailureOfLoading(missing));
  EXPECT_EQ(load(missing).Number, 1);
  const std::wstring open = Write("<open>");
  EXPECT_EQ(load(open), zebtest::FailureOfLoading(open));
  EXPECT_EQ(load(open).Number, 2);
}

TEST_F(ReportDescriptionsFile, ThatCannotBeWrittenIsAnXMLException) {
  CReportDescriptions descriptions;
  const auto save = [&](const std::wstring& file) {
    return zebtest::RaisedFailure([&] { descriptions.SaveReportDescriptions(file.c_str()); });
  };
  EXPECT_EQ(save(m_dir.WideFile("no/folder.xml")),
            zebtest::FailureOfSaving(L"ReportDescriptionRootElement", m_dir.WideFile("no/folder.xml")));
  EXPECT_EQ(save(m_dir.WideFile("no/folder.xml")).Number, 3);
  zebtest::WriteFile(m_dir.File("old.xml"), "old");
  std::filesystem::permissions(m_dir.File("old.xml"), std::filesystem::perms::owner_read);
  EXPECT_EQ(save(m_dir.WideFile("old.xml")).Number, 4);
  EXPECT_EQ(zebtest::ReadFile(m_dir.File("old.xml")), "old");
}

TEST_F(ReportDescriptionsFile, CopiesShareEntriesAndItems) {
  CReportDescriptions source;
  source.LoadReportDescriptions(Sample("descriptions.xml").c_str());
  auto& copy = zebtest::KeepForever(new CReportDescriptions(source));
  auto& assigned = zebtest::KeepForever(new CReportDescriptions);
  assigned = source;
  source.SetProductFamily(L"other");
  source.AddReportDescription(new CReportDescription);
  source.AddDynamicVHItem(new CDynamicValueHolderItem);
  for (CReportDescriptions* each : {&copy, &assigned}) {
    EXPECT_STREQ(each->GetProductFamily(), L"Handel & Bank");
    EXPECT_EQ(each->GetReportDescriptionVersionNr(), 3);
    ASSERT_EQ(each->GetReportDescriptionsCount(), 3);
    ASSERT_EQ(each->GetDynamicVHItemCount(), 3);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(each->GetReportDescriptionAt(i), source.GetReportDescriptionAt(i));
      EXPECT_EQ(each->GetDynamicVHItemAt(i), source.GetDynamicVHItemAt(i));
    }
  }
}

// Which questions are const is part of the interface.
TEST(ReportDescriptions, FixedSignaturesTellWhatIsConst) {
  using Catalogue = CReportDescriptions;
  static_assert(std::has_virtual_destructor_v<Catalogue>);
  static_assert(
      std::is_same_v<decltype(&Catalogue::LoadReportDescriptions), void (Catalogue::*)(const wchar_t*)>);
  static_assert(
      std::is_same_v<decltype(&Catalogue::SaveReportDescriptions), void (Catalogue::*)(const wchar_t*)>);
  static_assert(std::is_same_v<decltype(&Catalogue::GetReportDescriptionAt),
                               CReportDescription* (Catalogue::*)(int) const>);
  static_assert(std::is_same_v<decltype(&Catalogue::GetReportDescriptionsCount), int (Catalogue::*)()>);
  static_assert(
      std::is_same_v<decltype(&Catalogue::GetDynamicVHItemAt), CDynamicValueHolderItem* (Catalogue::*)(int)>);
  static_assert(std::is_same_v<decltype(&Catalogue::GetDynamicVHItemCount), int (Catalogue::*)() const>);
  static_assert(
      std::is_same_v<decltype(&Catalogue::GetProductFamily), const wchar_t* (Catalogue::*)() const>);
  static_assert(
      std::is_same_v<decltype(&Catalogue::GetReportDescriptionVersionNr), int (Catalogue::*)() const>);
}
