#include "model/ReportZone.h"

#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/TableCell.h"
#include "model/ValueHolder.h"
#include "placement/HeightGroupIndex.h"
#include "placement/OrderedElementList.h"

#include <algorithm>
#include <cstddef>
#include <cwchar>

namespace {

template <class T>
void DeleteAll(std::vector<T*>& objects) {
  for (T* object : objects) {
    delete object;
  }
  objects.clear();
}

template <class T>
T* At(const std::vector<T*>& objects, int index) {
  return objects[static_cast<std::size_t>(index)];
}

const wchar_t* At(const std::vector<std::wstring>& texts, int index) {
  return texts[static_cast<std::size_t>(index)].c_str();
}

template <class T>
int Count(const std::vector<T>& entries) {
  return static_cast<int>(entries.size());
}

}  // namespace

bool CReportZone::KeyLess::operator()(const wchar_t* left, const wchar_t* right) const {
  return std::wcscmp(left, right) < 0;
}

CReportZone::CReportZone()
    : m_pOrderedElements(std::make_unique<zeb::OrderedElementList>()),
      m_pHeightGroupIndex(std::make_unique<zeb::HeightGroupIndex>()) {}

CReportZone::CReportZone(const CReportZone& other)
    : m_strInternalReportZoneName(other.m_strInternalReportZoneName),
      m_rgpValueHolders(other.m_rgpValueHolders),
      m_rgpTextElements(other.m_rgpTextElements),
      m_rgpPictureElements(other.m_rgpPictureElements),
      m_rgpRectangleElements(other.m_rgpRectangleElements),
      m_rgpLineElements(other.m_rgpLineElements),
      m_mapAvailableValueHolders(other.m_mapAvailableValueHolders),
      m_pOrderedElements(std::make_unique<zeb::OrderedElementList>(*other.m_pOrderedElements)),
      m_bOrderCalculated(other.m_bOrderCalculated),
      m_rgpHeightElements(other.m_rgpHeightElements),
      m_pHeightGroupIndex(std::make_unique<zeb::HeightGroupIndex>(*other.m_pHeightGroupIndex)),
      m_rgstrFormulaValueHolderKeys(other.m_rgstrFormulaValueHolderKeys),
      m_mapFormulaValueHolderKeyIndex(other.m_mapFormulaValueHolderKeyIndex),
      m_rgstrSumValueHolderKeys(other.m_rgstrSumValueHolderKeys),
      m_bFooterZone(other.m_bFooterZone),
      m_bTableCellsSorted(other.m_bTableCellsSorted),
      m_rgpTableCells(other.m_rgpTableCells),
      m_bZoneCanBreak(other.m_bZoneCanBreak),
      m_iPageBreakNrLinesKeep(other.m_iPageBreakNrLinesKeep),
      m_bPageBreakNotLastZone(other.m_bPageBreakNotLastZone),
      m_rgstrZonesKeepTogether(other.m_rgstrZonesKeepTogether),
      m_rgpValueHoldersInTableCells(other.m_rgpValueHoldersInTableCells),
      m_rgpFormulaValueHoldersInTableCells(other.m_rgpFormulaValueHoldersInTableCells),
      m_rgpDefinedFormulaValueHolders(other.m_rgpDefinedFormulaValueHolders) {}

// The defined formula value holders and the lists of cell value holders are not freed here: the former belong to the
// caller, the latter are the elements of the cells.
CReportZone::~CReportZone() {
  DeleteAll(m_rgpValueHolders);
  DeleteAll(m_rgpTextElements);
  DeleteAll(m_rgpPictureElements);
  DeleteAll(m_rgpRectangleElements);
  DeleteAll(m_rgpLineElements);
  for (CTableCell* cell : m_rgpTableCells) {
    if (cell == nullptr) {
      continue;
    }
    for (int i = 0; i < cell->GetCellElementCount(); ++i) {
      delete cell->GetCellElementAt(i);
    }
    delete cell;
  }
  ClearHeightElements();
}

