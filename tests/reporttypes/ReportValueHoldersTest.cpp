#include "reporttypes/ReportValueHolders.h"

#include "fonts/FontPool.h"
#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"
#include "support/KeepForever.h"
#include "support/LoadedReport.h"
#include "support/RaisedKey.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using zebtest::ReportOfOneZone;
using zebtest::TextRecord;
using zebtest::ValueHolderRecord;

const std::filesystem::path kExamples = ZEB_EXAMPLES;

/// A report behind its facade, with what nobody owns freed at its end.
class ReportValueHolders : public testing::Test {
 protected:
  void TearDown() override {
    Forget();
    CFontPool::GetInstance().SetFontPoolPath(L"");
  }

  void LoadFile(const std::filesystem::path& report) {
    Forget();
    m_facade.LoadReport(zebtest::WidePath(report).c_str(), m_dir.WidePath().c_str(),
                        zebtest::WidePath(ZEB_SHARE).c_str());
  }
  void LoadSample(const char* name) { LoadFile(kExamples / name / "report.xml"); }
  void LoadText(const std::string& xml) {
    zebtest::WriteFile(m_dir.File("report.xml"), xml);
    LoadFile(m_dir.File("report.xml"));
  }

  std::vector<std::wstring> FormulaKeys(int zone) {
    std::vector<std::wstring> keys;
    for (int i = 0; i < m_facade.GetReportZoneFormulaValueHolderKeyCount(zone); ++i) {
      keys.emplace_back(m_facade.GetReportZoneFormulaValueHolderKeyAt(zone, i));
    }
    return keys;
  }
  std::vector<std::wstring> Keys(int zone) {
    std::vector<std::wstring> keys;
    for (int i = 0; i < m_facade.GetReportZoneValueHolderCount(zone); ++i) {
      keys.emplace_back(m_facade.GetReportZoneValueHolderInternalNameAt(zone, i));
    }
    return keys;
  }

  zebtest::TempDir m_dir;
  CReportValueHolders m_facade;

 private:
  void Forget() {
    const CReportRootElement* root = m_facade.GetRootElement();
    if (root != nullptr && root->GetReportDocument() != nullptr) {
      m_unowned.Collect(*root->GetReportDocument());
    }
  }

  zebtest::UnownedOfReport m_unowned;
};

/// A record of a derived value holder: its own element around that of a plain one.
std::string DerivedRecord(const std::string& element, int id, const std::string& key,
                          const std::string& fields) {
  return "<" + element + ">" + ValueHolderRecord(id, "", key) + fields + "</" + element + ">";
}

std::string FormulaRecord(int id, const std::string& key, const std::string& name, const std::string& formula,
                          const std::string& options = "") {
  return DerivedRecord("FormulaValueHolder", id, key,
                       "<FormulaData><Name>" + name + "</Name><Formula>" + formula +
                           "</Formula><RoundVHKey>PL.Nks2</RoundVHKey></FormulaData><FormulaOptions>" +
                           options + "</FormulaOptions>");
}

std::string Options(bool emptyIfVHEmpty, bool emptyIfNull, bool isBool) {
  const auto element = [](const std::string& name, bool value) {
    return "<" + name + ">" + (value ? "1" : "0") + "</" + name + ">";
  };
  return element("ResultIsEmptyIfVHEmpty", emptyIfVHEmpty) + element("ResultIsEmptyIfNull", emptyIfNull) +
         element("ResultIsBool", isBool);
}

std::string CellRecord(int id, int column) {
  const std::string number = std::to_string(id);
  return "<TableCell><TableCellID>" + number + "</TableCellID><Placeable><PlID>" + number +
         "</PlID></Placeable><TableID>1</TableID><RowIndex>0</RowIndex><ColIndex>" + std::to_string(column) +
         "</ColIndex></TableCell>";
}

std::string GraphicRecord(int id, const std::string& key, int type, const std::string& size) {
  return "<ValueHolder><VHID>" + std::to_string(id) + "</VHID>" + TextRecord(id, size) + "<InternalKey>" +
         key + "</InternalKey><VHType>" + std::to_string(type) + "</VHType></ValueHolder>";
}

using Strings = std::vector<std::wstring>;

}  // namespace

