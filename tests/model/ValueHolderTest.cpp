#include "model/ValueHolder.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

constexpr const char* kHead =
    "<ValueHolder><VHID>0</VHID><Text><TxID>0</TxID><Placeable><PlID>0</PlID></Placeable>"
    "<FontName>Helvetica</FontName><FontSize>12.0</FontSize></Text>";

std::string DefaultWith(const std::string& tail) {
  return kHead + std::string("<InternalKey/><VHType>1</VHType>") + tail + "</ValueHolder>";
}

TEST(ValueHolder, HasTheDefaults) {
  const CValueHolder field;
  EXPECT_STREQ(field.GetInternalKey(), L"");
  EXPECT_STREQ(field.GetAlternativeTextBeforeVH(), L"");
  EXPECT_STREQ(field.GetAlternativeTextAfterVH(), L"");
  EXPECT_EQ(field.GetCharacterLimit(), 0);
  EXPECT_TRUE(field.GetMultiline());
  EXPECT_FALSE(field.GetCutLeft());
  EXPECT_FALSE(field.GetNumberToText());
  EXPECT_EQ(field.GetValueHolderType(), 1);
  EXPECT_FALSE(field.GetAdjustGraphicToVHSize());
  EXPECT_FALSE(field.GetKeepAspectRatio());
  EXPECT_EQ(field.GetPageBreakNrLinesMin(), 0);
  EXPECT_EQ(field.GetPageBreakNrLinesKeep(), 0);
  EXPECT_FALSE(field.GetHasRTFContent());
  EXPECT_FALSE(field.IsFormulaValueHolder());
  EXPECT_FALSE(field.IsSumValueHolder());
  EXPECT_FALSE(field.IsDynamicValueHolder());
  EXPECT_FALSE(field.IsCopyValueHolder());
}

TEST(ValueHolder, DefaultWritesIdentifierTextKeyAndType) {
  CValueHolder field;
  EXPECT_EQ(SaveRecord(field), DefaultWith(""));
}

TEST(ValueHolder, WritesEveryFieldInItsOrderAndReadsItBack) {
  CValueHolder field;
  field.SetTextContent(L"sample");
  field.SetInternalKey(L"BE.Notiz");
  field.SetValueHolderType(CValueHolder::VHTypeGraphic);
  field.SetAlternativeTextBeforeVH(L"before ");
  field.SetAlternativeTextAfterVH(L" after");
  field.SetCharacterLimit(20);
  field.SetMultiline(false);
  field.SetCutLeft(true);
  field.SetNumberToText(true);
  field.SetAdjustGraphicToVHSize(true);
  field.SetKeepAspectRatio(true);
  field.SetPageBreakNrLinesMin(3);
  field.SetPageBreakNrLinesKeep(4);
  field.SetHasRTFContent(true);
  const std::string record = SaveRecord(field);
  EXPECT_EQ(record,
            "<ValueHolder><VHID>0</VHID><Text><TxID>0</TxID><Placeable><PlID>0</PlID></Placeable>"
            "<TextContent>sample</TextContent><FontName>Helvetica</FontName><FontSize>12.0</FontSize></Text>"
            "<InternalKey>BE.Notiz</InternalKey><VHType>8</VHType><TextBefore>before </TextBefore>"
            "<TextAfter> after</TextAfter><CharacterLimit>20</CharacterLimit><Multiline>0</Multiline>"
            "<CutLeft>1</CutLeft><NumberToText>1</NumberToText><AdjGSToVH>1</AdjGSToVH>"
            "<KeepAspectRatio>1</KeepAspectRatio><PageBreakNrLinesMin>3</PageBreakNrLinesMin>"
            "<PageBreakNrLinesKeep>4</PageBreakNrLinesKeep><HasRTFContent>1</HasRTFContent></ValueHolder>");

  CValueHolder loaded;
  LoadRecord(loaded, record);
  EXPECT_STREQ(loaded.GetTextContent(), L"sample");
  EXPECT_STREQ(loaded.GetInternalKey(), L"BE.Notiz");
  EXPECT_EQ(loaded.GetValueHolderType(), CValueHolder::VHTypeGraphic);
  EXPECT_STREQ(loaded.GetAlternativeTextBeforeVH(), L"before ");
  EXPECT_STREQ(loaded.GetAlternativeTextAfterVH(), L" after");
  EXPECT_EQ(loaded.GetCharacterLimit(), 20);
  EXPECT_FALSE(loaded.GetMultiline());
  EXPECT_TRUE(loaded.GetCutLeft());
  EXPECT_TRUE(loaded.GetNumberToText());
  EXPECT_TRUE(loaded.GetAdjustGraphicToVHSize());
  EXPECT_TRUE(loaded.GetKeepAspectRatio());
  EXPECT_EQ(loaded.GetPageBreakNrLinesMin(), 3);
  EXPECT_EQ(loaded.GetPageBreakNrLinesKeep(), 4);
  EXPECT_TRUE(loaded.GetHasRTFContent());
}

