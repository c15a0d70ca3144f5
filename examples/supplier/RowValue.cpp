#include "RowValue.h"

namespace supplier {

namespace {

void CollectCondition(CReportZone& zone, const CPlaceable& object) {
  if (const CCondition* condition = object.GetCondition()) {
    zone.CollectFormulaVariables(condition->GetFormula());
  }
}

/// Whether a formula's round key has to be supplied: it may have none, and seven stand for their numbers of decimals.
bool IsSupplied(const std::wstring& roundKey) {
  const bool isNumber = roundKey.size() == 7 && roundKey.starts_with(L"PL.Nks") && roundKey.back() >= L'0' &&
                        roundKey.back() <= L'6';
  return !roundKey.empty() && !isNumber;
}

/// Adds to the zone's formula keys what a loading leaves out: the keys that formulas which are only defined and their
/// conditions read, and the conditions of table cells and of what is in them.
void CollectLeftOut(CReportZone& zone) {
  for (int i = 0; i < zone.GetDefinedFormulaValueHoldersCount(); ++i) {
    const CFormulaValueHolder& formula = *zone.GetDefinedFormulaValueHolderAt(i);
    zone.CollectFormulaVariables(formula.GetFormula());
    CollectCondition(zone, formula);
  }
  for (int i = 0; i < zone.GetTableCellCount(); ++i) {
    const CTableCell& cell = *zone.GetTableCellAt(i);
    CollectCondition(zone, cell);
    for (int j = 0; j < cell.GetCellElementCount(); ++j) CollectCondition(zone, *cell.GetCellElementAt(j));
  }
}

}  // namespace

const Value* RowSource::Find(const std::wstring& key) const {
  for (const Row* values : {row, global}) {
    if (values == nullptr) continue;
    if (const auto found = values->find(key); found != values->end()) return &found->second;
  }
  return nullptr;
}

RowValue::RowValue(const RowSource& source, const std::wstring& key) : m_source(source) {
  SetInternalKey(key.c_str());
  SetExternalKey(key.c_str());
  SetExternalDescription(L"");
}

void RowValue::CallGetValue() { m_pValue = m_source.Find(GetInternalKey()); }

const wchar_t* RowValue::GetValueAsText() {
  return m_pValue == nullptr || m_pValue->kind == Value::Kind::Number ? nullptr : m_pValue->text.c_str();
}

CDoubleElement* RowValue::GetValueAsDouble() {
  if (m_pValue == nullptr || m_pValue->kind != Value::Kind::Number) return new CDoubleElement(0.0, 0);
  return new CDoubleElement(m_pValue->number, m_pValue->decimals);
}

RowSupplier::RowSupplier(const ReportData& data) { m_source.global = &data.global; }

void RowSupplier::OfferTo(CReportValueHolders& report, const std::set<std::wstring>& sumKeys) {
  for (int i = 0; i < report.GetReportZoneCount(); ++i) {
    CReportZone& zone = *report.GetRootElement()->GetReportDocument()->GetReportZoneAt(i);
    for (int j = 0; j < report.GetReportZoneValueHolderCount(i); ++j) {
      Offer(zone, report.GetReportZoneValueHolderInternalNameAt(i, j));
    }
    CollectLeftOut(zone);
    for (int j = 0; j < zone.GetDefinedFormulaValueHoldersCount(); ++j) {
      const std::wstring roundKey = zone.GetDefinedFormulaValueHolderAt(j)->GetRoundVHKey();
      if (IsSupplied(roundKey)) Offer(zone, roundKey);
    }
    for (int j = 0; j < report.GetReportZoneFormulaValueHolderKeyCount(i); ++j) {
      Offer(zone, report.GetReportZoneFormulaValueHolderKeyAt(i, j));
    }
    for (const std::wstring& key : sumKeys) Offer(zone, key);
  }
}

void RowSupplier::Offer(CReportZone& zone, const std::wstring& key) {
  if (zone.GetAvailableValueHolder(key.c_str()) != nullptr) return;
  m_values.push_back(std::make_unique<RowValue>(m_source, key));
  zone.AddAvailableValueHolder(m_values.back().get());
}

}  // namespace supplier
