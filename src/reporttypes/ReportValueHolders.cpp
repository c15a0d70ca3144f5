#include "reporttypes/ReportValueHolders.h"

#include "fonts/FontPool.h"
#include "foundation/KXExceptionHandler.h"
#include "model/DynamicValueHolder.h"
#include "model/FormulaValueHolder.h"
#include "model/ReportDocument.h"
#include "model/ReportRootElement.h"
#include "model/ReportZone.h"
#include "model/SumValueHolder.h"

#include <cwchar>
#include <utility>

namespace {

// The bits of the formula options.
constexpr int kResultIsEmptyIfVHEmpty = 1;
constexpr int kResultIsEmptyIfNull = 2;
constexpr int kResultIsBool = 4;

template <class Kind>
const Kind* As(const CValueHolder* valueHolder) {
  return dynamic_cast<const Kind*>(valueHolder);
}

}  // namespace

CReportValueHolders::CReportValueHolders() = default;
CReportValueHolders::CReportValueHolders(const CReportValueHolders& other) = default;
CReportValueHolders& CReportValueHolders::operator=(const CReportValueHolders& other) = default;

CReportValueHolders::~CReportValueHolders() { delete m_pRootElement; }

void CReportValueHolders::LoadReport(const wchar_t* reportFile, const wchar_t* fontPoolPath,
                                     const wchar_t* exceptionPath) {
  m_pReportDocument = nullptr;
  delete std::exchange(m_pRootElement, nullptr);
  CFontPool::GetInstance().SetFontPoolPath(fontPoolPath);
  CKXExceptionHandler::GetInstance().SetExceptionPathName(exceptionPath);
  m_pRootElement = new CReportRootElement;
  m_pRootElement->LoadReport(reportFile, nullptr);
  m_pReportDocument = m_pRootElement->GetReportDocument();
  for (int i = 0; i < GetReportZoneCount(); ++i) {
    if (CReportZone* zone = m_pReportDocument->GetReportZoneAt(i)) zone->IdentifyFormulaValueHolderKeys();
  }
}

CReportRootElement* CReportValueHolders::GetRootElement() const { return m_pRootElement; }

// A file without a document is a report without zones.
int CReportValueHolders::GetReportZoneCount() const {
  return m_pReportDocument == nullptr ? 0 : m_pReportDocument->GetReportZoneCount();
}

const wchar_t* CReportValueHolders::GetReportZoneInternalName(int zone) const {
  return Zone(zone).GetInternalReportZoneName();
}

int CReportValueHolders::GetReportZoneNr(const wchar_t* name) {
  for (int i = 0; i < GetReportZoneCount(); ++i) {
    const CReportZone* zone = m_pReportDocument->GetReportZoneAt(i);
    if (zone != nullptr && std::wcscmp(zone->GetInternalReportZoneName(), name) == 0) return i;
  }
  return -1;
}

int CReportValueHolders::GetReportZoneTextCount(int zone) const { return Zone(zone).GetTextElementCount(); }

const wchar_t* CReportValueHolders::GetReportZoneTextAt(int zone, int index) const {
  return Zone(zone).GetTextElementAt(index)->GetTextContent();
}

int CReportValueHolders::GetReportZoneFormulaValueHolderKeyCount(int zone) const {
  return Zone(zone).GetFormulaValueHolderKeyCount();
}

const wchar_t* CReportValueHolders::GetReportZoneFormulaValueHolderKeyAt(int zone, int index) {
  return Zone(zone).GetFormulaValueHolderKeyAt(index);
}

int CReportValueHolders::GetReportZoneOrderedElementCount(int zone) const {
  Zone(zone).CalculateOrderedElements(true);
  return Zone(zone).GetOrderedElementCount();
}

const CReportOrderedElement& CReportValueHolders::GetReportZoneOrderedElementAt(int zone, int index) {
  Zone(zone).CalculateOrderedElements(true);
  CPlaceable* element = Zone(zone).GetOrderedElementAt(index);
  if (element == nullptr) return m_orderedElement;
  if (const auto* valueHolder = dynamic_cast<CValueHolder*>(element)) {
    m_orderedElement.SetValueHolderKey(valueHolder->GetInternalKey());
  } else if (const auto* text = dynamic_cast<CText*>(element)) {
    m_orderedElement.SetTextContent(text->GetTextContent());
  } else {
    m_orderedElement.SetOtherElement();
  }
  return m_orderedElement;
}

