#include "platform/File.h"

#include "platform/windows/Windows.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace zeb {

namespace {

constexpr DWORD kDiskQuotaExceeded = 1295;  // which not every version of the system's header names

FileStatus StatusOfError(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_PATHNAME:
      return FileStatus::NotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
      return FileStatus::AccessDenied;
    case ERROR_DIRECTORY:
      return FileStatus::NotAFile;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kDiskQuotaExceeded:
      return FileStatus::NoSpace;
    default:
      return FileStatus::Failed;
  }
}

FileStatus LastStatus() { return StatusOfError(GetLastError()); }

/// @return empty if the path is empty or holds a NUL: such a path names no file
std::wstring NativePath(std::wstring path) {
  if (path.find(L'\0') != std::wstring::npos) return {};
  std::replace(path.begin(), path.end(), L'/', L'\\');
  return path;
}

std::intptr_t NumberOf(HANDLE handle) { return reinterpret_cast<std::intptr_t>(handle); }
HANDLE HandleOf(std::intptr_t number) { return reinterpret_cast<HANDLE>(number); }

/// The most that one call reads or writes.
constexpr std::size_t kMostAtOnce = 1 << 30;

/// The folder part of a path with its closing separator; empty for a file of the working directory.
std::wstring FolderOf(const std::wstring& path) {
  const std::size_t end = path.find_last_of(L"\\:");
  return end == std::wstring::npos ? std::wstring() : path.substr(0, end + 1);
}

HANDLE OpenToRead(const std::wstring& path) {
  return CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                     nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// What a symbolic link points at; the path itself if it is none or points nowhere.
std::wstring FollowLinks(const std::wstring& path, DWORD attributes) {
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return path;
  const HANDLE handle = OpenToRead(path);
  if (handle == INVALID_HANDLE_VALUE) return path;
  std::wstring target(32768, L'\0');
  const DWORD length = GetFinalPathNameByHandleW(handle, target.data(), static_cast<DWORD>(target.size()), 0);
  CloseHandle(handle);
  if (length == 0 || length >= target.size()) return path;
  target.resize(length);
  return target;
}

}  // namespace

const wchar_t kPathSeparator = L'\\';

bool IsFileNameCharacter(wchar_t character) {
  constexpr std::wstring_view kForbidden = L"<>:\"|?*";
  return character >= L' ' && !IsPathSeparator(character) &&
         kForbidden.find(character) == std::wstring_view::npos;
}

InputFile::~InputFile() { Close(); }

void InputFile::Close() {
  if (m_iHandle != -1) CloseHandle(HandleOf(m_iHandle));
  m_iHandle = -1;
  m_uiSize = 0;
}

FileStatus InputFile::Open(const std::wstring& path) {
  Close();
  const std::wstring native = NativePath(path);
  const DWORD attributes = GetFileAttributesW(native.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return LastStatus();
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return FileStatus::NotAFile;
  const HANDLE handle = OpenToRead(native);
  if (handle == INVALID_HANDLE_VALUE) return LastStatus();
  m_iHandle = NumberOf(handle);
  if (GetFileType(handle) != FILE_TYPE_DISK) {
    Close();
    return FileStatus::NotAFile;
  }
  LARGE_INTEGER size = {};
  if (GetFileSizeEx(handle, &size) == 0) return LastStatus();
  m_uiSize = static_cast<std::uint64_t>(size.QuadPart);
  return FileStatus::Ok;
}

FileStatus InputFile::Read(std::span<std::byte> buffer, std::size_t& count) {
  count = 0;
  while (count < buffer.size()) {
    const std::span<std::byte> rest = buffer.subspan(count);
    DWORD got = 0;
    const auto size = static_cast<DWORD>(std::min(rest.size(), kMostAtOnce));
    if (ReadFile(HandleOf(m_iHandle), rest.data(), size, &got, nullptr) == 0) return LastStatus();
    if (got == 0) break;
    count += got;
  }
  return FileStatus::Ok;
}

struct ReplacingFile::State {
  std::wstring Target;     // links followed
  std::wstring Temporary;  // empty if none exists
  HANDLE Handle = INVALID_HANDLE_VALUE;
  bool Exists = false;

  ~State() {
    if (Handle != INVALID_HANDLE_VALUE) CloseHandle(Handle);
    if (!Temporary.empty()) DeleteFileW(Temporary.c_str());
  }

  FileStatus MakeTemporary();
  bool PutInPlace() const;
};

FileStatus ReplacingFile::State::MakeTemporary() {
  // The name does not grow from the target's, which may be as long as names can be.
  constexpr int kAttempts = 1000;
  const std::wstring start = FolderOf(Target) + L".zeb" + std::to_wstring(GetCurrentProcessId()) + L"-";
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    std::wstring name = start + std::to_wstring(attempt) + L".tmp";
    Handle = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (Handle != INVALID_HANDLE_VALUE) {
      // Moved, as the file exists now: a copy that fails would leave it behind.
      Temporary = std::move(name);
      return FileStatus::Ok;
    }
    if (GetLastError() != ERROR_FILE_EXISTS) return LastStatus();
  }
  return FileStatus::Failed;
}

