#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"
#include "foundation/XMLNode.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using zebtest::TempDir;
using zebxmln::CXMLDocument;
using zebxmln::CXMLManager;
using zebxmln::CXMLNode;

/// Copies a tree through the public operations, without recursion.
void CopyTree(CXMLNode* from, CXMLNode* to) {
  std::vector<std::pair<CXMLNode*, CXMLNode*>> pending = {{from, to}};
  while (!pending.empty()) {
    const auto [source, target] = pending.back();
    pending.pop_back();
    target->SetNodeText(source->GetNodeText());
    for (CXMLNode** child = source->GetChildNodes(); *child != nullptr; ++child) {
      pending.emplace_back(*child, target->AddChildNode((*child)->GetNodeName(), 0));
    }
  }
}

class XMLExamples : public testing::TestWithParam<const char*> {
 protected:
  std::filesystem::path Example() const { return std::filesystem::path(ZEB_EXAMPLES) / GetParam(); }
  CXMLDocument* Load() const {
    return CXMLManager::GetInstance().LoadDocument(Example().wstring().c_str(), true, false, nullptr, false,
                                                   false);
  }

  TempDir m_Folder;
};

TEST_P(XMLExamples, AreWrittenAsTheyWereRead) {
  CXMLDocument* document = Load();
  document->SaveDocumentToFile(m_Folder.WideFile("copy.xml").c_str(), true);
  document->DestroyDocument();
  EXPECT_EQ(zebtest::ReadFile(m_Folder.File("copy.xml")), zebtest::ReadFile(Example()));
}

TEST_P(XMLExamples, AreReproducedByACopyOfTheTree) {
  CXMLDocument* document = Load();
  CXMLDocument* copy = CXMLManager::GetInstance().CreateDocument(L"Copy", nullptr);
  CopyTree(document->GetRootNode(), copy->CreateRootNode(document->GetRootNode()->GetNodeName()));
  document->DestroyDocument();
  copy->SaveDocumentToFile(m_Folder.WideFile("copy.xml").c_str(), true);
  copy->DestroyDocument();
  EXPECT_EQ(zebtest::ReadFile(m_Folder.File("copy.xml")), zebtest::ReadFile(Example()));
}

INSTANTIATE_TEST_SUITE_P(All, XMLExamples,
                         testing::Values("catalogue/descriptions.xml", "catalogue/descriptions_v1.xml",
                                         "catalogue/reporttype.xml", "catalogue/reporttype_v1.xml",
                                         "invoice/layout.xml", "invoice/report.xml", "legacy/layout.xml",
                                         "legacy/layout_v1.xml", "legacy/report.xml", "statement/layout.xml",
                                         "statement/report.xml"));

}  // namespace
