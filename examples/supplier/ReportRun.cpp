#include "ReportRun.h"

#include "Formula.h"
#include "Utf8.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace supplier {

namespace {

constexpr int kToTheNearest = 1;  // mode of RundeDouble

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
  m_supplier.OfferTo(m_report);
}

ReportRun::~ReportRun() {
  for (const CFormulaValueHolder* formula : m_definedFormulas) delete formula;
}

// Every formula of the invoice is either placed or only defined, so none of these is a zone's.
void ReportRun::CollectUnowned() {
  for (int i = 0; i < m_report.GetReportZoneCount(); ++i) {
    const CReportZone& zone = *m_report.GetRootElement()->GetReportDocument()->GetReportZoneAt(i);
    for (int j = 0; j < zone.GetDefinedFormulaValueHoldersCount(); ++j) {
      m_definedFormulas.insert(zone.GetDefinedFormulaValueHolderAt(j));
    }
  }
}

std::vector<PrintedZone> ReportRun::Print() {
  std::vector<PrintedZone> printed;
  m_totals.clear();
  for (const auto& [name, rows] : m_data.zones) {
    const int zone = m_report.GetReportZoneNr(name.c_str());
    if (zone < 0) throw std::runtime_error("the data name a zone that the report has not");
    for (const Row& row : rows) {
      m_supplier.SetRow(row);
      printed.push_back(PrintZone(*m_report.GetRootElement()->GetReportDocument()->GetReportZoneAt(zone)));
    }
  }
  return printed;
}

PrintedZone ReportRun::PrintZone(CReportZone& zone) {
  PrintedZone printed;
  printed.name = zone.GetInternalReportZoneName();
  ComputeSums(zone, printed);
  ComputeFormulas(zone, printed);
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
  AddToTotals(zone, printed);
  return printed;
}

void ReportRun::ComputeSums(CReportZone& zone, PrintedZone& printed) {
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) {
    const auto* sum = dynamic_cast<const CSumValueHolder*>(zone.GetValueHolderAt(i));
    if (sum == nullptr) continue;
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

// Each key that some zone's sum adds up, as far as this zone has it.
void ReportRun::AddToTotals(CReportZone& zone, const PrintedZone& printed) {
  std::set<std::wstring> keys;
  for (int i = 0; i < m_report.GetReportZoneCount(); ++i) {
    const CReportZone& other = *m_report.GetRootElement()->GetReportDocument()->GetReportZoneAt(i);
    for (int j = 0; j < other.GetSumValueHolderKeyCount(); ++j) keys.insert(other.GetSumValueHolderKeyAt(j));
  }
  const FormulaInput input(zone, printed);
  for (const std::wstring& key : keys) {
    bool isKnown = false;
    m_totals[key] += input.NumberOf(key, isKnown);
  }
}

}  // namespace supplier
