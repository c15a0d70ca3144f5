#include "platform/FileMapping.h"

#include "platform/posix/Path.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace zeb {

namespace {

constexpr std::string_view kReadOnlyData = "/usr/share/";

class Descriptor {
 public:
  explicit Descriptor(const char* path)
      : m_iNumber(open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {}
  ~Descriptor() {
    if (m_iNumber >= 0) close(m_iNumber);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Number() const { return m_iNumber; }
  /// The length of a regular file; 0 of anything else.
  std::size_t FileSize() const {
    struct stat info = {};
    if (m_iNumber < 0 || fstat(m_iNumber, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size < 0) return 0;
    const auto size = static_cast<std::uint64_t>(info.st_size);
    return size <= std::numeric_limits<std::size_t>::max() ? static_cast<std::size_t>(size) : 0;
  }

 private:
  int m_iNumber;
};

/// The path without links and dots; empty if there is no such file.
std::string RealPath(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
  return real ? real.get() : std::string();
}

}  // namespace

std::shared_ptr<FileMapping> FileMapping::Open(const std::wstring& path, std::size_t zeros) {
  const std::string real = RealPath(NativePath(path));
  if (!real.starts_with(kReadOnlyData)) return nullptr;
  const Descriptor file(real.c_str());
  const std::size_t size = file.FileSize();
  if (size == 0 || size > std::numeric_limits<std::size_t>::max() - zeros) return nullptr;
  // Zeros of the wanted length, the first of which the file replaces.
  constexpr int kAccess = PROT_READ | PROT_WRITE;
  void* const room = mmap(nullptr, size + zeros, kAccess, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (room == MAP_FAILED) return nullptr;
  const std::shared_ptr<FileMapping> mapping(
      new FileMapping({static_cast<std::byte*>(room), size + zeros}, size));
  void* const content = mmap(room, size, kAccess, MAP_PRIVATE | MAP_FIXED | MAP_NORESERVE, file.Number(), 0);
  return content != MAP_FAILED ? mapping : nullptr;
}

FileMapping::~FileMapping() { munmap(m_Room.data(), m_Room.size()); }

}  // namespace zeb
