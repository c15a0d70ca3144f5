#include "foundation/KXExceptionHandler.h"
#include "model/Condition.h"
#include "model/CopyValueHolder.h"
#include "model/DynamicValueHolder.h"
#include "model/FormulaValueHolder.h"
#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/ReportDocument.h"
#include "model/ReportRootElement.h"
#include "model/ReportZone.h"
#include "model/SumValueHolder.h"
#include "model/TableCell.h"
#include "support/LoadedReport.h"
#include "support/WidePath.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace {

using Keys = std::vector<std::wstring>;

/// A zone with its protected operation within reach.
class KeyZone : public CReportZone {
 public:
  using CReportZone::FindFormulaValueHolderKey;
};

Keys FormulaKeysOf(const CReportZone& zone) {
  Keys keys;
  for (int i = 0; i < zone.GetFormulaValueHolderKeyCount(); ++i)
    keys.emplace_back(zone.GetFormulaValueHolderKeyAt(i));
  return keys;
}

Keys SumKeysOf(const CReportZone& zone) {
  Keys keys;
  for (int i = 0; i < zone.GetSumValueHolderKeyCount(); ++i)
    keys.emplace_back(zone.GetSumValueHolderKeyAt(i));
  return keys;
}

/// Gives the object a condition, which it owns.
template <class T>
T* ShownIf(T* object, const wchar_t* formula) {
  auto* condition = new CCondition;
  condition->SetFormula(formula);
  object->SetCondition(condition);
  return object;
}

CFormulaValueHolder* Formula(const wchar_t* text, const wchar_t* roundKey = L"PL.Nks2") {
  auto* formula = new CFormulaValueHolder;
  formula->SetFormula(text);
  formula->SetRoundVHKey(roundKey);
  return formula;
}

CSumValueHolder* Sum(const wchar_t* key) {
  auto* sum = new CSumValueHolder;
  sum->SetSumKey(key);
  return sum;
}

class ZoneFormulaKeys : public testing::Test {
 protected:
  void SetUp() override {
    CKXExceptionHandler::GetInstance().SetExceptionPathName(zebtest::WidePath(ZEB_SHARE).c_str());
  }

  /// A new cell of the zone at the end of table 1.
  CTableCell* Cell() {
    auto* cell = new CTableCell;
    cell->SetTableID(1);
    cell->SetColIndex(zone.GetTableCellCount());
    zone.AddTableCell(cell);
    return cell;
  }

  Keys Identify() {
    zone.IdentifyFormulaValueHolderKeys();
    return FormulaKeysOf(zone);
  }

  Keys Collect(const wchar_t* formula) {
    zone.CollectFormulaVariables(formula);
    return FormulaKeysOf(zone);
  }

  KeyZone zone;
};

TEST_F(ZoneFormulaKeys, ZoneWithoutFormulasAndSumsHasNone) {
  EXPECT_EQ(Identify(), Keys{});
  zone.AddValueHolder(new CValueHolder);
  zone.AddValueHolder(new CDynamicValueHolder);
  zone.AddValueHolder(new CCopyValueHolder);
  zone.AddTextElement(new CText);
  EXPECT_EQ(Identify(), Keys{});
  EXPECT_EQ(SumKeysOf(zone), Keys{});
}

TEST_F(ZoneFormulaKeys, FormulaGivesItsVariablesAndTheHierarchy) {
  zone.AddValueHolder(Formula(L"A + B"));
  EXPECT_EQ(Identify(), (Keys{L"A", L"B", L"PL.Hierarchie"}));
}

TEST_F(ZoneFormulaKeys, RoundKeyStandsBehindTheVariables) {
  zone.AddValueHolder(Formula(L"A + B", L"R"));
  EXPECT_EQ(Identify(), (Keys{L"A", L"B", L"R", L"PL.Hierarchie"}));
}

TEST_F(ZoneFormulaKeys, RoundKeyThatIsAVariableIsListedOnce) {
  zone.AddValueHolder(Formula(L"R + A", L"R"));
  EXPECT_EQ(Identify(), (Keys{L"R", L"A", L"PL.Hierarchie"}));
}

