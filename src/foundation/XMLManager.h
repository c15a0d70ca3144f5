#pragma once

#include "platform/Export.h"

#include <string>

// The XML facility: a tree of elements with a name and a text, read from and written to files.
//
// A document owns every node and string that is obtained from it; they end with DestroyDocument.
// All failures are CXMLException.
namespace zebxmln {

class CXMLDocument;
class CXMLNode;
class CXMLBinNode;

/// A failure of the XML facility. Caught by reference.
class ZEB_EXPORT CXMLException {
 public:
  /// What went wrong; the numbers are stable.
  enum ErrorCode : int {
    CannotOpen = 1,           ///< the file is missing or cannot be read
    NotWellFormed = 2,        ///< the message holds line and column
    CannotWrite = 3,          ///< the file cannot be written; the old one is untouched
    TargetReadOnly = 4,       ///< the file to be replaced has no write permission
    UnsupportedEncoding = 5,  ///< the declared encoding is not known
    OutOfMemory = 6,
  };

  CXMLException(int errorCode, std::wstring errorMessage);
  virtual ~CXMLException();
  CXMLException(const CXMLException&);
  CXMLException& operator=(const CXMLException&);

  /// One English sentence with the path; valid as long as this object.
  const wchar_t* GetErrorMessage() const;
  /// One of ErrorCode.
  int GetErrorCode() const;

 private:
  int m_iErrorCode;
  std::wstring m_strErrorMessage;
};

/// Makes documents: from a file, or empty. One object for the process.
class ZEB_EXPORT CXMLManager {
 public:
  static CXMLManager& GetInstance();

  /// Parses a file. Only the path counts; the other arguments are accepted and ignored.
  /// @return the document; the caller ends it with CXMLDocument::DestroyDocument
  /// @throws CXMLException CannotOpen, NotWellFormed, UnsupportedEncoding, OutOfMemory
  CXMLDocument* LoadDocument(const wchar_t* path, bool, bool, const wchar_t*, bool, bool);

  /// Makes an empty document. The name is a document name, not that of the root element.
  /// @return the document; the caller ends it with CXMLDocument::DestroyDocument
  CXMLDocument* CreateDocument(const wchar_t* name, const wchar_t*);

  CXMLManager(const CXMLManager&) = delete;
  CXMLManager& operator=(const CXMLManager&) = delete;

 private:
  CXMLManager() = default;
};

}  // namespace zebxmln
