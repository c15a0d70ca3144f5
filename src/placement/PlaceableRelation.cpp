#include "placement/PlaceableRelation.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"
#include "model/Line.h"
#include "model/ObjectReference.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/ReportRootElement.h"
#include "model/TableCell.h"
#include "model/ValueHolder.h"

#include <memory>

namespace {

constexpr zeb::ElementName kSrcRelPt = L"SrcRelPt";
constexpr zeb::ElementName kDestRelPt = L"DestRelPt";
constexpr zeb::ElementName kRefOffsetPt = L"RefOffsetPt";
constexpr zeb::ElementName kAdjustHeight = L"AdjustHeight";

/// The placeholder of a zone, which the root element's list owns. What the identifier names is a zone object from
/// then on, whoever made it.
CPlaceable* ReferToZone(zeb::IDBinding& binding, int id) {
  const bool isNew = !binding.IsBound(id);
  auto* placeholder = isNew ? new CPlaceable : zeb::FindObject<CPlaceable>(binding, id);
  if (placeholder == nullptr) return nullptr;
  if (isNew) {
    zeb::BindObject(binding, id, placeholder);
    CReportRootElement::AddDeletableObject(placeholder);
  }
  placeholder->SetIsZoneObject(true);
  return placeholder;
}

/// Reads the target if one stands at the cursor; null if there is none, or if its identifier names an object of
/// another class.
CPlaceable* ReadTarget(zeb::RecordReader& reader, CIDManager& idManager) {
  namespace Elements = zeb::Elements;
  zeb::IDBinding binding(idManager);
  int id = 0;
  if (reader.Read(Elements::VHID, id)) return zeb::ReferToObject<CValueHolder>(binding, id);
  if (reader.Read(Elements::TxID, id)) return zeb::ReferToObject<CText>(binding, id);
  if (reader.Read(Elements::PicID, id)) return zeb::ReferToObject<CPicture>(binding, id);
  if (reader.Read(Elements::RectID, id)) return zeb::ReferToObject<CRectangle>(binding, id);
  if (reader.Read(Elements::LineID, id)) return zeb::ReferToObject<CLine>(binding, id);
  if (reader.Read(Elements::TableCellID, id)) return zeb::ReferToObject<CTableCell>(binding, id);
  if (reader.Read(Elements::ZoneID, id)) return ReferToZone(binding, id);
  return nullptr;
}

/// The element that names the target, empty for one that is not written: the paper of a page.
zeb::ElementName TargetName(const CPlaceable* target) {
  namespace Elements = zeb::Elements;
  if (target == nullptr) return Elements::ZoneID;
  if (dynamic_cast<const CValueHolder*>(target) != nullptr) return Elements::VHID;
  if (dynamic_cast<const CText*>(target) != nullptr) return Elements::TxID;
  if (dynamic_cast<const CPicture*>(target) != nullptr) return Elements::PicID;
  if (dynamic_cast<const CRectangle*>(target) != nullptr) return Elements::RectID;
  if (dynamic_cast<const CLine*>(target) != nullptr) return Elements::LineID;
  if (dynamic_cast<const CTableCell*>(target) != nullptr) return Elements::TableCellID;
  return target->IsZoneObject() ? Elements::ZoneID : zeb::ElementName();
}

}  // namespace

CPlaceableRelation::CPlaceableRelation() = default;
CPlaceableRelation::CPlaceableRelation(const CPlaceableRelation& other) = default;
CPlaceableRelation::~CPlaceableRelation() = default;
CPlaceableRelation& CPlaceableRelation::operator=(const CPlaceableRelation& other) = default;

bool CPlaceableRelation::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  zeb::ReadOwnID(reader, zeb::Elements::PlRelID, idManager, this);
  if (CPlaceable* const relationObject = ReadTarget(reader, idManager)) m_pRelationObject = relationObject;
  if (auto* const point = reader.Take(kSrcRelPt)) m_SourceRelPt.Load(point, idManager);
  if (auto* const point = reader.Take(kDestRelPt)) m_DestRelPt.Load(point, idManager);
  if (auto* const offset = reader.Take(kRefOffsetPt)) m_RefOffset.Load(offset, idManager);
  reader.Read(kAdjustHeight, m_bAdjustHeight);
  return true;
}

bool CPlaceableRelation::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::PlRel);
  zeb::WriteID(writer, zeb::Elements::PlRelID, idManager, this);
  if (const zeb::ElementName name = TargetName(m_pRelationObject); !name.empty()) {
    zeb::WriteID(writer, name, idManager, m_pRelationObject);
  }
  if (m_SourceRelPt.GetRelationPoint() != 0) m_SourceRelPt.Save(writer.Add(kSrcRelPt), idManager);
  if (m_DestRelPt.GetRelationPoint() != 0) m_DestRelPt.Save(writer.Add(kDestRelPt), idManager);
  if (m_RefOffset.GetX() != 0.0F || m_RefOffset.GetY() != 0.0F) {
    m_RefOffset.Save(writer.Add(kRefOffsetPt), idManager);
  }
  writer.WriteUnless(kAdjustHeight, m_bAdjustHeight, false);
  return true;
}

CPlaceableRelation* CPlaceableRelation::CreatePlRel(RelationPoint source, RelationPoint destination,
                                                    float offsetX, float offsetY,
                                                    CPlaceable* relationObject) {
  auto relation = std::make_unique<CPlaceableRelation>();
  relation->m_SourceRelPt.SetRelationPoint(source);
  relation->m_DestRelPt.SetRelationPoint(destination);
  relation->m_RefOffset.SetX(offsetX);
  relation->m_RefOffset.SetY(offsetY);
  relation->m_pRelationObject = relationObject;
  return relation.release();
}
