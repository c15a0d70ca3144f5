#include "reporttypes/ReportDescriptions.h"

#include "foundation/KXException.h"
#include "foundation/XMLFile.h"
#include "reporttypes/DynamicValueHolderAttribute.h"
#include "reporttypes/DynamicValueHolderItem.h"
#include "reporttypes/DynamicValueHolderType.h"
#include "reporttypes/ReportDescription.h"
#include "support/Files.h"
#include "support/TempDir.h"

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

TEST_F(ReportDescriptionsFile, EntryOfTheOldGenerationHasNoFileNameInTheNewOne) {
  zebtest::WriteFile(m_dir.File("entry.xml"),
                     "<E><ReportType>T</ReportType><ReportName>N</ReportName><FileName>f</FileName></E>");
  const zeb::XMLFile file = zeb::XMLFile::Load(m_dir.WideFile("entry.xml").c_str());
  CReportDescription unset;
  EXPECT_TRUE(unset.Load(file.Root()));
  EXPECT_STREQ(unset.GetReportName(), L"N");
  EXPECT_STREQ(unset.GetFileName(), L"");
  CReportDescription current;
  current.SetVersionNr(2);
  EXPECT_TRUE(current.Load(file.Root()));
  EXPECT_STREQ(current.GetFileName(), L"f");
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

TEST_F(ReportDescriptionsFile, ThatIsMissingOrMalformedOrNotWritableIsAnXMLException) {
  CReportDescriptions descriptions;
  EXPECT_THROW(descriptions.LoadReportDescriptions(m_dir.WideFile("missing.xml").c_str()), CKXXMLException);
  EXPECT_THROW(descriptions.LoadReportDescriptions(Write("<open>").c_str()), CKXXMLException);
  EXPECT_THROW(descriptions.SaveReportDescriptions(m_dir.WideFile("no/such/folder.xml").c_str()),
               CKXXMLException);
}

TEST(ReportDescriptions, ValueTypesCopyDeep) {
  CReportDescription entry;
  entry.SetReportName(L"N");
  const CReportDescription copy = entry;
  entry.SetReportName(L"M");
  EXPECT_STREQ(copy.GetReportName(), L"N");
}

TEST(ReportDescriptions, KindAndAttributeHaveNoVirtualDestructor) {
  EXPECT_FALSE(std::has_virtual_destructor_v<CDynamicValueHolderType>);
  EXPECT_FALSE(std::has_virtual_destructor_v<CDynamicValueHolderAttribute>);
  EXPECT_TRUE(std::is_polymorphic_v<CDynamicValueHolderType>);
  EXPECT_TRUE(std::is_polymorphic_v<CDynamicValueHolderAttribute>);
  EXPECT_TRUE(std::has_virtual_destructor_v<CDynamicValueHolderItem>);
}
