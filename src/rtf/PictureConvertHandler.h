#pragma once

#include "platform/Export.h"

/// Converts pictures that the caller of CRTFParser cannot draw as they are. The parser does not own it.
class ZEB_EXPORT CPictureConvertHandler {
 public:
  /// @param format 5 for an enhanced metafile, 2 for PNG
  /// @param data the picture's bytes, valid during the call
  /// @param length of the data in bytes
  /// @param reserved always 0
  /// @param out room for the converted picture
  /// @param outLength on entry the room in bytes, 2,097,152; on return how many bytes were stored
  /// @return false if the picture stays as it is
  virtual bool ConvertPicture(int format, const void* data, int length, int reserved, void* out,
                              int* outLength) = 0;

 protected:
  ~CPictureConvertHandler() = default;
};
