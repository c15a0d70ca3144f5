#include "rtf/RTFParser.h"

#include "rtf/RTFDocumentCopy.h"
#include "rtf/RTFState.h"
#include "rtf/RTFStore.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

namespace {

/// From this depth on, groups with the same state that open one directly in the other share one node: a text of
/// nothing but opening braces takes no more memory than its own size.
constexpr int kDepthOfSharedStates = 256;

/// Takes the rows of a table out of the properties while those are copied: the list may be long, and a saved state
/// needs to know no more of it than its length.
class RowsAside {
 public:
  explicit RowsAside(CDocumentProperties& properties) : m_Properties(properties) {
    m_Rows.swap(m_Properties.Rows);
  }
  ~RowsAside() { m_Rows.swap(m_Properties.Rows); }
  RowsAside(const RowsAside&) = delete;
  RowsAside& operator=(const RowsAside&) = delete;

  std::vector<CRTFTableRow*>& Rows() { return m_Rows; }

 private:
  CDocumentProperties& m_Properties;
  std::vector<CRTFTableRow*> m_Rows;
};

/// Whether groups leave the current list and level alone: in the tables of lists these are what is being built.
bool KeepsList(CRTFParser::RDS dest) {
  return dest == CRTFParser::rdsListTable || dest == CRTFParser::rdsListLevel ||
         dest == CRTFParser::rdsListOverrideTable;
}

}  // namespace

int CRTFParser::PushRtfState() {
  if (m_cGroup >= kDepthOfSharedStates && m_pStack != nullptr && IsSaved(*m_pStack)) {
    ++m_pStack->m_cGroups;
  } else {
    CRTFState* const state =
        m_pStore->m_pSpareState ? m_pStore->m_pSpareState.release() : new (std::nothrow) CRTFState;
    if (state == nullptr) return rtfNoMemory;
    SaveState(*state);
    state->Next = m_pStack;
    m_pStack = state;
  }
  m_ris = risNorm;
  ++m_cGroup;
  if (m_rds == rdsFontTable) return ChangeDest(idestFontEntry);
  if (m_rds == rdsStyleSheet) return ChangeDest(idestStyleEntry);
  return rtfOK;
}

void CRTFParser::SaveState(CRTFState& state) {
  state.m_cGroups = 1;
  state.m_cRows = m_DocProps.Rows.size();
  state.m_iFreedTables = m_pStore->m_iFreedTables;
  state.CharProps = m_CharProps;
  state.ParProps = m_ParProps;
  state.SecProps = m_SecProps;
  zeb::CopyWithoutRows(m_DocProps, state.DocProps);
  state.FontProps = m_FontProps;
  state.Destination = m_rds;
  state.InternalState = m_ris;
  const bool keepsList = KeepsList(m_rds);
  state.List = keepsList ? nullptr : m_pCurList;
  state.Level = keepsList ? nullptr : m_pCurLevel;
}

bool CRTFParser::IsSaved(const CRTFState& state) {
  RowsAside aside(m_DocProps);
  if (state.m_cRows != aside.Rows().size() || state.m_iFreedTables != m_pStore->m_iFreedTables) return false;
  if (state.Destination != m_rds || state.InternalState != m_ris) return false;
  if (!KeepsList(m_rds) && (state.List != m_pCurList || state.Level != m_pCurLevel)) return false;
  return state.CharProps == m_CharProps && state.ParProps == m_ParProps && state.SecProps == m_SecProps &&
         state.DocProps == m_DocProps && state.FontProps == m_FontProps;
}

int CRTFParser::PopRtfState() {
  if (m_pStack == nullptr) return rtfStackUnderflow;
  CloseRunOutsideTable();
  if (m_rds != m_pStack->Destination) {
    const int result = EndGroupAction(m_rds);
    if (result != rtfOK) return result;
  }
  const bool tableEnds = m_ParProps.InTable != 0 && m_pStack->ParProps.InTable == 0;
  RestoreState(*m_pStack);
  if (tableEnds) {
    ContextHasChanged(false, false, true);
    FreeTableData();
  }
  LeaveTopGroup();
  // Fixed behaviour: what the enclosing group restores at its end are these paragraph settings, so they outlive it.
  if (m_pStack != nullptr) m_pStack->ParProps = m_ParProps;
  --m_cGroup;
  return rtfOK;
}

void CRTFParser::RestoreState(const CRTFState& state) {
  m_CharProps = state.CharProps;
  m_ParProps = state.ParProps;
  m_SecProps = state.SecProps;
  m_FontProps = state.FontProps;
  m_rds = state.Destination;
  m_ris = state.InternalState;
  if (!KeepsList(m_rds)) {
    m_pCurList = state.List;
    m_pCurLevel = state.Level;
  }
  // The group has added rows at most; a table that was freed since is empty in every saved state.
  const bool freed = state.m_iFreedTables != m_pStore->m_iFreedTables;
  zeb::CopyWithoutRows(state.DocProps, m_DocProps);
  m_DocProps.Rows.resize(freed ? 0 : std::min(m_DocProps.Rows.size(), state.m_cRows));
  if (freed) {
    m_DocProps.CurrentRow = nullptr;
    m_DocProps.CurrentCell = nullptr;
  }
}

void CRTFParser::LeaveTopGroup() {
  if (--m_pStack->m_cGroups > 0) return;
  // Mostly another group follows at once.
  m_pStore->m_pSpareState.reset(std::exchange(m_pStack, m_pStack->Next));
}

CRTFState* CRTFParser::StateOfTopGroup() {
  if (m_pStack->m_cGroups > 1) {
    auto* state = new (std::nothrow) CRTFState(*m_pStack);
    if (state == nullptr) return nullptr;
    --m_pStack->m_cGroups;
    state->m_cGroups = 1;
    state->Next = m_pStack;
    m_pStack = state;
  }
  return m_pStack;
}
