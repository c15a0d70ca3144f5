#include "formula/FormulaSigns.h"

#include "formula/FormulaCharacters.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaParser.h"
#include "foundation/ErrorKeys.h"

namespace zeb {

int FindNot(std::wstring_view text, std::size_t pos) {
  // Fixed behaviour: `!=` is a `!` in front of a stray `=`.
  return pos < text.size() && text[pos] == L'!' && pos + 1 < text.size() ? 1 : 0;
}

int FindSign(const CFormulaParser& parser, std::wstring_view text, std::size_t pos) {
  if (pos >= text.size() || text[pos] != L'-') return 0;
  for (std::size_t before = pos; before > 0; --before) {
    const wchar_t c = text[before - 1];
    if (IsBlank(c)) continue;
    constexpr std::wstring_view kAllowing = L"(;=!><";
    return kAllowing.find(c) != std::wstring_view::npos || parser.IstKommentarEnde(c) ? 1 : 0;
  }
  return 1;
}

bool IsAt(const CFormulaParser& parser, int pos, wchar_t c) {
  return pos < parser.GetLength() && parser.GetAt(pos) == c;
}

void StepOverStringSeparator(int& pos, CFormulaParser& parser) {
  ++pos;
  parser.EatWhite();
  if (IsAt(parser, pos, L';') || IsAt(parser, pos, L')'))
    ThrowFormulaError(ErrorKeys::WrongFunctionParameterCount);
}

}  // namespace zeb