CReportZone& CReportZone::operator=(const CReportZone& other) {
  if (this == &other) {
    return *this;
  }
  m_strInternalReportZoneName = other.m_strInternalReportZoneName;
  m_rgpValueHolders = other.m_rgpValueHolders;
  m_rgpTextElements = other.m_rgpTextElements;
  m_rgpPictureElements = other.m_rgpPictureElements;
  m_rgpRectangleElements = other.m_rgpRectangleElements;
  m_rgpLineElements = other.m_rgpLineElements;
  m_mapAvailableValueHolders = other.m_mapAvailableValueHolders;
  *m_pOrderedElements = *other.m_pOrderedElements;
  m_bOrderCalculated = other.m_bOrderCalculated;
  m_rgpHeightElements = other.m_rgpHeightElements;
  *m_pHeightGroupIndex = *other.m_pHeightGroupIndex;
  m_rgstrFormulaValueHolderKeys = other.m_rgstrFormulaValueHolderKeys;
  m_mapFormulaValueHolderKeyIndex = other.m_mapFormulaValueHolderKeyIndex;
  m_rgstrSumValueHolderKeys = other.m_rgstrSumValueHolderKeys;
  m_bFooterZone = other.m_bFooterZone;
  m_bTableCellsSorted = other.m_bTableCellsSorted;
  m_rgpTableCells = other.m_rgpTableCells;
  m_bZoneCanBreak = other.m_bZoneCanBreak;
  m_iPageBreakNrLinesKeep = other.m_iPageBreakNrLinesKeep;
  m_bPageBreakNotLastZone = other.m_bPageBreakNotLastZone;
  m_rgstrZonesKeepTogether = other.m_rgstrZonesKeepTogether;
  m_rgpValueHoldersInTableCells = other.m_rgpValueHoldersInTableCells;
  m_rgpFormulaValueHoldersInTableCells = other.m_rgpFormulaValueHoldersInTableCells;
  m_rgpDefinedFormulaValueHolders = other.m_rgpDefinedFormulaValueHolders;
  return *this;
}

const wchar_t* CReportZone::GetInternalReportZoneName() const { return m_strInternalReportZoneName.c_str(); }

void CReportZone::SetInternalReportZoneName(const wchar_t* name) { m_strInternalReportZoneName = name; }

void CReportZone::AddValueHolder(CValueHolder* valueHolder) { m_rgpValueHolders.push_back(valueHolder); }

int CReportZone::GetValueHolderCount() const { return Count(m_rgpValueHolders); }

CValueHolder* CReportZone::GetValueHolderAt(int index) const { return At(m_rgpValueHolders, index); }

void CReportZone::SetValueHolderAt(CValueHolder* valueHolder, int index) {
  m_rgpValueHolders[static_cast<std::size_t>(index)] = valueHolder;
}

void CReportZone::AddTextElement(CText* text) { m_rgpTextElements.push_back(text); }

int CReportZone::GetTextElementCount() const { return Count(m_rgpTextElements); }

CText* CReportZone::GetTextElementAt(int index) const { return At(m_rgpTextElements, index); }

void CReportZone::SetTextElementAt(CText* text, int index) {
  m_rgpTextElements[static_cast<std::size_t>(index)] = text;
}

void CReportZone::AddPictureElement(CPicture* picture) { m_rgpPictureElements.push_back(picture); }

int CReportZone::GetPictureElementCount() const { return Count(m_rgpPictureElements); }

CPicture* CReportZone::GetPictureElementAt(int index) const { return At(m_rgpPictureElements, index); }

void CReportZone::SetPictureElementAt(CPicture* picture, int index) {
  m_rgpPictureElements[static_cast<std::size_t>(index)] = picture;
}

void CReportZone::AddRectangleElement(CRectangle* rectangle) { m_rgpRectangleElements.push_back(rectangle); }

