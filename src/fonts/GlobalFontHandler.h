#pragma once

#include "platform/Export.h"

class CEncodings;
class CFonts;

/// The entry to the fonts of a report: owns one list of fonts and one of encodings. The report document and
/// the layout have one handler each.
class ZEB_EXPORT CGlobalFontHandler {
 public:
  /// Makes the fonts, then the encodings.
  CGlobalFontHandler();
  /// Copies the two pointers: the copy shares fonts and encodings with its source.
  CGlobalFontHandler(const CGlobalFontHandler& other);
  virtual ~CGlobalFontHandler();
  /// As the copy constructor. What this object held is not freed.
  CGlobalFontHandler& operator=(const CGlobalFontHandler& other);

  CFonts* GetFonts() const;
  /// Stores the pointer and takes ownership; the earlier list is not freed.
  void SetFonts(CFonts* fonts);
  CEncodings* GetEncodings() const;
  /// Stores the pointer and takes ownership; the earlier list is not freed.
  void SetEncodings(CEncodings* encodings);

  /// The name by which a file stores the font; null if there is no other than `name`. See CFonts.
  const wchar_t* GetUniqueFontName(const wchar_t* name, int bold, bool italic);
  /// The name of the font in the language of the machine; null if there is no other than `name`. See CFonts.
  const wchar_t* GetLocalizedFontName(const wchar_t* name, int bold, bool italic);

 private:
  CFonts* m_pFonts;          // owned, shared by copies
  CEncodings* m_pEncodings;  // owned, shared by copies
};
