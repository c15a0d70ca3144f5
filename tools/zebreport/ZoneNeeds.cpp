#include "ZoneNeeds.h"

#include "FormulaText.h"
#include "Names.h"

#include <set>

namespace zebreport {

namespace {

// The bits of the facade's formula options.
constexpr int kEmptyIfValueIsEmpty = 1;
constexpr int kEmptyIfZero = 2;
constexpr int kTruthValue = 4;

std::wstring TextOrEmpty(const wchar_t* text) { return text == nullptr ? std::wstring() : text; }

/// What is asked of the value holder itself: the facade tells neither its type nor its rounding nor what it sums up or
/// copies.
void DescribeObject(const CValueHolder& valueHolder, NeededField& field) {
  field.kind = KindOf(valueHolder);
  field.type = valueHolder.GetValueHolderType();
  if (const auto* formula = dynamic_cast<const CFormulaValueHolder*>(&valueHolder)) {
    field.roundKey = formula->GetRoundVHKey();
    field.internalDecimalPlaces = formula->GetInternalDecimalPlaces();
  }
  if (const auto* sum = dynamic_cast<const CSumValueHolder*>(&valueHolder)) field.sumKey = sum->GetSumKey();
  if (const auto* copy = dynamic_cast<const CCopyValueHolder*>(&valueHolder)) {
    field.copiedZone = copy->GetRefZoneID();
    field.copiedKey = copy->GetRefVHID();
  }
}

NeededField FieldAt(const CReportValueHolders& report, int zone, int index) {
  NeededField field;
  field.key = report.GetReportZoneValueHolderInternalNameAt(zone, index);
  for (const wchar_t* name : {report.GetReportZoneValueHolderFormulaNameAt(zone, index),
                              report.GetReportZoneValueHolderSumNameAt(zone, index),
                              report.GetReportZoneValueHolderDynNameAt(zone, index)}) {
    if (name != nullptr) field.name = name;
  }
  field.formula = TextOrEmpty(report.GetReportZoneValueHolderFormulaAt(zone, index));
  const int options = report.GetReportZoneValueHolderFormulaOptionsAt(zone, index);
  field.isEmptyIfValueIsEmpty = (options & kEmptyIfValueIsEmpty) != 0;
  field.isEmptyIfZero = (options & kEmptyIfZero) != 0;
  field.isTruthValue = (options & kTruthValue) != 0;
  field.isInWords = report.GetReportZoneValueHolderNumberToText(zone, index);
  return field;
}

NeededField DefinedField(const CFormulaValueHolder& formula) {
  NeededField field;
  DescribeObject(formula, field);
  field.key = formula.GetInternalKey();
  field.place = L"defined";
  field.name = formula.GetName();
  field.formula = formula.GetFormula();
  field.isEmptyIfValueIsEmpty = formula.GetResultIsEmptyIfVHEmpty();
  field.isEmptyIfZero = formula.GetResultIsEmptyIfNull();
  field.isTruthValue = formula.GetResultIsBool();
  field.isInWords = formula.GetNumberToText();
  return field;
}

/// The value holders in the order of the facade's index.
std::vector<const CValueHolder*> ObjectsOfIndex(const CReportZone& zone) {
  std::vector<const CValueHolder*> objects;
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) objects.push_back(zone.GetValueHolderAt(i));
  for (int i = 0; i < zone.GetValueHoldersInTableCellsCount(); ++i) {
    objects.push_back(zone.GetValueHoldersInTableCellsAt(i));
  }
  for (int i = 0; i < zone.GetFormulaValueHoldersInTableCellsCount(); ++i) {
    objects.push_back(zone.GetFormulaValueHoldersInTableCellsAt(i));
  }
  return objects;
}

/// Lists of keys, of which each key enters one list only, once.
class KeyLists {
 public:
  void Add(const std::wstring& key, std::vector<std::wstring>& keys) {
    if (m_known.insert(key).second) keys.push_back(key);
  }

  /// The keys that a formula reads. A bad formula has none.
  void AddOfFormula(const std::wstring& formula, std::vector<std::wstring>& keys) {
    for (const std::wstring& key : FindVariables(formula).names) Add(key, keys);
  }

  void AddOfCondition(const CPlaceable& object, std::vector<std::wstring>& keys) {
    if (const CCondition* condition = object.GetCondition()) AddOfFormula(condition->GetFormula(), keys);
  }

