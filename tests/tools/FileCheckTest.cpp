#include "FileCheck.h"

#include "Failure.h"
#include "LoadedReport.h"
#include "ZEBReportDocument.h"
#include "support/Files.h"
#include "support/ScopedFontPool.h"
#include "support/TempDir.h"
#include "support/WidePath.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace zeb {

// Each expectation is written from the file format by hand: what a person who knows it would say of the planted fault.

static bool operator==(const ReadingFinding& first, const ReadingFinding& second) {
  return first.Line == second.Line && first.Column == second.Column && first.Path == second.Path &&
         first.Fault == second.Fault && first.Text == second.Text;
}

static void PrintTo(const ReadingFinding& finding, std::ostream* stream) {
  *stream << finding.Line << ':' << finding.Column << ' ' << testing::PrintToString(finding.Path) << ' '
          << static_cast<int>(finding.Fault) << ' ' << testing::PrintToString(finding.Text);
}

}  // namespace zeb

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Finding = zeb::ReadingFinding;
using Fault = zeb::ReadingFault;

class FileCheck : public testing::Test {
 protected:
  /// Checks a file with this text, which begins behind the first line end.
  std::vector<Finding> Check(const std::string& text) {
    const zebreport::CheckedFile checked = CheckWhole(text);
    EXPECT_FALSE(checked.failure.has_value());
    return checked.findings;
  }
  zebreport::CheckedFile CheckWhole(const std::string& text) {
    zebtest::WriteFile(m_Folder.File("file.xml"), text.substr(1));
    return zebreport::CheckFile(m_Folder.WideFile("file.xml"));
  }

  zebtest::TempDir m_Folder;
};

// ---------------------------------------------------------------------------------------------- twenty planted faults

TEST_F(FileCheck, Planted01UnknownNameAtTheEndOfARecord) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID>
    <Colour>2</Colour></ReportZone>
</ReportRootElement>)"),
              ElementsAre(Finding{4, 5, L"/ReportRootElement/ReportZone/Colour", Fault::UnknownName,
                                  L"nothing reads Colour in ReportZone"}));
}

TEST_F(FileCheck, Planted02UnknownNameEndsARecord) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <VersionNr>1</VersionNr>
  <ReportDocument>
    <Author>x</Author>
    <VersionNr>2</VersionNr>
  </ReportDocument>
</ReportRootElement>)"),
              ElementsAre(Finding{4, 5, L"/ReportRootElement/ReportDocument/Author", Fault::UnknownName,
                                  L"nothing reads Author in ReportDocument"},
                          Finding{5, 5, L"/ReportRootElement/ReportDocument/VersionNr", Fault::NotReached,
                                  L"Author in line 4 ends the reading of ReportDocument"}));
}

TEST_F(FileCheck, Planted03OutOfOrderDirectlyBehind) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TxID>2</TxID></ReportZone>
  <Text>
    <TxID>2</TxID>
    <Placeable>
      <Height>1.0</Height>
      <Width>2.0</Width>
    </Placeable>
  </Text>
</ReportRootElement>)"),
              ElementsAre(Finding{8, 7, L"/ReportRootElement/Text/Placeable/Width", Fault::OutOfOrder,
                                  L"stands behind Height in line 7, belongs before it"}));
}

TEST_F(FileCheck, Planted04OutOfOrderFurtherBehind) {
  EXPECT_THAT(
      Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TxID>2</TxID></ReportZone>
  <Text>
    <TxID>2</TxID>
    <TextContent>a</TextContent>
    <FontName>b</FontName>
    <Placeable><Width>2.0</Width></Placeable>
  </Text>
</ReportRootElement>)"),
      ElementsAre(Finding{8, 5, L"/ReportRootElement/Text/Placeable", Fault::OutOfOrder,
                          L"stands behind FontName in line 7, belongs before TextContent in line 6"}));
}

