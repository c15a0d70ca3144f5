#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace zeb {

/// A conversion of the C library from a named encoding into code points.
class Iconv {
 public:
  explicit Iconv(const std::string& name);
  ~Iconv();
  Iconv(const Iconv&) = delete;
  Iconv& operator=(const Iconv&) = delete;

  /// Whether the C library knows the encoding. Nothing can be converted otherwise.
  bool IsOpen() const;

  /// Converts bytes that are to be one character.
  /// @return the code point, -1 for bytes without one, nothing if they are only a beginning or more than one
  std::optional<std::int32_t> Convert(std::span<const unsigned char> bytes) const;

 private:
  void* m_pHandle;  // owned
};

}  // namespace zeb
