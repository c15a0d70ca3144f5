#pragma once

#include "platform/Export.h"

namespace zebxmln {
class CXMLNode;
}
class CIDManager;

/// A point or a shift: x to the right, y upward, (0, 0) by default. Value class.
class ZEB_EXPORT CSimplePoint {
 public:
  CSimplePoint();
  CSimplePoint(const CSimplePoint& other);
  virtual ~CSimplePoint();

  /// Reads the `SimplePt` element that is the first child of `node`, if it is one. Always true.
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& idManager);
  /// Adds a `SimplePt` element with both numbers to `node`. Always true.
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& idManager);

  CSimplePoint& operator=(const CSimplePoint& other);

  float GetX() const { return m_fX; }
  void SetX(float x) { m_fX = x; }
  float GetY() const { return m_fY; }
  void SetY(float y) { m_fY = y; }

 private:
  float m_fX = 0.0F;
  float m_fY = 0.0F;
};
