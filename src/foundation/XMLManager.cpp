#include "foundation/XMLManager.h"

#include "foundation/XMLDocument.h"
#include "foundation/XMLParser.h"
#include "foundation/XMLTree.h"
#include "platform/File.h"

#include <cstddef>
#include <memory>
#include <new>
#include <span>
#include <utility>

namespace zebxmln {

using zeb::FileStatus;

CXMLException::CXMLException(int errorCode, std::wstring errorMessage)
    : m_iErrorCode(errorCode), m_strErrorMessage(std::move(errorMessage)) {}

CXMLException::~CXMLException() = default;
CXMLException::CXMLException(const CXMLException&) = default;
CXMLException& CXMLException::operator=(const CXMLException&) = default;

const wchar_t* CXMLException::GetErrorMessage() const { return m_strErrorMessage.c_str(); }

int CXMLException::GetErrorCode() const { return m_iErrorCode; }

CXMLManager& CXMLManager::GetInstance() {
  static CXMLManager s_Manager;
  return s_Manager;
}

CXMLDocument* CXMLManager::LoadDocument(const wchar_t* path, bool, bool, const wchar_t*, bool, bool) {
  const std::wstring source = path == nullptr ? L"" : path;
  zeb::InputFile file;
  const FileStatus status = file.Open(source);
  if (status != FileStatus::Ok) {
    throw CXMLException(CXMLException::CannotOpen, L"The file '" + source + L"' cannot be opened: " +
                                                       zeb::DescribeFileStatus(status) + L".");
  }
  const auto destroy = [](CXMLDocument* document) { document->DestroyDocument(); };
  try {
    std::unique_ptr<CXMLDocument, decltype(destroy)> document(new CXMLDocument, destroy);
    const auto read = [&](std::span<std::byte> buffer, std::size_t& count) {
      return file.Read(buffer, count);
    };
    zeb::ParseXML(read, source, *document->m_pTree);
    return document.release();
  } catch (const std::bad_alloc&) {
    throw CXMLException(CXMLException::OutOfMemory,
                        L"There is not enough memory to read the file '" + source + L"'.");
  }
}

CXMLDocument* CXMLManager::CreateDocument(const wchar_t* /*name*/, const wchar_t*) {
  return new CXMLDocument;
}

}  // namespace zebxmln
