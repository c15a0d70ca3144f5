#include "foundation/XMLFile.h"

#include "foundation/KXException.h"
#include "foundation/ReadingTrace.h"

namespace zeb {

XMLFile XMLFile::Load(const wchar_t* path) {
  XMLFile file(zebxmln::CXMLManager::GetInstance().LoadDocument(path, true, false, nullptr, false, false));
  if (ReadingTrace* trace = ReadingTrace::Active()) trace->BeginDocument(file.Root());
  return file;
}

XMLFile XMLFile::Create(const wchar_t* documentName, const wchar_t* rootName) {
  XMLFile file(zebxmln::CXMLManager::GetInstance().CreateDocument(documentName, nullptr));
  file.m_pDocument->CreateRootNode(rootName);
  return file;
}

void XMLFile::Destroy::operator()(zebxmln::CXMLDocument* document) const {
  if (ReadingTrace* trace = ReadingTrace::Active()) trace->EndDocument(document->GetRootNode());
  document->DestroyDocument();
}

void ThrowAsKXException(const zebxmln::CXMLException& exception) {
  throw CKXXMLException(exception.GetErrorCode(), exception.GetErrorMessage());
}

}  // namespace zeb
