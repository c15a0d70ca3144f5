#pragma once

#include "platform/Export.h"

#include <string>
#include <vector>

class CAvailableVH;
namespace zebxmln {
class CXMLNode;
}

/// A zone that reports of a type may contain: its names and the value holders that it offers, which it owns.
class ZEB_EXPORT CReportTypeZone {
 public:
  CReportTypeZone();
  /// Copies the texts and shares the value holders: the copy is for reading only while the source lives.
  CReportTypeZone(const CReportTypeZone& other);
  virtual ~CReportTypeZone();

  /// Reads the element's children: names of generation 1 below version 2, else of generation 2. Value holders
  /// are appended to those that are there. Always true.
  virtual bool Load(zebxmln::CXMLNode* node);
  /// Fills `node` with the names of generation 2, whatever the version number. Always true.
  virtual bool Save(zebxmln::CXMLNode* node);

  /// As the copy constructor. What this object held is not freed.
  CReportTypeZone& operator=(const CReportTypeZone& other);

  /// The zone's name in the system; CReportZone::GetInternalReportZoneName of reports of this type.
  const wchar_t* GetInternalName() const;
  void SetInternalName(const wchar_t* name);
  /// The name shown to users.
  const wchar_t* GetExternalName() const;
  void SetExternalName(const wchar_t* name);
  /// The description shown to users.
  const wchar_t* GetExternalDescription() const;
  void SetExternalDescription(const wchar_t* description);
  bool GetFooterZone() const;
  void SetFooterZone(bool footerZone);

  /// Appends another internal name that means this zone. An equal one may be there already.
  void AddEquivalentInternalName(const wchar_t* name);
  /// The name at the index, which is not checked.
  const wchar_t* GetEquivalentInternalNameAt(int index) const;
  int GetEquivalentInternalNameCount() const;

  /// Appends and takes ownership.
  void AddAvailableValueHolder(CAvailableVH* valueHolder);
  /// The value holder at the index, which is not checked.
  CAvailableVH* GetAvailableValueHolderAt(int index) const;
  int GetAvailableValueHolderCount() const;

  /// Generation of the file that Load reads; -1 until set, which reads generation 1.
  void SetVersionNr(int versionNr);

 private:
  void LoadValueHolder(zebxmln::CXMLNode* node);

  std::wstring m_strInternalName;
  std::vector<std::wstring> m_rgstrEquivalentInternalNames;
  std::wstring m_strExternalName;
  std::wstring m_strExternalDescription;
  std::vector<CAvailableVH*> m_rgpAvailableValueHolders;  // owned, shared by copies
  int m_iVersionNr = -1;
  bool m_bFooterZone = false;
};
