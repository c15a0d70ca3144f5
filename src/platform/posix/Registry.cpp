#include "platform/Registry.h"

namespace zeb {

RegistryKey MachineRegistryKey() { return nullptr; }

RegistryKey OpenRegistryKey(RegistryKey, const wchar_t*) { return nullptr; }

void CloseRegistryKey(RegistryKey) {}

bool ReadRegistryValueAt(RegistryKey, unsigned int, std::wstring&, std::wstring&) { return false; }

bool ReadRegistryText(RegistryKey, const wchar_t*, const wchar_t*, std::wstring&) { return false; }

bool IsWindowsNT() { return false; }

bool FindSpecialFolder(int, std::wstring&) { return false; }

}  // namespace zeb