TEST_F(FileCheck, Planted05RecordInTheWrongGroup) {
  EXPECT_THAT(
      Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TxID>2</TxID><VHID>3</VHID></ReportZone>
  <Text><TxID>2</TxID></Text>
  <ValueHolder><VHID>3</VHID></ValueHolder>
</ReportRootElement>)"),
      ElementsAre(Finding{3, 47, L"/ReportRootElement/ReportZone/VHID", Fault::IdentifierWithoutObject,
                          L"no record that is read has the identifier 3"},
                  Finding{5, 3, L"/ReportRootElement/ValueHolder", Fault::OutOfOrder,
                          L"stands behind Text in line 4, belongs before it"}));
}

TEST_F(FileCheck, Planted06SecondOccurrence) {
  EXPECT_THAT(
      Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone>
    <ZoneID>1</ZoneID>
    <InternalName>a</InternalName>
    <InternalName>b</InternalName>
  </ReportZone>
</ReportRootElement>)"),
      ElementsAre(Finding{6, 5, L"/ReportRootElement/ReportZone/InternalName[2]", Fault::SecondOccurrence,
                          L"InternalName in line 5 is the one that is read"}));
}

TEST_F(FileCheck, Planted07SecondOccurrenceFurtherBehind) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <VersionNr>1</VersionNr>
  <ReportType>a</ReportType>
  <ReportDocument/>
  <ReportType>b</ReportType>
</ReportRootElement>)"),
              ElementsAre(Finding{5, 3, L"/ReportRootElement/ReportType[2]", Fault::SecondOccurrence,
                                  L"ReportType in line 3 is the one that is read"}));
}

TEST_F(FileCheck, Planted08ListInTwoParts) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument>
    <ZoneID>1</ZoneID>
    <ReportLayoutName>a.xml</ReportLayoutName>
    <ZoneID>2</ZoneID>
  </ReportDocument>
  <ReportZone><ZoneID>1</ZoneID></ReportZone>
</ReportRootElement>)"),
              ElementsAre(Finding{5, 5, L"/ReportRootElement/ReportDocument/ZoneID[2]", Fault::OutOfOrder,
                                  L"stands behind ReportLayoutName in line 4, belongs before it"}));
}

TEST_F(FileCheck, Planted09RecordThatNothingRefersTo) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TxID>2</TxID></ReportZone>
  <Text><TxID>2</TxID></Text>
  <Text><TxID>4</TxID><Placeable/></Text>
</ReportRootElement>)"),
              ElementsAre(Finding{5, 3, L"/ReportRootElement/Text[2]", Fault::IdentifierWithoutObject,
                                  L"nothing in front of it refers to a Text with the identifier 4"}));
}

TEST_F(FileCheck, Planted10RecordWithoutItsIdentifier) {
  EXPECT_THAT(
      Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><FormulaVHID>2</FormulaVHID></ReportZone>
  <FormulaValueHolder><ValueHolder><VHID>2</VHID></ValueHolder></FormulaValueHolder>
  <FormulaValueHolder><FormulaData/></FormulaValueHolder>
</ReportRootElement>)"),
      ElementsAre(Finding{5, 3, L"/ReportRootElement/FormulaValueHolder[2]", Fault::IdentifierWithoutObject,
                          L"it does not begin with its identifier, VHID"}));
}

TEST_F(FileCheck, Planted11ReferenceToARecordThatIsMissing) {
  EXPECT_THAT(
      Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone>
    <ZoneID>1</ZoneID>
    <PicID>7</PicID>
  </ReportZone>
</ReportRootElement>)"),
      ElementsAre(Finding{5, 5, L"/ReportRootElement/ReportZone/PicID", Fault::IdentifierWithoutObject,
                          L"no record that is read has the identifier 7"}));
}

TEST_F(FileCheck, Planted12TieToAnObjectThatIsMissing) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><LineID>2</LineID></ReportZone>
  <Line><LineID>2</LineID><Placeable><PlID>2</PlID><PlRelID>3</PlRelID></Placeable></Line>
  <PlRel><PlRelID>3</PlRelID>
    <RectID>9</RectID></PlRel>
</ReportRootElement>)"),
              ElementsAre(Finding{6, 5, L"/ReportRootElement/PlRel/RectID", Fault::IdentifierWithoutObject,
                                  L"no record that is read has the identifier 9"}));
}

