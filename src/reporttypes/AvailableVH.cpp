#include "reporttypes/AvailableVH.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"

namespace {

struct Names {
  zeb::ElementName internalName;
  zeb::ElementName externalName;
  zeb::ElementName externalDescription;
  zeb::ElementName type;
};

constexpr Names kGeneration1{L"InternalName", L"ExternalName", L"ExternalDescription",
                             L"AvailableValueHolderType"};
constexpr Names kGeneration2{L"Key", L"Name", L"Desc", L"Type"};

}  // namespace

CAvailableVH::CAvailableVH() = default;
CAvailableVH::CAvailableVH(const CAvailableVH& other) = default;
CAvailableVH::~CAvailableVH() = default;
CAvailableVH& CAvailableVH::operator=(const CAvailableVH& other) = default;

bool CAvailableVH::Load(zebxmln::CXMLNode* node) {
  const Names& names = m_iVersionNr < 2 ? kGeneration1 : kGeneration2;
  zeb::RecordReader reader(node);
  reader.Read(names.internalName, m_strInternalName);
  reader.Read(names.externalName, m_strExternalName);
  reader.Read(names.externalDescription, m_strExternalDescription);
  int type = 0;
  if (reader.Read(names.type, type)) m_eValueHolderType = static_cast<AvailableValueHolderType>(type);
  return true;
}

bool CAvailableVH::Save(zebxmln::CXMLNode* node) {
  zeb::RecordWriter writer(node);
  writer.Write(kGeneration2.internalName, m_strInternalName);
  writer.Write(kGeneration2.externalName, m_strExternalName);
  writer.Write(kGeneration2.externalDescription, m_strExternalDescription);
  writer.Write(kGeneration2.type, static_cast<int>(m_eValueHolderType));
  return true;
}

const wchar_t* CAvailableVH::GetInternalName() const { return m_strInternalName.c_str(); }

void CAvailableVH::SetInternalName(const wchar_t* name) { m_strInternalName = name; }

const wchar_t* CAvailableVH::GetExternalName() const { return m_strExternalName.c_str(); }

void CAvailableVH::SetExternalName(const wchar_t* name) { m_strExternalName = name; }

const wchar_t* CAvailableVH::GetExternalDescription() const { return m_strExternalDescription.c_str(); }

void CAvailableVH::SetExternalDescription(const wchar_t* description) {
  m_strExternalDescription = description;
}

CAvailableVH::AvailableValueHolderType CAvailableVH::GetValueHolderType() const { return m_eValueHolderType; }

void CAvailableVH::SetValueHolderType(AvailableValueHolderType type) { m_eValueHolderType = type; }

void CAvailableVH::SetVersionNr(int versionNr) { m_iVersionNr = versionNr; }
