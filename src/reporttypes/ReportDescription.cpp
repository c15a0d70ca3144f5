#include "reporttypes/ReportDescription.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"

namespace {

constexpr zeb::ElementName kReportType = L"ReportType";
constexpr zeb::ElementName kReportName = L"ReportName";
constexpr zeb::ElementName kFileName = L"FileName";

// Generation 1, which is read only.
constexpr zeb::ElementName kSubDirectory1 = L"ReportDescriptionSubDirectory";
constexpr zeb::ElementName kFileName1 = L"ReportDescriptionFileName";

}  // namespace

CReportDescription::CReportDescription() = default;
CReportDescription::CReportDescription(const CReportDescription& other) = default;
CReportDescription::~CReportDescription() = default;
CReportDescription& CReportDescription::operator=(const CReportDescription& other) = default;

bool CReportDescription::Load(zebxmln::CXMLNode* node) {
  zeb::RecordReader reader(node);
  reader.Read(kReportType, m_strReportType);
  reader.Read(kReportName, m_strReportName);
  if (m_iVersionNr < 2) {
    // Fixed behaviour: the folder is not joined with the file name.
    reader.StepOver(kSubDirectory1);
    reader.Read(kFileName1, m_strFileName);
  } else {
    reader.Read(kFileName, m_strFileName);
  }
  return true;
}

bool CReportDescription::Save(zebxmln::CXMLNode* node) {
  zeb::RecordWriter writer(node);
  writer.Write(kReportType, m_strReportType);
  writer.Write(kReportName, m_strReportName);
  writer.Write(kFileName, m_strFileName);
  return true;
}

const wchar_t* CReportDescription::GetReportType() const { return m_strReportType.c_str(); }

void CReportDescription::SetReportType(const wchar_t* reportType) { m_strReportType = reportType; }

const wchar_t* CReportDescription::GetReportName() const { return m_strReportName.c_str(); }

void CReportDescription::SetReportName(const wchar_t* reportName) { m_strReportName = reportName; }

const wchar_t* CReportDescription::GetFileName() const { return m_strFileName.c_str(); }

void CReportDescription::SetFileName(const wchar_t* fileName) { m_strFileName = fileName; }

void CReportDescription::SetVersionNr(int versionNr) { m_iVersionNr = versionNr; }
