#include "model/ReportRootElement.h"

#include "foundation/ErrorKeys.h"
#include "foundation/IDManager.h"
#include "foundation/KXExceptionHandler.h"
#include "foundation/RecordWriter.h"
#include "foundation/ValueConversion.h"
#include "foundation/XMLFile.h"
#include "model/Placeable.h"
#include "model/ReportDocument.h"
#include "model/ReportLayout.h"
#include "model/ReportRecords.h"
#include "model/UnownedObjects.h"
#include "model/ValueHolderList.h"
#include "platform/File.h"

#include <optional>
#include <utility>

namespace {

constexpr zeb::ElementName kVersionNr = L"VersionNr";
constexpr zeb::ElementName kReportType = L"ReportType";
constexpr zeb::ElementName kReportDocument = L"ReportDocument";
constexpr zeb::ElementName kReportLayoutID = L"ReportLayoutID";

/// The folder with a backslash at its end; an empty one stays empty.
std::wstring WithBackslash(const wchar_t* path) {
  std::wstring folder = path;
  if (!folder.empty() && folder.back() != L'\\') folder += L'\\';
  return folder;
}

}  // namespace

std::vector<CPlaceable*> CReportRootElement::m_rgpDeletableObjects;

CReportRootElement::CReportRootElement() = default;

CReportRootElement::CReportRootElement(const CReportRootElement& other) = default;

CReportRootElement::~CReportRootElement() {
  delete m_pReportDocument;
  m_pReportDocument = nullptr;
  delete m_pReportLayout;
  m_pReportLayout = nullptr;
  ClearDeletedObjects();
}

CReportRootElement& CReportRootElement::operator=(const CReportRootElement& other) = default;

void CReportRootElement::LoadReport(const wchar_t* reportFile, const wchar_t* layoutFile) {
  const CSetLocaleSwitch localeSwitch;
  try {
    if (reportFile != nullptr) m_strReportFile = reportFile;
    if (layoutFile != nullptr) m_strLayoutFile = layoutFile;
    if (reportFile == nullptr && layoutFile == nullptr) return;
    ReadFiles(reportFile, layoutFile);
    if (m_pReportDocument != nullptr) m_pReportDocument->SetCurrentVersionNr();
    if (m_pReportLayout != nullptr) m_pReportLayout->SetCurrentVersionNr();
  } catch (const zebxmln::CXMLException& exception) {
    zeb::ThrowAsKXException(exception);
  }
}

// The report's own records are read last: only then does every object that they fill exist.
void CReportRootElement::ReadFiles(const wchar_t* reportFile, const wchar_t* layoutFile) {
  CIDManager reportIDs;
  CIDManager layoutIDs;
  const zeb::UnownedObjects unownedOfReport(*this, reportIDs);
  const zeb::UnownedObjects unownedOfLayout(*this, layoutIDs);
  std::optional<zeb::XMLFile> report;
  std::optional<zeb::RecordReader> records;
  if (reportFile != nullptr) {
    report.emplace(zeb::XMLFile::Load(reportFile));
    records.emplace(report->Root());
    records->Read(kVersionNr, m_iVersionNr);
    records->Read(kReportType, m_strReportType);
    if (zebxmln::CXMLNode* node = records->Take(kReportDocument)) {
      m_pReportDocument = new CReportDocument;
      m_pReportDocument->Load(node, reportIDs);
    }
  }
  if (layoutFile != nullptr) ReadLayoutFile(layoutFile, layoutIDs);
  if (records) zeb::ReadReportRecords(*records, m_pReportDocument, reportIDs);
}

void CReportRootElement::ReadLayoutFile(const wchar_t* layoutFile, CIDManager& ids) {
  const zeb::XMLFile file = zeb::XMLFile::Load(layoutFile);
  zeb::RecordReader reader(file.Root());
  reader.StepOver(kVersionNr);
  if (!reader.Requires(kReportLayoutID)) return;
  zeb::LayoutInReading layout;
  layout->Load(file.Root(), ids);
  SetReportLayout(layout.Release());
}

void CReportRootElement::LoadReportDocument(const wchar_t* reportFile, bool loadLayout) {
  LoadReport(reportFile, nullptr);
  if (!loadLayout || m_pReportDocument == nullptr) return;
  LoadReport(nullptr, (m_strLayoutPath + m_pReportDocument->GetReportLayoutName()).c_str());
}

void CReportRootElement::LoadReportLayout(const wchar_t* layoutFile) {
  if (m_pReportDocument != nullptr) delete std::exchange(m_pReportLayout, nullptr);
  LoadReport(nullptr, layoutFile);
}

