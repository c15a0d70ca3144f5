#include "foundation/XMLFile.h"

#include "foundation/KXException.h"

namespace zeb {

XMLFile XMLFile::Load(const wchar_t* path) {
  return XMLFile(zebxmln::CXMLManager::GetInstance().LoadDocument(path, true, false, nullptr, false, false));
}

XMLFile XMLFile::Create(const wchar_t* documentName, const wchar_t* rootName) {
  XMLFile file(zebxmln::CXMLManager::GetInstance().CreateDocument(documentName, nullptr));
  file.m_pDocument->CreateRootNode(rootName);
  return file;
}

void ThrowAsKXException(const zebxmln::CXMLException& exception) {
  throw CKXXMLException(exception.GetErrorCode(), exception.GetErrorMessage());
}

}  // namespace zeb
