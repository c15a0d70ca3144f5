#pragma once

#include "platform/Export.h"

namespace zebxmln {
class CXMLNode;
}
class CIDManager;

/// A rectangle of a page by its upper left and lower right corner, y growing upward. Value class.
class ZEB_EXPORT LayoutRect {
 public:
  /// The corners are to be set or loaded before they are used.
  LayoutRect();
  LayoutRect(float upperLeftX, float upperLeftY, float lowerRightX, float lowerRightY);
  LayoutRect(const LayoutRect& other);
  virtual ~LayoutRect();

  /// Reads the corners that stand under `node`. Always true.
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& idManager);
  /// Writes all four numbers under `node`, which the caller has made. Always true.
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& idManager);

  LayoutRect& operator=(const LayoutRect& other);

  float GetULX() const { return m_fULX; }
  void SetULX(float x) { m_fULX = x; }
  float GetULY() const { return m_fULY; }
  void SetULY(float y) { m_fULY = y; }
  float GetLRX() const { return m_fLRX; }
  void SetLRX(float x) { m_fLRX = x; }
  float GetLRY() const { return m_fLRY; }
  void SetLRY(float y) { m_fLRY = y; }

 private:
  float m_fULX = 0.0F;
  float m_fULY = 0.0F;
  float m_fLRX = 0.0F;
  float m_fLRY = 0.0F;
};
