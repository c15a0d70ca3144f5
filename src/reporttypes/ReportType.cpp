#include "reporttypes/ReportType.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "foundation/XMLFile.h"
#include "reporttypes/ReportTypeZone.h"

namespace {

constexpr zeb::ElementName kRoot = L"ReportTypeRootElement";
constexpr zeb::ElementName kVersionNr = L"VersionNr";
constexpr zeb::ElementName kReportVersionNr = L"ReportVersionNr";
constexpr zeb::ElementName kReportType = L"ReportType";
constexpr zeb::ElementName kReportTypeZone = L"ReportTypeZone";

}  // namespace

CReportType::CReportType() = default;
CReportType::CReportType(const CReportType& other) = default;
CReportType& CReportType::operator=(const CReportType& other) = default;

CReportType::~CReportType() {
  for (const CReportTypeZone* zone : m_rgpReportTypeZones) delete zone;
}

void CReportType::LoadReportType(const wchar_t* fileName) {
  try {
    m_strFileName = fileName;
    Load(fileName);
  } catch (const zebxmln::CXMLException& exception) {
    zeb::ThrowAsKXException(exception);
  }
}

void CReportType::SaveReportType(const wchar_t* fileName) {
  try {
    m_strFileName = fileName;
    Save(fileName);
  } catch (const zebxmln::CXMLException& exception) {
    zeb::ThrowAsKXException(exception);
  }
}

void CReportType::Load(const wchar_t* fileName) {
  const zeb::XMLFile file = zeb::XMLFile::Load(fileName);
  zeb::RecordReader reader(file.Root());
  reader.Read(kVersionNr, m_iVersionNr);
  reader.Read(kReportVersionNr, m_iReportVersionNr);
  reader.Read(kReportType, m_strReportType);
  while (zebxmln::CXMLNode* child = reader.Take(kReportTypeZone)) {
    auto* zone = new CReportTypeZone;
    AddReportTypeZone(zone);
    zone->SetVersionNr(m_iVersionNr);
    zone->Load(child);
  }
}

void CReportType::Save(const wchar_t* fileName) const {
  zeb::XMLFile file = zeb::XMLFile::Create(kRoot.data(), kRoot.data());
  zeb::RecordWriter writer(file.Root());
  writer.Write(kVersionNr, m_iVersionNr);
  writer.Write(kReportVersionNr, m_iReportVersionNr);
  writer.Write(kReportType, m_strReportType);
  for (CReportTypeZone* zone : m_rgpReportTypeZones) {
    zebxmln::CXMLNode* child = writer.Add(kReportTypeZone);
    if (zone != nullptr) zone->Save(child);
  }
  file.Save(fileName);
}

void CReportType::AddReportTypeZone(CReportTypeZone* zone) { m_rgpReportTypeZones.push_back(zone); }

CReportTypeZone* CReportType::GetReportTypeZoneAt(int index) const {
  return m_rgpReportTypeZones[static_cast<std::size_t>(index)];
}

int CReportType::GetReportTypeZonesCount() const { return static_cast<int>(m_rgpReportTypeZones.size()); }

const wchar_t* CReportType::GetReportType() const { return m_strReportType.c_str(); }

void CReportType::SetReportType(const wchar_t* reportType) { m_strReportType = reportType; }

int CReportType::GetReportVersionNr() const { return m_iReportVersionNr; }
