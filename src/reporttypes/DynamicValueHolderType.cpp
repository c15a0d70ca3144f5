#include "reporttypes/DynamicValueHolderType.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"

namespace {

constexpr zeb::ElementName kName = L"Name";
constexpr zeb::ElementName kPrefix = L"Prefix";

}  // namespace

CDynamicValueHolderType::CDynamicValueHolderType() = default;
CDynamicValueHolderType::CDynamicValueHolderType(const CDynamicValueHolderType& other) = default;
CDynamicValueHolderType::~CDynamicValueHolderType() = default;
CDynamicValueHolderType& CDynamicValueHolderType::operator=(const CDynamicValueHolderType& other) = default;

bool CDynamicValueHolderType::Load(zebxmln::CXMLNode* node) {
  zeb::RecordReader reader(node);
  reader.Read(kName, m_strName);
  reader.Read(kPrefix, m_strPrefix);
  return true;
}

bool CDynamicValueHolderType::Save(zebxmln::CXMLNode* node) {
  zeb::RecordWriter writer(node);
  writer.Write(kName, m_strName);
  writer.Write(kPrefix, m_strPrefix);
  return true;
}

const wchar_t* CDynamicValueHolderType::GetName() const { return m_strName.c_str(); }

void CDynamicValueHolderType::SetName(const wchar_t* name) { m_strName = name; }

const wchar_t* CDynamicValueHolderType::GetPrefix() const { return m_strPrefix.c_str(); }

void CDynamicValueHolderType::SetPrefix(const wchar_t* prefix) { m_strPrefix = prefix; }
