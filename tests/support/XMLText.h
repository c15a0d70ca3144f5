#pragma once

#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"
#include "foundation/XMLNode.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace zebtest {

/// Ends a document with its scope.
struct DocumentEnd {
  void operator()(zebxmln::CXMLDocument* document) const { document->DestroyDocument(); }
};
using DocumentPointer = std::unique_ptr<zebxmln::CXMLDocument, DocumentEnd>;

inline DocumentPointer LoadFile(const std::filesystem::path& path) {
  return DocumentPointer(zebxmln::CXMLManager::GetInstance().LoadDocument(WidePath(path).c_str(), true, false,
                                                                          nullptr, false, false));
}

/// Parses a text by way of a file.
inline DocumentPointer LoadText(std::string_view text) {
  const TempDir folder;
  WriteFile(folder.File("text.xml"), text);
  return LoadFile(folder.File("text.xml"));
}

inline DocumentPointer NewDocument() {
  return DocumentPointer(zebxmln::CXMLManager::GetInstance().CreateDocument(L"Document", nullptr));
}

/// What is written of a document, by way of a file.
inline std::string SavedText(zebxmln::CXMLDocument& document) {
  const TempDir folder;
  document.SaveDocumentToFile(folder.WideFile("text.xml").c_str(), true);
  return ReadFile(folder.File("text.xml"));
}

/// The failure of an action, as its code and message; code 0 if it succeeds.
struct XMLFailure {
  int Code = 0;
  std::wstring Message;
};

template <class Action>
XMLFailure FailureOf(Action action) {
  try {
    action();
  } catch (const zebxmln::CXMLException& exception) {
    return {exception.GetErrorCode(), exception.GetErrorMessage()};
  }
  return {};
}

/// The failure of parsing a text.
inline XMLFailure FailureOfText(std::string_view text) {
  return FailureOf([&] { LoadText(text); });
}

}  // namespace zebtest