TEST_F(FileCheck, Planted13TieThatNoObjectNames) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID></ReportZone>
  <PlRel><PlRelID>3</PlRelID><ZoneID>4</ZoneID></PlRel>
</ReportRootElement>)"),
              ElementsAre(Finding{4, 3, L"/ReportRootElement/PlRel", Fault::IdentifierWithoutObject,
                                  L"nothing in front of it refers to a PlRel with the identifier 3"}));
}

TEST_F(FileCheck, Planted14ReferenceToAnObjectOfAnotherKind) {
  EXPECT_THAT(
      Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TxID>5</TxID>
    <LineID>5</LineID>
  </ReportZone>
  <Text><TxID>5</TxID></Text>
</ReportRootElement>)"),
      ElementsAre(Finding{4, 5, L"/ReportRootElement/ReportZone/LineID", Fault::IdentifierWithoutObject,
                          L"the identifier 5 is that of an object of another kind"}));
}

TEST_F(FileCheck, Planted15ObjectInTwoZones) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID><ZoneID>2</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TxID>5</TxID></ReportZone>
  <ReportZone><ZoneID>2</ZoneID><TxID>5</TxID></ReportZone>
  <Text><TxID>5</TxID></Text>
</ReportRootElement>)"),
              ElementsAre(Finding{4, 33, L"/ReportRootElement/ReportZone[2]/TxID", Fault::SecondOccurrence,
                                  L"the object with the identifier 5 is in a list already"}));
}

TEST_F(FileCheck, Planted16ElementInsideAText) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportType>
    <Name>a</Name>
  </ReportType>
  <ReportDocument/>
</ReportRootElement>)"),
              ElementsAre(Finding{3, 5, L"/ReportRootElement/ReportType/Name", Fault::UnknownName,
                                  L"ReportType is read as a text without elements"}));
}

TEST_F(FileCheck, Planted17PageThatNoSwitchMakes) {
  EXPECT_THAT(Check(R"(
<ReportLayout>
  <VersionNr>3</VersionNr>
  <ReportLayoutID>0</ReportLayoutID>
  <LayoutPage><LayoutRect/><LayoutRect/></LayoutPage>
  <LayoutPage><LayoutRect/><LayoutRect/></LayoutPage>
</ReportLayout>)"),
              ElementsAre(Finding{5, 3, L"/ReportLayout/LayoutPage[2]", Fault::SecondOccurrence,
                                  L"LayoutPage in line 4 is the one that is read"}));
}

TEST_F(FileCheck, Planted18ElementThatAPageSkips) {
  EXPECT_THAT(
      Check(R"(
<ReportLayout>
  <VersionNr>3</VersionNr>
  <ReportLayoutID>0</ReportLayoutID>
  <LayoutPage>
    <Text><TxID>1</TxID></Text>
    <LayoutRect/>
    <LayoutRect/>
    <Line><LineID>2</LineID></Line>
  </LayoutPage>
</ReportLayout>)"),
      ElementsAre(Finding{5, 5, L"/ReportLayout/LayoutPage/Text", Fault::OutOfOrder,
                          L"stands before LayoutRect in line 6, belongs behind LayoutRect in line 7"}));
}

TEST_F(FileCheck, Planted19KindThatPagesDoNotHold) {
  EXPECT_THAT(Check(R"(
<ReportLayout>
  <VersionNr>3</VersionNr>
  <ReportLayoutID>0</ReportLayoutID>
  <LayoutPage>
    <LayoutRect/>
    <LayoutRect/>
    <CopyValueHolder><ValueHolder/></CopyValueHolder>
    <Line><LineID>2</LineID></Line>
  </LayoutPage>
</ReportLayout>)"),
              ElementsAre(Finding{7, 5, L"/ReportLayout/LayoutPage/CopyValueHolder", Fault::UnknownName,
                                  L"nothing reads CopyValueHolder in LayoutPage"},
                          Finding{8, 5, L"/ReportLayout/LayoutPage/Line", Fault::NotReached,
                                  L"CopyValueHolder in line 7 ends the reading of LayoutPage"}));
}

