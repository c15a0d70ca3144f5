#include "CatalogueFiles.h"
#include "Commands.h"
#include "JsonWriter.h"
#include "TextFormat.h"
#include "TextTable.h"

namespace zebreport {

namespace {

void WriteItem(CDynamicValueHolderItem& item, std::wstring& output) {
  const CDynamicValueHolderType* type = item.GetDynVHType();
  Lines(output).Add(0, type == nullptr ? std::wstring(L"dynamic fields without a type")
                                       : L"dynamic fields " + QuotedIfNeeded(type->GetName()) + L", prefix " +
                                             Quoted(type->GetPrefix()));
  TextTable table({L"key", L"name"});
  for (int i = 0; i < item.GetDynVHAttributeCount(); ++i) {
    const CDynamicValueHolderAttribute& attribute = *item.GetDynVHAttributeAt(i);
    table.AddRow({attribute.GetInternalKey(), attribute.GetName()});
  }
  table.AppendTo(output, 1);
}

void WriteItem(CDynamicValueHolderItem& item, JsonWriter& json) {
  json.BeginObject();
  json.Key(L"type");
  if (const CDynamicValueHolderType* type = item.GetDynVHType()) {
    json.BeginObject();
    json.Key(L"name").String(type->GetName());
    json.Key(L"prefix").String(type->GetPrefix());
    json.End();
  } else {
    json.Null();
  }
  json.Key(L"attributes").BeginArray();
  for (int i = 0; i < item.GetDynVHAttributeCount(); ++i) {
    const CDynamicValueHolderAttribute& attribute = *item.GetDynVHAttributeAt(i);
    json.BeginObject();
    json.Key(L"key").String(attribute.GetInternalKey());
    json.Key(L"name").String(attribute.GetName());
    json.End();
  }
  json.End();
  json.End();
}

void WriteText(CReportDescriptions& descriptions, int generation, std::wstring& output) {
  Lines(output).Add(0, L"product family " + Quoted(descriptions.GetProductFamily()) + L", " +
                           VersionText(descriptions.GetReportDescriptionVersionNr(), generation));
  TextTable table({L"type", L"file", L"name"});
  for (int i = 0; i < descriptions.GetReportDescriptionsCount(); ++i) {
    const CReportDescription& report = *descriptions.GetReportDescriptionAt(i);
    table.AddRow({report.GetReportType(), report.GetFileName(), report.GetReportName()});
  }
  table.AppendTo(output, 1);
  for (int i = 0; i < descriptions.GetDynamicVHItemCount(); ++i) {
    WriteItem(*descriptions.GetDynamicVHItemAt(i), output);
  }
}

void WriteJson(CReportDescriptions& descriptions, int generation, std::wstring& output) {
  JsonWriter json(output);
  json.BeginObject();
  json.Key(L"productFamily").String(descriptions.GetProductFamily());
  json.Key(L"reportDescriptionVersionNr").Integer(descriptions.GetReportDescriptionVersionNr());
  json.Key(L"versionNr").Integer(generation);
  json.Key(L"reports").BeginArray();
  for (int i = 0; i < descriptions.GetReportDescriptionsCount(); ++i) {
    const CReportDescription& report = *descriptions.GetReportDescriptionAt(i);
    json.BeginObject();
    json.Key(L"reportType").String(report.GetReportType());
    json.Key(L"reportName").String(report.GetReportName());
    json.Key(L"fileName").String(report.GetFileName());
    json.End();
  }
  json.End();
  json.Key(L"dynamicValueHolders").BeginArray();
  for (int i = 0; i < descriptions.GetDynamicVHItemCount(); ++i) {
    WriteItem(*descriptions.GetDynamicVHItemAt(i), json);
  }
  json.End();
  json.End();
}

}  // namespace

int RunDescriptions(ArgumentReader& arguments, std::wstring& output) {
  const bool asJson = arguments.TakeOption(L"--json", 0).has_value();
  const std::wstring file = arguments.TakeRest({L"report description file"}).front();
  CReportDescriptions descriptions;
  const int generation = LoadReportDescriptions(file, descriptions);
  asJson ? WriteJson(descriptions, generation, output) : WriteText(descriptions, generation, output);
  return 0;
}

}  // namespace zebreport
