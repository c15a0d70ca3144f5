#include "model/Border.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"

namespace {

constexpr zeb::ElementName kLeftWidth = L"LeftWidth";
constexpr zeb::ElementName kUpperWidth = L"UpperWidth";
constexpr zeb::ElementName kRightWidth = L"RightWidth";
constexpr zeb::ElementName kLowerWidth = L"LowerWidth";
constexpr zeb::ElementName kLeftDistance = L"LeftDistance";
constexpr zeb::ElementName kUpperDistance = L"UpperDistance";
constexpr zeb::ElementName kRightDistance = L"RightDistance";
constexpr zeb::ElementName kLowerDistance = L"LowerDistance";
constexpr zeb::ElementName kBaseUpper = L"BaseUpper";
constexpr zeb::ElementName kBaseLower = L"BaseLower";

}  // namespace

CBorder::CBorder() = default;
CBorder::CBorder(const CBorder& other) = default;
CBorder::~CBorder() = default;
CBorder& CBorder::operator=(const CBorder& other) = default;

bool CBorder::Load(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordReader reader(node);
  reader.Read(kLeftWidth, m_fLeftBorderWidth);
  reader.Read(kUpperWidth, m_fUpperBorderWidth);
  reader.Read(kRightWidth, m_fRightBorderWidth);
  reader.Read(kLowerWidth, m_fLowerBorderWidth);
  reader.Read(kLeftDistance, m_fLeftTextDistance);
  reader.Read(kUpperDistance, m_fUpperTextDistance);
  reader.Read(kRightDistance, m_fRightTextDistance);
  reader.Read(kLowerDistance, m_fLowerTextDistance);
  reader.Read(kBaseUpper, m_fBaseLineToUpperDistance);
  reader.Read(kBaseLower, m_fBaseLineToLowerDistance);
  return true;
}

bool CBorder::Save(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordWriter writer(node);
  writer.WriteUnless(kLeftWidth, m_fLeftBorderWidth, 0.0F);
  writer.WriteUnless(kUpperWidth, m_fUpperBorderWidth, 0.0F);
  writer.WriteUnless(kRightWidth, m_fRightBorderWidth, 0.0F);
  writer.WriteUnless(kLowerWidth, m_fLowerBorderWidth, 0.0F);
  writer.WriteUnless(kLeftDistance, m_fLeftTextDistance, 0.0F);
  writer.WriteUnless(kUpperDistance, m_fUpperTextDistance, 0.0F);
  writer.WriteUnless(kRightDistance, m_fRightTextDistance, 0.0F);
  writer.WriteUnless(kLowerDistance, m_fLowerTextDistance, 0.0F);
  writer.WriteUnless(kBaseUpper, m_fBaseLineToUpperDistance, 0.0F);
  writer.WriteUnless(kBaseLower, m_fBaseLineToLowerDistance, 0.0F);
  return true;
}

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
