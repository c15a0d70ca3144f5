#include "platform/Registry.h"

#include "platform/windows/Windows.h"

#include <shlobj.h>

#include <algorithm>
#include <array>

namespace zeb {

namespace {

constexpr DWORD kLongestName = 16384;  // characters; the system's own limit for the name of a value
constexpr DWORD kLongestText = 260;    // bytes

std::wstring TextOf(const wchar_t* text, DWORD bytes, DWORD type) {
  if (type != REG_SZ && type != REG_EXPAND_SZ) return {};
  const wchar_t* const end = text + bytes / sizeof(wchar_t);
  return std::wstring(text, std::find(text, end, L'\0'));
}

}  // namespace

RegistryKey MachineRegistryKey() { return HKEY_LOCAL_MACHINE; }

RegistryKey OpenRegistryKey(RegistryKey key, const wchar_t* subKey) {
  HKEY opened = nullptr;
  // All rights are asked for, as ever; an account without them sees no key.
  if (RegOpenKeyExW(static_cast<HKEY>(key), subKey, 0, KEY_ALL_ACCESS, &opened) != ERROR_SUCCESS)
    return nullptr;
  return opened;
}

void CloseRegistryKey(RegistryKey key) {
  if (key != nullptr) RegCloseKey(static_cast<HKEY>(key));
}

bool ReadRegistryValueAt(RegistryKey key, unsigned int index, std::wstring& name, std::wstring& data) {
  std::wstring nameRoom(kLongestName, L'\0');
  std::wstring dataRoom(kLongestName, L'\0');
  DWORD nameLength = kLongestName;
  DWORD dataBytes = kLongestName * sizeof(wchar_t);
  DWORD type = REG_NONE;
  if (RegEnumValueW(static_cast<HKEY>(key), index, nameRoom.data(), &nameLength, nullptr, &type,
                    reinterpret_cast<BYTE*>(dataRoom.data()), &dataBytes) != ERROR_SUCCESS) {
    return false;
  }
  name.assign(nameRoom, 0, nameLength);
  data = TextOf(dataRoom.data(), dataBytes, type);
  return true;
}

bool ReadRegistryText(RegistryKey key, const wchar_t* subKey, const wchar_t* name, std::wstring& text) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(static_cast<HKEY>(key), subKey, 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS)
    return false;
  std::array<wchar_t, kLongestText / sizeof(wchar_t)> room = {};
  DWORD bytes = kLongestText;
  DWORD type = REG_NONE;
  const LSTATUS status =
      RegQueryValueExW(opened, name, nullptr, &type, reinterpret_cast<BYTE*>(room.data()), &bytes);
  RegCloseKey(opened);
  if (status != ERROR_SUCCESS) return false;
  text = TextOf(room.data(), bytes, type);
  return true;
}

bool IsWindowsNT() {
  OSVERSIONINFOW version = {};
  version.dwOSVersionInfoSize = sizeof version;
#ifdef _MSC_VER
#pragma warning(suppress : 4996)
#endif
  return GetVersionExW(&version) != 0 && version.dwPlatformId == VER_PLATFORM_WIN32_NT;
}

bool FindSpecialFolder(int id, std::wstring& path) {
  PIDLIST_ABSOLUTE folder = nullptr;
  if (FAILED(SHGetSpecialFolderLocation(nullptr, id, &folder))) return false;
  std::array<wchar_t, MAX_PATH> room = {};
  const bool found = SHGetPathFromIDListW(folder, room.data()) != FALSE;
  IMalloc* allocator = nullptr;
  if (SUCCEEDED(SHGetMalloc(&allocator))) {
    allocator->Free(folder);
    allocator->Release();
  }
  if (found) path = room.data();
  return found;
}

}  // namespace zeb
