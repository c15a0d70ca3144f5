#pragma once

#include "platform/Export.h"

#include <string>

namespace zebxmln {
class CXMLNode;
}

/// A value holder that a zone of a report type offers: its key, and what users see of it. Value class.
class ZEB_EXPORT CAvailableVH {
 public:
  /// Type of the value: a number that the file gives and that is passed through. The library gives its values no names.
  enum AvailableValueHolderType : int {};

  CAvailableVH();
  CAvailableVH(const CAvailableVH& other);
  virtual ~CAvailableVH();

  /// Reads the element's children: names of generation 1 below version 2, else of generation 2. Always true.
  virtual bool Load(zebxmln::CXMLNode* node);
  /// Fills `node` with the names of generation 2, whatever the version number. Always true.
  virtual bool Save(zebxmln::CXMLNode* node);

  CAvailableVH& operator=(const CAvailableVH& other);

  /// The value holder's key in the data.
  const wchar_t* GetInternalName() const;
  void SetInternalName(const wchar_t* name);
  /// The name shown to users.
  const wchar_t* GetExternalName() const;
  void SetExternalName(const wchar_t* name);
  /// The description shown to users.
  const wchar_t* GetExternalDescription() const;
  void SetExternalDescription(const wchar_t* description);
  AvailableValueHolderType GetValueHolderType() const;
  void SetValueHolderType(AvailableValueHolderType type);
  /// Generation of the file that Load reads; -1 until set, which reads generation 1.
  void SetVersionNr(int versionNr);

 private:
  std::wstring m_strInternalName;
  std::wstring m_strExternalName;
  std::wstring m_strExternalDescription;
  AvailableValueHolderType m_eValueHolderType = AvailableValueHolderType{0};  // neither read nor set
  int m_iVersionNr = -1;
};
