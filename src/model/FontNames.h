#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>

class CGlobalFontHandler;
class CText;

namespace zeb {

/// Exchanges the unique font name, which files hold, for the name in the language of the machine, which memory holds.
/// A font without another name keeps the one it has.
void LocalizeFontName(CGlobalFontHandler& fontHandler, CText& text);

/// The other way round, before texts are written. The texts keep the unique name afterwards.
///
/// A name that nobody knows costs a search of the whole system at every question, so one saving asks once for each.
class UniqueFontNames {
 public:
  explicit UniqueFontNames(CGlobalFontHandler& fontHandler) : m_FontHandler(fontHandler) {}

  void Apply(CText& text);

 private:
  using Style = std::pair<int, bool>;  // weight and slant

  CGlobalFontHandler& m_FontHandler;  // observer
  std::map<std::wstring, std::set<Style>>
      m_WithoutAny;  // names that were found to have no unique one, with the styles
};

}  // namespace zeb
