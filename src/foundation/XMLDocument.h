#pragma once

#include "platform/Export.h"

#include <memory>

namespace zeb {
class XMLTree;
}

namespace zebxmln {

class CXMLNode;

/// An XML document: owns all its nodes and strings. Made by CXMLManager, ended by DestroyDocument.
class ZEB_EXPORT CXMLDocument {
 public:
  CXMLDocument(const CXMLDocument&) = delete;
  CXMLDocument& operator=(const CXMLDocument&) = delete;

  /// Ends the document and every node of it. Called exactly once, last.
  void DestroyDocument();
  /// Writes the tree as UTF-8, replacing the file in one step. The flag is accepted and ignored.
  /// @throws CXMLException CannotWrite, TargetReadOnly, OutOfMemory; the old file is then what it was
  void SaveDocumentToFile(const wchar_t* path, bool);
  /// The root element, null if the document has none yet.
  CXMLNode* GetRootNode();
  /// Makes the root element of a new document; one that is there already is replaced.
  CXMLNode* CreateRootNode(const wchar_t* name);

 private:
  friend class CXMLManager;

  CXMLDocument();
  ~CXMLDocument();

  std::unique_ptr<zeb::XMLTree> m_pTree;  // owned
};

}  // namespace zebxmln
