#pragma once

#include "platform/File.h"

#include <cstddef>
#include <functional>
#include <span>

namespace zebxmln {
class CXMLNode;
}

namespace zeb {

using XMLByteSink = std::function<FileStatus(std::span<const std::byte> bytes)>;

/// Writes an element as a document: UTF-8 with a declaration, a line per element, indented by two spaces, with LF.
///
/// What XML gives a meaning to is escaped, and a carriage return is a character reference, so that a text is read as it
/// was written. Characters that XML cannot hold, and lone surrogates, become U+FFFD. Nothing recurses over depth.
/// @return the sink's first failure
FileStatus WriteXML(const zebxmln::CXMLNode& root, const XMLByteSink& sink);

}  // namespace zeb
