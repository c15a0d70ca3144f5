#include "model/FormulaValueHolder.h"

#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

constexpr const char* kBase =
    "<ValueHolder><VHID>0</VHID><Text><TxID>0</TxID><Placeable><PlID>0</PlID></Placeable>"
    "<FontName>Helvetica</FontName><FontSize>12.0</FontSize></Text><InternalKey/><VHType>1</VHType></"
    "ValueHolder>";

std::string Record(const std::string& tail) {
  return "<FormulaValueHolder>" + (kBase + tail) + "</FormulaValueHolder>";
}

constexpr const char* kDefaultTail =
    "<FormulaData><Name/><Formula/><RoundVHKey>PL.Nks2</RoundVHKey></FormulaData>"
    "<FormulaOptions><InternalDecimalPlaces>-1</InternalDecimalPlaces>"
    "<ResultIsEmptyIfVHEmpty>0</ResultIsEmptyIfVHEmpty><ResultIsEmptyIfNull>0</ResultIsEmptyIfNull>"
    "<ResultIsBool>0</ResultIsBool></FormulaOptions>";

TEST(FormulaValueHolder, HasTheDefaults) {
  const CFormulaValueHolder formula;
  EXPECT_STREQ(formula.GetName(), L"");
  EXPECT_STREQ(formula.GetFormula(), L"");
  EXPECT_STREQ(formula.GetRoundVHKey(), L"PL.Nks2");
  EXPECT_EQ(formula.GetInternalDecimalPlaces(), -1);
  EXPECT_FALSE(formula.GetResultIsEmptyIfVHEmpty());
  EXPECT_FALSE(formula.GetResultIsEmptyIfNull());
  EXPECT_FALSE(formula.GetResultIsBool());
  EXPECT_TRUE(formula.IsFormulaValueHolder());
  EXPECT_FALSE(formula.IsSumValueHolder());
  EXPECT_FALSE(formula.IsDynamicValueHolder());
  EXPECT_FALSE(formula.IsCopyValueHolder());
}

TEST(FormulaValueHolder, FixedEveryFieldIsWrittenWhateverItsValue) {
  CFormulaValueHolder formula;
  EXPECT_EQ(SaveRecord(formula), Record(kDefaultTail));
}

TEST(FormulaValueHolder, WritesEveryFieldInItsOrderAndReadsItBack) {
  CFormulaValueHolder formula;
  formula.SetInternalKey(L"FX.1");
  formula.SetName(L"Betrag");
  formula.SetFormula(L"Menge * Preis");
  formula.SetRoundVHKey(L"PL.NksBetrag");
  formula.SetInternalDecimalPlaces(4);
  formula.SetResultIsEmptyIfVHEmpty(true);
  formula.SetResultIsEmptyIfNull(true);
  formula.SetResultIsBool(true);
  formula.InsertKeyAndType(L"Preis", CValueHolder::VHTypeNumber);
  formula.InsertKeyAndType(L"Menge", CValueHolder::VHTypeDate);
  const std::string record = SaveRecord(formula);
  const std::string tail =
      "<FormulaData><Name>Betrag</Name><Formula>Menge * Preis</Formula><RoundVHKey>PL.NksBetrag</RoundVHKey>"
      "<KeyToType><InternalKey>Menge</InternalKey><VHType>3</VHType></KeyToType>"
      "<KeyToType><InternalKey>Preis</InternalKey><VHType>2</VHType></KeyToType></FormulaData>"
      "<FormulaOptions><InternalDecimalPlaces>4</InternalDecimalPlaces>"
      "<ResultIsEmptyIfVHEmpty>1</ResultIsEmptyIfVHEmpty><ResultIsEmptyIfNull>1</ResultIsEmptyIfNull>"
      "<ResultIsBool>1</ResultIsBool></FormulaOptions></FormulaValueHolder>";
  EXPECT_TRUE(record.ends_with(tail)) << record;

  CFormulaValueHolder loaded;
  LoadRecord(loaded, record);
  EXPECT_STREQ(loaded.GetInternalKey(), L"FX.1");
  EXPECT_STREQ(loaded.GetName(), L"Betrag");
  EXPECT_STREQ(loaded.GetFormula(), L"Menge * Preis");
  EXPECT_STREQ(loaded.GetRoundVHKey(), L"PL.NksBetrag");
  EXPECT_EQ(loaded.GetInternalDecimalPlaces(), 4);
  EXPECT_TRUE(loaded.GetResultIsEmptyIfVHEmpty());
  EXPECT_TRUE(loaded.GetResultIsEmptyIfNull());
  EXPECT_TRUE(loaded.GetResultIsBool());
  EXPECT_EQ(loaded.GetTypeFromKey(L"Menge"), CValueHolder::VHTypeDate);
  EXPECT_EQ(loaded.GetTypeFromKey(L"Preis"), CValueHolder::VHTypeNumber);
  EXPECT_EQ(loaded.GetTypeFromKey(L"menge"), CValueHolder::VHTypeText);
}

TEST(FormulaValueHolder, EmptyRoundKeyIsReadAsEmpty) {
  CFormulaValueHolder formula;
  LoadRecord(
      formula,
      "<FormulaValueHolder><ValueHolder/><FormulaData><RoundVHKey/></FormulaData></FormulaValueHolder>");
  EXPECT_STREQ(formula.GetRoundVHKey(), L"");
}

