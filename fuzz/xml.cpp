// The XML facility: any bytes are refused or give a document that is written and read without change.

#include "foundation/XMLManager.h"
#include "foundation/XMLParser.h"
#include "foundation/XMLTree.h"
#include "foundation/XMLWriter.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>

namespace {

using Bytes = std::basic_string<std::byte>;

/// @return whether the bytes are a document
bool Parse(std::span<const std::byte> bytes, zeb::XMLTree& tree) {
  const zeb::XMLByteSource source = [&bytes](std::span<std::byte> buffer, std::size_t& count) {
    count = std::min(buffer.size(), bytes.size());
    std::copy_n(bytes.begin(), count, buffer.begin());
    bytes = bytes.subspan(count);
    return zeb::FileStatus::Ok;
  };
  try {
    zeb::ParseXML(source, L"input", tree);
    return true;
  } catch (const zebxmln::CXMLException&) {
    return false;
  }
}

Bytes Write(const zeb::XMLTree& tree) {
  Bytes written;
  zeb::WriteXML(*tree.Root(), [&written](std::span<const std::byte> bytes) {
    written.append(bytes.data(), bytes.size());
    return zeb::FileStatus::Ok;
  });
  return written;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zeb::XMLTree first;
  if (!Parse(std::as_bytes(std::span(data, size)), first)) return 0;
  const Bytes written = Write(first);
  zeb::XMLTree second;
  if (!Parse(written, second) || Write(second) != written) std::abort();
  return 0;
}
