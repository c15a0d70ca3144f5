// The XML facility alone: a report of 100,000 objects is parsed and saved, beside libxml2's tree and pugixml.
//
// Saving flushes the file to the disk and replaces the old one in one step; the peers do neither, so compare the CPU
// times.

#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"
#include "foundation/XMLNode.h"
#include "support/Libraries.h"

#include <cwchar>
#include <filesystem>
#include <memory>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// Asks for every text, as a reader of records does.
std::size_t WalkTexts(zebxmln::CXMLDocument& document) {
  std::vector<zebxmln::CXMLNode*> pending = {document.GetRootNode()};
  std::size_t characters = 0;
  while (!pending.empty()) {
    zebxmln::CXMLNode* node = pending.back();
    pending.pop_back();
    characters += std::wcslen(node->GetNodeText());
    for (zebxmln::CXMLNode** child = node->GetChildNodes(); *child != nullptr; ++child)
      pending.push_back(*child);
  }
  return characters;
}

zebbench::Library Zeb() {
  using zebxmln::CXMLDocument;
  return {"zeb",
          [](const fs::path& path) {
            CXMLDocument* document = zebxmln::CXMLManager::GetInstance().LoadDocument(
                path.wstring().c_str(), true, false, nullptr, false, false);
            return std::shared_ptr<void>(
                document, [](void* loaded) { static_cast<CXMLDocument*>(loaded)->DestroyDocument(); });
          },
          [](void* document) { return WalkTexts(*static_cast<CXMLDocument*>(document)); },
          [](void* document, const fs::path& path) {
            static_cast<CXMLDocument*>(document)->SaveDocumentToFile(path.wstring().c_str(), true);
          }};
}

}  // namespace

int main(int argc, char** argv) { return zebbench::MeasureLibraries(argc, argv, Zeb(), {100000}); }
