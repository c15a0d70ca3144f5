#pragma once

#include "rtf/RTFParser.h"

#include <array>
#include <string_view>

namespace zeb {

inline constexpr int kRTFKeywordCount = 176;

/// The keyword table. Of rows with the same keyword the first one counts.
extern const std::array<CRTFParser::KeywordRow, kRTFKeywordCount> kRTFKeywordTable;

/// The number of the first row of a keyword, case-sensitively; -1 if it is unknown.
int FindRTFKeyword(std::string_view keyword);

}  // namespace zeb
