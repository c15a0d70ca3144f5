#pragma once

#include "platform/Export.h"

#include <string>

namespace zebxmln {
class CXMLNode;
}

/// An attribute of a kind of dynamic value holder. Value class.
class ZEB_EXPORT CDynamicValueHolderAttribute {
 public:
  CDynamicValueHolderAttribute();
  CDynamicValueHolderAttribute(const CDynamicValueHolderAttribute& other);
  ~CDynamicValueHolderAttribute();

  /// Reads the element's children. Always true.
  virtual bool Load(zebxmln::CXMLNode* node);
  /// Fills `node` with both fields. Always true.
  virtual bool Save(zebxmln::CXMLNode* node);

  CDynamicValueHolderAttribute& operator=(const CDynamicValueHolderAttribute& other);

  /// Key of the attribute.
  const wchar_t* GetInternalKey() const;
  void SetInternalKey(const wchar_t* internalKey);
  /// The name shown to users.
  const wchar_t* GetName() const;
  void SetName(const wchar_t* name);

 private:
  std::wstring m_strInternalKey;
  std::wstring m_strName;
};