TEST_F(ZoneFormulaKeys, EmptyRoundKeyIsNone) {
  zone.AddValueHolder(Formula(L"A", L""));
  EXPECT_EQ(Identify(), (Keys{L"A", L"PL.Hierarchie"}));
}

TEST_F(ZoneFormulaKeys, FixedSevenRoundKeysNeedNoValue) {
  for (const wchar_t* const key :
       {L"PL.Nks0", L"PL.Nks1", L"PL.Nks2", L"PL.Nks3", L"PL.Nks4", L"PL.Nks5", L"PL.Nks6"}) {
    zone.AddValueHolder(Formula(L"1", key));
  }
  EXPECT_EQ(Identify(), (Keys{L"PL.Hierarchie"}));
}

TEST_F(ZoneFormulaKeys, KeysLikeTheSevenNeedAValue) {
  const Keys like = {L"PL.Nks7",  L"PL.Nks",   L"PL.Nks22",    L"pl.Nks2",
                     L" PL.Nks2", L"PL.Nks2 ", L"PL.NksBetrag"};
  for (const std::wstring& key : like) zone.AddValueHolder(Formula(L"1", key.c_str()));
  Keys expected = like;
  expected.insert(expected.begin() + 1, L"PL.Hierarchie");
  EXPECT_EQ(Identify(), expected);
}

TEST_F(ZoneFormulaKeys, SevenAreListedIfAFormulaReadsThem) {
  zone.AddValueHolder(Formula(L"[PL.Nks2] + 1"));
  EXPECT_EQ(Identify(), (Keys{L"PL.Nks2", L"PL.Hierarchie"}));
}

TEST_F(ZoneFormulaKeys, HierarchyThatAFormulaReadsKeepsItsPlace) {
  zone.AddValueHolder(Formula(L"[PL.Hierarchie] + A", L"R"));
  EXPECT_EQ(Identify(), (Keys{L"PL.Hierarchie", L"A", L"R"}));
}

TEST_F(ZoneFormulaKeys, BadFormulaStillGivesRoundKeyAndHierarchy) {
  zone.AddValueHolder(Formula(L"A +", L"R"));
  EXPECT_EQ(Identify(), (Keys{L"R", L"PL.Hierarchie"}));
}

TEST_F(ZoneFormulaKeys, EmptyFormulaStillGivesTheHierarchy) {
  zone.AddValueHolder(Formula(L""));
  EXPECT_EQ(Identify(), (Keys{L"PL.Hierarchie"}));
}

TEST_F(ZoneFormulaKeys, SumOfAFooterZoneGivesItsSumKeyAlone) {
  zone.SetFooterZone(true);
  zone.AddValueHolder(Sum(L"FX.Netto"));
  EXPECT_EQ(Identify(), Keys{});
  EXPECT_EQ(SumKeysOf(zone), (Keys{L"FX.Netto"}));
}

TEST_F(ZoneFormulaKeys, SumOfAnotherZoneGivesTheHierarchyAlone) {
  zone.AddValueHolder(Sum(L"FX.Netto"));
  zone.AddValueHolder(Sum(L"FX.Netto"));
  EXPECT_EQ(Identify(), (Keys{L"PL.Hierarchie"}));
  EXPECT_EQ(SumKeysOf(zone), Keys{});
}

TEST_F(ZoneFormulaKeys, SumKeysKeepDuplicatesAndOrder) {
  zone.SetFooterZone(true);
  zone.AddValueHolder(Sum(L"B"));
  zone.AddValueHolder(Sum(L"A"));
  zone.AddValueHolder(Sum(L"B"));
  zone.AddValueHolder(Sum(L""));
  Identify();
  EXPECT_EQ(SumKeysOf(zone), (Keys{L"B", L"A", L"B", L""}));
}

TEST_F(ZoneFormulaKeys, FixedSecondCallAppendsTheSumsAgain) {
  zone.SetFooterZone(true);
  zone.AddValueHolder(Sum(L"A"));
  zone.AddValueHolder(Formula(L"B"));
  const Keys first = Identify();
  EXPECT_EQ(first, (Keys{L"B", L"PL.Hierarchie"}));
  EXPECT_EQ(Identify(), first);
  EXPECT_EQ(SumKeysOf(zone), (Keys{L"A", L"A"}));
}