TEST_F(ReportValueHolders, StartsWithoutAReport) {
  EXPECT_EQ(m_facade.GetRootElement(), nullptr);
  static_assert(std::has_virtual_destructor_v<CReportValueHolders>);
}

// Which questions are const is part of the interface.
TEST_F(ReportValueHolders, AskUnderTheirSignatures) {
  using Facade = CReportValueHolders;
  static_assert(std::is_same_v<decltype(&Facade::GetRootElement), CReportRootElement* (Facade::*)() const>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneCount), int (Facade::*)() const>);
  static_assert(
      std::is_same_v<decltype(&Facade::GetReportZoneInternalName), const wchar_t* (Facade::*)(int) const>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneNr), int (Facade::*)(const wchar_t*)>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneTextCount), int (Facade::*)(int) const>);
  static_assert(
      std::is_same_v<decltype(&Facade::GetReportZoneTextAt), const wchar_t* (Facade::*)(int, int) const>);
  static_assert(
      std::is_same_v<decltype(&Facade::GetReportZoneFormulaValueHolderKeyCount), int (Facade::*)(int) const>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneFormulaValueHolderKeyAt),
                               const wchar_t* (Facade::*)(int, int)>);
  static_assert(
      std::is_same_v<decltype(&Facade::GetReportZoneOrderedElementCount), int (Facade::*)(int) const>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneOrderedElementAt),
                               const CReportOrderedElement& (Facade::*)(int, int)>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneValueHolderCount), int (Facade::*)(int) const>);
  using TextOfValueHolder = const wchar_t* (Facade::*)(int, int) const;
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneValueHolderInternalNameAt), TextOfValueHolder>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneValueHolderDynNameAt), TextOfValueHolder>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneValueHolderFormulaNameAt), TextOfValueHolder>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneValueHolderFormulaAt), TextOfValueHolder>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneValueHolderSumNameAt), TextOfValueHolder>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneValueHolderFormulaOptionsAt),
                               int (Facade::*)(int, int) const>);
  static_assert(std::is_same_v<decltype(&Facade::GetReportZoneValueHolderNumberToText),
                               bool (Facade::*)(int, int) const>);
  static_assert(std::is_same_v<decltype(&Facade::GetGraphicValueHolderDimensions),
                               bool (Facade::*)(int, const wchar_t*, float&, float&)>);
  static_assert(std::is_same_v<decltype(&Facade::LoadReport),
                               void (Facade::*)(const wchar_t*, const wchar_t*, const wchar_t*)>);
}

TEST_F(ReportValueHolders, LoadsTheReportWithoutItsLayout) {
  LoadSample("invoice");
  EXPECT_STREQ(m_facade.GetRootElement()->GetReportType(), L"Rechnung");
  EXPECT_EQ(m_facade.GetRootElement()->GetReportLayout(), nullptr);
  EXPECT_STREQ(m_facade.GetRootElement()->GetLayoutFile(), L"");
}

TEST_F(ReportValueHolders, NamesTheZonesInTheirOrder) {
  LoadSample("invoice");
  ASSERT_EQ(m_facade.GetReportZoneCount(), 6);
  const Strings names = {L"Kopf", L"PositionsKopf", L"Position", L"Text", L"Summe", L"Fuss"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(m_facade.GetReportZoneInternalName(i), names[static_cast<std::size_t>(i)]);
    EXPECT_EQ(m_facade.GetReportZoneNr(names[static_cast<std::size_t>(i)].c_str()), i);
  }
}

TEST_F(ReportValueHolders, FindsAZoneByItsExactNameOnly) {
  LoadSample("invoice");
  EXPECT_EQ(m_facade.GetReportZoneNr(L"Anhang"), -1);
  EXPECT_EQ(m_facade.GetReportZoneNr(L"kopf"), -1);
  EXPECT_EQ(m_facade.GetReportZoneNr(L"Kop"), -1);
  EXPECT_EQ(m_facade.GetReportZoneNr(L""), -1);
}

