#pragma once

#include "platform/Export.h"

/// Base of all exceptions of the print system: a number and a message from the error catalogue.
/// Thrown and copied by value; raised through CKXExceptionHandler by key.
class ZEB_EXPORT CKXException {
 public:
  /// @param errorNr the catalogue's number; -1 if the catalogue does not know the key
  /// @param errorMessage the text; at most the first 4095 characters are kept
  CKXException(int errorNr, const wchar_t* errorMessage);
  CKXException(const CKXException& other);
  virtual ~CKXException();
  CKXException& operator=(const CKXException& other);

  int GetErrorNr() const;
  /// The message; the pointer is valid as long as this object.
  const wchar_t* GetErrorMessage() const;

 private:
  int m_iErrorNr;
  wchar_t m_szErrorMessage[4096];
};

/// Family "MemoryException".
class ZEB_EXPORT CKXMemoryException : public CKXException {
 public:
  CKXMemoryException(int errorNr, const wchar_t* errorMessage);
};

/// Family "FileException".
class ZEB_EXPORT CKXFileException : public CKXException {
 public:
  CKXFileException(int errorNr, const wchar_t* errorMessage);
};

/// Family "ReportDocumentException".
class ZEB_EXPORT CKXReportDocumentException : public CKXException {
 public:
  CKXReportDocumentException(int errorNr, const wchar_t* errorMessage);
};

/// Family "PrintGeneratorException".
class ZEB_EXPORT CKXPrintGeneratorException : public CKXException {
 public:
  CKXPrintGeneratorException(int errorNr, const wchar_t* errorMessage);
};

/// Family "PDFLibException".
class ZEB_EXPORT CKXPDFLibException : public CKXException {
 public:
  CKXPDFLibException(int errorNr, const wchar_t* errorMessage);
};

/// Family "LayouterException".
class ZEB_EXPORT CKXLayouterException : public CKXException {
 public:
  CKXLayouterException(int errorNr, const wchar_t* errorMessage);
};

/// Family "DOMException".
class ZEB_EXPORT CKXDOMException : public CKXException {
 public:
  CKXDOMException(int errorNr, const wchar_t* errorMessage);
};

/// Family "XMLException". Carries the number and message of a caught zebxmln::CXMLException.
class ZEB_EXPORT CKXXMLException : public CKXException {
 public:
  CKXXMLException(int errorNr, const wchar_t* errorMessage);
};

/// Family "ParserException": every error of the formula language.
class ZEB_EXPORT CKXParserException : public CKXException {
 public:
  CKXParserException(int errorNr, const wchar_t* errorMessage);
};