TEST_F(ZoneFormulaKeys, IdentifyingEmptiesWhatWasCollected) {
  EXPECT_EQ(Collect(L"X"), (Keys{L"X"}));
  zone.AddValueHolder(ShownIf(new CValueHolder, L"Y + X"));
  EXPECT_EQ(Identify(), (Keys{L"Y", L"X"}));
  EXPECT_EQ(zone.FindFormulaValueHolderKey(L"Y"), 0);
  EXPECT_EQ(zone.FindFormulaValueHolderKey(L"X"), 1);
}

TEST_F(ZoneFormulaKeys, ConditionOfAFieldFollowsWhatTheFieldGives) {
  zone.AddValueHolder(ShownIf(Formula(L"A", L"R"), L"C > A"));
  zone.AddValueHolder(ShownIf(Sum(L"S"), L"D > 0"));
  zone.AddValueHolder(ShownIf(new CValueHolder, L"G > 0"));
  EXPECT_EQ(Identify(), (Keys{L"A", L"R", L"PL.Hierarchie", L"C", L"D", L"G"}));
}

TEST_F(ZoneFormulaKeys, HierarchyOfASumStandsInFrontOfItsCondition) {
  zone.AddValueHolder(ShownIf(Sum(L"S"), L"D > 0"));
  EXPECT_EQ(Identify(), (Keys{L"PL.Hierarchie", L"D"}));
}

TEST_F(ZoneFormulaKeys, FieldsKeepTheirOrderWhateverTheirKind) {
  zone.AddValueHolder(ShownIf(new CValueHolder, L"Z > 0"));
  zone.AddValueHolder(Formula(L"A"));
  zone.AddValueHolder(ShownIf(new CDynamicValueHolder, L"Y > 0"));
  EXPECT_EQ(Identify(), (Keys{L"Z", L"A", L"PL.Hierarchie", L"Y"}));
}

TEST_F(ZoneFormulaKeys, OtherObjectsFollowTheFieldsKindByKind) {
  zone.AddPictureElement(ShownIf(new CPicture, L"P"));
  zone.AddRectangleElement(ShownIf(new CRectangle, L"Q"));
  zone.AddLineElement(ShownIf(new CLine, L"L"));
  zone.AddTextElement(ShownIf(new CText, L"T"));
  zone.AddTextElement(ShownIf(new CText, L"S"));
  Cell()->AddCellElement(Formula(L"F"));
  zone.GetTableCellAt(0)->AddCellElement(ShownIf(new CValueHolder, L"V"));
  zone.AddValueHolder(Formula(L"A"));
  zone.FillValueHoldersInTableCells();
  EXPECT_EQ(Identify(), (Keys{L"A", L"PL.Hierarchie", L"V", L"F", L"T", L"S", L"L", L"Q", L"P"}));
}

TEST_F(ZoneFormulaKeys, VariableOfSeveralFormulasIsListedWhereItIsMetFirst) {
  zone.AddValueHolder(Formula(L"B + A"));
  zone.AddValueHolder(Formula(L"A + C + B", L"A"));
  zone.AddTextElement(ShownIf(new CText, L"C > A"));
  EXPECT_EQ(Identify(), (Keys{L"B", L"A", L"PL.Hierarchie", L"C"}));
}

TEST_F(ZoneFormulaKeys, NullEntriesArePassedOver) {
  zone.AddValueHolder(nullptr);
  zone.AddTextElement(nullptr);
  zone.AddLineElement(nullptr);
  zone.AddRectangleElement(nullptr);
  zone.AddPictureElement(nullptr);
  zone.AddTableCell(nullptr);
  zone.AddTextElement(ShownIf(new CText, L"A"));
  zone.FillValueHoldersInTableCells();
  EXPECT_EQ(Identify(), (Keys{L"A"}));
}