TEST_F(ReportValueHolders, FindsTheFirstOfTwoZonesAndPassesNullOnes) {
  LoadText(
      "<ReportRootElement><ReportDocument><ReportDocumentID>0</ReportDocumentID><ZoneID>1</ZoneID>"
      "<ZoneID>2</ZoneID><ZoneID>3</ZoneID></ReportDocument>"
      "<ReportZone><ZoneID>1</ZoneID><InternalName>A</InternalName></ReportZone>"
      "<ReportZone><ZoneID>2</ZoneID><InternalName>B</InternalName></ReportZone>"
      "<ReportZone><ZoneID>3</ZoneID><InternalName>B</InternalName></ReportZone></ReportRootElement>");
  EXPECT_EQ(m_facade.GetReportZoneNr(L"B"), 1);
  CReportDocument* document = m_facade.GetRootElement()->GetReportDocument();
  delete document->GetReportZoneAt(0);
  document->SetReportZoneAt(nullptr, 0);
  EXPECT_EQ(m_facade.GetReportZoneCount(), 3);
  EXPECT_EQ(m_facade.GetReportZoneNr(L"A"), -1);
  EXPECT_EQ(m_facade.GetReportZoneNr(L"B"), 1);
}

TEST_F(ReportValueHolders, LoadAReportWithoutZones) {
  LoadText(
      "<ReportRootElement><ReportType>T</ReportType><ReportDocument><ReportDocumentID>0</ReportDocumentID>"
      "</ReportDocument></ReportRootElement>");
  EXPECT_EQ(m_facade.GetReportZoneCount(), 0);
  EXPECT_EQ(m_facade.GetReportZoneNr(L"Kopf"), -1);
  LoadText("<ReportRootElement><ReportType>T</ReportType></ReportRootElement>");
  EXPECT_EQ(m_facade.GetReportZoneCount(), 0) << "nor has a file without a document zones";
  EXPECT_EQ(m_facade.GetReportZoneNr(L"Kopf"), -1);
}

TEST_F(ReportValueHolders, GivesTheTextsOfAZone) {
  LoadSample("invoice");
  const int zone = m_facade.GetReportZoneNr(L"Text");
  ASSERT_EQ(m_facade.GetReportZoneTextCount(zone), 2);
  EXPECT_STREQ(m_facade.GetReportZoneTextAt(zone, 0), L"Hinweise zu Ihrer Bestellung");
  EXPECT_STREQ(m_facade.GetReportZoneTextAt(zone, 1),
               L"Der Rechnungsbetrag wird von Ihrem Konto eingezogen.");
  EXPECT_EQ(m_facade.GetReportZoneTextCount(m_facade.GetReportZoneNr(L"PositionsKopf")), 0)
      << "texts in table cells do not count";
}

// Own value holders first, then those in cells, then the formulas in cells; copies in cells are in neither list.
TEST_F(ReportValueHolders, CountsOneIndexOverThreeLists) {
  LoadSample("invoice");
  EXPECT_EQ(Keys(m_facade.GetReportZoneNr(L"Position")),
            (Strings{L"Pos", L"Artikel", L"Menge", L"Einheit", L"Preis", L"Rabatt", L"Bezeichnung",
                     L"FX.Betrag", L"FX.Gewicht", L"FX.Rabatt"}));
  LoadSample("statement");
  EXPECT_EQ(Keys(m_facade.GetReportZoneNr(L"Saldo")),
            (Strings{L"SU.Soll", L"SU.Haben", L"SU.HabenSeite", L"FX.Tagesschnitt", L"ZF.Berater",
                     L"FX.Endsaldo"}));
  LoadText(ReportOfOneZone(
      "<FormulaVHID>2</FormulaVHID><VHID>3</VHID><TableCellID>4</TableCellID><FormulaVHID>5</FormulaVHID>"
      "<SumVHID>6</SumVHID><TableCellID>7</TableCellID><CopyVHID>8</CopyVHID><VHID>9</VHID>"
      "<FormulaVHID>10</FormulaVHID>",
      ValueHolderRecord(3, "", "own") + FormulaRecord(2, "own formula", "", "") +
          FormulaRecord(5, "first formula", "", "") + DerivedRecord("SumValueHolder", 6, "sum", "") +
          DerivedRecord("CopyValueHolder", 8, "copy", "") + ValueHolderRecord(9, "", "in cell") +
          FormulaRecord(10, "second formula", "", "") + CellRecord(4, 0) + CellRecord(7, 1)));
  EXPECT_EQ(Keys(0),
            (Strings{L"own formula", L"own", L"sum", L"in cell", L"first formula", L"second formula"}));
}