 private:
  std::set<std::wstring> m_known;
};

/// Whether a key stands for its number of decimal places, so that nobody has to supply it.
bool IsFixedRoundKey(const std::wstring& key) {
  return key.size() == 7 && key.starts_with(L"PL.Nks") && key.back() >= L'0' && key.back() <= L'6';
}

/// The keys that the library finds, and behind them those that it leaves out: what defined formulas read, and the
/// conditions of cells and of what is in them.
void AddReadKeys(CReportZone& object, ZoneNeeds& needs) {
  KeyLists lists;
  for (int i = 0; i < object.GetFormulaValueHolderKeyCount(); ++i) {
    lists.Add(object.GetFormulaValueHolderKeyAt(i), needs.formulaKeys);
  }
  for (int i = 0; i < object.GetDefinedFormulaValueHoldersCount(); ++i) {
    const CFormulaValueHolder& formula = *object.GetDefinedFormulaValueHolderAt(i);
    const std::wstring roundKey = formula.GetRoundVHKey();
    lists.AddOfFormula(formula.GetFormula(), needs.definedFormulaKeys);
    if (!roundKey.empty() && !IsFixedRoundKey(roundKey)) lists.Add(roundKey, needs.definedFormulaKeys);
    lists.AddOfCondition(formula, needs.definedFormulaKeys);
  }
  for (int i = 0; i < object.GetTableCellCount(); ++i) {
    const CTableCell& cell = *object.GetTableCellAt(i);
    lists.AddOfCondition(cell, needs.cellConditionKeys);
    for (int j = 0; j < cell.GetCellElementCount(); ++j) {
      lists.AddOfCondition(*cell.GetCellElementAt(j), needs.cellConditionKeys);
    }
  }
}

/// The keys that the library finds in the sums of a footer zone, and behind them those of all other sums.
void AddSumKeys(const CReportZone& object, ZoneNeeds& needs) {
  KeyLists lists;
  for (int i = 0; i < object.GetSumValueHolderKeyCount(); ++i) {
    lists.Add(object.GetSumValueHolderKeyAt(i), needs.sumKeys);
  }
  for (const NeededField& field : needs.fields) {
    if (field.kind == L"sum") lists.Add(field.sumKey, needs.otherSumKeys);
  }
}

/// The first graphic of each key outside cells, as the facade would find it for the key.
void AddGraphics(const CReportZone& object, ZoneNeeds& needs) {
  std::set<std::wstring> known;
  for (int i = 0; i < object.GetValueHolderCount(); ++i) {
    const CValueHolder& graphic = *object.GetValueHolderAt(i);
    if (graphic.GetValueHolderType() != CValueHolder::VHTypeGraphic) continue;
    const std::wstring key = graphic.GetInternalKey();
    if (known.insert(key).second) needs.graphics.push_back({key, graphic.GetWidth(), graphic.GetHeight()});
  }
}

}  // namespace

ZoneNeeds NeedsOfZone(CReportValueHolders& report, int zone) {
  CReportZone& object = *report.GetRootElement()->GetReportDocument()->GetReportZoneAt(zone);
  ZoneNeeds needs;
  needs.name = report.GetReportZoneInternalName(zone);
  needs.isFooter = object.GetFooterZone();
  const std::vector<const CValueHolder*> objects = ObjectsOfIndex(object);
  for (int i = 0; i < report.GetReportZoneValueHolderCount(zone); ++i) {
    NeededField field = FieldAt(report, zone, i);
    DescribeObject(*objects[static_cast<std::size_t>(i)], field);
    field.place = i < object.GetValueHolderCount() ? L"zone" : L"table cell";
    needs.fields.push_back(std::move(field));
  }
  std::set<const CValueHolder*> known(objects.begin(), objects.end());  // a formula may be placed and defined
  for (int i = 0; i < object.GetDefinedFormulaValueHoldersCount(); ++i) {
    const CFormulaValueHolder* formula = object.GetDefinedFormulaValueHolderAt(i);
    if (known.insert(formula).second) needs.fields.push_back(DefinedField(*formula));
  }
  AddReadKeys(object, needs);
  AddSumKeys(object, needs);
  AddGraphics(object, needs);
  return needs;
}

}  // namespace zebreport
