#include "fonts/NameComparison.h"

#include <algorithm>

namespace {

wchar_t ToLower(wchar_t character) {
  return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character - L'A' + L'a') : character;
}

}  // namespace

namespace zeb {

bool AreEqualIgnoringCase(std::wstring_view one, std::wstring_view other) {
  return std::ranges::equal(one, other, {}, ToLower, ToLower);
}

std::wstring_view WithoutVerticalMark(std::wstring_view name) {
  if (name.starts_with(L'@')) name.remove_prefix(1);
  return name;
}

}  // namespace zeb
