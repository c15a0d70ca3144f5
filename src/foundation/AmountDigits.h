#pragma once

#include <string>
#include <string_view>

namespace zeb {

/// The worker of NumberToText: digits, with one "." or "," at most, as Chinese capital numerals.
/// Expects the numeric locale "C". Takes a text of any length; the depth of its calls is bounded.
/// @param withYuan whether the unit of the integer part is written
std::wstring AmountDigitsToText(std::wstring_view text, bool withYuan);

}  // namespace zeb
