#include "ReportRun.h"

#include "Formula.h"
#include "Utf8.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace supplier {

namespace {

constexpr int kToTheNearest = 1;   // mode of RundeDouble
constexpr int kBuiltInFonts = 25;  // every list of fonts begins with these; none has records of characters

/// All formulas of a zone: placed, in table cells, and only defined.
std::vector<CFormulaValueHolder*> FormulasOf(const CReportZone& zone) {
  std::vector<CFormulaValueHolder*> formulas;
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) {
    if (auto* formula = dynamic_cast<CFormulaValueHolder*>(zone.GetValueHolderAt(i))) {
      formulas.push_back(formula);
    }
  }
  for (int i = 0; i < zone.GetFormulaValueHoldersInTableCellsCount(); ++i) {
    formulas.push_back(zone.GetFormulaValueHoldersInTableCellsAt(i));
  }
  for (int i = 0; i < zone.GetDefinedFormulaValueHoldersCount(); ++i) {
    formulas.push_back(zone.GetDefinedFormulaValueHolderAt(i));
  }
  return formulas;
}

/// All sums of a zone: placed, and in table cells.
std::vector<const CSumValueHolder*> SumsOf(const CReportZone& zone) {
  std::vector<const CSumValueHolder*> sums;
  const auto addSum = [&sums](const CValueHolder* valueHolder) {
    if (const auto* sum = dynamic_cast<const CSumValueHolder*>(valueHolder)) sums.push_back(sum);
  };
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) addSum(zone.GetValueHolderAt(i));
  for (int i = 0; i < zone.GetValueHoldersInTableCellsCount(); ++i) {
    addSum(zone.GetValueHoldersInTableCellsAt(i));
  }
  return sums;
}

/// All objects of a zone that can have a condition, in the order of its lists.
std::vector<const CPlaceable*> ObjectsOf(CReportZone& zone) {
  std::vector<const CPlaceable*> objects;
  for (int i = 0; i < zone.GetTextElementCount(); ++i) objects.push_back(zone.GetTextElementAt(i));
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) objects.push_back(zone.GetValueHolderAt(i));
  for (int i = 0; i < zone.GetPictureElementCount(); ++i) objects.push_back(zone.GetPictureElementAt(i));
  for (int i = 0; i < zone.GetRectangleElementCount(); ++i) objects.push_back(zone.GetRectangleElementAt(i));
  for (int i = 0; i < zone.GetLineElementCount(); ++i) objects.push_back(zone.GetLineElementAt(i));
  for (int i = 0; i < zone.GetTableCellCount(); ++i) {
    const CTableCell* cell = zone.GetTableCellAt(i);
    objects.push_back(cell);
    for (int j = 0; j < cell->GetCellElementCount(); ++j) objects.push_back(cell->GetCellElementAt(j));
  }
  return objects;
}

std::wstring NameOf(const CPlaceable& object) {
  if (const auto* field = dynamic_cast<const CValueHolder*>(&object)) return field->GetInternalKey();
  if (const auto* text = dynamic_cast<const CText*>(&object)) return text->GetTextContent();
  return object.GetCondition()->GetFormula();
}

/// Decimals by the key that names them: seven keys stand for their number, others are asked of the data.
int DecimalsOf(const std::wstring& key, const FormulaInput& input) {
  constexpr std::array kFixed = {L"PL.Nks0", L"PL.Nks1", L"PL.Nks2", L"PL.Nks3",
                                 L"PL.Nks4", L"PL.Nks5", L"PL.Nks6"};
  const auto found = std::find(kFixed.begin(), kFixed.end(), key);
  if (found != kFixed.end()) return static_cast<int>(found - kFixed.begin());
  bool isKnown = false;
  return static_cast<int>(input.NumberOf(key, isKnown));
}

Result ResultOf(const CFormulaValueHolder& formula, const FormulaInput& input) {
  bool isComplete = false;
  Result result;
  result.exact = input.Compute(
      formula.GetFormula(), [&](const wchar_t* key) { return formula.GetTypeFromKey(key); }, isComplete);
  if (formula.GetInternalDecimalPlaces() >= 0) {
    result.exact = RundeDouble(result.exact, formula.GetInternalDecimalPlaces(), kToTheNearest, true);
  }
  result.decimals = DecimalsOf(formula.GetRoundVHKey(), input);
  result.printed = RundeDouble(result.exact, result.decimals, kToTheNearest, true);
  result.isEmpty = (formula.GetResultIsEmptyIfVHEmpty() && !isComplete) ||
                   (formula.GetResultIsEmptyIfNull() && result.printed == 0.0);
  return result;
}

}  // namespace

ReportRun::ReportRun(const std::filesystem::path& dataFile, const std::filesystem::path& catalogueFolder)
    : m_data(ReadReportData(dataFile)), m_supplier(m_data) {
  const std::filesystem::path folder = dataFile.parent_path();
  const std::string report = ToUtf8(m_data.report);
  m_report.LoadReport(WidePath(folder / std::u8string(report.begin(), report.end())).c_str(),
                      WidePath(folder).c_str(), WidePath(catalogueFolder).c_str());
  CollectUnowned();
  for (int i = 0; i < m_report.GetReportZoneCount(); ++i) {
    for (const CSumValueHolder* sum : SumsOf(Zone(i))) m_sumKeys.insert(sum->GetSumKey());
  }
  m_supplier.OfferTo(m_report, m_sumKeys);
}

