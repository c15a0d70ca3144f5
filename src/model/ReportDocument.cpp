#include "model/ReportDocument.h"

#include "fonts/FontRecords.h"
#include "fonts/GlobalFontHandler.h"
#include "foundation/IDManager.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/CopyValueHolderKey.h"
#include "model/DefinedDynVH.h"
#include "model/ObjectBinding.h"
#include "model/ReportZone.h"

#include <cwchar>
#include <memory>
#include <string_view>

namespace {

constexpr zeb::ElementName kReportDocument = L"ReportDocument";
constexpr zeb::ElementName kVersionNr = L"VersionNr";
constexpr zeb::ElementName kReportDocumentID = L"ReportDocumentID";
constexpr zeb::ElementName kZoneID = L"ZoneID";
constexpr zeb::ElementName kReportLayoutName = L"ReportLayoutName";
constexpr zeb::ElementName kDefinedDynVH = L"DefinedDynVH";

constexpr int kCurrentVersionNr = 2;

template <class T>
void DeleteAll(std::vector<T*>& objects) {
  for (T* object : objects) {
    delete object;
  }
  objects.clear();
}

}  // namespace

CReportDocument::CReportDocument()
    : m_pFontHandler(new CGlobalFontHandler), m_iVersionNr(kCurrentVersionNr) {}

CReportDocument::CReportDocument(const CReportDocument& other) = default;

CReportDocument::~CReportDocument() {
  DeleteAll(m_rgpReportZones);
  delete m_pFontHandler;
  DeleteAll(m_rgpDefinedDynVHs);
  DeleteAll(m_rgpCopyValueHolderKeys);
}

CReportDocument& CReportDocument::operator=(const CReportDocument& other) = default;

bool CReportDocument::Load(zebxmln::CXMLNode* node, CIDManager& ids) {
  zeb::IDBinding binding(ids);
  zeb::RecordReader reader(node);
  int id = 0;
  reader.Read(kVersionNr, m_iVersionNr);
  if (reader.Read(kReportDocumentID, id)) zeb::BindObject(binding, id, this);
  while (reader.Read(kZoneID, id)) {
    if (auto* zone = zeb::TakeObject<CReportZone>(binding, id)) AddReportZone(zone);
  }
  zeb::ReadFontRecords(reader, *m_pFontHandler, ids);
  reader.Read(kReportLayoutName, m_strReportLayoutName);
  while (zebxmln::CXMLNode* child = reader.Take(kDefinedDynVH)) {
    auto entry = std::make_unique<CDefinedDynVH>();
    entry->Load(child, ids);
    AddDefinedDynVH(entry.release());
  }
  return true;
}

bool CReportDocument::Save(zebxmln::CXMLNode* node, CIDManager& ids) {
  zeb::RecordWriter writer(node, kReportDocument);
  writer.Write(kVersionNr, m_iVersionNr);
  writer.Write(kReportDocumentID, ids.GetIDFromObject(this));
  for (CReportZone* zone : m_rgpReportZones) {
    if (zone != nullptr) writer.Write(kZoneID, ids.GetIDFromObject(zone));
  }
  zeb::WriteFontRecords(writer.Node(), *m_pFontHandler, ids);
  writer.Write(kReportLayoutName, m_strReportLayoutName);
  for (CDefinedDynVH* entry : m_rgpDefinedDynVHs) {
    if (entry != nullptr) entry->Save(writer.Node(), ids);
  }
  return true;
}

void CReportDocument::AddReportZone(CReportZone* zone) { m_rgpReportZones.push_back(zone); }

int CReportDocument::GetReportZoneCount() { return static_cast<int>(m_rgpReportZones.size()); }

CReportZone* CReportDocument::GetReportZoneAt(int index) const {
  return m_rgpReportZones[static_cast<std::size_t>(index)];
}

void CReportDocument::SetReportZoneAt(CReportZone* zone, int index) {
  m_rgpReportZones[static_cast<std::size_t>(index)] = zone;
}

CReportZone* CReportDocument::FindReportZone(const wchar_t* name) const {
  for (CReportZone* zone : m_rgpReportZones) {
    if (zone != nullptr && std::wcscmp(zone->GetInternalReportZoneName(), name) == 0) {
      return zone;
    }
  }
  return nullptr;
}

void CReportDocument::AddDefinedDynVH(CDefinedDynVH* definedDynVH) {
  m_rgpDefinedDynVHs.push_back(definedDynVH);
}

void CReportDocument::AddDefinedDynVH(const wchar_t* name, const wchar_t* type) {
  auto entry = std::make_unique<CDefinedDynVH>();
  entry->SetDynVHName(name);
  entry->SetType(type);
  m_rgpDefinedDynVHs.push_back(entry.get());
  static_cast<void>(entry.release());
}

int CReportDocument::GetDefinedDynVHCount() const { return static_cast<int>(m_rgpDefinedDynVHs.size()); }

CDefinedDynVH* CReportDocument::GetDefinedDynVHAt(int index) const {
  return m_rgpDefinedDynVHs[static_cast<std::size_t>(index)];
}

void CReportDocument::AddCopyValueHolderKey(const wchar_t* zone, const wchar_t* valueHolder) {
  auto entry = std::make_unique<CCopyValueHolderKey>(zone, valueHolder);
  m_rgpCopyValueHolderKeys.push_back(entry.get());
  static_cast<void>(entry.release());
}

bool CReportDocument::FindCopyValueHolderKey(const wchar_t* zone, const wchar_t* valueHolder) const {
  for (CCopyValueHolderKey* entry : m_rgpCopyValueHolderKeys) {
    if (entry != nullptr && entry->CompareKey(zone, valueHolder)) {
      return true;
    }
  }
  return false;
}

CGlobalFontHandler* CReportDocument::GetFontHandler() const { return m_pFontHandler; }

const wchar_t* CReportDocument::GetReportLayoutName() const { return m_strReportLayoutName.c_str(); }

// Fixed behaviour: only backslashes part folders; a path with slashes is stored whole.
void CReportDocument::SetReportLayoutName(const wchar_t* path) {
  const std::wstring_view text(path);
  m_strReportLayoutName = text.substr(text.rfind(L'\\') + 1);
}

int CReportDocument::GetVersionNr() const { return m_iVersionNr; }

void CReportDocument::SetCurrentVersionNr() { m_iVersionNr = kCurrentVersionNr; }