bool ReplacingFile::State::PutInPlace() const {
  // ReplaceFile keeps the permissions and attributes of the old file; not every file system knows it.
  constexpr DWORD kFlags = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
  if (Exists && ReplaceFileW(Target.c_str(), Temporary.c_str(), nullptr, kFlags, nullptr, nullptr) != 0)
    return true;
  return MoveFileExW(Temporary.c_str(), Target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
         0;
}

ReplacingFile::ReplacingFile() = default;
ReplacingFile::~ReplacingFile() = default;

FileStatus ReplacingFile::Open(const std::wstring& path) {
  auto state = std::make_unique<State>();
  state->Target = NativePath(path);
  if (state->Target.empty()) return FileStatus::NotFound;
  DWORD attributes = GetFileAttributesW(state->Target.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) {
    state->Target = FollowLinks(state->Target, attributes);
    attributes = GetFileAttributesW(state->Target.c_str());
  }
  state->Exists = attributes != INVALID_FILE_ATTRIBUTES;
  if (!state->Exists && GetLastError() != ERROR_FILE_NOT_FOUND) return LastStatus();
  if (state->Exists && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return FileStatus::NotAFile;
  if (state->Exists && (attributes & FILE_ATTRIBUTE_READONLY) != 0) return FileStatus::ReadOnly;
  const FileStatus status = state->MakeTemporary();
  if (status == FileStatus::Ok) m_pState = std::move(state);
  return status;
}

FileStatus ReplacingFile::Write(std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    if (WriteFile(m_pState->Handle, bytes.data(), size, &written, nullptr) == 0) return LastStatus();
    bytes = bytes.subspan(written);
  }
  return FileStatus::Ok;
}

FileStatus ReplacingFile::Commit() {
  State& state = *m_pState;
  if (FlushFileBuffers(state.Handle) == 0) return LastStatus();
  const HANDLE handle = state.Handle;
  state.Handle = INVALID_HANDLE_VALUE;
  if (CloseHandle(handle) == 0 || !state.PutInPlace()) return LastStatus();
  state.Temporary.clear();
  return FileStatus::Ok;
}

bool IsReadOnlyFile(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  return GetFileAttributesExW(NativePath(path).c_str(), GetFileExInfoStandard, &data) != 0 &&
         (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
}

FileStatus ListFiles(const std::wstring& folder, std::vector<std::wstring>& names) {
  names.clear();
  std::wstring pattern = folder.empty() ? L"." : NativePath(folder);
  if (!pattern.ends_with(L'\\')) pattern += L'\\';
  WIN32_FIND_DATAW entry = {};
  const HANDLE search = FindFirstFileW((pattern + L"*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return LastStatus();
  do {
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.emplace_back(entry.cFileName);
  } while (FindNextFileW(search, &entry) != 0);
  const DWORD error = GetLastError();
  FindClose(search);
  std::sort(names.begin(), names.end());
  return error == ERROR_NO_MORE_FILES ? FileStatus::Ok : StatusOfError(error);
}

}  // namespace zeb
