#include "fonts/FontFile.h"

#include "fonts/FontErrors.h"
#include "foundation/ErrorKeys.h"
#include "platform/File.h"

#include <climits>
#include <new>
#include <span>

namespace zeb {

namespace {

std::vector<unsigned char> Read(InputFile& file) {
  std::vector<unsigned char> content(static_cast<std::size_t>(file.Size()));
  std::size_t count = 0;
  if (file.Read(std::as_writable_bytes(std::span(content)), count) != FileStatus::Ok ||
      count != content.size()) {
    ThrowFontError(ErrorKeys::ReadFileFailure);
  }
  return content;
}

}  // namespace

std::vector<unsigned char> ReadFontFile(const wchar_t* path, int openHandle) {
  if (path == nullptr || *path == L'\0' || openHandle != -1) ThrowFontError(ErrorKeys::WrongParameter);
  InputFile file;
  if (file.Open(path) != FileStatus::Ok) ThrowFontError(ErrorKeys::ReadFileFailure);
  if (file.Size() > INT_MAX) ThrowFontError(ErrorKeys::NoMoreMemoryLeft);
  try {
    return Read(file);
  } catch (const std::bad_alloc&) {
    ThrowFontError(ErrorKeys::NoMoreMemoryLeft);
  }
}

}  // namespace zeb
