#include "Commands.h"
#include "FileCheck.h"
#include "JsonWriter.h"
#include "TypeCheck.h"
#include "Utf8.h"

namespace zebreport {

namespace {

constexpr int kSomethingLeftOut = 1;

const wchar_t* NameOf(zeb::ReadingFault fault) {
  switch (fault) {
    case zeb::ReadingFault::UnknownName:
      return L"unknown name";
    case zeb::ReadingFault::OutOfOrder:
      return L"out of order";
    case zeb::ReadingFault::SecondOccurrence:
      return L"second occurrence";
    case zeb::ReadingFault::IdentifierWithoutObject:
      return L"identifier without an object";
    case zeb::ReadingFault::NotReached:
      break;
  }
  return L"not reached";
}

void WriteText(const std::wstring& file, const std::vector<zeb::ReadingFinding>& findings,
               std::wstring& output) {
  for (const zeb::ReadingFinding& finding : findings) {
    output += file + L":" + std::to_wstring(finding.Line) + L":" + std::to_wstring(finding.Column) + L": " +
              finding.Path + L": " + NameOf(finding.Fault) + L": " + finding.Text + L".\n";
  }
}

void WriteJson(const std::wstring& file, const CheckedFile& checked, std::wstring& output) {
  JsonWriter json(output);
  json.BeginObject();
  json.Key(L"file").String(file);
  json.Key(L"findings").BeginArray();
  for (const zeb::ReadingFinding& finding : checked.findings) {
    json.BeginObject();
    json.Key(L"line").Integer(static_cast<int>(finding.Line));
    json.Key(L"column").Integer(static_cast<int>(finding.Column));
    json.Key(L"path").String(finding.Path);
    json.Key(L"reason").String(NameOf(finding.Fault));
    json.Key(L"text").String(finding.Text);
    json.End();
  }
  json.End();
  json.Key(L"failure");
  checked.failure.has_value() ? json.String(FromUtf8(checked.failure->what())) : json.Null();
  json.End();
}

}  // namespace

int RunCheck(ArgumentReader& arguments, std::wstring& output) {
  if (const auto type = arguments.TakeOption(L"--type", 1))
    return RunTypeCheck(arguments, type->front(), output);
  const bool isJson = arguments.TakeOption(L"--json", 0).has_value();
  const std::wstring file = arguments.TakeRest({L"file"}).front();
  const CheckedFile checked = CheckFile(file);
  if (isJson) {
    WriteJson(file, checked, output);
  } else {
    WriteText(file, checked.findings, output);
  }
  if (checked.failure.has_value()) throw Failure(*checked.failure);
  return checked.findings.empty() ? 0 : kSomethingLeftOut;
}

}  // namespace zebreport
