#pragma once

#include "model/ValueHolder.h"

/// A field that the user has named, of one of the kinds that the report description offers.
class ZEB_EXPORT CDynamicValueHolder : public CValueHolder {
 public:
  CDynamicValueHolder();
  CDynamicValueHolder(const CDynamicValueHolder& other);
  ~CDynamicValueHolder() override;

  /// Reads the record from `node`, which is the `DynValueHolder` element. Always true.
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `DynValueHolder` element to `node`. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  bool IsDynamicValueHolder() const override;

  CDynamicValueHolder& operator=(const CDynamicValueHolder& other);

  const wchar_t* GetName() const { return m_strName.c_str(); }
  void SetName(const wchar_t* name) { m_strName = name; }

 private:
  std::wstring m_strName;
};
