#pragma once

class CGlobalFontHandler;
class CText;

namespace zeb {

/// Exchanges the unique font name, which files hold, for the name in the language of the machine, which memory holds.
/// A font without another name keeps the one it has.
void LocalizeFontName(CGlobalFontHandler& fontHandler, CText& text);

/// The other way round, before a text is written. The text keeps the unique name afterwards.
void MakeFontNameUnique(CGlobalFontHandler& fontHandler, CText& text);

}  // namespace zeb
