#include "model/ReportZone.h"

#include "formula/VariableFormulaParser.h"
#include "foundation/KXException.h"
#include "model/Condition.h"
#include "model/FormulaValueHolder.h"
#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/SumValueHolder.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

/// The key that every formula needs, and every sum outside a footer zone.
constexpr const wchar_t* kHierarchyKey = L"PL.Hierarchie";

/// Round keys that stand for 0 to 6 decimal places, so that nobody needs to supply a value.
constexpr std::array<std::wstring_view, 7> kFixedDecimalPlaces = {
    L"PL.Nks0", L"PL.Nks1", L"PL.Nks2", L"PL.Nks3", L"PL.Nks4", L"PL.Nks5", L"PL.Nks6",
};

bool NeedsValue(std::wstring_view roundKey) {
  return !roundKey.empty() && std::find(kFixedDecimalPlaces.begin(), kFixedDecimalPlaces.end(), roundKey) ==
                                  kFixedDecimalPlaces.end();
}

/// Reads the names in a formula. Without an error catalogue a bad formula is no parser failure, so that it leaves the
/// parser as an exception; it is a bad formula all the same.
bool Scan(CVariableFormulaParser& parser) {
  try {
    return parser.ScanVariable();
  } catch (const CKXException&) {
    return false;
  }
}

}  // namespace

void CReportZone::IdentifyFormulaValueHolderKeys() {
  m_rgstrFormulaValueHolderKeys.clear();
  m_mapFormulaValueHolderKeyIndex.clear();
  for (const CValueHolder* field : m_rgpValueHolders) {
    if (field == nullptr) continue;
    if (const auto* formula = dynamic_cast<const CFormulaValueHolder*>(field)) {
      AddKeysOfFormula(*formula);
    } else if (const auto* sum = dynamic_cast<const CSumValueHolder*>(field)) {
      AddKeysOfSum(*sum);
    }
    AddKeysOfCondition(field);
  }
  // Fixed behaviour: a sum in a table cell adds no key.
  for (const CValueHolder* field : m_rgpValueHoldersInTableCells) AddKeysOfCondition(field);
  for (const CFormulaValueHolder* formula : m_rgpFormulaValueHoldersInTableCells) {
    if (formula == nullptr) continue;
    AddKeysOfFormula(*formula);
    AddKeysOfCondition(formula);
  }
  for (const CText* text : m_rgpTextElements) AddKeysOfCondition(text);
  for (const CLine* line : m_rgpLineElements) AddKeysOfCondition(line);
  for (const CRectangle* rectangle : m_rgpRectangleElements) AddKeysOfCondition(rectangle);
  for (const CPicture* picture : m_rgpPictureElements) AddKeysOfCondition(picture);
}

void CReportZone::CollectFormulaVariables(const wchar_t* formula) {
  if (formula == nullptr) return;
  CVariableFormulaParser parser(formula, false);
  parser.EnableQuotedVariable(true);
  parser.SetWithStringFunctions(true);
  if (!Scan(parser)) return;
  for (const std::wstring& name : parser.GetVariable()) AddFormulaValueHolderKey(name.c_str());
}

int CReportZone::FindFormulaValueHolderKey(const wchar_t* key) {
  const auto found = m_mapFormulaValueHolderKeyIndex.find(key);
  return found == m_mapFormulaValueHolderKeyIndex.end() ? -1 : found->second;
}

void CReportZone::AddFormulaValueHolderKey(const wchar_t* key) {
  if (FindFormulaValueHolderKey(key) != -1) return;
  m_mapFormulaValueHolderKeyIndex.emplace(key, GetFormulaValueHolderKeyCount());
  m_rgstrFormulaValueHolderKeys.emplace_back(key);
}

void CReportZone::AddKeysOfFormula(const CFormulaValueHolder& formula) {
  CollectFormulaVariables(formula.GetFormula());
  if (NeedsValue(formula.GetRoundVHKey())) AddFormulaValueHolderKey(formula.GetRoundVHKey());
  AddFormulaValueHolderKey(kHierarchyKey);
}

void CReportZone::AddKeysOfSum(const CSumValueHolder& sum) {
  if (m_bFooterZone) {
    m_rgstrSumValueHolderKeys.emplace_back(sum.GetSumKey());
  } else {
    AddFormulaValueHolderKey(kHierarchyKey);
  }
}

void CReportZone::AddKeysOfCondition(const CPlaceable* object) {
  if (object == nullptr) return;
  if (const CCondition* condition = object->GetCondition()) CollectFormulaVariables(condition->GetFormula());
}
