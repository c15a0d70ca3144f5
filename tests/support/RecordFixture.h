#pragma once

#include "foundation/IDManager.h"
#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"
#include "foundation/XMLNode.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

namespace zebtest {

/// Ends an XML document at the end of the scope.
struct DocumentEnd {
  void operator()(zebxmln::CXMLDocument* document) const { document->DestroyDocument(); }
};
using DocumentPtr = std::unique_ptr<zebxmln::CXMLDocument, DocumentEnd>;

/// An XML file as it stands in a text, without declaration, indentation and the element `Root` around it.
inline std::string CompactXML(const std::string& text) {
  std::string compact;
  bool isLineStart = true;
  for (const char c : text) {
    if (c == '\n') isLineStart = true;
    if (c == '\n' || (isLineStart && c == ' ')) continue;
    isLineStart = false;
    compact += c;
  }
  if (compact.starts_with("<?")) compact.erase(0, compact.find("?>") + 2);
  if (compact == "<Root/>") return {};
  constexpr std::string_view kOpen = "<Root>";
  constexpr std::string_view kClose = "</Root>";
  if (!compact.starts_with(kOpen) || !compact.ends_with(kClose)) return "not a record: " + compact;
  return compact.substr(kOpen.size(), compact.size() - kOpen.size() - kClose.size());
}

/// Saves an object through a real file.
/// @return what its `Save` wrote under the node that it got: `<Text><TxID>0</TxID>...</Text>`
template <class Object>
std::string SaveRecord(Object& object, CIDManager& ids) {
  const TempDir dir;
  const DocumentPtr document(zebxmln::CXMLManager::GetInstance().CreateDocument(L"Record", nullptr));
  EXPECT_TRUE(object.Save(document->CreateRootNode(L"Root"), ids));
  document->SaveDocumentToFile(dir.WideFile("record.xml").c_str(), true);
  return CompactXML(ReadFile(dir.File("record.xml")));
}

template <class Object>
std::string SaveRecord(Object& object) {
  CIDManager ids;
  return SaveRecord(object, ids);
}

/// Loads an object through a real file: its `Load` is given the one element that `record` holds.
template <class Object>
void LoadRecord(Object& object, std::string_view record, CIDManager& ids) {
  const TempDir dir;
  WriteFile(dir.File("record.xml"), "<Root>" + std::string(record) + "</Root>");
  const DocumentPtr document(zebxmln::CXMLManager::GetInstance().LoadDocument(
      dir.WideFile("record.xml").c_str(), true, false, nullptr, false, false));
  EXPECT_TRUE(object.Load(document->GetRootNode()->GetFirstChildNode(), ids));
}

template <class Object>
void LoadRecord(Object& object, std::string_view record) {
  CIDManager ids;
  LoadRecord(object, record, ids);
}

}  // namespace zebtest
