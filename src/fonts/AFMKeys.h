#pragma once

#include "platform/Export.h"

#include <map>
#include <string>

/// The vocabulary of the AFM reader: keywords with their keys.
class ZEB_EXPORT AFMKeys {
 public:
  AFMKeys();
  AFMKeys(const AFMKeys& other);
  virtual ~AFMKeys();
  AFMKeys& operator=(const AFMKeys& other);

  /// The key of a keyword, exactly and case-sensitively; -1 for an unknown word.
  int FindKey(const wchar_t* word) const;

 private:
  std::map<std::wstring, int> m_Keys;
};
