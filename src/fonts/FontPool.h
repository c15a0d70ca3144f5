#pragma once

#include "platform/Export.h"

#include <map>
#include <string>
#include <vector>

class CFontData;
class CFontPoolEntry;

/// The store of font programs of the process: one file `.fd` for each font in one folder, so that a report can be
/// shown where its TrueType fonts are not installed, and so that reports need not hold the programs.
///
/// The pool is off until it gets a path. Each program is read once and then stays in memory until DeleteFontPool;
/// the pool owns it and all fonts that refer to it share it.
///
/// No font name leads out of the folder: a character that the name of a file cannot hold stands in it as `%` with its
/// hexadecimal number.
class ZEB_EXPORT CFontPool {
 public:
  /// The pool of the process, made at the first call.
  static CFontPool& GetInstance();

  /// Shares the entries: only one of the two pools may be destroyed.
  CFontPool(const CFontPool& other);
  /// Frees the entries; the files stay.
  virtual ~CFontPool();
  /// As the copy constructor. The entries that this pool held are not freed.
  CFontPool& operator=(const CFontPool& other);

  /// Sets the folder. The system's separator is appended if the path ends in none; an empty path turns the pool off.
  void SetFontPoolPath(const wchar_t* path);
  const wchar_t* GetFontPoolPath() const;

  /// The program of a font, from memory or from its file; null if there is none. The pool keeps it.
  /// @param fontName the unique name of the font, case-sensitive
  CFontData* GetFontData(const wchar_t* fontName);
  /// Takes in a font and writes its file. A font whose program the pool has stays as it is, in memory and on disk; one
  /// that it has without a program is written, but stays without in memory.
  /// @param bold the weight, 400 normal
  /// @param data the font program, which is copied; may be null if `length` is 0
  /// @param length of `data` in bytes
  /// @throws zebxmln::CXMLException if the file cannot be written; the font is in memory then
  void SetFontData(const wchar_t* fontName, const wchar_t* familyName, int bold, bool italic,
                   unsigned char* data, int length, const std::vector<std::wstring>& localizedNames);
  /// The unique name of the first font in memory that has this localized name, without one leading `@` and with case
  /// ignored for ASCII letters only; null if there is none. Points into the pool.
  const wchar_t* FindUniqueName(const wchar_t* name) const;
  /// Frees all entries; the files stay.
  void DeleteFontPool();

 protected:
  CFontPool();

  /// Reads every `.fd` file of the folder.
  void ReadAvailableFonts();
  /// Takes in the font of a file; a file that cannot be read is passed over.
  void ReadFontData(const wchar_t* file);
  /// @throws zebxmln::CXMLException
  void WriteFontData(const wchar_t* file, CFontPoolEntry* entry);
  /// Takes in an entry and its ownership if the name is new; otherwise the entry stays the caller's.
  void AddFontDataEntry(const wchar_t* fontName, CFontPoolEntry* entry);

 private:
  std::wstring PathOf(const std::wstring& fontName) const;
  /// Whether this very entry is the one of its name.
  bool Holds(const CFontPoolEntry& entry) const;

  std::map<std::wstring, CFontPoolEntry*> m_Entries;  // owned, shared by copies
  std::wstring m_strFontPoolPath;                     // empty or closed by a separator
  int m_iVersionNr = 1;
};