TEST_F(ZoneFormulaKeys, FixedCellsAndTheirOtherElementsAreNotRead) {
  CTableCell* cell = ShownIf(Cell(), L"A");
  cell->AddCellElement(ShownIf(new CText, L"B"));
  cell->AddCellElement(ShownIf(new CPicture, L"C"));
  zone.FillValueHoldersInTableCells();
  EXPECT_EQ(Identify(), Keys{});
}

TEST_F(ZoneFormulaKeys, FixedSumInACellGivesItsConditionAlone) {
  for (const bool footer : {false, true}) {
    zone.SetFooterZone(footer);
    if (!footer) Cell()->AddCellElement(ShownIf(Sum(L"S"), L"A"));
    zone.FillValueHoldersInTableCells();
    EXPECT_EQ(Identify(), (Keys{L"A"}));
    EXPECT_EQ(SumKeysOf(zone), Keys{});
  }
}

TEST_F(ZoneFormulaKeys, FormulaInACellFollowsTheFullRule) {
  Cell()->AddCellElement(ShownIf(Formula(L"A", L"R"), L"B"));
  zone.FillValueHoldersInTableCells();
  EXPECT_EQ(Identify(), (Keys{L"A", L"R", L"PL.Hierarchie", L"B"}));
}

TEST_F(ZoneFormulaKeys, FixedCellListsAreReadAsTheyStand) {
  Cell()->AddCellElement(Formula(L"A"));
  EXPECT_EQ(Identify(), Keys{});
  zone.FillValueHoldersInTableCells();
  EXPECT_EQ(Identify(), (Keys{L"A", L"PL.Hierarchie"}));
}

TEST_F(ZoneFormulaKeys, FixedDefinedFormulasAreNotRead) {
  const std::unique_ptr<CFormulaValueHolder> defined(Formula(L"A"));
  zone.AddDefinedFormulaValueHolder(defined.get());
  EXPECT_EQ(Identify(), Keys{});
}

TEST_F(ZoneFormulaKeys, FieldsInCellsAreToldApart) {
  CTableCell* second = Cell();
  CTableCell* first = Cell();
  second->SetColIndex(2);
  auto* formula = Formula(L"A");
  auto* sum = Sum(L"S");
  auto* field = new CValueHolder;
  auto* copy = new CCopyValueHolder;
  second->AddCellElement(new CText);
  second->AddCellElement(sum);
  second->AddCellElement(formula);
  first->AddCellElement(field);
  first->AddCellElement(copy);
  for (int call = 0; call < 2; ++call) {
    zone.FillValueHoldersInTableCells();
    ASSERT_EQ(zone.GetValueHoldersInTableCellsCount(), 3);
    EXPECT_EQ(zone.GetValueHoldersInTableCellsAt(0), field);
    EXPECT_EQ(zone.GetValueHoldersInTableCellsAt(1), copy);
    EXPECT_EQ(zone.GetValueHoldersInTableCellsAt(2), sum);
    ASSERT_EQ(zone.GetFormulaValueHoldersInTableCellsCount(), 1);
    EXPECT_EQ(zone.GetFormulaValueHoldersInTableCellsAt(0), formula);
  }
}

TEST_F(ZoneFormulaKeys, CollectingKeepsOrderAndLeavesOutRepeats) {
  EXPECT_EQ(Collect(L"b + a * b"), (Keys{L"b", L"a"}));
  EXPECT_EQ(Collect(L"c + a"), (Keys{L"b", L"a", L"c"}));
}

TEST_F(ZoneFormulaKeys, CaseMakesAnotherKey) { EXPECT_EQ(Collect(L"a + A"), (Keys{L"a", L"A"})); }

TEST_F(ZoneFormulaKeys, NullAndEmptyFormulasAddNothing) {
  EXPECT_EQ(Collect(nullptr), Keys{});
  EXPECT_EQ(Collect(L""), Keys{});
}

TEST_F(ZoneFormulaKeys, NamesInBracketsAreListedWithoutThem) {
  EXPECT_EQ(Collect(L"[PL.MwSt-Satz] * [x y] + [PL.MwSt-Satz]"), (Keys{L"PL.MwSt-Satz", L"x y"}));
}

