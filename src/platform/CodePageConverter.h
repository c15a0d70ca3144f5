#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace zeb {

/// A conversion of one character of a code page, as the platform has it.
class CodePageConverter {
 public:
  /// @return null for a page that the platform does not know
  static std::unique_ptr<CodePageConverter> Open(int number);
  virtual ~CodePageConverter() = default;

  /// Converts one byte or one pair.
  /// @return the code point, -1 if there is none, nothing if the bytes are the beginning of a character
  virtual std::optional<std::int32_t> Convert(std::span<const unsigned char> bytes) const = 0;
};

}  // namespace zeb
