#pragma once

#include "model/Placeable.h"

#include <string>

/// Direction of a text, carried as an integer: the layout component gives the values their meaning.
enum DOMOrientation : int {
  DOMOrientationDefault = 0,  ///< not written to files
};

/// A fixed text with its character attributes, and the base of all fields.
/// Copies as its base does: what the base owns is shared.
class ZEB_EXPORT CText : public CPlaceable {
 public:
  CText();
  CText(const CText& other);
  ~CText() override;

  /// Reads the record from `node`, which is the `Text` element. Always true.
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `Text` element to `node`. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  CText& operator=(const CText& other);

  const wchar_t* GetTextContent() const { return m_strTextContent.c_str(); }
  void SetTextContent(const wchar_t* content) { m_strTextContent = content; }

  /// "Helvetica" by default. Memory holds the localized name of the font, files hold its unique name.
  const wchar_t* GetFontName() const { return m_strFontName.c_str(); }
  void SetFontName(const wchar_t* name) { m_strFontName = name; }
  /// Name of an encoding; empty means the font's own.
  const wchar_t* GetTextEncoding() const { return m_strTextEncoding.c_str(); }
  void SetTextEncoding(const wchar_t* encoding) { m_strTextEncoding = encoding; }

  /// 12 by default.
  float GetFontSize() const { return m_fFontSize; }
  /// Sets the font size and the line spacing to the same value.
  void SetFontSize(float size);
  /// 12 by default.
  float GetLineSpacing() const { return m_fLineSpacing; }
  void SetLineSpacing(float spacing) { m_fLineSpacing = spacing; }

  /// A font weight, not a flag: 400, the default, is normal, 700 is bold.
  int GetBold() const { return m_iBold; }
  void SetBold(int weight) { m_iBold = weight; }
  bool GetItalic() const { return m_bItalic; }
  void SetItalic(bool italic) { m_bItalic = italic; }
  bool GetUnderline() const { return m_bUnderline; }
  void SetUnderline(bool underline) { m_bUnderline = underline; }
  bool GetOverline() const { return m_bOverline; }
  void SetOverline(bool overline) { m_bOverline = overline; }
  bool GetStrikeout() const { return m_bStrikeout; }
  void SetStrikeout(bool strikeout) { m_bStrikeout = strikeout; }
  DOMOrientation GetOrientation() const { return m_eOrientation; }
  void SetOrientation(DOMOrientation orientation) { m_eOrientation = orientation; }

 private:
  std::wstring m_strTextContent;
  std::wstring m_strFontName;
  std::wstring m_strTextEncoding;
  float m_fFontSize = 12.0F;
  bool m_bUnderline = false;
  bool m_bOverline = false;
  bool m_bStrikeout = false;
  DOMOrientation m_eOrientation = DOMOrientationDefault;
  float m_fLineSpacing = 12.0F;
  int m_iBold = 400;
  bool m_bItalic = false;
};
