#include "fonts/FontPoolFileName.h"

#include "fonts/NameComparison.h"
#include "platform/File.h"

namespace zeb {

namespace {

constexpr std::wstring_view kExtension = L".fd";

}  // namespace

std::wstring FontPoolFileName(std::wstring_view fontName) {
  constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
  std::wstring name;
  for (const wchar_t character : fontName) {
    if (IsFileNameCharacter(character)) {
      name += character;
    } else {
      const auto code = std::char_traits<wchar_t>::to_int_type(character);
      name += {L'%', kDigits[code / 16 % 16], kDigits[code % 16]};
    }
  }
  return name.append(kExtension);
}

bool IsFontPoolFileName(std::wstring_view fileName) {
  return fileName.size() >= kExtension.size() &&
         AreEqualIgnoringCase(fileName.substr(fileName.size() - kExtension.size()), kExtension);
}

}  // namespace zeb
