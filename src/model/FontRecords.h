#pragma once

#include "foundation/RecordReader.h"

namespace zeb {

/// The element with which the font records of a document or layout begin.
inline constexpr ElementName kFontInformation = L"FontInformation";

/// Reads the font records and, behind them, the encoding records that stand at the cursor. They are accepted, so that
/// what follows them is read, and nothing of them is kept.
void ReadFontRecords(RecordReader& reader);

}  // namespace zeb
