#pragma once

#include "platform/File.h"

#include <cstddef>
#include <functional>
#include <span>
#include <string>

namespace zeb {

class XMLTree;

/// Fills a buffer and says how many bytes it got; fewer than the buffer holds only at the end.
using XMLByteSource = std::function<FileStatus(std::span<std::byte> buffer, std::size_t& count)>;

/// Parses a document into an empty tree.
///
/// Any input whatever ends in a tree or an exception: nothing recurses over depth, no external entity is loaded, and
/// time and memory stay in proportion to the input (XMLLimits.h).
/// @param path for messages
/// @throws zebxmln::CXMLException CannotOpen, NotWellFormed, UnsupportedEncoding, OutOfMemory
void ParseXML(const XMLByteSource& source, const std::wstring& path, XMLTree& tree);

}  // namespace zeb
