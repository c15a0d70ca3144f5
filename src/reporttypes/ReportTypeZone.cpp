#include "reporttypes/ReportTypeZone.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "reporttypes/AvailableVH.h"

namespace {

// Generation 2, the one that is written.
constexpr zeb::ElementName kInternalName = L"InternalName";
constexpr zeb::ElementName kEquivalentInternalName = L"EquivalentInternalName";
constexpr zeb::ElementName kExternalName = L"ExternalName";
constexpr zeb::ElementName kExternalDescription = L"ExternalDescription";
constexpr zeb::ElementName kFooterZone = L"FooterZone";
constexpr zeb::ElementName kValueHolder = L"VH";

// Generation 1, which is read only.
constexpr zeb::ElementName kInternalName1 = L"InternalReportTypeZoneName";
constexpr zeb::ElementName kExternalName1 = L"ExternalReportTypeZoneName";
constexpr zeb::ElementName kExternalDescription1 = L"ExternalReportTypeZoneDescription";
constexpr zeb::ElementName kValueHolder1 = L"ReportTypeZoneAvailableValueHolder";

}  // namespace

CReportTypeZone::CReportTypeZone() = default;
CReportTypeZone::CReportTypeZone(const CReportTypeZone& other) = default;
CReportTypeZone& CReportTypeZone::operator=(const CReportTypeZone& other) = default;

CReportTypeZone::~CReportTypeZone() {
  for (const CAvailableVH* valueHolder : m_rgpAvailableValueHolders) delete valueHolder;
}

bool CReportTypeZone::Load(zebxmln::CXMLNode* node) {
  zeb::RecordReader reader(node);
  if (m_iVersionNr < 2) {
    reader.Read(kInternalName1, m_strInternalName);
    reader.Read(kExternalName1, m_strExternalName);
    reader.Read(kExternalDescription1, m_strExternalDescription);
    while (zebxmln::CXMLNode* child = reader.Take(kValueHolder1)) LoadValueHolder(child);
    return true;
  }
  reader.Read(kInternalName, m_strInternalName);
  for (std::wstring name; reader.Read(kEquivalentInternalName, name);) {
    m_rgstrEquivalentInternalNames.push_back(name);
  }
  reader.Read(kExternalName, m_strExternalName);
  reader.Read(kExternalDescription, m_strExternalDescription);
  reader.Read(kFooterZone, m_bFooterZone);
  while (zebxmln::CXMLNode* child = reader.Take(kValueHolder)) LoadValueHolder(child);
  return true;
}

bool CReportTypeZone::Save(zebxmln::CXMLNode* node) {
  zeb::RecordWriter writer(node);
  writer.Write(kInternalName, m_strInternalName);
  for (const std::wstring& name : m_rgstrEquivalentInternalNames) writer.Write(kEquivalentInternalName, name);
  writer.Write(kExternalName, m_strExternalName);
  writer.Write(kExternalDescription, m_strExternalDescription);
  writer.WriteUnless(kFooterZone, m_bFooterZone, false);
  for (CAvailableVH* valueHolder : m_rgpAvailableValueHolders) {
    if (valueHolder != nullptr) valueHolder->Save(writer.Add(kValueHolder));
  }
  return true;
}

void CReportTypeZone::LoadValueHolder(zebxmln::CXMLNode* node) {
  auto* valueHolder = new CAvailableVH;
  AddAvailableValueHolder(valueHolder);
  valueHolder->SetVersionNr(m_iVersionNr);
  valueHolder->Load(node);
}

const wchar_t* CReportTypeZone::GetInternalName() const { return m_strInternalName.c_str(); }

void CReportTypeZone::SetInternalName(const wchar_t* name) { m_strInternalName = name; }

const wchar_t* CReportTypeZone::GetExternalName() const { return m_strExternalName.c_str(); }

void CReportTypeZone::SetExternalName(const wchar_t* name) { m_strExternalName = name; }

const wchar_t* CReportTypeZone::GetExternalDescription() const { return m_strExternalDescription.c_str(); }

void CReportTypeZone::SetExternalDescription(const wchar_t* description) {
  m_strExternalDescription = description;
}

bool CReportTypeZone::GetFooterZone() const { return m_bFooterZone; }

void CReportTypeZone::SetFooterZone(bool footerZone) { m_bFooterZone = footerZone; }

void CReportTypeZone::AddEquivalentInternalName(const wchar_t* name) {
  m_rgstrEquivalentInternalNames.emplace_back(name);
}

const wchar_t* CReportTypeZone::GetEquivalentInternalNameAt(int index) const {
  return m_rgstrEquivalentInternalNames[static_cast<std::size_t>(index)].c_str();
}

int CReportTypeZone::GetEquivalentInternalNameCount() const {
  return static_cast<int>(m_rgstrEquivalentInternalNames.size());
}

void CReportTypeZone::AddAvailableValueHolder(CAvailableVH* valueHolder) {
  m_rgpAvailableValueHolders.push_back(valueHolder);
}

CAvailableVH* CReportTypeZone::GetAvailableValueHolderAt(int index) const {
  return m_rgpAvailableValueHolders[static_cast<std::size_t>(index)];
}

int CReportTypeZone::GetAvailableValueHolderCount() const {
  return static_cast<int>(m_rgpAvailableValueHolders.size());
}

void CReportTypeZone::SetVersionNr(int versionNr) { m_iVersionNr = versionNr; }