TEST_F(ReportValueHolders, ReadTheListsOfCellsAsTheyStand) {
  LoadText(ReportOfOneZone("<VHID>2</VHID>", ValueHolderRecord(2, "", "own")));
  CReportZone* zone = m_facade.GetRootElement()->GetReportDocument()->GetReportZoneAt(0);
  auto* cell = new CTableCell;
  auto* formula = new CFormulaValueHolder;
  formula->SetInternalKey(L"built");
  cell->AddCellElement(formula);
  zone->AddTableCell(cell);
  EXPECT_EQ(m_facade.GetReportZoneValueHolderCount(0), 1);
  zone->FillValueHoldersInTableCells();
  EXPECT_EQ(Keys(0), (Strings{L"own", L"built"}));
}

TEST_F(ReportValueHolders, AnswerPastTheEnd) {
  LoadSample("invoice");
  for (int zone = 0; zone < m_facade.GetReportZoneCount(); ++zone) {
    const int end = m_facade.GetReportZoneValueHolderCount(zone);
    EXPECT_EQ(m_facade.GetReportZoneValueHolderInternalNameAt(zone, end), nullptr);
    EXPECT_EQ(m_facade.GetReportZoneValueHolderDynNameAt(zone, end), nullptr);
    EXPECT_EQ(m_facade.GetReportZoneValueHolderFormulaNameAt(zone, end), nullptr);
    EXPECT_EQ(m_facade.GetReportZoneValueHolderFormulaAt(zone, end), nullptr);
    EXPECT_EQ(m_facade.GetReportZoneValueHolderSumNameAt(zone, end), nullptr);
    EXPECT_EQ(m_facade.GetReportZoneValueHolderFormulaOptionsAt(zone, end), 0);
    EXPECT_FALSE(m_facade.GetReportZoneValueHolderNumberToText(zone, end));
    EXPECT_EQ(m_facade.GetReportZoneValueHolderInternalNameAt(zone, end + 1000), nullptr);
  }
}

TEST_F(ReportValueHolders, GiveToEachKindItsOwnName) {
  LoadSample("legacy");
  const int zone = m_facade.GetReportZoneNr(L"Position");
  // Pos, Artikel, Bestellt, Geliefert, FX.Rest, SU.Laufend, CH.Charge, LS.Nummer
  ASSERT_EQ(m_facade.GetReportZoneValueHolderCount(zone), 8);
  for (int i = 0; i < 8; ++i) {
    SCOPED_TRACE(i);
    const wchar_t* formulaName = m_facade.GetReportZoneValueHolderFormulaNameAt(zone, i);
    const wchar_t* formula = m_facade.GetReportZoneValueHolderFormulaAt(zone, i);
    const wchar_t* sum = m_facade.GetReportZoneValueHolderSumNameAt(zone, i);
    const wchar_t* dynamic = m_facade.GetReportZoneValueHolderDynNameAt(zone, i);
    EXPECT_STREQ(formulaName, i == 4 ? L"Rückstand" : nullptr);
    EXPECT_STREQ(formula, i == 4 ? L"max(Bestellt - Geliefert; 0)" : nullptr);
    EXPECT_STREQ(sum, i == 5 ? L"Laufende Menge" : nullptr);
    EXPECT_STREQ(dynamic, i == 6 ? L"Charge" : nullptr);
  }
}

TEST_F(ReportValueHolders, PackTheOptionsOfAFormula) {
  std::string zone;
  std::string records;
  for (int options = 0; options < 8; ++options) {
    zone += "<FormulaVHID>" + std::to_string(10 + options) + "</FormulaVHID>";
    records += FormulaRecord(10 + options, "F", "", "1",
                             Options((options & 1) != 0, (options & 2) != 0, (options & 4) != 0));
  }
  LoadText(ReportOfOneZone(zone + "<VHID>30</VHID>", records + ValueHolderRecord(30)));
  for (int options = 0; options < 8; ++options) {
    EXPECT_EQ(m_facade.GetReportZoneValueHolderFormulaOptionsAt(0, options), options);
  }
  EXPECT_EQ(m_facade.GetReportZoneValueHolderFormulaOptionsAt(0, 8), 0);
  EXPECT_EQ(m_facade.GetReportZoneValueHolderFormulaAt(0, 8), nullptr);
}