int CReportValueHolders::GetReportZoneValueHolderCount(int zone) const {
  const CReportZone& counted = Zone(zone);
  return counted.GetValueHolderCount() + counted.GetValueHoldersInTableCellsCount() +
         counted.GetFormulaValueHoldersInTableCellsCount();
}

const wchar_t* CReportValueHolders::GetReportZoneValueHolderInternalNameAt(int zone, int index) const {
  const CValueHolder* valueHolder = GetValueHolder(&Zone(zone), index);
  return valueHolder == nullptr ? nullptr : valueHolder->GetInternalKey();
}

const wchar_t* CReportValueHolders::GetReportZoneValueHolderDynNameAt(int zone, int index) const {
  const auto* dynamic = As<CDynamicValueHolder>(GetValueHolder(&Zone(zone), index));
  return dynamic == nullptr ? nullptr : dynamic->GetName();
}

const wchar_t* CReportValueHolders::GetReportZoneValueHolderFormulaNameAt(int zone, int index) const {
  const auto* formula = As<CFormulaValueHolder>(GetValueHolder(&Zone(zone), index));
  return formula == nullptr ? nullptr : formula->GetName();
}

const wchar_t* CReportValueHolders::GetReportZoneValueHolderFormulaAt(int zone, int index) const {
  const auto* formula = As<CFormulaValueHolder>(GetValueHolder(&Zone(zone), index));
  return formula == nullptr ? nullptr : formula->GetFormula();
}

const wchar_t* CReportValueHolders::GetReportZoneValueHolderSumNameAt(int zone, int index) const {
  const auto* sum = As<CSumValueHolder>(GetValueHolder(&Zone(zone), index));
  return sum == nullptr ? nullptr : sum->GetName();
}

int CReportValueHolders::GetReportZoneValueHolderFormulaOptionsAt(int zone, int index) const {
  const auto* formula = As<CFormulaValueHolder>(GetValueHolder(&Zone(zone), index));
  if (formula == nullptr) return 0;
  return (formula->GetResultIsEmptyIfVHEmpty() ? kResultIsEmptyIfVHEmpty : 0) +
         (formula->GetResultIsEmptyIfNull() ? kResultIsEmptyIfNull : 0) +
         (formula->GetResultIsBool() ? kResultIsBool : 0);
}

bool CReportValueHolders::GetReportZoneValueHolderNumberToText(int zone, int index) const {
  const CValueHolder* valueHolder = GetValueHolder(&Zone(zone), index);
  return valueHolder != nullptr && valueHolder->GetNumberToText();
}

bool CReportValueHolders::GetGraphicValueHolderDimensions(int zone, const wchar_t* key, float& width,
                                                          float& height) {
  const CReportZone& searched = Zone(zone);
  for (int i = 0; i < searched.GetValueHolderCount(); ++i) {
    const CValueHolder* graphic = searched.GetValueHolderAt(i);
    if (graphic == nullptr || graphic->GetValueHolderType() != CValueHolder::VHTypeGraphic ||
        std::wcscmp(graphic->GetInternalKey(), key) != 0) {
      continue;
    }
    width = graphic->GetWidth();
    height = graphic->GetHeight();
    return true;
  }
  return false;
}

CReportZone& CReportValueHolders::Zone(int zone) const { return *m_pReportDocument->GetReportZoneAt(zone); }

CValueHolder* CReportValueHolders::GetValueHolder(CReportZone* zone, int index) const {
  if (index < zone->GetValueHolderCount()) return zone->GetValueHolderAt(index);
  index -= zone->GetValueHolderCount();
  if (index < zone->GetValueHoldersInTableCellsCount()) return zone->GetValueHoldersInTableCellsAt(index);
  index -= zone->GetValueHoldersInTableCellsCount();
  if (index < zone->GetFormulaValueHoldersInTableCellsCount()) {
    return zone->GetFormulaValueHoldersInTableCellsAt(index);
  }
  return nullptr;
}
