#include "CatalogueFiles.h"

#include "Failure.h"
#include "FileCheck.h"

namespace zebreport {

namespace {

constexpr int kGenerationOfFilesWithoutNumber = 2;

/// What a file says of itself, which the library does not tell.
struct RootOfFile {
  std::wstring
      name;  ///< of the root element. The library reads any; it helps to tell files apart that gave nothing
  int generation = kGenerationOfFilesWithoutNumber;
};

RootOfFile ReadRoot(const std::wstring& file) {
  zebxmln::CXMLDocument* document =
      zebxmln::CXMLManager::GetInstance().LoadDocument(file.c_str(), true, false, nullptr, false, false);
  RootOfFile root;
  root.name = document->GetRootNode()->GetNodeName();
  zebxmln::CXMLNode* const first = document->GetRootNode()->GetFirstChildNode();
  if (first != nullptr && std::wstring(first->GetNodeName()) == L"VersionNr") {
    root.generation = StringToInt(first->GetNodeText());
  }
  document->DestroyDocument();
  return root;
}

/// Loads a file and tells its generation.
/// @param holdsSomething whether the loading has found anything
template <class Load, class HoldsSomething>
int LoadCatalogue(const std::wstring& file, const std::wstring& rootName, const std::wstring& kind, Load load,
                  HoldsSomething holdsSomething) {
  bool isReadWhole = true;
  try {
    isReadWhole = LoadsWhole(load);
  } catch (const CKXException& exception) {
    throw LibraryFailure(file, exception);
  }
  const RootOfFile root = ReadRoot(file);
  if (!holdsSomething() && root.name != rootName) {
    throw Failure(file + L": there is no " + kind + L" in it but a " + root.name + L"; name a " + kind +
                  L" file.");
  }
  if (!isReadWhole) Warn(file + L": some of its elements are not read; see zebreport check.");
  return root.generation;
}

}  // namespace

int LoadReportType(const std::wstring& file, CReportType& type) {
  return LoadCatalogue(
      file, L"ReportTypeRootElement", L"report type", [&] { type.LoadReportType(file.c_str()); },
      [&] { return type.GetReportTypeZonesCount() > 0; });
}

int LoadReportDescriptions(const std::wstring& file, CReportDescriptions& descriptions) {
  return LoadCatalogue(
      file, L"ReportDescriptionRootElement", L"report description",
      [&] { descriptions.LoadReportDescriptions(file.c_str()); },
      [&] {
        return descriptions.GetReportDescriptionsCount() > 0 || descriptions.GetDynamicVHItemCount() > 0;
      });
}

std::wstring VersionText(int versionNr, int generation) {
  return (versionNr == -1 ? L"no version" : L"version " + std::to_wstring(versionNr)) + L", generation " +
         std::to_wstring(generation);
}

}  // namespace zebreport
