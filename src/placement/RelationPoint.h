#pragma once

#include "platform/Export.h"

namespace zebxmln {
class CXMLNode;
}
class CIDManager;

/// A point of an object's rectangle, carried as an integer: any value is kept.
enum RelationPoint : int {
  RelationPointUpperLeft = 0,   ///< the default, not written to files
  RelationPointUpperRight = 1,  ///< upper right corner
  RelationPointLowerLeft = 2,   ///< lower left corner
  RelationPointLowerRight = 3,  ///< lower right corner
};

/// Holder of a RelationPoint in a file. Value class.
class ZEB_EXPORT CRelationPoint {
 public:
  CRelationPoint();
  CRelationPoint(const CRelationPoint& other);
  virtual ~CRelationPoint();

  /// Reads the `RelPt` element that is the first child of `node`, if it is one. Always true.
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& idManager);
  /// Adds a `RelPt` element to `node`. Always true.
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& idManager);

  CRelationPoint& operator=(const CRelationPoint& other);

  RelationPoint GetRelationPoint() const { return m_eRelationPoint; }
  void SetRelationPoint(RelationPoint point) { m_eRelationPoint = point; }

 private:
  RelationPoint m_eRelationPoint = RelationPointUpperLeft;
};
