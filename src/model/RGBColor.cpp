#include "model/RGBColor.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"

namespace {

constexpr zeb::ElementName kColor = L"Color";
constexpr zeb::ElementName kRGBRed = L"RGBRed";
constexpr zeb::ElementName kRGBGreen = L"RGBGreen";
constexpr zeb::ElementName kRGBBlue = L"RGBBlue";

// Fixed behaviour: a part above this limit tells a colour of an old file, whose parts run from 0 to 255.
constexpr float kGreatestPart = 1.5F;
constexpr float kOldScale = 255.0F;

}  // namespace

CRGBColor::CRGBColor() = default;
CRGBColor::CRGBColor(const CRGBColor& other) = default;
CRGBColor::~CRGBColor() = default;
CRGBColor& CRGBColor::operator=(const CRGBColor& other) = default;

bool CRGBColor::Load(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zebxmln::CXMLNode* const color = zeb::RecordReader(node).Take(kColor);
  if (color == nullptr) return true;
  zeb::RecordReader reader(color);
  reader.Read(kRGBRed, m_fRed);
  reader.Read(kRGBGreen, m_fGreen);
  reader.Read(kRGBBlue, m_fBlue);
  if (m_fRed > kGreatestPart || m_fGreen > kGreatestPart || m_fBlue > kGreatestPart) {
    SetValues(m_fRed / kOldScale, m_fGreen / kOldScale, m_fBlue / kOldScale);
  }
  return true;
}

bool CRGBColor::Save(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordWriter writer(node, kColor);
  writer.WriteUnless(kRGBRed, m_fRed, 0.0F);
  writer.WriteUnless(kRGBGreen, m_fGreen, 0.0F);
  writer.WriteUnless(kRGBBlue, m_fBlue, 0.0F);
  return true;
}

void CRGBColor::SetValues(float red, float green, float blue) {
  m_fRed = red;
  m_fGreen = green;
  m_fBlue = blue;
}

bool CRGBColor::IsDefaultTextColor() const { return m_fRed == 0.0F && m_fGreen == 0.0F && m_fBlue == 0.0F; }

bool CRGBColor::IsDefaultBackgroundColor() const {
  return m_fRed == 1.0F && m_fGreen == 1.0F && m_fBlue == 1.0F;
}
