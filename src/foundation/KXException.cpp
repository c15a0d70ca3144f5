#include "foundation/KXException.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

CKXException::CKXException(int errorNr, const wchar_t* errorMessage)
    : m_iErrorNr(errorNr), m_szErrorMessage{} {
  const std::size_t length = std::min(std::wcslen(errorMessage), std::size(m_szErrorMessage) - 1);
  std::copy_n(errorMessage, length, m_szErrorMessage);
}

CKXException::CKXException(const CKXException& other) = default;
CKXException::~CKXException() = default;
CKXException& CKXException::operator=(const CKXException& other) = default;

int CKXException::GetErrorNr() const { return m_iErrorNr; }

const wchar_t* CKXException::GetErrorMessage() const { return m_szErrorMessage; }

CKXMemoryException::CKXMemoryException(int errorNr, const wchar_t* errorMessage)
    : CKXException(errorNr, errorMessage) {}

CKXFileException::CKXFileException(int errorNr, const wchar_t* errorMessage)
    : CKXException(errorNr, errorMessage) {}

CKXReportDocumentException::CKXReportDocumentException(int errorNr, const wchar_t* errorMessage)
    : CKXException(errorNr, errorMessage) {}

CKXPrintGeneratorException::CKXPrintGeneratorException(int errorNr, const wchar_t* errorMessage)
    : CKXException(errorNr, errorMessage) {}

CKXPDFLibException::CKXPDFLibException(int errorNr, const wchar_t* errorMessage)
    : CKXException(errorNr, errorMessage) {}

CKXLayouterException::CKXLayouterException(int errorNr, const wchar_t* errorMessage)
    : CKXException(errorNr, errorMessage) {}

CKXDOMException::CKXDOMException(int errorNr, const wchar_t* errorMessage)
    : CKXException(errorNr, errorMessage) {}

CKXXMLException::CKXXMLException(int errorNr, const wchar_t* errorMessage)
    : CKXException(errorNr, errorMessage) {}

CKXParserException::CKXParserException(int errorNr, const wchar_t* errorMessage)
    : CKXException(errorNr, errorMessage) {}
