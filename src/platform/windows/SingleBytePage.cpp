#include "platform/SingleBytePage.h"

#include "platform/windows/Windows.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>

namespace zeb {

namespace {

/// The number of a code page by the name that files declare, in capitals.
struct NamedPage {
  std::string_view Name;
  UINT Number;
};

// Names of the IANA register; numbers of the system's list of code pages.
constexpr NamedPage kPages[] = {
    {"CP437", 437},         {"CP850", 850},         {"CP852", 852},         {"CP855", 855},
    {"CP857", 857},         {"CP862", 862},         {"CP866", 866},         {"CP874", 874},
    {"IBM437", 437},        {"IBM850", 850},        {"IBM852", 852},        {"IBM855", 855},
    {"IBM857", 857},        {"IBM862", 862},        {"IBM866", 866},        {"ISO-8859-13", 28603},
    {"ISO-8859-15", 28605}, {"ISO-8859-2", 28592},  {"ISO-8859-3", 28593},  {"ISO-8859-4", 28594},
    {"ISO-8859-5", 28595},  {"ISO-8859-6", 28596},  {"ISO-8859-7", 28597},  {"ISO-8859-8", 28598},
    {"ISO-8859-9", 28599},  {"KOI8-R", 20866},      {"KOI8-U", 21866},      {"MACINTOSH", 10000},
    {"TIS-620", 874},       {"WINDOWS-1250", 1250}, {"WINDOWS-1251", 1251}, {"WINDOWS-1252", 1252},
    {"WINDOWS-1253", 1253}, {"WINDOWS-1254", 1254}, {"WINDOWS-1255", 1255}, {"WINDOWS-1256", 1256},
    {"WINDOWS-1257", 1257}, {"WINDOWS-1258", 1258}, {"WINDOWS-874", 874},
};

std::string InCapitals(std::string name) {
  for (char& character : name) {
    if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 'a' + 'A');
  }
  return name;
}

std::optional<SingleBytePage> MakePage(const std::string& name) {
  const auto* known = std::find_if(std::begin(kPages), std::end(kPages),
                                   [&](const NamedPage& page) { return page.Name == InCapitals(name); });
  CPINFO info = {};
  if (known == std::end(kPages) || GetCPInfo(known->Number, &info) == 0 || info.MaxCharSize != 1)
    return std::nullopt;
  SingleBytePage page = {};
  for (std::size_t byte = 0; byte < page.size(); ++byte) {
    const char in = static_cast<char>(byte);
    wchar_t out = L'\0';
    const int count = MultiByteToWideChar(known->Number, MB_ERR_INVALID_CHARS, &in, 1, &out, 1);
    // The system maps bytes that a page does not have onto control characters.
    const bool isControl = out >= 0x80 && out < 0xA0 && known->Number >= 1250 && known->Number <= 1258;
    page[byte] = count == 1 && !isControl ? static_cast<std::int32_t>(out) : -1;
  }
  return page;
}

}  // namespace

const SingleBytePage* FindSingleBytePage(const std::string& name) {
  static std::map<std::string, SingleBytePage> s_Pages;
  const auto known = s_Pages.find(name);
  if (known != s_Pages.end()) return &known->second;
  const std::optional<SingleBytePage> page = MakePage(name);
  return page ? &s_Pages.emplace(name, *page).first->second : nullptr;
}

}  // namespace zeb
