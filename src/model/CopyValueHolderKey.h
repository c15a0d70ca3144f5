#pragma once

#include "platform/Export.h"

#include <string>

/// Names a field that some CCopyValueHolder repeats. Not saved: the copied fields of a file rebuild the table.
class ZEB_EXPORT CCopyValueHolderKey {
 public:
  /// @param zone internal name of the field's zone
  /// @param valueHolder the field's key
  CCopyValueHolderKey(const wchar_t* zone, const wchar_t* valueHolder);
  CCopyValueHolderKey(const CCopyValueHolderKey& other);
  virtual ~CCopyValueHolderKey();

  CCopyValueHolderKey& operator=(const CCopyValueHolderKey& other);

  /// Zone and value holder, joined by "|".
  const wchar_t* GetKey() const { return m_strKey.c_str(); }
  /// Whether both parts are equal, each by itself; the joined key does not count.
  bool CompareKey(const wchar_t* zone, const wchar_t* valueHolder) const;

 private:
  std::wstring m_strZone;
  std::wstring m_strValueHolder;
  std::wstring m_strKey;
};
