#include "model/ReportLayout.h"

#include "fonts/FontRecords.h"
#include "fonts/GlobalFontHandler.h"
#include "foundation/IDManager.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/FontNames.h"
#include "model/LayoutPage.h"
#include "model/Text.h"

#include <cstddef>
#include <memory>

namespace {

constexpr zeb::ElementName kVersionNr = L"VersionNr";
constexpr zeb::ElementName kReportLayoutID = L"ReportLayoutID";
constexpr zeb::ElementName kFirstPageIndependent = L"FirstPageIndependent";
constexpr zeb::ElementName kEvenOddPagesIndependent = L"EvenOddPagesIndependent";
constexpr zeb::ElementName kLayoutPage = L"LayoutPage";

/// From this version on each page has an element of its own.
constexpr int kFirstVersionWithPages = 3;
constexpr int kMostPagesOfFile = 3;
constexpr int kCurrentVersionNr = 3;

// Pages beyond those that the switches make are stepped over, so that what follows them is still read.
void ReadPages(CReportLayout& layout, zeb::RecordReader& reader, CIDManager& ids) {
  bool independent = false;
  if (reader.Read(kFirstPageIndependent, independent)) layout.SetFirstPageIndependent(independent);
  if (reader.Read(kEvenOddPagesIndependent, independent)) layout.SetEvenOddPagesIndependent(independent);
  for (int i = 0; i < kMostPagesOfFile; ++i) {
    zebxmln::CXMLNode* page = reader.Take(kLayoutPage);
    if (page == nullptr) return;
    if (i < layout.GetPageCount()) layout.GetPageAt(i)->Load(page, ids);
  }
}

}  // namespace

CReportLayout::CReportLayout() : m_pFontHandler(nullptr), m_iVersionNr(kCurrentVersionNr) {
  auto fontHandler = std::make_unique<CGlobalFontHandler>();
  m_rgpPages.push_back(new CLayoutPage(this));
  m_pFontHandler = fontHandler.release();
}

CReportLayout::CReportLayout(const CReportLayout& other) = default;

CReportLayout::~CReportLayout() {
  delete m_pFontHandler;
  for (CLayoutPage* page : m_rgpPages) {
    delete page;
  }
}

CReportLayout& CReportLayout::operator=(const CReportLayout& other) = default;

bool CReportLayout::Load(zebxmln::CXMLNode* node, CIDManager& ids) {
  zeb::RecordReader reader(node);
  reader.Read(kVersionNr, m_iVersionNr);
  reader.StepOver(kReportLayoutID);
  if (m_iVersionNr >= kFirstVersionWithPages) {
    ReadPages(*this, reader, ids);
  } else {
    // The one page's content lies directly under the root.
    m_rgpPages[0]->Load(node, ids);
    while (!reader.AtEnd() && !reader.Is(zeb::kFontInformation)) reader.Next();
  }
  zeb::ReadFontRecords(reader, *m_pFontHandler, ids);
  LocalizeFontNames();
  return true;
}

// Fixed behaviour: texts inside table cells keep the name of the file.
void CReportLayout::LocalizeFontNames() {
  for (CLayoutPage* page : m_rgpPages) {
    for (int i = 0; i < page->GetLayoutContentCount(); ++i) {
      if (auto* text = dynamic_cast<CText*>(page->GetLayoutContentAt(i))) {
        zeb::LocalizeFontName(*m_pFontHandler, *text);
      }
    }
  }
}

bool CReportLayout::Save(zebxmln::CXMLNode* node, CIDManager& ids) {
  zeb::RecordWriter writer(node);
  writer.Write(kVersionNr, m_iVersionNr);
  writer.Write(kReportLayoutID, ids.GetIDFromObject(this));
  writer.WriteUnless(kFirstPageIndependent, m_bFirstPageIndependent, false);
  writer.WriteUnless(kEvenOddPagesIndependent, m_bEvenOddPagesIndependent, false);
  for (CLayoutPage* page : m_rgpPages) {
    if (page != nullptr) page->Save(writer.Add(kLayoutPage), ids);
  }
  zeb::WriteFontRecords(node, *m_pFontHandler, ids);
  return true;
}

int CReportLayout::GetPageCount() const { return static_cast<int>(m_rgpPages.size()); }

CLayoutPage* CReportLayout::GetPageAt(int index) const { return m_rgpPages[static_cast<std::size_t>(index)]; }

bool CReportLayout::GetFirstPageIndependent() const { return m_bFirstPageIndependent; }

void CReportLayout::SetFirstPageIndependent(bool independent) {
  m_bFirstPageIndependent = independent;
  if (independent) {
    m_rgpPages.push_back(new CLayoutPage(this));
  }
}

bool CReportLayout::GetEvenOddPagesIndependent() const { return m_bEvenOddPagesIndependent; }

void CReportLayout::SetEvenOddPagesIndependent(bool independent) {
  m_bEvenOddPagesIndependent = independent;
  if (independent) {
    m_rgpPages.push_back(new CLayoutPage(this));
  }
}

CLayoutPage* CReportLayout::GetFirstPage() const {
  return m_bEvenOddPagesIndependent && !m_bFirstPageIndependent ? nullptr : m_rgpPages[0];
}

CLayoutPage* CReportLayout::GetNormalPage() const {
  if (m_bEvenOddPagesIndependent) {
    return nullptr;
  }
  return m_rgpPages[m_bFirstPageIndependent ? 1 : 0];
}

CLayoutPage* CReportLayout::GetEvenPage() const {
  return m_rgpPages[m_bFirstPageIndependent || m_bEvenOddPagesIndependent ? 1 : 0];
}

CLayoutPage* CReportLayout::GetOddPage() const {
  if (!m_bFirstPageIndependent) {
    return m_rgpPages[0];
  }
  return m_rgpPages[m_bEvenOddPagesIndependent ? 2 : 1];
}

CGlobalFontHandler* CReportLayout::GetFontHandler() const { return m_pFontHandler; }

int CReportLayout::GetVersionNr() const { return m_iVersionNr; }

void CReportLayout::SetCurrentVersionNr() { m_iVersionNr = kCurrentVersionNr; }
