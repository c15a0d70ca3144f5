#include "rtf/RTFColor.h"

CRTFColor::CRTFColor() : m_cRed(0), m_cGreen(0), m_cBlue(0) {}

CRTFColor::CRTFColor(const CRTFColor& other) = default;

CRTFColor::~CRTFColor() = default;

CRTFColor& CRTFColor::operator=(const CRTFColor& other) = default;

unsigned char CRTFColor::GetRed() const { return m_cRed; }
void CRTFColor::SetRed(unsigned char red) { m_cRed = red; }
unsigned char CRTFColor::GetGreen() const { return m_cGreen; }
void CRTFColor::SetGreen(unsigned char green) { m_cGreen = green; }
unsigned char CRTFColor::GetBlue() const { return m_cBlue; }
void CRTFColor::SetBlue(unsigned char blue) { m_cBlue = blue; }