TEST_F(ZoneFormulaKeys, StringFunctionsAreRead) {
  EXPECT_EQ(Collect(L"strcmp([AD.Land]; \"Deutschland\") <> strcmp(a; b)"), (Keys{L"AD.Land", L"a", L"b"}));
}

TEST_F(ZoneFormulaKeys, FunctionsConstantsTextsAndCommentsAreNoKeys) {
  EXPECT_EQ(Collect(L"{b} sin(a) + pi + e 'c' + strcmp(\"d\"; \"f\")"), (Keys{L"a"}));
}

TEST_F(ZoneFormulaKeys, AllBranchesOfAFormulaAreRead) {
  EXPECT_EQ(Collect(L"wenn(a > 0; b; c)"), (Keys{L"a", L"b", L"c"}));
}

TEST_F(ZoneFormulaKeys, BadFormulasAddNothingAndThrowNothing) {
  for (const wchar_t* const formula : {L"a + ", L"(a", L"[a", L"a b", L"a + {", L"sin(a; b)", L" "}) {
    EXPECT_EQ(Collect(formula), Keys{}) << formula;
  }
}

// Without a catalogue a failure has no family, so that the parser does not take it for its own. Each test runs in a
// process of its own, and this one reads no catalogue.
TEST(ZoneFormulaKeysWithoutCatalogue, BadFormulasThrowNothing) {
  KeyZone zone;
  zone.CollectFormulaVariables(L"a + ");
  EXPECT_EQ(FormulaKeysOf(zone), Keys{});
  zone.CollectFormulaVariables(L"b");
  EXPECT_EQ(FormulaKeysOf(zone), Keys{L"b"});
}

TEST_F(ZoneFormulaKeys, NestingBeyondAllBoundsAddsNothing) {
  const std::wstring open(100000, L'(');
  const std::wstring close(100000, L')');
  EXPECT_EQ(Collect((open + L"a" + close).c_str()), Keys{});
}

TEST_F(ZoneFormulaKeys, KeysAreFoundByExactComparison) {
  Collect(L"a + [b c]");
  EXPECT_EQ(zone.FindFormulaValueHolderKey(L"a"), 0);
  EXPECT_EQ(zone.FindFormulaValueHolderKey(L"b c"), 1);
  EXPECT_EQ(zone.FindFormulaValueHolderKey(L"A"), -1);
  EXPECT_EQ(zone.FindFormulaValueHolderKey(L"b"), -1);
  EXPECT_EQ(zone.FindFormulaValueHolderKey(L"[b c]"), -1);
  EXPECT_EQ(zone.FindFormulaValueHolderKey(L""), -1);
}

TEST_F(ZoneFormulaKeys, CopiesKnowTheirKeys) {
  Collect(L"a + b");
  KeyZone copy(zone);
  KeyZone assigned;
  assigned.CollectFormulaVariables(L"x");
  assigned = zone;
  Collect(L"c");
  for (KeyZone* other : {&copy, &assigned}) {
    EXPECT_EQ(other->FindFormulaValueHolderKey(L"x"), -1);
    other->CollectFormulaVariables(L"b + d");
    EXPECT_EQ(FormulaKeysOf(*other), (Keys{L"a", L"b", L"d"}));
    EXPECT_EQ(other->FindFormulaValueHolderKey(L"d"), 2);
  }
}

TEST_F(ZoneFormulaKeys, ThousandsOfKeysComeInOrderAndOnce) {
  constexpr int kCount = 20000;
  std::wstring formula = L"k0";
  for (int i = 1; i < kCount; ++i) formula += L" + k" + std::to_wstring(i);
  Collect(formula.c_str());
  Collect(formula.c_str());
  ASSERT_EQ(zone.GetFormulaValueHolderKeyCount(), kCount);
  EXPECT_STREQ(zone.GetFormulaValueHolderKeyAt(kCount - 1), L"k19999");
  EXPECT_EQ(zone.FindFormulaValueHolderKey(L"k12345"), 12345);
}

