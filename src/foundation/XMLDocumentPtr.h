#pragma once

#include "foundation/XMLDocument.h"

#include <memory>

namespace zeb {

struct XMLDocumentEnd {
  void operator()(zebxmln::CXMLDocument* document) const { document->DestroyDocument(); }
};

/// A document for a scope: ended by DestroyDocument, also where an exception leaves the scope.
using XMLDocumentPtr = std::unique_ptr<zebxmln::CXMLDocument, XMLDocumentEnd>;

}  // namespace zeb