void CReportRootElement::SaveReport(const wchar_t* reportFile, const wchar_t* layoutFile) {
  const CSetLocaleSwitch localeSwitch;
  try {
    if (reportFile != nullptr) m_strReportFile = reportFile;
    if (layoutFile != nullptr) m_strLayoutFile = layoutFile;
    if (layoutFile != nullptr) WriteLayoutFile(layoutFile);
    if (reportFile != nullptr) WriteReportFile(reportFile);
  } catch (const zebxmln::CXMLException& exception) {
    // Fixed behaviour: the report file is asked, also where only the layout was being saved.
    if (reportFile != nullptr && zeb::IsReadOnlyFile(reportFile)) {
      CKXExceptionHandler::GetInstance().ThrowException(zeb::ErrorKeys::FileReadOnly);
    }
    zeb::ThrowAsKXException(exception);
  }
}

void CReportRootElement::WriteLayoutFile(const wchar_t* layoutFile) {
  zeb::XMLFile file = zeb::XMLFile::Create(L"ReportLayout", L"ReportLayout");
  CIDManager ids;
  if (m_pReportLayout != nullptr) m_pReportLayout->Save(file.Root(), ids);
  file.Save(layoutFile);
}

void CReportRootElement::WriteReportFile(const wchar_t* reportFile) {
  zeb::XMLFile file = zeb::XMLFile::Create(L"ReportRootElement", L"ReportRootElement");
  zeb::RecordWriter writer(file.Root());
  CIDManager ids;
  if (m_pReportDocument != nullptr && m_pReportLayout != nullptr) {
    m_pReportDocument->SetReportLayoutName(m_strLayoutFile.c_str());
  }
  writer.Write(kVersionNr, m_iVersionNr);
  writer.Write(kReportType, m_strReportType);
  // Without a document the file holds no more than its frame.
  if (m_pReportDocument != nullptr) {
    m_pReportDocument->Save(writer.Node(), ids);
    zeb::WriteReportRecords(writer.Node(), *m_pReportDocument, ids);
  }
  file.Save(reportFile);
}

void CReportRootElement::SaveReportDocument(const wchar_t* reportFile) { SaveReport(reportFile, nullptr); }

void CReportRootElement::SaveReportLayout(const wchar_t* layoutFile) { SaveReport(nullptr, layoutFile); }

void CReportRootElement::SaveValueHolders(const wchar_t* file) {
  const CSetLocaleSwitch localeSwitch;
  try {
    zeb::XMLFile output = zeb::XMLFile::Create(L"ReportData", L"ValueHolderData");
    zeb::RecordWriter writer(output.Root());
    writer.Write(kVersionNr, m_iValueHolderVersionNr);
    if (m_pReportDocument != nullptr) zeb::WriteValueHolderList(writer.Node(), *m_pReportDocument);
    output.Save(file);
  } catch (const zebxmln::CXMLException& exception) {
    zeb::ThrowAsKXException(exception);
  }
}

CReportDocument* CReportRootElement::GetReportDocument() const { return m_pReportDocument; }

void CReportRootElement::SetReportDocument(CReportDocument* document) { m_pReportDocument = document; }

CReportLayout* CReportRootElement::GetReportLayout() const { return m_pReportLayout; }

void CReportRootElement::SetReportLayout(CReportLayout* layout) { m_pReportLayout = layout; }

const wchar_t* CReportRootElement::GetReportFile() const { return m_strReportFile.c_str(); }

const wchar_t* CReportRootElement::GetLayoutFile() const { return m_strLayoutFile.c_str(); }

const wchar_t* CReportRootElement::GetReportType() const { return m_strReportType.c_str(); }

void CReportRootElement::SetReportType(const wchar_t* reportType) { m_strReportType = reportType; }

const wchar_t* CReportRootElement::GetLayoutPath() const { return m_strLayoutPath.c_str(); }

void CReportRootElement::SetLayoutPath(const wchar_t* path) { m_strLayoutPath = WithBackslash(path); }

const wchar_t* CReportRootElement::GetPrintTemplatesPath() const { return m_strPrintTemplatesPath.c_str(); }

void CReportRootElement::SetPrintTemplatesPath(const wchar_t* path) {
  m_strPrintTemplatesPath = WithBackslash(path);
}

void CReportRootElement::AddDeletableObject(CPlaceable* object) { m_rgpDeletableObjects.push_back(object); }

void CReportRootElement::ClearDeletedObjects() {
  for (CPlaceable* object : m_rgpDeletableObjects) delete object;
  m_rgpDeletableObjects.clear();
}
