#pragma once

#include "rtf/RTFProperties.h"

namespace zeb {

/// Copies all but the rows, which `to` keeps: a table may be long, and this is done at every run and every group.
void CopyWithoutRows(const CDocumentProperties& from, CDocumentProperties& to);

}  // namespace zeb