TEST_F(FileCheck, Planted20NameOfTheOtherGeneration) {
  EXPECT_THAT(
      Check(R"(
<ReportTypeRootElement>
  <VersionNr>2</VersionNr>
  <ReportTypeZone>
    <InternalReportTypeZoneName>a</InternalReportTypeZoneName>
  </ReportTypeZone>
</ReportTypeRootElement>)"),
      ElementsAre(Finding{
          4, 5, L"/ReportTypeRootElement/ReportTypeZone/InternalReportTypeZoneName", Fault::UnknownName,
          L"nothing reads InternalReportTypeZoneName in ReportTypeZone; files of another VersionNr "
          L"have that name, so mend the VersionNr or the name"}));
}

TEST_F(FileCheck, ObjectTwiceInOneZone) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TxID>5</TxID>
    <TxID>5</TxID></ReportZone>
  <Text><TxID>5</TxID></Text>
</ReportRootElement>)"),
              ElementsAre(Finding{4, 5, L"/ReportRootElement/ReportZone/TxID[2]", Fault::SecondOccurrence,
                                  L"the object with the identifier 5 is in a list already"}));
}

TEST_F(FileCheck, TwoRecordsOfOneIdentifier) {
  EXPECT_THAT(
      Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TxID>5</TxID><VHID>6</VHID></ReportZone>
  <ValueHolder><VHID>6</VHID><Text><TxID>6</TxID><Placeable><PlRelID>7</PlRelID></Placeable></Text></ValueHolder>
  <Text><TxID>5</TxID><TextContent>a</TextContent></Text>
  <Text><TxID>5</TxID><TextContent>b</TextContent></Text>
  <PlRel><PlRelID>7</PlRelID><TxID>5</TxID></PlRel>
  <PlRel><PlRelID>7</PlRelID><TxID>5</TxID></PlRel>
</ReportRootElement>)"),
      ElementsAre(Finding{6, 3, L"/ReportRootElement/Text[2]", Fault::SecondOccurrence,
                          L"Text in line 5 has the identifier 5 too, and both are read into one object"},
                  Finding{8, 3, L"/ReportRootElement/PlRel[2]", Fault::SecondOccurrence,
                          L"PlRel in line 7 has the identifier 7 too, and both are read into one object"}));
}

TEST_F(FileCheck, OneCellInTwoZones) {
  EXPECT_THAT(
      Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID><ZoneID>2</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TableCellID>5</TableCellID></ReportZone>
  <ReportZone><ZoneID>2</ZoneID><TableCellID>5</TableCellID></ReportZone>
  <TableCell><TableCellID>5</TableCellID></TableCell>
</ReportRootElement>)"),
      ElementsAre(Finding{4, 33, L"/ReportRootElement/ReportZone[2]/TableCellID", Fault::SecondOccurrence,
                          L"the object with the identifier 5 is in a list already"}));
}

TEST_F(FileCheck, TwoTiesOfOneIdentifierOnAPage) {
  EXPECT_THAT(
      Check(R"(
<ReportLayout>
  <VersionNr>3</VersionNr>
  <ReportLayoutID>0</ReportLayoutID>
  <LayoutPage><LayoutRect/><LayoutRect/>
    <Line><LineID>1</LineID><Placeable><PlID>1</PlID><PlRelID>2</PlRelID></Placeable></Line>
    <PlRel><PlRelID>2</PlRelID></PlRel>
    <PlRel><PlRelID>2</PlRelID></PlRel>
  </LayoutPage>
</ReportLayout>)"),
      ElementsAre(Finding{7, 5, L"/ReportLayout/LayoutPage/PlRel[2]", Fault::SecondOccurrence,
                          L"PlRel in line 6 has the identifier 2 too, and both are read into one object"}));
}

