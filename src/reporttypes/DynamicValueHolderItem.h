#pragma once

#include "platform/Export.h"

#include <vector>

class CDynamicValueHolderAttribute;
class CDynamicValueHolderType;
namespace zebxmln {
class CXMLNode;
}

/// Configuration of one kind of dynamic value holder: the kind and its attributes, all owned.
class ZEB_EXPORT CDynamicValueHolderItem {
 public:
  CDynamicValueHolderItem();
  /// Shares kind and attributes with the source: the copy is for reading only while the source lives.
  CDynamicValueHolderItem(const CDynamicValueHolderItem& other);
  virtual ~CDynamicValueHolderItem();

  /// Reads the element's children. Attributes are appended to those that are there. Always true.
  virtual bool Load(zebxmln::CXMLNode* node);
  /// Fills `node`; an item without a kind writes an empty `Type`, which reads back as an empty kind. Always true.
  virtual bool Save(zebxmln::CXMLNode* node);

  /// As the copy constructor. What this object held is not freed.
  CDynamicValueHolderItem& operator=(const CDynamicValueHolderItem& other);

  /// The kind, null if none was read or set.
  CDynamicValueHolderType* GetDynVHType() const;
  /// Takes ownership; the former kind is not freed.
  void SetDynVHType(CDynamicValueHolderType* type);

  /// Appends and takes ownership.
  void AddDynVHAttribute(CDynamicValueHolderAttribute* attribute);
  /// The attribute at the index, which is not checked.
  CDynamicValueHolderAttribute* GetDynVHAttributeAt(int index);
  int GetDynVHAttributeCount() const;

 private:
  CDynamicValueHolderType* m_pDynVHType = nullptr;                  // owned, shared by copies
  std::vector<CDynamicValueHolderAttribute*> m_rgpDynVHAttributes;  // owned, shared by copies
};
