#include "model/DefinedDynVH.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"

namespace {

constexpr zeb::ElementName kType = L"Type";

}  // namespace

CDefinedDynVH::CDefinedDynVH() = default;
CDefinedDynVH::CDefinedDynVH(const CDefinedDynVH& other) = default;
CDefinedDynVH::~CDefinedDynVH() = default;
CDefinedDynVH& CDefinedDynVH::operator=(const CDefinedDynVH& other) = default;

bool CDefinedDynVH::Load(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordReader reader(node);
  reader.Read(zeb::Elements::Name, m_strName);
  reader.Read(kType, m_strType);
  return true;
}

bool CDefinedDynVH::Save(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordWriter writer(node, zeb::Elements::DefinedDynVH);
  writer.Write(zeb::Elements::Name, m_strName);
  writer.Write(kType, m_strType);
  return true;
}
