#pragma once

#include "platform/Export.h"

namespace zebxmln {

class CXMLBinNode;

/// An element: a name and either child elements or a text. Belongs to its document and ends with it,
/// and so does every pointer that its operations give.
class ZEB_EXPORT CXMLNode {
 public:
  CXMLNode(const CXMLNode&) = delete;
  CXMLNode& operator=(const CXMLNode&) = delete;
  virtual ~CXMLNode();

  const wchar_t* GetNodeName();
  /// The child elements in file order, closed by a null pointer; never null itself.
  CXMLNode** GetChildNodes();
  /// The first child element, null if there is none.
  CXMLNode* GetFirstChildNode();
  /// Appends a new child element. The second argument is accepted and ignored.
  CXMLNode* AddChildNode(const wchar_t* name, int);
  /// Gives a freshly added element binary content and returns the holder of that content.
  CXMLBinNode* CreateBinNode();
  /// Sets an attribute. Attributes are written, never read.
  void SetNodeAttribute(const wchar_t* name, const wchar_t* value);
  /// The element's text; never null.
  const wchar_t* GetNodeText();
  /// Sets the element's text to a copy of `text`; any character is allowed.
  void SetNodeText(const wchar_t* text);
};

/// Binary content of an element: the element's first child, reached with a run-time cast.
class ZEB_EXPORT CXMLBinNode : public CXMLNode {
 public:
  /// Stores a copy of `length` bytes.
  void SetBinaryData(const void* data, int length);
  /// Gives the bytes, which the document keeps, and their number. Content that is no Base64 gives null and 0.
  void GetBinaryData(void** data, int* length);
};

}  // namespace zebxmln
