#pragma once

#include "platform/Export.h"

class CGlobalFontHandler;

/// The list of encodings and character collections that a report can use for its fonts.
class ZEB_EXPORT CEncodings {
 public:
  /// @param owner the handler that owns the list
  explicit CEncodings(CGlobalFontHandler* owner);
  CEncodings(const CEncodings& other);
  virtual ~CEncodings();
  CEncodings& operator=(const CEncodings& other);

 private:
  CGlobalFontHandler* m_pOwner;  // observer
};
