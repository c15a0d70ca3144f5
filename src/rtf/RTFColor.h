#pragma once

#include "platform/Export.h"

/// A colour of the colour table of an RTF text: three parts from 0 to 255, black at the start.
class ZEB_EXPORT CRTFColor {
 public:
  CRTFColor();
  CRTFColor(const CRTFColor& other);
  ~CRTFColor();
  CRTFColor& operator=(const CRTFColor& other);

  unsigned char GetRed() const;
  void SetRed(unsigned char red);
  unsigned char GetGreen() const;
  void SetGreen(unsigned char green);
  unsigned char GetBlue() const;
  void SetBlue(unsigned char blue);

 private:
  unsigned char m_cRed;
  unsigned char m_cGreen;
  unsigned char m_cBlue;
};
