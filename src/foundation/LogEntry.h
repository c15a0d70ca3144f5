#pragma once

#include "platform/Export.h"

#include <string>

/// One line of a protocol: a level, whose meaning is the caller's, and a text.
class ZEB_EXPORT CLogEntry {
 public:
  CLogEntry(int level, const wchar_t* text);
  CLogEntry(const CLogEntry& other);
  virtual ~CLogEntry();
  CLogEntry& operator=(const CLogEntry& other);

  int GetLevel() const;
  /// The text; the pointer is valid as long as this object is unchanged.
  const wchar_t* GetText() const;

 private:
  int m_iLevel;
  std::wstring m_strText;
};
