#include "CatalogueFiles.h"
#include "Commands.h"
#include "Describe.h"
#include "JsonWriter.h"
#include "TextFormat.h"
#include "TextTable.h"

namespace zebreport {

namespace {

std::vector<std::wstring> EquivalentNames(const CReportTypeZone& zone) {
  std::vector<std::wstring> names;
  for (int i = 0; i < zone.GetEquivalentInternalNameCount(); ++i) {
    names.emplace_back(zone.GetEquivalentInternalNameAt(i));
  }
  return names;
}

std::wstring NameForUsers(const CReportTypeZone& zone) {
  const std::wstring name = zone.GetExternalName();
  const std::wstring description = zone.GetExternalDescription();
  const std::wstring text = name.empty() ? L"no external name" : Quoted(name);
  return description.empty() ? text : text + L": " + Quoted(description);
}

void WriteZone(const CReportTypeZone& zone, std::wstring& output) {
  Lines lines(output);
  const std::wstring internalName = zone.GetInternalName();
  lines.Add(
      0, (internalName.empty() ? L"zone without an internal name" : L"zone " + QuotedIfNeeded(internalName)) +
             (zone.GetFooterZone() ? L", footer" : L""));
  lines.Add(1, NameForUsers(zone));
  const std::vector<std::wstring> equivalent = EquivalentNames(zone);
  if (!equivalent.empty()) lines.Add(1, L"also named " + JoinedNames(equivalent));
  TextTable table({L"key", L"value", L"name", L"description"});
  for (int i = 0; i < zone.GetAvailableValueHolderCount(); ++i) {
    const CAvailableVH& valueHolder = *zone.GetAvailableValueHolderAt(i);
    table.AddRow({valueHolder.GetInternalName(), TypeName(valueHolder.GetValueHolderType()),
                  valueHolder.GetExternalName(), valueHolder.GetExternalDescription()});
  }
  table.AppendTo(output, 1);
}

void WriteZone(const CReportTypeZone& zone, JsonWriter& json) {
  json.BeginObject();
  json.Key(L"internalName").String(zone.GetInternalName());
  json.Key(L"equivalentInternalNames").BeginArray();
  for (const std::wstring& name : EquivalentNames(zone)) json.String(name);
  json.End();
  json.Key(L"externalName").String(zone.GetExternalName());
  json.Key(L"externalDescription").String(zone.GetExternalDescription());
  json.Key(L"footerZone").Bool(zone.GetFooterZone());
  json.Key(L"valueHolders").BeginArray();
  for (int i = 0; i < zone.GetAvailableValueHolderCount(); ++i) {
    const CAvailableVH& valueHolder = *zone.GetAvailableValueHolderAt(i);
    json.BeginObject();
    json.Key(L"key").String(valueHolder.GetInternalName());
    json.Key(L"name").String(valueHolder.GetExternalName());
    json.Key(L"description").String(valueHolder.GetExternalDescription());
    json.Key(L"type").Integer(valueHolder.GetValueHolderType());
    json.End();
  }
  json.End();
  json.End();
}

void WriteText(const CReportType& type, int generation, std::wstring& output) {
  Lines(output).Add(0, L"report type " + QuotedIfNeeded(type.GetReportType()) + L", " +
                           VersionText(type.GetReportVersionNr(), generation));
  for (int i = 0; i < type.GetReportTypeZonesCount(); ++i) WriteZone(*type.GetReportTypeZoneAt(i), output);
}

void WriteJson(const CReportType& type, int generation, std::wstring& output) {
  JsonWriter json(output);
  json.BeginObject();
  json.Key(L"reportType").String(type.GetReportType());
  json.Key(L"reportVersionNr").Integer(type.GetReportVersionNr());
  json.Key(L"versionNr").Integer(generation);
  json.Key(L"zones").BeginArray();
  for (int i = 0; i < type.GetReportTypeZonesCount(); ++i) WriteZone(*type.GetReportTypeZoneAt(i), json);
  json.End();
  json.End();
}

}  // namespace

int RunType(ArgumentReader& arguments, std::wstring& output) {
  const bool asJson = arguments.TakeOption(L"--json", 0).has_value();
  const std::wstring file = arguments.TakeRest({L"report type file"}).front();
  CReportType type;
  const int generation = LoadReportType(file, type);
  asJson ? WriteJson(type, generation, output) : WriteText(type, generation, output);
  return 0;
}

}  // namespace zebreport
