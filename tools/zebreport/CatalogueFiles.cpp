#include "CatalogueFiles.h"

#include "Failure.h"

namespace zebreport {

namespace {

/// The name of a file's root element. The library reads any; it helps to tell files apart that gave nothing.
std::wstring RootName(const std::wstring& file) {
  zebxmln::CXMLDocument* document =
      zebxmln::CXMLManager::GetInstance().LoadDocument(file.c_str(), true, false, nullptr, false, false);
  std::wstring name = document->GetRootNode()->GetNodeName();
  document->DestroyDocument();
  return name;
}

void RequireRoot(const std::wstring& file, const std::wstring& root, const std::wstring& kind) {
  const std::wstring name = RootName(file);
  if (name == root) return;
  throw Failure(file + L": there is no " + kind + L" in it but a " + name + L"; name a " + kind + L" file.");
}

}  // namespace

void LoadReportType(const std::wstring& file, CReportType& type) {
  try {
    type.LoadReportType(file.c_str());
  } catch (const CKXException& exception) {
    throw LibraryFailure(file, exception);
  }
  if (type.GetReportTypeZonesCount() == 0) RequireRoot(file, L"ReportTypeRootElement", L"report type");
}

void LoadReportDescriptions(const std::wstring& file, CReportDescriptions& descriptions) {
  try {
    descriptions.LoadReportDescriptions(file.c_str());
  } catch (const CKXException& exception) {
    throw LibraryFailure(file, exception);
  }
  if (descriptions.GetReportDescriptionsCount() == 0 && descriptions.GetDynamicVHItemCount() == 0) {
    RequireRoot(file, L"ReportDescriptionRootElement", L"report description");
  }
}

}  // namespace zebreport
