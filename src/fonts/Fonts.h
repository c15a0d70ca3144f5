#pragma once

#include "platform/Export.h"

class CGlobalFontHandler;

/// The list of fonts known to one handler. Answers the questions that a text asks by font name, weight and
/// slant.
class ZEB_EXPORT CFonts {
 public:
  /// @param owner the handler that owns the list
  explicit CFonts(CGlobalFontHandler* owner);
  CFonts(const CFonts& other);
  virtual ~CFonts();
  CFonts& operator=(const CFonts& other);

  /// The name by which a file stores the font; null if there is no other than `name`.
  const wchar_t* GetUniqueFontName(const wchar_t* name, int bold, bool italic);
  /// The name of the font in the language of the machine; null if there is no other than `name`.
  const wchar_t* GetLocalizedFontName(const wchar_t* name, int bold, bool italic);

 private:
  CGlobalFontHandler* m_pOwner;  // observer
};
