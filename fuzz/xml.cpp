// The XML facility: any bytes are refused or give a document that is written and read without change, whether or not
// its texts were asked for.

#include "foundation/XMLManager.h"
#include "foundation/XMLNode.h"
#include "foundation/XMLParser.h"
#include "foundation/XMLTree.h"
#include "foundation/XMLWriter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// Asks for everything that a reader of records may ask for.
void Walk(const zeb::XMLTree& tree) {
  std::vector<zebxmln::CXMLNode*> pending = {tree.Root()};
  while (!pending.empty()) {
    zebxmln::CXMLNode* node = pending.back();
    pending.pop_back();
    if (node->GetNodeName()[0] == L'\0') std::abort();
    std::array<wchar_t, 16> text = {};
    const bool isShort = zeb::XMLTree::CopyShortText(*node, text);
    const std::wstring_view whole = node->GetNodeText();
    if (isShort && whole != text.data()) std::abort();
    if (auto* binary = dynamic_cast<zebxmln::CXMLBinNode*>(node)) {
      void* data = nullptr;
      int length = 0;
      binary->GetBinaryData(&data, &length);
      if ((data == nullptr) != (length == 0)) std::abort();
    }
    for (zebxmln::CXMLNode** child = node->GetChildNodes(); *child != nullptr; ++child)
      pending.push_back(*child);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zeb::XMLTree first;
  if (!Parse(std::as_bytes(std::span(data, size)), first)) return 0;
  const Bytes written = Write(first);
  Walk(first);
  if (Write(first) != written) std::abort();
  zeb::XMLTree second;
  if (!Parse(written, second) || Write(second) != written) std::abort();
  return 0;
}