// A name of 61 characters stands as 60 and an ellipsis, one of 60 as it is. The full names are those that count: both
// long ones begin alike and are different.
TEST_F(FileCheck, CutsLongNames) {
  const std::string name(60, 'a');
  const std::wstring shown(60, L'a');
  EXPECT_THAT(
      Check("\n<" + name + "x>\n<ReportDocument><" + name + "/>\n<" + name + "y/>\n<" + name +
            "z/></ReportDocument></" + name + "x>"),
      ElementsAre(Finding{2, 17, L"/" + shown + L"\x2026/ReportDocument/" + shown, Fault::UnknownName,
                          L"nothing reads " + shown + L" in ReportDocument"},
                  Finding{3, 1, L"/" + shown + L"\x2026/ReportDocument/" + shown + L"\x2026",
                          Fault::UnknownName, L"nothing reads " + shown + L"\x2026 in ReportDocument"},
                  Finding{4, 1, L"/" + shown + L"\x2026/ReportDocument/" + shown + L"\x2026",
                          Fault::UnknownName, L"nothing reads " + shown + L"\x2026 in ReportDocument"}));
}

// Twenty thousand letters in the path of each of 1,500 findings would be 60 MB.
TEST_F(FileCheck, SaysLittleOfALongNameAboveManyFaults) {
  const std::string name(20000, 'a');
  std::string text = "\n<" + name + "><ReportDocument/>";
  for (int i = 0; i < 1500; ++i) text += "<Bad/>";
  std::size_t length = 0;
  for (const Finding& finding : Check(text + "</" + name + ">")) {
    length += finding.Path.size() + finding.Text.size();
  }
  EXPECT_GT(length, 1500U * 60);
  EXPECT_LT(length, 1500U * 400);
}

// -------------------------------------------------------------------------------------------- loading that fails

// The cursor of the font's record stands at Encodng, so that its type is not read and its program is looked for. Flags
// is behind it and FontType has been looked at in front, so both can be judged; what is behind that cannot, nor can
// the text, whose record may follow.
TEST_F(FileCheck, TellsWhatWasLeftOutInFrontOfAFailure) {
  const zebreport::CheckedFile checked = CheckWhole(R"(
<ReportRootElement>
  <VersionNr>1</VersionNr>
  <ReportDocument>
    <ZoneID>1</ZoneID>
    <FontInformation>
      <BaseFont>No Such Face</BaseFont>
      <Encodng>winansi1252</Encodng>
      <Flags>32</Flags>
      <FontType>0</FontType>
      <TTName/>
    </FontInformation>
    <Bad/>
  </ReportDocument>
  <Bad/>
</ReportRootElement>)");
  EXPECT_THAT(
      checked.findings,
      ElementsAre(Finding{7, 7, L"/ReportRootElement/ReportDocument/FontInformation/Encodng",
                          Fault::UnknownName, L"nothing reads Encodng in FontInformation"},
                  Finding{8, 7, L"/ReportRootElement/ReportDocument/FontInformation/Flags", Fault::NotReached,
                          L"Encodng in line 7 ends the reading of FontInformation"}));
  ASSERT_TRUE(checked.failure.has_value());
}

TEST_F(FileCheck, SaysNothingOfRecordsBehindAFailure) {
  const zebreport::CheckedFile checked = CheckWhole(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><TxID>2</TxID><PicID>3</PicID><Bad/></ReportZone>
  <Picture><PicID>3</PicID><PictureDataLength>2000000000</PictureDataLength>
    <PictureData><BinaryData>AAAA</BinaryData></PictureData><Bad/></Picture>
  <Text><TxID>2</TxID></Text>
</ReportRootElement>)");
  EXPECT_THAT(checked.findings, ElementsAre(Finding{3, 63, L"/ReportRootElement/ReportZone/Bad",
                                                    Fault::UnknownName, L"nothing reads Bad in ReportZone"}));
  EXPECT_TRUE(checked.failure.has_value());
}

// ------------------------------------------------------------------------------------------------------- other kinds

TEST_F(FileCheck, LayoutThatIsNotReadForWantOfItsIdentifier) {
  EXPECT_THAT(Check(R"(
<ReportLayout>
  <VersionNr>3</VersionNr>
  <Author>x</Author>
  <ReportLayoutID>0</ReportLayoutID>
  <LayoutPage/>
</ReportLayout>)"),
              ElementsAre(Finding{3, 3, L"/ReportLayout/Author", Fault::UnknownName,
                                  L"nothing reads Author in ReportLayout"},
                          Finding{4, 3, L"/ReportLayout/ReportLayoutID", Fault::NotReached,
                                  L"Author in line 3 ends the reading of ReportLayout"},
                          Finding{5, 3, L"/ReportLayout/LayoutPage", Fault::NotReached,
                                  L"nothing of ReportLayout is read without a ReportLayoutID in the place of "
                                  L"Author in line 3"}));
}

