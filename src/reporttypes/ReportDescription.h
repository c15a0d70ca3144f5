#pragma once

#include "platform/Export.h"

#include <string>

namespace zebxmln {
class CXMLNode;
}

/// One entry of a report catalogue: a report's type, name and file. Value class.
class ZEB_EXPORT CReportDescription {
 public:
  CReportDescription();
  CReportDescription(const CReportDescription& other);
  virtual ~CReportDescription();

  /// Reads the element's children; below version 2 the folder of the file is passed over. Always true.
  virtual bool Load(zebxmln::CXMLNode* node);
  /// Fills `node` with the names of generation 2, whatever the version number. Always true.
  virtual bool Save(zebxmln::CXMLNode* node);

  CReportDescription& operator=(const CReportDescription& other);

  const wchar_t* GetReportType() const;
  void SetReportType(const wchar_t* reportType);
  const wchar_t* GetReportName() const;
  void SetReportName(const wchar_t* reportName);
  /// The report's file, as the catalogue names it.
  const wchar_t* GetFileName() const;
  void SetFileName(const wchar_t* fileName);
  /// Generation of the file that Load reads; -1 until set, which reads generation 1.
  void SetVersionNr(int versionNr);

 private:
  int m_iVersionNr = -1;
  std::wstring m_strReportType;
  std::wstring m_strReportName;
  std::wstring m_strFileName;
};
