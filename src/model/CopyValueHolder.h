#pragma once

#include "model/ValueHolder.h"

/// A field that repeats another field, which may stand in another zone.
class ZEB_EXPORT CCopyValueHolder : public CValueHolder {
 public:
  CCopyValueHolder();
  CCopyValueHolder(const CCopyValueHolder& other);
  ~CCopyValueHolder() override;

  /// Reads the record from `node`, which is the `CopyValueHolder` element. Always true.
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `CopyValueHolder` element to `node`. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  bool IsCopyValueHolder() const override;

  CCopyValueHolder& operator=(const CCopyValueHolder& other);

  /// Internal name of the zone of the field that is copied: a text, not an identifier of a file.
  const wchar_t* GetRefZoneID() const { return m_strRefZoneID.c_str(); }
  void SetRefZoneID(const wchar_t* zone) { m_strRefZoneID = zone; }
  /// Key of the field that is copied: a text, not an identifier of a file.
  const wchar_t* GetRefVHID() const { return m_strRefVHID.c_str(); }
  void SetRefVHID(const wchar_t* valueHolder) { m_strRefVHID = valueHolder; }

 private:
  std::wstring m_strRefZoneID;
  std::wstring m_strRefVHID;
};
