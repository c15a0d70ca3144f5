#include "platform/File.h"

#include "platform/Unicode.h"
#include "platform/posix/Path.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace zeb {

namespace {

constexpr mode_t kWriteBits = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kPermissionBits = 07777;

FileStatus StatusOfError(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return FileStatus::NotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return FileStatus::AccessDenied;
    case EISDIR:
    case ENXIO:
      return FileStatus::NotAFile;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FileStatus::NoSpace;
    default:
      return FileStatus::Failed;
  }
}

FileStatus LastStatus() { return StatusOfError(errno); }

int Descriptor(std::intptr_t handle) { return static_cast<int>(handle); }

FileStatus WriteAll(int descriptor, std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return LastStatus();
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return FileStatus::Ok;
}

/// The folder part of a path with its closing `/`; empty for a file of the working directory.
std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

/// Follows symbolic links at the end of a path, also to a file that does not exist yet.
FileStatus FollowLinks(std::string& path) {
  constexpr int kMaxLinks = 40;  // as many as Linux follows
  for (int links = 0; links < kMaxLinks; ++links) {
    struct stat info = {};
    if (lstat(path.c_str(), &info) != 0) return errno == ENOENT ? FileStatus::Ok : LastStatus();
    if (!S_ISLNK(info.st_mode)) return FileStatus::Ok;
    std::string target(4096, '\0');
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length < 0) return LastStatus();
    target.resize(static_cast<std::size_t>(length));
    path = target.starts_with('/') ? target : FolderOf(path).append(target);
  }
  return FileStatus::Failed;
}

}  // namespace

const wchar_t kPathSeparator = L'/';

bool IsFileNameCharacter(wchar_t character) { return character != L'\0' && !IsPathSeparator(character); }

InputFile::~InputFile() { Close(); }

void InputFile::Close() {
  if (m_iHandle >= 0) close(Descriptor(m_iHandle));
  m_iHandle = -1;
  m_uiSize = 0;
}

FileStatus InputFile::Open(const std::wstring& path) {
  Close();
  // Without O_NONBLOCK, opening a pipe would wait for its writer.
  const int descriptor = open(NativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (descriptor < 0) return LastStatus();
  m_iHandle = descriptor;
  struct stat info = {};
  if (fstat(descriptor, &info) != 0) return LastStatus();
  if (!S_ISREG(info.st_mode)) {
    Close();
    return FileStatus::NotAFile;
  }
  m_uiSize = static_cast<std::uint64_t>(std::max<off_t>(info.st_size, 0));
  return FileStatus::Ok;
}

FileStatus InputFile::Read(std::span<std::byte> buffer, std::size_t& count) {
  count = 0;
  while (count < buffer.size()) {
    const std::span<std::byte> rest = buffer.subspan(count);
    const ssize_t got = read(Descriptor(m_iHandle), rest.data(), rest.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return LastStatus();
    if (got == 0) break;
    count += static_cast<std::size_t>(got);
  }
  return FileStatus::Ok;
}

struct ReplacingFile::State {
  std::string Target;     // links followed
  std::string Temporary;  // empty if none exists
  int Descriptor = -1;

  ~State() {
    if (Descriptor >= 0) close(Descriptor);
    if (!Temporary.empty()) unlink(Temporary.c_str());
  }

  FileStatus MakeTemporary(mode_t mode);
  FileStatus TakeOver(const struct stat& old) const;
};

FileStatus ReplacingFile::State::MakeTemporary(mode_t mode) {
  // The name does not grow from the target's, which may be as long as names can be.
  constexpr int kAttempts = 1000;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    std::string name =
        FolderOf(Target) + ".zeb" + std::to_string(getpid()) + "-" + std::to_string(attempt) + ".tmp";
    Descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
    if (Descriptor >= 0) {
      // Moved, as the file exists now: a copy that fails would leave it behind.
      Temporary = std::move(name);
      return FileStatus::Ok;
    }
    if (errno != EEXIST) return LastStatus();
  }
  return FileStatus::Failed;
}

/// Gives the temporary file the owner and the permissions of the file that it replaces.
FileStatus ReplacingFile::State::TakeOver(const struct stat& old) const {
  // Only root may give a file away; anyone else keeps what is written as his own.
  const bool given = fchown(Descriptor, old.st_uid, old.st_gid) == 0;
  mode_t mode = old.st_mode & kPermissionBits;
  if (!given) mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
  return fchmod(Descriptor, mode) == 0 ? FileStatus::Ok : LastStatus();
}

ReplacingFile::ReplacingFile() = default;
ReplacingFile::~ReplacingFile() = default;

FileStatus ReplacingFile::Open(const std::wstring& path) {
  auto state = std::make_unique<State>();
  state->Target = NativePath(path);
  if (state->Target.empty()) return FileStatus::NotFound;
  FileStatus status = FollowLinks(state->Target);
  if (status != FileStatus::Ok) return status;

  struct stat old = {};
  const bool exists = stat(state->Target.c_str(), &old) == 0;
  if (!exists && errno != ENOENT) return LastStatus();
  if (exists && !S_ISREG(old.st_mode)) return FileStatus::NotAFile;
  if (exists && (old.st_mode & kWriteBits) == 0) return FileStatus::ReadOnly;
  // Renaming would replace even a file that its owner keeps from this user.
  if (exists && faccessat(AT_FDCWD, state->Target.c_str(), W_OK, AT_EACCESS) != 0) return LastStatus();

  constexpr mode_t kNewFile = 0666;  // less what the process masks
  status = state->MakeTemporary(exists ? old.st_mode & 0777 : kNewFile);
  if (status == FileStatus::Ok && exists) status = state->TakeOver(old);
  if (status == FileStatus::Ok) m_pState = std::move(state);
  return status;
}

FileStatus ReplacingFile::Write(std::span<const std::byte> bytes) {
  return WriteAll(m_pState->Descriptor, bytes);
}

FileStatus ReplacingFile::Commit() {
  State& state = *m_pState;
  // Made here, as nothing may fail behind the replacing.
  const std::string folder = FolderOf(state.Target);
  if (fsync(state.Descriptor) != 0) return LastStatus();
  const int descriptor = state.Descriptor;
  state.Descriptor = -1;
  if (close(descriptor) != 0) return LastStatus();
  if (rename(state.Temporary.c_str(), state.Target.c_str()) != 0) return LastStatus();
  state.Temporary.clear();
  // The new name is on the disk once its folder is. The replacing itself has succeeded, whatever comes of this.
  const int folderDescriptor =
      open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folderDescriptor >= 0) {
    fsync(folderDescriptor);
    close(folderDescriptor);
  }
  return FileStatus::Ok;
}

bool IsReadOnlyFile(const std::wstring& path) {
  struct stat info = {};
  return stat(NativePath(path).c_str(), &info) == 0 && (info.st_mode & kWriteBits) == 0;
}

FileStatus ListFiles(const std::wstring& folder, std::vector<std::wstring>& names) {
  names.clear();
  const std::string native = folder.empty() ? "." : NativePath(folder);
  const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(native.c_str()), &closedir);
  if (directory == nullptr) return LastStatus();
  while (const dirent* entry = readdir(directory.get())) {
    struct stat info = {};
    if (fstatat(dirfd(directory.get()), entry->d_name, &info, 0) != 0 || !S_ISREG(info.st_mode)) continue;
    names.push_back(Utf8ToWide(entry->d_name));
  }
  std::sort(names.begin(), names.end());
  return FileStatus::Ok;
}

}  // namespace zeb
