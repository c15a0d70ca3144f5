#pragma once

#include "platform/Export.h"

#include <string>
#include <vector>

/// A ligature of a character: with `Successor` behind it the character becomes `Ligature`. Both are glyph
/// names.
class ZEB_EXPORT CFontLigature {
 public:
  CFontLigature();
  CFontLigature(const CFontLigature& other);
  virtual ~CFontLigature();
  CFontLigature& operator=(const CFontLigature& other);

  const wchar_t* GetSuccessor() const;
  void SetSuccessor(const wchar_t* successor);
  const wchar_t* GetLigature() const;
  void SetLigature(const wchar_t* ligature);

 private:
  std::wstring m_strSuccessor;
  std::wstring m_strLigature;
};

/// The metrics of one character of an AFM file or a saved font, in thousandths of the em.
class ZEB_EXPORT CFontCharMetricsInfo {
 public:
  CFontCharMetricsInfo();
  /// The copy shares the ligature records.
  CFontCharMetricsInfo(const CFontCharMetricsInfo& other);
  /// Frees the ligature records.
  virtual ~CFontCharMetricsInfo();
  /// As the copy constructor. The records that this object held are not freed.
  CFontCharMetricsInfo& operator=(const CFontCharMetricsInfo& other);

  /// The character's code; -1 for a glyph that the font's encoding does not reach. Default 0.
  int GetCode() const;
  void SetCode(int code);
  /// The advance width.
  int GetWX() const;
  void SetWX(int wx);
  /// The vertical advance.
  int GetWY() const;
  void SetWY(int wy);
  /// The glyph's name.
  const wchar_t* GetName() const;
  void SetName(const wchar_t* name);
  /// The bounding box: lower left x and y, upper right x and y.
  float GetBBoxLLX() const;
  void SetBBoxLLX(float value);
  float GetBBoxLLY() const;
  void SetBBoxLLY(float value);
  float GetBBoxURX() const;
  void SetBBoxURX(float value);
  float GetBBoxURY() const;
  void SetBBoxURY(float value);

  /// Appends the pointer and takes ownership.
  void AddLigature(CFontLigature* ligature);
  int GetLigatureCount() const;
  /// @param index 0 up to GetLigatureCount() - 1, not checked
  CFontLigature* GetLigatureAt(int index) const;

 private:
  int m_iCode;
  int m_iWX;
  int m_iWY;
  std::wstring m_strName;
  float m_fBBoxLLX;
  float m_fBBoxLLY;
  float m_fBBoxURX;
  float m_fBBoxURY;
  std::vector<CFontLigature*> m_rgpLigatures;  // owned, shared by copies
};
