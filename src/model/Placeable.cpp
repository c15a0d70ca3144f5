#include "model/Placeable.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/Border.h"
#include "model/Condition.h"
#include "model/ElementNames.h"
#include "model/ObjectReference.h"
#include "model/RGBColor.h"
#include "placement/PlaceableRelation.h"

namespace {

constexpr zeb::ElementName kWidth = L"Width";
constexpr zeb::ElementName kHeight = L"Height";
constexpr zeb::ElementName kBorder = L"Border";
constexpr zeb::ElementName kTextColor = L"TextColor";
constexpr zeb::ElementName kBackgroundColor = L"BackgroundColor";
constexpr zeb::ElementName kKeepMinWidth = L"KeepMinWidth";
constexpr zeb::ElementName kCondition = L"Condition";

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

/// Reads the reference to the object's relation.
/// @return the relation that the object is to take, null if it keeps what it has
CPlaceableRelation* ReadRelation(zeb::RecordReader& reader, CIDManager& idManager,
                                 CPlaceableRelation* present) {
  int id = 0;
  if (!reader.Read(zeb::Elements::PlRelID, id)) return nullptr;
  zeb::IDBinding binding(idManager);
  // A second record of one object must not drop the relation that a first one made: nobody else would free it.
  if (present != nullptr && binding.IsOwned(present)) return nullptr;
  return zeb::TakeObject<CPlaceableRelation>(binding, id);
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

bool CPlaceable::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  zeb::ReadOwnID(reader, zeb::Elements::PlID, idManager, this);
  if (auto* const relation = ReadRelation(reader, idManager, m_pPlaceableRelation)) {
    SetPlaceableRelation(relation);
  }
  reader.Read(kWidth, m_fWidth);
  reader.Read(kHeight, m_fHeight);
  if (auto* const border = reader.Take(kBorder)) Ensure(m_pBorder).Load(border, idManager);
  if (auto* const color = reader.Take(kTextColor)) Ensure(m_pTextColor).Load(color, idManager);
  if (auto* const color = reader.Take(kBackgroundColor)) Ensure(m_pBackgroundColor).Load(color, idManager);
  reader.Read(kKeepMinWidth, m_fKeepMinWidth);
  if (auto* const condition = reader.Take(kCondition)) {
    // Fixed behaviour: a present condition is replaced, where border and colours are loaded into.
    SetCondition(new CCondition);
    m_pCondition->Load(condition, idManager);
  }
  return true;
}

bool CPlaceable::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::Placeable);
  zeb::WriteID(writer, zeb::Elements::PlID, idManager, this);
  if (m_pPlaceableRelation != nullptr) {
    zeb::WriteID(writer, zeb::Elements::PlRelID, idManager, m_pPlaceableRelation);
  }
  writer.WriteUnless(kWidth, m_fWidth, 0.0F);
  writer.WriteUnless(kHeight, m_fHeight, 0.0F);
  if (m_pBorder != nullptr && !m_pBorder->IsDefaultBorder()) m_pBorder->Save(writer.Add(kBorder), idManager);
  if (m_pTextColor != nullptr && !m_pTextColor->IsDefaultTextColor()) {
    m_pTextColor->Save(writer.Add(kTextColor), idManager);
  }
  if (m_pBackgroundColor != nullptr && !m_pBackgroundColor->IsDefaultBackgroundColor()) {
    m_pBackgroundColor->Save(writer.Add(kBackgroundColor), idManager);
  }
  // Fixed behaviour: a negative least width is not written, whereas a negative width is.
  if (m_fKeepMinWidth > 0.0F) writer.Write(kKeepMinWidth, m_fKeepMinWidth);
  if (m_pCondition != nullptr) m_pCondition->Save(writer.Add(kCondition), idManager);
  return true;
}

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
