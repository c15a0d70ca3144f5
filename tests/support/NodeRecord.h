#pragma once

#include "support/RecordFixture.h"

#include <string>
#include <string_view>

namespace zebtest {

/// Loads a record without references from the children of its element, through a real file.
template <class Object>
void LoadNode(Object& object, std::string_view children) {
  const TempDir dir;
  WriteFile(dir.File("record.xml"), "<Root>" + std::string(children) + "</Root>");
  const DocumentPtr document(zebxmln::CXMLManager::GetInstance().LoadDocument(
      dir.WideFile("record.xml").c_str(), true, false, nullptr, false, false));
  EXPECT_TRUE(object.Load(document->GetRootNode()));
}

/// The children that a record without references writes into its element, through a real file.
template <class Object>
std::string SaveNode(Object& object) {
  const TempDir dir;
  const DocumentPtr document(zebxmln::CXMLManager::GetInstance().CreateDocument(L"Record", nullptr));
  EXPECT_TRUE(object.Save(document->CreateRootNode(L"Root")));
  document->SaveDocumentToFile(dir.WideFile("record.xml").c_str(), true);
  return CompactXML(ReadFile(dir.File("record.xml")));
}

}  // namespace zebtest
