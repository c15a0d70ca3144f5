#pragma once

namespace zeb {

/// What a CRTFParser owns and keeps beside the members that its interface shows. Freed with the parser.
struct RTFStore {
  /// How many tables have been freed. A saved state of an earlier count has no table any more.
  int m_iFreedTables = 0;
};

}  // namespace zeb
