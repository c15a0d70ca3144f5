#include "model/RGBColor.h"

CRGBColor::CRGBColor() = default;
CRGBColor::CRGBColor(const CRGBColor& other) = default;
CRGBColor::~CRGBColor() = default;
CRGBColor& CRGBColor::operator=(const CRGBColor& other) = default;

bool CRGBColor::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CRGBColor::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

void CRGBColor::SetValues(float red, float green, float blue) {
  m_fRed = red;
  m_fGreen = green;
  m_fBlue = blue;
}

bool CRGBColor::IsDefaultTextColor() const { return m_fRed == 0.0F && m_fGreen == 0.0F && m_fBlue == 0.0F; }

bool CRGBColor::IsDefaultBackgroundColor() const {
  return m_fRed == 1.0F && m_fGreen == 1.0F && m_fBlue == 1.0F;
}
