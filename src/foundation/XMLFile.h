#pragma once

#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"

#include <memory>

namespace zeb {

/// An XML document that ends with its scope, on whichever way the scope is left.
class XMLFile {
 public:
  /// Parses the file. Throws zebxmln::CXMLException.
  static XMLFile Load(const wchar_t* path);
  /// Makes an empty document with a root element.
  static XMLFile Create(const wchar_t* documentName, const wchar_t* rootName);

  zebxmln::CXMLNode* Root() const { return m_pDocument->GetRootNode(); }
  /// Replaces the file. Throws zebxmln::CXMLException.
  void Save(const wchar_t* path) { m_pDocument->SaveDocumentToFile(path, true); }

 private:
  struct Destroy {
    void operator()(zebxmln::CXMLDocument* document) const;
  };

  explicit XMLFile(zebxmln::CXMLDocument* document) : m_pDocument(document) {}

  std::unique_ptr<zebxmln::CXMLDocument, Destroy> m_pDocument;
};

/// Raises a failure of the XML facility to a caller of the library: a CKXXMLException with its number and message.
[[noreturn]] void ThrowAsKXException(const zebxmln::CXMLException& exception);

}  // namespace zeb
