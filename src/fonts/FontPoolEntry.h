#pragma once

#include "platform/Export.h"

#include <string>
#include <vector>

class CFontData;

/// One font of the pool: its program, and the names and the style under which it is known. Owns the program.
class ZEB_EXPORT CFontPoolEntry {
 public:
  CFontPoolEntry();
  /// Shares the font program: only one of the two objects may be destroyed.
  CFontPoolEntry(const CFontPoolEntry& other);
  /// Frees the font program.
  virtual ~CFontPoolEntry();
  /// As the copy constructor. The program that this object held is not freed.
  CFontPoolEntry& operator=(const CFontPoolEntry& other);

  /// The weight, 400 normal, which is the default.
  int GetBold() const;
  void SetBold(int weight);
  bool GetItalic() const;
  void SetItalic(bool italic);
  /// The name by which files know the font.
  const wchar_t* GetFontName() const;
  void SetFontName(const wchar_t* name);
  const wchar_t* GetFontFamilyName() const;
  void SetFontFamilyName(const wchar_t* name);

  /// The font program, null by default.
  CFontData* GetFontData() const;
  /// Stores the pointer and takes ownership; the earlier program is not freed.
  void SetFontData(CFontData* data);

  /// Adds a name that users know the font by. Duplicates are kept.
  void AddLocalizedFontName(const wchar_t* name);
  /// @param index 0 up to the count less one, not checked
  const wchar_t* GetLocalizedFontNameAt(int index) const;
  int GetLocalizedFontNameCount() const;

 private:
  CFontData* m_pFontData = nullptr;  // owned, shared by copies
  int m_iBold = 400;
  bool m_bItalic = false;
  std::wstring m_strFontName;
  std::wstring m_strFontFamilyName;
  std::vector<std::wstring> m_rgstrLocalizedNames;
};