TEST_F(FileCheck, DescriptionsInTheWrongOrder) {
  EXPECT_THAT(Check(R"(
<ReportDescriptionRootElement>
  <VersionNr>2</VersionNr>
  <DynamicValueHolderConfig/>
  <ReportDescription/>
</ReportDescriptionRootElement>)"),
              ElementsAre(Finding{4, 3, L"/ReportDescriptionRootElement/ReportDescription", Fault::OutOfOrder,
                                  L"stands behind DynamicValueHolderConfig in line 3, belongs before it"}));
}

TEST_F(FileCheck, PoolFileInTheWrongOrder) {
  EXPECT_THAT(Check(R"(
<FontPoolData>
  <VersionNr>1</VersionNr>
  <Bold>400</Bold>
  <FontName>a</FontName>
  <FontData><BinaryData>AAAA</BinaryData></FontData>
</FontPoolData>)"),
              ElementsAre(Finding{4, 3, L"/FontPoolData/FontName", Fault::OutOfOrder,
                                  L"stands behind Bold in line 3, belongs before it"},
                          Finding{5, 3, L"/FontPoolData/FontData", Fault::NotReached,
                                  L"FontName in line 4 ends the reading of FontPoolData"}));
}

TEST_F(FileCheck, CatalogueUnderAnyRoot) {
  EXPECT_THAT(Check(R"(
<Errors>
  <ErrorFamily>
    <ErrorEntry><ErrorNr>1</ErrorNr>
      <ErrorKey>a</ErrorKey></ErrorEntry>
  </ErrorFamily>
</Errors>)"),
              ElementsAre(Finding{4, 7, L"/Errors/ErrorFamily/ErrorEntry/ErrorKey", Fault::OutOfOrder,
                                  L"stands behind ErrorNr in line 3, belongs before it"}));
}

TEST_F(FileCheck, PictureWithoutBinaryContent) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><PicID>2</PicID></ReportZone>
  <Picture><PicID>2</PicID>
    <PictureData><Bytes>AAAA</Bytes></PictureData></Picture>
</ReportRootElement>)"),
              ElementsAre(Finding{5, 18, L"/ReportRootElement/Picture/PictureData/Bytes", Fault::UnknownName,
                                  L"nothing reads Bytes in PictureData"}));
}

TEST_F(FileCheck, EntriesOfAnEncodingBeyondThoseThatAreKept) {
  std::string text =
      "\n<ReportLayout><VersionNr>3</VersionNr><ReportLayoutID>0</ReportLayoutID>\n"
      "<EncodingInformation>\n";
  for (int i = 0; i < 257; ++i) text += "<Unicodes>65</Unicodes>\n";
  EXPECT_THAT(
      Check(text + "</EncodingInformation></ReportLayout>"),
      ElementsAre(Finding{259, 1, L"/ReportLayout/EncodingInformation/Unicodes[257]", Fault::SecondOccurrence,
                          L"only 256 of its name are read, the last in line 258"}));
}

// ------------------------------------------------------------------------------------------------ what is no fault

TEST_F(FileCheck, SaysNothingOfElementsThatAreAcceptedAndNotKept) {
  EXPECT_THAT(Check(R"(
<ReportRootElement>
  <ReportDocument><ZoneID>1</ZoneID></ReportDocument>
  <ReportZone><ZoneID>1</ZoneID><VHID>3</VHID><PicID>2</PicID></ReportZone>
  <ValueHolder><VHID>3</VHID><AdjVHToGS>1</AdjVHToGS><HasRTFContent>1</HasRTFContent></ValueHolder>
  <Picture><PicID>2</PicID><PictureScaling><a/></PictureScaling></Picture>
</ReportRootElement>)"),
              IsEmpty());
}