TEST_F(ReportValueHolders, TellWhichNumbersAreInWords) {
  LoadSample("invoice");
  const int zone = m_facade.GetReportZoneNr(L"Summe");
  // SU.Netto, PL.MwSt-Satz, FX.MwSt, FX.Gesamt, PL.SkontoTage, FX.Skonto, FX.Worte, SU.Gewicht
  ASSERT_EQ(m_facade.GetReportZoneValueHolderCount(zone), 8);
  for (int i = 0; i < 8; ++i) EXPECT_EQ(m_facade.GetReportZoneValueHolderNumberToText(zone, i), i == 6) << i;
}

// By hand, in the order of reading: own value holders, those in cells, formulas in cells, texts, lines, rectangles.
TEST_F(ReportValueHolders, FindTheKeysOfFormulasWhenLoading) {
  LoadSample("invoice");
  EXPECT_EQ(FormulaKeys(0), (Strings{L"AD.Land"}));
  EXPECT_EQ(FormulaKeys(1), Strings{});
  EXPECT_EQ(FormulaKeys(2),
            (Strings{L"Rabatt", L"Menge", L"Preis", L"PL.Hierarchie", L"Gewicht", L"PL.NksGewicht", L"Pos"}));
  EXPECT_EQ(FormulaKeys(3), (Strings{L"BE.Zahlungsart"}));
  EXPECT_EQ(FormulaKeys(4),
            (Strings{L"SU.Netto", L"PL.MwSt-Satz", L"PL.Hierarchie", L"PL.Skonto", L"FX.Gesamt"}));
  EXPECT_EQ(FormulaKeys(5), (Strings{L"PL.MwSt-Satz"}));
}

// A second search would append the sums of the footer zone again: SU.Netto and SU.Gewicht of zone 4.
TEST_F(ReportValueHolders, FindTheKeysExactlyOnceInALoad) {
  for (int load = 0; load < 2; ++load) {
    LoadSample("invoice");
    CReportDocument& document = *m_facade.GetRootElement()->GetReportDocument();
    for (int i = 0; i < document.GetReportZoneCount(); ++i) {
      EXPECT_EQ(document.GetReportZoneAt(i)->GetSumValueHolderKeyCount(), i == 4 ? 2 : 0) << "zone " << i;
    }
  }
}

TEST_F(ReportValueHolders, GiveTheOrderInItsNeutralForm) {
  LoadText(ReportOfOneZone("<TxID>2</TxID><VHID>3</VHID><LineID>4</LineID>",
                           ValueHolderRecord(3, "", "Menge") +
                               TextRecord(2, "", "<TextContent>St</TextContent>") +
                               "<Line><LineID>4</LineID><Placeable><PlID>4</PlID></Placeable></Line>"));
  ASSERT_EQ(m_facade.GetReportZoneOrderedElementCount(0), 3);
  const CReportOrderedElement& answer = m_facade.GetReportZoneOrderedElementAt(0, 0);
  EXPECT_TRUE(answer.IsText());
  EXPECT_STREQ(answer.GetTextContent(), L"St");
  EXPECT_TRUE(m_facade.GetReportZoneOrderedElementAt(0, 1).IsValueHolder());
  EXPECT_STREQ(answer.GetValueHolderKey(), L"Menge");
  EXPECT_TRUE(m_facade.GetReportZoneOrderedElementAt(0, 2).IsOtherElement());
}

TEST_F(ReportValueHolders, FixedOneAnswerObjectServesEveryZone) {
  LoadSample("invoice");
  const CReportOrderedElement* answer = &m_facade.GetReportZoneOrderedElementAt(0, 0);
  for (int zone = 0; zone < m_facade.GetReportZoneCount(); ++zone) {
    for (int i = 0; i < m_facade.GetReportZoneOrderedElementCount(zone); ++i) {
      EXPECT_EQ(&m_facade.GetReportZoneOrderedElementAt(zone, i), answer);
    }
  }
}

