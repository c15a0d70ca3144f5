#pragma once

#include "platform/Export.h"
#include "rtf/RTFProperties.h"

#include <string>

/// A style of the style sheet of an RTF text: the properties that `\s` puts in force, a number and a name.
class ZEB_EXPORT CRTFStyleSheet {
 public:
  CRTFStyleSheet();
  CRTFStyleSheet(const CRTFStyleSheet& other);
  ~CRTFStyleSheet();
  CRTFStyleSheet& operator=(const CRTFStyleSheet& other);

  CCharacterProperties GetCharProps() const;
  void SetCharProps(CCharacterProperties charProps);
  CSectionProperties GetSecProps() const;
  void SetSecProps(CSectionProperties secProps);
  CParagraphProperties GetParProps() const;
  void SetParProps(CParagraphProperties parProps);
  CFontProperties GetFontProps() const;
  void SetFontProps(CFontProperties fontProps);
  /// The number by which `\s` refers to the style, 0 at the start.
  int GetStyleSheetIndex() const;
  void SetStyleSheetIndex(int index);
  /// Valid until the name is set anew.
  const wchar_t* GetStyleSheetName() const;
  /// Copies the name; null counts as empty.
  void SetStyleSheetName(const wchar_t* name);

 private:
  CCharacterProperties m_CharProps;
  CSectionProperties m_SecProps;
  CParagraphProperties m_ParProps;
  CFontProperties m_FontProps;
  int m_iIndex;
  std::wstring m_strName;
};
