#pragma once

#include "platform/Export.h"

/// The form in which a number travels from a supplier of values: the value and its precision.
class ZEB_EXPORT CDoubleElement {
 public:
  /// The value 0 with two decimals.
  CDoubleElement();
  CDoubleElement(double value, int precision);
  CDoubleElement(const CDoubleElement& other);
  virtual ~CDoubleElement();
  CDoubleElement& operator=(const CDoubleElement& other);

  void SetValues(double value, int precision);
  double GetDouble() const;
  void SetDouble(double value);
  /// Number of decimals that the value is meant to have.
  int GetPrecision() const;
  void SetPrecision(int precision);

 private:
  double m_dValue = 0.0;
  int m_iPrecision = 2;
};