TEST_F(ReportValueHolders, OrderEveryElementOfTheSamples) {
  for (const char* sample : {"invoice", "statement", "legacy"}) {
    LoadSample(sample);
    for (int i = 0; i < m_facade.GetReportZoneCount(); ++i) {
      CReportZone& zone = *m_facade.GetRootElement()->GetReportDocument()->GetReportZoneAt(i);
      int elements = zone.GetTextElementCount() + zone.GetValueHolderCount() + zone.GetPictureElementCount() +
                     zone.GetRectangleElementCount() + zone.GetLineElementCount() + zone.GetTableCellCount();
      for (int j = 0; j < zone.GetTableCellCount(); ++j)
        elements += zone.GetTableCellAt(j)->GetCellElementCount();
      EXPECT_EQ(m_facade.GetReportZoneOrderedElementCount(i), elements) << sample << " zone " << i;
    }
  }
}

TEST_F(ReportValueHolders, RaiseTiesInACircle) {
  const auto relation = [](int id, int target) {
    return "<PlRel><PlRelID>" + std::to_string(id) + "</PlRelID><TxID>" + std::to_string(target) +
           "</TxID></PlRel>";
  };
  LoadText(ReportOfOneZone("<TxID>2</TxID><TxID>3</TxID>", TextRecord(2, "<PlRelID>4</PlRelID>") +
                                                               TextRecord(3, "<PlRelID>5</PlRelID>") +
                                                               relation(4, 3) + relation(5, 2)));
  EXPECT_EQ(zebtest::RaisedKey([&] { m_facade.GetReportZoneOrderedElementCount(0); }),
            L"OrderVectorNotSortable");
  EXPECT_EQ(zebtest::RaisedKey([&] { m_facade.GetReportZoneOrderedElementAt(0, 0); }),
            L"OrderVectorNotSortable");
}

TEST_F(ReportValueHolders, GiveTheSizeOfAGraphic) {
  LoadSample("legacy");
  float width = -1;
  float height = -1;
  ASSERT_TRUE(m_facade.GetGraphicValueHolderDimensions(m_facade.GetReportZoneNr(L"Kopf"), L"LS.Siegel", width,
                                                       height));
  EXPECT_EQ(width, 48.0F);
  EXPECT_EQ(height, 48.0F);
  LoadSample("invoice");
  ASSERT_TRUE(m_facade.GetGraphicValueHolderDimensions(m_facade.GetReportZoneNr(L"Fuss"), L"BE.Unterschrift",
                                                       width, height));
  EXPECT_EQ(width, 120.0F);
  EXPECT_EQ(height, 36.0F);
}

TEST_F(ReportValueHolders, GiveTheSizeOfTheFirstGraphicOfTheKeyOutsideCells) {
  LoadText(ReportOfOneZone(
      "<VHID>2</VHID><VHID>3</VHID><VHID>4</VHID><TableCellID>5</TableCellID><VHID>6</VHID>",
      GraphicRecord(2, "G", 1, "<Width>1.0</Width><Height>2.0</Height>") +
          GraphicRecord(3, "G", 8, "<Width>30.0</Width><Height>40.0</Height>") +
          GraphicRecord(4, "G", 8, "<Width>50.0</Width><Height>60.0</Height>") +
          GraphicRecord(6, "InCell", 8, "<Width>7.0</Width><Height>8.0</Height>") + CellRecord(5, 0)));
  float width = 0;
  float height = 0;
  ASSERT_TRUE(m_facade.GetGraphicValueHolderDimensions(0, L"G", width, height));
  EXPECT_EQ(width, 30.0F);
  EXPECT_EQ(height, 40.0F);
  ASSERT_EQ(Keys(0), (Strings{L"G", L"G", L"G", L"InCell"}));
  for (const wchar_t* other : {L"InCell", L"g", L"", L"Unknown"}) {
    EXPECT_FALSE(m_facade.GetGraphicValueHolderDimensions(0, other, width, height));
  }
  EXPECT_EQ(width, 30.0F) << "without a graphic the outputs stay";
  EXPECT_EQ(height, 40.0F);
}

TEST_F(ReportValueHolders, FindNoGraphicUnderTheKeyOfAnotherKind) {
  LoadSample("legacy");
  float width = -1;
  float height = -2;
  EXPECT_FALSE(m_facade.GetGraphicValueHolderDimensions(0, L"LS.Nummer", width, height));
  EXPECT_EQ(width, -1.0F);
  EXPECT_EQ(height, -2.0F);
}

