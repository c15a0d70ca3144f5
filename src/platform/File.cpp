#include "platform/File.h"

#include <algorithm>

namespace zeb {

const wchar_t* DescribeFileStatus(FileStatus status) {
  switch (status) {
    case FileStatus::Ok:
      return L"nothing is wrong";
    case FileStatus::NotFound:
      return L"it does not exist";
    case FileStatus::AccessDenied:
      return L"permission is denied";
    case FileStatus::ReadOnly:
      return L"it is read-only";
    case FileStatus::NotAFile:
      return L"it is not a regular file";
    case FileStatus::NoSpace:
      return L"there is no space left";
    case FileStatus::Failed:
      break;
  }
  return L"the system reports a failure";
}

FileStatus ReadWholeFile(const std::wstring& path, std::vector<std::byte>& content) {
  content.clear();
  InputFile file;
  FileStatus status = file.Open(path);
  // The length is only a hint: some files do not know theirs, and a file may grow while it is read.
  constexpr std::size_t kStep = 65536;
  std::size_t room = static_cast<std::size_t>(std::min<std::uint64_t>(file.Size(), SIZE_MAX / 2)) + 1;
  while (status == FileStatus::Ok) {
    const std::size_t used = content.size();
    content.resize(used + room);
    std::size_t count = 0;
    status = file.Read(std::span(content).subspan(used), count);
    content.resize(used + count);
    if (count < room) break;
    room = std::max(kStep, content.size());
  }
  return status;
}

}  // namespace zeb
