#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zebtest {

/// All bytes of a file. Throws if it cannot be read.
inline std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path.string());
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// Makes or replaces a file of exactly these bytes. Throws if it cannot be written.
inline void WriteFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) throw std::runtime_error("cannot write " + path.string());
}

/// The same with the bytes as numbers.
inline std::vector<unsigned char> ReadBytes(const std::filesystem::path& path) {
  const std::string bytes = ReadFile(path);
  return {bytes.begin(), bytes.end()};
}

inline void WriteBytes(const std::filesystem::path& path, const std::vector<unsigned char>& bytes) {
  WriteFile(path, std::string(bytes.begin(), bytes.end()));
}

}  // namespace zebtest
