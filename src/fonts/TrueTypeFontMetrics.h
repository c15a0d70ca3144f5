#pragma once

#include "fonts/FontMetrics.h"
#include "platform/Export.h"

#include <string>

class CFontInformation;

namespace zeb {
class TrueTypeReader;
}

/// Metrics of a TrueType font. The reader is reached through CFontInformation.
class ZEB_EXPORT CTrueTypeFontMetrics : public CFontMetrics {
 public:
  CTrueTypeFontMetrics();
  /// The copy shares the parsed file.
  CTrueTypeFontMetrics(const CTrueTypeFontMetrics& other);
  /// Frees the parsed file.
  ~CTrueTypeFontMetrics() override;
  /// As the copy constructor. The parsed file that this object held is not freed.
  CTrueTypeFontMetrics& operator=(const CTrueTypeFontMetrics& other);

  /// The parsed file; null until a font was read, and after a font was refused.
  CTrueTypeFile* GetTTFile() override;

 private:
  friend class CFontInformation;
  friend class zeb::TrueTypeReader;

  /// Reads a font; the parameters are those of CFontInformation::ReadTT.
  /// @return 1, or the status of the failure, see zeb::TrueTypeStatus
  int ReadTrueTypeFont(const wchar_t* faceName, const wchar_t* filePath, const wchar_t* encoding,
                       bool unicode, bool reuseData, int bold, bool italic);

  // Where the system keeps the files of its fonts. Every answer is "not found" on a system without a registry.

  /// Walks the values of a registry key. With a sub key, opens that and gives its first value; without one, gives the
  /// next value. With nothing but the key, closes what was opened.
  /// @return whether there was a value
  bool EnumRegistryValue(void* key, const wchar_t* subKey, std::wstring* valueName, std::wstring* valueData);
  /// Finds the collection file of a face: the first font whose entry begins with the face's name (case ignored) or
  /// contains it.
  bool FindFontInRegistry(const wchar_t* face, std::wstring& entryName, std::wstring& fileName);
  /// Reads a text of up to 260 bytes from a registry key.
  bool ReadRegistryString(void* key, const wchar_t* subKey, const wchar_t* name, std::wstring& out) const;
  /// The path of a special folder of the system by its number.
  bool GetSpecialFolder(int id, std::wstring& out) const;

  CTrueTypeFile* m_pTTFile = nullptr;  // owned, shared by copies
  unsigned int m_uCFFOffset = 0;       // of the table `CFF `, in bytes
  unsigned int m_uCFFLength = 0;       // in bytes
  void* m_pRegistryKey = nullptr;      // owned while values are walked, shared by copies
  unsigned int m_uRegistryValueIndex = 0;
};
