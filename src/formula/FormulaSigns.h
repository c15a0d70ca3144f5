#pragma once

#include <cstddef>
#include <string_view>

class CFormulaParser;

// Single characters of a formula that decide how it goes on.
namespace zeb {

/// Length of a `!` at `pos`, 0 for none.
int FindNot(std::wstring_view text, std::size_t pos);

/// Length of a `-` at `pos` that the text before it allows to be a sign, 0 for none.
int FindSign(const CFormulaParser& parser, std::wstring_view text, std::size_t pos);

/// Whether a character stands at `pos`; false at the end of the text.
bool IsAt(const CFormulaParser& parser, int pos, wchar_t c);

/// Steps over the `;` between the strings of a call; another separator or the end of the list may not follow.
/// Key: "WrongFunctionParameterCount".
void StepOverStringSeparator(int& pos, CFormulaParser& parser);

}  // namespace zeb
