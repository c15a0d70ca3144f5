#include "reporttypes/DynamicValueHolderAttribute.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"

namespace {

constexpr zeb::ElementName kInternalKey = L"InternalKey";
constexpr zeb::ElementName kName = L"Name";

}  // namespace

CDynamicValueHolderAttribute::CDynamicValueHolderAttribute() = default;
CDynamicValueHolderAttribute::CDynamicValueHolderAttribute(const CDynamicValueHolderAttribute& other) =
    default;
CDynamicValueHolderAttribute::~CDynamicValueHolderAttribute() = default;
CDynamicValueHolderAttribute& CDynamicValueHolderAttribute::operator=(
    const CDynamicValueHolderAttribute& other) = default;

bool CDynamicValueHolderAttribute::Load(zebxmln::CXMLNode* node) {
  zeb::RecordReader reader(node);
  reader.Read(kInternalKey, m_strInternalKey);
  reader.Read(kName, m_strName);
  return true;
}

bool CDynamicValueHolderAttribute::Save(zebxmln::CXMLNode* node) {
  zeb::RecordWriter writer(node);
  writer.Write(kInternalKey, m_strInternalKey);
  writer.Write(kName, m_strName);
  return true;
}

const wchar_t* CDynamicValueHolderAttribute::GetInternalKey() const { return m_strInternalKey.c_str(); }

void CDynamicValueHolderAttribute::SetInternalKey(const wchar_t* internalKey) {
  m_strInternalKey = internalKey;
}

const wchar_t* CDynamicValueHolderAttribute::GetName() const { return m_strName.c_str(); }

void CDynamicValueHolderAttribute::SetName(const wchar_t* name) { m_strName = name; }
