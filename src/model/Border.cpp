#include "model/Border.h"

CBorder::CBorder() = default;
CBorder::CBorder(const CBorder& other) = default;
CBorder::~CBorder() = default;
CBorder& CBorder::operator=(const CBorder& other) = default;

bool CBorder::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CBorder::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

void CBorder::SetWidths(float left, float upper, float right, float lower) {
  m_fLeftBorderWidth = left;
  m_fUpperBorderWidth = upper;
  m_fRightBorderWidth = right;
  m_fLowerBorderWidth = lower;
}

void CBorder::SetAllWidths(float width) { SetWidths(width, width, width, width); }

void CBorder::SetDistances(float left, float upper, float right, float lower) {
  m_fLeftTextDistance = left;
  m_fUpperTextDistance = upper;
  m_fRightTextDistance = right;
  m_fLowerTextDistance = lower;
}

// Fixed behaviour: the base line distances stay, though HasTextDistances counts them.
void CBorder::SetAllDistances(float distance) { SetDistances(distance, distance, distance, distance); }

bool CBorder::HasBorder() const {
  return m_fLeftBorderWidth != 0.0F || m_fUpperBorderWidth != 0.0F || m_fRightBorderWidth != 0.0F ||
         m_fLowerBorderWidth != 0.0F;
}

bool CBorder::HasTextDistances() const {
  return m_fLeftTextDistance != 0.0F || m_fUpperTextDistance != 0.0F || m_fRightTextDistance != 0.0F ||
         m_fLowerTextDistance != 0.0F || m_fBaseLineToUpperDistance != 0.0F ||
         m_fBaseLineToLowerDistance != 0.0F;
}

bool CBorder::IsDefaultBorder() const { return !HasBorder() && !HasTextDistances(); }
