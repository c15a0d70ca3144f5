#include "model/LayoutPage.h"

#include "model/LayoutRect.h"
#include "model/Placeable.h"
#include "placement/OrderedElementList.h"

#include <cstddef>

CLayoutPage::CLayoutPage(CReportLayout* layout)
    : m_pPaperRect(nullptr),
      m_pBorderRect(nullptr),
      m_pPaperObject(nullptr),
      m_pOrderedElements(std::make_unique<zeb::OrderedElementList>()),
      m_pReportLayout(layout) {
  auto paperRect = std::make_unique<LayoutRect>();
  auto borderRect = std::make_unique<LayoutRect>();
  m_pPaperObject = new CPlaceable;
  m_pPaperRect = paperRect.release();
  m_pBorderRect = borderRect.release();
}

CLayoutPage::CLayoutPage(const CLayoutPage& other)
    : m_rgpLayoutContent(other.m_rgpLayoutContent),
      m_pPaperRect(other.m_pPaperRect),
      m_pBorderRect(other.m_pBorderRect),
      m_pPaperObject(other.m_pPaperObject),
      m_pOrderedElements(std::make_unique<zeb::OrderedElementList>(*other.m_pOrderedElements)),
      m_mapPredecessors(other.m_mapPredecessors),
      m_bOrderCalculated(other.m_bOrderCalculated),
      m_pReportLayout(other.m_pReportLayout) {}

// A table cell is deleted as what it is; its elements are not the page's.
CLayoutPage::~CLayoutPage() {
  delete m_pPaperRect;
  delete m_pBorderRect;
  for (CPlaceable* object : m_rgpLayoutContent) delete object;
  delete m_pPaperObject;
  ClearPredecessors();
}

CLayoutPage& CLayoutPage::operator=(const CLayoutPage& other) {
  if (this == &other) return *this;
  m_rgpLayoutContent = other.m_rgpLayoutContent;
  m_pPaperRect = other.m_pPaperRect;
  m_pBorderRect = other.m_pBorderRect;
  m_pPaperObject = other.m_pPaperObject;
  *m_pOrderedElements = *other.m_pOrderedElements;
  m_mapPredecessors = other.m_mapPredecessors;
  m_bOrderCalculated = other.m_bOrderCalculated;
  m_pReportLayout = other.m_pReportLayout;
  return *this;
}

void CLayoutPage::AddLayoutContent(CPlaceable* object) { m_rgpLayoutContent.push_back(object); }

int CLayoutPage::GetLayoutContentCount() { return static_cast<int>(m_rgpLayoutContent.size()); }

CPlaceable* CLayoutPage::GetLayoutContentAt(int index) const {
  return m_rgpLayoutContent[static_cast<std::size_t>(index)];
}

void CLayoutPage::SetLayoutContentAt(CPlaceable* object, int index) {
  m_rgpLayoutContent[static_cast<std::size_t>(index)] = object;
}

const LayoutRect* CLayoutPage::GetPaperRect() const { return m_pPaperRect; }

void CLayoutPage::SetPaperRect(LayoutRect* rect) {
  if (rect != m_pPaperRect) delete m_pPaperRect;
  m_pPaperRect = rect;
  AssignRectsToObjects();
}

const LayoutRect* CLayoutPage::GetBorderRect() const { return m_pBorderRect; }

void CLayoutPage::SetBorderRect(LayoutRect* rect) {
  if (rect != m_pBorderRect) delete m_pBorderRect;
  m_pBorderRect = rect;
  AssignRectsToObjects();
}

CPlaceable* CLayoutPage::GetPaperObject() const { return m_pPaperObject; }

void CLayoutPage::AssignRectsToObjects() {
  if (m_pPaperRect == nullptr) return;
  m_pPaperObject->SetWidth(m_pPaperRect->GetLRX() - m_pPaperRect->GetULX());
  m_pPaperObject->SetHeight(m_pPaperRect->GetULY() - m_pPaperRect->GetLRY());
}