CReportZone& ReportRun::Zone(int index) const {
  return *m_report.GetRootElement()->GetReportDocument()->GetReportZoneAt(index);
}

ReportRun::~ReportRun() {
  for (const CFormulaValueHolder* formula : m_definedFormulas) delete formula;
  for (const CFontCharMetricsInfo* character : m_characters) delete character;
}

// A formula that is placed as well is its zone's.
void ReportRun::CollectUnowned() {
  for (int i = 0; i < m_report.GetReportZoneCount(); ++i) {
    const CReportZone& zone = Zone(i);
    for (int j = 0; j < zone.GetDefinedFormulaValueHoldersCount(); ++j) {
      m_definedFormulas.insert(zone.GetDefinedFormulaValueHolderAt(j));
    }
  }
  for (int i = 0; i < m_report.GetReportZoneCount(); ++i) {
    const CReportZone& zone = Zone(i);
    for (int j = 0; j < zone.GetValueHolderCount(); ++j) {
      m_definedFormulas.erase(dynamic_cast<CFormulaValueHolder*>(zone.GetValueHolderAt(j)));
    }
    for (int j = 0; j < zone.GetFormulaValueHoldersInTableCellsCount(); ++j) {
      m_definedFormulas.erase(zone.GetFormulaValueHoldersInTableCellsAt(j));
    }
  }
  const CFonts& fonts = *m_report.GetRootElement()->GetReportDocument()->GetFontHandler()->GetFonts();
  for (int i = kBuiltInFonts; i < fonts.GetFontCount(); ++i) {
    const CFontMetrics& metrics = *fonts.GetFontAt(i)->GetFontMetrics();
    for (int j = 0; j < metrics.GetFontCharMetricsCount(); ++j) {
      m_characters.insert(metrics.GetFontCharMetricsAt(j));
    }
  }
}

std::vector<PrintedZone> ReportRun::Print() {
  std::vector<PrintedZone> printed;
  m_totals.clear();
  for (const auto& [name, rows] : m_data.zones) {
    const int zone = m_report.GetReportZoneNr(name.c_str());
    if (zone < 0)
      throw std::runtime_error("the report has no zone " + ToUtf8(name) + ", which the data name");
    for (const Row& row : rows) {
      m_supplier.SetRow(row);
      printed.push_back(PrintZone(Zone(zone)));
    }
  }
  return printed;
}

PrintedZone ReportRun::PrintZone(CReportZone& zone) {
  PrintedZone printed;
  printed.name = zone.GetInternalReportZoneName();
  if (zone.GetFooterZone()) {
    ComputeSums(zone, printed);
    ComputeFormulas(zone, printed);
    AddToTotals(zone, printed);
  } else {
    // A running sum has the row in it, and what its formulas give.
    ComputeFormulas(zone, printed);
    AddToTotals(zone, printed);
    ComputeSums(zone, printed);
  }
  const FormulaInput input(zone, printed);
  for (const CPlaceable* object : ObjectsOf(zone)) {
    const CCondition* condition = object->GetCondition();
    if (condition == nullptr) continue;
    bool isComplete = false;
    const double value = input.Compute(
        condition->GetFormula(), [&](const wchar_t* key) { return condition->GetTypeFromKey(key); },
        isComplete);
    printed.conditions.push_back({NameOf(*object), value != 0.0});
  }
  return printed;
}

void ReportRun::ComputeSums(const CReportZone& zone, PrintedZone& printed) {
  for (const CSumValueHolder* sum : SumsOf(zone)) {
    Result result;
    result.exact = m_totals[sum->GetSumKey()];
    result.decimals = 2;
    result.printed = RundeDouble(result.exact, result.decimals, kToTheNearest, true);
    printed.results[sum->GetInternalKey()] = result;
  }
}

// A formula waits for those whose results it reads.
void ReportRun::ComputeFormulas(CReportZone& zone, PrintedZone& printed) {
  std::vector<CFormulaValueHolder*> waiting = FormulasOf(zone);
  const FormulaInput input(zone, printed);
  while (!waiting.empty()) {
    std::set<std::wstring> missing;
    for (const CFormulaValueHolder* formula : waiting) missing.insert(formula->GetInternalKey());
    const auto waits = [&](const CFormulaValueHolder* formula) {
      const std::vector<std::wstring> keys = KeysOf(formula->GetFormula());
      return std::any_of(keys.begin(), keys.end(), [&](const auto& key) { return missing.contains(key); });
    };
    const auto ready = std::stable_partition(waiting.begin(), waiting.end(), waits);
    if (ready == waiting.end()) throw std::runtime_error("formulas read each other in a circle");
    for (auto formula = ready; formula != waiting.end(); ++formula) {
      printed.results[(*formula)->GetInternalKey()] = ResultOf(**formula, input);
    }
    waiting.erase(ready, waiting.end());
  }
}

// Each key that some sum adds up, as far as this zone has it.
void ReportRun::AddToTotals(CReportZone& zone, const PrintedZone& printed) {
  const FormulaInput input(zone, printed);
  for (const std::wstring& key : m_sumKeys) {
    bool isKnown = false;
    m_totals[key] += input.NumberOf(key, isKnown);
  }
}

}  // namespace supplier
