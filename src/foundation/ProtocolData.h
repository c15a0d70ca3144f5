#pragma once

#include "platform/Export.h"

#include <string>
#include <vector>

class CLogEntry;

/// The record of one run of the print system: an overall result, which is a success to begin with, and log lines.
/// A caller fills it and writes it to a file for whoever started the run. Owns its log entries. A copy shares them
/// with its source: only one of the two may be destroyed.
class ZEB_EXPORT CProtocolData {
 public:
  CProtocolData();
  CProtocolData(const CProtocolData& other);
  virtual ~CProtocolData();
  CProtocolData& operator=(const CProtocolData& other);

  /// Appends a log line. Leaves the result as it is.
  void AddLogEntry(int level, const wchar_t* text);
  int GetLogEntryCount() const;
  /// @param index from 0 to GetLogEntryCount() - 1; not checked
  CLogEntry* GetLogEntryAt(int index) const;

  /// Replaces number and message of the result. Leaves the log lines as they are.
  void SetError(int errorNr, const wchar_t* errorMessage);
  /// 0 means no error.
  int GetErrorNr() const;
  /// The message; the pointer is valid until the next SetError.
  const wchar_t* GetErrorMessage() const;

  /// Writes the record to an XML file, replacing it.
  /// @throws CKXXMLException with the number and message of the XML facility if the file cannot be written
  void SaveProtocolData(const wchar_t* fileName);

 private:
  int m_iErrorNr = 0;
  std::wstring m_strErrorMessage;
  std::vector<CLogEntry*> m_rgpLogEntries;  // owned; shared by copies
  int m_iVersionNr = 1;
};
