#include "model/FontNames.h"

#include "fonts/GlobalFontHandler.h"
#include "model/Text.h"

#include <string>

namespace {

// The name may be the text's own: it is copied before the text takes it.
void SetName(CText& text, const wchar_t* name) {
  if (name != nullptr) text.SetFontName(std::wstring(name).c_str());
}

}  // namespace

namespace zeb {

void LocalizeFontName(CGlobalFontHandler& fontHandler, CText& text) {
  SetName(text, fontHandler.GetLocalizedFontName(text.GetFontName(), text.GetBold(), text.GetItalic()));
}

void MakeFontNameUnique(CGlobalFontHandler& fontHandler, CText& text) {
  SetName(text, fontHandler.GetUniqueFontName(text.GetFontName(), text.GetBold(), text.GetItalic()));
}

}  // namespace zeb