TEST(ValueHolder, NumbersAreWrittenIfPositive) {
  for (const int value : {-1, 0}) {
    CValueHolder field;
    field.SetCharacterLimit(value);
    field.SetPageBreakNrLinesMin(value);
    field.SetPageBreakNrLinesKeep(value);
    const std::string record = SaveRecord(field);
    EXPECT_EQ(record, DefaultWith(""));
    CValueHolder loaded;
    LoadRecord(loaded, record);
    EXPECT_EQ(loaded.GetCharacterLimit(), 0);
  }
}

TEST(ValueHolder, NegativeNumbersOfAFileAreRead) {
  CValueHolder field;
  LoadRecord(field, "<ValueHolder><CharacterLimit>-5</CharacterLimit></ValueHolder>");
  EXPECT_EQ(field.GetCharacterLimit(), -5);
}

TEST(ValueHolder, MultilineIsWrittenIfFalse) {
  CValueHolder field;
  EXPECT_EQ(SaveRecord(field).find("Multiline"), std::string::npos);
  field.SetMultiline(false);
  EXPECT_EQ(SaveRecord(field), DefaultWith("<Multiline>0</Multiline>"));
}

TEST(ValueHolder, FixedGraphicSettingsAreSavedForGraphicsOnly) {
  for (const int type : {0, 1, 2, 3, 7, 9}) {
    CValueHolder field;
    field.SetValueHolderType(static_cast<CValueHolder::ValueHolderType>(type));
    field.SetAdjustGraphicToVHSize(true);
    field.SetKeepAspectRatio(true);
    const std::string record = SaveRecord(field);
    EXPECT_EQ(record, kHead + std::string("<InternalKey/><VHType>") + std::to_string(type) +
                          "</VHType></ValueHolder>");
    CValueHolder loaded;
    LoadRecord(loaded, record);
    EXPECT_FALSE(loaded.GetAdjustGraphicToVHSize());
    EXPECT_FALSE(loaded.GetKeepAspectRatio());
  }
  CValueHolder graphic;
  graphic.SetValueHolderType(CValueHolder::VHTypeGraphic);
  graphic.SetKeepAspectRatio(true);
  EXPECT_EQ(SaveRecord(graphic), kHead + std::string("<InternalKey/><VHType>8</VHType>"
                                                     "<KeepAspectRatio>1</KeepAspectRatio></ValueHolder>"));
}

TEST(ValueHolder, GraphicSettingsOfAnyTypeAreRead) {
  CValueHolder field;
  LoadRecord(field,
             "<ValueHolder><VHType>1</VHType><AdjGSToVH>1</AdjGSToVH><KeepAspectRatio>1</KeepAspectRatio>"
             "</ValueHolder>");
  EXPECT_TRUE(field.GetAdjustGraphicToVHSize());
  EXPECT_TRUE(field.GetKeepAspectRatio());
}

