#pragma once

#include "platform/Export.h"

#include <string>

namespace zebxmln {
class CXMLNode;
}
class CIDManager;

/// A dynamic field that a report defines: its name and the name of its kind.
class ZEB_EXPORT CDefinedDynVH {
 public:
  CDefinedDynVH();
  CDefinedDynVH(const CDefinedDynVH& other);
  virtual ~CDefinedDynVH();

  /// Reads the record from `node`, which is the `DefinedDynVH` element. Always true.
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& idManager);
  /// Adds a `DefinedDynVH` element to `node`. Always true.
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& idManager);

  CDefinedDynVH& operator=(const CDefinedDynVH& other);

  const wchar_t* GetDynVHName() const { return m_strName.c_str(); }
  void SetDynVHName(const wchar_t* name) { m_strName = name; }
  const wchar_t* GetType() const { return m_strType.c_str(); }
  void SetType(const wchar_t* type) { m_strType = type; }

 private:
  std::wstring m_strName;
  std::wstring m_strType;
};
