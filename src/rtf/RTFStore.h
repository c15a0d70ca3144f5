#pragma once

#include "rtf/RTFDestinationTables.h"
#include "rtf/RTFState.h"
#include "rtf/RTFTableRow.h"

#include <memory>
#include <vector>

namespace zeb {

/// What a CRTFParser owns and keeps beside the members that its interface shows. Freed with the parser.
struct RTFStore {
  RTFDestinationTables m_Tables;
  /// A handler of the caller is at work, or has thrown.
  bool m_bInHandler = false;
  /// How many tables have been freed. A saved state of an earlier count has no table any more.
  int m_iFreedTables = 0;
  /// All rows and cells of all tables. They outlive their tables, since records of handlers may still name them.
  std::vector<std::unique_ptr<CRTFTableRow>> m_Rows;
  std::vector<std::unique_ptr<CRTFTableCell>> m_Cells;
  /// The state that goes with every run. It is kept from run to run, so that its list of rows need not be made anew.
  CRTFState m_RunState;
  /// The saved state of a group that has ended, for the next one; may be null.
  std::unique_ptr<CRTFState> m_pSpareState;
};

}  // namespace zeb
