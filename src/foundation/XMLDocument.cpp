#include "foundation/XMLDocument.h"

#include "foundation/XMLManager.h"
#include "foundation/XMLTree.h"
#include "foundation/XMLWriter.h"
#include "platform/File.h"

#include <new>
#include <string>

namespace zebxmln {

namespace {

using zeb::FileStatus;

void CheckWritten(FileStatus status, const std::wstring& path) {
  if (status == FileStatus::Ok) return;
  const int code =
      status == FileStatus::ReadOnly ? CXMLException::TargetReadOnly : CXMLException::CannotWrite;
  throw CXMLException(
      code, L"The file '" + path + L"' cannot be written: " + zeb::DescribeFileStatus(status) + L".");
}

void SaveTree(const CXMLNode& root, const std::wstring& path) {
  zeb::ReplacingFile file;
  CheckWritten(file.Open(path), path);
  CheckWritten(zeb::WriteXML(root, [&](std::span<const std::byte> bytes) { return file.Write(bytes); }),
               path);
  CheckWritten(file.Commit(), path);
}

}  // namespace

CXMLDocument::CXMLDocument() : m_pTree(std::make_unique<zeb::XMLTree>()) {}

CXMLDocument::~CXMLDocument() = default;

void CXMLDocument::DestroyDocument() { delete this; }

void CXMLDocument::SaveDocumentToFile(const wchar_t* path, bool) {
  const std::wstring target = path == nullptr ? L"" : path;
  if (m_pTree->Root() == nullptr) {
    throw CXMLException(CXMLException::CannotWrite,
                        L"The file '" + target + L"' cannot be written: the document has no root element.");
  }
  try {
    SaveTree(*m_pTree->Root(), target);
  } catch (const std::bad_alloc&) {
    throw CXMLException(CXMLException::OutOfMemory,
                        L"There is not enough memory to write the file '" + target + L"'.");
  }
}

CXMLNode* CXMLDocument::GetRootNode() { return m_pTree->Root(); }

CXMLNode* CXMLDocument::CreateRootNode(const wchar_t* name) {
  m_pTree->SetRoot(m_pTree->MakeNode(name));
  return m_pTree->Root();
}

}  // namespace zebxmln
