#pragma once

#include "platform/Export.h"

#include <string>

namespace zebxmln {
class CXMLNode;
}

/// A kind of dynamic value holder: its name and the prefix of its keys. Value class.
class ZEB_EXPORT CDynamicValueHolderType {
 public:
  CDynamicValueHolderType();
  CDynamicValueHolderType(const CDynamicValueHolderType& other);
  ~CDynamicValueHolderType();

  /// Reads the element's children. Always true.
  virtual bool Load(zebxmln::CXMLNode* node);
  /// Fills `node` with both fields. Always true.
  virtual bool Save(zebxmln::CXMLNode* node);

  CDynamicValueHolderType& operator=(const CDynamicValueHolderType& other);

  /// Name of the kind, as CDefinedDynVH::GetType.
  const wchar_t* GetName() const;
  void SetName(const wchar_t* name);
  /// What the keys of value holders of this kind begin with.
  const wchar_t* GetPrefix() const;
  void SetPrefix(const wchar_t* prefix);

 private:
  std::wstring m_strName;
  std::wstring m_strPrefix;
};