int CReportZone::GetRectangleElementCount() const { return Count(m_rgpRectangleElements); }

CRectangle* CReportZone::GetRectangleElementAt(int index) const { return At(m_rgpRectangleElements, index); }

void CReportZone::SetRectangleElementAt(CRectangle* rectangle, int index) {
  m_rgpRectangleElements[static_cast<std::size_t>(index)] = rectangle;
}

void CReportZone::AddLineElement(CLine* line) { m_rgpLineElements.push_back(line); }

int CReportZone::GetLineElementCount() const { return Count(m_rgpLineElements); }

CLine* CReportZone::GetLineElementAt(int index) const { return At(m_rgpLineElements, index); }

void CReportZone::SetLineElementAt(CLine* line, int index) {
  m_rgpLineElements[static_cast<std::size_t>(index)] = line;
}

bool CReportZone::GetFooterZone() const { return m_bFooterZone; }

void CReportZone::SetFooterZone(bool footerZone) { m_bFooterZone = footerZone; }

bool CReportZone::GetZoneCanBreak() const { return m_bZoneCanBreak; }

void CReportZone::SetZoneCanBreak(bool zoneCanBreak) { m_bZoneCanBreak = zoneCanBreak; }

int CReportZone::GetPageBreakNrLinesKeep() const { return m_iPageBreakNrLinesKeep; }

void CReportZone::SetPageBreakNrLinesKeep(int lines) { m_iPageBreakNrLinesKeep = lines; }

bool CReportZone::GetPageBreakNotLastZone() const { return m_bPageBreakNotLastZone; }

void CReportZone::SetPageBreakNotLastZone(bool notLastZone) { m_bPageBreakNotLastZone = notLastZone; }

void CReportZone::AddZonesKeepTogether(const wchar_t* zoneName) {
  m_rgstrZonesKeepTogether.emplace_back(zoneName);
}

void CReportZone::ClearZonesKeepTogether() { m_rgstrZonesKeepTogether.clear(); }

int CReportZone::GetZonesKeepTogetherCount() const { return Count(m_rgstrZonesKeepTogether); }

const wchar_t* CReportZone::GetZonesKeepTogetherAt(int index) const {
  return At(m_rgstrZonesKeepTogether, index);
}

const wchar_t* CReportZone::GetFormulaValueHolderKeyAt(int index) const {
  return At(m_rgstrFormulaValueHolderKeys, index);
}

int CReportZone::GetFormulaValueHolderKeyCount() const { return Count(m_rgstrFormulaValueHolderKeys); }

const wchar_t* CReportZone::GetSumValueHolderKeyAt(int index) const {
  return At(m_rgstrSumValueHolderKeys, index);
}

int CReportZone::GetSumValueHolderKeyCount() const { return Count(m_rgstrSumValueHolderKeys); }

CValueHolder* CReportZone::GetValueHoldersInTableCellsAt(int index) const {
  return At(m_rgpValueHoldersInTableCells, index);
}

int CReportZone::GetValueHoldersInTableCellsCount() const { return Count(m_rgpValueHoldersInTableCells); }

CFormulaValueHolder* CReportZone::GetFormulaValueHoldersInTableCellsAt(int index) const {
  return At(m_rgpFormulaValueHoldersInTableCells, index);
}

int CReportZone::GetFormulaValueHoldersInTableCellsCount() const {
  return Count(m_rgpFormulaValueHoldersInTableCells);
}

void CReportZone::AddDefinedFormulaValueHolder(CFormulaValueHolder* valueHolder) {
  m_rgpDefinedFormulaValueHolders.push_back(valueHolder);
}

CFormulaValueHolder* CReportZone::GetDefinedFormulaValueHolderAt(int index) const {
  return At(m_rgpDefinedFormulaValueHolders, index);
}

int CReportZone::GetDefinedFormulaValueHoldersCount() const { return Count(m_rgpDefinedFormulaValueHolders); }
