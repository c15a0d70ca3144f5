#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>

namespace zeb {

/// The bytes of a file in memory without reading them: the system fetches what is touched. What is written to them stays
/// in this process.
///
/// If somebody shortened or overwrote the file, its bytes would change or be gone under the reader. So only the files of
/// `/usr/share` are mapped, which the Filesystem Hierarchy Standard keeps for read-only data: installers put new files in
/// their place and leave the old ones to those who have them open. All others are to be read. On Windows, too: there a
/// mapping would stop installers.
class FileMapping {
 public:
  /// @param zeros how many zero bytes are to be there behind the content at least
  /// @return null if the file is empty, is none of those, or cannot be mapped
  static std::shared_ptr<FileMapping> Open(const std::wstring& path, std::size_t zeros);
  ~FileMapping();
  FileMapping(const FileMapping&) = delete;
  FileMapping& operator=(const FileMapping&) = delete;

  /// The content; the zeros stand behind it.
  std::span<std::byte> Bytes() const { return m_Room.first(m_uSize); }

 private:
  FileMapping(std::span<std::byte> room, std::size_t size) : m_Room(room), m_uSize(size) {}

  std::span<std::byte> m_Room;  // owned
  std::size_t m_uSize;
};

}  // namespace zeb
