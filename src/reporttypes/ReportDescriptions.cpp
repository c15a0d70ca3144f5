#include "reporttypes/ReportDescriptions.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "foundation/XMLFile.h"
#include "reporttypes/DynamicValueHolderItem.h"
#include "reporttypes/ReportDescription.h"

namespace {

constexpr zeb::ElementName kRoot = L"ReportDescriptionRootElement";
constexpr zeb::ElementName kVersionNr = L"VersionNr";
constexpr zeb::ElementName kReportDescriptionVersionNr = L"ReportDescriptionVersionNr";
constexpr zeb::ElementName kProductFamily = L"ProductFamily";
constexpr zeb::ElementName kProductFamily1 = L"ReportProductFamily";  // generation 1, which is read only
constexpr zeb::ElementName kReportDescription = L"ReportDescription";
constexpr zeb::ElementName kConfig = L"DynamicValueHolderConfig";
constexpr zeb::ElementName kItem = L"DynamicValueHolderItem";

}  // namespace

CReportDescriptions::CReportDescriptions() = default;
CReportDescriptions::CReportDescriptions(const CReportDescriptions& other) = default;
CReportDescriptions& CReportDescriptions::operator=(const CReportDescriptions& other) = default;

CReportDescriptions::~CReportDescriptions() {
  for (const CReportDescription* description : m_rgpReportDescriptions) delete description;
  for (const CDynamicValueHolderItem* item : m_rgpDynamicVHItems) delete item;
}

void CReportDescriptions::LoadReportDescriptions(const wchar_t* fileName) {
  try {
    m_strFileName = fileName;
    Load(fileName);
  } catch (const zebxmln::CXMLException& exception) {
    zeb::ThrowAsKXException(exception);
  }
}

void CReportDescriptions::SaveReportDescriptions(const wchar_t* fileName) {
  try {
    m_strFileName = fileName;
    Save(fileName);
  } catch (const zebxmln::CXMLException& exception) {
    zeb::ThrowAsKXException(exception);
  }
}

void CReportDescriptions::Load(const wchar_t* fileName) {
  const zeb::XMLFile file = zeb::XMLFile::Load(fileName);
  zeb::RecordReader reader(file.Root());
  reader.Read(kVersionNr, m_iVersionNr);
  reader.Read(kReportDescriptionVersionNr, m_iReportDescriptionVersionNr);
  reader.Read(m_iVersionNr < 2 ? kProductFamily1 : kProductFamily, m_strProductFamily);
  while (zebxmln::CXMLNode* child = reader.Take(kReportDescription)) {
    auto* description = new CReportDescription;
    AddReportDescription(description);
    description->SetVersionNr(m_iVersionNr);
    description->Load(child);
  }
  if (zebxmln::CXMLNode* config = reader.Take(kConfig)) LoadConfig(config);
}

void CReportDescriptions::LoadConfig(zebxmln::CXMLNode* node) {
  zeb::RecordReader reader(node);
  while (zebxmln::CXMLNode* child = reader.Take(kItem)) {
    auto* item = new CDynamicValueHolderItem;
    AddDynamicVHItem(item);
    item->Load(child);
  }
}

void CReportDescriptions::Save(const wchar_t* fileName) const {
  zeb::XMLFile file = zeb::XMLFile::Create(kRoot.data(), kRoot.data());
  zeb::RecordWriter writer(file.Root());
  writer.Write(kVersionNr, m_iVersionNr);
  writer.Write(kReportDescriptionVersionNr, m_iReportDescriptionVersionNr);
  writer.Write(kProductFamily, m_strProductFamily);
  for (CReportDescription* description : m_rgpReportDescriptions) {
    zebxmln::CXMLNode* child = writer.Add(kReportDescription);
    if (description != nullptr) description->Save(child);
  }
  if (!m_rgpDynamicVHItems.empty()) {
    zeb::RecordWriter config(writer.Node(), kConfig);
    for (CDynamicValueHolderItem* item : m_rgpDynamicVHItems) {
      if (item != nullptr) item->Save(config.Add(kItem));
    }
  }
  file.Save(fileName);
}

void CReportDescriptions::AddReportDescription(CReportDescription* description) {
  m_rgpReportDescriptions.push_back(description);
}

CReportDescription* CReportDescriptions::GetReportDescriptionAt(int index) const {
  return m_rgpReportDescriptions[static_cast<std::size_t>(index)];
}

int CReportDescriptions::GetReportDescriptionsCount() {
  return static_cast<int>(m_rgpReportDescriptions.size());
}

void CReportDescriptions::AddDynamicVHItem(CDynamicValueHolderItem* item) {
  m_rgpDynamicVHItems.push_back(item);
}

CDynamicValueHolderItem* CReportDescriptions::GetDynamicVHItemAt(int index) {
  return m_rgpDynamicVHItems[static_cast<std::size_t>(index)];
}

int CReportDescriptions::GetDynamicVHItemCount() const {
  return static_cast<int>(m_rgpDynamicVHItems.size());
}

const wchar_t* CReportDescriptions::GetProductFamily() const { return m_strProductFamily.c_str(); }

void CReportDescriptions::SetProductFamily(const wchar_t* productFamily) {
  m_strProductFamily = productFamily;
}

int CReportDescriptions::GetReportDescriptionVersionNr() const { return m_iReportDescriptionVersionNr; }
