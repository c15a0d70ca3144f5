#pragma once

#include "support/WidePath.h"

#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace zebtest {

/// A folder of a unique name, removed with everything in it at the end of the scope.
class TempDir {
 public:
  TempDir() : m_path(Create()) {}
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  const std::filesystem::path& Path() const { return m_path; }
  std::filesystem::path File(const std::string& name) const { return m_path / name; }

  /// The same, wide, as the library takes paths.
  std::wstring WidePath() const { return zebtest::WidePath(m_path); }
  std::wstring WideFile(const std::string& name) const { return zebtest::WidePath(File(name)); }

 private:
  static std::filesystem::path Create() {
    std::random_device entropy;
    for (;;) {
      const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
      std::filesystem::path path = std::filesystem::temp_directory_path() /
                                   ("zebtest-" + std::to_string(ticks) + "-" + std::to_string(entropy()));
      if (std::filesystem::create_directory(path)) return path;
    }
  }

  std::filesystem::path m_path;
};

}  // namespace zebtest
