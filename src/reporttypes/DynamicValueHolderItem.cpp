#include "reporttypes/DynamicValueHolderItem.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "reporttypes/DynamicValueHolderAttribute.h"
#include "reporttypes/DynamicValueHolderType.h"

#include <memory>

namespace {

constexpr zeb::ElementName kType = L"Type";
constexpr zeb::ElementName kAttribute = L"Attribute";

// Kinds and attributes have virtual operations but no virtual destructor, and are always of exactly their class.
template <typename Plain>
void Free(Plain* object) {
  std::default_delete<Plain>()(object);
}

}  // namespace

CDynamicValueHolderItem::CDynamicValueHolderItem() = default;
CDynamicValueHolderItem::CDynamicValueHolderItem(const CDynamicValueHolderItem& other) = default;
CDynamicValueHolderItem& CDynamicValueHolderItem::operator=(const CDynamicValueHolderItem& other) = default;

CDynamicValueHolderItem::~CDynamicValueHolderItem() {
  Free(m_pDynVHType);
  for (CDynamicValueHolderAttribute* attribute : m_rgpDynVHAttributes) Free(attribute);
}

bool CDynamicValueHolderItem::Load(zebxmln::CXMLNode* node) {
  zeb::RecordReader reader(node);
  if (zebxmln::CXMLNode* child = reader.Take(kType)) {
    // An item that is read into again has one kind, the last one read.
    Free(m_pDynVHType);
    m_pDynVHType = new CDynamicValueHolderType;
    m_pDynVHType->Load(child);
  }
  while (zebxmln::CXMLNode* child = reader.Take(kAttribute)) {
    auto* attribute = new CDynamicValueHolderAttribute;
    AddDynVHAttribute(attribute);
    attribute->Load(child);
  }
  return true;
}

bool CDynamicValueHolderItem::Save(zebxmln::CXMLNode* node) {
  zeb::RecordWriter writer(node);
  zebxmln::CXMLNode* type = writer.Add(kType);
  if (m_pDynVHType != nullptr) m_pDynVHType->Save(type);
  for (CDynamicValueHolderAttribute* attribute : m_rgpDynVHAttributes) {
    if (attribute != nullptr) attribute->Save(writer.Add(kAttribute));
  }
  return true;
}

CDynamicValueHolderType* CDynamicValueHolderItem::GetDynVHType() const { return m_pDynVHType; }

void CDynamicValueHolderItem::SetDynVHType(CDynamicValueHolderType* type) { m_pDynVHType = type; }

void CDynamicValueHolderItem::AddDynVHAttribute(CDynamicValueHolderAttribute* attribute) {
  m_rgpDynVHAttributes.push_back(attribute);
}

CDynamicValueHolderAttribute* CDynamicValueHolderItem::GetDynVHAttributeAt(int index) {
  return m_rgpDynVHAttributes[static_cast<std::size_t>(index)];
}

int CDynamicValueHolderItem::GetDynVHAttributeCount() const {
  return static_cast<int>(m_rgpDynVHAttributes.size());
}
