#pragma once

#include "platform/Export.h"
#include "rtf/RTFProperties.h"

#include <string>

/// One level of a list of an RTF text. Numbers are 0 and texts are empty at the start.
class ZEB_EXPORT CRTFListLevelEntry {
 public:
  CRTFListLevelEntry();
  CRTFListLevelEntry(const CRTFListLevelEntry& other);
  ~CRTFListLevelEntry();
  CRTFListLevelEntry& operator=(const CRTFListLevelEntry& other);

  /// The number format as `\levelnfc` numbers it: 0 Arabic, 1 upper-case Roman, 23 bullet, ...
  unsigned char GetLevelnfc() const;
  void SetLevelnfc(unsigned char levelnfc);
  /// The justification of the number: 0 left, 1 centre, 2 right.
  unsigned char GetLeveljc() const;
  void SetLeveljc(unsigned char leveljc);
  /// What follows the number: 0 a tab, 1 a blank, otherwise nothing.
  unsigned char GetLevelfollow() const;
  void SetLevelfollow(unsigned char levelfollow);
  /// The first number.
  unsigned short GetLevelstartat() const;
  void SetLevelstartat(unsigned short levelstartat);
  /// Least distance between number and text, in twips.
  int GetLevelspace() const;
  void SetLevelspace(int levelspace);
  /// Indent of the number, in twips.
  int GetLevelindent() const;
  void SetLevelindent(int levelindent);
  /// Valid until the text is set anew. The reader drops all of it but `\u` characters: see GetListText.
  const wchar_t* GetLeveltext() const;
  /// Copies the text; null counts as empty. So do all setters of texts here.
  void SetLeveltext(const wchar_t* leveltext);
  /// Valid until the text is set anew. The reader drops all of it but `\u` characters.
  const wchar_t* GetLevelnumbers() const;
  void SetLevelnumbers(const wchar_t* levelnumbers);
  CCharacterProperties GetCharProps() const;
  void SetCharProps(CCharacterProperties charProps);
  CParagraphProperties GetParProps() const;
  void SetParProps(CParagraphProperties parProps);
  /// Number or bullet of the latest paragraph of this level, with the tab or blank behind it. Where `\listtext` stands in
  /// front of `\ls`, it is that of the paragraph behind: the text goes to the level that is still in force, and the
  /// first one is lost. Valid until set anew.
  const wchar_t* GetListText() const;
  void SetListText(const wchar_t* listText);
  /// The font of the list text.
  CFontProperties GetFontListText() const;
  void SetFontListText(CFontProperties fontListText);

 private:
  unsigned char m_cLevelnfc;
  unsigned char m_cLeveljc;
  unsigned char m_cLevelfollow;
  unsigned short m_uiLevelstartat;
  int m_iLevelspace;
  int m_iLevelindent;
  std::wstring m_strLeveltext;
  std::wstring m_strLevelnumbers;
  CCharacterProperties m_CharProps;
  CParagraphProperties m_ParProps;
  std::wstring m_strListText;
  CFontProperties m_FontListText;
};
