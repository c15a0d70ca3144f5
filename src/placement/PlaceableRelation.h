#pragma once

#include "model/SimplePoint.h"
#include "placement/RelationPoint.h"

class CPlaceable;

/// Ties an object to another one: the source point of the object that owns the relation stands at the destination
/// point of the relation object, shifted by the reference offset. The target may be the placeholder of a zone or
/// the paper of a page. The geometry itself is the caller's business.
///
/// The relation object is never owned. A copy names the same relation object.
class ZEB_EXPORT CPlaceableRelation {
 public:
  CPlaceableRelation();
  CPlaceableRelation(const CPlaceableRelation& other);
  virtual ~CPlaceableRelation();

  /// Reads the record from `node`, which is the `PlRel` element. A target that is not known yet is made, empty,
  /// for its own record to fill it. Always true.
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& idManager);
  /// Adds a `PlRel` element to `node`. Always true.
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& idManager);

  CPlaceableRelation& operator=(const CPlaceableRelation& other);

  /// Makes a relation, which the caller owns and normally hands on to CPlaceable::SetPlaceableRelation.
  /// @param source point of the object that owns the relation
  /// @param destination point of the relation object
  /// @param offsetX,offsetY shift from the destination point to the source point, in the caller's unit
  static CPlaceableRelation* CreatePlRel(RelationPoint source, RelationPoint destination, float offsetX,
                                         float offsetY, CPlaceable* relationObject);

  /// The point on the object that owns the relation.
  const CRelationPoint& GetSourceRelPt() const { return m_SourceRelPt; }
  /// The point on the relation object.
  const CRelationPoint& GetDestRelPt() const { return m_DestRelPt; }
  /// The shift between the two points.
  const CSimplePoint& GetRefOffset() const { return m_RefOffset; }
  /// The object that this relation ties to, null if there is none.
  CPlaceable* GetRelationObject() const { return m_pRelationObject; }
  /// Whether the height of the owning object follows the relation object.
  bool GetAdjustHeight() const { return m_bAdjustHeight; }

  void SetSourceRelPt(CRelationPoint& point) { m_SourceRelPt = point; }
  void SetDestRelPt(CRelationPoint& point) { m_DestRelPt = point; }
  void SetRefOffset(CSimplePoint& offset) { m_RefOffset = offset; }
  void SetRelationObject(CPlaceable* relationObject) { m_pRelationObject = relationObject; }
  void SetAdjustHeight(bool adjustHeight) { m_bAdjustHeight = adjustHeight; }

 private:
  CRelationPoint m_DestRelPt;
  CSimplePoint m_RefOffset;
  CRelationPoint m_SourceRelPt;
  CPlaceable* m_pRelationObject = nullptr;  // observer
  bool m_bAdjustHeight = false;
};
