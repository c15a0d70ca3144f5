#pragma once

#include "platform/FileMapping.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace zeb {

/// Which installed font is wanted.
struct InstalledFontRequest {
  std::wstring faceName;
  int weight = 400;  ///< 400 normal, 700 bold
  bool italic = false;
  bool centralEuropean =
      false;  ///< with the characters of code page 1250, where the system tells fonts apart by that
};

/// The bytes of an installed font: those of the whole file, or of the whole collection that the font lies in.
///
/// On POSIX only a face counts whose family or full name is the wanted name, case ignored and without one leading `@`,
/// the mark of a vertical font; nothing else ever stands in for it. Weight and slant choose among such faces.
/// On Windows the system's own font mapping decides.
class InstalledFont {
 public:
  InstalledFont();
  ~InstalledFont();
  InstalledFont(const InstalledFont&) = delete;
  InstalledFont& operator=(const InstalledFont&) = delete;

  /// @return false if there is no such font or its file cannot be read
  bool Open(const InstalledFontRequest& request);
  std::uint64_t Size() const;
  /// All of it in place.
  /// @param zeros how many zero bytes are to be there behind it at least
  /// @return null if it is to be read
  std::shared_ptr<FileMapping> Map(std::size_t zeros) const;
  /// Reads all of it.
  /// @param bytes exactly Size() of them
  bool Read(std::span<std::byte> bytes);

 private:
  struct State;
  std::unique_ptr<State> m_pState;
};

}  // namespace zeb
