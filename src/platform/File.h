#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

// Files on wide paths. `\` and `/` both separate folders. Only regular files are read and replaced, so that no path
// whatever can block on a pipe or read without end from a device.
namespace zeb {

/// What this system puts between a folder and a name in it.
extern const wchar_t kPathSeparator;

/// Whether a character parts folders: both separators do, on every system.
inline bool IsPathSeparator(wchar_t character) { return character == L'/' || character == L'\\'; }

/// Whether the name of a file may hold a character on this system. A separator never may.
bool IsFileNameCharacter(wchar_t character);

/// How an operation on a file ended.
enum class FileStatus {
  Ok,
  NotFound,      ///< no such file or folder
  AccessDenied,  ///< the system does not permit it
  ReadOnly,      ///< the file to be replaced has no write permission
  NotAFile,      ///< a folder, a device or a pipe
  NoSpace,       ///< the disk, a quota or a limit on the size of files is exhausted
  Failed,        ///< anything else
};

/// What happened, as the second half of an English sentence: `it does not exist`.
const wchar_t* DescribeFileStatus(FileStatus status);

/// A regular file that is read from its beginning to its end.
class InputFile {
 public:
  InputFile() = default;
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  FileStatus Open(const std::wstring& path);
  /// The file's length at the moment of opening.
  std::uint64_t Size() const { return m_uiSize; }
  /// Reads as many bytes as the buffer holds; fewer only at the end of the file.
  /// @param count receives the number of bytes that were read, 0 at the end
  FileStatus Read(std::span<std::byte> buffer, std::size_t& count);

 private:
  void Close();

  std::intptr_t m_iHandle = -1;  // owned; -1 if none
  std::uint64_t m_uiSize = 0;
};

/// Reads a whole file.
/// @param content is what could be read, empty if the file cannot be opened
FileStatus ReadWholeFile(const std::wstring& path, std::vector<std::byte>& content);

/// Replaces a file in one step, or leaves it byte for byte as it is.
///
/// The new content goes to a temporary file beside the target, is flushed to the disk and renamed over the target. A
/// symbolic link stays one: what it points at is replaced. The new file has the permissions of the old one. Unless
/// Commit succeeds, the temporary file is removed and nothing has changed.
class ReplacingFile {
 public:
  ReplacingFile();
  ~ReplacingFile();
  ReplacingFile(const ReplacingFile&) = delete;
  ReplacingFile& operator=(const ReplacingFile&) = delete;

  /// Refuses a target without write permission, and makes the temporary file.
  FileStatus Open(const std::wstring& path);
  FileStatus Write(std::span<const std::byte> bytes);
  /// Puts the new content in the target's place.
  FileStatus Commit();

 private:
  struct State;
  std::unique_ptr<State> m_pState;
};

/// Whether the file exists and is write-protected: no write bit in its mode (whoever asks, root too), or the read-only
/// attribute.
bool IsReadOnlyFile(const std::wstring& path);

/// The names of the files in a folder, folders left out, in the order of their code points.
/// @param names is empty if the folder cannot be read
FileStatus ListFiles(const std::wstring& folder, std::vector<std::wstring>& names);

}  // namespace zeb
