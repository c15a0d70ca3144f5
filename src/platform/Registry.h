#pragma once

#include <string>

// The registry of Windows, read only. On a system without one every key is null and every answer "not found".
namespace zeb {

/// An open key.
using RegistryKey = void*;

/// The root of what belongs to the machine.
RegistryKey MachineRegistryKey();
/// Opens a key below another one.
/// @return null if there is none
RegistryKey OpenRegistryKey(RegistryKey key, const wchar_t* subKey);
void CloseRegistryKey(RegistryKey key);
/// A value by its number, from 0 on.
/// @param data receives its text, empty for a value of another kind
/// @return false behind the last value
bool ReadRegistryValueAt(RegistryKey key, unsigned int index, std::wstring& name, std::wstring& data);
/// A text of up to 260 bytes by its name.
bool ReadRegistryText(RegistryKey key, const wchar_t* subKey, const wchar_t* name, std::wstring& text);

/// Whether this is a Windows of the NT line.
bool IsWindowsNT();
/// The path of a special folder by its number (CSIDL).
bool FindSpecialFolder(int id, std::wstring& path);

}  // namespace zeb
