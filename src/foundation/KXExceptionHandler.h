#pragma once

#include "platform/Export.h"

#include <map>
#include <string>

namespace zebxmln {
class CXMLNode;
}

/// Raises the system's failures by key. The catalogue file "KXErrorMessages.xml" says for each key its family
/// (which decides the exception's class), its number and its message; without an entry the exception is a plain
/// CKXException with number -1. One object for the process, without a lock.
class ZEB_EXPORT CKXExceptionHandler {
 public:
  /// The one handler, made at the first call.
  static CKXExceptionHandler& GetInstance();
  virtual ~CKXExceptionHandler();
  CKXExceptionHandler(const CKXExceptionHandler& other) = delete;
  CKXExceptionHandler& operator=(const CKXExceptionHandler& other) = delete;

  /// Sets the folder of the catalogue (a backslash is appended unless it ends in one) and reads it at once.
  void SetExceptionPathName(const wchar_t* path);
  /// The folder of the catalogue, with a backslash at its end once set.
  const wchar_t* GetExceptionNamePath() const;
  /// Reads a catalogue file. Entries that are known already stay; a file that cannot be read changes nothing more.
  void ReadExceptions(const wchar_t* fileName);

  /// Throws the exception of the key. Reads the catalogue first if no reading has succeeded yet.
  void ThrowException(const wchar_t* key);
  /// As above; the message is the catalogue's, a line feed and `additionalText`.
  void ThrowException(const wchar_t* key, const wchar_t* additionalText);

 protected:
  CKXExceptionHandler();

  /// The catalogue by key. A null entry stands for a key that raises nothing.
  struct ExceptionEntry;
  std::map<std::wstring, ExceptionEntry*> m_rgpExceptions;  // owned

 private:
  void ReadCatalogueOfPath();
  void ReadFamilies(zebxmln::CXMLNode* root);
  void AddEntry(const std::wstring& key, const ExceptionEntry& entry);
  void Throw(const wchar_t* key, const wchar_t* additionalText);

  std::wstring m_strFileName;
  std::wstring m_strExceptionPath;
  int m_iVersionNr = 1;
  bool m_bRead = false;
};
