#include "model/FontNames.h"

#include "fonts/GlobalFontHandler.h"
#include "model/Text.h"

namespace zeb {

void LocalizeFontName(CGlobalFontHandler& fontHandler, CText& text) {
  const wchar_t* const name =
      fontHandler.GetLocalizedFontName(text.GetFontName(), text.GetBold(), text.GetItalic());
  if (name != nullptr) text.SetFontName(name);
}

void UniqueFontNames::Apply(CText& text) {
  const std::wstring name = text.GetFontName();
  const Style style(text.GetBold(), text.GetItalic());
  const auto known = m_WithoutAny.find(name);
  if (known != m_WithoutAny.end() && known->second.contains(style)) return;
  if (const wchar_t* unique = m_FontHandler.GetUniqueFontName(name.c_str(), style.first, style.second)) {
    text.SetFontName(unique);
    // An answer for one style of a name holds for all from then on.
    m_WithoutAny.erase(name);
  } else {
    m_WithoutAny[name].insert(style);
  }
}

}  // namespace zeb
