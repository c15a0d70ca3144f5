#pragma once

#include "platform/Export.h"

#include <string>

/// A font of the font table of an RTF text. The reader sets the face name and the character set; the other values are
/// there for users of the class. Numbers are 0 and the name is empty at the start.
class ZEB_EXPORT CRTFFont {
 public:
  CRTFFont();
  CRTFFont(const CRTFFont& other);
  ~CRTFFont();
  CRTFFont& operator=(const CRTFFont& other);

  /// Valid until the name is set anew.
  const wchar_t* GetFontFaceName() const;
  /// Copies the name; null counts as empty.
  void SetFontFaceName(const wchar_t* faceName);
  /// The character set as `\fcharset` numbers it: 0 Western, 204 Cyrillic, 128 Japanese, ...
  int GetFontCharSet() const;
  void SetFontCharSet(int charSet);
  int GetFontWidth() const;
  void SetFontWidht(int width);
  int GetFontHeight() const;
  void SetFontHeight(int height);
  char GetFontFamily() const;
  void SetFontFamily(char family);
  char GetFontPitch() const;
  void SetFontPitch(char pitch);
  char GetAttributes() const;
  void SetFontAttributes(char attributes);

 private:
  std::wstring m_strFaceName;
  int m_iCharSet;
  int m_iWidth;
  int m_iHeight;
  char m_cFamily;
  char m_cPitch;
  char m_cAttributes;
};
