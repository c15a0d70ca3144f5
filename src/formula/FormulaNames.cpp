#include "formula/FormulaNames.h"

#include "formula/FormulaCharacters.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaParser.h"
#include "foundation/ErrorKeys.h"

#include <cwctype>

namespace zeb {

std::size_t FindFunctionName(std::wstring_view text, std::size_t pos) {
  std::size_t end = pos;
  while (end < text.size()) {
    const wchar_t c = text[end];
    if (!IsLetter(c) && c != L'_' && !(IsDigit(c) && end != pos)) break;
    ++end;
  }
  return end - pos;
}

std::size_t FindVariableName(std::wstring_view text, std::size_t pos, std::size_t known) {
  std::size_t end = pos + known;
  while (end < text.size()) {
    const wchar_t c = text[end];
    const bool belongs = end == pos ? IsLetter(c) : IsLetterOrDigit(c);
    if (!belongs && c != L'#' && c != L'_') break;
    ++end;
  }
  return end - pos;
}

std::size_t FindQuotedVariableName(std::wstring_view text, std::size_t pos) {
  if (pos >= text.size()) return 0;
  if (text[pos] != gccVariablenKennzeichenAnfang) return FindVariableName(text, pos);
  const std::size_t end = text.find(gccVariablenKennzeichenEnde, pos);
  if (end == std::wstring_view::npos) ThrowFormulaError(ErrorKeys::VariableEndMissing);
  return end - pos + 1;
}

std::wstring UpperCase(std::wstring_view text) {
  std::wstring upper(text);
  for (wchar_t& c : upper) c = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(c)));
  return upper;
}

}  // namespace zeb
