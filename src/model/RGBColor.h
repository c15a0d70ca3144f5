#pragma once

#include "platform/Export.h"

namespace zebxmln {
class CXMLNode;
}
class CIDManager;

/// A colour of three parts from 0 to 1, black by default. Value class.
class ZEB_EXPORT CRGBColor {
 public:
  CRGBColor();
  CRGBColor(const CRGBColor& other);
  virtual ~CRGBColor();

  /// Reads the `Color` element that is the first child of `node`; without one the colour stays as it is.
  /// Old files hold values from 0 to 255: if one of the three is above 1.5, all are divided by 255. Always true.
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& idManager);
  /// Adds a `Color` element to `node`, with the parts that are not 0. Always true.
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& idManager);

  CRGBColor& operator=(const CRGBColor& other);

  float GetRed() const { return m_fRed; }
  void SetRed(float red) { m_fRed = red; }
  float GetGreen() const { return m_fGreen; }
  void SetGreen(float green) { m_fGreen = green; }
  float GetBlue() const { return m_fBlue; }
  void SetBlue(float blue) { m_fBlue = blue; }
  void SetValues(float red, float green, float blue);

  /// Whether the colour is exactly black, which files leave out as a text colour.
  bool IsDefaultTextColor() const;
  /// Whether the colour is exactly white, which files leave out as a background colour.
  bool IsDefaultBackgroundColor() const;

 private:
  float m_fRed = 0.0F;
  float m_fGreen = 0.0F;
  float m_fBlue = 0.0F;
};