/// A sample report; frees the formulas that its zones define at the end.
class SampleReport {
 public:
  explicit SampleReport(const std::string& name) {
    const std::filesystem::path file = std::filesystem::path(ZEB_EXAMPLES) / name / "report.xml";
    m_root.LoadReport(zebtest::WidePath(file).c_str(), nullptr);
    for (int i = 0; i < m_root.GetReportDocument()->GetReportZoneCount(); ++i) {
      CReportZone* zone = m_root.GetReportDocument()->GetReportZoneAt(i);
      zone->IdentifyFormulaValueHolderKeys();
    }
    m_unowned.Collect(*m_root.GetReportDocument());
  }

  const CReportZone& Zone(int index) { return *m_root.GetReportDocument()->GetReportZoneAt(index); }

 private:
  zebtest::UnownedOfReport m_unowned;  // ends behind the report
  CReportRootElement m_root;
};

TEST_F(ZoneFormulaKeys, OfTheInvoice) {
  SampleReport report("invoice");
  EXPECT_EQ(FormulaKeysOf(report.Zone(0)), (Keys{L"AD.Land"}));
  EXPECT_EQ(FormulaKeysOf(report.Zone(1)), Keys{});
  EXPECT_EQ(FormulaKeysOf(report.Zone(2)),
            (Keys{L"Rabatt", L"Menge", L"Preis", L"PL.Hierarchie", L"Gewicht", L"PL.NksGewicht", L"Pos"}));
  EXPECT_EQ(FormulaKeysOf(report.Zone(3)), (Keys{L"BE.Zahlungsart"}));
  EXPECT_EQ(FormulaKeysOf(report.Zone(4)),
            (Keys{L"SU.Netto", L"PL.MwSt-Satz", L"PL.Hierarchie", L"PL.Skonto", L"FX.Gesamt"}));
  EXPECT_EQ(FormulaKeysOf(report.Zone(5)), (Keys{L"PL.MwSt-Satz"}));
  for (const int index : {0, 1, 2, 3, 5}) EXPECT_EQ(SumKeysOf(report.Zone(index)), Keys{}) << index;
  EXPECT_EQ(SumKeysOf(report.Zone(4)), (Keys{L"FX.Netto", L"FX.Gewicht"}));
}

TEST_F(ZoneFormulaKeys, OfTheStatement) {
  SampleReport report("statement");
  EXPECT_EQ(FormulaKeysOf(report.Zone(0)), Keys{});
  EXPECT_EQ(FormulaKeysOf(report.Zone(1)), Keys{});
  EXPECT_EQ(FormulaKeysOf(report.Zone(2)), (Keys{L"BU.Soll", L"BU.Haben", L"PL.Hierarchie", L"BU.Storno"}));
  EXPECT_EQ(FormulaKeysOf(report.Zone(3)),
            (Keys{L"PL.Tage", L"SU.Haben", L"PL.NksBetrag", L"PL.Hierarchie", L"ZF.Berater",
                  L"KO.AnfangsSaldo", L"SU.Soll", L"FX.Endsaldo"}));
  EXPECT_EQ(FormulaKeysOf(report.Zone(4)), (Keys{L"PL.Online"}));
  for (const int index : {0, 1, 2, 4}) EXPECT_EQ(SumKeysOf(report.Zone(index)), Keys{}) << index;
  EXPECT_EQ(SumKeysOf(report.Zone(3)), (Keys{L"BU.Soll", L"BU.Haben", L"BU.Haben"}));
}

TEST_F(ZoneFormulaKeys, OfTheOldReport) {
  SampleReport report("legacy");
  EXPECT_EQ(FormulaKeysOf(report.Zone(0)), Keys{});
  EXPECT_EQ(FormulaKeysOf(report.Zone(1)), (Keys{L"Bestellt", L"Geliefert", L"PL.Hierarchie"}));
  EXPECT_EQ(FormulaKeysOf(report.Zone(2)), (Keys{L"SU.Geliefert", L"SU.Bestellt", L"PL.Hierarchie"}));
  EXPECT_EQ(SumKeysOf(report.Zone(0)), Keys{});
  EXPECT_EQ(SumKeysOf(report.Zone(1)), Keys{});
  EXPECT_EQ(SumKeysOf(report.Zone(2)), (Keys{L"Bestellt"}));
}

}  // namespace
