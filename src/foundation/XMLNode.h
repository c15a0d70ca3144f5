#pragma once

#include "platform/Export.h"

namespace zeb {
struct XMLName;
class XMLTree;
}  // namespace zeb

namespace zebxmln {

class CXMLBinNode;

/// An element: a name and either child elements or a text. Belongs to its document and ends with it,
/// and so does every pointer that its operations give. Made by CXMLDocument and by AddChildNode only.
class ZEB_EXPORT CXMLNode {
 public:
  CXMLNode(const CXMLNode&) = delete;
  CXMLNode& operator=(const CXMLNode&) = delete;
  virtual ~CXMLNode();

  const wchar_t* GetNodeName();
  /// The child elements in file order, closed by a null pointer; never null itself. AddChildNode may move the list:
  /// an array that was taken before then keeps the children that it had.
  CXMLNode** GetChildNodes();
  /// The first child element, null if there is none.
  CXMLNode* GetFirstChildNode();
  /// Appends a new child element; a text that the element had is dropped. The second argument is accepted and ignored.
  /// @param name an XML name; "BinaryData" makes a holder of binary content
  CXMLNode* AddChildNode(const wchar_t* name, int);
  /// Gives a freshly added element binary content and returns the holder of that content: its only child
  /// `BinaryData`.
  CXMLBinNode* CreateBinNode();
  /// Sets an attribute; one of the same name is replaced. Attributes are written, never read.
  void SetNodeAttribute(const wchar_t* name, const wchar_t* value);
  /// The element's text, to its last blank; never null. Empty for an element with child elements.
  const wchar_t* GetNodeText();
  /// Sets the element's text to a copy of `text`; any character is allowed, and null counts as empty. Nothing happens
  /// to an element with child elements.
  void SetNodeText(const wchar_t* text);

 protected:
  CXMLNode();

 private:
  friend class zeb::XMLTree;

  /// What stands in an element.
  enum class Content : unsigned char {
    None,
    Children,       ///< an array of the very size
    GrownChildren,  ///< an array with room, see zeb::XMLTree
    Utf8Text,       ///< text that nobody has asked for as wide characters
    WideText,
  };

  const zeb::XMLName* m_pName = nullptr;  // observer: belongs to the document
  union {
    CXMLNode** m_ppChildren;  // observer: belongs to the document, as all below; closed by null
    const char* m_pUtf8;
    const wchar_t* m_pWide;  // terminated
  };
  unsigned int m_uiCount = 0;   // of children, or of characters in the text
  unsigned int m_uiLine = 0;    // of the start tag, from 1; 0 if the element was not read
  unsigned int m_uiColumn = 0;  // of the start tag, in characters from 1
  Content m_Content = Content::None;
  bool m_bHasAttributes = false;
};

/// Binary content of an element: the element's first child, reached with a run-time cast. Its text is Base64.
class ZEB_EXPORT CXMLBinNode : public CXMLNode {
 public:
  /// Stores a copy of `length` bytes.
  void SetBinaryData(const void* data, int length);
  /// Gives the bytes, which the document keeps, and their number. No content, and content that is no Base64, give null
  /// and 0.
  void GetBinaryData(void** data, int* length);

 private:
  friend class zeb::XMLTree;

  CXMLBinNode();

  void* m_pData = nullptr;  // observer: belongs to the document
  int m_iLength = 0;
  bool m_bDecoded = false;  // whether the two above are those of the text
};

}  // namespace zebxmln
