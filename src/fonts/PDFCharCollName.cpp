#include "fonts/PDFCharCollName.h"

CPDFCharCollName::CPDFCharCollName()
    : m_CharColl(static_cast<CFontMetrics::CharColl>(-1)), m_iSupplement(0) {}

CPDFCharCollName::CPDFCharCollName(const CPDFCharCollName& other) = default;
CPDFCharCollName::~CPDFCharCollName() = default;
CPDFCharCollName& CPDFCharCollName::operator=(const CPDFCharCollName& other) = default;

CFontMetrics::CharColl CPDFCharCollName::GetCharColl() const { return m_CharColl; }
void CPDFCharCollName::SetCharColl(CFontMetrics::CharColl collection) { m_CharColl = collection; }
const wchar_t* CPDFCharCollName::GetOrdering() const { return m_strOrdering.c_str(); }
void CPDFCharCollName::SetOrdering(const wchar_t* ordering) { m_strOrdering = ordering; }
int CPDFCharCollName::GetSupplement() const { return m_iSupplement; }
void CPDFCharCollName::SetSupplement(int supplement) { m_iSupplement = supplement; }