TEST_F(ReportValueHolders, SetThePathsOfTheProcess) {
  LoadSample("invoice");
  EXPECT_EQ(CKXExceptionHandler::GetInstance().GetExceptionNamePath(), zebtest::WidePath(ZEB_SHARE) + L'\\');
  const std::wstring pool = CFontPool::GetInstance().GetFontPoolPath();
  EXPECT_EQ(pool.substr(0, pool.size() - 1), m_dir.WidePath());
}

// The paths are set before the file is opened.
TEST_F(ReportValueHolders, SetThePathsAlsoIfTheLoadFails) {
  EXPECT_THROW(m_facade.LoadReport(m_dir.WideFile("absent.xml").c_str(), m_dir.WideFile("pool").c_str(),
                                   m_dir.WideFile("catalogue").c_str()),
               CKXXMLException);
  EXPECT_EQ(CKXExceptionHandler::GetInstance().GetExceptionNamePath(), m_dir.WideFile("catalogue") + L'\\');
  EXPECT_TRUE(std::wstring(CFontPool::GetInstance().GetFontPoolPath()).starts_with(m_dir.WideFile("pool")));
}

TEST_F(ReportValueHolders, StartCleanAfterAFailedLoad) {
  LoadSample("invoice");
  EXPECT_THROW(LoadFile(m_dir.File("absent.xml")), CKXXMLException);
  ASSERT_NE(m_facade.GetRootElement(), nullptr);
  EXPECT_EQ(m_facade.GetRootElement()->GetReportDocument(), nullptr);
  EXPECT_THROW(LoadText("<ReportRootElement><ReportDocument>"), CKXXMLException);
  LoadSample("legacy");
  EXPECT_EQ(m_facade.GetReportZoneCount(), 3);
}

// What reading a font raises is no failure of the XML facility, and passes through as it is.
TEST_F(ReportValueHolders, LetAFailureOfAFontThrough) {
  const auto load = [this] {
    LoadText(
        "<ReportRootElement><ReportDocument><VersionNr>2</VersionNr><FontInformation>"
        "<BaseFont>No Such Face</BaseFont><Encoding>cid</Encoding><Flags>4</Flags><FontType>2</FontType>"
        "</FontInformation></ReportDocument></ReportRootElement>");
  };
  EXPECT_EQ(zebtest::RaisedKey(load), L"FontPoolIncomplete");
  try {
    load();
    FAIL() << "no font is called No Such Face";
  } catch (const CKXException& exception) {
    EXPECT_EQ(exception.GetErrorNr(), 4010);
    EXPECT_EQ(dynamic_cast<const CKXXMLException*>(&exception), nullptr);
  }
  EXPECT_NE(m_facade.GetRootElement(), nullptr);
  LoadSample("legacy");
  EXPECT_EQ(m_facade.GetReportZoneCount(), 3);
}

TEST_F(ReportValueHolders, ShareTheReportWithCopies) {
  LoadText(ReportOfOneZone("<VHID>3</VHID><LineID>4</LineID>",
                           ValueHolderRecord(3, "", "Menge") +
                               "<Line><LineID>4</LineID><Placeable><PlID>4</PlID></Placeable></Line>"));
  ASSERT_TRUE(m_facade.GetReportZoneOrderedElementAt(0, 0).IsValueHolder());
  auto& copy = zebtest::KeepForever(new CReportValueHolders(m_facade));
  auto& assigned = zebtest::KeepForever(new CReportValueHolders);
  assigned = copy;
  for (CReportValueHolders* facade : {&copy, &assigned}) {
    EXPECT_EQ(facade->GetRootElement(), m_facade.GetRootElement());
    EXPECT_EQ(facade->GetReportZoneCount(), 1);
    EXPECT_EQ(facade->GetReportZoneInternalName(0), m_facade.GetReportZoneInternalName(0));
    const CReportOrderedElement& answer = facade->GetReportZoneOrderedElementAt(0, 1);
    EXPECT_NE(&answer, &m_facade.GetReportZoneOrderedElementAt(0, 0))
        << "each has an answer object of its own";
    EXPECT_TRUE(answer.IsOtherElement());
    EXPECT_STREQ(answer.GetValueHolderKey(), L"Menge") << "the text of the answer was copied";
  }
}
