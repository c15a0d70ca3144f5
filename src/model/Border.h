#pragma once

#include "platform/Export.h"

namespace zebxmln {
class CXMLNode;
}
class CIDManager;

/// Widths of the four border lines of a placed object and the distances between border and text.
/// All lengths are in the caller's unit and 0 by default. Value class.
class ZEB_EXPORT CBorder {
 public:
  CBorder();
  CBorder(const CBorder& other);
  virtual ~CBorder();

  /// Reads the fields that stand under `node`; fields that are absent stay as they are. Always true.
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& idManager);
  /// Writes the fields that are not 0 under `node`, which the caller has made. Always true.
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& idManager);

  CBorder& operator=(const CBorder& other);

  float GetLeftBorderWidth() const { return m_fLeftBorderWidth; }
  void SetLeftBorderWidth(float width) { m_fLeftBorderWidth = width; }
  float GetUpperBorderWidth() const { return m_fUpperBorderWidth; }
  void SetUpperBorderWidth(float width) { m_fUpperBorderWidth = width; }
  float GetRightBorderWidth() const { return m_fRightBorderWidth; }
  void SetRightBorderWidth(float width) { m_fRightBorderWidth = width; }
  float GetLowerBorderWidth() const { return m_fLowerBorderWidth; }
  void SetLowerBorderWidth(float width) { m_fLowerBorderWidth = width; }

  float GetLeftTextDistance() const { return m_fLeftTextDistance; }
  void SetLeftTextDistance(float distance) { m_fLeftTextDistance = distance; }
  float GetUpperTextDistance() const { return m_fUpperTextDistance; }
  void SetUpperTextDistance(float distance) { m_fUpperTextDistance = distance; }
  float GetRightTextDistance() const { return m_fRightTextDistance; }
  void SetRightTextDistance(float distance) { m_fRightTextDistance = distance; }
  float GetLowerTextDistance() const { return m_fLowerTextDistance; }
  void SetLowerTextDistance(float distance) { m_fLowerTextDistance = distance; }

  /// Distance of the first base line from the upper border.
  float GetBaseLineToUpperDistance() const { return m_fBaseLineToUpperDistance; }
  void SetBaseLineToUpperDistance(float distance) { m_fBaseLineToUpperDistance = distance; }
  /// Distance of the last base line from the lower border.
  float GetBaseLineToLowerDistance() const { return m_fBaseLineToLowerDistance; }
  void SetBaseLineToLowerDistance(float distance) { m_fBaseLineToLowerDistance = distance; }

  /// Sets the four border widths.
  void SetWidths(float left, float upper, float right, float lower);
  /// Sets all four border widths to one value.
  void SetAllWidths(float width);
  /// Sets the four text distances; the base line distances stay.
  void SetDistances(float left, float upper, float right, float lower);
  /// Sets all four text distances to one value; the base line distances stay.
  void SetAllDistances(float distance);

  /// Whether one of the four border widths is not 0.
  bool HasBorder() const;
  /// Whether one of the six distances is not 0.
  bool HasTextDistances() const;
  /// Whether all ten fields are 0.
  bool IsDefaultBorder() const;

 private:
  float m_fLeftBorderWidth = 0.0F;
  float m_fUpperBorderWidth = 0.0F;
  float m_fRightBorderWidth = 0.0F;
  float m_fLowerBorderWidth = 0.0F;
  float m_fLeftTextDistance = 0.0F;
  float m_fUpperTextDistance = 0.0F;
  float m_fRightTextDistance = 0.0F;
  float m_fLowerTextDistance = 0.0F;
  float m_fBaseLineToUpperDistance = 0.0F;
  float m_fBaseLineToLowerDistance = 0.0F;
};