TEST(ValueHolder, AnyTypeSurvives) {
  CValueHolder field;
  LoadRecord(field, "<ValueHolder><VHType>-2147483648</VHType></ValueHolder>");
  EXPECT_EQ(static_cast<int>(field.GetValueHolderType()), -2147483647 - 1);
}

TEST(ValueHolder, FixedOldElementIsSteppedOver) {
  CValueHolder field;
  LoadRecord(field,
             "<ValueHolder><VHType>8</VHType><NumberToText>1</NumberToText><AdjVHToGS>1</AdjVHToGS>"
             "<AdjGSToVH>1</AdjGSToVH><HasRTFContent>1</HasRTFContent></ValueHolder>");
  EXPECT_TRUE(field.GetNumberToText());
  EXPECT_TRUE(field.GetAdjustGraphicToVHSize());
  EXPECT_TRUE(field.GetHasRTFContent());

  CValueHolder plain;
  LoadRecord(plain,
             "<ValueHolder><AdjVHToGS>1</AdjVHToGS><KeepAspectRatio>1</KeepAspectRatio></ValueHolder>");
  EXPECT_FALSE(plain.GetAdjustGraphicToVHSize());
  EXPECT_TRUE(plain.GetKeepAspectRatio());
}

TEST(ValueHolder, ReadingEndsAtAnElementOutOfOrder) {
  CValueHolder field;
  LoadRecord(
      field,
      "<ValueHolder><VHType>2</VHType><InternalKey>Preis</InternalKey><CutLeft>1</CutLeft></ValueHolder>");
  EXPECT_EQ(field.GetValueHolderType(), CValueHolder::VHTypeNumber);
  EXPECT_STREQ(field.GetInternalKey(), L"");
  EXPECT_FALSE(field.GetCutLeft());
}

TEST(ValueHolder, OneObjectHasOneNumberUnderItsThreeNames) {
  CIDManager ids;
  CText text;
  CValueHolder field;
  SaveRecord(text, ids);
  EXPECT_TRUE(
      SaveRecord(field, ids)
          .starts_with(
              "<ValueHolder><VHID>1</VHID><Text><TxID>1</TxID><Placeable><PlID>1</PlID></Placeable>"));
}

TEST(ValueHolder, BindsItsIdentifier) {
  CIDManager ids;
  CValueHolder field;
  LoadRecord(field, "<ValueHolder><VHID>4</VHID><Text><TxID>4</TxID></Text></ValueHolder>", ids);
  EXPECT_EQ(ids.GetObjectFromID(4), &field);
}

TEST(ValueHolder, CopiesStringsAndScalars) {
  CValueHolder source;
  source.SetTextContent(L"content");
  source.SetInternalKey(L"key");
  source.SetAlternativeTextBeforeVH(L"before");
  source.SetAlternativeTextAfterVH(L"after");
  source.SetCharacterLimit(7);
  source.SetMultiline(false);
  source.SetValueHolderType(CValueHolder::VHTypeDate);
  source.SetHasRTFContent(true);
  const CValueHolder copy(source);
  CValueHolder assigned;
  assigned = source;
  for (const CValueHolder* field : {&copy, const_cast<const CValueHolder*>(&assigned)}) {
    EXPECT_STREQ(field->GetTextContent(), L"content");
    EXPECT_STREQ(field->GetInternalKey(), L"key");
    EXPECT_STREQ(field->GetAlternativeTextBeforeVH(), L"before");
    EXPECT_STREQ(field->GetAlternativeTextAfterVH(), L"after");
    EXPECT_EQ(field->GetCharacterLimit(), 7);
    EXPECT_FALSE(field->GetMultiline());
    EXPECT_EQ(field->GetValueHolderType(), CValueHolder::VHTypeDate);
    EXPECT_TRUE(field->GetHasRTFContent());
  }
}

}  // namespace
