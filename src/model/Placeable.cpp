#include "model/Placeable.h"

#include "model/Border.h"
#include "model/Condition.h"
#include "model/RGBColor.h"
#include "placement/PlaceableRelation.h"

namespace {

/// Deletes the present object and puts the new one in its place.
template <class Object>
void Replace(Object*& present, Object* object) {
  if (present == object) return;
  delete present;
  present = object;
}

/// The present object, which is made if there is none.
template <class Object>
Object& Ensure(Object*& present) {
  if (present == nullptr) present = new Object;
  return *present;
}

}  // namespace

CPlaceable::CPlaceable() = default;
CPlaceable::CPlaceable(const CPlaceable& other) = default;
CPlaceable::~CPlaceable() {
  delete m_pPlaceableRelation;
  delete m_pBorder;
  delete m_pTextColor;
  delete m_pBackgroundColor;
  delete m_pCondition;
}
CPlaceable& CPlaceable::operator=(const CPlaceable& other) = default;

bool CPlaceable::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CPlaceable::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

void CPlaceable::SetBorder(CBorder* border) { Replace(m_pBorder, border); }

void CPlaceable::SetCondition(CCondition* condition) { Replace(m_pCondition, condition); }

void CPlaceable::SetTextColor(CRGBColor* color) { Replace(m_pTextColor, color); }

void CPlaceable::SetTextColor(float red, float green, float blue) {
  Ensure(m_pTextColor).SetValues(red, green, blue);
}

void CPlaceable::SetBackgroundColor(CRGBColor* color) { Replace(m_pBackgroundColor, color); }

void CPlaceable::SetBackgroundColor(float red, float green, float blue) {
  Ensure(m_pBackgroundColor).SetValues(red, green, blue);
}

void CPlaceable::UpdateTextDistancesToVersion2() {
  if (m_pBorder == nullptr) return;
  // Fixed behaviour: base line distances that are set already are overwritten.
  m_pBorder->SetBaseLineToUpperDistance(m_pBorder->GetUpperTextDistance());
  m_pBorder->SetBaseLineToLowerDistance(m_pBorder->GetLowerTextDistance());
  m_pBorder->SetUpperTextDistance(0.0F);
  m_pBorder->SetLowerTextDistance(0.0F);
}