TEST(FormulaValueHolder, UnknownKeyHasType1) {
  CFormulaValueHolder formula;
  EXPECT_EQ(formula.GetTypeFromKey(L"x"), 1);
  formula.InsertKeyAndType(L"x", CValueHolder::VHTypeGraphic);
  EXPECT_EQ(formula.GetTypeFromKey(L"x"), 8);
  EXPECT_EQ(formula.GetTypeFromKey(L""), 1);
  formula.ClearKeyToType();
  EXPECT_EQ(formula.GetTypeFromKey(L"x"), 1);
}

TEST(FormulaValueHolder, FixedFirstTypeOfAKeyStays) {
  CFormulaValueHolder formula;
  formula.InsertKeyAndType(L"x", CValueHolder::VHTypeNumber);
  formula.InsertKeyAndType(L"x", CValueHolder::VHTypeDate);
  EXPECT_EQ(formula.GetTypeFromKey(L"x"), CValueHolder::VHTypeNumber);
}

TEST(FormulaValueHolder, ElementWithoutTypeHasType1AndWithoutKeyIsDropped) {
  CFormulaValueHolder formula;
  LoadRecord(
      formula,
      "<FormulaValueHolder><ValueHolder/><FormulaData><KeyToType><InternalKey>b</InternalKey></KeyToType>"
      "<KeyToType><VHType>2</VHType></KeyToType>"
      "<KeyToType><InternalKey>a</InternalKey><VHType>3</VHType></KeyToType></FormulaData>"
      "</FormulaValueHolder>");
  const std::string record = SaveRecord(formula);
  EXPECT_NE(
      record.find("<KeyToType><InternalKey>a</InternalKey><VHType>3</VHType></KeyToType>"
                  "<KeyToType><InternalKey>b</InternalKey><VHType>1</VHType></KeyToType></FormulaData>"),
      std::string::npos)
      << record;
  EXPECT_EQ(record.find("<VHType>2</VHType>"), std::string::npos);
}

TEST(FormulaValueHolder, FixedSecondLoadKeepsTheFirstTypes) {
  CFormulaValueHolder formula;
  for (const char* const type : {"2", "3"}) {
    LoadRecord(formula, std::string("<FormulaValueHolder><ValueHolder/><FormulaData><KeyToType><InternalKey>x"
                                    "</InternalKey><VHType>") +
                            type + "</VHType></KeyToType></FormulaData></FormulaValueHolder>");
  }
  EXPECT_EQ(formula.GetTypeFromKey(L"x"), CValueHolder::VHTypeNumber);
}

TEST(FormulaValueHolder, ReadsOptionsWithoutData) {
  CFormulaValueHolder formula;
  LoadRecord(formula,
             "<FormulaValueHolder><ValueHolder/><FormulaOptions><ResultIsBool>1</ResultIsBool>"
             "</FormulaOptions></FormulaValueHolder>");
  EXPECT_TRUE(formula.GetResultIsBool());
  EXPECT_EQ(formula.GetInternalDecimalPlaces(), -1);
}

TEST(FormulaValueHolder, ReadingEndsAtAnElementOutOfOrder) {
  CFormulaValueHolder formula;
  LoadRecord(formula,
             "<FormulaValueHolder><ValueHolder/><FormulaOptions><ResultIsBool>1</ResultIsBool>"
             "</FormulaOptions><FormulaData><Name>n</Name></FormulaData></FormulaValueHolder>");
  EXPECT_TRUE(formula.GetResultIsBool());
  EXPECT_STREQ(formula.GetName(), L"");
}

TEST(FormulaValueHolder, EmptyRecordKeepsTheDefaults) {
  CFormulaValueHolder formula;
  LoadRecord(formula, "<FormulaValueHolder/>");
  EXPECT_EQ(SaveRecord(formula), Record(kDefaultTail));
}

TEST(FormulaValueHolder, CopiesStringsTableAndScalars) {
  CFormulaValueHolder source;
  source.SetInternalKey(L"FX.1");
  source.SetName(L"n");
  source.SetFormula(L"f");
  source.SetRoundVHKey(L"r");
  source.SetInternalDecimalPlaces(3);
  source.SetResultIsBool(true);
  source.InsertKeyAndType(L"x", CValueHolder::VHTypeNumber);
  const CFormulaValueHolder copy(source);
  CFormulaValueHolder assigned;
  assigned = source;
  source.ClearKeyToType();
  for (const CFormulaValueHolder* formula : {&copy, const_cast<const CFormulaValueHolder*>(&assigned)}) {
    EXPECT_STREQ(formula->GetInternalKey(), L"FX.1");
    EXPECT_STREQ(formula->GetName(), L"n");
    EXPECT_STREQ(formula->GetFormula(), L"f");
    EXPECT_STREQ(formula->GetRoundVHKey(), L"r");
    EXPECT_EQ(formula->GetInternalDecimalPlaces(), 3);
    EXPECT_TRUE(formula->GetResultIsBool());
    EXPECT_EQ(formula->GetTypeFromKey(L"x"), CValueHolder::VHTypeNumber);
  }
}

}  // namespace
