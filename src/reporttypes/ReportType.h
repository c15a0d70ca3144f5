#pragma once

#include "platform/Export.h"

#include <string>
#include <vector>

class CReportTypeZone;

/// A report type: what a kind of report can contain, zone by zone, whatever the layout of any one report.
/// Owns its zones. The file has two generations of element names: both are read, the newer one is written.
class ZEB_EXPORT CReportType {
 public:
  CReportType();
  /// Copies the texts and shares the zones: the copy is for reading only while the source lives.
  CReportType(const CReportType& other);
  virtual ~CReportType();
  /// As the copy constructor. What this object held is not freed.
  CReportType& operator=(const CReportType& other);

  /// Reads a report type file. Zones are appended to those that are there.
  /// @throws CKXXMLException the file is missing or malformed
  void LoadReportType(const wchar_t* fileName);
  /// Writes a report type file.
  // Fixed behaviour: the version number is written as it was read, though the names are always the newest.
  /// @throws CKXXMLException the file cannot be written
  void SaveReportType(const wchar_t* fileName);

  /// Appends and takes ownership.
  void AddReportTypeZone(CReportTypeZone* zone);
  /// The zone at the index, which is not checked.
  CReportTypeZone* GetReportTypeZoneAt(int index) const;
  int GetReportTypeZonesCount() const;

  /// The type's name.
  const wchar_t* GetReportType() const;
  void SetReportType(const wchar_t* reportType);
  /// The type's own version, -1 if the file names none.
  int GetReportVersionNr() const;

 private:
  void Load(const wchar_t* fileName);
  void Save(const wchar_t* fileName) const;

  std::vector<CReportTypeZone*> m_rgpReportTypeZones;  // owned, shared by copies
  std::wstring m_strFileName;
  std::wstring m_strReportType;
  int m_iVersionNr = 2;
  int m_iReportVersionNr = -1;
};
