#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Names in a formula's text.
namespace zeb {

/// Length of the function name at `pos`: letters, `_` and digits, the first no digit. 0 for none.
std::size_t FindFunctionName(std::wstring_view text, std::size_t pos);

/// Length of the bare variable name at `pos`: letters, digits, `#` and `_`, the first no digit. 0 for none.
/// @param known length of a function name at `pos`, all of which belongs to the variable's name too
std::size_t FindVariableName(std::wstring_view text, std::size_t pos, std::size_t known = 0);

/// Length of the variable name at `pos`, bare or in brackets; the brackets count.
/// Key: "VariableEndMissing" for a bracket that is not closed.
std::size_t FindQuotedVariableName(std::wstring_view text, std::size_t pos);

/// The text in capitals, by the current locale.
std::wstring UpperCase(std::wstring_view text);

}  // namespace zeb