TEST_F(FileCheck, SaysNothingOfReportsThatTheLibraryWrote) {
  const std::filesystem::path examples = ZEB_EXAMPLES;
  const std::filesystem::path data = ZEB_TOOL_DATA;
  const zebtest::ScopedFontPool pool;
  for (const std::filesystem::path& folder :
       {examples / "invoice", examples / "statement", examples / "legacy", data / "letter"}) {
    SCOPED_TRACE(folder);
    const std::wstring report = m_Folder.WideFile("report.xml");
    const std::wstring layout = m_Folder.WideFile("layout.xml");
    const std::wstring list = m_Folder.WideFile("list.xml");
    {
      zebreport::LoadedReport loaded;
      loaded.LoadExactly(folder / "report.xml", folder / "layout.xml");
      loaded.Root().SaveReport(report.c_str(), layout.c_str());
      loaded.Root().SaveValueHolders(list.c_str());
    }
    EXPECT_THAT(zebreport::CheckFile(report).findings, IsEmpty());
    EXPECT_THAT(zebreport::CheckFile(layout).findings, IsEmpty());
    EXPECT_THAT(zebreport::CheckFile(list).findings, IsEmpty());
  }
}

// The record of a formula that a zone only defines names its tie, and so does that of a page's cell; neither tie is
// saved.
TEST_F(FileCheck, SaysNothingOfTiesOfPageCells) {
  const std::filesystem::path data = ZEB_TOOL_DATA;
  {
    zebreport::LoadedReport loaded;
    loaded.LoadExactly(data / "lonely" / "report.xml", data / "lonely" / "cells.xml");
    loaded.Root().SaveReport(nullptr, m_Folder.WideFile("layout.xml").c_str());
  }
  EXPECT_THAT(zebreport::CheckFile(m_Folder.WideFile("layout.xml")).findings, IsEmpty());
}

TEST_F(FileCheck, SaysNothingOfTiesOfDefinedFormulas) {
  const std::wstring file = m_Folder.WideFile("report.xml");
  CFormulaValueHolder formula;
  formula.SetPlaceableRelation(new CPlaceableRelation);
  {
    CReportRootElement report;
    report.SetReportDocument(new CReportDocument);
    auto* zone = new CReportZone;
    zone->AddDefinedFormulaValueHolder(&formula);
    report.GetReportDocument()->AddReportZone(zone);
    report.SaveReport(file.c_str(), nullptr);
  }
  EXPECT_THAT(zebtest::ReadFile(m_Folder.File("report.xml")), testing::HasSubstr("<PlRelID>"));
  EXPECT_THAT(zebreport::CheckFile(file).findings, IsEmpty());
}

// A formula that is placed and defined, or defined more than once, is saved once for each list that names it.
TEST_F(FileCheck, SaysNothingOfSavedFormulasThatSeveralListsName) {
  const std::string placedAndDefined =
      "<ReportDocument><ZoneID>1</ZoneID></ReportDocument>"
      "<ReportZone><ZoneID>1</ZoneID><FormulaVHID>5</FormulaVHID>"
      "<DefinedFormulaVHID>5</DefinedFormulaVHID></ReportZone>";
  const std::string definedInTwoZones =
      "<ReportDocument><ZoneID>1</ZoneID><ZoneID>2</ZoneID></ReportDocument>"
      "<ReportZone><ZoneID>1</ZoneID><DefinedFormulaVHID>5</DefinedFormulaVHID></ReportZone>"
      "<ReportZone><ZoneID>2</ZoneID><DefinedFormulaVHID>5</DefinedFormulaVHID></ReportZone>";
  const std::string listedTwice =
      "<ReportDocument><ZoneID>1</ZoneID></ReportDocument>"
      "<ReportZone><ZoneID>1</ZoneID><DefinedFormulaVHID>5</DefinedFormulaVHID>"
      "<DefinedFormulaVHID>5</DefinedFormulaVHID></ReportZone>";
  for (const std::string& zones : {placedAndDefined, definedInTwoZones, listedTwice}) {
    SCOPED_TRACE(zones);
    zebtest::WriteFile(
        m_Folder.File("file.xml"),
        "<ReportRootElement>" + zones +
            "<FormulaValueHolder><ValueHolder><VHID>5</VHID></ValueHolder></FormulaValueHolder>"
            "</ReportRootElement>");
    {
      zebreport::LoadedReport loaded;
      loaded.LoadExactly(m_Folder.File("file.xml"), {});
      loaded.Root().SaveReport(m_Folder.WideFile("copy.xml").c_str(), nullptr);
    }
    const std::string copy = zebtest::ReadFile(m_Folder.File("copy.xml"));
    EXPECT_NE(copy.find("<FormulaValueHolder>"), copy.rfind("<FormulaValueHolder>"));
    EXPECT_THAT(zebreport::CheckFile(m_Folder.WideFile("copy.xml")).findings, IsEmpty());
  }
}

