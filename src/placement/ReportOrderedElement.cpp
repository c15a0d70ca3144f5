#include "placement/ReportOrderedElement.h"

namespace {

constexpr int kValueHolder = 0;
constexpr int kText = 1;
constexpr int kOtherElement = 2;

}  // namespace

CReportOrderedElement::CReportOrderedElement() = default;
CReportOrderedElement::CReportOrderedElement(const CReportOrderedElement& other) = default;
CReportOrderedElement::~CReportOrderedElement() = default;
CReportOrderedElement& CReportOrderedElement::operator=(const CReportOrderedElement& other) = default;

bool CReportOrderedElement::IsValueHolder() const { return m_iElementKind == kValueHolder; }
bool CReportOrderedElement::IsText() const { return m_iElementKind == kText; }
bool CReportOrderedElement::IsOtherElement() const { return m_iElementKind == kOtherElement; }

const wchar_t* CReportOrderedElement::GetValueHolderKey() const { return m_strValueHolderKey.c_str(); }
const wchar_t* CReportOrderedElement::GetTextContent() const { return m_strTextContent.c_str(); }

void CReportOrderedElement::SetValueHolderKey(const wchar_t* key) {
  if (key == nullptr) return;
  m_strValueHolderKey = key;
  m_iElementKind = kValueHolder;
}

void CReportOrderedElement::SetTextContent(const wchar_t* text) {
  if (text == nullptr) return;
  m_strTextContent = text;
  m_iElementKind = kText;
}

void CReportOrderedElement::SetOtherElement() { m_iElementKind = kOtherElement; }
