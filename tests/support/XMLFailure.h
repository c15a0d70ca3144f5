#pragma once

#include "foundation/KXException.h"
#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"

#include <string>

namespace zebtest {

/// A failure of reading or writing a file, as its number and message; number 0 if there was none.
struct FileFailure {
  int Number = 0;
  std::wstring Message;

  bool operator==(const FileFailure&) const = default;
};

/// How a class of the library raises it.
template <class Action>
FileFailure RaisedFailure(Action act) {
  try {
    act();
  } catch (const CKXXMLException& exception) {
    return {exception.GetErrorNr(), exception.GetErrorMessage()};
  }
  return {};
}

/// How the XML facility tells it.
template <class Action>
FileFailure FacilityFailure(Action act) {
  try {
    act();
  } catch (const zebxmln::CXMLException& exception) {
    return {exception.GetErrorCode(), exception.GetErrorMessage()};
  }
  return {};
}

inline FileFailure FailureOfLoading(const std::wstring& path) {
  return FacilityFailure([&] {
    zebxmln::CXMLManager::GetInstance()
        .LoadDocument(path.c_str(), true, false, nullptr, false, false)
        ->DestroyDocument();
  });
}

inline FileFailure FailureOfSaving(const wchar_t* rootName, const std::wstring& path) {
  zebxmln::CXMLDocument* document = zebxmln::CXMLManager::GetInstance().CreateDocument(rootName, nullptr);
  document->CreateRootNode(rootName);
  const FileFailure failure = FacilityFailure([&] { document->SaveDocumentToFile(path.c_str(), true); });
  document->DestroyDocument();
  return failure;
}

}  // namespace zebtest
