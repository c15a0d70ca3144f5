#include "reporttypes/DoubleElement.h"

CDoubleElement::CDoubleElement() = default;

CDoubleElement::CDoubleElement(double value, int precision) : m_dValue(value), m_iPrecision(precision) {}

CDoubleElement::CDoubleElement(const CDoubleElement& other) = default;

CDoubleElement::~CDoubleElement() = default;

CDoubleElement& CDoubleElement::operator=(const CDoubleElement& other) = default;

void CDoubleElement::SetValues(double value, int precision) {
  m_dValue = value;
  m_iPrecision = precision;
}

double CDoubleElement::GetDouble() const { return m_dValue; }

void CDoubleElement::SetDouble(double value) { m_dValue = value; }

int CDoubleElement::GetPrecision() const { return m_iPrecision; }

void CDoubleElement::SetPrecision(int precision) { m_iPrecision = precision; }
