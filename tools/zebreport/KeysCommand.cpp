#include "Commands.h"
#include "Describe.h"
#include "Failure.h"
#include "JsonWriter.h"
#include "TextFormat.h"
#include "TextTable.h"
#include "UnownedObjects.h"
#include "ZoneNeeds.h"

namespace zebreport {

namespace {

/// A report as its data supplier sees it, with what nobody owns freed at its end.
class SuppliedReport {
 public:
  explicit SuppliedReport(const std::wstring& file) {
    const std::wstring pool = CFontPool::GetInstance().GetFontPoolPath();
    const std::wstring catalogue = CKXExceptionHandler::GetInstance().GetExceptionNamePath();
    try {
      m_report.LoadReport(file.c_str(), pool.c_str(), catalogue.c_str());
    } catch (const CKXException& exception) {
      throw LibraryFailure(file, exception);
    }
    if (m_report.GetRootElement()->GetReportDocument() == nullptr) {
      throw Failure(file + L": there is no ReportDocument in it; name a report file.");
    }
    m_unowned.Collect(*m_report.GetRootElement());
  }

  CReportValueHolders& operator*() { return m_report; }

 private:
  UnownedObjects m_unowned;  // ends behind the report
  CReportValueHolders m_report;
};

std::wstring Source(const NeededField& field) {
  if (field.kind == L"formula") return field.formula;
  if (field.kind == L"sum") return L"sum of " + field.sumKey;
  if (field.kind == L"copied field") return field.copiedKey + L" of zone " + field.copiedZone;
  return {};
}

std::wstring Result(const NeededField& field) {
  std::vector<std::wstring> parts;
  if (field.isEmptyIfValueIsEmpty) parts.emplace_back(L"empty if a value is empty");
  if (field.isEmptyIfZero) parts.emplace_back(L"empty if zero");
  if (field.isTruthValue) parts.emplace_back(L"truth value");
  if (field.isInWords) parts.emplace_back(L"in words");
  return Joined(parts);
}

void WriteZone(const ZoneNeeds& zone, std::wstring& output) {
  Lines lines(output);
  lines.Add(0, L"zone " + QuotedIfNeeded(zone.name) + (zone.isFooter ? L", footer" : L""));
  TextTable fields({L"key", L"kind", L"value", L"place", L"name", L"result", L"comes from"});
  for (const NeededField& field : zone.fields) {
    fields.AddRow(
        {field.key, field.kind, TypeName(field.type), field.place, field.name, Result(field), Source(field)});
  }
  fields.AppendTo(output, 1);
  const auto addKeys = [&lines](const std::wstring& title, const std::vector<std::wstring>& keys) {
    if (!keys.empty()) lines.Add(1, title + L": " + JoinedNames(keys));
  };
  addKeys(L"formulas and conditions read", zone.formulaKeys);
  addKeys(L"defined formulas also read", zone.definedFormulaKeys);
  addKeys(L"conditions in cells also read", zone.cellConditionKeys);
  addKeys(L"sums add up", zone.sumKeys);
  addKeys(L"other sums add up", zone.otherSumKeys);
  TextTable graphics({L"graphic", L"width", L"height"});
  for (const NeededGraphic& graphic : zone.graphics) {
    graphics.AddRow({graphic.key, Number(graphic.width), Number(graphic.height)});
  }
  graphics.AppendTo(output, 1);
}

void WriteStrings(const wchar_t* key, const std::vector<std::wstring>& strings, JsonWriter& json) {
  json.Key(key).BeginArray();
  for (const std::wstring& string : strings) json.String(string);
  json.End();
}

void WriteField(const NeededField& field, JsonWriter& json) {
  json.BeginObject();
  json.Key(L"key").String(field.key);
  json.Key(L"kind").String(field.kind);
  json.Key(L"type").Integer(field.type);
  json.Key(L"place").String(field.place);
  json.Key(L"name").String(field.name);
  if (field.kind == L"formula") {
    json.Key(L"formula").String(field.formula);
    json.Key(L"isEmptyIfValueIsEmpty").Bool(field.isEmptyIfValueIsEmpty);
    json.Key(L"isEmptyIfZero").Bool(field.isEmptyIfZero);
    json.Key(L"isTruthValue").Bool(field.isTruthValue);
    json.Key(L"roundKey").String(field.roundKey);
    json.Key(L"internalDecimalPlaces").Integer(field.internalDecimalPlaces);
  }
  if (field.kind == L"sum") json.Key(L"sumKey").String(field.sumKey);
  if (field.kind == L"copied field") {
    json.Key(L"copiedZone").String(field.copiedZone);
    json.Key(L"copiedKey").String(field.copiedKey);
  }
  json.Key(L"isInWords").Bool(field.isInWords);
  json.End();
}

void WriteZone(const ZoneNeeds& zone, JsonWriter& json) {
  json.BeginObject();
  json.Key(L"name").String(zone.name);
  json.Key(L"footerZone").Bool(zone.isFooter);
  json.Key(L"valueHolders").BeginArray();
  for (const NeededField& field : zone.fields) WriteField(field, json);
  json.End();
  WriteStrings(L"formulaKeys", zone.formulaKeys, json);
  WriteStrings(L"definedFormulaKeys", zone.definedFormulaKeys, json);
  WriteStrings(L"cellConditionKeys", zone.cellConditionKeys, json);
  WriteStrings(L"sumKeys", zone.sumKeys, json);
  WriteStrings(L"otherSumKeys", zone.otherSumKeys, json);
  json.Key(L"graphics").BeginArray();
  for (const NeededGraphic& graphic : zone.graphics) {
    json.BeginObject();
    json.Key(L"key").String(graphic.key);
    json.Key(L"width").Number(graphic.width);
    json.Key(L"height").Number(graphic.height);
    json.End();
  }
  json.End();
  json.End();
}

void WriteText(CReportValueHolders& report, std::wstring& output) {
  Lines(output).Add(0, L"report type " + QuotedIfNeeded(report.GetRootElement()->GetReportType()));
  for (int i = 0; i < report.GetReportZoneCount(); ++i) WriteZone(NeedsOfZone(report, i), output);
}

void WriteJson(CReportValueHolders& report, std::wstring& output) {
  JsonWriter json(output);
  json.BeginObject();
  json.Key(L"reportType").String(report.GetRootElement()->GetReportType());
  json.Key(L"zones").BeginArray();
  for (int i = 0; i < report.GetReportZoneCount(); ++i) WriteZone(NeedsOfZone(report, i), json);
  json.End();
  json.End();
}

}  // namespace

int RunKeys(ArgumentReader& arguments, std::wstring& output) {
  const bool asJson = arguments.TakeOption(L"--json", 0).has_value();
  const std::wstring file = arguments.TakeRest({L"report file"}).front();
  SuppliedReport report(file);
  asJson ? WriteJson(*report, output) : WriteText(*report, output);
  return 0;
}

}  // namespace zebreport
