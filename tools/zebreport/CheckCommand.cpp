#include "Commands.h"
#include "FileCheck.h"

#include <cstdint>
#include <string_view>

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

/// The text as a string of JSON.
std::wstring JsonString(const std::wstring& text) {
  constexpr std::wstring_view kDigits = L"0123456789abcdef";
  std::wstring quoted = L"\"";
  for (const wchar_t character : text) {
    if (character == L'"' || character == L'\\') {
      quoted += {L'\\', character};
    } else if (const auto code = static_cast<std::uint32_t>(character); code < 0x20) {
      quoted += {L'\\', L'u', L'0', L'0', kDigits[code / 16], kDigits[code % 16]};
    } else {
      quoted += character;
    }
  }
  return quoted + L"\"";
}

void WriteJson(const std::wstring& file, const std::vector<zeb::ReadingFinding>& findings,
               std::wstring& output) {
  output += L"{\"file\": " + JsonString(file) + L", \"findings\": [";
  const wchar_t* separator = L"\n";
  for (const zeb::ReadingFinding& finding : findings) {
    output += separator;
    output += L"  {\"line\": " + std::to_wstring(finding.Line) + L", \"column\": " +
              std::to_wstring(finding.Column) + L", \"path\": " + JsonString(finding.Path) +
              L", \"reason\": " + JsonString(NameOf(finding.Fault)) + L", \"text\": " +
              JsonString(finding.Text) + L"}";
    separator = L",\n";
  }
  output += findings.empty() ? L"]}\n" : L"\n]}\n";
}

}  // namespace

int RunCheck(ArgumentReader& arguments, std::wstring& output) {
  const bool isJson = arguments.TakeOption(L"--json", 0).has_value();
  const std::wstring file = arguments.TakeRest({L"file"}).front();
  const std::vector<zeb::ReadingFinding> findings = CheckFile(file);
  if (isJson) {
    WriteJson(file, findings, output);
  } else {
    WriteText(file, findings, output);
  }
  return findings.empty() ? 0 : kSomethingLeftOut;
}

}  // namespace zebreport
