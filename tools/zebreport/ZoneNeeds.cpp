#include "ZoneNeeds.h"

#include "FormulaText.h"
#include "Names.h"

#include <algorithm>

namespace zebreport {

namespace {

// The bits of the facade's formula options.
constexpr int kEmptyIfValueIsEmpty = 1;
constexpr int kEmptyIfZero = 2;
constexpr int kTruthValue = 4;

std::wstring TextOrEmpty(const wchar_t* text) { return text == nullptr ? std::wstring() : text; }

/// What is asked of the value holder itself: the facade tells neither its type nor what it sums up or copies.
void DescribeObject(const CValueHolder& valueHolder, NeededField& field) {
  field.kind = KindOf(valueHolder);
  field.type = valueHolder.GetValueHolderType();
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

void AddOnce(const std::wstring& key, std::vector<std::wstring>& keys) {
  if (std::find(keys.begin(), keys.end(), key) == keys.end()) keys.push_back(key);
}

/// The keys of the defined formulas, which the library leaves out of its keys. A bad formula has none.
void AddDefinedFormulaKeys(ZoneNeeds& needs) {
  for (const NeededField& field : needs.fields) {
    if (field.place != L"defined") continue;
    for (const std::wstring& key : FindVariables(field.formula).names) {
      const auto& known = needs.formulaKeys;
      if (std::find(known.begin(), known.end(), key) == known.end()) AddOnce(key, needs.definedFormulaKeys);
    }
  }
}

void AddGraphic(CReportValueHolders& report, int zone, const std::wstring& key, ZoneNeeds& needs) {
  const auto isKnown = [&](const NeededGraphic& graphic) { return graphic.key == key; };
  if (std::any_of(needs.graphics.begin(), needs.graphics.end(), isKnown)) return;
  NeededGraphic graphic{key};
  if (report.GetGraphicValueHolderDimensions(zone, key.c_str(), graphic.width, graphic.height)) {
    needs.graphics.push_back(graphic);
  }
}

}  // namespace

ZoneNeeds NeedsOfZone(CReportValueHolders& report, int zone) {
  const CReportZone& object = *report.GetRootElement()->GetReportDocument()->GetReportZoneAt(zone);
  ZoneNeeds needs;
  needs.name = report.GetReportZoneInternalName(zone);
  needs.isFooter = object.GetFooterZone();
  const std::vector<const CValueHolder*> objects = ObjectsOfIndex(object);
  for (int i = 0; i < report.GetReportZoneValueHolderCount(zone); ++i) {
    NeededField field = FieldAt(report, zone, i);
    DescribeObject(*objects[static_cast<std::size_t>(i)], field);
    field.place = i < object.GetValueHolderCount() ? L"zone" : L"table cell";
    AddGraphic(report, zone, field.key, needs);
    needs.fields.push_back(std::move(field));
  }
  for (int i = 0; i < object.GetDefinedFormulaValueHoldersCount(); ++i) {
    needs.fields.push_back(DefinedField(*object.GetDefinedFormulaValueHolderAt(i)));
  }
  for (int i = 0; i < report.GetReportZoneFormulaValueHolderKeyCount(zone); ++i) {
    AddOnce(report.GetReportZoneFormulaValueHolderKeyAt(zone, i), needs.formulaKeys);
  }
  AddDefinedFormulaKeys(needs);
  for (int i = 0; i < object.GetSumValueHolderKeyCount(); ++i) {
    AddOnce(object.GetSumValueHolderKeyAt(i), needs.sumKeys);
  }
  return needs;
}

}  // namespace zebreport
