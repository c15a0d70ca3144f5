#include "fonts/FontPoolFileName.h"

#include "fonts/NameComparison.h"
#include "platform/File.h"

namespace zeb {

namespace {

constexpr std::wstring_view kExtension = L".fd";

/// Whether a text begins as a character does that the name of a file cannot hold.
bool BeginsLikeANumber(std::wstring_view text) {
  constexpr std::wstring_view kDigits = L"0123456789ABCDEFabcdef";
  return text.size() >= 3 && text[0] == L'%' && kDigits.find(text[1]) != std::wstring_view::npos &&
         kDigits.find(text[2]) != std::wstring_view::npos;
}

}  // namespace

std::wstring FontPoolFileName(std::wstring_view fontName) {
  constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
  std::wstring name;
  for (std::size_t index = 0; index < fontName.size(); ++index) {
    const wchar_t character = fontName[index];
    // What looks like the number of another character is told from it, so that no two fonts share a file.
    if (IsFileNameCharacter(character) && !BeginsLikeANumber(fontName.substr(index))) {
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
