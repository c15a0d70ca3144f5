#pragma once

#include "foundation/RecordReader.h"

#include <optional>

namespace zeb {

/// Where an object's record has its identifier.
enum class IdentifierPlace {
  FirstChild,              ///< the record's first child
  FirstChildOfFirstChild,  ///< the first child of the `ValueHolder` element that comes first in the record
};

/// The identifier with which a record begins.
/// @return nothing if the record does not begin with an element of that name
std::optional<int> ReadRecordIdentifier(zebxmln::CXMLNode* record, IdentifierPlace place, ElementName name);

}  // namespace zeb
