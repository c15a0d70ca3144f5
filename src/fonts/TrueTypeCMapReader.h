#pragma once

#include "fonts/ByteReader.h"
#include "fonts/TrueTypeCMap.h"

#include <cstdint>
#include <memory>

namespace zeb {

/// Reads the table `cmap`: the last Windows map and the last Macintosh Roman map of it, which are the ones that count.
/// Both are held against the bytes of the table before anything is allocated.
class TrueTypeCMapReader {
 public:
  /// @return false if a map does not lie within the table, or has no segment
  static bool Read(ByteReader table, CTrueTypeTabCMap& result);

 private:
  static bool ReadCMap4(ByteReader in, std::uint16_t encodingID, CTrueTypeCMap4& map);
  static bool ReadSegments(ByteReader& in, CTrueTypeCMap4& map);
  static bool ReadFormat0(ByteReader in, CTrueTypeCMap0_6& map);
  static bool ReadFormat6(ByteReader in, CTrueTypeCMap0_6& map);
};

}  // namespace zeb