// A copy keeps the reference of a tie, not the object that it made for it: the reference leads nowhere.
TEST_F(FileCheck, TellsASavedTieToAnObjectWithoutARecord) {
  zebtest::WriteFile(
      m_Folder.File("file.xml"),
      "<ReportRootElement><ReportDocument><ZoneID>1</ZoneID></ReportDocument>"
      "<ReportZone><ZoneID>1</ZoneID><LineID>2</LineID></ReportZone>"
      "<Line><LineID>2</LineID><Placeable><PlID>2</PlID><PlRelID>3</PlRelID></Placeable></Line>"
      "<PlRel><PlRelID>3</PlRelID><RectID>9</RectID></PlRel></ReportRootElement>");
  {
    zebreport::LoadedReport loaded;
    loaded.LoadExactly(m_Folder.File("file.xml"), {});
    loaded.Root().SaveReport(m_Folder.WideFile("copy.xml").c_str(), nullptr);
  }
  const std::vector<Finding> findings = zebreport::CheckFile(m_Folder.WideFile("copy.xml")).findings;
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].Path, L"/ReportRootElement/PlRel/RectID");
  EXPECT_EQ(findings[0].Fault, Fault::IdentifierWithoutObject);
}

TEST_F(FileCheck, SaysNothingOfOtherFilesThatTheLibraryWrote) {
  const std::filesystem::path catalogue = std::filesystem::path(ZEB_EXAMPLES) / "catalogue";
  const std::wstring file = m_Folder.WideFile("file.xml");
  CReportType type;
  type.LoadReportType(zebtest::WidePath(catalogue / "reporttype.xml").c_str());
  type.SaveReportType(file.c_str());
  EXPECT_THAT(zebreport::CheckFile(file).findings, IsEmpty());
  CReportDescriptions descriptions;
  descriptions.LoadReportDescriptions(zebtest::WidePath(catalogue / "descriptions.xml").c_str());
  descriptions.SaveReportDescriptions(file.c_str());
  EXPECT_THAT(zebreport::CheckFile(file).findings, IsEmpty());
  CFontPool& pool = CFontPool::GetInstance();
  unsigned char program[] = {1, 2, 3};
  pool.SetFontPoolPath(m_Folder.WidePath().c_str());
  pool.SetFontData(L"Font", L"Family", 700, true, program, 3, {L"Schrift", L"Police"});
  pool.SetFontPoolPath(L"");
  pool.DeleteFontPool();
  EXPECT_THAT(zebreport::CheckFile(m_Folder.WideFile("Font.fd")).findings, IsEmpty());
}

TEST_F(FileCheck, SaysNothingOfFilesThatAreOnlyWritten) {
  EXPECT_THAT(Check("\n<ValueHolderData><ReportZone/></ValueHolderData>"), IsEmpty());
  EXPECT_THAT(Check("\n<ProtocolData><LogEntry/></ProtocolData>"), IsEmpty());
}

TEST_F(FileCheck, TakesNoFileOfAnotherSystem) {
  EXPECT_THROW(Check("\n<html><body/></html>"), zebreport::Failure);
  EXPECT_THROW(Check("\n<html>"), zebreport::Failure);
  EXPECT_THROW(zebreport::CheckFile(m_Folder.WideFile("absent.xml")), zebreport::Failure);
}

}  // namespace
