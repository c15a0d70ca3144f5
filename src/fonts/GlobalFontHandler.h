#pragma once

#include "platform/Export.h"

class CEncodings;
class CFonts;
class CText;

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

  /// The name by which a file stores the font; when it is null, see CFonts.
  const wchar_t* GetUniqueFontName(const wchar_t* name, int bold, bool italic);
  /// The name by which users know the font; when it is null, see CFonts.
  const wchar_t* GetLocalizedFontName(const wchar_t* name, int bold, bool italic);

  /// Moves over the fonts and encodings of another handler that this one has not; the built-in fonts are left out.
  /// What follows one that was moved is passed over: a second call moves the rest. A moved font still asks the other
  /// handler for its encoding and the names of its character collection, so the other one must outlive such questions.
  void AddAnotherFontHandler(CGlobalFontHandler* other);

  /// Sets the line spacing of a text, and the distances of its base lines from the border, to what suits its font. The
  /// text gets a border if it has none. A text whose font is not known stays as it is.
  void CalculateOptimalTextDistances(CText* text);
  /// The same by the bounding box of the font, whatever kind of font it is.
  void CalculateOptimalTextDistancesForTables(CText* text);

 private:
  CFonts* m_pFonts;          // owned, shared by copies
  CEncodings* m_pEncodings;  // owned, shared by copies
};
