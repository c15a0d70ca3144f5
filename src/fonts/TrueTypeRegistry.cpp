// Where Windows keeps the files of its fonts. Nothing in the library asks; the operations stand ready for those who do.

#include "fonts/NameComparison.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "platform/Registry.h"

#include <string_view>
#include <utility>

namespace {

constexpr const wchar_t* kFontsOfNT = L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Fonts";
constexpr const wchar_t* kFontsOfOthers = L"Software\\Microsoft\\Windows\\CurrentVersion\\Fonts";

bool NamesFace(std::wstring_view entry, std::wstring_view face) {
  return zeb::AreEqualIgnoringCase(entry.substr(0, face.size()), face) ||
         entry.find(face) != std::wstring_view::npos;
}

bool NamesCollection(std::wstring_view file) {
  return file.find(L".ttc") != std::wstring_view::npos || file.find(L".TTC") != std::wstring_view::npos;
}

}  // namespace

bool CTrueTypeFontMetrics::EnumRegistryValue(void* key, const wchar_t* subKey, std::wstring* valueName,
                                             std::wstring* valueData) {
  if (subKey == nullptr && valueName == nullptr && valueData == nullptr) {
    zeb::CloseRegistryKey(std::exchange(m_pRegistryKey, nullptr));
    return false;
  }
  if (subKey != nullptr && *subKey != L'\0') {
    zeb::CloseRegistryKey(m_pRegistryKey);
    m_pRegistryKey = zeb::OpenRegistryKey(key, subKey);
    m_uRegistryValueIndex = 0;
  } else {
    ++m_uRegistryValueIndex;
  }
  std::wstring name;
  std::wstring data;
  if (m_pRegistryKey == nullptr ||
      !zeb::ReadRegistryValueAt(m_pRegistryKey, m_uRegistryValueIndex, name, data)) {
    return false;
  }
  if (valueName != nullptr) *valueName = std::move(name);
  if (valueData != nullptr) *valueData = std::move(data);
  return true;
}

bool CTrueTypeFontMetrics::FindFontInRegistry(const wchar_t* face, std::wstring& entryName,
                                              std::wstring& fileName) {
  std::wstring name;
  std::wstring data;
  const wchar_t* const subKey = zeb::IsWindowsNT() ? kFontsOfNT : kFontsOfOthers;
  bool found = false;
  for (bool there = EnumRegistryValue(zeb::MachineRegistryKey(), subKey, &name, &data); there && !found;
       there = EnumRegistryValue(nullptr, nullptr, &name, &data)) {
    if (!NamesFace(name, face) || !NamesCollection(data)) continue;
    found = true;
    entryName = name;
    fileName = data;
  }
  EnumRegistryValue(nullptr, nullptr, nullptr, nullptr);
  return found;
}

bool CTrueTypeFontMetrics::ReadRegistryString(void* key, const wchar_t* subKey, const wchar_t* name,
                                              std::wstring& out) const {
  return zeb::ReadRegistryText(key, subKey, name, out);
}

bool CTrueTypeFontMetrics::GetSpecialFolder(int id, std::wstring& out) const {
  return zeb::FindSpecialFolder(id, out);
}
